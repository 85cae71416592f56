#ifndef CONTROLLERS_ACTIONLOG_H
#define CONTROLLERS_ACTIONLOG_H

#include <QDebug>

namespace Quillmont::Utility::Controllers {

/// Where the program writes down what it does, one line per action, for support: informational
/// lines in the category "orbwell". Names and paths come out in quotes; what files hold is never
/// written.
QDebug logAction();

} // namespace Quillmont::Utility::Controllers

#endif
