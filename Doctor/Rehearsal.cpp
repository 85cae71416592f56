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
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Library::Text::XmlSource;
using Quillmont::Utility::Controllers::recordFile;
using Quillmont::Utility::Models::FlightSimulatorMapping;

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
        if (QFileInfo(target).isDir())
            m_failures.append(tr("%1 is a folder, and stays.").arg(quoted(target)));
        else if (m_disk.exists(target))
            m_disk.remove(target);
        m_disk.removeFolderIfEmpty(target);
        if (m_entry->type == 0)
            removeEntry();
    }
    updateRecord(true);
}

void Rehearsal::copyFile(const QString &source, const QString &target)
{
    m_disk.makeFolderOf(target);
    const QFileInfo info(target);
    if (info.isDir() || (info.isSymLink() && !info.exists())) {
        m_failures.append(
            tr("%1 cannot be copied to %2: a folder, or a link that leads nowhere, is "
               "in its place.")
                .arg(quoted(source), quoted(target)));
        return;
    }
    if (m_disk.exists(target))
        m_disk.remove(target);
    if (QFileInfo(source).isFile())
        m_disk.copy(source, target);
    else
        m_failures.append(
            tr("%1 cannot be copied: the payload lacks it. What is in its place goes all the same.")
                .arg(quoted(source)));
}

void Rehearsal::addEntry()
{
    if (m_entry->root >= 1 || !ViewControllers::hasConfigurationFile(m_mapping))
        return;
    m_configuration = ViewControllers::configurationFile(m_mapping);
    const bool isMissing = !m_disk.file(m_configuration) && FileHelper::isMissing(m_configuration);
    if (isMissing) {
        m_disk.makeFolderOf(m_configuration);
        m_disk.write(m_configuration,
                     QTextCodec::codecForName("Windows-1252")
                         ->fromUnicode(ViewControllers::launchDocument()));
    } else {
        backUp(m_configuration, QStringLiteral("_quillmont_orbwell_before_installation_%0.bak"));
    }
    if (m_entry->config->describesEntry())
        change(m_configuration, [this](const QByteArray &bytes, QString *problem) {
            return Library::Xml::withEntry(bytes, *m_entry->config, problem);
        });
}

void Rehearsal::removeEntry()
{
    if (!m_entry->config)
        return;
    if (ViewControllers::hasConfigurationFile(m_mapping)) {
        m_configuration = ViewControllers::configurationFile(m_mapping);
        if (m_disk.exists(m_configuration)) {
            backUp(m_configuration,
                   QStringLiteral("_quillmont_orbwell_before_uninstallation_%0.bak"));
            if (m_entry->config->describesEntry())
                change(m_configuration, [this](const QByteArray &bytes, QString *problem) {
                    return Library::Xml::withoutEntry(bytes, *m_entry->config, problem);
                });
        }
    }
    if (!m_entry->remove)
        return;
    for (const auto *operation : qAsConst(m_entry->remove->files)) {
        const QString path = ViewControllers::extraFile(m_mapping, operation);
        if (m_disk.exists(path) && !QFileInfo(path).isDir())
            m_disk.remove(path);
    }
}

void Rehearsal::change(const QString &path, const Edit &edit)
{
    QString problem;
    const QByteArray before = bytesOf(path, &problem);
    const QByteArray after = problem.isEmpty() ? edit(before, &problem) : before;
    if (after != before)
        m_disk.write(path, after);
    const QString failure
        = tr("%1 stays as it is: %2").arg(quoted(path), Reasons::translated(problem));
    if (!problem.isEmpty() && !m_failures.contains(failure))
        m_failures.append(failure);
}

QByteArray Rehearsal::bytesOf(const QString &path, QString *problem) const
{
    const auto *planned = m_disk.file(path);
    return planned ? planned->bytes : FileHelper::read(path, Library::Xml::maxFileSize, problem);
}

// Only the first backup counts: one in the same second fails, and one in a later second has another
// name.
void Rehearsal::backUp(const QString &path, const QString &suffix)
{
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_HHmmss"));
    const QString native = QDir::toNativeSeparators(path);
    for (const QString &backup : qAsConst(m_backups)) {
        if (backup.startsWith(native + suffix.section(u'%', 0, 0)))
            return;
    }
    QFile file(path);
    QString problem;
    if (m_disk.file(path) || FileHelper::open(&file, QIODevice::ReadOnly, &problem))
        m_backups.append(native + suffix.arg(time));
}

void Rehearsal::updateRecord(bool uninstalled)
{
    if (m_recordText.problem().isEmpty()) {
        m_disk.makeFolderOf(recordFile());
        m_record.update(m_mapping, uninstalled);
        return;
    }
    m_failures.append(tr("The record %1 stays as it is: %2")
                          .arg(quoted(recordFile()), Reasons::translated(m_recordText.problem())));
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
        {QStringLiteral("record"), m_record.json()},
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

QJsonObject Rehearsal::configurationChange() const
{
    const QString &path = m_configuration;
    const auto *planned = m_disk.file(path);
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
