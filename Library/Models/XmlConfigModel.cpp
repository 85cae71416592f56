#include "Library/Models/XmlConfigModel.h"

#include <QJsonObject>

namespace Quillmont::Library::Models {

XmlConfigModel::XmlConfigModel(QObject *parent, const QJsonObject &json)
    : QObject(parent)
    , path(json.value(QLatin1String("path")).toString().replace(u'\\', u'/'))
    , deleteParent(true)
{ }

} // namespace Quillmont::Library::Models
