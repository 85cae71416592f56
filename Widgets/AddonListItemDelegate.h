#ifndef WIDGETS_ADDONLISTITEMDELEGATE_H
#define WIDGETS_ADDONLISTITEMDELEGATE_H

#include <QStyledItemDelegate>

namespace Quillmont::Utility::Widgets {

/// Gives every item of the simulator list the height of a row.
class AddonListItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit AddonListItemDelegate(QObject *parent);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace Quillmont::Utility::Widgets

#endif
