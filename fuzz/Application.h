#ifndef FUZZ_APPLICATION_H
#define FUZZ_APPLICATION_H

namespace Fuzz {

/// Makes the toolkit's application object, as the program does, but without a screen, without a
/// command line, and with a log that nobody reads. It lives until the process ends.
void makeApplication();

} // namespace Fuzz

#endif
