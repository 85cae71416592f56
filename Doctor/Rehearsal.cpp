#include "Doctor/Rehearsal.h"

#include "Controllers/UserFiles.h"
#include "Doctor/FilesCheck.h"
#include "Doctor/LineDiff.h"
#include "Doctor/Quoting.h"
#include "Doctor/Reasons.h"
#include "Doctor/RecordText.h"
#include "Library/Helpers/FileHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Library/Text/XmlSource.h"
#include "Library/Xml/editedXml.h"
#include "Models/FlightSimRemoval.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/LaunchDocument.h"
#include "ViewControllers/Payload/Leftovers.h"
#include "ViewControllers/Payload/SimulatorFiles.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Library::Text::XmlSource;
using Quillmont::Utility::Controllers::recordFile;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::ViewControllers::Before;

namespace Quillmont::Utility::Doctor {

Rehearsal::Rehearsal(const FlightSimulatorMapping *mapping,
                     const QString &payload,
                     const RecordText &record)
    : m_mapping(mapping)
    , m_entry(mapping->scan)
    , m_payload(payload)
    , m_recordText(record)
    , m_record(record)
{ }

void Rehearsal::install()
{
    const auto &files = m_entry->files;
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
        copyFile(m_payload + it.value(), ViewControllers::pluginFile(m_mapping, it.key()));
        if (m_entry->type == 0)
            addEntry();
    }
    updateRecord(false);
}

void Rehearsal::uninstall()
{
    const auto &files = m_entry->files;
    for (auto it = files.keyBegin(); it != files.keyEnd(); ++it) {
        const QString target = ViewControllers::pluginFile(m_mapping, *it);
        if (m_disk.exists(target))
            removeFile(target);
        m_disk.removeFolderIfEmpty(target);
        if (m_entry->type == 0)
            removeEntry();
    }
    updateRecord(true);
}

void Rehearsal::removeFile(const QString &path)
{
    if (m_disk.remove(path))
        return;
    if (m_disk.isFolder(path))
        fail(tr("%1 is a folder, and stays.").arg(quoted(path)));
    else
        failToChange(path);
}

void Rehearsal::copyFile(const QString &source, const QString &target)
{
    m_disk.makeFolderOf(target);
    if (m_disk.exists(target))
        m_disk.remove(target);
    const QFileInfo info(source);
    if (m_disk.isFolder(target) || m_disk.isDeadLink(target))
        fail(tr("%1 cannot be copied to %2: a folder, or a link that leads nowhere, is "
                "in its place.")
                 .arg(quoted(source), quoted(target)));
    else if (!m_disk.mayMake(target))
        fail(tr("%1 cannot be copied to %2: you may not write there, or the folder is missing.")
                 .arg(quoted(source), quoted(target)));
    else if (!info.isFile())
        fail(
            tr("%1 cannot be copied: the payload lacks it. What is in its place goes all the same.")
                .arg(quoted(source)));
    else if (!info.isReadable())
        fail(tr("%1 cannot be copied: you may not read it. What is in its place goes all the same.")
                 .arg(quoted(source)));
    else
        m_disk.copy(source, target);
}

void Rehearsal::addEntry()
{
    if (m_entry->root >= 1 || !ViewControllers::hasConfigurationFile(m_mapping))
        return;
    m_configuration = ViewControllers::configurationFile(m_mapping);
    const bool isMissing
        = !m_disk.exists(m_configuration) && FileHelper::isMissing(m_configuration);
    if (isMissing && !makeLaunchDocument())
        return;
    if (!isMissing)
        backUp(Before::Installation);
    if (m_entry->config->describesEntry())
        change(m_configuration, [this](const QByteArray &bytes, QString *problem) {
            return Library::Xml::withEntry(bytes, *m_entry->config, problem);
        });
}

bool Rehearsal::makeLaunchDocument()
{
    m_disk.makeFolderOf(m_configuration);
    const bool isMade = m_disk.replace(
        m_configuration,
        QTextCodec::codecForName("Windows-1252")->fromUnicode(ViewControllers::launchDocument()));
    if (!isMade)
        failToMake(m_configuration);
    return isMade;
}

void Rehearsal::removeEntry()
{
    if (!m_entry->config)
        return;
    if (ViewControllers::hasConfigurationFile(m_mapping)) {
        m_configuration = ViewControllers::configurationFile(m_mapping);
        if (m_disk.exists(m_configuration)) {
            backUp(Before::Uninstallation);
            if (m_entry->config->describesEntry())
                change(m_configuration, [this](const QByteArray &bytes, QString *problem) {
                    return Library::Xml::withoutEntry(bytes, *m_entry->config, problem);
                });
        }
    }
    if (m_entry->remove)
        removeExtraFiles();
}

// Even a link that leads nowhere; a folder is left alone.
void Rehearsal::removeExtraFiles()
{
    for (const auto *operation : qAsConst(m_entry->remove->files)) {
        const QString path = ViewControllers::extraFile(m_mapping, operation);
        const bool isThere = m_disk.exists(path) || m_disk.isDeadLink(path);
        if (isThere && !m_disk.remove(path) && !m_disk.isFolder(path))
            failToChange(path);
    }
}

void Rehearsal::change(const QString &path, const Edit &edit)
{
    QString problem;
    const QByteArray before = bytesOf(path, &problem);
    const QByteArray after = problem.isEmpty() ? edit(before, &problem) : before;
    if (!problem.isEmpty())
        fail(tr("%1 stays as it is: %2").arg(quoted(path), Reasons::translated(problem)));
    else if (after != before && !m_disk.replace(path, after))
        failToChange(path);
}

QByteArray Rehearsal::bytesOf(const QString &path, QString *problem) const
{
    const auto *planned = m_disk.file(path);
    return planned ? planned->bytes : FileHelper::read(path, Library::Xml::maxFileSize, problem);
}

// Only the first backup counts: one in the same second fails, and one in a later second has another
// name.
void Rehearsal::backUp(Before before)
{
    if (m_backedUp.contains(before))
        return;
    QFile file(m_configuration);
    QString problem;
    if (!m_disk.file(m_configuration) && !FileHelper::open(&file, QIODevice::ReadOnly, &problem))
        return;
    if (!m_disk.mayWriteBeside(m_configuration)) {
        fail(tr("No backup of %1 can be made: you may not write in its folder.")
                 .arg(quoted(m_configuration)));
        return;
    }
    m_backedUp.append(before);
    m_backups.append(m_disk.placeOf(
        ViewControllers::backupName(m_configuration, before, QDateTime::currentDateTime())));
}

void Rehearsal::updateRecord(bool uninstalled)
{
    const QString path = recordFile();
    if (!m_recordText.problem().isEmpty()) {
        fail(tr("The record %1 stays as it is: %2")
                 .arg(quoted(path), Reasons::translated(m_recordText.problem())));
        return;
    }
    m_disk.makeFolderOf(path);
    if (m_disk.mayRewrite(path))
        m_record.update(m_mapping, uninstalled);
    else if (FileHelper::isMissing(path))
        failToMake(path);
    else
        failToChange(path);
}

void Rehearsal::failToMake(const QString &path)
{
    fail(tr("%1 cannot be made: you may not write there, or the folder is missing.")
             .arg(quoted(path)));
}

void Rehearsal::failToChange(const QString &path)
{
    fail(tr("%1 stays as it is: you may not change it, or not write in its folder.")
             .arg(quoted(path)));
}

void Rehearsal::fail(const QString &sentence)
{
    if (!m_failures.contains(sentence))
        m_failures.append(sentence);
}

QJsonObject Rehearsal::plan() const
{
    QJsonObject object{
        {QStringLiteral("name"), m_entry->name},
        {QStringLiteral("folder"), m_mapping->path},
        {QStringLiteral("foldersMade"), QJsonArray::fromStringList(m_disk.newFolders())},
        {QStringLiteral("foldersRemoved"), QJsonArray::fromStringList(m_disk.goneFolders())},
        {QStringLiteral("files"), files()},
        {QStringLiteral("backups"), QJsonArray::fromStringList(m_backups)},
        {QStringLiteral("record"), m_record.json(m_disk.placeOf(recordFile()))},
        {QStringLiteral("failures"), QJsonArray::fromStringList(m_failures)}};
    if (!m_configuration.isEmpty())
        object.insert(QStringLiteral("configuration"), configurationChange());
    return object;
}

QJsonArray Rehearsal::files() const
{
    QJsonArray files;
    for (auto it = m_disk.files().cbegin(); it != m_disk.files().cend(); ++it) {
        if (it->kind == PlannedDisk::File::Written)
            continue;
        QJsonObject file{{QStringLiteral("path"), it.key()}};
        const bool isThere = QFileInfo::exists(it.key()) || QFileInfo(it.key()).isSymLink();
        if (it->kind == PlannedDisk::File::Removed) {
            file.insert(QStringLiteral("change"), QStringLiteral("removed"));
        } else {
            file.insert(QStringLiteral("source"), it->source);
            file.insert(QStringLiteral("change"),
                        !isThere                                  ? QStringLiteral("made")
                            : haveSameBytes(it.key(), it->source) ? QStringLiteral("unchanged")
                                                                  : QStringLiteral("replaced"));
        }
        files.append(file);
    }
    return files;
}

// Of the file where the path leads, which is what changes.
QJsonObject Rehearsal::configurationChange() const
{
    const auto *planned = m_disk.file(m_configuration);
    const QString path = planned ? m_disk.placeOf(m_configuration) : m_configuration;
    QJsonObject object{{QStringLiteral("path"), path},
                       {QStringLiteral("change"), QStringLiteral("unchanged")}};
    if (!planned)
        return object;
    const bool isMissing = FileHelper::isMissing(path);
    QString ignored;
    const QByteArray bytes
        = isMissing ? QByteArray() : FileHelper::read(path, Library::Xml::maxFileSize, &ignored);
    const QString before = isMissing ? QString() : QLatin1String("") + XmlSource(bytes).text();
    const QString diff = lineDiff(path, before, XmlSource(planned->bytes).text());
    if (isMissing)
        object.insert(QStringLiteral("change"), QStringLiteral("made"));
    else if (!diff.isEmpty())
        object.insert(QStringLiteral("change"), QStringLiteral("changed"));
    object.insert(QStringLiteral("diff"), diff);
    return object;
}

} // namespace Quillmont::Utility::Doctor
