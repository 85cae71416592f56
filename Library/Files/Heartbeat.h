#ifndef LIBRARY_FILES_HEARTBEAT_H
#define LIBRARY_FILES_HEARTBEAT_H

#include <QtGlobal>

#include <functional>

namespace Quillmont::Library::Files {

/// Long work reports here that it goes on, so that a listener on the same thread can keep a window
/// alive meanwhile.
class Heartbeat
{
public:
    /// Receives the number of bytes copied since the previous beat.
    using Listener = std::function<void(qint64 bytes)>;

    /// Calls @p listener for every beat from now on, including those within a file that QFile
    /// copies. An empty one ends that.
    static void setListener(Listener listener);

    /// Costs next to nothing without a listener.
    static void beat(qint64 bytes = 0);

    static bool isHeard();
};

} // namespace Quillmont::Library::Files

#endif
