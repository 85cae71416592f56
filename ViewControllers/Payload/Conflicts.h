#ifndef VIEWCONTROLLERS_PAYLOAD_CONFLICTS_H
#define VIEWCONTROLLERS_PAYLOAD_CONFLICTS_H

#include <QList>

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// Settles which entry of a conflict group keeps a folder that several found, and gives the
/// entries of a group that found several folders their own configuration files.
void settleConflicts(const QList<Models::FlightSimulatorMapping *> &mappings);

} // namespace Quillmont::Utility::ViewControllers

#endif
