#ifndef TESTS_SUPPORT_DRIVER_CHANNEL_H
#define TESTS_SUPPORT_DRIVER_CHANNEL_H

namespace Tests {

/// The descriptors by which a test tells the driver in the program what to do, and hears of it:
/// not the standard ones, since the program may be started without any of those.
constexpr int driverInput = 20;
constexpr int driverOutput = 21;

} // namespace Tests

#endif
