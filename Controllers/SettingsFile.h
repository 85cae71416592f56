#ifndef CONTROLLERS_SETTINGSFILE_H
#define CONTROLLERS_SETTINGSFILE_H

class QString;

namespace Quillmont::Utility::Controllers {

/// Whether the settings file can be handed to the toolkit, which trusts what it finds there.
class SettingsFile
{
public:
    /// False where reading would wait for ever, use up the memory or end the process; also where
    /// there is nothing to read.
    static bool canRead(const QString &path);

    /// The same for writing, which begins with reading what is there.
    static bool canWrite(const QString &path);
};

} // namespace Quillmont::Utility::Controllers

#endif
