#ifndef LIBRARY_XML_ENTRYINDENT_H
#define LIBRARY_XML_ENTRYINDENT_H

#include <QString>

namespace Quillmont::Library::Xml {

class XmlDocument;

/// The white space that makes a new add-on element look like its neighbours.
class EntryIndent
{
public:
    /// For an element after the last content of the root of @p document.
    explicit EntryIndent(const XmlDocument &document);

    /// Before the element.
    const QString &beforeEntry() const { return m_beforeEntry; }

    /// Before each of its children.
    const QString &beforeChild() const { return m_beforeChild; }

    /// Before its end tag.
    const QString &beforeEnd() const { return m_beforeEnd; }

private:
    QString m_beforeEntry;
    QString m_beforeChild;
    QString m_beforeEnd;
};

} // namespace Quillmont::Library::Xml

#endif
