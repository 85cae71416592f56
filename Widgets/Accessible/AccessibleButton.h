#ifndef WIDGETS_ACCESSIBLE_ACCESSIBLEBUTTON_H
#define WIDGETS_ACCESSIBLE_ACCESSIBLEBUTTON_H

#include <QAccessibleWidget>

class QToolButton;

namespace Quillmont::Utility::Widgets {

/// What a screen reader finds of a row's button. The toolkit's own would answer a press only when
/// all is done, the box that follows included, and leave the screen reader waiting for it.
class AccessibleButton : public QAccessibleWidget
{
public:
    explicit AccessibleButton(QToolButton *button);

    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;
};

/// Whether a dialog is open that keeps mouse and keys from @p widget; it keeps no screen reader.
bool isBehindDialog(const QWidget *widget);

} // namespace Quillmont::Utility::Widgets

#endif
