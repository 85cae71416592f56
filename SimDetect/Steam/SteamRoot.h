#ifndef SIMDETECT_STEAM_STEAMROOT_H
#define SIMDETECT_STEAM_STEAMROOT_H

#include <QString>
#include <QStringList>
#include <QVector>

namespace Quillmont::SimDetect {

struct Environment;

/// A folder that Steam itself may be installed in.
struct SteamRoot
{
    QString path; ///< Absolute, or empty where there is no such place; nothing has to be there.

    /// Folders that stand for path in what this Steam writes, since it runs in a sandbox where
    /// path is seen under their name; none for a Steam that sees the disk as it is.
    QStringList inSandbox;

    /// Where @p folder, as this Steam writes it, is on the disk.
    QString outside(const QString &folder) const;

    /// Every place where @p environment can have a Steam, in the order in which they count.
    static QVector<SteamRoot> all(const Environment &environment);
};

} // namespace Quillmont::SimDetect

#endif
