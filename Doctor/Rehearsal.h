#ifndef DOCTOR_REHEARSAL_H
#define DOCTOR_REHEARSAL_H

#include "Doctor/PlannedDisk.h"
#include "Doctor/RecordChange.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include <functional>

namespace Quillmont::Utility::Models {
class FlightSimScan;
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {
enum class Before;
} // namespace Quillmont::Utility::ViewControllers

namespace Quillmont::Utility::Doctor {

/// Runs the steps of an installation or removal, as the window would now, on a planned disk.
class Rehearsal
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::Rehearsal)

public:
    /// For the simulator of @p mapping, which has a folder, with the files in @p payload. All
    /// arguments must outlive this.
    Rehearsal(const Models::FlightSimulatorMapping *mapping,
              const QString &payload,
              const RecordText &record);

    void install();
    void uninstall();

    /// Notes once what would go wrong.
    void fail(const QString &sentence);

    /// Everything that would be changed, and what would go wrong.
    QJsonObject plan() const;

private:
    using Edit = std::function<QByteArray(const QByteArray &, QString *)>;

    void copyFile(const QString &source, const QString &target);
    void removeFile(const QString &path);
    void addEntry();
    bool makeLaunchDocument();
    void removeEntry();
    void removeExtraFiles();
    void change(const QString &path, const Edit &edit);
    void backUp(ViewControllers::Before before);
    void updateRecord(bool uninstalled);
    void failToMake(const QString &path);
    void failToChange(const QString &path);
    QByteArray bytesOf(const QString &path, QString *problem) const;
    QJsonArray files() const;
    QJsonObject configurationChange() const;

    const Models::FlightSimulatorMapping *const m_mapping;
    const Models::FlightSimScan *const m_entry;
    const QString m_payload;
    const RecordText &m_recordText;
    RecordChange m_record;
    PlannedDisk m_disk;
    QString m_configuration;
    QVector<ViewControllers::Before> m_backedUp;
    QStringList m_backups;
    QStringList m_failures;
};

} // namespace Quillmont::Utility::Doctor

#endif
