#ifndef CONTROLLERS_SETTINGSFILE_H
#define CONTROLLERS_SETTINGSFILE_H

#include <QString>

class QSettings;

namespace Quillmont::Utility::Controllers {

/// Checks that make it safe to open a file with QSettings, which deserialises whatever it finds.
/// The log says why a file is not safe.
class SettingsFile
{
public:
    /// @p path need not exist.
    explicit SettingsFile(const QString &path);

    /// False if reading @p key would hang, use up memory or crash, or if there is nothing to read.
    bool canRead(const QString &key);

    /// The same for writing, which reads the whole file first: also false if that would drop
    /// another program's value, or if another program holds the lock. Waits at most ten seconds for
    /// the lock, and after one time-out never again.
    bool canWrite();

    /// Sets the text encoding of @p settings to that of the file; call it after canRead() or
    /// canWrite().
    void prepare(QSettings *settings) const;

    /// Logs that a change was not stored, for @p reason.
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
