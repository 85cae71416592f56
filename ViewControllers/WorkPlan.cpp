#include "ViewControllers/WorkPlan.h"

#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/Catalogue.h"
#include "ViewControllers/Payload/SimulatorFiles.h"

#include <QFileInfo>

using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Widgets::WorkProgress;

namespace Quillmont::Utility::ViewControllers {

QVector<WorkProgress::Step> stepsOf(const QList<FlightSimulatorMapping *> &mappings)
{
    QVector<WorkProgress::Step> steps;
    const QString payload = payloadFolder();
    for (const auto *mapping : mappings) {
        const auto &files = mapping->scan->files;
        for (auto it = files.cbegin(); it != files.cend(); ++it)
            steps.append({mapping->scan->name,
                          QFileInfo(pluginFile(mapping, it.key())).fileName(),
                          QFileInfo(payload + it.value()).size()});
    }
    return steps;
}

} // namespace Quillmont::Utility::ViewControllers
