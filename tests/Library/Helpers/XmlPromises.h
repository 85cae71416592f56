#ifndef TESTS_LIBRARY_HELPERS_XMLPROMISES_H
#define TESTS_LIBRARY_HELPERS_XMLPROMISES_H

#include <QByteArray>
#include <QString>

namespace Quillmont::Library::Models {
class XmlInsertionModel;
} // namespace Quillmont::Library::Models

namespace Tests {

/// What holds for the bytes of every file, well formed or not.
class XmlPromises
{
public:
    /// The entry that is added and removed. Its texts want escaping, and are not in ASCII.
    static Quillmont::Library::Models::XmlInsertionModel *model();

    /// Whether @p longer is @p shorter with one piece put into it.
    static bool isOnePieceMore(const QByteArray &shorter, const QByteArray &longer);

    /// Whether @p after is @p before but for the one tag of a self-closed root, which became two.
    static bool isOpenedRoot(const QByteArray &before, const QByteArray &after);

    /// What adding an entry to @p bytes and taking it out shows that breaks a promise; empty if
    /// nothing does. @p isAccepted says whether the entry could be added at all.
    static QString broken(const QByteArray &bytes, bool *isAccepted);
};

} // namespace Tests

#endif
