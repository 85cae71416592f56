#ifndef DOCTOR_BACKUPS_H
#define DOCTOR_BACKUPS_H

#include <QJsonArray>

class QJsonObject;
class QString;

namespace Quillmont::Utility::Doctor {

/// The backups of the file at @p path, the newest first, with "path", "time", "size", "restore" (a
/// shell command), and for the newest twenty "wellFormed".
QJsonArray backupsOf(const QString &path);

/// The index of the newest of @p backups that is well formed; -1 if none is.
int newestGood(const QJsonArray &backups);

/// When a @p backup was made, as a user reads it.
QString timeOf(const QJsonObject &backup);

} // namespace Quillmont::Utility::Doctor

#endif
