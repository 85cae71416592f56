#ifndef TESTS_CONTRACT_LOOKEDUPPATHS_H
#define TESTS_CONTRACT_LOOKEDUPPATHS_H

#include <QStringList>

namespace Tests {

/// Whether this system lets the test see which files are asked for.
bool canSeeLookUps();

/// The paths whose existence was asked for since the last call, in order.
QStringList takeLookedUpPaths();

} // namespace Tests

#endif
