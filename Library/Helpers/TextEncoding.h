#ifndef LIBRARY_HELPERS_TEXTENCODING_H
#define LIBRARY_HELPERS_TEXTENCODING_H

#include <QByteArray>
#include <QString>

class QTextCodec;
class QTextDecoder;

namespace Quillmont::Library::Helpers {

/// How the characters of an XML file stand in its bytes: what the byte-order mark says, else what
/// the XML declaration says, else UTF-8.
class TextEncoding
{
public:
    /// Looks at the beginning of @p bytes. An unknown declared name counts as none;
    /// the XML reader refuses such a file later on.
    explicit TextEncoding(const QByteArray &bytes);

    /// A decoder for what follows the byte-order mark; the caller's own.
    QTextDecoder *makeDecoder() const;

    /// The size of the byte-order mark that the file begins with.
    int markSize() const { return m_markSize; }

    /// The size of an ASCII character.
    int unit() const { return m_unit; }

    /// @p text in this encoding, without a byte-order mark.
    QByteArray encoded(const QString &text) const;

    /// @p text with a character reference for every character that the encoding lacks.
    QString writable(const QString &text) const;

private:
    bool hasCharacter(const QString &character) const;

    QTextCodec *m_codec;
    int m_markSize = 0;
    int m_unit = 1;
    /// Mark and declaration contradict each other; ASCII is what every reading agrees on.
    bool m_asciiOnly = false;
    /// What the declaration says, where it is ASCII but for some characters that shift to another
    /// state: these are not written. Null otherwise.
    QTextCodec *m_shifting = nullptr;
};

} // namespace Quillmont::Library::Helpers

#endif
