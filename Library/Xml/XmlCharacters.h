#ifndef LIBRARY_XML_XMLCHARACTERS_H
#define LIBRARY_XML_XMLCHARACTERS_H

class QString;
class QStringRef;

namespace Quillmont::Library::Xml {

/// Which characters XML 1.0 allows where.
class XmlCharacters
{
public:
    /// Whether it can be the name of anything, given that a reader took it for one.
    static bool isName(const QStringRef &name);

    /// Whether a document type declaration has no character outside its literals, comments and
    /// processing instructions that belongs nowhere.
    static bool fitDeclarations(const QStringRef &declarations);

    /// The place of the first reference to a character by number that is not written as XML wants
    /// it, in @p text, a whole document; -1 without one. Comments and the like may hold anything.
    static int indexOfMalformedReference(const QString &text);

    /// The place of the first character that no document may hold; -1 without one.
    static int indexOfForbidden(const QString &text);
};

} // namespace Quillmont::Library::Xml

#endif
