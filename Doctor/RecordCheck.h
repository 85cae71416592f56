#ifndef DOCTOR_RECORDCHECK_H
#define DOCTOR_RECORDCHECK_H

#include "Doctor/Problems.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonObject>
#include <QSet>

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::Doctor {

/// Compares the installation record with the disk.
class RecordCheck
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::RecordCheck)

public:
    /// Reads the record.
    RecordCheck();

    /// The findings on the simulator's record; empty if it has none.
    QJsonObject of(const Models::FlightSimulatorMapping *mapping, Problems *problems) const;

    /// The record as a whole, and its simulators other than @p names.
    QJsonObject json(const QSet<QString> &names, Problems *problems) const;

private:
    void judge(const QString &problem);
    void judgeAccess();
    void takeRecords(const QByteArray &bytes);

    QString m_state;
    Problems m_problems;
    QVector<QString> m_names;
    QHash<QString, QJsonObject> m_records; ///< By name; of several the last one, as in a run.
};

} // namespace Quillmont::Utility::Doctor

#endif
