#ifndef WIDGETS_ACCESSIBLE_ACCESSIBLEBUTTON_H
#define WIDGETS_ACCESSIBLE_ACCESSIBLEBUTTON_H

#include <QAccessibleWidget>

class QToolButton;

namespace Quillmont::Utility::Widgets {

/// Accessible interface of a row's button. Qt's own clicks synchronously: a screen reader would
/// hang until the work is done and the result box is closed.
class AccessibleButton : public QAccessibleWidget
{
public:
    explicit AccessibleButton(QToolButton *button);

    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;
};

/// Whether a modal dialog blocks the mouse and keys for @p widget; a screen reader is not blocked.
bool isBehindDialog(const QWidget *widget);

} // namespace Quillmont::Utility::Widgets

#endif
