#include "ViewControllers/ScanController.h"

#include "Controllers/ActionLog.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "SimDetect/SimDetect.h"
#include "Views/ScannerView.h"
#include "Widgets/ResultBox.h"

#include <QCoreApplication>
#include <QMetaEnum>

#include <cstdlib>

using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Views::ScannerView;
using Quillmont::Utility::Widgets::showInformation;

namespace Quillmont::Utility::ViewControllers {

namespace {

[[noreturn]] void endProcess(int status)
{
    logAction() << "end with status" << status;
    std::exit(status);
}

} // namespace

ScanController::ScanController(QObject *parent, QWidget *parentWidget)
    : QObject(parent)
    , view(new ScannerView(parentWidget))
    , simPaths(SimDetect::GetAllSimPaths())
{
    // Under the name in the slot's signature, so that the slot can be invoked by name.
    qRegisterMetaType<InstallationMode>("InstallationMode");

    const Request request = commandLineRequest();
    logAction() << "start of version" << ORBWELL_VERSION << "in"
                << QMetaEnum::fromType<InstallationMode>().valueToKey(request.mode);
    createMappingFile();

    switch (request.mode) {
    case ModeInstall:
        runInstallation(request.quietInstall);
    case ModeUninstall:
    case ModeRepair:
        runRemoval(request.mode);
    case ModeNone:
    case ModeScanAndInstall:
        view->show();
        connectView();
    }
}

// Every argument is checked, including the program's own path, and the last switch wins.
ScanController::Request ScanController::commandLineRequest()
{
    Request request;
    const QStringList arguments = QCoreApplication::arguments();
    for (const QString &argument : arguments) {
        const QString upper = argument.toUpper();
        if (upper == QLatin1String("--UNINSTALL"))
            request.mode = ModeUninstall;
        else if (upper == QLatin1String("--REPAIR"))
            request.mode = ModeRepair;
        else if (upper == QLatin1String("--INSTALL"))
            request.mode = ModeInstall;
        else if (upper == QLatin1String("1"))
            request.quietInstall = true;
    }
    return request;
}

void ScanController::connectView()
{
    connect(
        view,
        &ScannerView::scanRequested,
        view,
        [this] { startScan(false, false, ModeScanAndInstall); },
        Qt::DirectConnection);
    connect(
        view,
        &ScannerView::install,
        view,
        [this](FlightSimulatorMapping *mapping) { install(mapping, false, true); },
        Qt::DirectConnection);
    connect(
        view,
        &ScannerView::uninstall,
        view,
        [this](FlightSimulatorMapping *mapping) { uninstall(mapping, false, true); },
        Qt::DirectConnection);
}

void ScanController::runInstallation(bool quiet)
{
    startScan(false, true, quiet ? ModeNone : ModeInstall);
    getUserSimulatorMapping();
    autoInstall(mappings, true, ModeNone);
    // 2 whatever the result: callers distinguish an installation run from a repair run by it.
    endProcess(2);
}

void ScanController::runRemoval(InstallationMode mode)
{
    startScan(false, true, mode);
    getUserSimulatorMapping();

    bool succeeded = true;
    QStringList lines;
    const auto current = mappings; // every removal scans again and replaces the list
    for (auto *mapping : current) {
        if (mapping->path.isEmpty())
            continue;
        succeeded &= uninstall(mapping, true, true);
        // A removal run ends without a summary, so only a repair has a line to add.
        if (mode == ModeRepair) {
            const bool updated = install(mapping, true, true);
            succeeded &= updated;
            lines.append(tr("%0: %1").arg(mapping->scan->name,
                                          updated ? QStringLiteral("Updated")
                                                  : QStringLiteral("Not updated")));
        }
    }
    if (!lines.isEmpty())
        showSummary(lines, mode);
    endProcess(succeeded ? 0 : 2);
}

void ScanController::showSummary(const QStringList &lines, InstallationMode mode)
{
    const QString word
        = mode == ModeUninstall ? QStringLiteral("uninstalled") : QStringLiteral("updated");
    showInformation(tr("Plugins %0").arg(word),
                    tr("Quillmont Orbwell has %1 plugins on your computer.\r\n\r\n"
                       "Please see the list below for details:\r\n\r\n%0")
                        .arg(lines.join(u'\n')) // clazy:exclude=qstring-arg
                        .arg(word));
}

} // namespace Quillmont::Utility::ViewControllers
