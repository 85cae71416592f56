#ifndef FUZZ_EXPECT_H
#define FUZZ_EXPECT_H

#include <cstdio>

namespace Fuzz {

/// Ends the run as a finding unless it @p holds that @p what.
inline void expect(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "It does not hold that %s.\n", what);
    __builtin_trap();
}

} // namespace Fuzz

#endif
