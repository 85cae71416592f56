#ifndef LIBRARY_MODELS_XMLVALUES_H
#define LIBRARY_MODELS_XMLVALUES_H

#include <QPair>
#include <QString>
#include <QVector>

class QJsonObject;

namespace Quillmont::Library::Models {

/// The child elements of an add-on element, name and text, in order.
using XmlValues = QVector<QPair<QString, QString>>;

/// The "values" of a catalogue entry's "config" object. A value without a "key" is left out.
XmlValues xmlValues(const QJsonObject &json);

} // namespace Quillmont::Library::Models

#endif
