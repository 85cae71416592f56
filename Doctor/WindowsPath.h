#ifndef DOCTOR_WINDOWSPATH_H
#define DOCTOR_WINDOWSPATH_H

#include <QString>

namespace Quillmont::Utility::Doctor {

/// Looks for the files that a configuration file names, as a program for Windows would.
class WindowsPath
{
public:
    /// Drives are those of the Proton prefix @p prefix, which may be empty; relative paths lead
    /// from @p folder, which ends with a separator.
    WindowsPath(const QString &prefix, const QString &folder)
        : m_prefix(prefix)
        , m_folder(folder)
    { }

    /// False where the file is surely not there. A drive that nothing is known of, a variable or a
    /// name in the network may lead anywhere.
    bool mayExist(const QString &path) const;

private:
    const QString m_prefix;
    const QString m_folder;
};

} // namespace Quillmont::Utility::Doctor

#endif
