#ifndef DOCTOR_TAGTEXT_H
#define DOCTOR_TAGTEXT_H

class QString;
class QStringRef;

namespace Quillmont::Utility::Doctor {

// What is wrong in a text whose tags agree with each other.

/// @p text with blanks in place of comments, CDATA sections, instructions and the document type.
QString withoutSpecialMarkup(const QString &text);

/// The offset of the first "&" that does not begin a reference; -1 if there is none.
int firstBareAmpersand(const QString &text);

/// The name, in @p text, of the first attribute whose value has no quotation marks; null without
/// any.
QStringRef firstBareAttribute(const QString &text);

} // namespace Quillmont::Utility::Doctor

#endif
