#ifndef DOCTOR_WINDOWSPATH_H
#define DOCTOR_WINDOWSPATH_H

#include <QString>

namespace Quillmont::Utility::Doctor {

/// Looks up files that a configuration file names, as a Windows program would.
class WindowsPath
{
public:
    /// Drives are those of the Proton prefix @p prefix, which may be empty; paths are relative to
    /// @p folder, which ends with a separator.
    WindowsPath(const QString &prefix, const QString &folder)
        : m_prefix(prefix)
        , m_folder(folder)
    { }

    /// False if the file certainly does not exist. An unknown drive, a variable or a network path
    /// may lead anywhere.
    bool mayExist(const QString &path) const;

private:
    const QString m_prefix;
    const QString m_folder;
};

} // namespace Quillmont::Utility::Doctor

#endif
