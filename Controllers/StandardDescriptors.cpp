#include "Controllers/StandardDescriptors.h"

#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace Quillmont::Utility::Controllers {

// A new file gets the lowest free descriptor. If that were standard error's, each log line would go
// into the installation record or to the X server. For reading only, so that writing still fails.
void tieClosedDescriptors()
{
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(standard, F_GETFD) == -1)
            ::open("/dev/null", O_RDONLY);
    }
}

} // namespace Quillmont::Utility::Controllers
