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

/// Collects changes to a document's add-on elements, in document order, and applies them.
class EntryChanges
{
public:
    /// @p document was read from @p source.
    EntryChanges(const Text::XmlSource &source, const XmlDocument &document);

    /// Adds the element that @p model describes after the root's last content.
    void add(const Models::XmlInsertionModel &model);

    /// Gives @p entry the children in @p values. Its other children stay.
    void update(const RootChild &entry, const Models::XmlValues &values);

    /// Removes @p element and the white space before it.
    void remove(const XmlElement &element);

    /// The document's bytes with the changes applied. The same bytes if there are none, or if they
    /// cannot be applied; then @p problem says why, and where.
    [[nodiscard]] QByteArray edited(QString *problem) const;

private:
    void insertAfter(const XmlElement *neighbour, const RootChild &entry, const QString &markup);
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
