#ifndef DOCTOR_CATALOGUEKEYS_H
#define DOCTOR_CATALOGUEKEYS_H

#include <QMap>
#include <QString>
#include <QStringList>

class QJsonObject;
class QJsonValue;

namespace Quillmont::Utility::Doctor {

/// The keys that the program reads in a catalogue's object of that @p kind, with their types. After
/// a colon: the kind of the object, or of the array's objects. An "integer" is a number, and
/// "digits" are a string.
QMap<QString, QString> keysOf(const QString &kind);

/// The type of @p value, as JSON calls it.
QString typeOf(const QJsonValue &value);

/// Whether @p value is what an "integer" or "digits" should be; any other @p type may be anything.
bool isWhole(const QJsonValue &value, const QString &type);

/// Whether ".." is a part of @p path.
bool leadsOut(const QString &path);

/// The keys of @p config whose values XML cannot represent, such as "parent" or "values/0".
QStringList noMarkupOf(const QJsonObject &config);

} // namespace Quillmont::Utility::Doctor

#endif
