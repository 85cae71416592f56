#ifndef LIBRARY_FILES_ACCESSLIST_H
#define LIBRARY_FILES_ACCESSLIST_H

#include <QByteArray>

#include <sys/types.h>

namespace Quillmont::Library::Files {

/// Who may do what with a file: its mode, and the list of further users and groups that some have.
/// With such a list, the mode's group bits are the upper limit of everybody on it.
class AccessList
{
public:
    /// Reads the list of the file open as @p handle, which has to stay open; the mode is @p mode.
    AccessList(int handle, mode_t mode);

    /// For a file that gets another group: limits the group and all others to what others could do
    /// before, so that nobody gains rights, whatever groups they are in.
    void narrow();

    /// Sets this list and mode on the file open as @p handle, replacing what it inherited from its
    /// folder. If the list cannot be set, only the owner has rights. False, with errno set, if the
    /// mode cannot be set.
    bool giveTo(int handle) const;

private:
    const int m_handle;
    mode_t m_mode;
    QByteArray m_list; ///< As the system stores it, if it has one; otherwise empty.
    bool m_isKnown = true;
};

} // namespace Quillmont::Library::Files

#endif
