#include "Library/Helpers/LibraryLog.h"

namespace Quillmont::Library::Helpers {

Q_LOGGING_CATEGORY(xmlLog, "orbwell.xml")
Q_LOGGING_CATEGORY(fileLog, "orbwell.file")

} // namespace Quillmont::Library::Helpers
