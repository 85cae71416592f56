#include "Library/Xml/XmlDocument.h"

#include "Library/Xml/XmlCharacters.h"
#include "Library/Xml/XmlReader.h"

#include <utility>

namespace Quillmont::Library::Xml {

namespace {

XmlElement opened(const XmlReader &reader)
{
    XmlElement element;
    element.name = reader.qualifiedName().toString();
    element.contentBegin = reader.here();
    return element;
}

// Collects the root and its children from a text.
class Builder
{
public:
    Builder(const QString &text, const XmlDocument::Filter &isWanted)
        : m_isWanted(isWanted)
        , m_reader(text)
    {
        while (!m_reader.atEnd())
            add(m_reader.next());
    }

    QString problem() const { return m_reader.problem(); }

    XmlElement root;
    QVector<RootChild> wanted;
    QVector<XmlDocument::Outline> outlines;

private:
    void add(XmlReader::TokenType token)
    {
        if (token == QXmlStreamReader::StartElement)
            begin();
        else if (token == QXmlStreamReader::EndElement)
            end();
        else if (token == QXmlStreamReader::Characters && m_depth == 3)
            m_grandchild.text += m_reader.text();
        else if (token == QXmlStreamReader::EntityReference)
            m_grandchild.isPlain = false;
    }

    void begin()
    {
        ++m_depth;
        if (m_depth == 1)
            root = opened(m_reader);
        else if (m_depth == 2)
            beginChild();
        else if (m_depth == 3)
            m_grandchild = opened(m_reader);
        else
            m_grandchild.isPlain = false;
    }

    // The room for its children is used again.
    void beginChild()
    {
        m_child.children.clear();
        static_cast<XmlElement &>(m_child) = opened(m_reader);
    }

    void end()
    {
        const int place = m_reader.here();
        if (m_depth == 3) {
            m_grandchild.end = place;
            m_child.children.append(std::move(m_grandchild));
        } else if (m_depth == 2) {
            m_child.end = place;
            const bool isParent = !m_child.children.isEmpty();
            const int firstChild = isParent ? m_child.children.constFirst().contentBegin : -1;
            outlines.append({m_child.contentBegin, firstChild, place});
            if (m_isWanted(m_child))
                wanted.append(std::move(m_child));
        } else if (m_depth == 1) {
            root.end = place;
        }
        --m_depth;
    }

    XmlDocument::Filter m_isWanted;
    XmlReader m_reader;
    RootChild m_child;
    XmlElement m_grandchild;
    int m_depth = 0;
};

} // namespace

XmlDocument::XmlDocument(const QString &text, const Filter &isWanted)
    : m_text(text)
{
    Builder builder(text, isWanted);
    m_problem = builder.problem();
    if (!m_problem.isEmpty())
        return;
    const int forbidden = XmlCharacters::indexOfForbidden(text);
    if (forbidden >= 0) {
        m_problem = problemAt(forbidden, QStringLiteral("No XML has this character."));
        return;
    }
    m_root = std::move(builder.root);
    m_wanted = std::move(builder.wanted);
    m_outlines = std::move(builder.outlines);
    locateAll();
    if (!m_root.hasPosition)
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
    return XmlReader::sentence(line, place - lineBegin + 1, reason);
}

int XmlDocument::tagBegin(int end) const
{
    const bool isTag = end > 0 && end <= m_text.size() && m_text.at(end - 1) == u'>';
    return isTag ? m_text.lastIndexOf(u'<', end - 1) : -1;
}

void XmlDocument::locateAll()
{
    locate(&m_root);
    for (RootChild &child : m_wanted) {
        locate(&child);
        for (XmlElement &grandchild : child.children)
            locate(&grandchild);
    }
}

void XmlDocument::locate(XmlElement *element) const
{
    element->begin = tagBegin(element->contentBegin);
    element->contentEnd = element->isSelfClosed() ? element->end : tagBegin(element->end);
    element->hasPosition = isTagAt(element->begin, u'<' + element->name)
        && (element->isSelfClosed()
            || isTagAt(element->contentEnd, QStringLiteral("</") + element->name));
}

bool XmlDocument::isTagAt(int place, const QString &tag) const
{
    return place >= 0 && m_text.midRef(place, tag.size()) == tag;
}

} // namespace Quillmont::Library::Xml
