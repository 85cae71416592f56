#ifndef SIMDETECT_MSFSPACKAGES_H
#define SIMDETECT_MSFSPACKAGES_H

#include <QString>
#include <QVector>

namespace Quillmont::SimDetect {

struct Candidate;
class Collector;
class FolderLookup;
class Steam;

/// Microsoft Flight Simulator under Proton, which writes the place of its packages folder into a
/// file of its own inside the prefix.
class MsfsPackages
{
public:
    /// What is handed in has to outlive this.
    MsfsPackages(Collector &collector, FolderLookup &lookup, const Steam &steam);

    /// Offers what it finds to the collector.
    void find();

private:
    QVector<Candidate> candidates(const QString &appId, const QString &name);
    QString test2020(const QString &folder);
    QString test2024(const QString &folder);
    bool hasFolder(const QString &folder, const char *relative);

    Collector &m_collector;
    FolderLookup &m_lookup;
    const Steam &m_steam;
};

} // namespace Quillmont::SimDetect

#endif
