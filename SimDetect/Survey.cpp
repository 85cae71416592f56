#include "SimDetect/Survey.h"

#include "SimDetect/Collector.h"
#include "SimDetect/Environment.h"
#include "SimDetect/FlightGear.h"
#include "SimDetect/MsfsPackages.h"
#include "SimDetect/Steam/SteamGames.h"
#include "SimDetect/XPlane/XPlane.h"

#include <memory>

namespace Quillmont::SimDetect {

namespace {

std::unique_ptr<Survey> &ofThisComputer()
{
    static std::unique_ptr<Survey> survey;
    return survey;
}

} // namespace

Survey::Survey(const Environment &environment)
    : m_steam(environment, m_lookup)
{
    Collector collector(m_lookup);
    XPlane(collector, m_lookup, environment).find(m_steam);
    SteamGames(collector, m_lookup, environment).find(m_steam);
    MsfsPackages(collector, m_lookup, m_steam).find();
    FlightGear(collector, m_lookup, environment).find();
    m_paths = collector.paths();
    m_findings = collector.findings();
}

Survey &Survey::renewed()
{
    ofThisComputer() = std::make_unique<Survey>(Environment::current());
    return *ofThisComputer();
}

Survey &Survey::last()
{
    return ofThisComputer() ? *ofThisComputer() : renewed();
}

QString Survey::prefix(qint64 appId)
{
    return m_steam.prefixes(QString::number(appId)).value(0);
}

QString Survey::fileIn(const QString &folder, const QString &relative)
{
    return m_lookup.spelled(folder, relative);
}

} // namespace Quillmont::SimDetect
