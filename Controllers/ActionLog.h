#ifndef CONTROLLERS_ACTIONLOG_H
#define CONTROLLERS_ACTIONLOG_H

#include <QLoggingCategory>

namespace Quillmont::Utility::Controllers {

/// Where the program writes down what it does, a line an action, for support: the category
/// "orbwell". Paths and names are written in quotes, and what files hold is never written.
Q_DECLARE_LOGGING_CATEGORY(actionLog)

} // namespace Quillmont::Utility::Controllers

#endif
