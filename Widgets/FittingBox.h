#ifndef WIDGETS_FITTINGBOX_H
#define WIDGETS_FITTINGBOX_H

#include <QObject>

namespace Quillmont::Utility::Widgets {

/// For its lifetime, a message box that is too tall for the screen shows its text in a scrolling
/// view, so that its button stays on the screen; its text() is the same. Other boxes are unchanged.
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
