#include "Library/Files/Heartbeat.h"

#ifdef Q_OS_LINUX
#include <algorithm>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace Quillmont::Library::Files {

namespace {

Heartbeat::Listener &currentListener()
{
    static Heartbeat::Listener listener;
    return listener;
}

} // namespace

void Heartbeat::setListener(Listener listener)
{
    currentListener() = std::move(listener);
}

void Heartbeat::beat(qint64 bytes)
{
    if (isHeard())
        currentListener()(bytes);
}

bool Heartbeat::isHeard()
{
    return static_cast<bool>(currentListener());
}

} // namespace Quillmont::Library::Files

#ifdef Q_OS_LINUX

using Quillmont::Library::Files::Heartbeat;

namespace {

constexpr size_t pieceSize = 1 << 20;

// Has the drive begin with the piece before the end of @p file, and waits for the one before that.
// Otherwise all would be in memory in a moment, and the call that QFile makes last would take
// minutes for a slow drive.
void writeOut(int file)
{
    constexpr off_t size = pieceSize;
    constexpr unsigned begin = SYNC_FILE_RANGE_WRITE;
    const off_t end = ::lseek(file, 0, SEEK_CUR);
    ::sync_file_range(file, std::max<off_t>(end - size, 0), size, begin);
    if (end > size)
        ::sync_file_range(file,
                          std::max<off_t>(end - 2 * size, 0),
                          size,
                          begin | SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WAIT_AFTER);
}

} // namespace

// QFile::copy() has the system copy up to 2 GB in one call, and calls again until all is copied.
// It calls this function in place of the C library's, since the program's own come first. Nothing
// changes for it but that each call copies less, and the same thread can do something in between.
extern "C" Q_DECL_EXPORT ssize_t sendfile(int out, int in, off_t *offset, size_t count) noexcept
{
    if (!Heartbeat::isHeard())
        return ::syscall(SYS_sendfile, out, in, offset, count);
    const ssize_t copied
        = ::syscall(SYS_sendfile, out, in, offset, std::min<size_t>(count, pieceSize));
    if (copied > 0) {
        writeOut(out);
        Heartbeat::beat(copied);
    }
    return copied;
}

#endif
