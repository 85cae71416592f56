#ifndef TESTS_SUPPORT_ATTRIBUTES_H
#define TESTS_SUPPORT_ATTRIBUTES_H

#include <QByteArray>
#include <QString>

namespace Tests {

/// The attributes that hold the access list of a file, and the one that a folder passes on.
extern const char *const accessListName;
extern const char *const passedOnListName;

/// The value of an extended attribute of the file; null if it has none of that name.
QByteArray attribute(const QString &path, const char *name);

/// Sets one; false if this system, or the file system, has no such attribute.
bool setAttribute(const QString &path, const char *name, const QByteArray &value);

/// An access list: its owner may read and write, user 12345 has the rights @p user, the file's
/// group @p group, everybody else @p others, and user and group at most @p mask.
QByteArray accessList(unsigned user, unsigned group, unsigned mask, unsigned others);

/// The permission bits of the file, set-user-ID and the like included.
unsigned modeOf(const QString &path);

/// Sets them; a failure ends the test program.
void setMode(const QString &path, unsigned mode);

} // namespace Tests

#endif
