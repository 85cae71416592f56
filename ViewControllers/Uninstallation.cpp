#include "ViewControllers/ScanController.h"

#include "Controllers/ActionLog.h"
#include "Controllers/PathEncoding.h"
#include "Library/Helpers/XmlHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimRemoval.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/InstallationLock.h"
#include "ViewControllers/Payload/Leftovers.h"
#include "ViewControllers/Payload/SimulatorFiles.h"
#include "ViewControllers/WorkPlan.h"
#include "Views/ScannerView.h"
#include "Widgets/BusyPointer.h"
#include "Widgets/ResultBox.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using Quillmont::Library::Helpers::XmlHelper;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::PathEncoding;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Widgets::BusyPointer;
using Quillmont::Utility::Widgets::showInformation;
using Quillmont::Utility::Widgets::WorkProgress;

namespace Quillmont::Utility::ViewControllers {

namespace {

// Only visible files count: a folder with only hidden files is removed with them.
void removeIfEmpty(const QString &path)
{
    const QString real = realFolder(path);
    QDir folder(real);
    if (!real.isEmpty() && isSurelyEmpty(folder) && folder.removeRecursively())
        logAction() << "folder removed:" << folder.path();
}

void reportRemoval(const QFile &file, bool removed)
{
    if (removed)
        logAction() << "file removed:" << file.fileName();
    else
        logAction() << "file not removed:" << file.fileName() << file.errorString();
}

void removeExtraFile(const QString &path)
{
    QFile file(path);
    const bool existed = QFile::exists(path);
    const bool removed = PathEncoding::survives(path) && file.remove();
    if (existed)
        reportRemoval(file, removed);
}

} // namespace

bool ScanController::uninstall(FlightSimulatorMapping *mapping, bool silent, bool rescan)
{
    if (mapping->path.isEmpty())
        return false;

    // Unlike install(), this does not clear the error lines: those of a silent installation just
    // before are shown here.
    const BusyPointer busy;
    const WorkProgress progress(
        WorkProgress::Uninstalling, view, [mapping] { return stepsOf({mapping}); });
    logAction() << "uninstall from" << mapping->scan->name << "in" << mapping->path;
    removePluginFiles(mapping);
    saveInstallationInfo(mapping, true);
    if (rescan)
        startScan(true, silent, ModeNone);

    if (!m_errorMessage.isEmpty()) {
        showRemovalFailure(mapping->scan->name);
        return false;
    }
    if (!silent) {
        showInformation(tr("Uninstall"),
                        tr("Quillmont Orbwell for %0 has been uninstalled successfully.")
                            .arg(mapping->scan->name));
    }
    return true;
}

void ScanController::removePluginFiles(FlightSimulatorMapping *mapping)
{
    const InstallationLock lock;
    logSkippedEdits(mapping);
    const auto &files = mapping->scan->files;
    for (auto it = files.keyBegin(); it != files.keyEnd(); ++it) {
        WorkProgress::nextStep(WorkProgress::Uninstalling);
        removePluginFile(pluginFile(mapping, *it), mapping->scan->name);
        if (mapping->scan->type == 0)
            uninstallFromFlightSim(mapping);
    }
}

void ScanController::removePluginFile(const QString &target, const QString &simulatorName)
{
    if (QFile::exists(target)) {
        QFile file(target);
        const bool removed = file.remove();
        reportRemoval(file, removed);
        if (!removed) {
            m_errorMessage += tr("Unable to remove file '%0' from %1. Please remove the file "
                                 "manually.\r\n")
                                  .arg(target, simulatorName);
        }
    }
    removeIfEmpty(QFileInfo(target).path());
}

void ScanController::showRemovalFailure(const QString &simulatorName)
{
    showInformation(tr("Uninstall"),
                    tr("Quillmont Orbwell was not able to uninstall your Orbwell plugin from "
                       "%0.\r\n\r\nPlease see the list below for details:\r\n\r\n%1")
                        .arg(simulatorName, m_errorMessage));
    m_errorMessage.clear();
}

void ScanController::uninstallFromFlightSim(FlightSimulatorMapping *mapping)
{
    if (!mapping->scan->config)
        return;

    if (hasConfigurationFile(mapping))
        removeEntry(mapping);

    if (const auto *removal = mapping->scan->remove) {
        for (const auto *operation : removal->files)
            removeExtraFile(extraFile(mapping, operation));
    }
}

void ScanController::removeEntry(FlightSimulatorMapping *mapping)
{
    const QString file = configurationFile(mapping);
    backUp(file, Before::Uninstallation);
    auto *helper = new XmlHelper(this, file);
    const bool gone = helper->removeConfig(mapping->scan->config);
    logAction() << (gone ? "entry is not in:" : "entry not removed from:") << file;
}

void ScanController::uninstallFromXPlane(FlightSimulatorMapping *) { }

} // namespace Quillmont::Utility::ViewControllers
