#ifndef VIEWCONTROLLERS_PAYLOAD_RECORD_H
#define VIEWCONTROLLERS_PAYLOAD_RECORD_H

#include <QString>

class QJsonArray;
class QJsonObject;

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// The records in the record's text; none where it is damaged.
QJsonArray recordsIn(const QString &text);

/// Whether every file of a record is there.
bool isComplete(const QJsonObject &record);

/// The record's text with a fresh record of @p mapping in place of its last one, or just without
/// that when @p uninstalled.
QString
updatedRecord(const QString &text, const Models::FlightSimulatorMapping *mapping, bool uninstalled);

} // namespace Quillmont::Utility::ViewControllers

#endif
