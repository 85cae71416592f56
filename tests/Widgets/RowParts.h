#ifndef TESTS_WIDGETS_ROWPARTS_H
#define TESTS_WIDGETS_ROWPARTS_H

class QBoxLayout;
class QLabel;
class QLineEdit;
class QToolButton;
class QWidget;

namespace Tests {

/// The visible parts of a row in the simulator list, found by their position. A missing part is
/// null.
struct RowParts
{
    explicit RowParts(const QWidget *row);

    QBoxLayout *outer = nullptr; ///< The icon, then the column.
    QBoxLayout *column = nullptr; ///< The name above the line.
    QBoxLayout *line = nullptr; ///< Path field, browse button, action button.
    QLabel *icon = nullptr;
    QLabel *name = nullptr;
    QLineEdit *path = nullptr;
    QToolButton *browse = nullptr;
    QToolButton *action = nullptr;
};

} // namespace Tests

#endif
