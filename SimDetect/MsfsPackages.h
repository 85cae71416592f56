#ifndef SIMDETECT_MSFSPACKAGES_H
#define SIMDETECT_MSFSPACKAGES_H

#include <QString>
#include <QVector>

namespace Quillmont::SimDetect {

struct Candidate;
class Collector;
class FolderLookup;
class Steam;

/// Finds Microsoft Flight Simulator under Proton by the configuration file inside the prefix that
/// names its packages folder.
class MsfsPackages
{
public:
    /// All arguments have to outlive this.
    MsfsPackages(Collector &collector, FolderLookup &lookup, Steam &steam);

    /// Offers the folders that it finds to the collector.
    void find();

private:
    QVector<Candidate> candidates(const QString &appId, const QString &name);
    Candidate candidateOf(const QString &file, const QString &prefix);
    QString onDisk(const QString &prefix, const QString &path);
    QString drive(const QString &path);
    QString check2020(const QString &folder);
    QString check2024(const QString &folder);
    bool hasFolder(const QString &folder, const char *relative);

    Collector &m_collector;
    FolderLookup &m_lookup;
    Steam &m_steam;
};

} // namespace Quillmont::SimDetect

#endif
