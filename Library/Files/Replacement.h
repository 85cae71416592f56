#ifndef LIBRARY_FILES_REPLACEMENT_H
#define LIBRARY_FILES_REPLACEMENT_H

#include <QByteArray>

namespace Quillmont::Library::Files {

/// A new file that can replace the one beside it. It is deleted with the object unless it has done
/// so.
class Replacement
{
public:
    enum Kind {
        Nameless, ///< Never outlives the process. Not every system and file system supports it.
        Named ///< Has a temporary name; left behind by a process that is killed.
    };

    /// Creates the file, open for writing, beside the native path @p target. With @p isPrivate only
    /// the owner may open it; otherwise it has the default mode.
    Replacement(const QByteArray &target, Kind kind, bool isPrivate);
    ~Replacement();
    Q_DISABLE_COPY(Replacement)

    /// Negative, with errno set, if the file could not be made.
    int handle() const { return m_handle; }

    /// Replaces the target, which may be missing. False, with errno set, if the system refuses.
    bool takePlace();

    /// Temporary name of the complete nameless file, just before it is renamed over @p target. It
    /// never varies, so that the next process recognises what a killed one has left.
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
    QByteArray m_name; ///< Empty while the file has no name.
};

} // namespace Quillmont::Library::Files

#endif
