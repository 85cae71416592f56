#ifndef CONTROLLERS_CHOSENFOLDER_H
#define CONTROLLERS_CHOSENFOLDER_H

#include <QHash>
#include <QString>

class QStringList;

namespace Quillmont::Utility::Controllers {

/// The key in the settings of the folder that the user chose for that simulator.
QString chosenFolderKey(const QString &simulatorName);

/// That folder; empty where none is stored, or the settings cannot be read.
QString chosenFolder(const QString &simulatorName);

/// The same for many, by name, with one look at the settings.
QHash<QString, QString> chosenFolders(const QStringList &simulatorNames);

} // namespace Quillmont::Utility::Controllers

#endif
