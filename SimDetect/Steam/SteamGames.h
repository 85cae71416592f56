#ifndef SIMDETECT_STEAM_STEAMGAMES_H
#define SIMDETECT_STEAM_STEAMGAMES_H

class QString;

namespace Quillmont::SimDetect {

struct Environment;
class Collector;
class FolderLookup;
class Steam;

/// Finds the simulators that only Steam knows: FSX Steam Edition and Aerofly FS 4.
class SteamGames
{
public:
    /// All arguments have to outlive this.
    SteamGames(Collector &collector, FolderLookup &lookup, const Environment &environment);

    /// Offers what @p steam finds to the collector.
    void find(Steam &steam);

private:
    void findAerofly(Steam &steam);
    bool hasFile(const QString &folder, const char *name);
    bool hasFolder(const QString &folder, const char *name);

    Collector &m_collector;
    FolderLookup &m_lookup;
    const Environment &m_environment;
};

} // namespace Quillmont::SimDetect

#endif
