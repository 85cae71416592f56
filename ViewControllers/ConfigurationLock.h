#ifndef VIEWCONTROLLERS_CONFIGURATIONLOCK_H
#define VIEWCONTROLLERS_CONFIGURATIONLOCK_H

#include <QtGlobal>

namespace Quillmont::Utility::ViewControllers {

/// Keeps other copies of the program that the same user runs away from the simulators'
/// configuration files while it lives: two that read a file and write it back in turn would lose
/// one's entry. Waits for its turn, but not for ever: a copy that hangs must not hang all. Ends
/// with the process at the latest and leaves nothing behind.
class ConfigurationLock
{
public:
    ConfigurationLock();
    ~ConfigurationLock();
    Q_DISABLE_COPY(ConfigurationLock)

private:
    int m_folder;
};

} // namespace Quillmont::Utility::ViewControllers

#endif
