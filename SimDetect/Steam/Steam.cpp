#include "SimDetect/Steam/Steam.h"

#include "SimDetect/DetectionLog.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/Steam/SteamLibraryList.h"
#include "SimDetect/Steam/SteamManifest.h"
#include "SimDetect/Steam/SteamRoot.h"

#include <QFileInfo>

namespace Quillmont::SimDetect {

namespace {

bool isNew(const QString &path, QSet<QString> &seen)
{
    const QString resolved = QFileInfo(path).canonicalFilePath();
    if (resolved.isEmpty() || seen.contains(resolved))
        return false;
    seen.insert(resolved);
    return true;
}

} // namespace

Steam::Steam(const Environment &environment, FolderLookup &lookup)
    : m_lookup(lookup)
{
    const auto roots = SteamRoot::all(environment);
    for (const auto &root : roots)
        if (isNew(root.path, m_seen))
            addRoot(root);
}

QVector<Candidate> Steam::candidates(const QString &appId)
{
    QVector<Candidate> candidates;
    for (const auto &library : qAsConst(m_libraries)) {
        const Candidate game = gameIn(library, appId);
        if (!game.path.isEmpty())
            candidates.append(game);
    }
    return candidates;
}

QStringList Steam::prefixes(const QString &appId)
{
    QStringList withGame;
    QStringList withManifest;
    QStringList others;
    for (const auto &library : qAsConst(m_libraries)) {
        const QString prefix
            = m_lookup.find(library, QStringLiteral("compatdata/%1/pfx").arg(appId));
        // Without drive_c it is left over from a failed start of the game.
        if (!QFileInfo(m_lookup.find(prefix, QStringLiteral("drive_c"))).isDir())
            continue;
        const Candidate game = gameIn(library, appId);
        const bool isListed = !game.path.isEmpty() && game.objection.isEmpty();
        // A manifest can outlive its game.
        const bool isHere = isListed && QFileInfo(m_lookup.find(game.path)).isDir();
        (isHere ? withGame : isListed ? withManifest : others).append(prefix);
    }
    QStringList prefixes;
    QSet<QString> seen;
    const QStringList all = withGame + withManifest + others;
    for (const auto &prefix : all)
        if (isNew(prefix, seen))
            prefixes.append(prefix);
    return prefixes;
}

// The path is empty if the library has no manifest of the game.
Candidate Steam::gameIn(const QString &library, const QString &appId)
{
    const QString path = m_lookup.find(library, QStringLiteral("appmanifest_%1.acf").arg(appId));
    if (path.isEmpty() || m_games.contains(path))
        return m_games.value(path);
    const SteamManifest manifest(path, appId, m_lookup.allowance());
    Candidate game{path, manifest.objection()};
    if (game.objection.isEmpty())
        game.path = library + QStringLiteral("/common/") + manifest.folderName();
    return *m_games.insert(path, game);
}

void Steam::addRoot(const SteamRoot &root)
{
    addLibrary(root.path);
    const auto folders = listedBy(root);
    for (const auto &folder : folders)
        addLibrary(m_lookup.find(root.outside(folder)));
}

void Steam::addLibrary(const QString &folder)
{
    const QString library
        = folder.isEmpty() ? QString() : m_lookup.find(folder, QStringLiteral("steamapps"));
    if (QFileInfo(library).isDir() && isNew(library, m_seen))
        m_libraries.append(library);
}

QStringList Steam::listedBy(const SteamRoot &root)
{
    QStringList folders;
    for (const auto &place : {QStringLiteral("config"), QStringLiteral("steamapps")}) {
        const QString path
            = m_lookup.find(root.path, place + QStringLiteral("/libraryfolders.vdf"));
        if (!isNew(path, m_seen))
            continue;
        const SteamLibraryList list(path, m_lookup.allowance());
        if (!list.problem().isEmpty()) {
            qCDebug(detectionLog,
                    "Steam's libraries not read: %s: %s",
                    qUtf8Printable(path),
                    qUtf8Printable(list.problem()));
        }
        folders += list.folders();
    }
    return folders;
}

} // namespace Quillmont::SimDetect
