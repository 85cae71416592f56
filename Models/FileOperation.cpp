#include "Models/FileOperation.h"

#include <QJsonObject>

namespace Quillmont::Utility::Models {

FileOperation::FileOperation(QObject *parent, const QJsonObject &json)
    : QObject(parent)
    , root(json.value(QLatin1String("root")).toString())
    , path(json.value(QLatin1String("path")).toString())
{ }

} // namespace Quillmont::Utility::Models
