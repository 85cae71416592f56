#include "tests/support/Unprivileged.h"

#include <QDirIterator>
#include <QFile>

#include <unistd.h>

namespace Tests {

namespace {

const uid_t ordinaryUser = 65534;

void giveAway(const QString &path)
{
    if (lchown(QFile::encodeName(path).constData(), ordinaryUser, static_cast<gid_t>(-1)) != 0)
        qFatal("cannot give %s away", qPrintable(path));
}

void become(uid_t user)
{
#ifdef Q_OS_LINUX
    // The real user id as well, since QFileInfo checks permissions by it.
    if (setresuid(user, user, 0) != 0)
#else
    if (seteuid(user) != 0)
#endif
        qFatal("cannot become user %u", user);
}

} // namespace

Unprivileged::Unprivileged(const QString &folder)
    : m_wasRoot(geteuid() == 0)
{
    if (!m_wasRoot)
        return;
    giveAway(folder);
    QDirIterator it(folder,
                    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        giveAway(it.next());
    become(ordinaryUser);
}

Unprivileged::~Unprivileged()
{
    if (m_wasRoot)
        become(0);
}

} // namespace Tests
