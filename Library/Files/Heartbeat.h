#ifndef LIBRARY_FILES_HEARTBEAT_H
#define LIBRARY_FILES_HEARTBEAT_H

#include <QtGlobal>

#include <functional>

namespace Quillmont::Library::Files {

/// Work that keeps the thread busy says here that it goes on, so that somebody can look after a
/// window meanwhile.
class Heartbeat
{
public:
    /// Gets the number of bytes that have been copied since the beat before.
    using Listener = std::function<void(qint64 bytes)>;

    /// @p listener hears every beat from now on, those in the middle of a file that QFile copies
    /// included. An empty one ends that.
    static void setListener(Listener listener);

    /// Costs next to nothing without a listener.
    static void beat(qint64 bytes = 0);

    static bool isHeard();
};

} // namespace Quillmont::Library::Files

#endif
