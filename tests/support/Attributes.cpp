#include "tests/support/Attributes.h"

#include <QDataStream>
#include <QFile>

#include <sys/stat.h>

#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

namespace Tests {

const char *const accessListName = "system.posix_acl_access";
const char *const passedOnListName = "system.posix_acl_default";

QByteArray attribute([[maybe_unused]] const QString &path, [[maybe_unused]] const char *name)
{
#ifdef Q_OS_LINUX
    QByteArray value(1000, '\0');
    const ssize_t size
        = getxattr(QFile::encodeName(path).constData(), name, value.data(), size_t(value.size()));
    if (size >= 0)
        return value.left(int(size));
#endif
    return {};
}

bool setAttribute([[maybe_unused]] const QString &path,
                  [[maybe_unused]] const char *name,
                  [[maybe_unused]] const QByteArray &value)
{
#ifdef Q_OS_LINUX
    return setxattr(QFile::encodeName(path).constData(),
                    name,
                    value.constData(),
                    size_t(value.size()),
                    0)
        == 0;
#else
    return false;
#endif
}

QByteArray accessList(unsigned user, unsigned group, unsigned mask, unsigned others)
{
    struct Entry
    {
        quint16 kind;
        unsigned rights;
        quint32 id;
    };

    constexpr quint32 version = 2;
    constexpr quint32 nobody = 0xffffffff;
    constexpr quint32 someone = 12345;
    const Entry entries[] = {{0x01, 06, nobody},
                             {0x02, user, someone},
                             {0x04, group, nobody},
                             {0x10, mask, nobody},
                             {0x20, others, nobody}};
    QByteArray list;
    QDataStream stream(&list, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << version;
    for (const Entry &entry : entries)
        stream << entry.kind << quint16(entry.rights) << entry.id;
    return list;
}

unsigned modeOf(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("no status of %s", qPrintable(path));
    return status.st_mode & ALLPERMS;
}

void setMode(const QString &path, unsigned mode)
{
    if (chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("cannot set the mode of %s", qPrintable(path));
}

} // namespace Tests
