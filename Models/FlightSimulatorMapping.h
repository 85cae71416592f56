#ifndef MODELS_FLIGHTSIMULATORMAPPING_H
#define MODELS_FLIGHTSIMULATORMAPPING_H

#include <QObject>
#include <QString>

namespace Quillmont::Utility::Models {

class FlightSimScan;

/// A catalogue entry with the folder of its simulator on this computer.
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
    QString note; ///< The folder from the installation record, if any.
};

} // namespace Quillmont::Utility::Models

#endif
