#ifndef LIBRARY_HELPERS_FILEWRITER_H
#define LIBRARY_HELPERS_FILEWRITER_H

class QByteArray;
class QString;

namespace Quillmont::Library::Helpers {

/// Replaces whole files, all or nothing.
class FileWriter
{
public:
    /// Makes @p bytes the content of the file at @p path. Whatever happens, a loss of power
    /// included, the file holds its old bytes or the new ones. A symbolic link stays one and its
    /// target is written; mode and, where the system lets us, owner stay; a further hard link
    /// keeps the old bytes. On failure the answer is false, the file is as it was and @p problem
    /// says why.
    static bool write(const QString &path, const QByteArray &bytes, QString *problem);
};

} // namespace Quillmont::Library::Helpers

#endif
