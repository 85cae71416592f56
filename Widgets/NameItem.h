#ifndef WIDGETS_NAMEITEM_H
#define WIDGETS_NAMEITEM_H

#include <QLayoutItem>

namespace Quillmont::Utility::Widgets {

/// The place of a row's name. Rows keep their height however large the letters are; where the
/// name does not fit into its share of it, it reaches up into the margin above.
class NameItem : public QWidgetItem
{
public:
    using QWidgetItem::QWidgetItem;

    void setGeometry(const QRect &share) override;
};

} // namespace Quillmont::Utility::Widgets

#endif
