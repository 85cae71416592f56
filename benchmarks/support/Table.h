#ifndef BENCHMARKS_SUPPORT_TABLE_H
#define BENCHMARKS_SUPPORT_TABLE_H

#include "benchmarks/support/Cost.h"

#include <QString>

namespace Benchmarks {

/// Writes a benchmark's part of the table that script/bench assembles. A line that begins with "|"
/// is a row; every other line explains the rows above.
class Table
{
public:
    /// The number of pairs to measure: 7, or 1 with the argument "--tiny".
    static int pairs(int argc, const char *const *argv);

    /// A row with the medians of @p member on both sides; @p goal is the maximum ratio to the
    /// floor, 0 if there is none.
    static void
    compare(const QString &what, double Cost::*member, const Comparison &comparison, double goal);

    /// A row with the growth of the costs in the rows above.
    static void
    growth(const QString &what, const QVector<double> &sizes, const QVector<double> &costs);

    /// A row of any other kind.
    static void row(const QString &what,
                    const QString &ours,
                    const QString &floor,
                    const QString &ratio,
                    const QString &goal);

    /// Explains the rows above, in a sentence or two.
    static void explain(const QString &text);
};

} // namespace Benchmarks

#endif
