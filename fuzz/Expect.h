#ifndef FUZZ_EXPECT_H
#define FUZZ_EXPECT_H

#include <cstdio>

namespace Fuzz {

/// Reports a finding unless @p holds; @p what describes the expectation.
inline void expect(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "It does not hold that %s.\n", what);
    __builtin_trap();
}

} // namespace Fuzz

#endif
