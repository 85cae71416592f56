#ifndef DOCTOR_TEXTREPORT_H
#define DOCTOR_TEXTREPORT_H

#include <QCoreApplication>
#include <QString>

class QJsonArray;
class QJsonObject;

namespace Quillmont::Utility::Doctor {

class Page;

/// Writes an Examination's report as text for a person.
class TextReport
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::TextReport)

public:
    /// Writes @p report onto @p page.
    static void write(const QJsonObject &report, Page *page);

private:
    static void writeSimulator(const QJsonObject &simulator, Page *page);
    static void writeLocation(const QJsonObject &simulator, Page *page);
    static void writeFiles(const QJsonArray &files, Page *page);
    static void writeConfiguration(const QJsonObject &configuration, Page *page);
    static QString configurationLine(const QJsonObject &configuration);
    static QString ourEntryLine(const QJsonObject &ours);
    static void writeBackup(const QJsonObject &backup, Page *page);
    static void writeBackups(const QJsonArray &backups, Page *page);
    static void writeRecord(const QJsonObject &record, Page *page);
    static void writeThingsToDo(const QJsonObject &report, Page *page);
    static QString stateLine(const QString &state);
};

} // namespace Quillmont::Utility::Doctor

#endif
