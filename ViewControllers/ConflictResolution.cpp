#include "ViewControllers/ScanController.h"

#include "ViewControllers/Payload/Conflicts.h"

using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

void ScanController::sloveConflict(
    QList<FlightSimulatorMapping *> mappings) // NOLINT clazy:exclude=function-args-by-ref
{
    settleConflicts(mappings);
}

} // namespace Quillmont::Utility::ViewControllers
