#ifndef CONTROLLERS_USERFILES_H
#define CONTROLLERS_USERFILES_H

#include <QStandardPaths>
#include <QString>

namespace Quillmont::Utility::Controllers {

/// The per-user folder of @p location with the program's own name taken out wherever it occurs,
/// so that the maker's programs share one folder. For the application-data location that is the
/// data root, with a slash at its end.
QString userDataRoot(QStandardPaths::StandardLocation location = QStandardPaths::AppDataLocation);

/// The folder of the installation record; a lock on it keeps copies of the program apart.
QString recordFolder();

/// The installation record: which files went where.
QString recordFile();

/// The same file under the path that it is read by. That one has a doubled slash, which it has
/// always had, and which shows in the message about a record that cannot be read.
QString recordFileToRead();

/// The folder of the settings that the maker's programs share, with a slash at its end.
QString settingsFolder();

/// The settings file in that folder. Its path keeps the slashes of the data root as they are.
QString settingsFile();

/// The file in which the maker's other programs look up where this program is.
QString launcherPathFile();

} // namespace Quillmont::Utility::Controllers

#endif
