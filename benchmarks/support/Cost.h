#ifndef BENCHMARKS_SUPPORT_COST_H
#define BENCHMARKS_SUPPORT_COST_H

#include <QStringList>
#include <QVector>

#include <functional>

namespace Benchmarks {

/// The cost of some work.
struct Cost
{
    double wall = 0; ///< Milliseconds on the clock.
    double cpu = 0; ///< Milliseconds of processor time.
    double memory = 0; ///< Peak memory in megabytes; only known for a program.
};

/// Our cost, the floor's, and their ratio, all medians.
struct Comparison
{
    Cost ours;
    Cost floor;
    Cost ratio;
};

/// The cost of @p work, done in this process.
Cost costOf(const std::function<void()> &work);

/// The cost of running @p command, which has to succeed.
Cost costOfProgram(const QStringList &command);

/// Measures both alternately, at least @p pairs times and more often if they are fast, each going
/// first equally often, so that a busy computer slows both. The first of several pairs warms caches
/// and does not count.
Comparison
compare(int pairs, const std::function<Cost()> &ours, const std::function<Cost()> &floor);

/// The exponent of the costs' growth with the size: 1 is linear, 2 quadratic.
double exponent(const QVector<double> &sizes, const QVector<double> &costs);

} // namespace Benchmarks

#endif
