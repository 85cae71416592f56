#include "Doctor/XmlDamage.h"

#include "Doctor/Reasons.h"
#include "Doctor/TagText.h"
#include "Doctor/TextPlaces.h"
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
    m_place = placeIn(problem, m_text);
    m_sentence = tr("It is not well-formed XML: %1").arg(Reasons::translated(problem));
    if (!m_sentence.endsWith(u'.') && !m_sentence.endsWith(u'\u3002'))
        m_sentence += u'.';
}

// Finds damage that can be recognised without looking at the tags.
bool XmlDamage::findKind()
{
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
    if (isWebPage(m_text))
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
                       .arg(nameOf(m_open.constLast()).toString(),
                            lineText(m_open.constLast().begin),
                            lineText(m_text.size())));
    return m_root.isEmpty() && say(0, tr("The file has no element."));
}

bool XmlDamage::take(const Tag &tag)
{
    switch (tag.kind) {
    case Tag::Unfinished:
        return takeUnfinished(tag);
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

bool XmlDamage::takeUnfinished(const Tag &tag)
{
    const int line = lineOf(tag.begin);
    if (tag.end >= m_text.size())
        return say(tag.begin,
                   tr("The file ends in the middle of a tag, which begins in line %1.").arg(line));
    return say(tag.begin,
               tag.isInQuotation ? tr("A quotation mark is missing in a tag in line %1.").arg(line)
                                 : tr("A tag in line %1 has no \">\".").arg(line));
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
        m_open.append({tag.begin, tag.name.size()});
    else if (m_open.isEmpty())
        m_rootEnd = tag.end;
    return false;
}

bool XmlDamage::takeEnd(const Tag &tag)
{
    if (m_open.isEmpty())
        return takeExtraEnd(tag);
    if (nameOf(m_open.constLast()) != tag.name)
        return takeOtherEnd(tag);
    m_open.removeLast();
    if (m_open.isEmpty())
        m_rootEnd = tag.end;
    return false;
}

bool XmlDamage::takeOtherEnd(const Tag &tag)
{
    const Open last = m_open.constLast();
    const QString name = nameOf(last).toString();
    if (name.compare(tag.name, Qt::CaseInsensitive) == 0)
        return say(tag.begin,
                   tr("<%1> in line %2 ends with </%3> in line %4: letter case counts.")
                       .arg(name, lineText(last.begin), tag.name, lineText(tag.begin)));
    const bool isOpen = std::any_of(m_open.cbegin(), m_open.cend(), [this, &tag](Open open) {
        return nameOf(open) == tag.name;
    });
    if (!isOpen)
        return say(tag.begin,
                   tr("</%1> in line %2 closes nothing: no <%1> is open there.")
                       .arg(tag.name, lineText(tag.begin)));
    return say(last.begin,
               tr("<%1> in line %2 is never closed; </%3> in line %4 came first.")
                   .arg(name, lineText(last.begin), tag.name, lineText(tag.begin)));
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
        if (!m_open.isEmpty() && nameOf(m_open.constLast()) == tag.name)
            m_open.removeLast();
        return false;
    }
    return say(tag.begin,
               tr("%1 in line %2 is no tag; what is meant is %3.")
                   .arg(written(tag),
                        lineText(tag.begin),
                        (isEnd ? QStringLiteral("</") : QStringLiteral("<")) + tag.name + u'>'));
}

// What is wrong between the tags, and in their attributes.
bool XmlDamage::findText()
{
    const QString text = withoutSpecialMarkup(m_text);
    const QString behind = m_rootEnd < 0 ? QString() : text.mid(m_rootEnd).trimmed();
    if (!behind.isEmpty()) {
        const int rest = text.indexOf(behind.at(0), m_rootEnd);
        return say(rest,
                   tr("Behind the end of the document, in line %1, there is more text: the rest of "
                      "an older, longer file?")
                       .arg(lineOf(rest)));
    }
    if (findBare(text))
        return true;
    const int forbidden = XmlCharacters::indexOfForbidden(m_text);
    return forbidden >= 0
        && say(forbidden,
               tr("Line %1 holds a control character, which XML does not allow.")
                   .arg(lineOf(forbidden)));
}

bool XmlDamage::findBare(const QString &text)
{
    const int ampersand = firstBareAmpersand(text);
    const QStringRef attribute = firstBareAttribute(text);
    const int place = attribute.position();
    if (!attribute.isNull() && (ampersand < 0 || place < ampersand))
        return say(place,
                   tr("The value of %1 in line %2 has no quotation marks.")
                       .arg(attribute.toString(), lineText(place)));
    return ampersand >= 0
        && say(ampersand,
               tr(R"("&" in line %1 has to be written "&amp;".)").arg(lineOf(ampersand)));
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

int XmlDamage::lineOf(int place) const
{
    return lineAt(m_text, place);
}

int XmlDamage::column() const
{
    return columnAt(m_text, m_place);
}

QString XmlDamage::brokenLine() const
{
    constexpr int maxSize = 160;
    const QString line = wholeLineAt(m_text, m_place).remove(QChar(0)).trimmed();
    return line.size() > maxSize ? line.left(maxSize) + QChar(0x2026) : line;
}

QStringRef XmlDamage::nameOf(Open open) const
{
    return m_text.midRef(open.begin + 1, open.nameSize);
}

QString XmlDamage::written(const Tag &tag) const
{
    return m_text.mid(tag.begin, std::min(tag.end - tag.begin, 60));
}

} // namespace Quillmont::Utility::Doctor
