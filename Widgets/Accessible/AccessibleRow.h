#ifndef WIDGETS_ACCESSIBLE_ACCESSIBLEROW_H
#define WIDGETS_ACCESSIBLE_ACCESSIBLEROW_H

#include <QAccessibleWidget>

class QListWidget;

namespace Quillmont::Utility::Widgets {

/// What a screen reader finds of a row: an entry of the list that the row stands in.
class AccessibleRow : public QAccessibleWidget
{
public:
    explicit AccessibleRow(QWidget *row);

    QAccessibleInterface *parent() const override;
    QAccessible::State state() const override;

private:
    QListWidget *list() const;
};

} // namespace Quillmont::Utility::Widgets

#endif
