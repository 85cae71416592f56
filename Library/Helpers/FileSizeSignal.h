#ifndef LIBRARY_HELPERS_FILESIZESIGNAL_H
#define LIBRARY_HELPERS_FILESIZESIGNAL_H

#include <QtGlobal>

#include <csignal>

namespace Quillmont::Library::Helpers {

/// While it lives, a write past the file-size limit fails instead of ending the process.
class FileSizeSignal
{
public:
    FileSizeSignal();
    ~FileSizeSignal();
    Q_DISABLE_COPY(FileSizeSignal)

private:
    struct sigaction m_before = {};
};

} // namespace Quillmont::Library::Helpers

#endif
