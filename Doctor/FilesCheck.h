#ifndef DOCTOR_FILESCHECK_H
#define DOCTOR_FILESCHECK_H

#include <QCoreApplication>
#include <QJsonArray>
#include <QSet>
#include <QString>

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::Doctor {

class Problems;

/// Whether two files have the same bytes; false if one cannot be read.
bool haveSameBytes(const QString &first, const QString &second);

/// Compares the plugin's files in a simulator with those in the payload folder.
class FilesCheck
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::FilesCheck)

public:
    FilesCheck(const Models::FlightSimulatorMapping *mapping,
               const QString &payload,
               Problems *problems);

    /// One object per file, with its "state".
    const QJsonArray &json() const { return m_json; }

    /// How many exist, whatever their content.
    int present() const { return m_present; }

    /// The room that copying needs in the simulator's folder, in bytes.
    qint64 neededBytes() const { return m_needed; }

private:
    QJsonObject lookAt(const QString &target, const QString &source);
    QString stateOf(const QString &target, const QString &source);
    void judge();
    void judgeAccess();
    bool judgeFolders(const QString &path);
    void judgeSource(const QString &source);
    QString names(const char *state) const;

    Problems *const m_problems;
    QJsonArray m_json;
    int m_present = 0;
    qint64 m_needed = 0;
    QSet<QString> m_obstacles; ///< In folders' places.
};

} // namespace Quillmont::Utility::Doctor

#endif
