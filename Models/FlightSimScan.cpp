#include "Models/FlightSimScan.h"

#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimRemoval.h"

#include <QJsonArray>

using Quillmont::Library::Models::XmlInsertionModel;

namespace Quillmont::Utility::Models {

FlightSimScan::FlightSimScan(QObject *parent, const QJsonObject &entry)
    : QObject(parent)
    , name(entry.value(QLatin1String("name")).toString())
    , simcode(entry.value(QLatin1String("simcode")).toString())
    , path(entry.value(QLatin1String("path")).toString())
    , key(entry.value(QLatin1String("key")).toString())
    , location(entry.value(QLatin1String("location")).toInt(0))
    , type(entry.value(QLatin1String("type")).toInt(0))
    , entry(entry)
    , target(entry.value(QLatin1String("target")).toString())
{
    readRoot();
    readFiles();

    // A conflict is read only if "config" is null or an object that is not empty.
    const QJsonValue configValue = entry.value(QLatin1String("config"));
    if (!configValue.isNull()) {
        const QJsonObject configObject = configValue.toObject();
        if (configObject.isEmpty())
            return;
        readConfig(configObject);
    }
    readConflict();
}

void FlightSimScan::readRoot()
{
    const QString text = entry.value(QLatin1String("root")).toString();
    if (!text.isEmpty())
        root = text.toInt(nullptr, 10);
}

void FlightSimScan::readFiles()
{
    const QJsonArray elements = entry.value(QLatin1String("files")).toArray();
    for (const QJsonValue &element : elements) {
        const QJsonObject file = element.toObject();
        const auto slashed = [&file](QLatin1String key) {
            return file.value(key).toString().replace(u'\\', u'/');
        };
        files.insert(slashed(QLatin1String("destination")), slashed(QLatin1String("source")));
    }
}

void FlightSimScan::readConfig(const QJsonObject &json)
{
    config = new XmlInsertionModel(this, json);
    const QJsonObject removal = json.value(QLatin1String("remove")).toObject();
    if (!removal.isEmpty())
        remove = new FlightSimRemoval(this, removal);
}

void FlightSimScan::readConflict()
{
    const QJsonObject json = entry.value(QLatin1String("conflict")).toObject();
    if (!json.isEmpty())
        conflict = new FlightSimConflict(this, json);
}

} // namespace Quillmont::Utility::Models
