#include "Library/Files/FileSizeSignal.h"

namespace Quillmont::Library::Files {

FileSizeSignal::FileSizeSignal()
{
    struct sigaction ignore = {};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, &ignore, &m_before);
}

FileSizeSignal::~FileSizeSignal()
{
    sigaction(SIGXFSZ, &m_before, nullptr);
}

} // namespace Quillmont::Library::Files
