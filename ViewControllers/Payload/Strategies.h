#ifndef VIEWCONTROLLERS_PAYLOAD_STRATEGIES_H
#define VIEWCONTROLLERS_PAYLOAD_STRATEGIES_H

namespace Quillmont::Utility::Models {
class FlightSimScan;
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

// How a catalogue entry finds its simulator: returns a new mapping, owned by @p scan, or null if
// nothing is found.

/// By the strategy that the entry names.
Models::FlightSimulatorMapping *foundByStrategy(Models::FlightSimScan *scan);
Models::FlightSimulatorMapping *foundFile(Models::FlightSimScan *scan);
Models::FlightSimulatorMapping *foundFolder(Models::FlightSimScan *scan);

} // namespace Quillmont::Utility::ViewControllers

#endif
