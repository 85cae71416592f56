#ifndef CONTROLLERS_CONFIGURATIONCONTROLLER_H
#define CONTROLLERS_CONFIGURATIONCONTROLLER_H

#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>

class QSettings;

namespace Quillmont::Utility::Controllers {

/// The user's settings, shared with the maker's other programs. Each operation reads or writes the
/// file anew; a failure counts as "nothing stored" and is only logged.
class ConfigurationController : public QObject
{
    Q_OBJECT

public:
    /// The one instance, made on first use and never deleted.
    static ConfigurationController *instance();

    /// The value of @p key; invalid if there is none.
    QVariant getSettings(const QString &key) const;

    /// The value of @p key, or @p defaultValue if that is null.
    QVariant getSettings(const QString &key, const QVariant &defaultValue) const;

    /// Stores @p value under @p key.
    void saveSettings(const QString &key, const QVariant &value) const;

    /// Removes @p key and everything below it.
    void removeSettings(const QString &key) const;

    /// The per-user folder of the maker's settings, with a trailing slash and no doubled ones. The
    /// settings file's own path is composed differently, so that files of earlier releases are
    /// found.
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
