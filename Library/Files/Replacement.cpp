#include "Library/Files/Replacement.h"

#include <QCryptographicHash>
#include <QUuid>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace Quillmont::Library::Files {

namespace {

constexpr int uniqueSize = 7; // a dot and six characters

QByteArray folderOf(const QByteArray &path)
{
    return path.left(path.lastIndexOf('/') + 1);
}

// Cut between characters, since some file systems refuse invalid UTF-8.
QByteArray beginning(const QByteArray &name, int size)
{
    constexpr int isInside = 0x80;
    constexpr int topBits = 0xc0;
    while (size > 0 && (name.at(size) & topBits) == isInside)
        --size;
    return name.left(size);
}

// A name of at most @p size bytes that is unique to @p name.
QByteArray shortened(const QByteArray &name, int size)
{
    if (name.size() <= size)
        return name;
    const QByteArray hash = QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex();
    return beginning(name, qMax(0, size - hash.size())) + hash;
}

int maxNameSize(const QByteArray &folder)
{
    constexpr long usual = 255;
    const long longest = pathconf(folder.constData(), _PC_NAME_MAX);
    return int(longest > 0 ? qMin(longest, usual) : usual);
}

} // namespace

Replacement::Replacement(const QByteArray &target, Kind kind, bool isPrivate)
    : m_target(target)
    , m_unfinished(unfinishedName(target))
    , m_mode(isPrivate ? 0600 : 0666)
{
    if (kind == Nameless)
        openNameless();
    else
        openNamed();
}

Replacement::~Replacement()
{
    if (!m_name.isEmpty())
        unlink(m_name.constData());
    if (m_handle >= 0)
        close(m_handle);
}

QByteArray Replacement::unfinishedName(const QByteArray &target)
{
    const QByteArray mark("_quillmont_unfinished");
    const QByteArray folder = folderOf(target);
    const int room = maxNameSize(folder) - mark.size() - uniqueSize;
    return folder + shortened(target.mid(folder.size()), room) + mark;
}

void Replacement::open(const QByteArray &path, int flags)
{
    m_handle = ::open(path.constData(), flags | O_WRONLY | O_CLOEXEC, m_mode);
}

void Replacement::openNameless()
{
#ifdef O_TMPFILE
    open(folderOf(m_target), O_TMPFILE);
#else
    errno = ENOTSUP;
#endif
}

void Replacement::openNamed()
{
    const QByteArray unique
        = '.' + QUuid::createUuid().toByteArray(QUuid::Id128).left(uniqueSize - 1);
    open(m_unfinished + unique, O_CREAT | O_EXCL);
    if (m_handle >= 0)
        m_name = m_unfinished + unique;
}

bool Replacement::giveName()
{
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(m_handle);
    const auto give = [&] {
        return linkat(AT_FDCWD,
                      self.constData(),
                      AT_FDCWD,
                      m_unfinished.constData(),
                      AT_SYMLINK_FOLLOW)
            == 0;
    };
    if (!give() && (errno != EEXIST || unlink(m_unfinished.constData()) != 0 || !give()))
        return false;
    m_name = m_unfinished;
    return true;
}

bool Replacement::takePlace()
{
    if ((m_name.isEmpty() && !giveName())
        || std::rename(m_name.constData(), m_target.constData()) != 0)
        return false;
    m_name.clear();
    return true;
}

} // namespace Quillmont::Library::Files
