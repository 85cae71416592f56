#ifndef DOCTOR_BACKUPS_H
#define DOCTOR_BACKUPS_H

#include <QJsonArray>

class QString;

namespace Quillmont::Utility::Doctor {

/// The backups beside the configuration file at @p path, the newest first, with "path", "time",
/// "size", "restore" (a command), and for the newest ones "wellFormed".
QJsonArray backupsOf(const QString &path);

} // namespace Quillmont::Utility::Doctor

#endif
