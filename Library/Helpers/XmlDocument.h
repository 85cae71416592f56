#ifndef LIBRARY_HELPERS_XMLDOCUMENT_H
#define LIBRARY_HELPERS_XMLDOCUMENT_H

#include "Library/Helpers/XmlElement.h"

#include <QString>
#include <QVector>

#include <functional>

namespace Quillmont::Library::Xml {
class XmlReader;
} // namespace Quillmont::Library::Xml

namespace Quillmont::Library::Helpers {

/// Reads a document from end to end and notes where the children of its root stand.
class XmlDocument
{
public:
    /// Sees an element's names and texts; its places are not known yet.
    using Filter = std::function<bool(const XmlEntry &)>;

    /// Where tags of a child of the root end; the place of what comes out of an entity is behind
    /// the reference to it.
    struct Outline
    {
        int startTagEnd;
        int firstChildTagEnd; ///< -1 without a child.
        int end;
    };

    /// Keeps those children of the root, with their own children, that @p isWanted says. @p text
    /// has to live as long as this.
    XmlDocument(const QString &text, const Filter &isWanted);

    /// What keeps the text from being a document that can be worked on, and where; empty if
    /// nothing does.
    const QString &problem() const { return m_problem; }

    /// The sentence that tells @p reason of the line and column of @p place.
    QString problemAt(int place, const QString &reason) const;

    const QString &text() const { return m_text; }

    const XmlElement &root() const { return m_root; }

    /// The wanted children of the root.
    const QVector<XmlEntry> &entries() const { return m_entries; }

    /// All children of the root.
    const QVector<Outline> &outlines() const { return m_outlines; }

    /// Where the tag begins that ends in front of @p end, or -1: what comes out of an entity ends
    /// behind a reference.
    int tagBegin(int end) const;

private:
    void read(const Filter &isWanted);
    void begin(const Xml::XmlReader &reader);
    void end(const Xml::XmlReader &reader, const Filter &isWanted);
    void locateAll();
    void locate(XmlElement *element) const;
    bool isTagAt(int place, const QString &tag) const;

    const QString &m_text;
    QString m_problem;
    XmlElement m_root;
    QVector<XmlEntry> m_entries;
    XmlEntry m_entry;
    XmlElement m_child;
    QVector<Outline> m_outlines;
    int m_depth = 0;
};

} // namespace Quillmont::Library::Helpers

#endif
