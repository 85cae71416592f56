#include "Doctor/FilesCheck.h"

#include "Doctor/PlannedDisk.h"
#include "Doctor/Problems.h"
#include "Doctor/Quoting.h"
#include "Library/Helpers/FileHelper.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/SimulatorFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QStringList>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::Doctor {

bool haveSameBytes(const QString &first, const QString &second)
{
    constexpr qint64 pieceSize = 1024LL * 1024;
    QFile left(first);
    QFile right(second);
    QString ignored;
    if (!FileHelper::open(&left, QIODevice::ReadOnly, &ignored)
        || !FileHelper::open(&right, QIODevice::ReadOnly, &ignored) || left.size() != right.size())
        return false;
    while (!left.atEnd()) {
        const QByteArray piece = left.read(pieceSize);
        if (piece.isEmpty() || piece != right.read(pieceSize))
            return false;
    }
    return true;
}

FilesCheck::FilesCheck(const FlightSimulatorMapping *mapping,
                       const QString &payload,
                       Problems *problems)
    : m_problems(problems)
{
    const auto &files = mapping->scan->files;
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
        const QString source = payload + it.value();
        const QString target = ViewControllers::pluginFile(mapping, it.key());
        QJsonObject object = mapping->path.isEmpty() ? QJsonObject() : lookAt(target, source);
        object.insert(QStringLiteral("destination"), it.key());
        object.insert(QStringLiteral("inPayload"), QFileInfo(source).isFile());
        if (mapping->path.isEmpty())
            object.insert(QStringLiteral("state"), QStringLiteral("missing"));
        m_json.append(object);
        m_needed += QFileInfo(source).size();
        judgeSource(source);
    }
    if (QFileInfo(mapping->path).isDir()) {
        judge();
        judgeAccess();
    }
}

QJsonObject FilesCheck::lookAt(const QString &target, const QString &source)
{
    PlannedDisk disk;
    return {{QStringLiteral("path"), target},
            {QStringLiteral("state"), stateOf(target, source)},
            {QStringLiteral("writable"), disk.makeFolderOf(target) && disk.mayWriteBeside(target)}};
}

void FilesCheck::judgeSource(const QString &source)
{
    const QFileInfo info(source);
    if (!info.isFile())
        m_problems->addError(
            tr("The payload lacks %1, so it cannot be installed.").arg(quoted(source)),
            tr("Install this program again, or complete its \"plugins\" folder."));
    else if (!info.isReadable())
        m_problems->addError(
            tr("You may not read %1, so it cannot be installed.").arg(quoted(source)),
            tr("Give yourself the right to read it."));
}

QString FilesCheck::stateOf(const QString &target, const QString &source)
{
    const QFileInfo info(target);
    if (!info.exists())
        return info.isSymLink() ? QStringLiteral("dead link") : QStringLiteral("missing");
    ++m_present;
    if (!info.isFile())
        return QStringLiteral("not a file");
    if (!info.isReadable())
        return QStringLiteral("unreadable");
    return haveSameBytes(target, source) ? QStringLiteral("installed")
                                         : QStringLiteral("different");
}

void FilesCheck::judge()
{
    const QString again = tr("Uninstall and install again.");
    const QString links = names("dead link");
    if (!links.isEmpty())
        m_problems->addError(tr("In the place of %1 is a link that leads nowhere.").arg(links),
                             tr("Delete the link, then install."));
    const QString strange = names("not a file");
    if (!strange.isEmpty())
        m_problems->addError(tr("%1 is no regular file.").arg(strange),
                             tr("Move it away, then install."));
    if (m_present == 0)
        return;
    const QString missing = names("missing");
    if (!missing.isEmpty())
        m_problems->addError(tr("Only a part of the plugin is there; %1 is missing.").arg(missing),
                             tr("Install it."));
    const QString different = names("different");
    if (!different.isEmpty())
        m_problems->addWarning(tr("%1 differs from the file that comes with this program: another "
                                  "version, or damaged.")
                                   .arg(different),
                               again);
    const QString unreadable = names("unreadable");
    if (!unreadable.isEmpty())
        m_problems->addWarning(tr("%1 cannot be read.").arg(unreadable), again);
}

void FilesCheck::judgeAccess()
{
    QStringList names;
    for (const auto &file : qAsConst(m_json)) {
        const QJsonObject object = file.toObject();
        const QString path = object.value(QLatin1String("path")).toString();
        if (!object.value(QLatin1String("writable")).toBool() && !judgeFolders(path))
            names.append(quoted(path));
    }
    if (!names.isEmpty())
        m_problems->addError(
            tr("You may not write in the folder of %1.").arg(names.join(QStringLiteral(", "))),
            tr("Give yourself the right to write there."));
}

// Whether something on the way to a file is no folder; it is told once for all files.
bool FilesCheck::judgeFolders(const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    QString obstacle = ViewControllers::deadLinksOn(folder).value(0);
    const bool isLink = !obstacle.isEmpty();
    for (QString above = folder; obstacle.isEmpty() && !QFileInfo(above).isDir();
         above = QFileInfo(above).path())
        obstacle = QFileInfo::exists(above) ? above : QString();
    if (obstacle.isEmpty() || m_obstacles.contains(obstacle))
        return !obstacle.isEmpty();
    m_obstacles.insert(obstacle);
    if (isLink)
        m_problems->addError(
            tr("In the place of the folder %1 is a link that leads nowhere.").arg(quoted(obstacle)),
            tr("Delete the link, then install."));
    else
        m_problems->addError(tr("%1 is a file where a folder has to be.").arg(quoted(obstacle)),
                             tr("Move it away, then install."));
    return true;
}

QString FilesCheck::names(const char *state) const
{
    QStringList names;
    for (const auto &file : qAsConst(m_json)) {
        const QJsonObject object = file.toObject();
        if (object.value(QLatin1String("state")) == QLatin1String(state))
            names.append(quoted(object.value(QLatin1String("destination")).toString()));
    }
    return names.join(QStringLiteral(", "));
}

} // namespace Quillmont::Utility::Doctor
