#include "Widgets/AddonListItemDelegate.h"

namespace Quillmont::Utility::Widgets {

AddonListItemDelegate::AddonListItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{ }

QSize AddonListItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width(), 64};
}

} // namespace Quillmont::Utility::Widgets
