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

#include <QStringList>

using Quillmont::Utility::Controllers::chosenFolder;
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

QString keeperOf(const Simulator &loser, const QList<Simulator> &all)
{
    for (const Simulator &other : all) {
        const auto *conflict = other.mapping->scan->conflict;
        if (conflict && conflict->name == loser.mapping->scan->conflict->name
            && other.mapping->path == loser.gaveUp)
            return other.mapping->scan->name;
    }
    return {};
}

void settle(QList<Simulator> *simulators)
{
    QList<FlightSimulatorMapping *> mappings;
    for (Simulator &simulator : *simulators) {
        simulator.gaveUp = simulator.mapping->path;
        mappings.append(simulator.mapping);
    }
    ViewControllers::settleConflicts(mappings);
    for (Simulator &simulator : *simulators) {
        const bool lost = simulator.mapping->path != simulator.gaveUp;
        if (!lost)
            simulator.gaveUp.clear();
        else
            simulator.gaveWayTo = keeperOf(simulator, *simulators);
        simulator.origin = lost ? Simulator::NotFound : simulator.origin;
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
    for (Simulator &simulator : simulators) {
        const QString chosen = chosenFolder(simulator.mapping->scan->name);
        if (chosen.isEmpty())
            continue;
        simulator.mapping->updateFlightSimPath(chosen);
        simulator.origin = Simulator::ByHand;
    }
    return simulators;
}

} // namespace Quillmont::Utility::Doctor
