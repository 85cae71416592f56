#include "Library/Files/LibraryLog.h"

namespace Quillmont::Library::Files {

Q_LOGGING_CATEGORY(xmlLog, "orbwell.xml")
Q_LOGGING_CATEGORY(fileLog, "orbwell.file")

} // namespace Quillmont::Library::Files
