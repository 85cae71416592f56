#ifndef VIEWCONTROLLERS_PAYLOAD_RECORD_H
#define VIEWCONTROLLERS_PAYLOAD_RECORD_H

#include <QString>

class QJsonArray;
class QJsonObject;

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// The records in the record's text; none if it is damaged.
QJsonArray recordsIn(const QString &text);

/// Whether every file of a record exists.
bool isComplete(const QJsonObject &record);

/// The record's text with the last record of @p mapping replaced by a new one, or removed if
/// @p uninstalled.
QString
updatedRecord(const QString &text, const Models::FlightSimulatorMapping *mapping, bool uninstalled);

} // namespace Quillmont::Utility::ViewControllers

#endif
