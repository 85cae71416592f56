#ifndef DOCTOR_PLANNEDDISK_H
#define DOCTOR_PLANNEDDISK_H

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>

namespace Quillmont::Utility::Doctor {

/// The disk as it would be after some changes, none of which is made. Doubled slashes in paths are
/// ignored.
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

    /// Whether something exists at @p path, following links.
    bool exists(const QString &path) const;

    /// Creates the folder of the file at @p path, with its parents.
    void makeFolderOf(const QString &path);

    void remove(const QString &path);
    void copy(const QString &source, const QString &target);
    void write(const QString &path, const QByteArray &bytes);

    /// Removes the folder of @p path, with hidden files in it, if it has nothing visible.
    void removeFolderIfEmpty(const QString &path);

    /// What is planned for a file; null if nothing is.
    const File *file(const QString &path) const;

    /// All planned files, by path.
    const QMap<QString, File> &files() const { return m_files; }

    /// The folders that are created or removed, by path.
    QStringList newFolders() const;
    QStringList goneFolders() const;

private:
    static QString key(const QString &path);
    bool isFolder(const QString &path) const;
    bool isGone(const QString &path) const;
    void forget(const QString &path);
    bool isSurelyEmpty(const QString &folder);

    QMap<QString, File> m_files;
    QSet<QString> m_newFolders;
    QSet<QString> m_goneFolders;
    QHash<QString, QSet<QString>> m_seen; ///< What the user still sees in a folder.
};

} // namespace Quillmont::Utility::Doctor

#endif
