#ifndef VIEWCONTROLLERS_WORKPLAN_H
#define VIEWCONTROLLERS_WORKPLAN_H

#include "Widgets/WorkProgress.h"

#include <QList>

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// A step for each plugin file of each of @p mappings, in the order of the work. What a file weighs
/// is asked of the payload, since a removed one says nothing any more.
QVector<Widgets::WorkProgress::Step>
stepsOf(const QList<Models::FlightSimulatorMapping *> &mappings);

} // namespace Quillmont::Utility::ViewControllers

#endif
