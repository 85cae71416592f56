#ifndef LIBRARY_HELPERS_ENCODEDTEXT_H
#define LIBRARY_HELPERS_ENCODEDTEXT_H

#include "Library/Helpers/DecodedText.h"
#include "Library/Helpers/TextEncoding.h"
#include "Library/Helpers/TextSplice.h"

#include <QByteArray>
#include <QString>

namespace Quillmont::Library::Helpers {

/// The bytes of an XML file as text, and changes of that text as changes of the bytes. Bytes that
/// the encoding does not know stand in the text as U+FFFD and stay what they are.
class EncodedText
{
public:
    explicit EncodedText(const QByteArray &bytes);

    /// The text, without a byte-order mark.
    const QString &text() const { return m_decoded.text(); }

    /// Whether every character of @p text can be written as itself.
    bool canWrite(const QString &text) const { return m_encoding.writable(text) == text; }

    /// The bytes with @p splices made; a character that the encoding lacks is written as a
    /// character reference. Every place needs an ASCII character at one side of it. A null array
    /// says that the bytes do not allow it: foreign characters would change.
    QByteArray spliced(const TextSplices &splices) const;

private:
    bool reads(const QByteArray &bytes, const TextSplices &splices) const;
    QVector<int> bytesAt(const TextSplices &splices) const;

    QByteArray m_bytes;
    TextEncoding m_encoding;
    DecodedText m_decoded;
};

} // namespace Quillmont::Library::Helpers

#endif
