#ifndef BENCHMARKS_SUPPORT_PLAINROW_H
#define BENCHMARKS_SUPPORT_PLAINROW_H

#include <QWidget>

class QListWidget;

namespace Benchmarks {

/// The child widgets of a simulator's row with their content, but without any function.
class PlainRow : public QWidget
{
    Q_OBJECT

public:
    PlainRow(QWidget *parent, const QString &name, const QString &path);

    /// Appends a row to @p list, as high as the program's rows.
    static void addTo(QListWidget *list, const QString &name, const QString &path);
};

/// A window with the child widgets of the program's window, and @p rows plain rows.
QWidget *plainWindow(int rows, const QString &path);

} // namespace Benchmarks

#endif
