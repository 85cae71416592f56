#ifndef WIDGETS_ACCESSIBLE_ACCESSIBLEROW_H
#define WIDGETS_ACCESSIBLE_ACCESSIBLEROW_H

#include <QAccessibleWidget>

class QListWidget;

namespace Quillmont::Utility::Widgets {

/// Accessible interface of a row: an item of the list that contains it.
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
