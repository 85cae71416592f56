#include "Controllers/IniReader.h"

#include <QTextCodec>

#include <algorithm>

namespace Quillmont::Utility::Controllers {

namespace {

bool isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

int digitOf(char character)
{
    const char lower = static_cast<char>(character | 0x20);
    if (lower >= 'a' && lower <= 'f')
        return lower - 'a' + 10;
    return character >= '0' && character <= '9' ? character - '0' : -1;
}

QTextCodec *utf8()
{
    static QTextCodec *const codec = QTextCodec::codecForName("UTF-8");
    return codec;
}

bool isMarked(const QByteArray &bytes)
{
    return bytes.startsWith("\xef\xbb\xbf");
}

// Escaped texts are ASCII, and Latin-1 texts are rarely valid UTF-8.
bool hasUtf8(const QByteArray &bytes)
{
    const bool isAscii = std::all_of(
        bytes.cbegin(), bytes.cend(), [](char character) { return (character & 0x80) == 0; });
    QTextCodec::ConverterState state;
    if (!isAscii)
        utf8()->toUnicode(bytes.constData(), bytes.size(), &state);
    return !isAscii && state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace

IniReader::IniReader(const QByteArray &bytes)
    : m_bytes(bytes)
    , m_isUtf8(isMarked(bytes) || hasUtf8(bytes))
    , m_end(isMarked(bytes) ? 3 : 0)
{ }

bool IniReader::next()
{
    while (nextLine()) {
        if (m_bytes.at(m_begin) == '[') {
            const QByteArray line = m_bytes.mid(m_begin, m_end - m_begin);
            const QByteArray name = line.mid(1, std::max(line.indexOf(']'), 0) - 1).trimmed();
            m_section = name.compare("general", Qt::CaseInsensitive) == 0 ? QByteArray() : name;
        } else if (m_equals >= 0) {
            return true;
        }
    }
    return false;
}

bool IniReader::nextLine()
{
    skipBetweenLines();
    m_begin = m_end;
    m_equals = -1;
    for (bool quoted = false; m_end < m_bytes.size(); ++m_end) {
        const char character = m_bytes.at(m_end);
        if (!quoted && (isLineEnd(character) || character == ';'))
            break;
        if (character == '\\')
            m_end = afterEscape(m_end) - 1;
        else if (character == '"')
            quoted = !quoted;
        else if (character == '=' && !quoted && m_equals < 0)
            m_equals = m_end;
    }
    return m_end > m_begin;
}

// Skips white space and comments.
void IniReader::skipBetweenLines()
{
    bool comment = false;
    for (; m_end < m_bytes.size(); ++m_end) {
        const char character = m_bytes.at(m_end);
        comment = !isLineEnd(character) && (comment || character == ';');
        if (!comment && !isLineEnd(character) && character != ' ' && character != '\t')
            break;
    }
}

int IniReader::afterEscape(int backslash) const
{
    const int behind = std::min(backslash + 2, m_bytes.size());
    const bool isPair = behind < m_bytes.size() && isLineEnd(m_bytes.at(behind))
        && isLineEnd(m_bytes.at(behind - 1)) && m_bytes.at(behind) != m_bytes.at(behind - 1);
    return isPair ? behind + 1 : behind;
}

QString IniReader::key() const
{
    QByteArray name = m_bytes.mid(m_begin, m_equals - m_begin).trimmed();
    if (!m_section.isEmpty())
        name.prepend(m_section + '/');
    return QString::fromLatin1(name.replace('\\', '/'));
}

QStringList IniReader::texts() const
{
    QStringList texts{QString()};
    bool quoted = false;
    for (int i = skipBlanks(m_equals + 1); i < m_end;) {
        const char character = m_bytes.at(i);
        if (character == '\\') {
            i = unescape(i, &texts.last());
        } else if (character == '"') {
            quoted = !quoted;
            i = quoted ? i + 1 : skipBlanks(i + 1);
        } else if (character == ',' && !quoted) {
            texts.append(QString());
            i = skipBlanks(i + 1);
        } else {
            const int end = plainEnd(i);
            const char *const piece = m_bytes.constData() + i;
            texts.last() += m_isUtf8 ? utf8()->toUnicode(piece, end - i)
                                     : QString::fromLatin1(piece, end - i);
            i = end;
        }
    }
    return texts;
}

// Appends the character that the escape at @p begin means, and returns the escape's end.
int IniReader::unescape(int begin, QString *text) const
{
    static const QByteArray names = QByteArrayLiteral("abfnrtv\"?'\\");
    static const QByteArray meanings = QByteArrayLiteral("\a\b\f\n\r\t\v\"?'\\");
    const int behind = afterEscape(begin);
    const char name = behind == begin + 2 ? m_bytes.at(begin + 1) : '\n';
    if (const int i = names.indexOf(name); i >= 0) {
        text->append(QLatin1Char(meanings.at(i)));
        return behind;
    }
    const int base = name == 'x' ? 16 : 8;
    const int digits = name == 'x' ? behind : begin + 1;
    const int end = digitsEnd(digits, base);
    ushort code = 0;
    for (int i = digits; i < end; ++i)
        code = static_cast<ushort>(code * base + digitOf(m_bytes.at(i)));
    if (end > digits)
        text->append(QChar(code));
    return std::max(end, behind);
}

int IniReader::digitsEnd(int begin, int base) const
{
    const auto isDigit = [base](char character) {
        const int digit = digitOf(character);
        return digit >= 0 && digit < base;
    };
    while (begin < m_end && isDigit(m_bytes.at(begin)))
        ++begin;
    return begin;
}

int IniReader::skipBlanks(int begin) const
{
    while (begin < m_end && (m_bytes.at(begin) == ' ' || m_bytes.at(begin) == '\t'))
        ++begin;
    return begin;
}

int IniReader::plainEnd(int begin) const
{
    const auto *const end
        = std::find_if(m_bytes.cbegin() + begin + 1, m_bytes.cbegin() + m_end, [](char character) {
              return character == '\\' || character == '"' || character == ',';
          });
    return static_cast<int>(end - m_bytes.cbegin());
}

QString IniReader::sectionOf(const QString &key)
{
    const QStringList levels = key.split(u'/', Qt::SkipEmptyParts);
    return levels.size() < 2 ? QString() : levels.constFirst();
}

bool IniReader::isReadWith(const QString &section) const
{
    if (section.isEmpty() || m_section.isEmpty())
        return section.isEmpty() && m_section.isEmpty();
    // A name with a percent sign has many spellings.
    return m_section.contains('%') || m_section.startsWith(section.toLatin1());
}

} // namespace Quillmont::Utility::Controllers
