#ifndef LIBRARY_HELPERS_XMLELEMENT_H
#define LIBRARY_HELPERS_XMLELEMENT_H

#include "Library/Helpers/XmlBlank.h"

#include <QString>
#include <QVector>

namespace Quillmont::Library::Helpers {

/// An element of a document, and where it stands in the document's text.
struct XmlElement
{
    /// Whether one tag is all there is; its end is the content's begin and end too.
    bool isSelfClosed() const { return contentBegin == end; }

    /// Whether @p expected is what stands in it, white space around it aside.
    bool says(const QString &expected) const
    {
        return isPlain && XmlBlank::trimmed(text) == XmlBlank::trimmed(expected);
    }

    QString name; ///< As written, a prefix included.
    QString text; ///< Its characters, references and CDATA sections resolved.
    bool isPlain = true; ///< Whether there is nothing but text in it, comments aside.
    bool hasPlace = false; ///< False out of an entity's replacement text: not in the document's.
    int begin = -1; ///< Of the start tag.
    int contentBegin = -1; ///< Behind the start tag.
    int contentEnd = -1; ///< Of the end tag.
    int end = -1; ///< Behind the end tag.
};

/// A child of the root, with its own children.
struct XmlEntry : XmlElement
{
    QVector<XmlElement> children;
};

} // namespace Quillmont::Library::Helpers

#endif
