#ifndef LIBRARY_FILES_LETTERCASE_H
#define LIBRARY_FILES_LETTERCASE_H

#include <QStringList>

namespace Quillmont::Library::Files {

/// Finds files as programs for Windows do, to which "DLL.XML" and "dll.xml" are one name.
class LetterCase
{
public:
    /// The existing files that @p relative names inside @p folder where letter case does not
    /// count, as paths that begin with @p folder. The case of @p folder itself counts, and so does
    /// that of a way that leads out of it by "..", as far as it exists. Empty components, "." and
    /// ".." stay as they are. None where more than a hundred folders on the way could be meant.
    static QStringList files(const QString &folder, const QString &relative);
};

} // namespace Quillmont::Library::Files

#endif
