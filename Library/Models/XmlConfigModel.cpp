#include "Library/Models/XmlConfigModel.h"

#include "Library/Models/XmlValues.h"

#include <QJsonObject>

namespace Quillmont::Library::Models {

XmlConfigModel::XmlConfigModel(QObject *parent, const QJsonObject &json)
    : QObject(parent)
    , path(json.value(QLatin1String("path")).toString().replace(u'\\', u'/'))
    , steam(json.value(QLatin1String("steam")).toInt(0))
{
    const QJsonValue removal = json.value(QLatin1String("remove"));
    if (removal.isObject())
        deleteParent = removal[QLatin1String("delete_parent")].toBool();

    const QString entry = json.value(QLatin1String("parent")).toString();
    const XmlValues values = xmlValues(json);
    if (entry.isEmpty() || values.isEmpty())
        return;

    element = removal[QLatin1String("parent")].toString();
    if (element.isEmpty())
        element = entry;

    key = removal[QLatin1String("key")].toString();
    value = removal[QLatin1String("value")].toString();
    if (key.isEmpty() || value.isEmpty()) {
        key = values.first().first;
        value = values.first().second;
    }
}

} // namespace Quillmont::Library::Models
