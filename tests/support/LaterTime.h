#ifndef TESTS_SUPPORT_LATERTIME_H
#define TESTS_SUPPORT_LATERTIME_H

namespace Tests {

/// Makes time() answer a number of seconds more in this process, for its own lifetime.
class LaterTime
{
public:
    explicit LaterTime(int seconds);
    ~LaterTime();
    LaterTime(const LaterTime &) = delete;
    LaterTime &operator=(const LaterTime &) = delete;
};

} // namespace Tests

#endif
