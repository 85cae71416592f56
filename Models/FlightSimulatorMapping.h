#ifndef MODELS_FLIGHTSIMULATORMAPPING_H
#define MODELS_FLIGHTSIMULATORMAPPING_H

#include <QObject>
#include <QString>

namespace Quillmont::Utility::Models {

class FlightSimScan;

/// Ties a catalogue entry to the folder in which that simulator is installed on this computer.
class FlightSimulatorMapping : public QObject // clazy:exclude=ctor-missing-parent-argument
{
    Q_OBJECT

public:
    /// The mapping becomes a child of @p scan. An empty @p path means: not found.
    FlightSimulatorMapping(FlightSimScan *scan, const QString &path);

    /// Replaces the folder; nothing else changes.
    void updateFlightSimPath(const QString &path);

    /// Whether every plugin file of the entry exists in the folder; false without a folder.
    bool isAddonInstalled() const;

    FlightSimScan *scan; ///< The entry; never null, not owned.
    QString path; ///< The simulator's folder; empty: not found and not set.
    QString note; ///< The folder that the installation record gave, if it did.
};

} // namespace Quillmont::Utility::Models

#endif
