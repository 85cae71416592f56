#include "tests/EndToEnd/Tracer.h"

#include "tests/support/Command.h"
#include "tests/support/Files.h"

#include <QMap>
#include <QRegularExpression>

namespace Tests::Tracer {

static QStringList strace(const QString &options)
{
    return (QStringLiteral("strace --follow-forks --quiet=all ") + options).split(u' ');
}

bool works()
{
    QStringList command = strace(QStringLiteral("--trace=none true"));
    return Command(command.takeFirst(), command).run().status == 0;
}

QStringList recording(const QString &log)
{
    return strace(QStringLiteral("--decode-fds=path --string-limit=0 --output")) + QStringList(log);
}

QVector<SystemCall> callsIn(const QString &log)
{
    static const QRegularExpression beginning(QStringLiteral(R"(^(\d+) +(\w+)\()"));
    QVector<SystemCall> calls;
    QMap<QString, int> counts;
    QString firstThread;
    const QStringList lines = QString::fromLocal8Bit(readFile(log)).split(u'\n');
    for (const QString &line : lines) {
        const auto match = beginning.match(line);
        if (firstThread.isEmpty())
            firstThread = match.captured(1);
        const QString name = match.captured(2);
        if (match.hasMatch() && match.captured(1) == firstThread)
            calls.append({name, ++counts[name], line});
    }
    return calls;
}

QStringList disturbing(const SystemCall &call, const QString &fault, const QString &log)
{
    return strace(QStringLiteral("--decode-fds=path --trace=%1 "
                                 "--inject=%1:%2:when=%3 --output")
                      .arg(call.name, fault, QString::number(call.count)))
        + QStringList(log);
}

QString disturbedIn(const QString &log)
{
    const QStringList lines = QString::fromLocal8Bit(readFile(log)).split(u'\n');
    return lines.filter(QStringLiteral("(INJECTED)")).value(0);
}

} // namespace Tests::Tracer
