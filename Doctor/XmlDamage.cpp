#include "Doctor/XmlDamage.h"

#include "Doctor/Reasons.h"
#include "Library/Xml/XmlCharacters.h"

#include <QRegularExpression>

#include <algorithm>

using Quillmont::Library::Xml::XmlCharacters;

namespace Quillmont::Utility::Doctor {

XmlDamage::XmlDamage(const QString &text, const QString &problem)
    : m_text(text)
{
    if (findKind() || findStructure() || findText())
        return;
    takeReaderPlace(problem);
    m_sentence = tr("It is not well-formed XML: %1").arg(Reasons::translated(problem));
}

// Finds damage that can be recognised without looking at the tags.
bool XmlDamage::findKind()
{
    static const QRegularExpression page(QStringLiteral(R"(^\s*<(!doctype\s+)?html\b)"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QString trimmed = m_text.trimmed();
    if (m_text.isEmpty())
        return say(0, tr("The file is empty."));
    if (trimmed.isEmpty())
        return say(0, tr("The file holds nothing but white space."));
    const int zeros = m_text.count(QChar(0));
    if (zeros == m_text.size())
        return say(0,
                   tr("The file holds nothing but zero bytes: the computer stopped while it was "
                      "written, or its disk is failing."));
    if (page.match(m_text).hasMatch())
        return say(0, tr("The file is a web page, not XML."));
    const int first = m_text.indexOf(trimmed.at(0));
    if (trimmed.at(0) != u'<')
        return say(first, tr("The file does not begin with a tag, so it is not XML."));
    if (zeros > 0)
        return say(m_text.indexOf(QChar(0)),
                   tr("Zero bytes begin in line %1: the file was not written to its end.")
                       .arg(lineOf(m_text.indexOf(QChar(0)))));
    return false;
}

bool XmlDamage::findStructure()
{
    TagReader reader(m_text);
    for (Tag tag = reader.next(); tag.kind != Tag::Nothing; tag = reader.next()) {
        if (take(tag))
            return true;
    }
    if (m_secondRoot >= 0)
        return say(
            m_secondRoot,
            tr("There are two root elements: somebody appended a second document in line %1.")
                .arg(lineOf(m_secondRoot)));
    if (!m_open.isEmpty())
        return say(m_open.constLast().begin,
                   tr("<%1> in line %2 is never closed: the file ends in line %3.")
                       .arg(m_open.constLast().name,
                            lineText(m_open.constLast().begin),
                            lineText(m_text.size())));
    return m_root.isEmpty() && say(0, tr("The file has no element."));
}

bool XmlDamage::take(const Tag &tag)
{
    switch (tag.kind) {
    case Tag::Unfinished:
        if (tag.end >= m_text.size())
            return say(tag.begin,
                       tr("The file ends in the middle of a tag, which begins in line %1.")
                           .arg(lineOf(tag.begin)));
        return say(tag.begin, tr("A tag in line %1 has no \">\".").arg(lineOf(tag.begin)));
    case Tag::Malformed:
        return takeMalformed(tag);
    case Tag::Declaration:
        return tag.begin > 0 && takeLateDeclaration(tag);
    case Tag::Start:
    case Tag::SelfClosed:
        return takeStart(tag);
    case Tag::End:
        return takeEnd(tag);
    default:
        return false;
    }
}

bool XmlDamage::takeLateDeclaration(const Tag &tag)
{
    const int line = lineOf(tag.begin);
    return say(
        tag.begin,
        m_root.isEmpty()
            ? tr("<?xml ...?> in line %1 has to be the very beginning of the file.").arg(line)
            : tr("A second document begins in line %1: somebody appended it.").arg(line));
}

// A second root may also mean that the first one's start tag is lost; later tags decide.
bool XmlDamage::takeStart(const Tag &tag)
{
    if (m_open.isEmpty() && m_rootEnd >= 0 && m_secondRoot < 0)
        m_secondRoot = tag.begin;
    if (m_root.isEmpty())
        m_root = tag.name;
    if (tag.kind == Tag::Start)
        m_open.append({tag.name, tag.begin});
    else if (m_open.isEmpty())
        m_rootEnd = tag.end;
    return false;
}

bool XmlDamage::takeEnd(const Tag &tag)
{
    if (m_open.isEmpty())
        return takeExtraEnd(tag);
    const Open last = m_open.constLast();
    if (last.name == tag.name) {
        m_open.removeLast();
        if (m_open.isEmpty())
            m_rootEnd = tag.end;
        return false;
    }
    if (last.name.compare(tag.name, Qt::CaseInsensitive) == 0)
        return say(tag.begin,
                   tr("<%1> in line %2 ends with </%3> in line %4: letter case counts.")
                       .arg(last.name, lineText(last.begin), tag.name, lineText(tag.begin)));
    const bool isOpen = std::any_of(
        m_open.cbegin(), m_open.cend(), [&tag](const Open &open) { return open.name == tag.name; });
    if (!isOpen)
        return say(tag.begin,
                   tr("</%1> in line %2 closes nothing: no <%1> is open there.")
                       .arg(tag.name, lineText(tag.begin)));
    return say(last.begin,
               tr("<%1> in line %2 is never closed; </%3> in line %4 came first.")
                   .arg(last.name, lineText(last.begin), tag.name, lineText(tag.begin)));
}

bool XmlDamage::takeExtraEnd(const Tag &tag)
{
    const QString line = lineText(tag.begin);
    if (m_rootEnd >= 0 && tag.name == m_root && m_secondRoot < 0)
        return say(tag.begin,
                   tr("</%1> comes a second time in line %2: behind the document is the rest of "
                      "an older, longer file.")
                       .arg(tag.name, line));
    return say(
        tag.begin,
        tr("</%1> in line %2 closes an element that was never opened: the line with <%1 ...> "
           "is lost.")
            .arg(tag.name, line));
}

bool XmlDamage::takeMalformed(const Tag &tag)
{
    if (tag.name.isEmpty())
        return say(tag.begin,
                   tr(R"("<" in line %1 begins no tag; as text it is written "&lt;".)")
                       .arg(lineOf(tag.begin)));
    const bool isEnd = m_text.at(tag.begin + 1) == u'/' || m_text.at(tag.begin + 1) == u'\\';
    // The document has worse damage, which the reader reports later.
    if (m_secondRoot >= 0 && isEnd) {
        if (!m_open.isEmpty() && m_open.constLast().name == tag.name)
            m_open.removeLast();
        return false;
    }
    return say(tag.begin,
               tr("%1 in line %2 is no tag; what is meant is %3.")
                   .arg(written(tag),
                        lineText(tag.begin),
                        (isEnd ? QStringLiteral("</") : QStringLiteral("<")) + tag.name + u'>'));
}

// Finds damage in the text between the tags.
bool XmlDamage::findText()
{
    static const QRegularExpression ampersand(
        QStringLiteral(R"(&(?!#\d+;|#x[0-9A-Fa-f]+;|[A-Za-z_][\w.-]*;))"));
    static const QRegularExpression comments(
        QStringLiteral(R"(<!--.*?-->|<!\[CDATA\[.*?\]\]>|<\?.*?\?>)"),
        QRegularExpression::DotMatchesEverythingOption);
    if (m_rootEnd >= 0 && !m_text.mid(m_rootEnd).remove(comments).trimmed().isEmpty()) {
        const int rest = m_rootEnd
            + QRegularExpression(QStringLiteral("\\S"))
                  .match(m_text.mid(m_rootEnd))
                  .capturedStart();
        return say(rest,
                   tr("Behind the end of the document, in line %1, there is more text: the rest of "
                      "an older, longer file?")
                       .arg(lineOf(rest)));
    }
    const auto bare = ampersand.match(m_text);
    if (bare.hasMatch())
        return say(
            bare.capturedStart(),
            tr(R"("&" in line %1 has to be written "&amp;".)").arg(lineOf(bare.capturedStart())));
    const int forbidden = XmlCharacters::indexOfForbidden(m_text);
    return forbidden >= 0
        && say(forbidden,
               tr("Line %1 holds a control character, which XML does not allow.")
                   .arg(lineOf(forbidden)));
}

// Parses the library's "line 3, column 5: why".
void XmlDamage::takeReaderPlace(const QString &problem)
{
    static const QRegularExpression form(QStringLiteral("^line (\\d+), column (\\d+):"));
    const auto match = form.match(problem);
    int line = 1;
    while (line < match.captured(1).toInt() && m_place < m_text.size()) {
        const int end = m_text.indexOf(u'\n', m_place);
        m_place = end < 0 ? m_text.size() : end + 1;
        ++line;
    }
    m_place
        = std::clamp(m_place + match.captured(2).toInt() - 1, 0, std::max(0, m_text.size() - 1));
}

bool XmlDamage::say(int place, const QString &sentence)
{
    constexpr int maxSize = 600; // the name of a tag may have megabytes
    m_place = place;
    m_sentence = sentence.size() > maxSize ? sentence.left(maxSize) + QChar(0x2026) : sentence;
    return true;
}

QString XmlDamage::lineText(int place) const
{
    return QString::number(lineOf(place));
}

// "\n", "\r\n" and "\r" end a line.
int XmlDamage::lineOf(int place) const
{
    int line = 1;
    for (int i = 0; i < place; ++i) {
        const QChar character = m_text.at(i);
        const bool isPair
            = character == u'\r' && i + 1 < m_text.size() && m_text.at(i + 1) == u'\n';
        line += (character == u'\n' || character == u'\r') && !isPair ? 1 : 0;
    }
    return line;
}

int XmlDamage::lineBegin(int place) const
{
    while (place > 0 && m_text.at(place - 1) != u'\n' && m_text.at(place - 1) != u'\r')
        --place;
    return place;
}

int XmlDamage::column() const
{
    return m_place - lineBegin(m_place) + 1;
}

QString XmlDamage::brokenLine() const
{
    constexpr int maxSize = 160;
    static const QRegularExpression end(QStringLiteral("[\r\n]"));
    const int begin = lineBegin(m_place);
    const int length = m_text.indexOf(end, begin) - begin;
    const QString line = m_text.mid(begin, length < 0 ? -1 : length).remove(QChar(0)).trimmed();
    return line.size() > maxSize ? line.left(maxSize) + QChar(0x2026) : line;
}

QString XmlDamage::written(const Tag &tag) const
{
    return m_text.mid(tag.begin, std::min(tag.end - tag.begin, 60));
}

} // namespace Quillmont::Utility::Doctor
