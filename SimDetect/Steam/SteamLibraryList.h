#ifndef SIMDETECT_STEAM_STEAMLIBRARYLIST_H
#define SIMDETECT_STEAM_STEAMLIBRARYLIST_H

#include <QString>
#include <QStringList>

class QByteArray;

namespace Quillmont::SimDetect {

/// What one libraryfolders.vdf says: the folders that Steam keeps games in.
class SteamLibraryList
{
public:
    /// Reads the file at @p path, in the form of today or that of before June 2021, within the
    /// @p allowance.
    SteamLibraryList(const QString &path, qint64 &allowance);

    /// Why the file is of no use; empty where it is.
    const QString &problem() const { return m_problem; }

    /// The folders in the file's order, as they are written; none where there is a problem.
    const QStringList &folders() const { return m_folders; }

private:
    void parse(const QByteArray &content);

    QStringList m_folders;
    QString m_problem;
};

} // namespace Quillmont::SimDetect

#endif
