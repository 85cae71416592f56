#include "Widgets/AccessibleButton.h"

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
    // Pressed now, let go of a moment later.
    if (actionName == pressAction())
        qobject_cast<QToolButton *>(object())->animateClick();
    else
        QAccessibleWidget::doAction(actionName);
}

} // namespace Quillmont::Utility::Widgets
