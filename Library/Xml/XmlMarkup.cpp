#include "Library/Xml/XmlMarkup.h"

#include "Library/Xml/XmlReader.h"

#include <QDomDocument>
#include <QTextStream>

namespace Quillmont::Library::Xml::XmlMarkup {

namespace {

// Whether @p markup reads back as one element @p name with the text @p text.
bool means(const QString &markup, const QString &name, const QString &text)
{
    XmlReader reader(markup);
    reader.next();
    const bool isNamed = reader.next() == QXmlStreamReader::StartElement
        && reader.qualifiedName() == name && reader.attributes().isEmpty();

    QString content;
    while (reader.next() == QXmlStreamReader::Characters)
        content += reader.text();
    return isNamed && content == text && reader.isEndElement()
        && reader.next() == QXmlStreamReader::EndDocument;
}

} // namespace

QString element(const QString &name, const QString &text)
{
    QDomDocument document;
    QDomElement element = document.createElement(name);
    element.appendChild(document.createTextNode(text));

    QString markup;
    QTextStream stream(&markup);
    stream.setCodec("UTF-8");
    element.save(stream, -1);
    stream.flush();
    // It stays a line feed, whatever line ends the file has.
    markup.replace(u'\n', QLatin1String("&#10;"));
    return means(markup, name, text) ? markup : QString();
}

QString escaped(const QString &text)
{
    const QString markup = element(QStringLiteral("x"), text);
    return markup.isNull() ? markup : markup.mid(3, markup.size() - 7);
}

} // namespace Quillmont::Library::Xml::XmlMarkup
