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

/// X-Plane 10, 11 and 12: by the lists of installations that X-Plane itself writes, by Steam, and
/// in well-known folders.
class XPlane
{
public:
    /// What is handed in has to outlive this.
    XPlane(Collector &collector, FolderLookup &lookup, const Environment &environment);

    /// Offers what it and @p steam find to the collector.
    void find(Steam &steam);

private:
    /// The candidates that one kind of source has for a version.
    using Source = std::function<QVector<Candidate>(int version)>;

    QVector<Candidate> listed(int version) const;
    QVector<Candidate> wellKnown(int version) const;
    void offer(const Source &source);
    void offerMisnamed(int version, const QMap<int, QVector<Candidate>> &named);
    QString test(const QString &folder, int version, int otherwise);
    QString objectionToSharing(const QString &folder, int version) const;

    Collector &m_collector;
    FolderLookup &m_lookup;
    const Environment &m_environment;
    XPlaneVersion m_version;
};

} // namespace Quillmont::SimDetect

#endif
