#include "ViewControllers/Payload/SimulatorFiles.h"

#include "Controllers/ActionLog.h"
#include "Controllers/PathEncoding.h"
#include "Controllers/UserFiles.h"
#include "Library/Files/FileStatus.h"
#include "Library/Files/LetterCase.h"
#include "Library/Helpers/FileHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using Quillmont::Library::Files::FileStatus;
using Quillmont::Library::Files::LetterCase;
using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Library::Models::XmlConfigModel;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::PathEncoding;
using Quillmont::Utility::Controllers::userDataRoot;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

namespace {

// QFile::copy() copies the reported permissions. The mode alone would grant more than the original
// does if that has an access list or another group.
class Original : public QFile // clazy:exclude=missing-qobject-macro
{
public:
    using QFile::QFile;

    Permissions permissions() const override { return ReadOwner | WriteOwner; }
};

void copyStatus(const QString &from, const QString &to)
{
    QFile original(from);
    QFile copy(to);
    if (original.open(QIODevice::ReadOnly) && copy.open(QIODevice::ReadOnly))
        FileStatus::copy(original.handle(), copy.handle());
}

bool copyRegular(const QString &from, const QString &to)
{
    Original original(from);
    QString ignored;
    // Copying a pipe would block for ever, and a device may never end.
    const bool copied
        = FileHelper::open(&original, QIODevice::ReadOnly, &ignored) && original.copy(to);
    if (copied)
        copyStatus(from, to);
    return copied;
}

QString inAnyLetterCase(const QString &folder, const QString &relative)
{
    QString exact = folder + relative;
    if (QFileInfo::exists(exact) || QFileInfo(exact).isSymLink())
        return exact;
    const QStringList others = LetterCase::files(folder, relative);
    if (others.size() > 1)
        logAction() << "none of several configuration files that differ in letter case is used:"
                    << others;
    return others.size() == 1 ? others.constFirst() : exact;
}

// The prefix is relative and leads up to "/"; resolved as text, since the data root may be missing.
QString prefixFolder(const XmlConfigModel &config)
{
    return QDir::cleanPath(userDataRoot() + config.prefix);
}

// The beginning of the log line that gives the reason; null if the file can be edited.
const char *objectionToEditing(const XmlConfigModel &config)
{
    if (!PathEncoding::survives(userDataRoot()))
        return "the data folder's name is not valid text, so no configuration file to edit:";
    // Nothing is created in a missing prefix: that would mislead Steam and other programs.
    const bool isThere = config.steam == 0
        || (!config.prefix.isEmpty() && QFileInfo(prefixFolder(config)).isDir());
    return isThere ? nullptr : "no Proton prefix, so no configuration file to edit:";
}

} // namespace

QString simulatorFolder(const FlightSimulatorMapping *mapping)
{
    const QString &path = mapping->path;
    const bool ended = path.endsWith(u'\\') || path.endsWith(u'/');
    return ended ? path : path + u'/';
}

QString pluginFile(const FlightSimulatorMapping *mapping, const QString &destination)
{
    QString path = simulatorFolder(mapping) + destination;
    return QDir::toNativeSeparators(path.replace(u'\\', u'/'));
}

bool hasConfigurationFile(const FlightSimulatorMapping *mapping)
{
    return mapping->scan->config && !objectionToEditing(*mapping->scan->config);
}

void logSkippedEdits(const FlightSimulatorMapping *mapping)
{
    const auto *scan = mapping->scan;
    if (scan->type != 0 || !scan->config || scan->files.isEmpty())
        return;
    if (const char *objection = objectionToEditing(*scan->config))
        logAction() << objection << scan->name;
}

QString configurationFile(const FlightSimulatorMapping *mapping)
{
    const auto *config = mapping->scan->config;
    if (config->steam == 0)
        return configurationFile(config->path);
    // A prefix's path is spelled as on disk; in other letter case it would be another prefix.
    const QString path = prefixFolder(*config) + config->path.mid(config->prefix.size());
    const int name = path.lastIndexOf(u'/') + 1;
    return inAnyLetterCase(path.left(name), path.mid(name));
}

QString configurationFile(const QString &path)
{
    return inAnyLetterCase(userDataRoot(), path);
}

void makeFolderOf(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    if (QFileInfo(folder).isDir())
        return;
    const bool made = PathEncoding::survives(path) && FileHelper::makeFolderOf(path);
    logAction() << (made ? "folder made:" : "folder not made:") << folder;
}

QStringList deadLinksOn(const QString &path)
{
    QStringList links;
    for (int end = path.size(); end > 0 && path.size() <= maxPathLength;
         end = path.lastIndexOf(u'/', end - 1)) {
        const QFileInfo info(path.left(end));
        if (info.isSymLink() && !info.exists())
            links.append(info.filePath());
    }
    return links;
}

QString backupTimeForm()
{
    return QStringLiteral("yyyyMMdd_HHmmss");
}

QString backupName(const QString &file, Before before, const QDateTime &time)
{
    const QString suffix = before == Before::Installation
        ? QStringLiteral("_quillmont_orbwell_before_installation_%0.bak")
        : QStringLiteral("_quillmont_orbwell_before_uninstallation_%0.bak");
    return QDir::toNativeSeparators(file) + suffix.arg(time.toString(backupTimeForm()));
}

void backUp(const QString &file, Before before)
{
    if (!QFile::exists(file) || !PathEncoding::survives(file))
        return;
    const QString backup = backupName(file, before, QDateTime::currentDateTime());
    const bool copied = copyRegular(file, backup);
    qDebug().noquote().nospace() << "file backups to '" << backup
                                 << "'. Result: " << (copied ? "succeed" : "error");
}

} // namespace Quillmont::Utility::ViewControllers
