#ifndef LIBRARY_FILES_FILEWRITER_H
#define LIBRARY_FILES_FILEWRITER_H

class QByteArray;
class QFile;
class QString;

namespace Quillmont::Library::Files {

/// Replaces the content of files, all or nothing.
class FileWriter
{
public:
    /// Makes @p bytes the content of the file at @p path. Whatever happens, a loss of power
    /// included, the file holds its old bytes or the new ones. A symbolic link stays one and its
    /// target is written; mode, access list, attributes and, where the system lets us, owner stay;
    /// a further hard link keeps the old bytes. On failure the answer is false, the file is as it
    /// was and @p problem says why.
    static bool write(const QString &path, const QByteArray &bytes, QString *problem);

    /// The same for @p file, which is open for reading and writing and keeps its owner, group and
    /// rights. Where another file could not have them, where this one has further hard links, or
    /// the system refuses that another takes its place, the new bytes go over the old ones; then a
    /// process that is killed there leaves a part of either, but a disk without room leaves the old
    /// ones.
    static bool rewrite(QFile *file, const QByteArray &bytes, QString *problem);

    /// Whether there is something for clearUnfinished() to take away.
    static bool hasUnfinished(const QString &path);

    /// Takes away what a process that was killed while it wrote the file at @p path has left
    /// beside it. The name of that is our own; no other file is touched.
    static void clearUnfinished(const QString &path);
};

} // namespace Quillmont::Library::Files

#endif
