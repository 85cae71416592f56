#ifndef LIBRARY_HELPERS_FILEHELPER_H
#define LIBRARY_HELPERS_FILEHELPER_H

#include <QByteArray>
#include <QIODevice>

class QFile;
class QString;

namespace Quillmont::Library::Helpers {

/// Opens and reads regular files, writes text files, and makes their folders.
class FileHelper
{
public:
    /// Makes @p text the whole content of the file at @p path, in the encoding named @p encoding
    /// (empty: UTF-8), creating missing folders. All or nothing: on failure, which includes an
    /// unknown encoding, it returns false and the file is unchanged.
    static bool saveText(const QString &path, const QString &text, const QString &encoding);

    /// Creates the folder of the file at @p path, with its parents, if it is missing. ".." is
    /// resolved as the system does it. False if the folder does not exist afterwards.
    static bool makeFolderOf(const QString &path);

    /// True only if the file certainly does not exist; one that cannot be accessed may exist.
    static bool isMissing(const QString &path);

    /// Opens @p file if it is a regular file that ends (some in /proc do not), or if @p mode
    /// creates it. A pipe or a device is not even opened. On failure the file is closed and
    /// @p problem says why.
    static bool open(QFile *file, QIODevice::OpenMode mode, QString *problem);

    /// The bytes of the file at @p path, opened as above. Empty if that fails or there are more
    /// than @p maxSize; then @p problem says why.
    static QByteArray read(const QString &path, qint64 maxSize, QString *problem);
};

} // namespace Quillmont::Library::Helpers

#endif
