#include "Doctor/CatalogueKeys.h"

#include "Library/Xml/XmlMarkup.h"

#include <QJsonArray>
#include <QJsonObject>

namespace Quillmont::Utility::Doctor {

QMap<QString, QString> keysOf(const QString &kind)
{
    static const QMap<QString, QString> keys{
        {QStringLiteral("entry"),
         QStringLiteral("name=string simcode=string location=integer path=string key=string "
                        "target=string type=integer root=digits files=array:file "
                        "config=object?:config conflict=object?:conflict")},
        {QStringLiteral("file"), QStringLiteral("source=string destination=string")},
        {QStringLiteral("config"),
         QStringLiteral("path=string steam=integer parent=string values=array:value "
                        "remove=object:remove")},
        {QStringLiteral("value"), QStringLiteral("key=string value=string")},
        {QStringLiteral("remove"),
         QStringLiteral("parent=string key=string value=string delete_parent=bool "
                        "files=array:extra")},
        {QStringLiteral("extra"), QStringLiteral("root=digits path=string")},
        {QStringLiteral("conflict"),
         QStringLiteral("name=string remove_on_conflict=bool check_file=bool location=integer "
                        "solution=string")}};
    QMap<QString, QString> types;
    const QStringList pairs = keys.value(kind).split(u' ');
    for (const QString &pair : pairs)
        types.insert(pair.section(u'=', 0, 0), pair.section(u'=', 1));
    return types;
}

QString typeOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return QStringLiteral("bool");
    case QJsonValue::Double:
        return QStringLiteral("number");
    case QJsonValue::String:
        return QStringLiteral("string");
    case QJsonValue::Array:
        return QStringLiteral("array");
    case QJsonValue::Object:
        return QStringLiteral("object");
    default:
        return QStringLiteral("null");
    }
}

bool isWhole(const QJsonValue &value, const QString &type)
{
    bool isNumber = true;
    if (type == QLatin1String("digits") && !value.toString().isEmpty())
        value.toString().toInt(&isNumber, 10);
    if (type == QLatin1String("integer"))
        isNumber = value.toInt(0) == value.toInt(1);
    return isNumber;
}

bool leadsOut(const QString &path)
{
    return path.split(u'/').contains(QLatin1String(".."));
}

QStringList noMarkupOf(const QJsonObject &config)
{
    const auto isMarkup = [](const QJsonValue &name, const QJsonValue &content) {
        return !Library::Xml::XmlMarkup::element(name.toString(), content.toString()).isNull();
    };
    QStringList keys;
    const QJsonValue parent = config.value(QLatin1String("parent"));
    if (!parent.toString().isEmpty() && !isMarkup(parent, QString()))
        keys.append(QStringLiteral("parent"));
    const QJsonArray values = config.value(QLatin1String("values")).toArray();
    for (int i = 0; i < values.size(); ++i) {
        const QJsonObject pair = values.at(i).toObject();
        if (!isMarkup(pair.value(QLatin1String("key")), pair.value(QLatin1String("value"))))
            keys.append(QStringLiteral("values/%1").arg(i));
    }
    return keys;
}

} // namespace Quillmont::Utility::Doctor
