#ifndef VIEWCONTROLLERS_PAYLOAD_INSTALLATIONLOCK_H
#define VIEWCONTROLLERS_PAYLOAD_INSTALLATIONLOCK_H

#include <QtGlobal>

namespace Quillmont::Utility::ViewControllers {

/// Per-user lock between processes on the simulators' files, held for this object's lifetime: two
/// copies of the program that change a configuration file at once could lose one's entry, and one
/// could not copy a plugin file that the other has just created. Waits up to ten seconds, then goes
/// on without the lock; after one time-out the process never waits again, since the other copy may
/// hang. The system releases it when the process ends. Not recursive.
class InstallationLock
{
public:
    InstallationLock();
    ~InstallationLock();
    Q_DISABLE_COPY(InstallationLock)

private:
    int m_folder;
};

} // namespace Quillmont::Utility::ViewControllers

#endif
