#include "Widgets/Accessible/AccessibleButton.h"

#include <QApplication>
#include <QToolButton>

namespace Quillmont::Utility::Widgets {

AccessibleButton::AccessibleButton(QToolButton *button)
    : QAccessibleWidget(button, QAccessible::Button)
{ }

QStringList AccessibleButton::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled())
        names.prepend(pressAction());
    return names;
}

// Clicked asynchronously, and only if no dialog has been opened meanwhile.
void AccessibleButton::doAction(const QString &actionName)
{
    if (actionName != pressAction()) {
        QAccessibleWidget::doAction(actionName);
        return;
    }
    auto *button = qobject_cast<QToolButton *>(object());
    const auto press = [button] {
        if (!isBehindDialog(button))
            button->click();
    };
    QMetaObject::invokeMethod(button, press, Qt::QueuedConnection);
}

bool isBehindDialog(const QWidget *widget)
{
    const auto *dialog = QApplication::activeModalWidget();
    return dialog && dialog != widget->window();
}

} // namespace Quillmont::Utility::Widgets
