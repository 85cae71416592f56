#include "ViewControllers/ScanController.h"

#include "Controllers/ActionLog.h"
#include "Controllers/PathEncoding.h"
#include "Controllers/UserFiles.h"
#include "Library/Helpers/FileHelper.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/WorkPlan.h"
#include "Views/ScannerView.h"
#include "Widgets/ResultBox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::launcherPathFile;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::PathEncoding;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Widgets::showInformation;
using Quillmont::Utility::Widgets::WorkProgress;

namespace Quillmont::Utility::ViewControllers {

namespace {

// False if the folder's name cannot be decoded: the decoded path does not exist.
bool isNamedByText(const QString &folder)
{
    return !folder.contains(QChar::ReplacementCharacter) || QFileInfo::exists(folder);
}

// The maker's other programs find this one here, under the same name on every system.
void writeLauncherPath()
{
    const QString path = QDir::toNativeSeparators(launcherPathFile());
    const QString program = QDir::toNativeSeparators(QCoreApplication::applicationDirPath()
                                                     + QStringLiteral("/QuillmontOrbwell.exe"));
    const QString content = QString(program).replace(QLatin1String("\\\\"), QLatin1String("\\"));
    const bool isKnown = isNamedByText(QCoreApplication::applicationDirPath());
    if (!isKnown)
        logAction() << "the name of the program's folder is not valid text:" << program;
    const bool written
        = isKnown && PathEncoding::survives(path) && FileHelper::saveText(path, content, QString());
    logAction() << (written ? "launcher path written:" : "launcher path not written:") << path;
}

// Those of @p mappings that the plugin is installed into now: what has been begun, and what lacks
// it.
QList<FlightSimulatorMapping *> withWork(const QList<FlightSimulatorMapping *> &mappings,
                                         const QList<FlightSimulatorMapping *> &begun)
{
    QList<FlightSimulatorMapping *> some;
    std::copy_if(mappings.cbegin(), mappings.cend(), std::back_inserter(some), [&](auto *mapping) {
        const bool isFound = !mapping->path.isEmpty();
        return begun.contains(mapping) || (isFound && !mapping->isAddonInstalled());
    });
    return some;
}

} // namespace

void ScanController::autoInstall(QList<FlightSimulatorMapping *> mappings,
                                 bool silent,
                                 InstallationMode mode)
{
    QString installedNames;
    QList<FlightSimulatorMapping *> begun;
    const WorkProgress progress(
        WorkProgress::Installing, view, [&] { return stepsOf(withWork(mappings, begun)); });
    for (auto *mapping : qAsConst(mappings)) {
        const bool isInstalled = mapping->isAddonInstalled();
        if (!mapping->path.isEmpty() && !isInstalled) {
            begun.append(mapping);
            uninstall(mapping, true, false);
            install(mapping, true, mode == ModeScanAndInstall);
            installedNames += u' ' + mapping->scan->name;
            saveInstallationInfo(mapping, false);
        } else if (isInstalled) {
            saveInstallationInfo(mapping, false);
        }
    }
    if (!silent)
        showInstalledNames(installedNames, !mappings.isEmpty());
    writeLauncherPath();
}

void ScanController::showInstalledNames(const QString &names, bool anySimulator)
{
    QString text;
    if (!names.isEmpty())
        text = tr("Quillmont Orbwell have successfully installed Orbwell plugin to %0.").arg(names);
    else if (anySimulator)
        text = tr("Orbwell plugin is installed in all simulators.").arg(QString());
    else
        text = tr("There are no other simulator found for install Orbwell plugin.").arg(QString());
    showInformation(tr("Quillmont Orbwell Settings"), text);
}

} // namespace Quillmont::Utility::ViewControllers
