#ifndef TESTS_ENDTOEND_DISK_H
#define TESTS_ENDTOEND_DISK_H

#include <QByteArray>
#include <QMap>
#include <QString>

namespace Tests {

/// Files and folders as treeOf() returns them: relative path to content; a folder's path ends with
/// a slash.
using Disk = QMap<QString, QByteArray>;

/// Adds a file and its parent folders.
void put(Disk *disk, const QString &path, const QByteArray &content);

/// Removes a file, or a folder ("a/b/") with everything in it.
void takeOut(Disk *disk, const QString &path);

/// The path that withFirstBackups() gives to the backups of @p file from "installation" or
/// "uninstallation".
QString backupOf(const QString &file, const char *occasion);

/// Replaces all backups of a file from one occasion by a single file "..._*.bak" with the earliest
/// content. Their number depends on the clock: those of one second share a name.
Disk withFirstBackups(const Disk &disk);

/// The differences, one per line; empty if there are none.
QString difference(const Disk &actual, const Disk &expected);

} // namespace Tests

#endif
