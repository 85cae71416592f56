#include "Library/Xml/XmlReader.h"

#include "Library/Xml/EntityGrowth.h"
#include "Library/Xml/XmlCharacters.h"

#include <QRegularExpression>

#include <algorithm>

namespace Quillmont::Library::Xml {

namespace {

constexpr int maxEntitySize = 4096;
constexpr int maxGrowth = 16 * 1024 * 1024;

// QXmlStreamReader accepts repeated parts of an XML declaration.
bool hasDoubledPart(const QStringRef &declaration)
{
    static const QRegularExpression doubled(
        QStringLiteral(R"(^<\?xml\s[^>]*\b(version|encoding|standalone)\s*=[^>]*\b\1\s*=)"));
    return doubled.match(declaration).hasMatch();
}

} // namespace

XmlReader::XmlReader(const QString &text)
    : QXmlStreamReader(text)
    , m_text(text)
    , m_malformedReference(XmlCharacters::indexOfMalformedReference(text))
{
    setNamespaceProcessing(false);
    // Until the declarations are read, any reference may be one to an entity; most files have none.
    if (text.contains(QStringLiteral("<!DOCTYPE")))
        setEntityExpansionLimit(
            std::min(maxEntitySize, maxGrowth / (text.count(u'&') + text.count(u'%') + 1)));
    // The reader would skip it, and all its offsets would be one too small.
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        raiseError(QStringLiteral("Second byte-order mark."));
}

QXmlStreamReader::TokenType XmlReader::next()
{
    const TokenType type = readNext();
    if (type == StartElement)
        checkNames();
    else if (type == EntityReference && !XmlCharacters::isName(name()))
        raiseError(QStringLiteral("Invalid entity name."));
    else if (type == ProcessingInstruction && !XmlCharacters::isName(processingInstructionTarget()))
        raiseError(QStringLiteral("Invalid processing instruction name."));
    else if (type == DTD)
        checkDeclarations();
    else if (type == StartDocument && hasDoubledPart(m_text.leftRef(here())))
        raiseError(QStringLiteral("Invalid XML declaration."));
    if (m_malformedReference >= 0 && here() > m_malformedReference)
        raiseError(QStringLiteral("Invalid character reference."));
    return type;
}

int XmlReader::here() const
{
    return static_cast<int>(characterOffset());
}

QString XmlReader::problem() const
{
    return hasError() ? sentence(lineNumber(), columnNumber(), errorString()) : QString();
}

QString XmlReader::sentence(qint64 line, qint64 column, const QString &reason)
{
    return QStringLiteral("line %1, column %2: %3")
        .arg(QString::number(line),
             QString::number(std::max<qint64>(column, 1)),
             reason.simplified());
}

void XmlReader::checkNames()
{
    if (!XmlCharacters::isName(qualifiedName()))
        raiseError(QStringLiteral("Invalid element name."));
    const QXmlStreamAttributes all = attributes();
    for (const QXmlStreamAttribute &attribute : all) {
        if (!XmlCharacters::isName(attribute.qualifiedName()))
            raiseError(QStringLiteral("Invalid attribute name."));
    }
}

// The reader limits the expansion of one reference, not their number.
void XmlReader::checkDeclarations()
{
    if (!XmlCharacters::fitDeclarations(text()))
        raiseError(QStringLiteral("Invalid character in the document type declaration."));
    setEntityExpansionLimit(maxEntitySize);
    EntityGrowth growth(entityDeclarations(), maxGrowth);
    if (growth.of(m_text.midRef(here())) > maxGrowth)
        raiseError(QStringLiteral("Entities grow to too much text."));
}

} // namespace Quillmont::Library::Xml
