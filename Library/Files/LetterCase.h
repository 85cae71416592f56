#ifndef LIBRARY_FILES_LETTERCASE_H
#define LIBRARY_FILES_LETTERCASE_H

#include <QStringList>

namespace Quillmont::Library::Files {

/// Finds files as Windows programs do, for which "DLL.XML" and "dll.xml" are the same name.
class LetterCase
{
public:
    /// The existing files that @p relative names inside @p folder in any letter case, as paths that
    /// begin with @p folder. The case of @p folder itself counts, as does that of a path leading
    /// out of it by "..", as far as it exists. Empty components, "." and ".." are kept. None if
    /// more than a hundred folders match on the way.
    static QStringList files(const QString &folder, const QString &relative);
};

} // namespace Quillmont::Library::Files

#endif
