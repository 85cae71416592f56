#include "Models/FlightSimRemoval.h"

#include "Models/FileOperation.h"

#include <QJsonArray>
#include <QJsonObject>

namespace Quillmont::Utility::Models {

FlightSimRemoval::FlightSimRemoval(QObject *parent, const QJsonObject &json)
    : QObject(parent)
    , parent(json.value(QLatin1String("parent")).toString())
    , key(json.value(QLatin1String("key")).toString())
    , value(json.value(QLatin1String("value")).toString())
    , deleteParent(json.value(QLatin1String("delete_parent")).toBool(false))
{
    const QJsonArray operations = json.value(QLatin1String("files")).toArray();
    for (const QJsonValue &operation : operations)
        files.append(new FileOperation(this, operation.toObject()));
}

} // namespace Quillmont::Utility::Models
