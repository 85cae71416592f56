#ifndef LIBRARY_HELPERS_XMLENTRYEDIT_H
#define LIBRARY_HELPERS_XMLENTRYEDIT_H

#include "Library/Models/XmlValues.h"
#include "Library/Text/TextSplice.h"

#include <QString>

namespace Quillmont::Library::Models {
class XmlConfigModel;
class XmlInsertionModel;
} // namespace Quillmont::Library::Models

namespace Quillmont::Library::Text {
class XmlSource;
} // namespace Quillmont::Library::Text

namespace Quillmont::Library::Xml {
class XmlDocument;
struct RootChild;
struct XmlElement;
} // namespace Quillmont::Library::Xml

namespace Quillmont::Library::Helpers {

/// Works out which changes of a document's text add our entry or take it out. The document's
/// wanted elements are the entries that the operation is about.
class XmlEntryEdit
{
public:
    /// @p document is the one that @p source holds; both have to live as long as this.
    XmlEntryEdit(const Text::XmlSource &source, const Xml::XmlDocument &document);

    /// Makes one entry the only one, and what @p model wants.
    void insert(const Models::XmlInsertionModel &model);

    /// Takes out what @p model says of each entry.
    void remove(const Models::XmlConfigModel &model);

    /// The changes; none if there is nothing to do.
    const Text::TextSplices &splices() const { return m_splices; }

    /// Why it cannot be done, and where; empty if it can.
    const QString &problem() const { return m_problem; }

private:
    void add(const Models::XmlInsertionModel &model);
    void update(const Xml::RootChild &entry, const Models::XmlValues &values);
    void replaceText(const Xml::XmlElement &child, const QString &text);
    void open(const Xml::XmlElement &element, const QString &content);
    void removeElement(const Xml::XmlElement &element);
    QString newElement(const QString &name, const QString &text);
    void refuse(const QString &reason);

    const Text::XmlSource &m_source;
    const Xml::XmlDocument &m_document;
    Text::TextSplices m_splices;
    QString m_problem;
};

} // namespace Quillmont::Library::Helpers

#endif
