#ifndef CONTROLLERS_ACTIONLOG_H
#define CONTROLLERS_ACTIONLOG_H

#include <QDebug>

namespace Quillmont::Utility::Controllers {

/// Log of the program's actions for support, one line per action: informational lines in the
/// category "orbwell". Names and paths are quoted; the content of files is never logged.
QDebug logAction();

} // namespace Quillmont::Utility::Controllers

#endif
