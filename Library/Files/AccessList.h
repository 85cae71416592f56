#ifndef LIBRARY_FILES_ACCESSLIST_H
#define LIBRARY_FILES_ACCESSLIST_H

#include <QByteArray>

#include <sys/types.h>

namespace Quillmont::Library::Files {

/// Who may do what with a file: its mode, and the list of further users and groups that some have.
/// With such a list, the group's bits of the mode are the most that anybody on it may do.
class AccessList
{
public:
    /// The list of the file behind @p handle, which stays open as long as this lives, with @p mode.
    AccessList(int handle, mode_t mode);

    /// For a file of another group: it and everybody else may do only what all others could do
    /// before, so that nobody has more rights, whatever groups they are in.
    void narrow();

    /// Gives the file behind @p handle this list and mode, in place of what it inherited from its
    /// folder. Where the list cannot be given, only the owner has rights. False, with errno set,
    /// when the mode cannot be given.
    bool giveTo(int handle) const;

private:
    const int m_handle;
    mode_t m_mode;
    QByteArray m_list; ///< As the system stores it, if it has one; otherwise empty.
    bool m_isKnown = true;
};

} // namespace Quillmont::Library::Files

#endif
