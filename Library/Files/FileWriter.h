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
    /// target is written; mode, access list, attributes and, where the system allows it, owner are
    /// kept; any other hard link keeps the old bytes. On failure it returns false, the file is
    /// unchanged and @p problem says why.
    static bool write(const QString &path, const QByteArray &bytes, QString *problem);

    /// The same for @p file, which is open for reading and writing and keeps its owner, group and
    /// rights. If a new file could not have these, if the file has several hard links, or if the
    /// system refuses the replacement, the file is overwritten in place: a process killed meanwhile
    /// leaves a mixture, but a full disk still leaves the old bytes.
    static bool rewrite(QFile *file, const QByteArray &bytes, QString *problem);

    /// Whether clearUnfinished() has something to remove.
    static bool hasUnfinished(const QString &path);

    /// Removes the temporary file that a process killed while writing the file at @p path has left
    /// beside it. Its name is ours alone; no other file is touched.
    static void clearUnfinished(const QString &path);
};

} // namespace Quillmont::Library::Files

#endif
