#include "tests/Library/Helpers/XmlGenerator.h"

#include <QTextCodec>

namespace Tests {

namespace {

QStringList list(const char *text)
{
    return QString::fromUtf8(text).split(u'|');
}

} // namespace

XmlGenerator::XmlGenerator(quint32 seed)
    : m_random(seed)
{ }

QByteArray XmlGenerator::document()
{
    static const QStringList lineEnds = list("\n|\n|\r\n|\r\n|\r|");
    static const QStringList indents = list("  |    |\t|| ");
    static const QStringList codecs
        = list("UTF-8|UTF-8|windows-1252|windows-1251|Shift_JIS|GB18030|"
               "EUC-KR|UTF-16LE|UTF-16BE|ISO-8859-1|US-ASCII|ISO-2022-JP");
    m_lineEnd = oneOf(lineEnds);
    m_indent = oneOf(indents);
    m_hasEntities = chance(20);
    const QString codec = oneOf(codecs);
    const bool isWide = codec.startsWith(QStringLiteral("UTF-16"));
    const QString root = oneOf(list("SimBase.Document|R|s:R|日本|_r-1"));

    QString text;
    if (chance(80) || (codec != QStringLiteral("UTF-8") && !isWide)) {
        const QString label = isWide ? QStringLiteral("utf-16") : codec;
        text += QStringLiteral("<?xml version='1.0' encoding=\"%1\"%2?>")
                    .arg(label, oneOf(list("| | standalone='yes'")));
    }
    text += misc() + doctype(root) + misc();
    const QString tag = root + attributes();
    if (chance(5))
        text += u'<' + tag + QStringLiteral("/>");
    else
        text += u'<' + tag + u'>' + content(1) + QStringLiteral("</") + root + blank() + u'>';
    text += misc() + oneOf({m_lineEnd, QString()});

    QTextCodec *encoder = QTextCodec::codecForName(codec.toLatin1());
    // A character that the encoding lacks becomes "?", which is not a name; one that needs a shift
    // state cannot be repeated at any place.
    if (!encoder->canEncode(QStringLiteral("日本")) || codec == QStringLiteral("ISO-2022-JP"))
        text.replace(QStringLiteral("日本"), QStringLiteral("nihon"));
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QByteArray bytes = encoder->fromUnicode(text.constData(), text.size(), &state);
    if (codec == QStringLiteral("UTF-16LE"))
        return "\xff\xfe" + bytes;
    if (codec == QStringLiteral("UTF-16BE"))
        return "\xfe\xff" + bytes;
    return codec == QStringLiteral("UTF-8") && chance(30) ? "\xef\xbb\xbf" + bytes : bytes;
}

QByteArray XmlGenerator::broken(QByteArray bytes)
{
    static const QVector<QByteArray> pieces{"<",
                                            ">",
                                            "&",
                                            "/",
                                            "]]>",
                                            "<!--",
                                            "-->",
                                            "<![CDATA[",
                                            "\"",
                                            "'",
                                            QByteArray(1, '\0'),
                                            "\xff",
                                            "\xc3",
                                            "</R>",
                                            "<Launch.Addon>",
                                            "</Launch.Addon>",
                                            "<Name>",
                                            "</Name>",
                                            "&e;",
                                            "<?",
                                            "?>",
                                            "\r",
                                            "\n",
                                            " ",
                                            "<!DOCTYPE R []>"};
    for (int changes = 1 + number(3); changes > 0; --changes) {
        const int place = number(bytes.size() + 1);
        const int length = number(1 + number(40));
        switch (number(5)) {
        case 0:
            if (place < bytes.size())
                bytes[place] = static_cast<char>(number(256));
            break;
        case 1:
            bytes.remove(place, length);
            break;
        case 2:
            bytes.insert(place, bytes.mid(number(bytes.size() + 1), length));
            break;
        case 3:
            bytes.truncate(chance(10) ? place : bytes.size());
            break;
        default:
            bytes.insert(place, pieces.at(number(pieces.size())));
            break;
        }
    }
    return bytes;
}

QString XmlGenerator::words()
{
    static const QStringList all
        = list("Tide|Gauge &amp; Sons|a > b|\"x\" 'y'|ü|潮位|Прилив|조수|"
               "&#252;|&#x1F30A;|]]|;|C:\\a\\b.exe|%1|\xc2\xa0|]]&gt;|-- ");
    QString result;
    for (int i = number(4); i > 0; --i)
        result += oneOf(all) + blank();
    return m_hasEntities && chance(20) ? result + oneOf(list("&e;|&elements;")) : result;
}

QString XmlGenerator::blank()
{
    return chance(70) ? QString() : oneOf({QStringLiteral(" "), QStringLiteral("\t"), m_lineEnd});
}

QString XmlGenerator::line(int depth)
{
    const int style = number(10);
    if (style == 0)
        return {};
    if (style == 1)
        return m_lineEnd + m_lineEnd + blank();
    return m_lineEnd + m_indent.repeated(depth);
}

QString XmlGenerator::attributes()
{
    QString result;
    for (int i = number(3); i > 0; --i) {
        result += m_lineEnd.isEmpty() || chance(80) ? QStringLiteral(" ") : m_lineEnd;
        result += QStringLiteral("a%1%2=%2").arg(QString::number(i), blank())
            + oneOf(list("'1'|\"/>\"|'&lt;Name>'|\"&#10;ü\"|''|'-->'"));
    }
    return result + blank();
}

QString XmlGenerator::misc()
{
    static const QStringList all = list("<!-- <Launch.Addon> -->|<!---->|<?style </R> ?>|<?p?>|"
                                        "<!-- <Name>Round &amp; Trip ü</Name> -->");
    return chance(70) ? m_lineEnd : m_lineEnd + oneOf(all) + m_lineEnd;
}

// Elements nest, up to a depth that content() bounds.
// NOLINTNEXTLINE(misc-no-recursion)
QString XmlGenerator::content(int depth)
{
    static const QStringList sections = list(
        "<![CDATA[<Launch.Addon><Name>Round & Trip ü</Name></Launch.Addon>]]>|<![CDATA[]]]]>|"
        "<![CDATA[</R>]]>");
    QString result;
    for (int i = number(depth < 3 ? 6 : 3); i > 0; --i) {
        const int kind = number(12);
        if (kind < 8 && depth < 6)
            result += line(depth) + element(depth);
        else if (kind == 8)
            result += misc();
        else if (kind == 9)
            result += line(depth) + oneOf(sections);
        else
            result += words();
    }
    return result + (chance(80) ? line(depth - 1) : QString());
}

// Elements nest, up to a depth that content() bounds.
// NOLINTNEXTLINE(misc-no-recursion)
QString XmlGenerator::element(int depth)
{
    static const QStringList outer
        = list("Launch.Addon|Launch.Addon|Launch.Addon|Descr|x:Tool|日本");
    static const QStringList inner = list("Name|Path|Disabled|Name|Launch.Addon|b");
    const QString name = oneOf(depth == 1 ? outer : inner);
    const QString tag = name + attributes();
    if (chance(10))
        return u'<' + tag + QStringLiteral("/>");
    const QString body = depth > 1 && chance(70) ? words() : content(depth + 1);
    return u'<' + tag + u'>' + body + QStringLiteral("</") + name + blank() + u'>';
}

QString XmlGenerator::doctype(const QString &root)
{
    if (!m_hasEntities)
        return {};
    return QStringLiteral("<!DOCTYPE %1 [%2<!ENTITY e 'text &#38;amp; more'>"
                          "<!ENTITY elements '<Launch.Addon><Name>x</Name></Launch.Addon>'>%2]>")
        .arg(root, m_lineEnd);
}

} // namespace Tests
