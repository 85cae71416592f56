#include "Controllers/ActionLog.h"

namespace Quillmont::Utility::Controllers {

Q_LOGGING_CATEGORY(actionLog, "orbwell")

} // namespace Quillmont::Utility::Controllers
