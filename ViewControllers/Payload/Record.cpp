#include "ViewControllers/Payload/Record.h"

#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/TextFile.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

namespace {

QJsonObject recordOf(const FlightSimulatorMapping *mapping)
{
    QJsonArray files;
    const auto &installed = mapping->scan->files;
    for (auto it = installed.keyBegin(); it != installed.keyEnd(); ++it)
        files.append(QDir::toNativeSeparators(mapping->path + u'/' + *it));
    return {{QStringLiteral("name"), mapping->scan->name},
            {QStringLiteral("path"), mapping->path},
            {QStringLiteral("files"), files}};
}

// Of several records with one name only the last is removed.
void removeLastRecord(QJsonArray &records, const QString &name)
{
    for (int i = records.size() - 1; i >= 0; --i) {
        if (records.at(i).toObject().value(QLatin1String("name")) == QJsonValue(name)) {
            records.removeAt(i);
            return;
        }
    }
}

} // namespace

QJsonDocument recordDocument(const QByteArray &bytes)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    // What the parser accepts is UTF-8 throughout. Other encodings and invalid bytes go through
    // text, which takes as long again as parsing.
    return error.error == QJsonParseError::NoError
        ? document
        : QJsonDocument::fromJson(textOf(bytes).toLocal8Bit());
}

QJsonArray recordsIn(const QByteArray &bytes)
{
    return recordDocument(bytes).array();
}

bool isComplete(const QJsonObject &record)
{
    // Every file is looked up, as in isAddonInstalled().
    bool complete = true;
    const QJsonArray files = record.value(QLatin1String("files")).toArray();
    for (const QJsonValue &file : files)
        complete &= QFile::exists(file.toString());
    return complete;
}

QByteArray
updatedRecord(const QByteArray &bytes, const FlightSimulatorMapping *mapping, bool uninstalled)
{
    QJsonArray records = recordsIn(bytes);
    removeLastRecord(records, mapping->scan->name);
    if (!uninstalled)
        records.append(recordOf(mapping));
    return QJsonDocument(records).toJson(QJsonDocument::Indented);
}

} // namespace Quillmont::Utility::ViewControllers
