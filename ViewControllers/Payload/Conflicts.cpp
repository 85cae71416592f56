#include "ViewControllers/Payload/Conflicts.h"

#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"

#include <QMap>

using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

namespace {

using Group = QMap<QString, FlightSimulatorMapping *>; // by the folder that was found
using Groups = QMap<QString, Group>; // by the conflict's name

// If two entries found one folder, the second entry's conflict decides which of them gives it up.
// The first one stays in the group even if it gives up its folder.
Groups groupByFolder(const QList<FlightSimulatorMapping *> &mappings)
{
    Groups groups;
    for (auto *mapping : mappings) {
        const auto *conflict = mapping->scan->conflict;
        if (!conflict)
            continue;
        Group &group = groups[conflict->name];
        auto *earlier = group.value(mapping->path);
        if (!earlier)
            group.insert(mapping->path, mapping);
        else
            (conflict->removeOnConflict ? mapping : earlier)->path.clear();
    }
    return groups;
}

void applySolution(const FlightSimulatorMapping *mapping)
{
    const auto *conflict = mapping->scan->conflict;
    auto *config = mapping->scan->config;
    if (!config || conflict->solution.isEmpty())
        return;
    config->path = conflict->solution;
    // It is relative to the data root, even if it replaces a path in a prefix.
    config->prefix.clear();
    config->steam = 0;
}

} // namespace

void settleConflicts(const QList<FlightSimulatorMapping *> &mappings)
{
    const Groups groups = groupByFolder(mappings);
    for (const Group &group : groups) {
        if (group.size() < 2)
            continue;
        for (const auto *mapping : group)
            applySolution(mapping);
    }
}

} // namespace Quillmont::Utility::ViewControllers
