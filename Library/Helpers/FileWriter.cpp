#include "Library/Helpers/FileWriter.h"

#include "Library/Helpers/FileSizeSignal.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace Quillmont::Library::Helpers {

namespace {

/// The file that a chain of symbolic links ends at, which need not exist. Where a link lies behind
/// a linked folder, ".." in it means that folder's real parent.
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

/// Only the superuser gives files away, and not everybody may set every group.
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

/// QSaveFile keeps the mode as well, but does not notice when that fails.
bool keepMode(int handle, const struct stat &before)
{
    constexpr mode_t mask = 07777;
    struct stat now = {};
    if (fstat(handle, &now) != 0)
        return false;
    return (now.st_mode & mask) == (before.st_mode & mask)
        || fchmod(handle, before.st_mode & mask) == 0;
}

/// Gives the file behind @p handle what the file at @p path has, if there is one.
bool keepStatus(int handle, const QString &path)
{
    struct stat before = {};
    if (stat(QFile::encodeName(path).constData(), &before) != 0)
        return errno == ENOENT;
    keepOwner(handle, before);
    return keepMode(handle, before);
}

/// Some file systems find out only here that the disk is full; others have nothing to sync.
bool isOnDisk(int handle)
{
    return fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
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

    QSaveFile file(target);
    // commit() does not notice by itself that the rest of its buffer found no room.
    if (file.open(QIODevice::WriteOnly) && keepStatus(file.handle(), target)
        && file.write(bytes) == bytes.size() && file.flush() && isOnDisk(file.handle())
        && file.commit())
        return true;
    *problem = QStringLiteral("cannot be written: %1").arg(file.errorString());
    return false;
}

} // namespace Quillmont::Library::Helpers
