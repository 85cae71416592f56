#ifndef WIDGETS_ACCESSIBLE_ACCESSIBLELIST_H
#define WIDGETS_ACCESSIBLE_ACCESSIBLELIST_H

#include <QAccessibleWidget>

class QListWidget;

namespace Quillmont::Utility::Widgets {

/// What a screen reader finds of the list of simulators: its rows with all that is in them. The
/// toolkit's own would offer the items below the rows, which are empty.
class AccessibleList : public QAccessibleWidget
{
public:
    explicit AccessibleList(QListWidget *list);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;

private:
    QListWidget *list() const;
};

} // namespace Quillmont::Utility::Widgets

#endif
