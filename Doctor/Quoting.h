#ifndef DOCTOR_QUOTING_H
#define DOCTOR_QUOTING_H

class QString;

namespace Quillmont::Utility::Doctor {

/// @p text on one line: control characters, line ends and bidirectional controls become escapes
/// such as "\u000a".
QString printable(const QString &text);

/// The same in quotation marks.
QString quoted(const QString &text);

/// @p text as one word of a shell's command line.
QString shellWord(const QString &text);

} // namespace Quillmont::Utility::Doctor

#endif
