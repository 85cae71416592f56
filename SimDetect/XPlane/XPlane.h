#ifndef SIMDETECT_XPLANE_XPLANE_H
#define SIMDETECT_XPLANE_XPLANE_H

#include "SimDetect/XPlane/XPlaneVersion.h"

#include <QMap>
#include <QString>
#include <QVector>

#include <functional>

namespace Quillmont::SimDetect {

struct Candidate;
struct Environment;
class Collector;
class FolderLookup;
class Steam;

/// Finds X-Plane 10, 11 and 12 by the lists of installations that X-Plane writes, by Steam, and in
/// well-known folders.
class XPlane
{
public:
    /// All arguments have to outlive this.
    XPlane(Collector &collector, FolderLookup &lookup, const Environment &environment);

    /// Offers the folders that it and @p steam find to the collector.
    void find(Steam &steam);

private:
    /// One source's candidates for a version.
    using Source = std::function<QVector<Candidate>(int version)>;

    QVector<Candidate> listed(int version) const;
    QVector<Candidate> wellKnown(int version) const;
    void offer(const Source &source);
    void offerMisnamed(int version, const QMap<int, QVector<Candidate>> &named);
    QString check(const QString &folder, int version, int fallback);
    QString objectionToSharing(const QString &folder, int version) const;

    Collector &m_collector;
    FolderLookup &m_lookup;
    const Environment &m_environment;
    XPlaneVersion m_version;
};

} // namespace Quillmont::SimDetect

#endif
