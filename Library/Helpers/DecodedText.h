#ifndef LIBRARY_HELPERS_DECODEDTEXT_H
#define LIBRARY_HELPERS_DECODEDTEXT_H

#include "Library/Helpers/TextEncoding.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Quillmont::Library::Helpers {

/// The text that some bytes stand for, and which byte a character came from. A byte-order mark is
/// no part of it; bytes that the encoding does not know are U+FFFD.
class DecodedText
{
public:
    DecodedText(const QByteArray &bytes, const TextEncoding &encoding);

    const QString &text() const { return m_text; }

    /// The first byte of each of @p characters, which are indexes of ASCII characters, ascending.
    /// Empty when one of them does not stand in the bytes as itself.
    QVector<int> bytesOf(const QVector<int> &characters) const;

private:
    struct Place
    {
        int byte;
        int character;
    };

    void decode();
    int pieceEnd(int begin, int size) const;

    QByteArray m_bytes;
    TextEncoding m_encoding;
    QString m_text;
    /// Places to start a search from.
    QVector<Place> m_pieces;
};

} // namespace Quillmont::Library::Helpers

#endif
