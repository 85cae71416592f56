#ifndef SIMDETECT_STEAMGAMES_H
#define SIMDETECT_STEAMGAMES_H

namespace Quillmont::SimDetect {

class Collector;
class FolderLookup;
class Steam;

/// The simulators that only Steam tells of: FSX Steam Edition and Aerofly FS 4.
class SteamGames
{
public:
    /// What is handed in has to outlive this.
    SteamGames(Collector &collector, FolderLookup &lookup, Steam &steam);

    /// Offers what it finds to the collector.
    void find();

private:
    Collector &m_collector;
    FolderLookup &m_lookup;
    Steam &m_steam;
};

} // namespace Quillmont::SimDetect

#endif
