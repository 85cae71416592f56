#ifndef DOCTOR_SIMULATOR_H
#define DOCTOR_SIMULATOR_H

#include <QList>
#include <QString>

class QObject;

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::Doctor {

/// A catalogue entry as the window shows it, and how it came by its folder.
struct Simulator
{
    enum Origin {
        NotFound,
        ByStrategy, ///< The entry's own "location".
        ByDetection, ///< What the simulator, Steam or a well-known folder says.
        ByHand ///< The folder that the user chose in the window.
    };

    Models::FlightSimulatorMapping *mapping = nullptr; ///< With the folder; not owned.
    Origin origin = NotFound;
    QString gaveUp; ///< The folder that it found and a conflict took from it.
    QString gaveWayTo; ///< The name of the entry that kept that one.
};

/// The entries of the catalogue with that text, found as the window finds them, in its order.
/// They become children of @p owner.
QList<Simulator> simulatorsIn(const QString &catalogue, QObject *owner);

} // namespace Quillmont::Utility::Doctor

#endif
