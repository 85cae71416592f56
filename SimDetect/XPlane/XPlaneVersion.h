#ifndef SIMDETECT_XPLANE_XPLANEVERSION_H
#define SIMDETECT_XPLANE_XPLANEVERSION_H

#include <QHash>
#include <QString>

namespace Quillmont::SimDetect {

class FolderLookup;

/// Reads the version of an X-Plane folder. Installations are updated in place, so the list that
/// names the folder may be out of date.
class XPlaneVersion
{
public:
    /// @p lookup has to outlive this.
    explicit XPlaneVersion(FolderLookup &lookup);

    /// The major version according to the files in @p folder; 0 if they do not say.
    int in(const QString &folder);

private:
    int read(const QString &folder);
    int readInstaller(const QString &folder);

    FolderLookup &m_lookup;
    QHash<QString, int> m_known;
};

} // namespace Quillmont::SimDetect

#endif
