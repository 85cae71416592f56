#ifndef VIEWCONTROLLERS_PAYLOAD_INSTALLATIONLOCK_H
#define VIEWCONTROLLERS_PAYLOAD_INSTALLATIONLOCK_H

#include <QtGlobal>

namespace Quillmont::Utility::ViewControllers {

/// Keeps other copies of the program that the same user runs away from the simulators' files while
/// it lives: two that read a configuration and write it back in turn would lose one's entry, and
/// one could not copy a plugin file that the other just made. Waits for its turn, but no longer
/// than ten seconds, and that only once: a copy that hangs must not hang all. Ends with the process
/// at the latest and leaves nothing behind. One at a time: a second one waits for the first.
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
