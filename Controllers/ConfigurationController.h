#ifndef CONTROLLERS_CONFIGURATIONCONTROLLER_H
#define CONTROLLERS_CONFIGURATIONCONTROLLER_H

#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>

class QSettings;

namespace Quillmont::Utility::Controllers {

/// The user's persistent settings, shared with the maker's other programs. Each operation reads
/// or writes the file afresh; a failure reads as "nothing stored", and only the log has a line for
/// it.
class ConfigurationController : public QObject
{
    Q_OBJECT

public:
    /// The one instance, made on first use and never deleted.
    static ConfigurationController *instance();

    /// What is stored under @p key; invalid when nothing is.
    QVariant getSettings(const QString &key) const;

    /// What is stored under @p key, or @p defaultValue when that is null.
    QVariant getSettings(const QString &key, const QVariant &defaultValue) const;

    /// Stores @p value under @p key.
    void saveSettings(const QString &key, const QVariant &value) const;

    /// Removes @p key and everything below it.
    void removeSettings(const QString &key) const;

    /// The per-user folder of the maker's settings, without doubled slashes and with one at its
    /// end. The settings file's own path is put together otherwise, so that files which earlier
    /// releases wrote are still found.
    static QString appDataPath();

    /// Always false: starting with the system belongs to another platform.
    bool startWithWindows();

    /// Does nothing, for the same reason.
    void setStartWithWindows(bool enabled);

private:
    explicit ConfigurationController(QObject *parent = nullptr);
    void change(const std::function<void(QSettings *)> &change) const;

    QString settingsFilePath;
    [[maybe_unused]] void *m_reserved
        = nullptr; ///< Keeps the place of a member that is no longer used.

    static ConfigurationController *m_instance;
};

} // namespace Quillmont::Utility::Controllers

#endif
