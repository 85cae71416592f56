#include "ViewControllers/InstallationLock.h"

#include "Controllers/UserDataRoot.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using Quillmont::Utility::Controllers::userDataRoot;

namespace Quillmont::Utility::ViewControllers {

// The folder is there from the start of every run, and a lock on it needs no file of its own.
// Where none can be had (a network's file system, say) one copy at a time works as well.
InstallationLock::InstallationLock()
    : m_folder(
        ::open(QFile::encodeName(userDataRoot() + QStringLiteral("Quillmont/Orbwell")).constData(),
               O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    static bool isPatient = true;
    const QDeadlineTimer patience(isPatient ? 10000 : 0);
    while (::flock(m_folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        isPatient = !patience.hasExpired();
        if (!isPatient)
            break;
        QThread::msleep(5);
    }
}

InstallationLock::~InstallationLock()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

} // namespace Quillmont::Utility::ViewControllers
