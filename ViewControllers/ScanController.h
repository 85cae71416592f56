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

/// Controls the whole run: reads the command line, finds the simulators, installs and uninstalls
/// the plugin, and keeps the installation record. Owns the catalogue entries and mappings, which
/// are not deleted between scans.
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

    /// Creates the window as a child of @p parentWidget and shows it. With a switch on the command
    /// line no window is shown: the whole run is done here, and the process exits with its status.
    ScanController(QObject *parent, QWidget *parentWidget);

    /// The catalogue's text; empty if there is no catalogue beside the executable.
    QString getJsonContent();

    // Detection: returns a new mapping, owned by @p scan, or null if its strategy finds nothing.
    Models::FlightSimulatorMapping *scan(Models::FlightSimScan *scan);
    Models::FlightSimulatorMapping *scanFile(Models::FlightSimScan *scan);
    Models::FlightSimulatorMapping *scanFolder(Models::FlightSimScan *scan);
    Models::FlightSimulatorMapping *scanRegistry(Models::FlightSimScan *scan);
    Models::FlightSimulatorMapping *scanMultiple(Models::FlightSimScan *scan);

    /// Decides which entry of a conflict group keeps a folder that several found. Entries of a
    /// group that found several folders get their own configuration files.
    void sloveConflict(QList<Models::FlightSimulatorMapping *> mappings);

    /// Installs into each of @p mappings that has a folder but not the plugin, records all that
    /// have it, shows a result box unless @p silent, and writes the launcher path file.
    void autoInstall(QList<Models::FlightSimulatorMapping *> mappings,
                     bool silent,
                     InstallationMode mode);

    /// Installs into one simulator; true if there were no error lines. Shows the result unless
    /// @p silent, when the error lines stay in m_errorMessage; @p rescan starts a new scan first.
    /// Without a folder it does nothing and returns false.
    bool install(Models::FlightSimulatorMapping *mapping, bool silent, bool rescan);

    /// Adds our entry to the simulator's configuration file, which is created if it is missing.
    void installToFlightSim(Models::FlightSimulatorMapping *mapping);

    /// Uninstalls from one simulator; true if there are no error lines. Shows success unless
    /// @p silent, failure always; @p rescan starts a new scan first. Without a folder it does
    /// nothing and returns false.
    bool uninstall(Models::FlightSimulatorMapping *mapping, bool silent, bool rescan);

    /// Removes our entry from the simulator's configuration file and deletes the extra files.
    void uninstallFromFlightSim(Models::FlightSimulatorMapping *mapping);

    /// Creates the record file if it is missing.
    void createMappingFile();

    /// Sets the current mappings' folders from those records whose files all exist.
    void getUserSimulatorMapping();

    /// Replaces the record of @p mapping by a new one, or deletes it if @p uninstalled.
    void saveInstallationInfo(Models::FlightSimulatorMapping *mapping, bool uninstalled);

    /// The whole text of a file. One that cannot be opened or read, or is larger than any record,
    /// reads as empty and adds a line to m_errorMessage.
    QString readFile(const QString &path);

    /// Makes @p content the whole text of a file, creating missing folders. If the file cannot be
    /// opened, the disk is full or the text is larger than readFile() accepts, the file keeps its
    /// text and a line is added to m_errorMessage.
    void saveFile(const QString &path, const QString &content);

    // For other platforms; they do nothing here.
    void createRestrictedProcess(const QString &command);
    void installToXPlane(Models::FlightSimulatorMapping *mapping);
    void uninstallFromXPlane(Models::FlightSimulatorMapping *mapping);

    QString m_errorMessage; ///< Error lines of the current operation.
    Views::ScannerView *view; ///< The window; not deleted by the controller.
    QList<Models::FlightSimulatorMapping *>
        mappings; ///< Of the last scan that installed or ran silently.
    QMap<QString, QString> simPaths; ///< Simulator code to folder, as last detected.

public slots:
    /// Reads the catalogue, finds the simulators, and shows them, or, if @p silent or in
    /// ModeScanAndInstall, installs into them. With @p updateDefault the rows use folders that the
    /// user picked earlier. Without a catalogue nothing happens.
    // The unqualified name is part of the signature by which the slot is invoked.
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

    bool readContent(const QString &path, QByteArray *bytes);
    void saveContent(const QString &path, const QByteArray &bytes);
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
