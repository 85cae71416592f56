#ifndef TESTS_VIEWCONTROLLERS_WORKSHOP_H
#define TESTS_VIEWCONTROLLERS_WORKSHOP_H

#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/ScanController.h"
#include "tests/support/BoxAnswerer.h"
#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/Sandbox.h"
#include "tests/support/Texts.h"

#include <QJsonArray>
#include <QJsonObject>

#include <memory>

namespace Tests {

using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::ViewControllers::ScanController;

/// A controller with its own home, whose boxes are answered and whose log is captured, with
/// catalogue and payload beside the executable, both deleted afterwards. In JSON texts "$ROOT" is
/// the sandbox's folder.
class Workshop
{
public:
    Workshop();
    ~Workshop();
    Workshop(const Workshop &) = delete;
    Workshop &operator=(const Workshop &) = delete;

    /// Created by the first call, so that a test can prepare the files for its constructor.
    ScanController &controller();
    void dropController();

    /// @p relative inside the sandbox, inside the data root, and beside the executable.
    QString path(const QByteArray &relative) const;
    QString dataPath(const QByteArray &relative) const;
    static QString beside(const QByteArray &relative);
    /// Creates the folder and returns its path.
    QString folder(const QByteArray &relative) const;

    void writePayload(const QByteArray &relative, const QByteArray &content) const;
    void writeCatalogue(const QByteArray &json) const;
    /// Creates a simulator in a folder that the detection library reports as "XP12".
    QString makeDetectedSimulator(const QByteArray &relative) const;

    /// A catalogue entry in JSON: "Sim NAME" in the sandbox's folder NAME, without a configuration
    /// file, with "x" of the payload as its one plugin file "p/x".
    static QByteArray simulator(const QByteArray &name);
    QByteArray expanded(const QByteArray &json) const;
    FlightSimScan *entry(const QByteArray &json);
    FlightSimulatorMapping *mapping(const QByteArray &json, const QString &path);

    QString recordPath() const;
    QJsonArray record() const;
    void writeRecord(const QByteArray &json) const;

    /// Everything in the sandbox except caches; the times in the names of backups become "TIME".
    QMap<QString, QByteArray> disk() const;
    /// The native paths of the backups in the sandbox.
    QStringList backups() const;

    /// The names and the folders that the window's rows show, from top to bottom.
    QStringList rowNames();
    QStringList rowPaths();
    /// How many catalogue entries the controller has created so far.
    int entryCount();

    Sandbox sandbox;
    LogCatcher log;
    BoxAnswerer answerer;

    /// The boxes so far, in the form of box(). One that is not an information box with one Ok
    /// button, without a parent and with the normal pointer is marked as odd.
    QStringList boxes() const;
    int countOfLine(const QString &line) const;
    /// Qt's warnings so far, without those of the offscreen platform.
    QString warnings() const;

private:
    static void clearFolder();

    std::unique_ptr<ScanController> m_controller;
};

/// A home for the settings, whose path is fixed by their first use. A test program that uses them
/// keeps one from its start to its end.
class SettingsHome : public Sandbox
{
public:
    SettingsHome();
};

} // namespace Tests

#endif
