#include "SimDetect/Steam/SteamGames.h"

#include "SimDetect/Candidate.h"
#include "SimDetect/Collector.h"
#include "SimDetect/Environment.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/Steam/Steam.h"

#include <QFileInfo>

namespace Quillmont::SimDetect {

SteamGames::SteamGames(Collector &collector, FolderLookup &lookup, const Environment &environment)
    : m_collector(collector)
    , m_lookup(lookup)
    , m_environment(environment)
{ }

void SteamGames::find(Steam &steam)
{
    m_collector.setOrigin(QStringLiteral("Steam"));
    const auto test = [this](const QString &folder) -> QString {
        if (!hasFile(folder, "fsx.exe"))
            return QStringLiteral("no fsx.exe");
        return hasFolder(folder, "SimObjects") ? QString() : QStringLiteral("no SimObjects");
    };
    m_collector.offer(QStringLiteral("FSXSE"), steam.candidates(QStringLiteral("314160")), test);
    // Only the Windows build loads plugins.
    if (m_environment.system == Environment::Linux)
        findAerofly(steam);
}

// It loads plugins from the user's documents in its prefix, not from its installation folder.
void SteamGames::findAerofly(Steam &steam)
{
    const QString code = QStringLiteral("AFS4");
    const QString appId = QStringLiteral("1995890");
    const auto checkGame = [this](const QString &folder) -> QString {
        if (!hasFolder(folder, "scenery"))
            return QStringLiteral("no scenery");
        return hasFolder(folder, "aircraft") ? QString() : QStringLiteral("no aircraft");
    };
    const auto checkUserFolder = [this](const QString &folder) -> QString {
        return hasFile(folder, "main.mcf") || hasFile(folder, "tm.log")
            ? QString()
            : QStringLiteral("no main.mcf or tm.log");
    };
    const QString game = m_collector.firstValid(code, steam.candidates(appId), checkGame);
    if (game.isEmpty())
        return;
    QVector<Candidate> userFolders;
    const QStringList prefixes = steam.prefixes(appId);
    if (prefixes.isEmpty())
        m_collector.turnDown(code, game, QStringLiteral("it has no Proton prefix"));
    for (const auto &prefix : prefixes)
        userFolders.append(
            {prefix + QStringLiteral("/drive_c/users/steamuser/Documents/Aerofly FS 4"), {}});
    m_collector.offer(code, userFolders, checkUserFolder);
}

bool SteamGames::hasFile(const QString &folder, const char *name)
{
    return QFileInfo(m_lookup.find(folder, QLatin1String(name))).isFile();
}

bool SteamGames::hasFolder(const QString &folder, const char *name)
{
    return QFileInfo(m_lookup.find(folder, QLatin1String(name))).isDir();
}

} // namespace Quillmont::SimDetect
