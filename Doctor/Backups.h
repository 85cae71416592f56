#ifndef DOCTOR_BACKUPS_H
#define DOCTOR_BACKUPS_H

#include <QJsonArray>

class QJsonObject;
class QString;

namespace Quillmont::Utility::Doctor {

/// The backups of the file at @p path, the newest first: "path", "time", "size", "restore" (what a
/// shell puts back with), and of the newest twenty "wellFormed".
QJsonArray backupsOf(const QString &path);

/// Which of them is the newest that is well formed; -1 if none is.
int newestGood(const QJsonArray &backups);

/// When a @p backup was made, as a user reads it.
QString timeOf(const QJsonObject &backup);

} // namespace Quillmont::Utility::Doctor

#endif
