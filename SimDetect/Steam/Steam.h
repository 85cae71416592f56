#ifndef SIMDETECT_STEAM_STEAM_H
#define SIMDETECT_STEAM_STEAM_H

#include "SimDetect/Candidate.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

namespace Quillmont::SimDetect {

struct Environment;
struct SteamRoot;
class FolderLookup;

/// Steam on one computer: its installations, and their libraries on all drives.
class Steam
{
public:
    /// Finds the libraries. @p lookup has to outlive this.
    Steam(const Environment &environment, FolderLookup &lookup);

    /// The folders that the manifests of @p appId name, library by library.
    QVector<Candidate> candidates(const QString &appId);

    /// The existing Proton prefixes of @p appId: first that of the library with the game, since a
    /// moved game leaves its old prefix behind, then those of the other libraries.
    QStringList prefixes(const QString &appId);

private:
    Candidate gameIn(const QString &library, const QString &appId);
    void addRoot(const SteamRoot &root);
    void addLibrary(const QString &folder);
    QStringList listedBy(const SteamRoot &root);

    FolderLookup &m_lookup;
    /// The "steamapps" folder of each library, without duplicates: each root's own, then those that
    /// the root lists.
    QStringList m_libraries;
    QSet<QString> m_seen;
    QHash<QString, Candidate> m_games; ///< By the manifest's path; each manifest is read once.
};

} // namespace Quillmont::SimDetect

#endif
