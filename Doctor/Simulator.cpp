#include "Doctor/Simulator.h"

#include "Controllers/ChosenFolder.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "SimDetect/SimDetect.h"
#include "ViewControllers/Payload/Catalogue.h"
#include "ViewControllers/Payload/Conflicts.h"
#include "ViewControllers/Payload/SteamPrefix.h"
#include "ViewControllers/Payload/Strategies.h"

#include <QHash>
#include <QPair>
#include <QStringList>

using Quillmont::Utility::Controllers::chosenFolders;
using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::Doctor {

namespace {

Simulator detected(FlightSimScan *entry, const QMap<QString, QString> &simPaths)
{
    if (entry->config)
        ViewControllers::findPrefix(entry->config);
    Simulator simulator;
    simulator.mapping = ViewControllers::foundByStrategy(entry);
    if (simulator.mapping) {
        simulator.origin = Simulator::ByStrategy;
        return simulator;
    }
    simulator.mapping = new FlightSimulatorMapping(entry, simPaths.value(entry->simcode));
    if (!simulator.mapping->path.isEmpty())
        simulator.origin = Simulator::ByDetection;
    return simulator;
}

using Place = QPair<QString, QString>; // a conflict's name, and a folder

// Which entry keeps a folder; of several in one group the first.
QHash<Place, QString> keepers(const QList<Simulator> &simulators)
{
    QHash<Place, QString> names;
    for (const Simulator &simulator : simulators) {
        const auto *entry = simulator.mapping->scan;
        const Place place(entry->conflict ? entry->conflict->name : QString(),
                          simulator.mapping->path);
        if (entry->conflict && !names.contains(place))
            names.insert(place, entry->name);
    }
    return names;
}

void settle(QList<Simulator> *simulators)
{
    QList<FlightSimulatorMapping *> mappings;
    for (Simulator &simulator : *simulators) {
        simulator.gaveUp = simulator.mapping->path;
        mappings.append(simulator.mapping);
    }
    ViewControllers::settleConflicts(mappings);
    const QHash<Place, QString> names = keepers(*simulators);
    for (Simulator &simulator : *simulators) {
        if (simulator.mapping->path == simulator.gaveUp) {
            simulator.gaveUp.clear();
            continue;
        }
        const QString &group = simulator.mapping->scan->conflict->name;
        simulator.gaveWayTo = names.value({group, simulator.gaveUp});
        simulator.origin = Simulator::NotFound;
    }
}

} // namespace

QList<Simulator> simulatorsIn(const QString &catalogue, QObject *owner)
{
    const QMap<QString, QString> simPaths = SimDetect::GetAllSimPaths();
    QList<Simulator> simulators;
    const auto entries = ViewControllers::catalogueEntries(owner, catalogue, simPaths);
    for (auto *entry : entries)
        simulators.append(detected(entry, simPaths));
    settle(&simulators);
    QStringList names;
    for (const Simulator &simulator : qAsConst(simulators))
        names.append(simulator.mapping->scan->name);
    const auto chosenByName = chosenFolders(names);
    for (Simulator &simulator : simulators) {
        const QString chosen = chosenByName.value(simulator.mapping->scan->name);
        if (chosen.isEmpty())
            continue;
        simulator.mapping->updateFlightSimPath(chosen);
        simulator.origin = Simulator::ByHand;
    }
    return simulators;
}

} // namespace Quillmont::Utility::Doctor
