#ifndef WIDGETS_ACCESSIBLE_ACCESSIBLELIST_H
#define WIDGETS_ACCESSIBLE_ACCESSIBLELIST_H

#include <QAccessibleWidget>

class QListWidget;

namespace Quillmont::Utility::Widgets {

/// Accessible interface of the list of simulators: its children are the rows. Qt's own shows the
/// list's items, which are empty behind the rows.
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
