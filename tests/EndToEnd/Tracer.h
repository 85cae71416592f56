#ifndef TESTS_ENDTOEND_TRACER_H
#define TESTS_ENDTOEND_TRACER_H

#include <QString>
#include <QStringList>
#include <QVector>

namespace Tests {

/// One system call of a run.
struct SystemCall
{
    QString name;
    /// The number of calls with this name so far, including this one.
    int count = 0;
    /// As the tracer wrote it, with the paths of its files.
    QString text;
};

/// Commands to run a program under, to record or disturb its system calls.
namespace Tracer {

/// Whether a process of this user can be traced here.
bool works();

/// Records every system call in the file @p log.
QStringList recording(const QString &log);

/// The calls of the program's first thread in the file @p log.
QVector<SystemCall> callsIn(const QString &log);

/// Replaces that call by @p fault, "signal=KILL" or "error=EIO", and records the calls with its
/// name in the file @p log.
QStringList disturbing(const SystemCall &call, const QString &fault, const QString &log);

/// The call that was replaced by an error, from the file @p log: it may be another one than planned
/// if this run made more or fewer calls than the one before.
QString disturbedIn(const QString &log);

} // namespace Tracer

} // namespace Tests

#endif
