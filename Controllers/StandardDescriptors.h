#ifndef CONTROLLERS_STANDARDDESCRIPTORS_H
#define CONTROLLERS_STANDARDDESCRIPTORS_H

namespace Quillmont::Utility::Controllers {

/// Gives standard input, output and error to /dev/null where they are closed: nothing can be read
/// there, and writing fails. For the start of a program, before anything opens a file.
void tieClosedDescriptors();

} // namespace Quillmont::Utility::Controllers

#endif
