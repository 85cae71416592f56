#include "SimDetect/SimDetect.h"

#include "SimDetect/Collector.h"
#include "SimDetect/Environment.h"
#include "SimDetect/FlightGear.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/MsfsPackages.h"
#include "SimDetect/Steam.h"
#include "SimDetect/SteamGames.h"
#include "SimDetect/XPlane.h"

namespace Quillmont::SimDetect {

QMap<QString, QString> GetAllSimPaths()
{
    return simPaths(Environment::current());
}

QMap<QString, QString> simPaths(const Environment &environment)
{
    FolderLookup lookup;
    Collector collector(lookup);
    Steam steam(environment, lookup);
    XPlane(collector, lookup, environment).find(steam);
    SteamGames(collector, lookup, steam).find();
    MsfsPackages(collector, lookup, steam).find();
    FlightGear(collector, lookup, environment).find();
    return collector.paths();
}

} // namespace Quillmont::SimDetect
