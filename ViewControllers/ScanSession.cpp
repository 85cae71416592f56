#include "ViewControllers/ScanController.h"

#include "Controllers/ActionLog.h"
#include "Controllers/PathEncoding.h"
#include "Controllers/UserFiles.h"
#include "Library/Files/FileWriter.h"
#include "Library/Files/Heartbeat.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "SimDetect/SimDetect.h"
#include "ViewControllers/Payload/Catalogue.h"
#include "ViewControllers/Payload/InstallationLock.h"
#include "ViewControllers/Payload/SimulatorFiles.h"
#include "ViewControllers/Payload/SteamPrefix.h"
#include "Views/ScannerView.h"
#include "Widgets/BusyPointer.h"

#include <algorithm>

using Quillmont::Library::Files::FileWriter;
using Quillmont::Library::Files::Heartbeat;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::PathEncoding;
using Quillmont::Utility::Controllers::userDataRoot;
using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Widgets::BusyPointer;

namespace Quillmont::Utility::ViewControllers {

namespace {

void reportFolder(const FlightSimulatorMapping *mapping)
{
    if (mapping->path.isEmpty())
        logAction() << "simulator" << mapping->scan->name << "not found";
    else
        logAction() << "simulator" << mapping->scan->name << "in" << mapping->path;
}

// Both of an entry's paths, since an earlier run may have settled its conflict differently.
QStringList configurationFiles(const QList<FlightSimulatorMapping *> &mappings)
{
    if (!PathEncoding::survives(userDataRoot()))
        return {};
    QStringList files;
    for (const auto *mapping : mappings) {
        const auto *conflict = mapping->scan->conflict;
        if (hasConfigurationFile(mapping))
            files.append(configurationFile(mapping));
        if (mapping->scan->config && conflict && !conflict->solution.isEmpty())
            files.append(configurationFile(conflict->solution));
    }
    return files;
}

// An earlier run may have been killed in the middle of a change. A run that is still working holds
// the lock, which is needed only if there is something to clear.
void clearUnfinishedChanges(const QStringList &files)
{
    if (std::none_of(files.cbegin(), files.cend(), FileWriter::hasUnfinished))
        return;
    const InstallationLock lock;
    for (const QString &file : files)
        FileWriter::clearUnfinished(file);
}

} // namespace

QString ScanController::getJsonContent()
{
    return catalogueText(catalogueFile());
}

void ScanController::startScan(bool updateDefault, bool silent, InstallationMode mode)
{
    const BusyPointer busy;

    const QString content = getJsonContent();
    if (content.isEmpty())
        return;
    simPaths = SimDetect::GetAllSimPaths();

    QList<FlightSimulatorMapping *> result;
    const auto entries = catalogueEntries(this, content, simPaths);
    for (auto *entry : entries) {
        Heartbeat::beat();
        if (entry->config)
            findPrefix(entry->config);
        result.append(mappingFor(entry));
    }
    clearUnfinishedChanges(configurationFiles(result));
    sloveConflict(result);
    logAction() << "entries in the catalogue:" << result.size();
    for (const auto *mapping : qAsConst(result))
        reportFolder(mapping);

    if (mode == ModeScanAndInstall || silent) {
        mappings = result;
        // A run with --INSTALL reports what it installed, so it is not silent here.
        autoInstall(result, mode == ModeInstall ? false : silent, mode);
    } else {
        view->setScanResult(result, updateDefault, true);
    }
}

FlightSimulatorMapping *ScanController::mappingFor(FlightSimScan *scan)
{
    if (auto *found = this->scan(scan))
        return found;
    return new FlightSimulatorMapping(scan, simPaths.value(scan->simcode));
}

} // namespace Quillmont::Utility::ViewControllers
