#ifndef LIBRARY_TEXT_OFFSETMAP_H
#define LIBRARY_TEXT_OFFSETMAP_H

#include "Library/Text/XmlEncoding.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Quillmont::Library::Text {

/// The text of encoded bytes, and the offset in the bytes of each of its characters. A byte-order
/// mark is not part of the text; bytes that are invalid in the encoding are U+FFFD in it.
class OffsetMap
{
public:
    /// The beginning of a character in the bytes and in the text.
    struct Offset
    {
        int byte;
        int character;
    };

    /// For @p bytes after a byte-order mark.
    OffsetMap(const QByteArray &bytes, const XmlEncoding &encoding);

    /// For @p bytes from offset @p begin on.
    OffsetMap(const QByteArray &bytes, const XmlEncoding &encoding, int begin);

    const QString &text() const { return m_text; }

    /// The byte offsets of @p characters, which are ascending indexes of ASCII characters. Empty if
    /// one of them is not encoded as itself.
    QVector<int> byteOffsets(const QVector<int> &characters) const;

    /// Where decoding has to begin for @p character and those after it: near it unless the encoding
    /// has shift states.
    Offset startBefore(int character) const;

private:
    class Search;

    void decode(int begin);
    int pieceEnd(int begin, int size) const;

    QByteArray m_bytes;
    XmlEncoding m_encoding;
    QString m_text;
    /// Starting points of a search.
    QVector<Offset> m_pieces;
};

} // namespace Quillmont::Library::Text

#endif
