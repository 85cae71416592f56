#ifndef LIBRARY_HELPERS_STRICTXMLREADER_H
#define LIBRARY_HELPERS_STRICTXMLREADER_H

#include <QXmlStreamReader>

namespace Quillmont::Library::Helpers {

/// Reads a document of the text that it is given, and refuses what QXmlStreamReader lets pass:
/// malformed names and declarations, and small entities that many references make big. Prefixes are
/// part of the names; one that nobody declared is a mistake that simulators live with.
class StrictXmlReader : public QXmlStreamReader
{
public:
    /// @p text has to live as long as this.
    explicit StrictXmlReader(const QString &text);

    /// Goes on to the next token, and answers its type.
    TokenType next();

    /// What is wrong with the document so far, and where; empty if nothing is.
    QString problem() const;

    /// The sentence that tells @p reason of the place at @p line and @p column.
    static QString sentence(qint64 line, qint64 column, const QString &reason);

private:
    void checkNames();
    void checkDeclarations();

    const QString &m_text;
};

} // namespace Quillmont::Library::Helpers

#endif
