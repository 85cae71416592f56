#include "ViewControllers/SimulatorFiles.h"

#include "Controllers/ActionLog.h"
#include "Controllers/UserDataRoot.h"
#include "Library/Helpers/FileHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::userDataRoot;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

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

QString configurationFile(const FlightSimulatorMapping *mapping)
{
    return userDataRoot() + mapping->scan->config->path;
}

void makeFolderOf(const QString &path)
{
    const QDir folder = QFileInfo(path).absoluteDir();
    if (folder.exists())
        return;
    const bool made = folder.mkpath(folder.absolutePath());
    logAction() << (made ? "folder made:" : "folder not made:") << folder.absolutePath();
}

void backUp(const QString &file, const QString &suffix)
{
    if (!QFile::exists(file))
        return;
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_HHmmss"));
    const QString backup = QDir::toNativeSeparators(file) + suffix.arg(time);
    // Copying a pipe would wait for its other end for ever, and a device may have no end.
    const bool copied = FileHelper::isOrdinary(file) && QFile::copy(file, backup);
    qDebug().noquote().nospace() << "file backups to '" << backup
                                 << "'. Result: " << (copied ? "succeed" : "error");
}

} // namespace Quillmont::Utility::ViewControllers
