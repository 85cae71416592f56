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
    /// How many of that name the run has made so far, this one included.
    int count = 0;
    /// As the tracer wrote it down, with the paths of its files.
    QString text;
};

/// The commands that a program runs under so that its system calls are seen, or disturbed.
namespace Tracer {

/// Whether a process of this user can be traced here.
bool works();

/// Writes every system call down in the file @p log.
QStringList recording(const QString &log);

/// The calls in the file @p log that the program's first thread made.
QVector<SystemCall> callsIn(const QString &log);

/// Lets @p fault happen in the place of that call, "signal=KILL" or "error=EIO", and writes the
/// calls of its name down in the file @p log.
QStringList disturbing(const SystemCall &call, const QString &fault, const QString &log);

/// The call that an error took the place of, as the file @p log has it: a run that makes a call
/// more or less than the one before has another one there.
QString disturbedIn(const QString &log);

} // namespace Tracer

} // namespace Tests

#endif
