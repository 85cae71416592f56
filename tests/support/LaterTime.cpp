#include "tests/support/LaterTime.h"

#include <ctime>

static std::time_t s_later = 0;

// Replaces the C library's function.
extern "C" time_t time(time_t *out) noexcept
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    now.tv_sec += s_later;
    if (out)
        *out = now.tv_sec;
    return now.tv_sec;
}

namespace Tests {

LaterTime::LaterTime(int seconds)
{
    s_later = seconds;
}

LaterTime::~LaterTime()
{
    s_later = 0;
}

} // namespace Tests
