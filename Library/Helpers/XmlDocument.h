#ifndef LIBRARY_HELPERS_XMLDOCUMENT_H
#define LIBRARY_HELPERS_XMLDOCUMENT_H

#include "Library/Helpers/XmlElement.h"

#include <QString>

#include <functional>

class QXmlStreamReader;

namespace Quillmont::Library::Helpers {

/// Reads a document from end to end and notes where the children of its root stand.
class XmlDocument
{
public:
    using Filter = std::function<bool(const XmlElement &)>;

    /// Keeps those children of the root, with their own children, that @p isWanted says. @p text
    /// has to live as long as this.
    XmlDocument(const QString &text, const Filter &isWanted);

    /// What keeps the text from being a document that can be worked on, and where; empty if
    /// nothing does.
    const QString &problem() const { return m_problem; }

    /// The sentence that tells @p reason of the line and column of @p place.
    QString problemAt(int place, const QString &reason) const;

    const QString &text() const { return m_text; }

    /// The root element; its children are the wanted ones.
    const XmlElement &root() const { return m_root; }

    /// The root's last child, one that begins a line if there is one; nowhere without any.
    const XmlElement &last() const { return m_last; }

    /// Likewise of those that have children.
    const XmlElement &lastParent() const { return m_lastParent; }

private:
    void read(const Filter &isWanted);
    void begin(const QXmlStreamReader &reader);
    void end(const QXmlStreamReader &reader, const Filter &isWanted);
    void open(XmlElement *element, const QXmlStreamReader &reader);
    void close(XmlElement *element, const QXmlStreamReader &reader);
    void noteNeighbour(XmlElement *neighbour) const;
    int tagBegin(const QString &opening, const QStringRef &name, int end) const;

    const QString &m_text;
    QString m_problem;
    XmlElement m_root;
    XmlElement m_entry;
    XmlElement m_child;
    XmlElement m_last;
    XmlElement m_lastParent;
    int m_depth = 0;
    int m_lastTagEnd = 0;
};

} // namespace Quillmont::Library::Helpers

#endif
