#ifndef DOCTOR_PLANNEDDISK_H
#define DOCTOR_PLANNEDDISK_H

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>

namespace Quillmont::Utility::Doctor {

/// The disk as it would be after some changes, none of which is made. Paths that differ in doubled
/// slashes only are one.
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
        QString source; ///< What it is a copy of.
        QByteArray bytes; ///< What is written.
    };

    /// Whether there is anything at @p path, links followed.
    bool exists(const QString &path) const;

    /// Makes the folder that the file at @p path is to be in, and all above it.
    void makeFolderOf(const QString &path);

    void remove(const QString &path);
    void copy(const QString &source, const QString &target);
    void write(const QString &path, const QByteArray &bytes);

    /// Takes the folder of @p path away, with all that is hidden in it, if the user sees nothing
    /// there.
    void removeFolderIfEmpty(const QString &path);

    /// What is to happen to a file; null where nothing is.
    const File *file(const QString &path) const;

    /// All of that, by path.
    const QMap<QString, File> &files() const { return m_files; }

    /// The folders that are made, or taken away, by path.
    QStringList newFolders() const;
    QStringList goneFolders() const;

private:
    static QString key(const QString &path);
    bool isFolder(const QString &path) const;
    QSet<QString> gone() const;

    QMap<QString, File> m_files;
    QSet<QString> m_newFolders;
    QSet<QString> m_goneFolders;
};

} // namespace Quillmont::Utility::Doctor

#endif
