#include "Widgets/NameItem.h"

#include <QWidget>

namespace Quillmont::Utility::Widgets {

void NameItem::setGeometry(const QRect &share)
{
    const int lacking = qBound(0, widget()->sizeHint().height() - share.height(), share.top());
    QWidgetItem::setGeometry(share.adjusted(0, -lacking, 0, 0));
}

} // namespace Quillmont::Utility::Widgets
