#ifndef TESTS_ENDTOEND_SIMULATORS_H
#define TESTS_ENDTOEND_SIMULATORS_H

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace Tests {

class Program;

/// A catalogue entry for a simulator in @p folder that takes two plugin files,
/// "Resources/plugins/Orbwell/64/lin.xpl" and "Resources/plugins/Orbwell/about.txt".
QJsonObject pluginFolderEntry(const QString &name, const QString &folder);

/// A catalogue entry for a simulator in @p folder that takes one plugin file,
/// "Gauges/QuillmontOrbwell_64.dll", and an entry in the XML file @p configuration below the
/// per-user application-data root.
QJsonObject launcherEntry(const QString &name, const QString &folder, const QString &configuration);

/// Writes the entries and the files that they install beside the program.
void place(const Program &program, const QJsonArray &entries);

/// The one record for @p simulator in the record file below @p dataRoot; empty if there is none.
QJsonObject recordOf(const QString &simulator, const QString &dataRoot);

/// The names of the backups beside @p file, for "installation" or "uninstallation".
QStringList backupsOf(const QString &file, const QString &occasion);

/// The words of @p text, which has one blank between each two: arguments, say.
QStringList words(const char *text);

/// The arguments of a quiet installation.
QStringList quietInstallation();

} // namespace Tests

#endif
