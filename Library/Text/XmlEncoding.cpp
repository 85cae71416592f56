#include "Library/Text/XmlEncoding.h"

#include <QHash>
#include <QTextCodec>
#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>

namespace Quillmont::Library::Text {

namespace {

QByteArray encode(const QTextCodec *codec, const QString &text)
{
    // The TSCII codec also looks at what follows the last character.
    const QString padded = text + QString(2, QChar());
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return codec->fromUnicode(padded.constData(), text.size(), &state);
}

QString decode(const QTextCodec *codec, const QByteArray &bytes)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return codec->toUnicode(bytes.constData(), bytes.size(), &state);
}

// Qt compares a name with all aliases of all its codecs, which takes as long as reading a small
// file, and does not remember the answer.
QTextCodec *codecNamed(const QByteArray &name)
{
    static QHash<QByteArray, QTextCodec *> known;
    QTextCodec *codec = known.value(name);
    if (!codec && (codec = QTextCodec::codecForName(name)))
        known.insert(name, codec);
    return codec;
}

// By the byte-order mark, or by the zero byte in the first character of a file that lacks one; null
// if there is neither.
QTextCodec *markedCodec(const QByteArray &bytes)
{
    if (bytes.startsWith(QByteArray("<\0", 2)))
        return QTextCodec::codecForName("UTF-16LE");
    if (bytes.startsWith(QByteArray("\0<", 2)))
        return QTextCodec::codecForName("UTF-16BE");
    return QTextCodec::codecForUtfText(bytes, nullptr);
}

QTextCodec *declaredCodec(const QString &head)
{
    QXmlStreamReader reader(head);
    reader.readNext();
    return codecNamed(reader.documentEncoding().toLatin1());
}

} // namespace

XmlEncoding::XmlEncoding(const QByteArray &bytes)
    : m_codec(markedCodec(bytes))
{
    const bool marked = m_codec != nullptr;
    if (!marked)
        m_codec = codecNamed("UTF-8");
    const QByteArray mark = encoded(QString(QChar(QChar::ByteOrderMark)));
    if (bytes.startsWith(mark))
        m_markSize = mark.size();

    constexpr int maxDeclaration = 4096;
    QTextCodec *declared = declaredCodec(decode(m_codec, bytes.mid(m_markSize, maxDeclaration)));
    const QString bracket = QStringLiteral("<");
    // The declaration was readable as single bytes, so the file is not UTF-16, whatever it claims.
    if (declared && !marked && encode(declared, bracket) == "<")
        m_codec = declared;
    else if (declared)
        m_asciiOnly = !m_codec->name().startsWith(declared->name());
    if (m_asciiOnly && !marked && decode(declared, "<") == bracket)
        m_shifting = declared;
    m_unit = encoded(bracket).size();
}

std::unique_ptr<QTextDecoder> XmlEncoding::makeDecoder() const
{
    return std::unique_ptr<QTextDecoder>(m_codec->makeDecoder(QTextCodec::IgnoreHeader));
}

QString XmlEncoding::name() const
{
    return QString::fromLatin1(m_codec->name());
}

bool XmlEncoding::isStateless() const
{
    static const std::array<const char *, 6> known{
        "UTF-8", "UTF-16", "UTF-32", "ISO-8859-", "windows-125", "Shift_JIS"};
    const QByteArray name = m_codec->name();
    return std::any_of(known.cbegin(), known.cend(), [&name](const char *begin) {
        return name.startsWith(begin);
    });
}

QByteArray XmlEncoding::encoded(const QString &text) const
{
    return encode(m_codec, text);
}

QString XmlEncoding::writable(const QString &text) const
{
    QString result;
    QHash<QString, bool> known;
    for (int i = 0, size = 0; i < text.size(); i += size) {
        size = text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        const QString character = text.mid(i, size);
        if (!known.contains(character))
            known.insert(character, hasCharacter(character));
        if (known.value(character))
            result += character;
        else
            result += QStringLiteral("&#%1;").arg(character.toUcs4().constFirst());
    }
    return result;
}

bool XmlEncoding::hasCharacter(const QString &character) const
{
    if (m_asciiOnly && character.at(0) >= QChar(0x80))
        return false;
    if (m_shifting && decode(m_shifting, character.toLatin1()) != character)
        return false;
    // With shift states, two equal characters in a row take fewer bytes than twice one.
    const QByteArray bytes = encoded(character);
    return encoded(character + character) == bytes + bytes && decode(m_codec, bytes) == character;
}

} // namespace Quillmont::Library::Text
