#ifndef TESTS_SUPPORT_JSON_H
#define TESTS_SUPPORT_JSON_H

#include <QJsonObject>

namespace Tests {

/// @p text as a JSON object; any other text ends the test program.
QJsonObject json(const QByteArray &text);

/// @p text as any JSON value; invalid text ends the test program.
QJsonValue jsonValue(const QByteArray &text);

} // namespace Tests

#endif
