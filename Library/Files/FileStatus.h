#ifndef LIBRARY_FILES_FILESTATUS_H
#define LIBRARY_FILES_FILESTATUS_H

namespace Quillmont::Library::Files {

/// A file's metadata.
class FileStatus
{
public:
    /// Copies metadata between open files, from @p from to @p to: mode, access list, user
    /// attributes, and owner and group where the system allows it. Whatever cannot be kept, nobody
    /// gets more rights than before; an attribute that is refused is logged. False, with errno set,
    /// if the mode could not be set or the disk has no room for an attribute.
    static bool copy(int from, int to);

    /// Whether both open files have the same owner, group and mode, that is, copy() left none of
    /// these out.
    static bool areAlike(int left, int right);
};

} // namespace Quillmont::Library::Files

#endif
