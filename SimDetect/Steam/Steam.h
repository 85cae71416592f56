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

/// All of Steam on one computer: its roots, and the libraries on every drive.
class Steam
{
public:
    /// Looks for the libraries. @p lookup has to outlive this.
    Steam(const Environment &environment, FolderLookup &lookup);

    /// Where the manifests of @p appId say that the game is, library by library.
    QVector<Candidate> candidates(const QString &appId);

    /// The Proton prefixes of @p appId that there are: that of the library which holds the game
    /// first, since a game that was moved leaves its old one behind, then those of the others.
    QStringList prefixes(const QString &appId);

private:
    Candidate gameIn(const QString &library, const QString &appId);
    void addRoot(const SteamRoot &root);
    void addLibrary(const QString &folder);
    QStringList listedBy(const SteamRoot &root);

    FolderLookup &m_lookup;
    /// The "steamapps" folder of each library, once, however many ways lead to it: a root's own
    /// first, then those that the root lists.
    QStringList m_libraries;
    QSet<QString> m_seen;
    QHash<QString, Candidate> m_games; ///< By the path of the manifest; each is read once.
};

} // namespace Quillmont::SimDetect

#endif
