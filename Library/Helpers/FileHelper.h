#ifndef LIBRARY_HELPERS_FILEHELPER_H
#define LIBRARY_HELPERS_FILEHELPER_H

#include <QByteArray>
#include <QIODevice>

class QFile;
class QString;

namespace Quillmont::Library::Helpers {

/// Opens files, writes text files, makes their folders, and tells whether a file is there.
class FileHelper
{
public:
    /// Makes @p text the whole content of the file at @p path, in the encoding named @p encoding
    /// (empty: UTF-8), making missing folders. All or nothing: on failure, an unknown encoding
    /// included, the answer is false and the file is as it was.
    static bool saveText(const QString &path, const QString &text, const QString &encoding);

    /// Makes the folder that the file at @p path is to lie in, and all above it, where it is
    /// missing. ".." leads where the system says. False where the folder is not there afterwards.
    static bool makeFolderOf(const QString &path);

    /// Whether there surely is no such file; one that cannot be looked at may well be there.
    static bool isMissing(const QString &path);

    /// Opens @p file if it is a regular one whose bytes come to an end, or one that @p mode makes:
    /// some of the system's have neither a size nor an end. A pipe or a device is not even opened.
    /// On failure the file is closed and @p problem says why.
    static bool open(QFile *file, QIODevice::OpenMode mode, QString *problem);

    /// The bytes of the file at @p path, opened as above. Empty where that fails or it has more
    /// than @p maxSize; then @p problem says why.
    static QByteArray read(const QString &path, qint64 maxSize, QString *problem);
};

} // namespace Quillmont::Library::Helpers

#endif
