#include "tests/EndToEnd/Mounts.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_LINUX
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>
#endif

namespace Tests {

#ifdef Q_OS_LINUX

namespace {

bool s_arePossible = false;

bool tell(const char *file, const QByteArray &line)
{
    QFile out(QLatin1String("/proc/self/") + QLatin1String(file));
    return out.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && out.write(line) == line.size();
}

// An ordinary user keeps the user id and may mount here; child processes may not.
bool unshareAsUser()
{
    const QByteArray user = QByteArray::number(geteuid());
    const QByteArray group = QByteArray::number(getegid());
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && tell("setgroups", "deny")
        && tell("uid_map", user + ' ' + user + " 1") && tell("gid_map", group + ' ' + group + " 1");
}

bool bind(const QString &source, const QString &place, unsigned long flags)
{
    const QByteArray from = QFile::encodeName(source);
    const QByteArray to = QFile::encodeName(place);
    return mount(from.constData(), to.constData(), nullptr, MS_BIND | flags, nullptr) == 0;
}

} // namespace

void Mounts::separate()
{
    s_arePossible = (geteuid() == 0 ? unshare(CLONE_NEWNS) == 0 : unshareAsUser())
        && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

Mounts::~Mounts()
{
    for (auto place = m_places.crbegin(); place != m_places.crend(); ++place)
        umount2(QFile::encodeName(*place).constData(), MNT_DETACH);
}

bool Mounts::addDisk(const QString &folder, int kilobytes)
{
    const QByteArray size = "mode=0777,size=" + QByteArray::number(kilobytes) + 'k';
    if (!s_arePossible || !QDir().mkpath(folder)
        || mount("none", QFile::encodeName(folder).constData(), "tmpfs", 0, size.constData()) != 0)
        return false;
    m_places.append(folder);
    return true;
}

bool Mounts::show(const QString &source, const QString &place)
{
    if (!s_arePossible || !bind(source, place, 0))
        return false;
    m_places.append(place);
    return true;
}

bool Mounts::protect(const QString &folder)
{
    return show(folder, folder) && bind(folder, folder, MS_REMOUNT | MS_RDONLY);
}

#else

void Mounts::separate() { }

Mounts::~Mounts() = default;

bool Mounts::addDisk(const QString &, int)
{
    return false;
}

bool Mounts::show(const QString &, const QString &)
{
    return false;
}

bool Mounts::protect(const QString &)
{
    return false;
}

#endif

} // namespace Tests
