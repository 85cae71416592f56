#ifndef LIBRARY_FILES_FILESTATUS_H
#define LIBRARY_FILES_FILESTATUS_H

namespace Quillmont::Library::Files {

/// What a file has beside its bytes.
class FileStatus
{
public:
    /// Gives the file behind the handle @p to what the one behind @p from has: owner and group
    /// where the system lets us, mode, access list, and the attributes that users attach to files.
    /// Whatever of it cannot be kept, nobody gets more rights than before. False, with errno set,
    /// when mode or attributes could not be given.
    static bool copy(int from, int to);
};

} // namespace Quillmont::Library::Files

#endif
