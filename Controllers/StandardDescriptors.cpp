#include "Controllers/StandardDescriptors.h"

#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace Quillmont::Utility::Controllers {

// Whoever opens a file gets the lowest number that is free. Were it that of standard error, each
// line of the log would go into the installation record, or to the X server.
void tieClosedDescriptors()
{
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(standard, F_GETFD) == -1)
            ::open("/dev/null", O_RDONLY);
    }
}

} // namespace Quillmont::Utility::Controllers
