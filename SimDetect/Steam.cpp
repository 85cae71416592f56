#include "SimDetect/Steam.h"

#include "SimDetect/Candidate.h"
#include "SimDetect/DetectionLog.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/SteamLibraryList.h"
#include "SimDetect/SteamManifest.h"
#include "SimDetect/SteamRoot.h"

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
        const QString path
            = m_lookup.find(library, QStringLiteral("appmanifest_%1.acf").arg(appId));
        if (path.isEmpty())
            continue;
        const SteamManifest manifest(path, appId, m_lookup.allowance());
        if (manifest.objection().isEmpty())
            candidates.append({library + QLatin1String("/common/") + manifest.folderName(), {}});
        else
            candidates.append({path, manifest.objection()});
    }
    return candidates;
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
            qCDebug(detectionLog).noquote().nospace()
                << "Steam's libraries not read: " << path << ": " << list.problem();
        }
        folders += list.folders();
    }
    return folders;
}

} // namespace Quillmont::SimDetect
