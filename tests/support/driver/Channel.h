#ifndef TESTS_SUPPORT_DRIVER_CHANNEL_H
#define TESTS_SUPPORT_DRIVER_CHANNEL_H

namespace Tests {

/// The descriptors by which a test sends commands to the driver in the program, and gets its
/// answers: not the standard ones, since the program may be started without these.
constexpr int driverInput = 20;
constexpr int driverOutput = 21;

} // namespace Tests

#endif
