#ifndef LIBRARY_TEXT_HASANY_H
#define LIBRARY_TEXT_HASANY_H

#include <QString>

namespace Quillmont::Library::Text {

/// Whether @p isWanted is true of any UTF-16 code unit of @p text. Unlike std::any_of() it looks
/// at all of them, and without a branch in @p isWanted compilers do that for eight at a time.
template <typename Predicate>
bool hasAny(const QString &text, Predicate isWanted)
{
    ushort any = 0;
    for (const QChar unit : text)
        any = static_cast<ushort>(any | static_cast<ushort>(isWanted(unit.unicode())));
    return any != 0;
}

} // namespace Quillmont::Library::Text

#endif
