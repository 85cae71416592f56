#include "Library/Models/XmlConfigModel.h"

#include "Library/Models/XmlValues.h"

#include <QJsonObject>

#include <cmath>
#include <limits>

namespace Quillmont::Library::Models {

namespace {

// An invalid number must not count as a missing one: the path would then be relative to the data
// root, and a prefix's folders would be created there.
qint64 gameNumber(const QJsonValue &value)
{
    constexpr qint64 max = std::numeric_limits<quint32>::max();
    if (value.isUndefined())
        return 0;
    const double written = value.toDouble(-1);
    const bool isGame = written >= 1 && written <= max && std::trunc(written) == written;
    return isGame ? qint64(written) : -1;
}

} // namespace

XmlConfigModel::XmlConfigModel(QObject *parent, const QJsonObject &json)
    : QObject(parent)
    , path(json.value(QLatin1String("path")).toString().replace(u'\\', u'/'))
    , steam(gameNumber(json.value(QLatin1String("steam"))))
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
