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

/// Takes the first valid candidate for each simulator, and logs each one that it turns down.
class Collector
{
public:
    /// Returns why a folder, spelled as on disk, is not the simulator's; empty if it is.
    using Check = std::function<QString(const QString &folder)>;

    /// @p lookup has to outlive the collector.
    explicit Collector(FolderLookup &lookup);

    /// Whether the folder of the simulator @p code is known.
    bool has(const QString &code) const { return m_paths.contains(code); }

    /// Tries @p candidates in order, unless the simulator's folder is known. A folder that was
    /// already tried for it, under any path, is not tried again.
    void offer(const QString &code, const QVector<Candidate> &candidates, const Check &check);

    /// The first valid one of @p candidates, without taking it as the simulator's folder; empty if
    /// there is none. The folders tried count as tried for it.
    QString
    firstValid(const QString &code, const QVector<Candidate> &candidates, const Check &check);

    /// Sets what the candidates offered from now on come from.
    void setOrigin(const QString &origin) { m_origin = origin; }

    /// Notes that @p path is not taken as @p code, and why; the log has a debug line for it.
    void turnDown(const QString &code, const QString &path, const QString &reason);

    /// Simulator code to folder, for all that were found.
    const QMap<QString, QString> &paths() const { return m_paths; }

    /// All folders taken or turned down, in order.
    const QVector<Finding> &findings() const { return m_findings; }

private:
    QString validFolder(const QString &code, const Candidate &candidate, const Check &check);
    bool isFirstOffer(const QString &code, const QString &identity);

    FolderLookup &m_lookup;
    QMap<QString, QString> m_paths;
    QHash<QString, QSet<QString>> m_offered;
    QString m_origin;
    QVector<Finding> m_findings;
};

} // namespace Quillmont::SimDetect

#endif
