#include "Library/Helpers/XmlDocument.h"

#include "Library/Xml/XmlCharacters.h"
#include "Library/Xml/XmlReader.h"

#include <utility>

namespace Quillmont::Library::Helpers {

namespace {

template <typename Element>
Element opened(const Xml::XmlReader &reader)
{
    Element element;
    element.name = reader.qualifiedName().toString();
    element.contentBegin = static_cast<int>(reader.characterOffset());
    return element;
}

} // namespace

XmlDocument::XmlDocument(const QString &text, const Filter &isWanted)
    : m_text(text)
{
    read(isWanted);
    const int forbidden = Xml::XmlCharacters::indexOfForbidden(text);
    if (m_problem.isEmpty() && forbidden >= 0)
        m_problem = problemAt(forbidden, QStringLiteral("No XML has this character."));
    if (!m_problem.isEmpty())
        return;
    locateAll();
    if (!m_root.hasPlace)
        m_problem = problemAt(0, QStringLiteral("The root element is not where it should be."));
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
    return Xml::XmlReader::sentence(line, place - lineBegin + 1, reason);
}

int XmlDocument::tagBegin(int end) const
{
    const bool isTag = end > 0 && end <= m_text.size() && m_text.at(end - 1) == u'>';
    return isTag ? m_text.lastIndexOf(u'<', end - 1) : -1;
}

void XmlDocument::read(const Filter &isWanted)
{
    Xml::XmlReader reader(m_text);
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
}

void XmlDocument::begin(const Xml::XmlReader &reader)
{
    ++m_depth;
    if (m_depth == 1)
        m_root = opened<XmlElement>(reader);
    else if (m_depth == 2)
        m_entry = opened<XmlEntry>(reader);
    else if (m_depth == 3)
        m_child = opened<XmlElement>(reader);
    else
        m_child.isPlain = false;
}

void XmlDocument::end(const Xml::XmlReader &reader, const Filter &isWanted)
{
    const auto place = static_cast<int>(reader.characterOffset());
    if (m_depth == 3) {
        m_child.end = place;
        m_entry.children.append(std::move(m_child));
    } else if (m_depth == 2) {
        m_entry.end = place;
        const bool isParent = !m_entry.children.isEmpty();
        const int firstChild = isParent ? m_entry.children.constFirst().contentBegin : -1;
        m_outlines.append({m_entry.contentBegin, firstChild, place});
        if (isWanted(m_entry))
            m_entries.append(std::move(m_entry));
    } else if (m_depth == 1) {
        m_root.end = place;
    }
    --m_depth;
}

void XmlDocument::locateAll()
{
    locate(&m_root);
    for (XmlEntry &entry : m_entries) {
        locate(&entry);
        for (XmlElement &child : entry.children)
            locate(&child);
    }
}

void XmlDocument::locate(XmlElement *element) const
{
    element->begin = tagBegin(element->contentBegin);
    element->contentEnd = element->isSelfClosed() ? element->end : tagBegin(element->end);
    element->hasPlace = isTagAt(element->begin, u'<' + element->name)
        && (element->isSelfClosed()
            || isTagAt(element->contentEnd, QStringLiteral("</") + element->name));
}

bool XmlDocument::isTagAt(int place, const QString &tag) const
{
    return place >= 0 && m_text.midRef(place, tag.size()) == tag;
}

} // namespace Quillmont::Library::Helpers
