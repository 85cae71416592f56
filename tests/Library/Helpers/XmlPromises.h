#ifndef TESTS_LIBRARY_HELPERS_XMLPROMISES_H
#define TESTS_LIBRARY_HELPERS_XMLPROMISES_H

#include <QByteArray>
#include <QString>

namespace Quillmont::Library::Models {
class XmlInsertionModel;
} // namespace Quillmont::Library::Models

namespace Tests {

/// The promises about the bytes of every file, well formed or not.
class XmlPromises
{
public:
    /// The entry that is added and removed. Its texts need escaping, and are not ASCII.
    static Quillmont::Library::Models::XmlInsertionModel *model();

    /// Whether @p longer is @p shorter with one piece inserted.
    static bool isOnePieceMore(const QByteArray &shorter, const QByteArray &longer);

    /// Whether @p after is @p before with its self-closed root split into two tags.
    static bool isOpenedRoot(const QByteArray &before, const QByteArray &after);

    /// The promise that is broken when an entry is added to @p bytes and removed again; empty if
    /// none is. @p isAccepted says whether the entry could be added.
    static QString broken(const QByteArray &bytes, bool *isAccepted);
};

} // namespace Tests

#endif
