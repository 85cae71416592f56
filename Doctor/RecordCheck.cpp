#include "Doctor/RecordCheck.h"

#include "Controllers/UserFiles.h"
#include "Doctor/Advice.h"
#include "Doctor/PlannedDisk.h"
#include "Doctor/Quoting.h"
#include "Doctor/Reasons.h"
#include "Library/Helpers/FileHelper.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/Record.h"
#include "ViewControllers/Payload/SimulatorFiles.h"
#include "ViewControllers/Payload/TextFile.h"

#include <QFileInfo>
#include <QJsonDocument>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::recordFile;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::Doctor {

RecordCheck::RecordCheck()
{
    judgeAccess();
    if (FileHelper::isMissing(recordFile())) {
        m_state = QStringLiteral("missing");
        return;
    }
    QString problem;
    const QByteArray bytes = ViewControllers::contentOf(recordFile(), &problem);
    const bool isDamaged = !ViewControllers::recordDocument(bytes).isArray()
        && !ViewControllers::textOf(bytes).isEmpty();
    m_state = !problem.isEmpty() ? QStringLiteral("unreadable")
        : isDamaged              ? QStringLiteral("damaged")
                                 : QStringLiteral("fine");
    judge(problem);
    takeRecords(bytes);
}

void RecordCheck::takeRecords(const QByteArray &bytes)
{
    const QJsonArray records = ViewControllers::recordsIn(bytes);
    for (const auto &record : records) {
        const QString name = record.toObject().value(QLatin1String("name")).toString();
        if (!m_records.contains(name))
            m_names.append(name);
        m_records.insert(name, record.toObject());
    }
}

// A link to a file that can be made where it leads is as good as that file.
void RecordCheck::judgeAccess()
{
    const QString path = recordFile();
    PlannedDisk disk;
    disk.makeFolderOf(path);
    if (disk.mayRewrite(path))
        return;
    const QString link = ViewControllers::deadLinksOn(path).value(0);
    if (!link.isEmpty())
        m_problems.addError(
            tr("Nothing can be recorded: %1 is a link that leads nowhere.").arg(quoted(link)),
            tr("Delete the link."));
    else
        m_problems.addError(tr("You may not write the installation record %1.").arg(quoted(path)),
                            tr("Give yourself the right to write there."));
}

void RecordCheck::judge(const QString &problem)
{
    const QString file = quoted(recordFile());
    if (!problem.isEmpty())
        m_problems.addError(tr("The installation record %1 cannot be read: %2.")
                                .arg(file, Reasons::translated(problem)),
                            Advice::onUnreadable(recordFile(), problem));
    else if (m_state == QLatin1String("damaged"))
        m_problems.addWarning(
            tr("The installation record %1 is damaged; what it said is lost.").arg(file),
            tr("Install again; a new record is written then."));
}

QJsonObject RecordCheck::of(const FlightSimulatorMapping *mapping, Problems *problems) const
{
    const QString &name = mapping->scan->name;
    const bool isInstalled = mapping->isAddonInstalled() && !mapping->scan->files.isEmpty();
    if (!m_records.contains(name)) {
        if (isInstalled && m_state != QLatin1String("unreadable"))
            problems->addWarning(
                tr("The plugin is there, but not in the installation record."),
                tr("Press \"Scan & Install\" in the window; it is recorded then."));
        return {};
    }
    const QJsonObject record = m_records.value(name);
    const QString path = record.value(QLatin1String("path")).toString();
    const bool isComplete = ViewControllers::isComplete(record);
    const bool agrees = path == mapping->path && isComplete;
    if (!isComplete)
        problems->addWarning(
            tr("The installation record has the plugin in %1, but files are missing there.")
                .arg(quoted(path)),
            tr("Install it again."));
    else if (path != mapping->path)
        problems->addWarning(
            tr("The installation record has the plugin in %1, not in %2. Unattended runs work on "
               "the "
               "first, the window on the second.")
                .arg(quoted(path), quoted(mapping->path)),
            tr("Choose the folder in the window, then install or uninstall there."));
    return {{QStringLiteral("path"), path},
            {QStringLiteral("complete"), isComplete},
            {QStringLiteral("agrees"), agrees}};
}

QJsonObject RecordCheck::json(const QSet<QString> &names, Problems *problems) const
{
    *problems = m_problems;
    QJsonArray strangers;
    for (const QString &name : m_names) {
        if (names.contains(name))
            continue;
        const QString path = m_records.value(name).value(QLatin1String("path")).toString();
        const bool isThere = QFileInfo(path).isDir();
        strangers.append(QJsonObject{{QStringLiteral("name"), name},
                                     {QStringLiteral("path"), path},
                                     {QStringLiteral("folderThere"), isThere}});
        if (isThere)
            problems->addWarning(
                tr("The installation record has %1 in %2, which the catalogue no longer knows.")
                    .arg(quoted(name), quoted(path)),
                tr("Remove the plugin there by hand, if it is no longer wanted."));
    }
    return {{QStringLiteral("path"), recordFile()},
            {QStringLiteral("state"), m_state},
            {QStringLiteral("notInCatalogue"), strangers}};
}

} // namespace Quillmont::Utility::Doctor
