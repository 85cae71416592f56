#ifndef VIEWCONTROLLERS_SCANCONTROLLER_H
#define VIEWCONTROLLERS_SCANCONTROLLER_H

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class QWidget;

namespace Quillmont::Utility::Models {
class FlightSimScan;
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::Views {
class ScannerView;
} // namespace Quillmont::Utility::Views

namespace Quillmont::Utility::ViewControllers {

/// Drives the whole run: reads the command line, finds the simulators, installs into them and
/// removes from them, and keeps the record of what went where. Catalogue entries and mappings
/// belong to the controller and live as long as it does, over every scan.
class ScanController : public QObject
{
    Q_OBJECT

public:
    enum InstallationMode {
        ModeNone = 0,
        ModeInstall = 1,
        ModeUninstall = 2,
        ModeRepair = 3,
        ModeScanAndInstall = 4
    };
    Q_ENUM(InstallationMode)

    /// Makes the window as a child of @p parentWidget and shows it. With a switch on the command
    /// line no window is shown: all the work is done here and the process ends with its status.
    ScanController(QObject *parent, QWidget *parentWidget);

    /// The catalogue's text; empty when there is no catalogue beside the executable.
    QString getJsonContent();

    // Detection: a new mapping, owned by @p scan, or null when its strategy finds nothing.
    Models::FlightSimulatorMapping *scan(Models::FlightSimScan *scan);
    Models::FlightSimulatorMapping *scanFile(Models::FlightSimScan *scan);
    Models::FlightSimulatorMapping *scanFolder(Models::FlightSimScan *scan);
    Models::FlightSimulatorMapping *scanRegistry(Models::FlightSimScan *scan);
    Models::FlightSimulatorMapping *scanMultiple(Models::FlightSimScan *scan);

    /// Settles which entry of a conflict group keeps a folder that several found, and gives the
    /// entries of a group that found several folders their own configuration files.
    void sloveConflict(QList<Models::FlightSimulatorMapping *> mappings);

    /// Installs into each of @p mappings that has a folder and lacks the plugin, records all that
    /// have it, says so in a box unless @p silent, and writes the launcher path file.
    void autoInstall(QList<Models::FlightSimulatorMapping *> mappings,
                     bool silent,
                     InstallationMode mode);

    /// Puts the plugin into one simulator and answers whether no error line came up. The result
    /// is shown unless @p silent, then the error lines stay in m_errorMessage; @p rescan starts a
    /// new scan first. Without a folder nothing happens and the answer is false.
    bool install(Models::FlightSimulatorMapping *mapping, bool silent, bool rescan);

    /// Brings the simulator's configuration file in line, making it where it is missing.
    void installToFlightSim(Models::FlightSimulatorMapping *mapping);

    /// Takes the plugin out of one simulator and answers whether no error line is left. Success
    /// is shown unless @p silent, failure always; @p rescan starts a new scan first. Without a
    /// folder nothing happens and the answer is false.
    bool uninstall(Models::FlightSimulatorMapping *mapping, bool silent, bool rescan);

    /// Takes our entry out of the simulator's configuration file and deletes the extra files.
    void uninstallFromFlightSim(Models::FlightSimulatorMapping *mapping);

    /// Makes sure that there is a record file.
    void createMappingFile();

    /// Gives the current mappings the folders of those records whose files are all in place.
    void getUserSimulatorMapping();

    /// Replaces the record of @p mapping by a fresh one, or deletes it when @p uninstalled.
    void saveInstallationInfo(Models::FlightSimulatorMapping *mapping, bool uninstalled);

    /// The whole text of a file. One that cannot be opened or read, or is bigger than any record,
    /// reads as empty and leaves a line in m_errorMessage.
    QString readFile(const QString &path);

    /// Makes @p content the whole text of a file, making missing folders. A file that cannot be
    /// opened, or finds no room for it, keeps its text and leaves a line in m_errorMessage. So does
    /// one that would be bigger than readFile() takes.
    void saveFile(const QString &path, const QString &content);

    // For other platforms; they do nothing here.
    void createRestrictedProcess(const QString &command);
    void installToXPlane(Models::FlightSimulatorMapping *mapping);
    void uninstallFromXPlane(Models::FlightSimulatorMapping *mapping);

    QString m_errorMessage; ///< Error lines of the work under way.
    Views::ScannerView *view; ///< The window; not deleted by the controller.
    QList<Models::FlightSimulatorMapping *> mappings; ///< Of the last scan for automatic work.
    QMap<QString, QString> simPaths; ///< Simulator code to folder, as detected last.

public slots:
    /// Reads the catalogue, finds the simulators, and shows them, or, when @p silent or in
    /// ModeScanAndInstall, installs into them. @p updateDefault lets the window's rows take up
    /// folders that the user picked earlier. Without a catalogue nothing happens.
    // The short name is part of the signature under which the slot is looked up.
    void startScan(bool updateDefault, // clazy:exclude=fully-qualified-moc-types
                   bool silent,
                   InstallationMode mode);

private:
    struct Request
    {
        InstallationMode mode = ModeNone;
        bool quietInstall = false;
    };

    static Request commandLineRequest();
    void connectView();
    [[noreturn]] void runInstallation(bool quiet);
    [[noreturn]] void runRemoval(InstallationMode mode);
    void showSummary(const QStringList &lines, InstallationMode mode);

    Models::FlightSimulatorMapping *mappingFor(Models::FlightSimScan *scan);

    bool readText(const QString &path, QString *text);
    void reportUnwritten(const QString &path, const QString &problem);

    void copyPluginFiles(Models::FlightSimulatorMapping *mapping);
    void removePluginFiles(Models::FlightSimulatorMapping *mapping);
    void copyPluginFile(const QString &source, const QString &target, const QString &folder);
    void removeEntry(Models::FlightSimulatorMapping *mapping);
    void removePluginFile(const QString &target, const QString &simulatorName);
    void showInstallationResult(const QString &simulatorName);
    void showRemovalFailure(const QString &simulatorName);
    void showInstalledNames(const QString &names, bool anySimulator);
};

} // namespace Quillmont::Utility::ViewControllers

#endif
