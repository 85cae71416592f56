#include "Library/Models/XmlInsertionModel.h"

#include <QJsonObject>

namespace Quillmont::Library::Models {

XmlInsertionModel::XmlInsertionModel(QObject *parent, const QJsonObject &json)
    : XmlConfigModel(parent, json)
    , parentName(json.value(QLatin1String("parent")).toString())
    , values(xmlValues(json))
{ }

} // namespace Quillmont::Library::Models
