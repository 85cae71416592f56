#ifndef LIBRARY_XML_XMLCHARACTERS_H
#define LIBRARY_XML_XMLCHARACTERS_H

class QString;
class QStringRef;

namespace Quillmont::Library::Xml {

/// Checks where XML 1.0 allows which characters.
class XmlCharacters
{
public:
    /// Whether @p name, which QXmlStreamReader accepted as a name, is one.
    static bool isName(const QStringRef &name);

    /// Whether a document type declaration has no stray characters outside its literals, comments
    /// and processing instructions.
    static bool fitDeclarations(const QStringRef &declarations);

    /// The index of the first malformed character reference in @p text, a whole document; -1 if
    /// there is none. Comments, CDATA sections and processing instructions may hold anything.
    static int indexOfMalformedReference(const QString &text);

    /// The index of the first character that XML forbids; -1 if there is none.
    static int indexOfForbidden(const QString &text);
};

} // namespace Quillmont::Library::Xml

#endif
