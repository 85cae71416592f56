#ifndef TESTS_ENDTOEND_DOCTORSPLAN_H
#define TESTS_ENDTOEND_DOCTORSPLAN_H

#include "tests/EndToEnd/Disk.h"
#include "tests/support/Command.h"

#include <QJsonObject>

namespace Tests {

class Computer;

/// Runs orbwell-doctor beside the program of @p computer.
CommandResult runDoctor(const Computer &computer, const QStringList &arguments);

/// Its plan to "install", "repair" or "uninstall" for that simulator.
QJsonObject doctorsPlan(const Computer &computer, const QString &what, const QString &simulator);

/// The disk of @p computer after the changes in @p plan.
Disk plannedDisk(const Computer &computer, const QJsonObject &plan);

} // namespace Tests

#endif
