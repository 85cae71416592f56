#ifndef VIEWCONTROLLERS_PAYLOAD_RECORD_H
#define VIEWCONTROLLERS_PAYLOAD_RECORD_H

#include <QByteArray>

class QJsonArray;
class QJsonDocument;
class QJsonObject;

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// The JSON document in the record's @p bytes; null if it is damaged.
QJsonDocument recordDocument(const QByteArray &bytes);

/// The records in the record's @p bytes; none if it is damaged.
QJsonArray recordsIn(const QByteArray &bytes);

/// Whether every file of a record exists.
bool isComplete(const QJsonObject &record);

/// The record's @p bytes with the last record of @p mapping replaced by a new one, or removed if
/// @p uninstalled. They are UTF-8 in any locale.
QByteArray updatedRecord(const QByteArray &bytes,
                         const Models::FlightSimulatorMapping *mapping,
                         bool uninstalled);

} // namespace Quillmont::Utility::ViewControllers

#endif
