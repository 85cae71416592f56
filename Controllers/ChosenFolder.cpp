#include "Controllers/ChosenFolder.h"

#include "Controllers/ConfigurationController.h"
#include "Controllers/SettingsFile.h"
#include "Controllers/UserFiles.h"

#include <QSettings>
#include <QStringList>

namespace Quillmont::Utility::Controllers {

QString chosenFolderKey(const QString &simulatorName)
{
    return QStringLiteral("flightsim/") + QString(simulatorName).replace(u' ', u'_');
}

QString chosenFolder(const QString &simulatorName)
{
    return ConfigurationController::instance()
        ->getSettings(chosenFolderKey(simulatorName), QString())
        .toString();
}

QHash<QString, QString> chosenFolders(const QStringList &simulatorNames)
{
    QHash<QString, QString> folders;
    SettingsFile file(settingsFile());
    // They are in one section: if one can be read, all can.
    if (!file.canRead(chosenFolderKey(QStringLiteral("any"))))
        return folders;
    QSettings settings(settingsFile(), QSettings::IniFormat);
    file.prepare(&settings);
    for (const QString &name : simulatorNames) {
        if (!name.isEmpty())
            folders.insert(name, settings.value(chosenFolderKey(name)).toString());
    }
    return folders;
}

} // namespace Quillmont::Utility::Controllers
