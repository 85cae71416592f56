#ifndef VIEWCONTROLLERS_WORKPLAN_H
#define VIEWCONTROLLERS_WORKPLAN_H

#include "Widgets/WorkProgress.h"

#include <QList>

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// A step for each plugin file of each of @p mappings, in the order of the work. Sizes are
/// those of the payload's files, since a file that has been removed has none.
QVector<Widgets::WorkProgress::Step>
stepsOf(const QList<Models::FlightSimulatorMapping *> &mappings);

} // namespace Quillmont::Utility::ViewControllers

#endif
