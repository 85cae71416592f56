#include "Controllers/ConfigurationController.h"

#include "Controllers/SettingsFile.h"
#include "Controllers/UserFiles.h"

#include <QMutex>
#include <QSettings>

namespace Quillmont::Utility::Controllers {

ConfigurationController *ConfigurationController::m_instance = nullptr;

ConfigurationController::ConfigurationController(QObject *parent)
    : QObject(parent)
    , settingsFilePath(settingsFile())
{ }

ConfigurationController *ConfigurationController::instance()
{
    static QMutex mutex;
    if (!m_instance) {
        const QMutexLocker lock(&mutex);
        if (!m_instance)
            m_instance = new ConfigurationController;
    }
    return m_instance;
}

QVariant ConfigurationController::getSettings(const QString &key) const
{
    SettingsFile file(settingsFilePath);
    if (!file.canRead(key))
        return {};
    QSettings settings(settingsFilePath, QSettings::IniFormat);
    file.prepare(&settings);
    return settings.value(key);
}

QVariant ConfigurationController::getSettings(const QString &key,
                                              const QVariant &defaultValue) const
{
    const QVariant value = getSettings(key);
    return value.isNull() ? defaultValue : value;
}

void ConfigurationController::saveSettings(const QString &key, const QVariant &value) const
{
    change([&key, &value](QSettings *settings) { settings->setValue(key, value); });
}

void ConfigurationController::removeSettings(const QString &key) const
{
    change([&key](QSettings *settings) { settings->remove(key); });
}

void ConfigurationController::change(const std::function<void(QSettings *)> &change) const
{
    SettingsFile file(settingsFilePath);
    if (!file.canWrite())
        return;
    QSettings settings(settingsFilePath, QSettings::IniFormat);
    file.prepare(&settings);
    change(&settings);
    settings.sync();
    if (settings.status() == QSettings::AccessError)
        file.logLoss(QStringLiteral("the file cannot be written"));
}

QString ConfigurationController::appDataPath()
{
    return settingsFolder();
}

bool ConfigurationController::startWithWindows()
{
    return false;
}

void ConfigurationController::setStartWithWindows(bool) { }

} // namespace Quillmont::Utility::Controllers
