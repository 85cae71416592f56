#ifndef BENCHMARKS_SUPPORT_COST_H
#define BENCHMARKS_SUPPORT_COST_H

#include <QStringList>
#include <QVector>

#include <functional>

namespace Benchmarks {

/// What some work took.
struct Cost
{
    double wall = 0; ///< Milliseconds on the clock.
    double cpu = 0; ///< Milliseconds of the processor's.
    double memory = 0; ///< Megabytes at the peak; only that of a program is known.
};

/// Our cost, the floor's, and how often the floor goes into ours, all medians.
struct Comparison
{
    Cost ours;
    Cost floor;
    Cost ratio;
};

/// The cost of @p work, done here and now.
Cost costOf(const std::function<void()> &work);

/// The cost of running @p command to its end, which has to be a good one.
Cost costOfProgram(const QStringList &command);

/// Measures both in turn, at least @p pairs times and more often where that takes no time, each
/// going first as often as the other: what slows the computer down slows both. The first pair of
/// several warms caches and does not count.
Comparison
compare(int pairs, const std::function<Cost()> &ours, const std::function<Cost()> &floor);

/// The power of the size that the costs grow with: 1 is linear, 2 quadratic.
double exponent(const QVector<double> &sizes, const QVector<double> &costs);

} // namespace Benchmarks

#endif
