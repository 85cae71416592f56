#ifndef LIBRARY_XML_XMLSPACE_H
#define LIBRARY_XML_XMLSPACE_H

#include <QString>

/// XML white space around places in a text; a place is a character index.
namespace Quillmont::Library::Xml::XmlSpace {

/// Where the white space begins that ends at @p place.
int begin(const QString &text, int place);

/// Where the white space ends that begins at @p place.
int end(const QString &text, int place);

/// @p text without the white space at both its ends.
QString trimmed(const QString &text);

/// The white space before @p place from its last line end on; all of it if it has none.
QString lineBefore(const QString &text, int place);

/// Whether there is a line end in @p text.
bool hasLineEnd(const QStringRef &text);

/// Whether only white space is between the beginning of a line and @p place.
bool beginsLine(const QString &text, int place);

/// The last line end before @p place, as it is written; empty if there is none.
QString lineEndBefore(const QString &text, int place);

/// @p line without its leading line end.
QString indent(const QString &line);

} // namespace Quillmont::Library::Xml::XmlSpace

#endif
