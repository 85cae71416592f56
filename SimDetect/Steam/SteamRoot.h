#ifndef SIMDETECT_STEAM_STEAMROOT_H
#define SIMDETECT_STEAM_STEAMROOT_H

#include <QString>
#include <QStringList>
#include <QVector>

namespace Quillmont::SimDetect {

struct Environment;

/// A folder in which Steam itself may be installed.
struct SteamRoot
{
    QString path; ///< Absolute, or empty if unknown; need not exist.

    /// The paths under which a sandboxed Steam sees this folder; none without a sandbox.
    QStringList inSandbox;

    /// The path on disk of @p folder, which this Steam wrote.
    QString outside(const QString &folder) const;

    /// Every folder where @p environment may have Steam, in order of precedence.
    static QVector<SteamRoot> all(const Environment &environment);
};

} // namespace Quillmont::SimDetect

#endif
