#ifndef DOCTOR_PLANNEDDISK_H
#define DOCTOR_PLANNEDDISK_H

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>

namespace Quillmont::Utility::Doctor {

/// The disk as it would be after some changes, none of which is made. Each is planned only if the
/// system would let this user make it; otherwise the answer is false. Paths are taken as the system
/// takes them, link by link; a place is a path without links, ".." and doubled slashes.
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

    /// The place where @p path leads; the file there may be missing. Empty where a folder on the
    /// way is missing or none.
    QString placeOf(const QString &path) const { return place(path, Followed); }

    /// Whether there is anything at @p path, links followed.
    bool exists(const QString &path) const { return isAt(placeOf(path)); }

    /// Whether that is a folder.
    bool isFolder(const QString &path) const { return isFolderAt(placeOf(path)); }

    /// Whether @p path itself is a link, and leads to nothing.
    bool isDeadLink(const QString &path) const;

    /// Makes the folder that the file at @p path is to be in, and all above it.
    bool makeFolderOf(const QString &path);

    /// Whether names can be made, and taken away, in the folder of @p path.
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

    /// Takes the folder of @p path away, with all that is hidden in it, if the user sees nothing
    /// there; what cannot be taken away stays.
    void removeFolderIfEmpty(const QString &path);

    /// What is planned for a file; null if nothing is.
    const File *file(const QString &path) const;

    /// All of that, by place.
    const QMap<QString, File> &files() const { return m_files; }

    /// The places of folders that are made, or taken away.
    QStringList newFolders() const;
    QStringList goneFolders() const;

private:
    enum LastName {
        Kept, ///< A link there is meant itself.
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
    QSet<QString> m_newFolders; ///< Of the gone ones those that come back, too.
    QSet<QString> m_goneFolders;
    QHash<QString, QSet<QString>> m_seen; ///< What the user still sees in a folder.
};

} // namespace Quillmont::Utility::Doctor

#endif
