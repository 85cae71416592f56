#ifndef BENCHMARKS_SUPPORT_PLAINROW_H
#define BENCHMARKS_SUPPORT_PLAINROW_H

#include <QWidget>

class QListWidget;

namespace Benchmarks {

/// The child widgets of a simulator's row with what they show, and nothing behind them.
class PlainRow : public QWidget
{
    Q_OBJECT

public:
    PlainRow(QWidget *parent, const QString &name, const QString &path);

    /// Puts a row at the end of @p list, as high as the program's rows are.
    static void addTo(QListWidget *list, const QString &name, const QString &path);
};

/// A window with those child widgets that the program's window has, and @p rows plain rows.
QWidget *plainWindow(int rows, const QString &path);

} // namespace Benchmarks

#endif
