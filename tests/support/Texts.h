#ifndef TESTS_SUPPORT_TEXTS_H
#define TESTS_SUPPORT_TEXTS_H

#include <QStringList>

namespace Tests {

/// A message box as tests write it: "title: text".
QString box(const QString &title, const QString &text);

// The boxes after one installation or removal. Each error line has its own line end.
QString installedBox(const QString &simulator);
QString notInstalledBox(const QString &simulator, const QString &errorLines);
QString uninstalledBox(const QString &simulator);
QString notUninstalledBox(const QString &simulator, const QString &errorLines);

// The boxes after automatic installation: into these simulators; into none, since all have the
// plugin; into none, since none was found.
QString autoInstalledBox(const QStringList &simulators);
QString allInstalledBox();
QString noSimulatorBox();

/// The box at the end of a repair run; a line says "Sim: Updated" or "Sim: Not updated".
QString updatedBox(const QStringList &lines);

// Error lines: of copying into the simulator in @p folder, of removing from a simulator, and of
// reading and writing a text file, which have no line end.
QString cannotCopy(const QString &source, const QString &target, const QString &folder);
QString cannotRemove(const QString &file, const QString &simulator);
QString cannotRead(const QString &file);
QString cannotWrite(const QString &file);

} // namespace Tests

#endif
