#ifndef LIBRARY_MODELS_XMLINSERTIONMODEL_H
#define LIBRARY_MODELS_XMLINSERTIONMODEL_H

#include "Library/Models/XmlConfigModel.h"
#include "Library/Models/XmlValues.h"

namespace Quillmont::Library::Models {

/// Adds to XmlConfigModel what our entry consists of.
class XmlInsertionModel : public XmlConfigModel
{
    Q_OBJECT

public:
    XmlInsertionModel(QObject *parent, const QJsonObject &json);

    QString parentName; ///< Name of the element that one entry is made of.
    XmlValues values; ///< The entry's child elements and texts, in order.
};

} // namespace Quillmont::Library::Models

#endif
