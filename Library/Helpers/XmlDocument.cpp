#include "Library/Helpers/XmlDocument.h"

#include "Library/Helpers/StrictXmlReader.h"
#include "Library/Helpers/XmlBlank.h"

namespace Quillmont::Library::Helpers {

XmlDocument::XmlDocument(const QString &text, const Filter &isWanted)
    : m_text(text)
{
    read(isWanted);
}

QString XmlDocument::problemAt(int place, const QString &reason) const
{
    int line = 1;
    int lineBegin = 0;
    for (int i = 0; i < place; ++i) {
        const bool isEnd = m_text.at(i) == u'\n'
            || (m_text.at(i) == u'\r' && m_text.midRef(i + 1, 1) != QLatin1String("\n"));
        line += isEnd ? 1 : 0;
        lineBegin = isEnd ? i + 1 : lineBegin;
    }
    return StrictXmlReader::sentence(line, place - lineBegin + 1, reason);
}

void XmlDocument::read(const Filter &isWanted)
{
    StrictXmlReader reader(m_text);
    while (!reader.atEnd()) {
        switch (reader.next()) {
        case QXmlStreamReader::StartElement:
            begin(reader);
            break;
        case QXmlStreamReader::EndElement:
            end(reader, isWanted);
            break;
        case QXmlStreamReader::Characters:
            if (m_depth == 3)
                m_child.text += reader.text();
            break;
        case QXmlStreamReader::EntityReference:
            m_child.isPlain = false;
            break;
        default:
            break;
        }
    }
    m_problem = reader.problem();
    if (m_problem.isEmpty() && !m_root.hasPlace)
        m_problem = problemAt(0, QStringLiteral("The root element is not where it should be."));
}

void XmlDocument::begin(const QXmlStreamReader &reader)
{
    ++m_depth;
    if (m_depth == 1)
        open(&m_root, reader);
    else if (m_depth == 2)
        open(&m_entry, reader);
    else if (m_depth == 3)
        open(&m_child, reader);
    else
        m_child.isPlain = false;
}

void XmlDocument::end(const QXmlStreamReader &reader, const Filter &isWanted)
{
    if (m_depth == 1) {
        close(&m_root, reader);
    } else if (m_depth == 2) {
        close(&m_entry, reader);
        noteNeighbour(&m_last);
        if (!m_entry.children.isEmpty())
            noteNeighbour(&m_lastParent);
        if (isWanted(m_entry))
            m_root.children.append(m_entry);
    } else if (m_depth == 3) {
        close(&m_child, reader);
        m_entry.children.append(m_child);
    }
    --m_depth;
}

void XmlDocument::open(XmlElement *element, const QXmlStreamReader &reader)
{
    const auto place = static_cast<int>(reader.characterOffset());
    *element = {};
    element->name = reader.qualifiedName().toString();
    element->begin = tagBegin(QStringLiteral("<"), reader.qualifiedName(), place);
    element->hasPlace = element->begin >= 0;
    element->contentBegin = place;
    if (element->hasPlace)
        m_lastTagEnd = place;
}

void XmlDocument::close(XmlElement *element, const QXmlStreamReader &reader)
{
    element->end = static_cast<int>(reader.characterOffset());
    if (!element->hasPlace)
        return;
    element->contentEnd = element->isSelfClosed()
        ? element->end
        : tagBegin(QStringLiteral("</"), reader.qualifiedName(), element->end);
    element->hasPlace = element->contentEnd >= 0;
    m_lastTagEnd = element->end;
}

void XmlDocument::noteNeighbour(XmlElement *neighbour) const
{
    const auto beginsLine = [this](const XmlElement &element) {
        return XmlBlank::beginsLine(m_text, element.begin);
    };
    if (m_entry.hasPlace
        && (!neighbour->hasPlace || beginsLine(m_entry) || !beginsLine(*neighbour)))
        *neighbour = m_entry;
}

/// Where the tag begins that ends in front of @p end. What comes out of an entity ends behind the
/// reference to it, so no tag is found there.
int XmlDocument::tagBegin(const QString &opening, const QStringRef &name, int end) const
{
    if (end <= m_lastTagEnd || end > m_text.size() || m_text.at(end - 1) != u'>')
        return -1;
    const int begin = m_text.lastIndexOf(u'<', end - 1);
    const bool isTag = begin >= m_lastTagEnd && m_text.midRef(begin).startsWith(opening)
        && m_text.midRef(begin + opening.size()).startsWith(name);
    return isTag ? begin : -1;
}

} // namespace Quillmont::Library::Helpers
