#include "Widgets/Accessible/AccessibleList.h"

#include <QListWidget>

namespace Quillmont::Utility::Widgets {

AccessibleList::AccessibleList(QListWidget *list)
    : QAccessibleWidget(list, QAccessible::List)
{ }

QListWidget *AccessibleList::list() const
{
    return qobject_cast<QListWidget *>(object());
}

int AccessibleList::childCount() const
{
    return list()->count();
}

QAccessibleInterface *AccessibleList::child(int index) const
{
    auto *row = list()->itemWidget(list()->item(index));
    return row ? QAccessible::queryAccessibleInterface(row) : nullptr;
}

int AccessibleList::indexOfChild(const QAccessibleInterface *child) const
{
    for (int i = 0; child && i < childCount(); ++i) {
        if (list()->itemWidget(list()->item(i)) == child->object())
            return i;
    }
    return -1;
}

QAccessibleInterface *AccessibleList::focusChild() const
{
    return list()->hasFocus() && list()->currentItem() ? child(list()->currentRow())
                                                       : QAccessibleWidget::focusChild();
}

} // namespace Quillmont::Utility::Widgets
