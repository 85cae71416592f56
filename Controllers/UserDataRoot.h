#ifndef CONTROLLERS_USERDATAROOT_H
#define CONTROLLERS_USERDATAROOT_H

#include <QStandardPaths>
#include <QString>

namespace Quillmont::Utility::Controllers {

/// The per-user folder of @p location with the program's own name taken out wherever it stands,
/// so that the maker's programs share one folder. For the application-data location that is the
/// data root, with a slash at its end.
QString userDataRoot(QStandardPaths::StandardLocation location = QStandardPaths::AppDataLocation);

} // namespace Quillmont::Utility::Controllers

#endif
