#ifndef DOCTOR_SIMULATOR_H
#define DOCTOR_SIMULATOR_H

#include <QList>
#include <QString>
#include <QVector>

class QObject;

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::Doctor {

/// A place where a simulator might have been.
struct TurnedDown
{
    QString path;
    QString namedBy;
    QString reason;
};

/// A catalogue entry as the window shows it, and how its folder was found.
struct Simulator
{
    enum Origin {
        NotFound,
        ByStrategy, ///< The entry's own "location".
        ByDetection, ///< The simulator's own files, Steam or a well-known folder.
        ByHand ///< The folder that the user chose in the window.
    };

    Models::FlightSimulatorMapping *mapping = nullptr; ///< The entry with its folder; not owned.
    Origin origin = NotFound;
    QString gaveUp; ///< The folder that it found but gave up in a conflict.
    QString gaveWayTo; ///< The name of the entry that keeps that folder.
    QVector<TurnedDown> turnedDown; ///< In the order in which they were looked at.
};

/// The entries in the text @p catalogue, as the window finds and orders them. They become children
/// of @p owner.
QList<Simulator> simulatorsIn(const QString &catalogue, QObject *owner);

/// What named the folder of @p simulator; empty where it has none.
QString originOf(const Simulator &simulator);

} // namespace Quillmont::Utility::Doctor

#endif
