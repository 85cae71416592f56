#ifndef LIBRARY_XML_XMLELEMENT_H
#define LIBRARY_XML_XMLELEMENT_H

#include "Library/Xml/XmlSpace.h"

#include <QString>
#include <QVector>

#include <algorithm>

namespace Quillmont::Library::Xml {

/// An element of a document, and its position in the document's text.
struct XmlElement
{
    /// Whether it is a single tag; its content then begins and ends at the element's end.
    bool isSelfClosed() const { return contentBegin == end; }

    /// Whether its content is the text @p expected, ignoring white space around it.
    bool hasText(const QString &expected) const
    {
        return isPlain && XmlSpace::trimmed(text) == XmlSpace::trimmed(expected);
    }

    /// Whether it has this name and this text.
    bool matches(const QString &expectedName, const QString &expectedText) const
    {
        return name == expectedName && hasText(expectedText);
    }

    QString name; ///< As written, a prefix included.
    QString text; ///< Its text, with references and CDATA sections resolved.
    bool isPlain = true; ///< Whether it holds only text and comments.
    /// False if the element comes from an entity expansion and has no position in the source.
    bool hasPosition = false;
    int begin = -1; ///< Of the start tag.
    int contentBegin = -1; ///< After the start tag.
    int contentEnd = -1; ///< Of the end tag.
    int end = -1; ///< After the end tag.
};

/// A child of the root: an add-on element, ours or another program's, or anything else.
struct RootChild : XmlElement
{
    /// Whether it has a child with this name and this text.
    bool hasChild(const QString &childName, const QString &childText) const
    {
        return std::any_of(children.cbegin(), children.cend(), [&](const XmlElement &child) {
            return child.matches(childName, childText);
        });
    }

    QVector<XmlElement> children;
};

} // namespace Quillmont::Library::Xml

#endif
