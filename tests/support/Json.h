#ifndef TESTS_SUPPORT_JSON_H
#define TESTS_SUPPORT_JSON_H

#include <QJsonObject>

namespace Tests {

/// @p text as a JSON object; a text that is none ends the test program.
QJsonObject json(const QByteArray &text);

/// Any JSON value, written as JSON text; a text that is none ends the test program.
QJsonValue jsonValue(const QByteArray &text);

} // namespace Tests

#endif
