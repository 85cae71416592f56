#ifndef VIEWCONTROLLERS_PAYLOAD_SIMULATORFILES_H
#define VIEWCONTROLLERS_PAYLOAD_SIMULATORFILES_H

#include <QString>

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// The simulator's folder with a separator at its end.
QString simulatorFolder(const Models::FlightSimulatorMapping *mapping);

/// The native path of the plugin file that belongs at @p destination in the simulator.
QString pluginFile(const Models::FlightSimulatorMapping *mapping, const QString &destination);

/// Whether there is a configuration file to edit: the entry describes one, and its path is known.
/// Where that is in the Proton prefix of a game, the last scan found the prefix and it is still
/// there.
bool hasConfigurationFile(const Models::FlightSimulatorMapping *mapping);

/// Writes down why no step of an installation or a removal edits a configuration file, though the
/// entry describes one; nothing where there is one to edit.
void logSkippedEdits(const Models::FlightSimulatorMapping *mapping);

/// The simulator's configuration file, "/"-separated; there has to be one to edit. If there is no
/// file of that name but one that differs in letter case only, it is that one: to the simulator
/// they are the same. Of several such files none is taken.
QString configurationFile(const Models::FlightSimulatorMapping *mapping);

/// The same for an entry whose configuration has @p path.
QString configurationFile(const QString &path);

/// Makes the folder that the file at @p path is to lie in, and all above it, where it is missing.
void makeFolderOf(const QString &path);

/// Copies @p file, if it exists, to a name beside it made of its own, @p suffix and the local
/// time for "%0". The debug log says how it went; a failed backup stops nothing.
void backUp(const QString &file, const QString &suffix);

} // namespace Quillmont::Utility::ViewControllers

#endif
