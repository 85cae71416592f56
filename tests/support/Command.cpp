#include "tests/support/Command.h"

#include <QProcess>
#include <QStandardPaths>

namespace Tests {

Command::Command(const QString &program, const QStringList &arguments)
    : m_program(program)
    , m_arguments(arguments)
{ }

bool Command::exists(const QString &program)
{
    return !QStandardPaths::findExecutable(program).isEmpty();
}

Command &Command::with(const QString &variable, const QString &value)
{
    m_environment.insert(variable, value);
    return *this;
}

Command &Command::in(const QString &folder)
{
    m_folder = folder;
    return *this;
}

CommandResult Command::run() const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(m_folder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(m_program, m_arguments);
    CommandResult result;
    const bool ended = process.waitForFinished(300000);
    if (ended && process.exitStatus() == QProcess::NormalExit)
        result.status = process.exitCode();
    else
        process.kill();
    process.waitForFinished();
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

} // namespace Tests
