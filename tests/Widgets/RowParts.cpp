#include "tests/Widgets/RowParts.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

template <typename Part>
Part *widgetAt(const QBoxLayout *layout, int index)
{
    QLayoutItem *item = layout ? layout->itemAt(index) : nullptr;
    return item ? qobject_cast<Part *>(item->widget()) : nullptr;
}

template <typename Layout>
Layout *layoutAt(const QBoxLayout *layout, int index)
{
    QLayoutItem *item = layout ? layout->itemAt(index) : nullptr;
    return item ? qobject_cast<Layout *>(item->layout()) : nullptr;
}

} // namespace

namespace Tests {

RowParts::RowParts(const QWidget *row)
    : outer(qobject_cast<QHBoxLayout *>(row->layout()))
    , column(layoutAt<QVBoxLayout>(outer, 1))
    , line(layoutAt<QHBoxLayout>(column, 1))
    , icon(widgetAt<QLabel>(outer, 0))
    , name(widgetAt<QLabel>(column, 0))
    , path(widgetAt<QLineEdit>(line, 0))
    , browse(widgetAt<QToolButton>(line, 1))
    , action(widgetAt<QToolButton>(line, 2))
{ }

} // namespace Tests
