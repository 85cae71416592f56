#ifndef SIMDETECT_STEAM_STEAMMANIFEST_H
#define SIMDETECT_STEAM_STEAMMANIFEST_H

#include <QHash>
#include <QString>

class QByteArray;

namespace Quillmont::SimDetect {

/// Reads one appmanifest_<id>.acf: whether Steam has a game, and in which folder.
class SteamManifest
{
public:
    /// Reads the file at @p path, which belongs to the game @p appId, within the read budget
    /// @p allowance.
    SteamManifest(const QString &path, const QString &appId, qint64 &allowance);

    /// Why the game is not usable; empty if it is.
    const QString &objection() const { return m_objection; }

    /// The name of the game's folder in "common", as it is written; never a path.
    QString folderName() const { return m_fields.value(QStringLiteral("installdir")); }

private:
    QString parse(const QByteArray &content);
    QString objectionToState(const QString &appId) const;

    QHash<QString, QString> m_fields;
    QString m_objection;
};

} // namespace Quillmont::SimDetect

#endif
