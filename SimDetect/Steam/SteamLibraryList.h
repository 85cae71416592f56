#ifndef SIMDETECT_STEAM_STEAMLIBRARYLIST_H
#define SIMDETECT_STEAM_STEAMLIBRARYLIST_H

#include <QString>
#include <QStringList>

class QByteArray;

namespace Quillmont::SimDetect {

/// Reads one libraryfolders.vdf: the folders that Steam keeps games in.
class SteamLibraryList
{
public:
    /// Reads the file at @p path, in today's form or that from before June 2021, within the read
    /// budget @p allowance.
    SteamLibraryList(const QString &path, qint64 &allowance);

    /// Why the file cannot be used; empty if it can.
    const QString &problem() const { return m_problem; }

    /// The folders in file order, as they are written; none if there is a problem.
    const QStringList &folders() const { return m_folders; }

private:
    void parse(const QByteArray &content);

    QStringList m_folders;
    QString m_problem;
};

} // namespace Quillmont::SimDetect

#endif
