#include "Library/Helpers/StrictXmlReader.h"

#include <algorithm>

namespace Quillmont::Library::Helpers {

namespace {

bool isName(const QStringRef &name)
{
    return std::all_of(name.cbegin(), name.cend(), [](QChar character) {
        return character >= QChar(0x80) || character.isLetterOrNumber()
            || QStringLiteral("_:-.").contains(character);
    });
}

} // namespace

StrictXmlReader::StrictXmlReader(const QString &text)
    : QXmlStreamReader(text)
    , m_text(text)
{
    setNamespaceProcessing(false);
    // The reader would pass over it, and count one character less than there are.
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        raiseError(QStringLiteral("Second byte-order mark."));
}

QXmlStreamReader::TokenType StrictXmlReader::next()
{
    const TokenType type = readNext();
    if (type == StartElement)
        checkAttributes();
    else if (type == ProcessingInstruction && !isName(processingInstructionTarget()))
        raiseError(QStringLiteral("Invalid processing instruction name."));
    else if (type == DTD)
        limitEntities();
    return type;
}

QString StrictXmlReader::problem() const
{
    return hasError() ? sentence(lineNumber(), columnNumber(), errorString()) : QString();
}

QString StrictXmlReader::sentence(qint64 line, qint64 column, const QString &reason)
{
    return QStringLiteral("line %1, column %2: %3")
        .arg(QString::number(line),
             QString::number(std::max<qint64>(column, 1)),
             reason.simplified());
}

void StrictXmlReader::checkAttributes()
{
    const QXmlStreamAttributes all = attributes();
    for (const QXmlStreamAttribute &attribute : all) {
        if (!isName(attribute.qualifiedName()))
            raiseError(QStringLiteral("Invalid attribute name."));
    }
}

// The reader limits what one reference grows to, not their number.
void StrictXmlReader::limitEntities()
{
    constexpr int biggestGrowth = 16 * 1024 * 1024;
    const int limit = biggestGrowth / (m_text.count(u'&') + 1);
    setEntityExpansionLimit(std::min(limit, entityExpansionLimit()));
}

} // namespace Quillmont::Library::Helpers
