#ifndef LIBRARY_FILES_FILESIZESIGNAL_H
#define LIBRARY_FILES_FILESIZESIGNAL_H

#include <QtGlobal>

#include <csignal>

namespace Quillmont::Library::Files {

/// Ignores SIGXFSZ for its lifetime: a write past the file-size limit fails instead of killing the
/// process.
class FileSizeSignal
{
public:
    FileSizeSignal();
    ~FileSizeSignal();
    Q_DISABLE_COPY(FileSizeSignal)

private:
    struct sigaction m_before = {};
};

} // namespace Quillmont::Library::Files

#endif
