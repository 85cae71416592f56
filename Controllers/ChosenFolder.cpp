#include "Controllers/ChosenFolder.h"

#include "Controllers/ConfigurationController.h"

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

} // namespace Quillmont::Utility::Controllers
