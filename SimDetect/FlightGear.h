#ifndef SIMDETECT_FLIGHTGEAR_H
#define SIMDETECT_FLIGHTGEAR_H

#include <QStringList>
#include <QVector>

namespace Quillmont::SimDetect {

struct Candidate;
struct Environment;
class Collector;
class FolderLookup;

/// FlightGear, by its data folder: where the user says, in the environment or in its launcher,
/// where a package puts it, or where its launcher has downloaded it.
class FlightGear
{
public:
    /// What is handed in has to outlive this.
    FlightGear(Collector &collector, FolderLookup &lookup, const Environment &environment);

    /// Offers what it finds to the collector.
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
