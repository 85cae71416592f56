#include "SimDetect/SteamGames.h"

#include "SimDetect/Candidate.h"
#include "SimDetect/Collector.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/Steam.h"

#include <QFileInfo>

namespace Quillmont::SimDetect {

SteamGames::SteamGames(Collector &collector, FolderLookup &lookup, Steam &steam)
    : m_collector(collector)
    , m_lookup(lookup)
    , m_steam(steam)
{ }

void SteamGames::find()
{
    const auto has = [this](const QString &folder, const char *name) {
        return QFileInfo(m_lookup.find(folder, QLatin1String(name)));
    };
    const auto testFsx = [has](const QString &folder) -> QString {
        if (!has(folder, "fsx.exe").isFile()) {
            return QStringLiteral("no fsx.exe");
        }
        return has(folder, "SimObjects").isDir() ? QString() : QStringLiteral("no SimObjects");
    };
    const auto testAerofly = [has](const QString &folder) -> QString {
        if (!has(folder, "scenery").isDir()) {
            return QStringLiteral("no scenery");
        }
        return has(folder, "aircraft").isDir() ? QString() : QStringLiteral("no aircraft");
    };
    m_collector.offer(
        QStringLiteral("FSXSE"), m_steam.candidates(QStringLiteral("314160")), testFsx);
    m_collector.offer(
        QStringLiteral("AFS4"), m_steam.candidates(QStringLiteral("1995890")), testAerofly);
}

} // namespace Quillmont::SimDetect
