#ifndef SIMDETECT_STEAM_H
#define SIMDETECT_STEAM_H

#include <QSet>
#include <QStringList>
#include <QVector>

namespace Quillmont::SimDetect {

struct Candidate;
struct Environment;
struct SteamRoot;
class FolderLookup;

/// All of Steam on one computer: its roots, and the libraries on every drive.
class Steam
{
public:
    /// Looks for the libraries. @p lookup has to outlive this.
    Steam(const Environment &environment, FolderLookup &lookup);

    /// The "steamapps" folder of each library, once, however many ways lead to it: a root's own
    /// first, then those that the root lists.
    const QStringList &libraries() const { return m_libraries; }

    /// Where the manifests of @p appId say that the game is, library by library.
    QVector<Candidate> candidates(const QString &appId);

private:
    void addRoot(const SteamRoot &root);
    void addLibrary(const QString &folder);
    QStringList listedBy(const SteamRoot &root);

    FolderLookup &m_lookup;
    QStringList m_libraries;
    QSet<QString> m_seen;
};

} // namespace Quillmont::SimDetect

#endif
