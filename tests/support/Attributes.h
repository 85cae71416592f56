#ifndef TESTS_SUPPORT_ATTRIBUTES_H
#define TESTS_SUPPORT_ATTRIBUTES_H

#include <QByteArray>
#include <QString>

namespace Tests {

/// The attributes with a file's access list, and with the default list of a folder.
extern const char *const accessListName;
extern const char *const passedOnListName;

/// The value of an extended attribute of the file; null if it does not have it.
QByteArray attribute(const QString &path, const char *name);

/// Sets an attribute; false if the system or the file system does not support it.
bool setAttribute(const QString &path, const char *name, const QByteArray &value);

/// An access list: the owner may read and write, user 12345 has the rights @p user, the file's
/// group @p group, everybody else @p others; @p mask limits user and group.
QByteArray accessList(unsigned user, unsigned group, unsigned mask, unsigned others);

/// The permission bits of the file, including set-user-ID and the like.
unsigned modeOf(const QString &path);

/// Sets them; a failure ends the test program.
void setMode(const QString &path, unsigned mode);

} // namespace Tests

#endif
