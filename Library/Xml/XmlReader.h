#ifndef LIBRARY_XML_XMLREADER_H
#define LIBRARY_XML_XMLREADER_H

#include <QXmlStreamReader>

namespace Quillmont::Library::Xml {

/// Reads a document of the text that it is given, and refuses what QXmlStreamReader lets pass:
/// malformed names and declarations, and small entities that many references make big. Prefixes are
/// part of the names; one that nobody declared is a mistake that simulators live with.
class XmlReader : private QXmlStreamReader
{
public:
    // Nothing that reads on: that would go past the checks.
    using QXmlStreamReader::atEnd;
    using QXmlStreamReader::attributes;
    using QXmlStreamReader::characterOffset;
    using QXmlStreamReader::isEndElement;
    using QXmlStreamReader::qualifiedName;
    using QXmlStreamReader::text;
    using QXmlStreamReader::TokenType;

    explicit XmlReader(const QString &text);

    /// Goes on to the next token, and answers its type.
    TokenType next();

    /// What is wrong with the document so far, and where; empty if nothing is.
    QString problem() const;

    /// The sentence that tells @p reason of the place at @p line and @p column.
    static QString sentence(qint64 line, qint64 column, const QString &reason);

private:
    void checkNames();
    void checkDeclarations();

    QString m_text;
    const int m_malformedReference; ///< Its place; -1 without one.
};

} // namespace Quillmont::Library::Xml

#endif
