#ifndef CONTROLLERS_SETTINGSFILE_H
#define CONTROLLERS_SETTINGSFILE_H

#include <QString>

class QSettings;

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
    bool canRead(const QString &key);

    /// The same for writing, which begins with reading all that is there: false too where that
    /// would drop what another program stored, or wait long for one that holds the lock. Waits
    /// ten seconds at most, and that only once.
    bool canWrite();

    /// Has @p settings take texts as whoever wrote the file last, now that it can be let at it.
    void prepare(QSettings *settings) const;

    /// Says in the log that a change was not stored, for @p reason.
    void logLoss(const QString &reason) const;

private:
    QString problemToRead(const QString &key);
    QString problemToWrite();
    QString problemToLock() const;

    const QString m_path;
    bool m_isUtf8 = false;
};

} // namespace Quillmont::Utility::Controllers

#endif
