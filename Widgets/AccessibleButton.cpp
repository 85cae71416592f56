#include "Widgets/AccessibleButton.h"

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

void AccessibleButton::doAction(const QString &actionName)
{
    if (actionName != pressAction())
        QAccessibleWidget::doAction(actionName);
    // Pressed now, let go of a moment later, but not behind the back of a dialog that is open.
    else if (!QApplication::activeModalWidget())
        qobject_cast<QToolButton *>(object())->animateClick();
}

} // namespace Quillmont::Utility::Widgets
