#ifndef LIBRARY_TEXT_XMLSOURCE_H
#define LIBRARY_TEXT_XMLSOURCE_H

#include "Library/Text/OffsetMap.h"
#include "Library/Text/XmlEncoding.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Quillmont::Library::Text {

/// The bytes of an XML file as text, and changes of the text applied to the bytes. Bytes that are
/// invalid in the file's encoding are U+FFFD in the text, and are kept.
class XmlSource
{
public:
    /// One change of the text: the characters from begin up to end are replaced.
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

    /// The bytes with @p splices applied; a character that the encoding lacks becomes a character
    /// reference. Splices are ascending and do not overlap; each needs an ASCII character next to
    /// its begin and next to its end. Null if that is impossible, since unchanged bytes would be
    /// decoded differently.
    [[nodiscard]] QByteArray spliced(const QVector<Splice> &splices) const;

private:
    QByteArray joined(const QVector<Splice> &splices, const QVector<int> &offsets) const;
    bool reads(const QByteArray &bytes, const QVector<Splice> &splices) const;
    QVector<int> byteOffsets(const QVector<Splice> &splices) const;

    QByteArray m_bytes;
    XmlEncoding m_encoding;
    OffsetMap m_offsets;
};

} // namespace Quillmont::Library::Text

#endif
