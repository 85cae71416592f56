#ifndef DOCTOR_PLAN_H
#define DOCTOR_PLAN_H

#include "Doctor/Simulator.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QStringList>

namespace Quillmont::Utility::Doctor {

class Page;
class RecordText;

/// What the window would do now in each simulator, independently of the others.
class Plan
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::Plan)

public:
    /// @p what is "install", "repair" (uninstall, then install) or "uninstall"; @p names limits it
    /// to those simulators.
    static QJsonObject of(const QString &what,
                          const QList<Simulator> &simulators,
                          const QString &payload,
                          const QStringList &names);

    /// Writes @p plan for a person.
    static void write(const QJsonObject &plan, Page *page);

private:
    static QJsonObject ofOne(const QString &what,
                             const Models::FlightSimulatorMapping *mapping,
                             const QString &payload,
                             const RecordText &record);
    static void writeSimulator(const QJsonObject &simulator, Page *page);
    static void writeChange(const QString &subject, const QJsonObject &change, Page *page);
    static void writeDiff(const QString &diff, Page *page);
    static QString line(const QString &change);
};

} // namespace Quillmont::Utility::Doctor

#endif
