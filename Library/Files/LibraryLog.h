#ifndef LIBRARY_FILES_LIBRARYLOG_H
#define LIBRARY_FILES_LIBRARYLOG_H

#include <QLoggingCategory>

namespace Quillmont::Library::Files {

/// Debug lines about configuration entries: why an XML file was left as it is. "orbwell.xml".
Q_DECLARE_LOGGING_CATEGORY(xmlLog)

/// Debug lines about files: why one was not written, or what of it was not kept. "orbwell.file".
Q_DECLARE_LOGGING_CATEGORY(fileLog)

} // namespace Quillmont::Library::Files

#endif
