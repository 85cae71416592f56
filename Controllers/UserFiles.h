#ifndef CONTROLLERS_USERFILES_H
#define CONTROLLERS_USERFILES_H

#include <QStandardPaths>
#include <QString>

namespace Quillmont::Utility::Controllers {

/// The per-user folder of @p location with every occurrence of the program's name removed, so that
/// the maker's programs share one folder. For the application-data location that is the data root,
/// with a trailing slash.
QString userDataRoot(QStandardPaths::StandardLocation location = QStandardPaths::AppDataLocation);

/// The folder of the installation record; a lock on it keeps copies of the program apart.
QString recordFolder();

/// The installation record: which files were installed where.
QString recordFile();

/// The same file under the path used for reading. Its doubled slash appears in the message about an
/// unreadable record and must stay.
QString recordFileToRead();

/// The folder of the settings that the maker's programs share, with a trailing slash.
QString settingsFolder();

/// The settings file in that folder. Its path keeps the slashes of the data root as they are.
QString settingsFile();

/// The file that tells the maker's other programs where this program is.
QString launcherPathFile();

} // namespace Quillmont::Utility::Controllers

#endif
