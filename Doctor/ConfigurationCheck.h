#ifndef DOCTOR_CONFIGURATIONCHECK_H
#define DOCTOR_CONFIGURATIONCHECK_H

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

namespace Quillmont::Library::Xml {
struct RootChild;
} // namespace Quillmont::Library::Xml

namespace Quillmont::Utility::Models {
class FlightSimScan;
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::Doctor {

class Problems;

/// Checks whether a simulator's configuration file is well formed and has our entry.
class ConfigurationCheck
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::ConfigurationCheck)

public:
    /// @p isInstalled: whether the plugin's files exist, so that the entry should, too.
    ConfigurationCheck(const Models::FlightSimulatorMapping *mapping,
                       bool isInstalled,
                       Problems *problems);

    /// The findings, with stable keys.
    const QJsonObject &json() const { return m_json; }

    /// Of the file, as backupsOf() has them.
    const QJsonArray &backups() const { return m_backups; }

private:
    void lookAt(const QString &path);
    void readFile();
    void judgeAccess();
    void read(const QByteArray &bytes);
    void describeDamage(const QString &text, const QString &problem);
    void lookAtEntries(const QString &text);
    void lookAtOurs(const Library::Xml::RootChild &entry);
    void lookAtOthers(const Library::Xml::RootChild &entry);
    void judge(int count);
    bool isFileThere(const QString &path) const;

    const Models::FlightSimulatorMapping *const m_mapping;
    const Models::FlightSimScan *const m_entry;
    const bool m_isInstalled;
    Problems *const m_problems;
    QJsonObject m_json;
    QJsonObject m_ours;
    QJsonArray m_others;
    QJsonArray m_backups;
    QString m_path;
};

} // namespace Quillmont::Utility::Doctor

#endif
