#include "Library/Files/FileWriter.h"

#include "Library/Files/FileSizeSignal.h"
#include "Library/Files/FileStatus.h"
#include "Library/Files/LinkTarget.h"
#include "Library/Files/Replacement.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Quillmont::Library::Files {

namespace {

bool put(int handle, qint64 begin, const QByteArray &bytes)
{
    if (lseek(handle, begin, SEEK_SET) != begin)
        return false;
    for (int done = 0; done < bytes.size();) {
        const ssize_t size = ::write(handle, bytes.constData() + done, size_t(bytes.size() - done));
        if (size < 0 && errno != EINTR)
            return false;
        done += int(qMax(size, ssize_t(0)));
    }
    return true;
}

// Some file systems report a full disk only here; others do not support fsync().
bool isOnDisk(int handle)
{
    return fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// Whether the path is a regular file or does not exist.
bool isFileOrMissing(const QByteArray &path)
{
    struct stat status = {};
    return lstat(path.constData(), &status) == 0 ? S_ISREG(status.st_mode) : errno == ENOENT;
}

// Opens the old file for writing, so that the system refuses to replace a read-only one.
bool openOld(const QByteArray &target, QFile *old)
{
    const int handle = ::open(target.constData(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0)
        return errno == ENOENT;
    return old->open(handle, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
}

// How much of the old file's metadata the new one must have.
enum Keeping {
    WhatCanBeKept,
    AllOfIt
};

bool giveStatus(const Replacement &file, const QFile &old, Keeping keeping)
{
    if (!FileStatus::copy(old.handle(), file.handle()))
        return false;
    const bool isKept
        = keeping == WhatCanBeKept || FileStatus::areAlike(old.handle(), file.handle());
    if (!isKept)
        errno = EPERM;
    return isKept;
}

bool fill(const Replacement &file, const QFile &old, const QByteArray &bytes, Keeping keeping)
{
    return file.handle() >= 0 && (!old.isOpen() || giveStatus(file, old, keeping))
        && put(file.handle(), 0, bytes) && isOnDisk(file.handle());
}

// Replaces the target; @p old is open if there is an old file. Returns errno, or 0.
int replace(const QByteArray &target, const QFile &old, const QByteArray &bytes, Keeping keeping)
{
    int error = EINVAL;
    for (const auto kind : {Replacement::Nameless, Replacement::Named}) {
        Replacement file(target, kind, old.isOpen());
        error = fill(file, old, bytes, keeping) && file.takePlace() ? 0 : errno;
        if (error == 0)
            break;
    }
    return error;
}

// Appended before the old bytes are overwritten: only this needs room on the disk.
bool append(QFile *file, qint64 end, const QByteArray &bytes)
{
    if (put(file->handle(), end, bytes) && isOnDisk(file->handle()))
        return true;
    const int error = errno;
    file->resize(end);
    errno = error;
    return false;
}

bool writeOver(QFile *file, const QByteArray &bytes)
{
    const QByteArray old = file->readAll();
    const int handle = file->handle();
    if (file->error() != QFileDevice::NoError || !append(file, old.size(), bytes.mid(old.size())))
        return false;
    if (put(handle, 0, bytes.left(old.size())) && file->resize(bytes.size()) && isOnDisk(handle))
        return true;
    const int error = errno;
    put(handle, 0, old);
    file->resize(old.size());
    errno = error;
    return false;
}

bool hasFurtherNames(const QFile &file)
{
    struct stat status = {};
    return fstat(file.handle(), &status) == 0 && status.st_nlink > 1;
}

// On a full or broken disk the old bytes are safe only if they are not overwritten.
bool isDiskError(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EFBIG || error == EIO;
}

QString notWritten(int error)
{
    return QStringLiteral("cannot be written: %1").arg(qt_error_string(error));
}

} // namespace

bool FileWriter::write(const QString &path, const QByteArray &bytes, QString *problem)
{
    const FileSizeSignal ignored;
    const QByteArray target = linkTarget(path);
    if (target.isEmpty() || !isFileOrMissing(target)) {
        *problem = QStringLiteral("not a regular file");
        return false;
    }
    QFile old;
    const int error = openOld(target, &old) ? replace(target, old, bytes, WhatCanBeKept) : errno;
    if (error != 0)
        *problem = notWritten(error);
    return error == 0;
}

bool FileWriter::rewrite(QFile *file, const QByteArray &bytes, QString *problem)
{
    const FileSizeSignal ignored;
    const QByteArray target = linkTarget(file->fileName());
    const bool isReplaceable = !target.isEmpty() && !hasFurtherNames(*file);
    int error = isReplaceable ? replace(target, *file, bytes, AllOfIt) : EMLINK;
    if (error != 0 && !isDiskError(error))
        error = writeOver(file, bytes) ? 0 : errno;
    if (error != 0)
        *problem = notWritten(error);
    return error == 0;
}

bool FileWriter::hasUnfinished(const QString &path)
{
    const QByteArray target = linkTarget(path);
    struct stat left = {};
    return !target.isEmpty() && lstat(Replacement::unfinishedName(target).constData(), &left) == 0
        && S_ISREG(left.st_mode);
}

void FileWriter::clearUnfinished(const QString &path)
{
    const QByteArray target = linkTarget(path);
    if (!target.isEmpty())
        unlink(Replacement::unfinishedName(target).constData());
}

} // namespace Quillmont::Library::Files
