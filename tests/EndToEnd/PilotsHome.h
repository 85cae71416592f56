#ifndef TESTS_ENDTOEND_PILOTSHOME_H
#define TESTS_ENDTOEND_PILOTSHOME_H

#include <QByteArray>
#include <QMap>
#include <QString>

namespace Tests {

class Sandbox;

/// Where a pilot has Steam; each is a path inside the sandbox.
struct PilotsSteam
{
    QString root = QStringLiteral("home/.local/share/Steam");
    QString games = root; ///< The library with the Windows simulators.
    QString prefixes = root; ///< The library with their prefixes; empty if there are none.
};

/// A typical pilot's computer inside a sandbox: X-Plane 12 on its own drive and in X-Plane's list,
/// X-Plane 11 in a Steam library on another drive, FSX: Steam Edition under Proton with other
/// add-ons in its dll.xml, and FlightGear's data.
class PilotsHome
{
public:
    /// Creates all of it except FlightGear, which is at @p flightGear.
    PilotsHome(const Sandbox &sandbox, const QString &flightGear, const PilotsSteam &steam = {});

    /// Adds Aerofly FS 4, and both Microsoft Flight Simulators with their packages in one folder on
    /// another drive, all under Proton.
    void addNewerSimulators() const;

    QString xplane12() const;
    QString xplane11() const;
    QString fsx() const;

    QString flightGear() const { return m_flightGear; }

    /// FSX's list of add-ons; its prefix has to exist.
    QString dllXml() const;
    QString aerofly() const;
    QString packages() const;

    /// Everything that belongs to the simulators, their configuration files included, by full
    /// path. Backups, which the program never deletes, are left out.
    QMap<QString, QByteArray> trees() const;

    /// Creates a small X-Plane in @p folder, with files that say its version.
    static void makeXPlane(const QString &folder, int version);

private:
    void makeSteam() const;
    void makeFsx() const;
    void makeFlightGear() const;
    void makeGame(const char *id, const QString &name) const;
    void makeUserCfg(const char *id, const QString &name) const;
    QString second() const;
    QString user(const char *id) const;

    const QString m_home;
    const QString m_drives;
    const QString m_flightGear;
    const QString m_steam;
    const QString m_games;
    const QString m_prefixes; ///< Empty if there are none.
};

} // namespace Tests

#endif
