#ifndef LIBRARY_HELPERS_XMLLAYOUT_H
#define LIBRARY_HELPERS_XMLLAYOUT_H

#include <QString>

namespace Quillmont::Library::Helpers {

class XmlDocument;

/// The white space that makes a new entry look like its neighbours.
class XmlLayout
{
public:
    explicit XmlLayout(const XmlDocument &document);

    /// In front of the entry.
    const QString &beforeEntry() const { return m_beforeEntry; }

    /// In front of each of its children.
    const QString &beforeChild() const { return m_beforeChild; }

    /// In front of its end tag.
    const QString &beforeEnd() const { return m_beforeEnd; }

private:
    QString m_beforeEntry;
    QString m_beforeChild;
    QString m_beforeEnd;
};

} // namespace Quillmont::Library::Helpers

#endif
