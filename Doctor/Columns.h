#ifndef DOCTOR_COLUMNS_H
#define DOCTOR_COLUMNS_H

#include <QStringList>

namespace Quillmont::Utility::Doctor {

/// How many columns of a terminal @p text takes: two for a wide character, as the Japanese ones
/// are, and none for what combines with the one before it.
int columnsOf(const QString &text);

/// @p text in pieces between which a line may end: behind blanks, which stay, and between wide
/// characters where the rules of their scripts allow it. Put together they are the text again.
QStringList breakable(const QString &text);

} // namespace Quillmont::Utility::Doctor

#endif
