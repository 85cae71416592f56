#include "SimDetect/XPlane/XPlane.h"

#include "SimDetect/Candidate.h"
#include "SimDetect/Collector.h"
#include "SimDetect/Environment.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/Steam/Steam.h"
#include "SimDetect/XPlane/XPlaneList.h"

#include <QFileInfo>

#include <algorithm>
#include <initializer_list>

namespace Quillmont::SimDetect {

namespace {

// The newest first: if sources name a folder under two versions and its files do not say which, it
// has been updated.
constexpr std::initializer_list<int> versions = {12, 11, 10};

QString codeOf(int version)
{
    return QStringLiteral("XP%1").arg(version);
}

QString steamIdOf(int version)
{
    switch (version) {
    case 12:
        return QStringLiteral("2014780");
    case 11:
        return QStringLiteral("269950");
    default:
        return QStringLiteral("292180");
    }
}

bool isExecutable(const QString &name)
{
    return name.startsWith(QLatin1String("X-Plane")) && !name.contains(QLatin1String("Installer"))
        && (name.endsWith(QLatin1String(".app")) || name.endsWith(QLatin1String("-x86_64"))
            || name.endsWith(QLatin1String(".exe")));
}

} // namespace

XPlane::XPlane(Collector &collector, FolderLookup &lookup, const Environment &environment)
    : m_collector(collector)
    , m_lookup(lookup)
    , m_environment(environment)
    , m_version(lookup)
{ }

void XPlane::find(Steam &steam)
{
    m_collector.setOrigin(QStringLiteral("X-Plane's own list"));
    offer([this](int version) { return listed(version); });
    m_collector.setOrigin(QStringLiteral("Steam"));
    offer([&steam](int version) { return steam.candidates(steamIdOf(version)); });
    m_collector.setOrigin(QStringLiteral("a well-known folder"));
    offer([this](int version) { return wellKnown(version); });
}

void XPlane::offer(const Source &source)
{
    const bool isComplete = std::all_of(versions.begin(), versions.end(), [this](int version) {
        return m_collector.has(codeOf(version));
    });
    if (isComplete)
        return;
    QMap<int, QVector<Candidate>> named;
    for (const int version : versions) {
        named.insert(version, source(version));
        m_collector.offer(codeOf(version), named[version], [this, version](const QString &folder) {
            return check(folder, version, version);
        });
    }
    for (const int version : versions)
        offerMisnamed(version, named);
}

void XPlane::offerMisnamed(int version, const QMap<int, QVector<Candidate>> &named)
{
    const auto isIt = [this, version](const QString &folder) {
        return check(folder, version, 0);
    };
    for (const int other : versions) {
        if (other == version || m_collector.has(codeOf(version)))
            continue;
        QVector<Candidate> misnamed = named.value(other);
        const auto isOther = [this, isIt](const Candidate &candidate) {
            return !candidate.objection.isEmpty() || !isIt(m_lookup.find(candidate.path)).isEmpty();
        };
        misnamed.erase(std::remove_if(misnamed.begin(), misnamed.end(), isOther), misnamed.end());
        m_collector.offer(codeOf(version), misnamed, isIt);
    }
}

QVector<Candidate> XPlane::listed(int version) const
{
    const QString folder = m_environment.system == Environment::MacOS
        ? QStringLiteral("Library/Preferences")
        : QStringLiteral(".x-plane");
    const QString file = QStringLiteral("%1/x-plane_install_%2.txt").arg(folder).arg(version);
    return XPlaneList::read(m_environment.inHome(file), m_lookup.allowance());
}

QVector<Candidate> XPlane::wellKnown(int version) const
{
    const QString name = QStringLiteral("/X-Plane %1").arg(version);
    QStringList folders{m_environment.inHome(name),
                        m_environment.inHome(QLatin1String("Desktop") + name)};
    if (m_environment.system == Environment::MacOS) {
        folders << m_environment.inRoot(QStringLiteral("/Applications") + name)
                << m_environment.inHome(QStringLiteral("Applications") + name);
    } else {
        folders << m_environment.inRoot(QStringLiteral("/opt") + name);
    }
    QVector<Candidate> candidates;
    for (const auto &folder : qAsConst(folders))
        if (QFileInfo::exists(folder))
            candidates.append({folder, {}});
    return candidates;
}

QString XPlane::check(const QString &folder, int version, int fallback)
{
    if (!QFileInfo(folder + QStringLiteral("/Resources/plugins")).isDir())
        return QStringLiteral("no Resources/plugins");
    const auto names = m_lookup.names(folder);
    if (!std::any_of(names.cbegin(), names.cend(), isExecutable))
        return QStringLiteral("no X-Plane executable");
    const int known = m_version.in(folder);
    const int actual = known != 0 ? known : fallback;
    return actual == version ? objectionToSharing(folder, version)
                             : QStringLiteral("it is X-Plane %1").arg(actual);
}

// A folder holds one X-Plane: with two codes the plugin would be installed twice, and half removed.
QString XPlane::objectionToSharing(const QString &folder, int version) const
{
    const QString resolved = QFileInfo(folder).canonicalFilePath();
    for (const int other : versions) {
        const QString taken = m_collector.paths().value(codeOf(other));
        if (other != version && QFileInfo(taken).canonicalFilePath() == resolved)
            return QStringLiteral("it is taken as %1").arg(codeOf(other));
    }
    return {};
}

} // namespace Quillmont::SimDetect
