#ifndef WIDGETS_NAMEITEM_H
#define WIDGETS_NAMEITEM_H

#include <QLayoutItem>

namespace Quillmont::Utility::Widgets {

/// Layout item for a row's name: with a large font it grows into the margin above, since rows have
/// a fixed height.
class NameItem : public QWidgetItem
{
public:
    using QWidgetItem::QWidgetItem;

    void setGeometry(const QRect &share) override;
};

} // namespace Quillmont::Utility::Widgets

#endif
