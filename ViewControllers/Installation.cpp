#include "ViewControllers/ScanController.h"

#include "Controllers/ActionLog.h"
#include "Library/Files/LibraryLog.h"
#include "Library/Helpers/FileHelper.h"
#include "Library/Helpers/XmlHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/Catalogue.h"
#include "ViewControllers/Payload/InstallationLock.h"
#include "ViewControllers/Payload/LaunchDocument.h"
#include "ViewControllers/Payload/SimulatorFiles.h"
#include "ViewControllers/WorkPlan.h"
#include "Views/ScannerView.h"
#include "Widgets/BusyPointer.h"
#include "Widgets/ResultBox.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using Quillmont::Library::Files::xmlLog;
using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Library::Helpers::XmlHelper;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Widgets::BusyPointer;
using Quillmont::Utility::Widgets::showInformation;
using Quillmont::Utility::Widgets::WorkProgress;

namespace Quillmont::Utility::ViewControllers {

namespace {

void removeOldFile(const QString &path)
{
    if (!QFile::exists(path))
        return;
    QFile file(path);
    if (file.remove())
        logAction() << "old file removed:" << path;
    else
        logAction() << "old file not removed:" << path << file.errorString();
}

// Nothing can be put in the place of a link that leads nowhere, though nothing seems to be there.
void reportDeadLinks(const QString &path)
{
    const QStringList links = deadLinksOn(path);
    for (const QString &link : links)
        logAction() << "this link leads nowhere:" << link;
}

void writeLaunchDocument(const QString &path)
{
    const bool written
        = FileHelper::saveText(path, launchDocument(), QStringLiteral("Windows-1252"));
    logAction() << (written ? "launch document written:" : "launch document not written:") << path;
}

} // namespace

bool ScanController::install(FlightSimulatorMapping *mapping, bool silent, bool rescan)
{
    if (mapping->path.isEmpty())
        return false;

    const BusyPointer busy;
    const WorkProgress progress(
        WorkProgress::Installing, view, [mapping] { return stepsOf({mapping}); });
    logAction() << "install into" << mapping->scan->name << "in" << mapping->path;
    m_errorMessage.clear();
    copyPluginFiles(mapping);
    saveInstallationInfo(mapping, false);
    if (rescan)
        startScan(true, false, ModeNone);

    const bool succeeded = m_errorMessage.isEmpty();
    if (!silent)
        showInstallationResult(mapping->scan->name);
    return succeeded;
}

void ScanController::copyPluginFiles(FlightSimulatorMapping *mapping)
{
    const InstallationLock lock;
    if (mapping->scan->root < 1)
        logSkippedEdits(mapping);
    const QString payload = payloadFolder();
    const auto &files = mapping->scan->files;
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
        WorkProgress::nextStep(WorkProgress::Installing);
        copyPluginFile(QDir::toNativeSeparators(payload + it.value()),
                       pluginFile(mapping, it.key()),
                       simulatorFolder(mapping));
        if (mapping->scan->type == 0)
            installToFlightSim(mapping);
    }
}

void ScanController::copyPluginFile(const QString &source,
                                    const QString &target,
                                    const QString &folder)
{
    makeFolderOf(target);
    removeOldFile(target);
    QFile file(source);
    if (file.copy(target)) {
        logAction() << "file copied:" << source << "to" << target;
    } else {
        logAction() << "file not copied:" << source << "to" << target << file.errorString();
        reportDeadLinks(QFileInfo(target).absoluteFilePath());
        m_errorMessage += tr("Unable to copy '%0' to '%1'. Please check if you have permission to "
                             "folder '%2'.\r\n")
                              .arg(source, target, folder);
    }
}

void ScanController::showInstallationResult(const QString &simulatorName)
{
    if (m_errorMessage.isEmpty()) {
        showInformation(tr("Installation complete"),
                        tr("Quillmont Orbwell have successfully installed Orbwell plugin to %0.")
                            .arg(simulatorName));
        return;
    }
    showInformation(tr("Installation"),
                    tr("Quillmont Orbwell was not able to install your Orbwell plugin to "
                       "%0.\r\n\r\nPlease see the list below for details:\r\n\r\n%1")
                        .arg(simulatorName, m_errorMessage));
    m_errorMessage.clear();
}

void ScanController::installToFlightSim(FlightSimulatorMapping *mapping)
{
    if (mapping->scan->root >= 1)
        return;
    if (!mapping->scan->config) {
        const QString name = mapping->scan->name;
        qCDebug(xmlLog, "no configuration entry to add for %s", qUtf8Printable(name));
        return;
    }
    if (!hasConfigurationFile(mapping))
        return;
    qDebug("hit reg search...");

    const QString file = QDir::toNativeSeparators(configurationFile(mapping));
    // A file that merely cannot be accessed now must not be replaced.
    if (FileHelper::isMissing(file))
        writeLaunchDocument(file);
    else
        backUp(file, Before::Installation);

    auto *helper = new XmlHelper(this, file);
    const bool inPlace = helper->insertValues(mapping->scan->config);
    logAction() << (inPlace ? "entry is in:" : "entry not added to:") << file;
}

void ScanController::installToXPlane(FlightSimulatorMapping *) { }

} // namespace Quillmont::Utility::ViewControllers
