#ifndef LIBRARY_FILES_FILESTATUS_H
#define LIBRARY_FILES_FILESTATUS_H

namespace Quillmont::Library::Files {

/// What a file has beside its bytes.
class FileStatus
{
public:
    /// Gives the file behind the handle @p to what the one behind @p from has: owner and group
    /// where the system lets us, mode, access list, and the attributes that users attach to files.
    /// Whatever of it cannot be kept, nobody gets more rights than before; an attribute that is not
    /// taken has a line in the log. False, with errno set, when the mode could not be given, or the
    /// disk has no room for an attribute.
    static bool copy(int from, int to);

    /// Whether the files behind both handles have the same owner, group and mode, so that copy()
    /// had nothing to leave out.
    static bool areAlike(int left, int right);
};

} // namespace Quillmont::Library::Files

#endif
