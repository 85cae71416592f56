#ifndef FUZZ_APPLICATION_H
#define FUZZ_APPLICATION_H

namespace Fuzz {

/// Creates the QApplication like the program, but without a screen and a command line, and discards
/// the log. It exists until the process ends.
void makeApplication();

} // namespace Fuzz

#endif
