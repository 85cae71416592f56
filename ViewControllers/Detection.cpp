#include "ViewControllers/ScanController.h"

#include "Models/FlightSimScan.h"
#include "ViewControllers/Payload/Strategies.h"

using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

FlightSimulatorMapping *ScanController::scan(FlightSimScan *scan)
{
    // Only the detection library finds these simulators.
    if (scan->location == 4)
        scanMultiple(scan);
    return foundByStrategy(scan);
}

FlightSimulatorMapping *ScanController::scanFile(FlightSimScan *scan)
{
    return foundFile(scan);
}

FlightSimulatorMapping *ScanController::scanFolder(FlightSimScan *scan)
{
    return foundFolder(scan);
}

FlightSimulatorMapping *ScanController::scanRegistry(FlightSimScan *)
{
    return nullptr;
}

FlightSimulatorMapping *ScanController::scanMultiple(FlightSimScan *)
{
    return nullptr;
}

} // namespace Quillmont::Utility::ViewControllers
