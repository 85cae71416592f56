#include "Models/FlightSimConflict.h"

#include <QJsonObject>

namespace Quillmont::Utility::Models {

FlightSimConflict::FlightSimConflict(QObject *parent, const QJsonObject &json)
    : QObject(parent)
    , removeOnConflict(json.value(QLatin1String("remove_on_conflict")).toBool(true))
    , checkFile(json.value(QLatin1String("check_file")).toBool(false))
    , name(json.value(QLatin1String("name")).toString())
    , solution(json.value(QLatin1String("solution")).toString())
    , location(json.value(QLatin1String("location")).toInt(0))
{ }

} // namespace Quillmont::Utility::Models
