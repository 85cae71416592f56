#include "Controllers/ConfigurationController.h"

#include "Controllers/UserDataRoot.h"

#include <QFileInfo>
#include <QMutex>
#include <QSettings>

namespace Quillmont::Utility::Controllers {

namespace {

// A folder a simulator is a few lines; what is bigger than this only eats up memory.
constexpr qint64 biggestSize = 8LL * 1024 * 1024;

// The toolkit would wait for ever at a pipe in the file's place.
bool canRead(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.size() <= biggestSize;
}

bool isFileOrFree(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() || !(info.exists() || info.isSymLink());
}

// The toolkit reads the file before it writes it, and opens the lock file beside it.
bool canWrite(const QString &path)
{
    return (canRead(path) || !QFileInfo::exists(path))
        && isFileOrFree(path + QStringLiteral(".lock"));
}

} // namespace

ConfigurationController *ConfigurationController::m_instance = nullptr;

ConfigurationController::ConfigurationController(QObject *parent)
    : QObject(parent)
    , settingsFilePath(userDataRoot() + QStringLiteral("Quillmont/Vellum/.settings"))
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
    if (!canRead(settingsFilePath))
        return {};
    return QSettings(settingsFilePath, QSettings::IniFormat).value(key);
}

QVariant ConfigurationController::getSettings(const QString &key,
                                              const QVariant &defaultValue) const
{
    const QVariant value = getSettings(key);
    return value.isNull() ? defaultValue : value;
}

void ConfigurationController::saveSettings(const QString &key, const QVariant &value) const
{
    if (canWrite(settingsFilePath))
        QSettings(settingsFilePath, QSettings::IniFormat).setValue(key, value);
}

void ConfigurationController::removeSettings(const QString &key) const
{
    if (canWrite(settingsFilePath))
        QSettings(settingsFilePath, QSettings::IniFormat).remove(key);
}

QString ConfigurationController::appDataPath()
{
    QString path = userDataRoot() + QStringLiteral("/Quillmont/Vellum/");
    // One pass makes two slashes of four; folders of the program's own name leave such a row.
    while (path.contains(QLatin1String("//")))
        path.replace(QLatin1String("//"), QLatin1String("/"));
    return path;
}

bool ConfigurationController::startWithWindows()
{
    return false;
}

void ConfigurationController::setStartWithWindows(bool) { }

} // namespace Quillmont::Utility::Controllers
