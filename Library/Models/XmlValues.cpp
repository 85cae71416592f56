#include "Library/Models/XmlValues.h"

#include <QJsonArray>
#include <QJsonObject>

namespace Quillmont::Library::Models {

XmlValues xmlValues(const QJsonObject &json)
{
    XmlValues values;
    const QJsonArray array = json.value(QLatin1String("values")).toArray();
    for (const QJsonValue &pair : array) {
        const QString key = pair[QLatin1String("key")].toString();
        if (!key.isEmpty())
            values.append({key, pair[QLatin1String("value")].toString()});
    }
    return values;
}

} // namespace Quillmont::Library::Models
