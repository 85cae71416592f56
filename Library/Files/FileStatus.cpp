#include "Library/Files/FileStatus.h"

#include "Library/Files/AccessList.h"
#include "Library/Files/LibraryLog.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

#ifdef Q_OS_LINUX
#include <linux/limits.h>
#include <sys/xattr.h>
#elif defined(Q_OS_MACOS)
#include <copyfile.h>
#endif

namespace Quillmont::Library::Files {

namespace {

// Only root may change the owner, and other users may set only their own groups.
void keepOwner(int handle, const struct stat &before)
{
    constexpr auto same = static_cast<uid_t>(-1);
    struct stat now = {};
    if (fstat(handle, &now) != 0 || (now.st_uid == before.st_uid && now.st_gid == before.st_gid))
        return;
    if (fchown(handle, before.st_uid, before.st_gid) != 0
        && fchown(handle, same, before.st_gid) != 0)
        errno = 0;
}

#ifdef Q_OS_LINUX

// Goes on without an attribute that is refused, which would otherwise block every change of the
// file for good. A full disk is an error: that passes.
bool copyAttribute(int from, int to, const char *name)
{
    QByteArray value(XATTR_SIZE_MAX, Qt::Uninitialized);
    const ssize_t size = fgetxattr(from, name, value.data(), size_t(value.size()));
    if (size >= 0 && fsetxattr(to, name, value.constData(), size_t(size), 0) == 0)
        return true;
    if (errno == ENOSPC || errno == EDQUOT || errno == EIO)
        return false;
    const int error = errno;
    qCDebug(fileLog, "attribute not kept: %s: %s", name, qUtf8Printable(qt_error_string(error)));
    return true;
}

bool copyAttributes(int from, int to)
{
    QByteArray names(XATTR_LIST_MAX, Qt::Uninitialized);
    const ssize_t size = flistxattr(from, names.data(), size_t(names.size()));
    if (size < 0)
        return errno == ENOTSUP || errno == ENOSYS;
    const auto all = names.left(int(size)).split('\0');
    return std::all_of(all.cbegin(), all.cend(), [from, to](const QByteArray &name) {
        return !name.startsWith("user.") || copyAttribute(from, to, name.constData());
    });
}

#else

bool copyAttributes([[maybe_unused]] int from, [[maybe_unused]] int to)
{
#ifdef Q_OS_MACOS
    return fcopyfile(from, to, nullptr, COPYFILE_XATTR) == 0;
#else
    return true;
#endif
}

#endif

} // namespace

bool FileStatus::copy(int from, int to)
{
    struct stat before = {};
    struct stat now = {};
    if (fstat(from, &before) != 0)
        return false;
    keepOwner(to, before);
    if (fstat(to, &now) != 0)
        return false;

    AccessList list(from, before.st_mode);
    if (now.st_gid != before.st_gid)
        list.narrow();
    // In this order: the mode may forbid writing attributes.
    return copyAttributes(from, to) && list.giveTo(to);
}

bool FileStatus::areAlike(int left, int right)
{
    struct stat one = {};
    struct stat other = {};
    return fstat(left, &one) == 0 && fstat(right, &other) == 0 && one.st_uid == other.st_uid
        && one.st_gid == other.st_gid && one.st_mode == other.st_mode;
}

} // namespace Quillmont::Library::Files
