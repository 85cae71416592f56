#include "Doctor/FilesCheck.h"

#include "Doctor/Problems.h"
#include "Doctor/Quoting.h"
#include "Doctor/WriteAccess.h"
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
        const QFileInfo sourceInfo(source);
        m_needed += sourceInfo.size();
        const QString state
            = mapping->path.isEmpty() ? QStringLiteral("missing") : stateOf(target, source);
        QJsonObject object{{QStringLiteral("destination"), it.key()},
                           {QStringLiteral("state"), state},
                           {QStringLiteral("inPayload"), sourceInfo.isFile()}};
        if (!mapping->path.isEmpty()) {
            object.insert(QStringLiteral("path"), target);
            object.insert(QStringLiteral("writable"), mayReplace(target));
        }
        m_json.append(object);
        if (!sourceInfo.isFile())
            m_problems->addError(
                tr("The payload lacks %1, so it cannot be installed.").arg(quoted(source)),
                tr("Install this program again, or complete its \"plugins\" folder."));
    }
    if (QFileInfo(mapping->path).isDir()) {
        judge();
        judgeAccess();
    }
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
        if (!object.value(QLatin1String("writable")).toBool())
            names.append(quoted(object.value(QLatin1String("path")).toString()));
    }
    if (!names.isEmpty())
        m_problems->addError(
            tr("You may not write in the folder of %1.").arg(names.join(QStringLiteral(", "))),
            tr("Give yourself the right to write there."));
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
