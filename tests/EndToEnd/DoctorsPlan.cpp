#include "tests/EndToEnd/DoctorsPlan.h"

#include "tests/EndToEnd/Computer.h"
#include "tests/support/Files.h"
#include "tests/support/Literals.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>

namespace Tests {

// Instead of "patch", which needs a program and files.
static QString patched(const QString &before, const QString &diff)
{
    static const QRegularExpression line(QStringLiteral("[^\n]*\n|[^\n]+$"));
    static const QRegularExpression head(QStringLiteral("^@@ -(\\d+),(\\d+) \\+\\d+,\\d+ @@\n"));
    const auto linesOf = [](const QString &text) {
        QStringList lines;
        for (auto it = line.globalMatch(text); it.hasNext();)
            lines.append(it.next().captured());
        return lines;
    };
    QStringList rest = linesOf(before);
    QString after;
    int place = 0;
    const QStringList steps = linesOf(diff);
    for (int i = 2; i < steps.size(); ++i) {
        const bool isWithoutEnd = steps.value(i + 1).startsWith(u'\\');
        const QString each = steps.at(i).chopped(isWithoutEnd ? 1 : 0);
        const auto match = head.match(each);
        if (match.hasMatch()) {
            const bool isAddition = match.captured(2) == u'0';
            for (const int begin = match.captured(1).toInt() - (isAddition ? 0 : 1); place < begin;
                 ++place)
                after += rest.takeFirst();
        } else if (each.startsWith(u'+')) {
            after += each.mid(1);
        } else if (!each.startsWith(u'-')) {
            continue;
        } else if (rest.isEmpty() || rest.takeFirst() != each.mid(1)) {
            return "the line %1 is not there"_s.arg(each);
        } else {
            ++place;
        }
    }
    return after + rest.join(QString());
}

CommandResult runDoctor(const Computer &computer, const QStringList &arguments)
{
    const QString doctor = computer.program().folder() + "/orbwell-doctor"_s;
    if (!QFile::exists(doctor))
        QFile::copy(QStringLiteral(ORBWELL_DOCTOR), doctor);
    return Command(doctor, arguments).run();
}

QJsonObject doctorsPlan(const Computer &computer, const QString &what, const QString &simulator)
{
    const CommandResult result
        = runDoctor(computer, {"--json"_s, "--plan="_s + what, "--"_s, simulator});
    const QJsonObject answer = QJsonDocument::fromJson(result.output).object();
    return answer.value("simulators"_s).toArray().at(0).toObject();
}

Disk plannedDisk(const Computer &computer, const QJsonObject &plan)
{
    Disk disk = computer.disk();
    const auto place = [&computer](const QJsonValue &path) {
        const QString root = computer.absolute(QString());
        return QDir::cleanPath(path.toString()).mid(root.size());
    };
    for (const auto &folder : plan.value("foldersRemoved"_s).toArray())
        takeOut(&disk, place(folder) + u'/');
    for (const auto &folder : plan.value("foldersMade"_s).toArray())
        disk.insert(place(folder) + u'/', {});
    const QJsonObject configuration = plan.value("configuration"_s).toObject();
    Disk backups;
    for (const auto &backup : plan.value("backups"_s).toArray())
        backups.insert(place(backup), disk.value(place(configuration.value("path"_s))));
    for (const auto &value : plan.value("files"_s).toArray()) {
        const QJsonObject file = value.toObject();
        if (file.value("change"_s) == "removed"_s)
            disk.remove(place(file.value("path"_s)));
        else
            disk.insert(place(file.value("path"_s)), readFile(file.value("source"_s).toString()));
    }
    for (const char *key : {"configuration", "record"}) {
        const QJsonObject change = plan.value(QLatin1String(key)).toObject();
        if (change.value("diff"_s).toString().isEmpty())
            continue;
        // The other programs' bytes here are the same in Windows-1252 and Latin-1.
        QByteArray &bytes = disk[place(change.value("path"_s))];
        bytes = patched(QString::fromLatin1(bytes), change.value("diff"_s).toString()).toLatin1();
    }
    for (auto it = backups.cbegin(); it != backups.cend(); ++it)
        disk.insert(it.key(), it.value());
    return withFirstBackups(disk);
}

} // namespace Tests
