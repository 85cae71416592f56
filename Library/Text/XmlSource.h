#ifndef LIBRARY_TEXT_XMLSOURCE_H
#define LIBRARY_TEXT_XMLSOURCE_H

#include "Library/Text/OffsetMap.h"
#include "Library/Text/XmlEncoding.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Quillmont::Library::Text {

/// The bytes of an XML file as text, and changes of that text as changes of the bytes. Bytes that
/// are invalid in the file's encoding are U+FFFD in the text, and stay what they are.
class XmlSource
{
public:
    /// One change of the text: something else takes the place of the characters from begin up to
    /// end.
    struct Splice
    {
        int begin;
        int end;
        QString text;
    };

    explicit XmlSource(const QByteArray &bytes);

    const QByteArray &bytes() const { return m_bytes; }

    /// The text, without a byte-order mark.
    const QString &text() const { return m_offsets.text(); }

    const XmlEncoding &encoding() const { return m_encoding; }

    /// Whether every character of @p text can be written as itself.
    bool canWrite(const QString &text) const { return m_encoding.writable(text) == text; }

    /// The bytes with @p splices made; a character that the encoding lacks is written as a
    /// character reference. Splices are ascending and do not overlap; each needs an ASCII character
    /// at one side of its begin and of its end. A null array if the bytes do not allow it: some
    /// that stay would be read otherwise.
    [[nodiscard]] QByteArray spliced(const QVector<Splice> &splices) const;

private:
    bool reads(const QByteArray &bytes, const QVector<Splice> &splices) const;
    QVector<int> byteOffsets(const QVector<Splice> &splices) const;

    QByteArray m_bytes;
    XmlEncoding m_encoding;
    OffsetMap m_offsets;
};

} // namespace Quillmont::Library::Text

#endif
