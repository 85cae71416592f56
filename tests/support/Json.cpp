#include "tests/support/Json.h"

#include <QJsonDocument>

namespace Tests {

QJsonObject json(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (!document.isObject())
        qFatal("not a JSON object: %s (%s)", text.constData(), qPrintable(error.errorString()));
    return document.object();
}

QJsonValue jsonValue(const QByteArray &text)
{
    return json("{\"value\": " + text + '}').value(QLatin1String("value"));
}

} // namespace Tests
