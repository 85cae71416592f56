#ifndef TESTS_CONTRACT_LOOKEDUPPATHS_H
#define TESTS_CONTRACT_LOOKEDUPPATHS_H

#include <QStringList>

namespace Tests {

/// Whether the test can see on this system which files are looked up.
bool canSeeLookUps();

/// The paths that were looked up since the last call, in order.
QStringList takeLookedUpPaths();

} // namespace Tests

#endif
