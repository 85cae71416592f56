#ifndef LIBRARY_FILES_LIBRARYLOG_H
#define LIBRARY_FILES_LIBRARYLOG_H

#include <QLoggingCategory>

namespace Quillmont::Library::Files {

/// "orbwell.xml": why an XML configuration file was left as it is.
Q_DECLARE_LOGGING_CATEGORY(xmlLog)

/// "orbwell.file": why a file was not written, or which attribute was not kept.
Q_DECLARE_LOGGING_CATEGORY(fileLog)

} // namespace Quillmont::Library::Files

#endif
