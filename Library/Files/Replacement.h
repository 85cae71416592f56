#ifndef LIBRARY_FILES_REPLACEMENT_H
#define LIBRARY_FILES_REPLACEMENT_H

#include <QByteArray>

namespace Quillmont::Library::Files {

/// A new file beside another, which it can take the place of. It ends with the object unless it
/// does so.
class Replacement
{
public:
    enum Kind {
        Nameless, ///< Ends with the process, too. Not every system and file system has such files.
        Named ///< Under a name of its own; a process that is killed leaves it there.
    };

    /// Makes the file, open for writing, beside the one with the native path @p target. Only the
    /// owner may open it when it is to be @p isPrivate, otherwise whom the system lets by itself.
    Replacement(const QByteArray &target, Kind kind, bool isPrivate);
    ~Replacement();
    Q_DISABLE_COPY(Replacement)

    /// Negative, with errno set, if the file could not be made.
    int handle() const { return m_handle; }

    /// Lets the file replace the target, which may be missing. False, with errno set, if the
    /// system refuses.
    bool takePlace();

    /// The name that a nameless file bears from when it is complete until it is in the place of
    /// @p target. It is always the same, so that the next process can tell what a killed one left
    /// from others' files.
    static QByteArray unfinishedName(const QByteArray &target);

private:
    void open(const QByteArray &path, int flags);
    void openNameless();
    void openNamed();
    bool giveName();

    const QByteArray m_target;
    const QByteArray m_unfinished;
    const unsigned m_mode;
    int m_handle = -1;
    QByteArray m_name; ///< Empty while the file has none.
};

} // namespace Quillmont::Library::Files

#endif
