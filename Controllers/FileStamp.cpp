#include "Controllers/FileStamp.h"

#include <QDataStream>
#include <QFile>
#include <QIODevice>

#include <algorithm>
#include <ctime>
#include <sys/stat.h>

namespace Quillmont::Utility::Controllers {

QByteArray fileStamp(const QString &path)
{
    // The coarsest time stamps of any file system; a second change within one step is invisible.
    constexpr std::time_t maxStep = 2;
    struct stat file = {};
    if (stat(QFile::encodeName(path).constData(), &file) != 0
        || std::time(nullptr) - std::max(file.st_mtime, file.st_ctime) <= maxStep)
        return {};
#ifdef Q_OS_MACOS
    const timespec &modified = file.st_mtimespec;
    const timespec &changed = file.st_ctimespec;
#else
    const timespec &modified = file.st_mtim;
    const timespec &changed = file.st_ctim;
#endif
    QByteArray stamp;
    QDataStream(&stamp, QIODevice::WriteOnly)
        << quint64(file.st_dev) << quint64(file.st_ino) << qint64(file.st_size)
        << qint64(modified.tv_sec) << qint64(modified.tv_nsec) << qint64(changed.tv_sec)
        << qint64(changed.tv_nsec);
    return stamp;
}

} // namespace Quillmont::Utility::Controllers
