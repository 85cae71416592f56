#ifndef WIDGETS_FITTINGBOX_H
#define WIDGETS_FITTINGBOX_H

#include <QObject>

namespace Quillmont::Utility::Widgets {

/// While it lives, a message box whose text needs more height than the screen has shows that text
/// in a view that scrolls, so that its button stays on the screen; the box's text() is the same.
/// Other boxes are as Qt makes them.
class FittingBox : public QObject
{
    Q_OBJECT

public:
    explicit FittingBox(QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace Quillmont::Utility::Widgets

#endif
