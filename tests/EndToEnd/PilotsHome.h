#ifndef TESTS_ENDTOEND_PILOTSHOME_H
#define TESTS_ENDTOEND_PILOTSHOME_H

#include <QByteArray>
#include <QMap>
#include <QString>

namespace Tests {

class Sandbox;

/// A computer as a pilot has it, inside a sandbox: X-Plane 12 on a drive of its own and in
/// X-Plane's list, X-Plane 11 in a Steam library on another drive, FSX: Steam Edition under Proton
/// with other add-ons in its dll.xml, and FlightGear's data.
class PilotsHome
{
public:
    /// Puts all of it on the disk but for FlightGear, which lies at @p flightGear.
    PilotsHome(const Sandbox &sandbox, const QString &flightGear);

    QString xplane12() const;
    QString xplane11() const;
    QString fsx() const;

    QString flightGear() const { return m_flightGear; }

    /// FSX's list of add-ons.
    QString dllXml() const;

    /// Everything that belongs to the simulators, their configuration files included, by full
    /// path. Backups, which the program never deletes, are left out.
    QMap<QString, QByteArray> trees() const;

    /// Makes a small X-Plane at @p folder, which says itself which version it is.
    static void makeXPlane(const QString &folder, int version);

private:
    void makeSteam() const;
    void makeFsx() const;
    void makeFlightGear() const;
    QString steam() const;
    QString prefix() const;

    const QString m_home;
    const QString m_drives;
    const QString m_flightGear;
};

} // namespace Tests

#endif
