#ifndef BENCHMARKS_SUPPORT_TABLE_H
#define BENCHMARKS_SUPPORT_TABLE_H

#include "benchmarks/support/Cost.h"

#include <QString>

namespace Benchmarks {

/// Writes a benchmark's part of the table that script/bench puts together. A line that begins
/// with "|" is a row of it, every other line says what the rows above compare.
class Table
{
public:
    /// How many pairs are measured: 7, or 1 with "--tiny" among the arguments.
    static int pairs(int argc, const char *const *argv);

    /// A row of the median of @p member on both sides; @p goal is the most it may be of the floor,
    /// 0 if that is only told.
    static void
    compare(const QString &what, double Cost::*member, const Comparison &comparison, double goal);

    /// A row for how the costs of the rows above grow.
    static void
    growth(const QString &what, const QVector<double> &sizes, const QVector<double> &costs);

    /// A row of any other kind.
    static void row(const QString &what,
                    const QString &ours,
                    const QString &floor,
                    const QString &ratio,
                    const QString &goal);

    /// What the rows above compare, a sentence or two.
    static void explain(const QString &text);
};

} // namespace Benchmarks

#endif
