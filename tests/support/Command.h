#ifndef TESTS_SUPPORT_COMMAND_H
#define TESTS_SUPPORT_COMMAND_H

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace Tests {

/// The result of a command.
struct CommandResult
{
    /// Its exit status; -1 if it did not start, crashed or took longer than five minutes.
    int status = -1;
    /// Its standard output.
    QByteArray output;
    /// Its standard error.
    QByteArray errors;
};

/// A command on the path, run to its end with empty standard input.
class Command
{
public:
    explicit Command(const QString &program, const QStringList &arguments = {});

    /// Whether the program is installed.
    static bool exists(const QString &program);

    /// Sets an environment variable.
    Command &with(const QString &variable, const QString &value);
    /// Sets the working folder.
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
