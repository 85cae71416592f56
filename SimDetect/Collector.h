#ifndef SIMDETECT_COLLECTOR_H
#define SIMDETECT_COLLECTOR_H

#include "SimDetect/Finding.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QVector>

#include <functional>

namespace Quillmont::SimDetect {

struct Candidate;
class FolderLookup;

/// Takes the first valid candidate of each simulator, and writes one debug line for each that it
/// turns down.
class Collector
{
public:
    /// Says why a folder, spelled as on disk, is not that simulator's; empty where it is.
    using Test = std::function<QString(const QString &folder)>;

    /// @p lookup has to outlive the collector.
    explicit Collector(FolderLookup &lookup);

    /// Whether the simulator @p code has its folder.
    bool has(const QString &code) const { return m_paths.contains(code); }

    /// Offers @p candidates in their order. Nothing is looked at once the simulator has its
    /// folder; a folder that was offered for it before, by whatever path, is not looked at again.
    void offer(const QString &code, const QVector<Candidate> &candidates, const Test &test);

    /// The first valid one of @p candidates, which the simulator does not get as its folder; empty
    /// where there is none. A folder counts as offered for it afterwards.
    QString firstValid(const QString &code, const QVector<Candidate> &candidates, const Test &test);

    /// Says what names the candidates that are offered from now on.
    void setOrigin(const QString &origin) { m_origin = origin; }

    /// Notes that @p path is not taken as @p code, and why; the log has a debug line for it.
    void turnDown(const QString &code, const QString &path, const QString &reason);

    /// Simulator code to folder, of all that were found.
    const QMap<QString, QString> &paths() const { return m_paths; }

    /// All that was taken or turned down, in that order.
    const QVector<Finding> &findings() const { return m_findings; }

private:
    QString validFolder(const QString &code, const Candidate &candidate, const Test &test);
    bool isFirstOffer(const QString &code, const QString &identity);

    FolderLookup &m_lookup;
    QMap<QString, QString> m_paths;
    QHash<QString, QSet<QString>> m_offered;
    QString m_origin;
    QVector<Finding> m_findings;
};

} // namespace Quillmont::SimDetect

#endif
