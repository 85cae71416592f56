#include "Widgets/Accessible/AccessibleRow.h"

#include <QListWidget>

namespace Quillmont::Utility::Widgets {

AccessibleRow::AccessibleRow(QWidget *row)
    : QAccessibleWidget(row, QAccessible::ListItem)
{ }

QListWidget *AccessibleRow::list() const
{
    QWidget *above = widget()->parentWidget();
    while (above && !qobject_cast<QListWidget *>(above))
        above = above->parentWidget();
    return qobject_cast<QListWidget *>(above);
}

QAccessibleInterface *AccessibleRow::parent() const
{
    auto *holder = list();
    return holder ? QAccessible::queryAccessibleInterface(holder) : QAccessibleWidget::parent();
}

QAccessible::State AccessibleRow::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const auto *holder = list();
    state.focusable = true;
    state.focused = holder && holder->hasFocus() && holder->currentItem()
        && holder->itemWidget(holder->currentItem()) == widget();
    return state;
}

} // namespace Quillmont::Utility::Widgets
