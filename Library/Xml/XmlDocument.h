#ifndef LIBRARY_XML_XMLDOCUMENT_H
#define LIBRARY_XML_XMLDOCUMENT_H

#include "Library/Xml/XmlElement.h"

#include <QString>
#include <QVector>

#include <functional>

namespace Quillmont::Library::Xml {

/// A document that was read from end to end, and where in its text the root's children are.
class XmlDocument
{
public:
    /// Chooses children of the root by their names and texts; positions are not known yet.
    using Filter = std::function<bool(const RootChild &)>;

    /// End offsets of the tags of one child of the root. For expanded entities the offset is the
    /// end of the reference.
    struct Outline
    {
        int startTagEnd;
        int firstChildTagEnd; ///< -1 if there is no child.
        int end;
    };

    /// Reads @p text and keeps the children of the root that @p isWanted chooses, with their own
    /// children.
    XmlDocument(const QString &text, const Filter &isWanted);

    /// Why the text cannot be edited, and where; empty if it can.
    const QString &problem() const { return m_problem; }

    /// @p reason with the line and column of @p place.
    QString problemAt(int place, const QString &reason) const;

    const QString &text() const { return m_text; }

    const XmlElement &root() const { return m_root; }

    /// The chosen children of the root.
    const QVector<RootChild> &wanted() const { return m_wanted; }

    /// All children of the root.
    const QVector<Outline> &outlines() const { return m_outlines; }

    /// Where the tag begins that ends at @p end; -1 if no tag ends there but, say, a reference to
    /// an entity.
    int tagBegin(int end) const;

private:
    void locateAll();
    void locate(XmlElement *element) const;
    bool isTagAt(int place, const QString &tag) const;

    QString m_text;
    QString m_problem;
    XmlElement m_root;
    QVector<RootChild> m_wanted;
    QVector<Outline> m_outlines;
};

} // namespace Quillmont::Library::Xml

#endif
