#ifndef LIBRARY_XML_XMLREADER_H
#define LIBRARY_XML_XMLREADER_H

#include <QXmlStreamReader>

namespace Quillmont::Library::Xml {

/// Reads an XML text, and refuses what QXmlStreamReader accepts: malformed names and declarations,
/// and small entities that many references make large. Prefixes are part of the names; undeclared
/// ones are accepted, as simulators do.
class XmlReader : private QXmlStreamReader
{
public:
    // Nothing that advances the reader: that would bypass the checks.
    using QXmlStreamReader::atEnd;
    using QXmlStreamReader::attributes;
    using QXmlStreamReader::isEndElement;
    using QXmlStreamReader::qualifiedName;
    using QXmlStreamReader::text;
    using QXmlStreamReader::TokenType;

    explicit XmlReader(const QString &text);

    /// Advances to the next token, and returns its type.
    TokenType next();

    /// How many characters it has read.
    int here() const;

    /// What is wrong with the document so far, and where; empty if nothing is.
    QString problem() const;

    /// The sentence that gives @p reason with its @p line and @p column.
    static QString sentence(qint64 line, qint64 column, const QString &reason);

private:
    void checkNames();
    void checkDeclarations();

    QString m_text;
    const int m_malformedReference; ///< Its index; -1 if there is none.
};

} // namespace Quillmont::Library::Xml

#endif
