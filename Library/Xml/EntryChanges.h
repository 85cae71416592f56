#ifndef LIBRARY_XML_ENTRYCHANGES_H
#define LIBRARY_XML_ENTRYCHANGES_H

#include "Library/Models/XmlValues.h"
#include "Library/Text/XmlSource.h"
#include "Library/Xml/XmlDocument.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Quillmont::Library::Models {
class XmlInsertionModel;
} // namespace Quillmont::Library::Models

namespace Quillmont::Library::Xml {

/// Collects changes of a document's add-on elements, in the document's order, and makes them.
class EntryChanges
{
public:
    /// @p document is what was read from @p source.
    EntryChanges(const Text::XmlSource &source, const XmlDocument &document);

    /// Adds the element that @p model describes behind the root's last content.
    void add(const Models::XmlInsertionModel &model);

    /// Gives @p entry the children that @p values ask for. Others that it has stay.
    void update(const RootChild &entry, const Models::XmlValues &values);

    /// Takes out @p element and the white space in front of it.
    void remove(const XmlElement &element);

    /// The document's bytes with the changes made. The same bytes if there are none, and also if
    /// they cannot be made; then @p problem says why, and where.
    [[nodiscard]] QByteArray edited(QString *problem) const;

private:
    void insertBehind(const XmlElement *neighbour, const RootChild &entry, const QString &markup);
    void replaceText(const XmlElement &child, const QString &text);
    void open(const XmlElement &element, const QString &content);
    QString newElement(const QString &name, const QString &text);
    void refuse(const QString &reason);

    Text::XmlSource m_source;
    XmlDocument m_document;
    QVector<Text::XmlSource::Splice> m_splices;
    QString m_problem;
};

} // namespace Quillmont::Library::Xml

#endif
