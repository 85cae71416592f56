#ifndef VIEWCONTROLLERS_PAYLOAD_INSTALLATIONLOCK_H
#define VIEWCONTROLLERS_PAYLOAD_INSTALLATIONLOCK_H

#include <QtGlobal>

namespace Quillmont::Utility::ViewControllers {

/// Per-user lock between processes on the simulators' files, held for this object's lifetime: two
/// copies of the program that change a configuration file at once could lose one's entry, and one
/// could not copy a plugin file that the other has just created. Waits up to ten seconds, once per
/// process, then goes on without the lock, so that one hanging copy does not block all others. The
/// system releases it when the process ends. Not recursive.
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
