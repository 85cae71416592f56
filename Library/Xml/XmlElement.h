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
    /// Whether it is a single tag; its end is then the begin and the end of the content too.
    bool isSelfClosed() const { return contentBegin == end; }

    /// Whether it holds @p expected and nothing else, white space around it aside.
    bool hasText(const QString &expected) const
    {
        return isPlain && XmlSpace::trimmed(text) == XmlSpace::trimmed(expected);
    }

    /// Whether it has that name and that text.
    bool matches(const QString &expectedName, const QString &expectedText) const
    {
        return name == expectedName && hasText(expectedText);
    }

    QString name; ///< As written, a prefix included.
    QString text; ///< Its characters, references and CDATA sections resolved.
    bool isPlain = true; ///< Whether it holds nothing but text, comments aside.
    /// False if the element comes from an entity expansion and has no position in the source.
    bool hasPosition = false;
    int begin = -1; ///< Of the start tag.
    int contentBegin = -1; ///< Behind the start tag.
    int contentEnd = -1; ///< Of the end tag.
    int end = -1; ///< Behind the end tag.
};

/// A child of the root: an add-on element, ours or another program's, or anything else.
struct RootChild : XmlElement
{
    /// Whether it has a child of that name and that text.
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
