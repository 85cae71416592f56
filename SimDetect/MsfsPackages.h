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
    MsfsPackages(Collector &collector, FolderLookup &lookup, Steam &steam);

    /// Offers what it finds to the collector.
    void find();

private:
    QVector<Candidate> candidates(const QString &appId, const QString &name);
    Candidate candidateOf(const QString &file, const QString &prefix);
    QString onDisk(const QString &prefix, const QString &path);
    QString drive(const QString &path);
    QString test2020(const QString &folder);
    QString test2024(const QString &folder);
    bool hasFolder(const QString &folder, const char *relative);

    Collector &m_collector;
    FolderLookup &m_lookup;
    Steam &m_steam;
};

} // namespace Quillmont::SimDetect

#endif
