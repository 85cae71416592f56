#include "Doctor/Examination.h"

#include "Doctor/ConfigurationCheck.h"
#include "Doctor/FilesCheck.h"
#include "Doctor/Quoting.h"
#include "Doctor/RecordCheck.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace Quillmont::Utility::Doctor {

namespace {

QJsonArray turnedDown(const Simulator &simulator)
{
    QJsonArray places;
    for (const auto &place : simulator.turnedDown)
        places.append(QJsonObject{{QStringLiteral("path"), place.path},
                                  {QStringLiteral("namedBy"), place.namedBy},
                                  {QStringLiteral("reason"), place.reason}});
    return places;
}

bool areOnOneDisk(const QString &first, const QString &second)
{
    struct stat one = {};
    struct stat other = {};
    return stat(QFile::encodeName(first).constData(), &one) == 0
        && stat(QFile::encodeName(second).constData(), &other) == 0 && one.st_dev == other.st_dev;
}

QString stateOf(const Simulator &simulator, int present)
{
    const auto *mapping = simulator.mapping;
    if (mapping->path.isEmpty())
        return QStringLiteral("not found");
    if (mapping->isAddonInstalled())
        return QStringLiteral("installed");
    return present > 0 ? QStringLiteral("partly installed") : QStringLiteral("not installed");
}

} // namespace

Examination::Examination(const QList<Simulator> &simulators, const QString &payload)
    : m_simulators(simulators)
    , m_payload(payload)
{ }

QJsonObject Examination::report(const QStringList &names) const
{
    const RecordCheck record;
    QSet<QString> known;
    QJsonArray simulators;
    bool isFine = true;
    for (const Simulator &simulator : m_simulators) {
        const QString &name = simulator.mapping->scan->name;
        known.insert(name);
        if (!names.isEmpty() && !names.contains(name))
            continue;
        QJsonObject object = reportOn(simulator);
        Problems problems;
        object.insert(QStringLiteral("record"), record.of(simulator.mapping, &problems));
        QJsonArray all = object.value(QLatin1String("problems")).toArray();
        for (const auto &problem : problems.all())
            all.append(problem);
        object.insert(QStringLiteral("problems"), all);
        isFine = isFine && all.isEmpty();
        simulators.append(object);
    }
    Problems problems;
    QJsonObject whole = record.json(known, &problems);
    // A report on some simulators leaves out the problems of the others' records.
    const QJsonArray ofTheRecord = names.isEmpty() ? problems.all() : QJsonArray();
    whole.insert(QStringLiteral("problems"), ofTheRecord);
    isFine = isFine && ofTheRecord.isEmpty();
    return {{QStringLiteral("fine"), isFine},
            {QStringLiteral("simulators"), simulators},
            {QStringLiteral("record"), whole}};
}

QJsonObject Examination::reportOn(const Simulator &simulator) const
{
    Problems problems;
    const auto *mapping = simulator.mapping;
    const bool isFound = !mapping->path.isEmpty();
    QJsonObject object = locationOf(simulator);
    judgeFolder(simulator, &problems);
    const FilesCheck files(mapping, m_payload, &problems);
    object.insert(QStringLiteral("state"), stateOf(simulator, files.present()));
    object.insert(QStringLiteral("files"), files.json());
    if (isFound) {
        const ConfigurationCheck configuration(
            mapping, mapping->isAddonInstalled() && files.present() > 0, &problems);
        object.insert(QStringLiteral("configuration"), configuration.json());
        const QString file = configuration.json().value(QLatin1String("path")).toString();
        object.insert(QStringLiteral("backups"), configuration.backups());
        addRoom(mapping->path, files.neededBytes(), file, &object, &problems);
    }
    object.insert(QStringLiteral("problems"), problems.all());
    return object;
}

QJsonObject Examination::locationOf(const Simulator &simulator) const
{
    const auto *entry = simulator.mapping->scan;
    QJsonObject object{{QStringLiteral("name"), entry->name},
                       {QStringLiteral("code"), entry->simcode},
                       {QStringLiteral("folder"), simulator.mapping->path},
                       {QStringLiteral("foundBy"), originOf(simulator)},
                       {QStringLiteral("turnedDown"), turnedDown(simulator)}};
    if (!simulator.gaveUp.isEmpty())
        object.insert(QStringLiteral("gaveWay"),
                      QJsonObject{{QStringLiteral("folder"), simulator.gaveUp},
                                  {QStringLiteral("to"), simulator.gaveWayTo}});
    return object;
}

void Examination::judgeFolder(const Simulator &simulator, Problems *problems) const
{
    const QString &path = simulator.mapping->path;
    if (path.isEmpty())
        return;
    const QFileInfo info(path);
    if (!info.exists())
        problems->addError(tr("Its folder %1 is gone.").arg(quoted(path)),
                           tr("Choose its folder in the window."));
    else if (!info.isDir())
        problems->addError(tr("%1 is a file, not a folder.").arg(quoted(path)),
                           tr("Choose its folder in the window."));
}

// The configuration file, with its backup, is often on another disk.
void Examination::addRoom(const QString &folder,
                          qint64 needed,
                          const QString &configuration,
                          QJsonObject *object,
                          Problems *problems) const
{
    const QFileInfo file(configuration);
    const bool isOneDisk = file.size() == 0 || areOnOneDisk(folder, file.path());
    object->insert(QStringLiteral("room"),
                   roomFor(folder, needed + (isOneDisk ? file.size() : 0), problems));
    if (!isOneDisk)
        object->insert(QStringLiteral("backupRoom"), roomFor(file.path(), file.size(), problems));
}

QJsonObject Examination::roomFor(const QString &folder, qint64 needed, Problems *problems) const
{
    std::error_code failure;
    const auto space = std::filesystem::space(QFile::encodeName(folder).toStdString(), failure);
    if (failure)
        return {{QStringLiteral("needed"), needed}};
    const auto available = static_cast<qint64>(space.available);
    if (available < needed)
        problems->addError(tr("The disk has room for %1 bytes; what is written there takes %2.")
                               .arg(QString::number(available), QString::number(needed)),
                           tr("Make room on the disk of %1.").arg(quoted(folder)));
    return {{QStringLiteral("needed"), needed}, {QStringLiteral("available"), available}};
}

} // namespace Quillmont::Utility::Doctor
