#include "Doctor/Simulator.h"

#include "Controllers/ChosenFolder.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "SimDetect/SimDetect.h"
#include "SimDetect/Survey.h"
#include "ViewControllers/Payload/Catalogue.h"
#include "ViewControllers/Payload/Conflicts.h"
#include "ViewControllers/Payload/SteamPrefix.h"
#include "ViewControllers/Payload/Strategies.h"

#include <QDir>
#include <QHash>
#include <QPair>
#include <QStringList>

using Quillmont::SimDetect::Survey;
using Quillmont::Utility::Controllers::chosenFolders;
using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::Doctor {

namespace {

QString strategyOf(const FlightSimScan *entry)
{
    return entry->location == 0 ? QStringLiteral("the catalogue's file")
        : entry->location == 1  ? QStringLiteral("the catalogue's folder")
                                : QStringLiteral("the catalogue's location");
}

// What the entry's own strategy looked for in vain.
QVector<TurnedDown> missedByStrategy(const FlightSimScan *entry)
{
    enum Location {
        File,
        Folder,
        Registry,
        Nowhere,
        SeveralPlaces
    };

    const QString both = entry->path + u'/' + entry->key;
    const auto place = [entry](QString path, const char *reason) {
        return QVector<TurnedDown>{
            {path.replace(u'\\', u'/'), strategyOf(entry), QLatin1String(reason)}};
    };
    switch (entry->location) {
    case File:
        return both.size() > 1 ? place(both, "no such file") : QVector<TurnedDown>();
    case Folder:
        return entry->path.isEmpty() ? QVector<TurnedDown>() : place(entry->path, "no such folder");
    case Registry:
        return place(both, "no registry on this system");
    case Nowhere:
        return {};
    case SeveralPlaces:
        return place(entry->target, "looked for on Windows only");
    default:
        return place(QString::number(entry->location), "no such \"location\"");
    }
}

// What detection has said of it, or a list of what it turned down.
QVector<TurnedDown> missedByDetection(const FlightSimScan *entry)
{
    QVector<TurnedDown> places;
    for (const auto &finding : Survey::last().findings()) {
        if (finding.code == entry->simcode && !finding.objection.isEmpty())
            places.append({finding.path, finding.origin, finding.objection});
    }
    return places;
}

Simulator detected(FlightSimScan *entry, const QMap<QString, QString> &simPaths)
{
    if (entry->config)
        ViewControllers::findPrefix(entry->config);
    Simulator simulator;
    simulator.turnedDown = missedByDetection(entry);
    simulator.mapping = ViewControllers::foundByStrategy(entry);
    if (simulator.mapping) {
        simulator.origin = Simulator::ByStrategy;
        return simulator;
    }
    simulator.turnedDown = missedByStrategy(entry) + simulator.turnedDown;
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

void takeChosenFolders(QList<Simulator> *simulators)
{
    QStringList names;
    for (const Simulator &simulator : qAsConst(*simulators))
        names.append(simulator.mapping->scan->name);
    const auto chosenByName = chosenFolders(names);
    for (Simulator &simulator : *simulators) {
        const QString chosen = chosenByName.value(simulator.mapping->scan->name);
        const QString found = simulator.mapping->path;
        if (chosen.isEmpty())
            continue;
        if (!found.isEmpty() && QDir::cleanPath(found) != QDir::cleanPath(chosen))
            simulator.turnedDown.append(
                {found, originOf(simulator), QStringLiteral("another one was chosen by hand")});
        simulator.mapping->updateFlightSimPath(chosen);
        simulator.origin = Simulator::ByHand;
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
    takeChosenFolders(&simulators);
    return simulators;
}

QString originOf(const Simulator &simulator)
{
    const auto *entry = simulator.mapping->scan;
    if (simulator.origin == Simulator::ByHand)
        return QStringLiteral("chosen by hand");
    if (simulator.origin == Simulator::ByStrategy)
        return strategyOf(entry);
    for (const auto &finding : Survey::last().findings()) {
        const bool isIt = finding.code == entry->simcode && finding.objection.isEmpty();
        if (isIt && simulator.origin == Simulator::ByDetection)
            return finding.origin;
    }
    return {};
}

} // namespace Quillmont::Utility::Doctor
