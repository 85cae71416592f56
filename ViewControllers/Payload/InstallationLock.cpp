#include "ViewControllers/Payload/InstallationLock.h"

#include "Controllers/ActionLog.h"
#include "Controllers/UserFiles.h"
#include "Library/Files/Heartbeat.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using Quillmont::Library::Files::Heartbeat;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::recordFolder;

namespace Quillmont::Utility::ViewControllers {

namespace {

// The record's folder exists from the start of every run; locking it needs no lock file.
int openFolder()
{
    return ::open(QFile::encodeName(recordFolder()).constData(),
                  O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// Where flock() is not supported, as on some network file systems, we work unlocked.
bool isTaken(int folder)
{
    return ::flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

bool isFreedInTime(int folder)
{
    logAction() << "waiting for another copy of the program";
    const QDeadlineTimer patience(10000);
    while (isTaken(folder)) {
        if (patience.hasExpired()) {
            logAction() << "not waiting any longer for another copy of the program";
            return false;
        }
        Heartbeat::beat();
        QThread::msleep(5);
    }
    return true;
}

} // namespace

InstallationLock::InstallationLock()
    : m_folder(openFolder())
{
    static bool isPatient = true;
    if (isTaken(m_folder) && isPatient)
        isPatient = isFreedInTime(m_folder);
}

InstallationLock::~InstallationLock()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

} // namespace Quillmont::Utility::ViewControllers
