#include "Library/Helpers/FileSizeSignal.h"

namespace Quillmont::Library::Helpers {

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

} // namespace Quillmont::Library::Helpers
