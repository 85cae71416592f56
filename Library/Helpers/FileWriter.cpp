#include "Library/Helpers/FileWriter.h"

#include "Library/Helpers/FileSizeSignal.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Quillmont::Library::Helpers {

namespace {

// The file that a chain of symbolic links ends at, which need not exist. Where a link lies behind
// a linked folder, ".." in it means that folder's real parent.
QString linkTarget(const QString &path)
{
    QFileInfo info(path);
    if (info.exists())
        return info.canonicalFilePath();
    constexpr int longestChain = 40;
    for (int i = 0; i < longestChain && info.isSymLink(); ++i) {
        const QFileInfo link(QFileInfo(info.path()).canonicalFilePath() + u'/' + info.fileName());
        info.setFile(link.symLinkTarget());
    }
    return info.filePath();
}

// Only the superuser gives files away, and not everybody may set every group.
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

// QSaveFile keeps the mode as well, but does not notice when that fails.
bool keepMode(int handle, const struct stat &before)
{
    constexpr mode_t mask = 07777;
    struct stat now = {};
    if (fstat(handle, &now) != 0)
        return false;
    return (now.st_mode & mask) == (before.st_mode & mask)
        || fchmod(handle, before.st_mode & mask) == 0;
}

// Gives the file behind @p handle what the file at @p path has, if there is one.
bool keepStatus(int handle, const QString &path)
{
    struct stat before = {};
    if (stat(QFile::encodeName(path).constData(), &before) != 0)
        return errno == ENOENT;
    keepOwner(handle, before);
    return keepMode(handle, before);
}

// Some file systems find out only here that the disk is full; others have nothing to sync.
bool isOnDisk(int handle)
{
    return fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool fill(QFileDevice *file, const QString &target, const QByteArray &bytes)
{
    // Not every file device notices by itself that the rest of its buffer found no room.
    return keepStatus(file->handle(), target) && file->write(bytes) == bytes.size() && file->flush()
        && isOnDisk(file->handle());
}

// The name that new bytes bear from when they are complete until they are in their place. It is
// always the same, so that the next process can tell what a killed one left from others' files.
QByteArray unfinishedName(const QString &target)
{
    return QFile::encodeName(target + QStringLiteral("_quillmont_unfinished"));
}

// Opens a file without a name in the folder of @p target, gone by itself with its process. Not
// every system and file system has such files.
bool openNameless(QFile *file, const QString &target)
{
#ifdef O_TMPFILE
    constexpr mode_t usual = 0666;
    const QByteArray folder = QFile::encodeName(QFileInfo(target).absolutePath());
    const int handle = ::open(folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, usual);
    return handle >= 0 && file->open(handle, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
#else
    Q_UNUSED(file)
    Q_UNUSED(target)
    return false;
#endif
}

bool giveName(int handle, const QByteArray &name)
{
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(handle);
    const auto give = [&] {
        return linkat(AT_FDCWD, self.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW)
            == 0;
    };
    return give() || (errno == EEXIST && unlink(name.constData()) == 0 && give());
}

bool putInPlace(int handle, const QString &target)
{
    const QByteArray name = unfinishedName(target);
    if (!giveName(handle, name))
        return false;
    if (std::rename(name.constData(), QFile::encodeName(target).constData()) == 0)
        return true;
    unlink(name.constData());
    return false;
}

// A process that is killed on the way leaves nothing, or what clearUnfinished() takes away.
bool writeNameless(const QString &target, const QByteArray &bytes)
{
    const QFileInfo info(target);
    QFile file;
    return (!info.exists() || info.isWritable()) && openNameless(&file, target)
        && fill(&file, target, bytes) && putInPlace(file.handle(), target);
}

// The way for all systems; a killed process can leave a file of any name here.
bool writeNamed(const QString &target, const QByteArray &bytes, QString *problem)
{
    QSaveFile file(target);
    if (file.open(QIODevice::WriteOnly) && fill(&file, target, bytes) && file.commit())
        return true;
    *problem = QStringLiteral("cannot be written: %1").arg(file.errorString());
    return false;
}

} // namespace

bool FileWriter::write(const QString &path, const QByteArray &bytes, QString *problem)
{
    const FileSizeSignal ignored;
    const QString target = linkTarget(path);
    const QFileInfo info(target);
    if (info.isSymLink() || (info.exists() && !info.isFile())) {
        *problem = QStringLiteral("not a regular file");
        return false;
    }
    return writeNameless(target, bytes) || writeNamed(target, bytes, problem);
}

bool FileWriter::hasUnfinished(const QString &path)
{
    struct stat left = {};
    return lstat(unfinishedName(linkTarget(path)).constData(), &left) == 0 && S_ISREG(left.st_mode);
}

void FileWriter::clearUnfinished(const QString &path)
{
    unlink(unfinishedName(linkTarget(path)).constData());
}

} // namespace Quillmont::Library::Helpers
