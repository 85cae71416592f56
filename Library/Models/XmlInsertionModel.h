#ifndef LIBRARY_MODELS_XMLINSERTIONMODEL_H
#define LIBRARY_MODELS_XMLINSERTIONMODEL_H

#include "Library/Models/XmlConfigModel.h"
#include "Library/Models/XmlValues.h"

namespace Quillmont::Library::Models {

/// Adds to XmlConfigModel what our add-on element consists of.
class XmlInsertionModel : public XmlConfigModel
{
    Q_OBJECT

public:
    XmlInsertionModel(QObject *parent, const QJsonObject &json);

    QString parentName; ///< Name of the element to write.
    XmlValues values; ///< Its child elements and their texts, in order.
};

} // namespace Quillmont::Library::Models

#endif
