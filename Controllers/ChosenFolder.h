#ifndef CONTROLLERS_CHOSENFOLDER_H
#define CONTROLLERS_CHOSENFOLDER_H

#include <QHash>
#include <QString>

class QStringList;

namespace Quillmont::Utility::Controllers {

/// The settings key of the folder that the user chose for a simulator.
QString chosenFolderKey(const QString &simulatorName);

/// That folder; empty if none is stored, or if the settings cannot be read.
QString chosenFolder(const QString &simulatorName);

/// The same for several simulators, by name; reads the settings once.
QHash<QString, QString> chosenFolders(const QStringList &simulatorNames);

} // namespace Quillmont::Utility::Controllers

#endif
