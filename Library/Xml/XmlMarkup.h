#ifndef LIBRARY_XML_XMLMARKUP_H
#define LIBRARY_XML_XMLMARKUP_H

class QString;

/// Builds and escapes what is written into a document.
namespace Quillmont::Library::Xml::XmlMarkup {

/// The element @p name that holds @p text, on one line. A null text if XML cannot hold the name or
/// the text.
[[nodiscard]] QString element(const QString &name, const QString &text);

/// @p text escaped to be the content of an element. A null text if XML cannot hold it.
[[nodiscard]] QString escaped(const QString &text);

} // namespace Quillmont::Library::Xml::XmlMarkup

#endif
