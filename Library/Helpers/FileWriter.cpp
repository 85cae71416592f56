#include "Library/Helpers/FileWriter.h"

#include "Library/Helpers/FileSizeSignal.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace Quillmont::Library::Helpers {

namespace {

/// The file that a chain of symbolic links ends at, which need not exist.
QString linkTarget(const QString &path)
{
    constexpr int longestChain = 40;
    QFileInfo info(path);
    for (int i = 0; i < longestChain && info.isSymLink(); ++i)
        info.setFile(info.symLinkTarget());
    return info.filePath();
}

void keepOwner(int handle, const QString &path)
{
    struct stat before = {};
    struct stat now = {};
    if (stat(QFile::encodeName(path).constData(), &before) != 0 || fstat(handle, &now) != 0)
        return;
    constexpr auto unchanged = static_cast<uid_t>(-1);
    if (before.st_uid != now.st_uid && fchown(handle, before.st_uid, before.st_gid) == 0)
        return;
    // Only the superuser gives files away; a group of one's own anybody may set.
    if (before.st_gid != now.st_gid && fchown(handle, unchanged, before.st_gid) != 0)
        errno = 0;
}

// The toolkit does the same, but makes what the superuser may write writable.
void keepMode(int handle, const QString &path)
{
    struct stat before = {};
    if (stat(QFile::encodeName(path).constData(), &before) == 0
        && fchmod(handle, before.st_mode & ALLPERMS) != 0)
        errno = 0;
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
    if (info.exists() && !info.isFile()) {
        *problem = QStringLiteral("not a regular file");
        return false;
    }

    QSaveFile file(target);
    if (file.open(QIODevice::WriteOnly)) {
        keepOwner(file.handle(), target);
        keepMode(file.handle(), target);
        // commit() does not notice by itself that the rest of its buffer found no room.
        if (file.write(bytes) == bytes.size() && file.flush() && isOnDisk(file.handle())
            && file.commit())
            return true;
    }
    *problem = file.errorString();
    return false;
}

} // namespace Quillmont::Library::Helpers
