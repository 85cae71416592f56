#ifndef LIBRARY_TEXT_XMLENCODING_H
#define LIBRARY_TEXT_XMLENCODING_H

#include <QByteArray>
#include <QString>

#include <memory>

class QTextCodec;
class QTextDecoder;

namespace Quillmont::Library::Text {

/// The character encoding of an XML file: by its byte-order mark, else by its XML declaration,
/// else UTF-8.
class XmlEncoding
{
public:
    /// Looks at the beginning of @p bytes. An unknown declared name counts as none;
    /// the XML reader refuses such a file later on.
    explicit XmlEncoding(const QByteArray &bytes);

    /// A decoder for the bytes after the byte-order mark.
    std::unique_ptr<QTextDecoder> makeDecoder() const;

    /// Its IANA name.
    QString name() const;

    /// The size in bytes of the byte-order mark that the file begins with, or 0.
    int markSize() const { return m_markSize; }

    /// The size in bytes of an ASCII character.
    int unit() const { return m_unit; }

    /// Whether a decoder can begin behind any ASCII character, since nothing in front of that
    /// counts. False of encodings with shift states, and of unusual ones.
    bool isStateless() const;

    /// @p text in this encoding, without a byte-order mark.
    QByteArray encoded(const QString &text) const;

    /// @p text with a character reference for every character that the encoding lacks.
    QString writable(const QString &text) const;

private:
    bool hasCharacter(const QString &character) const;

    QTextCodec *m_codec;
    int m_markSize = 0;
    int m_unit = 1;
    /// Mark and declaration contradict each other: only ASCII means the same in both.
    bool m_asciiOnly = false;
    /// The declared codec, if it is ASCII except for characters that switch to another state, which
    /// are never written. Null otherwise.
    QTextCodec *m_shifting = nullptr;
};

} // namespace Quillmont::Library::Text

#endif
