#ifndef CONTROLLERS_SETTINGSFILE_H
#define CONTROLLERS_SETTINGSFILE_H

#include <QString>

namespace Quillmont::Utility::Controllers {

/// Whether QSettings, which trusts what it finds, can be let at the settings file. Where it cannot,
/// the log says why.
class SettingsFile
{
public:
    /// @p path need not exist.
    explicit SettingsFile(const QString &path);

    /// False where reading what is stored under @p key would wait for ever, use up the memory or
    /// end the process; also where there is nothing to read.
    bool canRead(const QString &key) const;

    /// The same for writing, which begins with reading all that is there: false too where that
    /// would drop what another program stored, or wait long for one that holds the lock. Waits
    /// ten seconds at most, and that only once.
    bool canWrite() const;

    /// Says in the log that a change was not stored, for @p reason.
    void logLoss(const QString &reason) const;

private:
    QString problemToRead(const QString &key) const;
    QString problemToWrite() const;
    QString problemToLock() const;

    const QString m_path;
};

} // namespace Quillmont::Utility::Controllers

#endif
