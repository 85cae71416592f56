#ifndef SIMDETECT_FLIGHTGEAR_H
#define SIMDETECT_FLIGHTGEAR_H

#include <QStringList>
#include <QVector>

namespace Quillmont::SimDetect {

struct Candidate;
struct Environment;
class Collector;
class FolderLookup;

/// Finds FlightGear's data folder: as set in the environment or in its launcher, installed by a
/// package, or downloaded by the launcher.
class FlightGear
{
public:
    /// All arguments have to outlive this.
    FlightGear(Collector &collector, FolderLookup &lookup, const Environment &environment);

    /// Offers the folders that it finds to the collector.
    void find();

private:
    QString home() const;
    QStringList packaged() const;
    QStringList downloaded(const QStringList &chosen);
    void offer(const QVector<Candidate> &folders);

    Collector &m_collector;
    FolderLookup &m_lookup;
    const Environment &m_environment;
};

} // namespace Quillmont::SimDetect

#endif
