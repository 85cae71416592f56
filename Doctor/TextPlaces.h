#ifndef DOCTOR_TEXTPLACES_H
#define DOCTOR_TEXTPLACES_H

class QString;

namespace Quillmont::Library::Text {
class XmlSource;
} // namespace Quillmont::Library::Text

namespace Quillmont::Utility::Doctor {

/// The number of the line, from 1, that the character at @p place is in. "\n", "\r\n" and "\r" end
/// a line.
int lineAt(const QString &text, int place);

/// Its column in that line, from 1.
int columnAt(const QString &text, int place);

/// That line, without its end.
QString wholeLineAt(const QString &text, int place);

/// The place in @p text that the library's @p problem names, "line 3, column 5: why".
int placeIn(const QString &problem, const QString &text);

/// The offset in the text of @p source of the first bytes that are invalid in its encoding; -1 if
/// there are none.
int firstInvalid(const Library::Text::XmlSource &source);

} // namespace Quillmont::Utility::Doctor

#endif
