#include "Library/Files/AccessList.h"

#include <QtEndian>

#include <cerrno>
#include <sys/stat.h>

#ifdef Q_OS_LINUX
#include <linux/limits.h>
#include <linux/posix_acl.h>
#include <sys/xattr.h>
#elif defined(Q_OS_MACOS)
#include <copyfile.h>
#endif

namespace Quillmont::Library::Files {

namespace {

constexpr unsigned allRights = 07;

// Some file systems refuse to set even the mode that the file already has.
bool setMode(int handle, mode_t mode)
{
    struct stat now = {};
    return fstat(handle, &now) == 0
        && ((now.st_mode & ALLPERMS) == mode || fchmod(handle, mode) == 0);
}

#ifdef Q_OS_LINUX

constexpr const char *attribute = "system.posix_acl_access";
constexpr int headerSize = 4;
constexpr int entrySize = 8;
constexpr int rightsOffset = 2;

// False if there may be a list that cannot be read.
bool readList(int handle, QByteArray *list)
{
    list->resize(XATTR_SIZE_MAX);
    const ssize_t size = fgetxattr(handle, attribute, list->data(), size_t(list->size()));
    const bool isNone = size < 0 && (errno == ENODATA || errno == ENOTSUP || errno == ENOSYS);
    list->resize(qMax(0, int(size)));
    return size >= 0 || isNone;
}

bool giveList(int, int handle, const QByteArray &list)
{
    if (!list.isEmpty())
        return fsetxattr(handle, attribute, list.constData(), size_t(list.size()), 0) == 0;
    QByteArray inherited;
    return readList(handle, &inherited)
        && (inherited.isEmpty() || fremovexattr(handle, attribute) == 0);
}

// Calls @p look with each entry's kind and rights; it may change the rights.
template <typename Look>
void forEachEntry(QByteArray *list, const Look &look)
{
    for (int i = headerSize; i + entrySize <= list->size(); i += entrySize) {
        char *place = list->data() + i;
        auto rights = qFromLittleEndian<quint16>(place + rightsOffset);
        look(qFromLittleEndian<quint16>(place), rights);
        qToLittleEndian(rights, place + rightsOffset);
    }
}

unsigned sharedRights(QByteArray list)
{
    unsigned shared = allRights;
    forEachEntry(&list, [&shared](int kind, quint16 rights) {
        if (kind != ACL_USER_OBJ && kind != ACL_MASK)
            shared &= rights;
    });
    return shared;
}

void narrowList(QByteArray *list, unsigned shared)
{
    forEachEntry(list, [shared](int kind, quint16 &rights) {
        if (kind == ACL_GROUP_OBJ || kind == ACL_OTHER)
            rights = quint16(shared);
    });
}

#else

// The lists of other systems are copied as they are: they do not depend on the file's group.
bool readList(int, QByteArray *)
{
    return true;
}

bool giveList([[maybe_unused]] int from, [[maybe_unused]] int to, const QByteArray &)
{
#ifdef Q_OS_MACOS
    return fcopyfile(from, to, nullptr, COPYFILE_ACL) == 0;
#else
    return true;
#endif
}

unsigned sharedRights(const QByteArray &)
{
    return allRights;
}

void narrowList(QByteArray *, unsigned) { }

#endif

} // namespace

AccessList::AccessList(int handle, mode_t mode)
    : m_handle(handle)
    , m_mode(mode & ALLPERMS)
    , m_isKnown(readList(handle, &m_list))
{ }

void AccessList::narrow()
{
    constexpr int groupBits = 3;
    const unsigned shared = sharedRights(m_list) & m_mode & (m_mode >> groupBits) & allRights;
    narrowList(&m_list, shared);
    const mode_t group = m_list.isEmpty() ? shared << groupBits : m_mode & S_IRWXG;
    m_mode = (m_mode & S_IRWXU) | group | shared;
}

bool AccessList::giveTo(int handle) const
{
    return setMode(handle,
                   m_isKnown && giveList(m_handle, handle, m_list) ? m_mode : m_mode & S_IRWXU);
}

} // namespace Quillmont::Library::Files
