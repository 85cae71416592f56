#ifndef DOCTOR_EXAMINATION_H
#define DOCTOR_EXAMINATION_H

#include "Doctor/Simulator.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QStringList>

namespace Quillmont::Utility::Doctor {

class Problems;

/// Looks at simulators, their files and the record, and changes nothing.
class Examination
{
    Q_DECLARE_TR_FUNCTIONS(Examination)

public:
    /// @p payload is the folder with the plugin's files, with a separator at its end.
    Examination(const QList<Simulator> &simulators, const QString &payload);

    /// The report on the simulators of these @p names, or on all without any: what
    /// docs/doctor.schema.json describes, less the program itself.
    QJsonObject report(const QStringList &names) const;

private:
    QJsonObject reportOn(const Simulator &simulator) const;
    QJsonObject locationOf(const Simulator &simulator) const;
    QString originOf(const Simulator &simulator) const;
    void judgeFolder(const Simulator &simulator, Problems *problems) const;
    QJsonObject roomFor(const Simulator &simulator, qint64 needed, Problems *problems) const;

    const QList<Simulator> m_simulators;
    const QString m_payload;
};

} // namespace Quillmont::Utility::Doctor

#endif
