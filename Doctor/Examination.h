#ifndef DOCTOR_EXAMINATION_H
#define DOCTOR_EXAMINATION_H

#include "Doctor/Simulator.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QStringList>

namespace Quillmont::Utility::Doctor {

class Problems;

/// Examines simulators, their files and the record, and changes nothing.
class Examination
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::Examination)

public:
    /// @p payload is the folder with the plugin's files, with a trailing separator.
    Examination(const QList<Simulator> &simulators, const QString &payload);

    /// The report on the simulators in @p names, or on all if it is empty, as
    /// docs/doctor.schema.json describes it, but without "program".
    QJsonObject report(const QStringList &names) const;

private:
    QJsonObject reportOn(const Simulator &simulator) const;
    QJsonObject locationOf(const Simulator &simulator) const;
    void judgeFolder(const Simulator &simulator, Problems *problems) const;
    void addRoom(const QString &folder,
                 qint64 needed,
                 const QString &configuration,
                 QJsonObject *object,
                 Problems *problems) const;
    QJsonObject roomFor(const QString &folder, qint64 needed, Problems *problems) const;

    const QList<Simulator> m_simulators;
    const QString m_payload;
};

} // namespace Quillmont::Utility::Doctor

#endif
