#ifndef TESTS_SUPPORT_COMMAND_H
#define TESTS_SUPPORT_COMMAND_H

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace Tests {

/// What a command left behind.
struct CommandResult
{
    /// Its exit status, -1 when it did not start, crashed or took longer than five minutes.
    int status = -1;
    /// What it wrote to standard output.
    QByteArray output;
    /// What it wrote to standard error.
    QByteArray errors;
};

/// A command of this system, looked for on the path, run to its end with nothing to read.
class Command
{
public:
    explicit Command(const QString &program, const QStringList &arguments = {});

    /// Whether there is such a program on this computer.
    static bool exists(const QString &program);

    /// Sets a variable of its environment.
    Command &with(const QString &variable, const QString &value);
    /// Sets the folder that it runs in.
    Command &in(const QString &folder);
    CommandResult run() const;

private:
    QString m_program;
    QStringList m_arguments;
    QString m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

} // namespace Tests

#endif
