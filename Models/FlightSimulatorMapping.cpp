#include "Models/FlightSimulatorMapping.h"

#include "Models/FlightSimScan.h"

#include <QDir>
#include <QFile>

namespace Quillmont::Utility::Models {

FlightSimulatorMapping::FlightSimulatorMapping(FlightSimScan *scan, const QString &path)
    : QObject(scan)
    , scan(scan)
    , path(path)
{ }

void FlightSimulatorMapping::updateFlightSimPath(const QString &path)
{
    this->path = path;
}

bool FlightSimulatorMapping::isAddonInstalled() const
{
    if (path.isEmpty())
        return false;

    bool installed = true;
    for (auto it = scan->files.keyBegin(); it != scan->files.keyEnd(); ++it)
        installed &= QFile::exists(QDir::toNativeSeparators(path + u'/' + *it));
    return installed;
}

} // namespace Quillmont::Utility::Models
