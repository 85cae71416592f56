#ifndef DOCTOR_COLUMNS_H
#define DOCTOR_COLUMNS_H

#include <QStringList>

namespace Quillmont::Utility::Doctor {

/// The number of terminal columns that @p text takes: two per wide character, such as Japanese
/// ones, and none per combining character.
int columnsOf(const QString &text);

/// @p text in pieces between which a line may end: after blanks, which stay, and between wide
/// characters where their scripts allow it. Joined, they are the text again.
QStringList breakable(const QString &text);

} // namespace Quillmont::Utility::Doctor

#endif
