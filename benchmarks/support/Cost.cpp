#include "benchmarks/support/Cost.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Benchmarks {

namespace {

double processorMilliseconds()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double milliseconds(const timeval &time)
{
    return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
}

pid_t start(const QStringList &command)
{
    QVector<QByteArray> words;
    for (const QString &word : command)
        words.append(QFile::encodeName(word));
    QVector<char *> arguments;
    for (QByteArray &word : words)
        arguments.append(word.data());
    arguments.append(nullptr);
    pid_t process = 0;
    if (posix_spawn(&process, arguments.at(0), nullptr, nullptr, arguments.data(), environ) != 0)
        qFatal("cannot start %s", arguments.at(0));
    return process;
}

double median(const QVector<Cost> &costs, double Cost::*member)
{
    QVector<double> values;
    for (const Cost &cost : costs)
        values.append(cost.*member);
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

Cost median(const QVector<Cost> &costs)
{
    return {median(costs, &Cost::wall), median(costs, &Cost::cpu), median(costs, &Cost::memory)};
}

} // namespace

Cost costOf(const std::function<void()> &work)
{
    QElapsedTimer clock;
    clock.start();
    const double before = processorMilliseconds();
    work();
    return {double(clock.nsecsElapsed()) / 1e6, processorMilliseconds() - before, 0};
}

Cost costOfProgram(const QStringList &command)
{
    QElapsedTimer clock;
    clock.start();
    int status = 0;
    rusage usage = {};
    if (wait4(start(command), &status, 0, &usage) < 0 || status != 0)
        qFatal("%s ended with status %d", qPrintable(command.first()), status);
    return {double(clock.nsecsElapsed()) / 1e6,
            milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime),
            double(usage.ru_maxrss) / 1024};
}

Comparison compare(int pairs, const std::function<Cost()> &ours, const std::function<Cost()> &floor)
{
    constexpr int warmUp = 1;
    constexpr int maxPairs = 101;
    constexpr int milliseconds = 2000;
    QVector<Cost> our;
    QVector<Cost> floors;
    QVector<Cost> ratios;
    QElapsedTimer clock;
    clock.start();
    const auto isEnough = [&](int i) {
        const bool more = pairs > 1 && i < maxPairs && !clock.hasExpired(milliseconds);
        return i >= pairs + (pairs > 1 ? warmUp : 0) && !more;
    };
    for (int i = 0; !isEnough(i); ++i) {
        Cost first = i % 2 == 0 ? ours() : floor();
        Cost second = i % 2 == 0 ? floor() : ours();
        if (i % 2 != 0)
            std::swap(first, second);
        if (pairs > 1 && i < warmUp)
            continue;
        our.append(first);
        floors.append(second);
        ratios.append({first.wall / second.wall,
                       first.cpu / second.cpu,
                       second.memory > 0 ? first.memory / second.memory : 0});
    }
    return {median(our), median(floors), median(ratios)};
}

// The slope of the best-fitting line through the logarithms of both.
double exponent(const QVector<double> &sizes, const QVector<double> &costs)
{
    double x = 0;
    double y = 0;
    double xx = 0;
    double xy = 0;
    for (int i = 0; i < sizes.size(); ++i) {
        const double size = std::log(sizes.at(i));
        const double cost = std::log(costs.at(i));
        x += size;
        y += cost;
        xx += size * size;
        xy += size * cost;
    }
    return (sizes.size() * xy - x * y) / (sizes.size() * xx - x * x);
}

} // namespace Benchmarks
