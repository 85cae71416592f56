#include "ViewControllers/Payload/Strategies.h"

#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"

#include <QDebug>
#include <QDir>
#include <QFile>

using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

FlightSimulatorMapping *foundByStrategy(FlightSimScan *scan)
{
    switch (scan->location) {
    case 0:
        qDebug("Scanning files...");
        return foundFile(scan);
    case 1:
        qDebug("Scanning folders...");
        return foundFolder(scan);
    case 2:
        // No registry on this platform: only the detection library finds these simulators.
        qDebug("Scanning registry...");
        return nullptr;
    case 4:
        // Only the detection library finds these simulators, too.
        qDebug("Scanning multiple locations...");
        return nullptr;
    default:
        return nullptr;
    }
}

FlightSimulatorMapping *foundFile(FlightSimScan *scan)
{
    const QString path
        = QDir::toNativeSeparators(QString(scan->path + u'/' + scan->key).replace(u'\\', u'/'));
    qDebug().noquote().nospace() << "file: " << path;
    // An entry with neither would find the root of the disk.
    const bool namesAFile = !scan->path.isEmpty() || !scan->key.isEmpty();
    return namesAFile && QFile::exists(path) ? new FlightSimulatorMapping(scan, path) : nullptr;
}

FlightSimulatorMapping *foundFolder(FlightSimScan *scan)
{
    const QString path = QDir::toNativeSeparators(QString(scan->path).replace(u'\\', u'/'));
    qDebug().noquote().nospace() << "folder: " << path;
    // Qt takes an empty path for the working directory.
    const bool exists = !path.isEmpty() && QDir(path).exists();
    return exists ? new FlightSimulatorMapping(scan, path) : nullptr;
}

} // namespace Quillmont::Utility::ViewControllers
