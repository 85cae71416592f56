#ifndef TESTS_ENDTOEND_DISK_H
#define TESTS_ENDTOEND_DISK_H

#include <QByteArray>
#include <QMap>
#include <QString>

namespace Tests {

/// Files and folders as treeOf() gives them: relative path to content, a folder's path with a
/// slash at its end.
using Disk = QMap<QString, QByteArray>;

/// Puts a file there, with the folders to it.
void put(Disk *disk, const QString &path, const QByteArray &content);

/// Takes out a file, or a folder ("a/b/") and all that is in it.
void takeOut(Disk *disk, const QString &path);

/// The path that withFirstBackups() gives to the backups of @p file from "installation" or
/// "uninstallation".
QString backupOf(const QString &file, const char *occasion);

/// Each set of backups that one file has from one occasion, as one file "..._*.bak" that holds
/// the earliest. How many more there are depends on the clock: those of one second share a name.
Disk withFirstBackups(const Disk &disk);

/// What differs, a line each; empty if nothing does.
QString difference(const Disk &actual, const Disk &expected);

} // namespace Tests

#endif
