#ifndef LIBRARY_HELPERS_FILEHELPER_H
#define LIBRARY_HELPERS_FILEHELPER_H

class QString;

namespace Quillmont::Library::Helpers {

/// Writes text files, and tells whether a file is there.
class FileHelper
{
public:
    /// Makes @p text the whole content of the file at @p path, in the encoding named @p encoding
    /// (empty: UTF-8), making missing folders. All or nothing: on failure, an unknown encoding
    /// included, the answer is false and the file is as it was.
    static bool saveText(const QString &path, const QString &text, const QString &encoding);

    /// Whether there surely is no such file; one that cannot be looked at may well be there.
    static bool isMissing(const QString &path);

    /// Whether there is a regular file whose bytes come to an end. Some of the system's have
    /// neither a size nor an end.
    static bool isOrdinary(const QString &path);
};

} // namespace Quillmont::Library::Helpers

#endif
