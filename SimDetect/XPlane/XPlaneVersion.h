#ifndef SIMDETECT_XPLANE_XPLANEVERSION_H
#define SIMDETECT_XPLANE_XPLANEVERSION_H

#include <QHash>
#include <QString>

namespace Quillmont::SimDetect {

class FolderLookup;

/// Reads from an X-Plane folder which version it is. An installation is updated in place, so
/// that what it was found by can be out of date.
class XPlaneVersion
{
public:
    /// @p lookup has to outlive this.
    explicit XPlaneVersion(FolderLookup &lookup);

    /// The major version that the files in @p folder tell; 0 where they tell none.
    int in(const QString &folder);

private:
    int read(const QString &folder);
    int readInstaller(const QString &folder);

    FolderLookup &m_lookup;
    QHash<QString, int> m_known;
};

} // namespace Quillmont::SimDetect

#endif
