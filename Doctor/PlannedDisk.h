#ifndef DOCTOR_PLANNEDDISK_H
#define DOCTOR_PLANNEDDISK_H

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>

namespace Quillmont::Utility::Doctor {

/// The disk as it would be after some changes, none of which is made. Each is planned only if this
/// user has the right to make it; otherwise the result is false. Paths are resolved as the system
/// does it, link by link; a place is a path without links, ".." and doubled slashes.
class PlannedDisk
{
public:
    struct File
    {
        enum Kind {
            Removed,
            Copied, ///< From another file.
            Written
        };

        Kind kind = Removed;
        QString source; ///< The file that is copied.
        QByteArray bytes; ///< The content that is written.
    };

    /// The place where @p path leads; the file there may be missing. Empty if a folder on the
    /// way is missing or is not a folder.
    QString placeOf(const QString &path) const { return place(path, Followed); }

    /// Whether something exists at @p path, following links.
    bool exists(const QString &path) const { return isAt(placeOf(path)); }

    /// Whether that is a folder.
    bool isFolder(const QString &path) const { return isFolderAt(placeOf(path)); }

    /// Whether @p path itself is a dangling link.
    bool isDeadLink(const QString &path) const;

    /// Creates the folder of the file at @p path, with its parents.
    bool makeFolderOf(const QString &path);

    /// Whether files can be created and removed in the folder of @p path.
    bool mayWriteBeside(const QString &path) const { return isBesideWritable(place(path, Kept)); }

    /// Whether a file can be made where there is nothing, not even a dead link.
    bool mayMake(const QString &path) const;

    /// Whether a file can be replaced by another, or made, where @p path leads.
    bool mayReplace(const QString &path) const;

    /// Whether it can be opened to write it, or made. Its folder need not be writable otherwise.
    bool mayRewrite(const QString &path) const;

    /// Removes a file, or a link.
    bool remove(const QString &path);
    bool copy(const QString &source, const QString &target);
    bool replace(const QString &path, const QByteArray &bytes);

    /// Removes the folder of @p path, with hidden files in it, if it has nothing visible; what
    /// cannot be removed stays.
    void removeFolderIfEmpty(const QString &path);

    /// What is planned for a file; null if nothing is.
    const File *file(const QString &path) const;

    /// All planned files, by place.
    const QMap<QString, File> &files() const { return m_files; }

    /// The folders that are created or removed, by place.
    QStringList newFolders() const;
    QStringList goneFolders() const;

private:
    enum LastName {
        Kept, ///< The link itself.
        Followed
    };

    QString place(const QString &path, LastName last) const;
    // An empty place holds nothing, and nothing can be made there.
    QString linkAt(const QString &place) const;
    bool isAt(const QString &place) const;
    bool isFolderAt(const QString &place) const;
    bool isWritableAt(const QString &place) const;
    bool isBesideWritable(const QString &place) const;
    bool makeFolder(const QString &path);
    void forget(const QString &place);
    bool isSurelyEmpty(const QString &folder);
    bool takeAway(const QString &folder);
    bool takeContentsAway(const QString &folder);

    QMap<QString, File> m_files;
    QSet<QString> m_newFolders; ///< Including removed ones that are created again.
    QSet<QString> m_goneFolders;
    QHash<QString, QSet<QString>> m_seen; ///< What is still visible in a folder.
};

} // namespace Quillmont::Utility::Doctor

#endif
