#ifndef VIEWCONTROLLERS_PAYLOAD_CONFLICTS_H
#define VIEWCONTROLLERS_PAYLOAD_CONFLICTS_H

#include <QList>

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// Decides which entry of a conflict group keeps a folder that several found. Entries of a group
/// that found several folders get their own configuration files.
void settleConflicts(const QList<Models::FlightSimulatorMapping *> &mappings);

} // namespace Quillmont::Utility::ViewControllers

#endif
