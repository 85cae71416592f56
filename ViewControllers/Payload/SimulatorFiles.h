#ifndef VIEWCONTROLLERS_PAYLOAD_SIMULATORFILES_H
#define VIEWCONTROLLERS_PAYLOAD_SIMULATORFILES_H

#include <QStringList>

class QDateTime;

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// The simulator's folder with a trailing separator.
QString simulatorFolder(const Models::FlightSimulatorMapping *mapping);

/// The native path of the plugin file that belongs at @p destination in the simulator.
QString pluginFile(const Models::FlightSimulatorMapping *mapping, const QString &destination);

/// Whether there is a configuration file to edit: the entry describes one, and its path is known. A
/// file in a game's Proton prefix counts if the last scan found the prefix and it still exists.
bool hasConfigurationFile(const Models::FlightSimulatorMapping *mapping);

/// Logs why an installation or removal edits no configuration file although the entry describes
/// one; nothing if it does edit one.
void logSkippedEdits(const Models::FlightSimulatorMapping *mapping);

/// The simulator's configuration file, "/"-separated; requires hasConfigurationFile(). If only a
/// file exists whose name differs in letter case, it is that one: to the simulator they are the
/// same. Of several such files none is used.
QString configurationFile(const Models::FlightSimulatorMapping *mapping);

/// The same for an entry whose configuration has @p path.
QString configurationFile(const QString &path);

/// Creates the folder of the file at @p path, with its parents, if it is missing.
void makeFolderOf(const QString &path);

/// The systems' maximum; a record can contain a path of a million folders.
constexpr int maxPathLength = 4096;

/// Those of @p path and its parent folders that are dangling links, from the end; none if it is
/// longer than any path.
QStringList deadLinksOn(const QString &path);

/// What a configuration file is backed up before.
enum class Before {
    Installation,
    Uninstallation
};

/// The form of the time at the end of a backup's name.
QString backupTimeForm();

/// The native path of the backup that is made of @p file at the local @p time, beside it.
QString backupName(const QString &file, Before before, const QDateTime &time);

/// Copies @p file, if it exists, to the name of a backup made now. The debug log has the result; a
/// failed backup stops nothing.
void backUp(const QString &file, Before before);

} // namespace Quillmont::Utility::ViewControllers

#endif
