#include "Doctor/CatalogueCheck.h"

#include "Doctor/Page.h"
#include "Doctor/Quoting.h"
#include "Library/Models/XmlInsertionModel.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QSet>
#include <QStringList>

#include <algorithm>

using Quillmont::Library::Models::XmlInsertionModel;

namespace Quillmont::Utility::Doctor {

namespace {

// The keys that the program reads in each kind of object, with their types. After a colon: the kind
// of the object, or of the array's objects.
QMap<QString, QString> keysOf(const QString &kind)
{
    static const QMap<QString, QString> keys{
        {QStringLiteral("entry"),
         QStringLiteral("name=string simcode=string location=number path=string key=string "
                        "target=string type=number root=string files=array:file "
                        "config=object?:config conflict=object?:conflict")},
        {QStringLiteral("file"), QStringLiteral("source=string destination=string")},
        {QStringLiteral("config"),
         QStringLiteral("path=string steam=number parent=string values=array:value "
                        "remove=object:remove")},
        {QStringLiteral("value"), QStringLiteral("key=string value=string")},
        {QStringLiteral("remove"),
         QStringLiteral("parent=string key=string value=string delete_parent=bool "
                        "files=array:extra")},
        {QStringLiteral("extra"), QStringLiteral("root=string path=string")},
        {QStringLiteral("conflict"),
         QStringLiteral("name=string remove_on_conflict=bool check_file=bool location=number "
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

QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

} // namespace

CatalogueCheck::CatalogueCheck(const QByteArray &text, const QString &payload)
    : m_places(text)
    , m_payload(payload)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (document.isNull())
        sayAt(m_places.placeAt(std::max(0, error.offset - 1)),
              QString(),
              tr("It is no JSON: %1. The program sees no simulator.").arg(error.errorString()));
    else if (!document.isArray())
        say(QString(), tr("It is no array. The program sees no simulator."));
    for (const auto &repeated : m_places.repeated())
        sayAt(m_places.placeAt(repeated.second),
              repeated.first,
              tr("The key is there twice; the last one counts."));
    const QJsonArray entries = document.array();
    for (int i = 0; i < entries.size(); ++i) {
        checkMember(entries.at(i), QString::number(i), QStringLiteral("object:entry"));
        checkEntry(entries.at(i).toObject(), QString::number(i));
    }
}

// NOLINTNEXTLINE(misc-no-recursion): ends at the depth that QJsonDocument allows.
void CatalogueCheck::checkKeys(const QJsonObject &object, const QString &path, const QString &kind)
{
    const QMap<QString, QString> known = keysOf(kind);
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString member = path + u'/' + it.key();
        if (known.contains(it.key()))
            checkMember(it.value(), member, known.value(it.key()));
        else
            say(member, tr("Unknown key; it is ignored."));
    }
}

// NOLINTNEXTLINE(misc-no-recursion)
void CatalogueCheck::checkMember(const QJsonValue &value, const QString &path, const QString &type)
{
    QString wanted = type.section(u':', 0, 0);
    const bool mayBeNull = wanted.endsWith(u'?');
    wanted.chop(mayBeNull ? 1 : 0);
    const QString kind = type.section(u':', 1);
    if (mayBeNull && value.isNull())
        return;
    if (typeOf(value) != wanted) {
        say(path, tr("Its type is %1, not %2; it counts as missing.").arg(typeOf(value), wanted));
        return;
    }
    if (value.isObject())
        checkKeys(value.toObject(), path, kind);
    const QJsonArray elements = value.toArray();
    for (int i = 0; i < elements.size(); ++i)
        checkMember(
            elements.at(i), path + u'/' + QString::number(i), QStringLiteral("object:") + kind);
}

void CatalogueCheck::checkEntry(const QJsonObject &entry, const QString &path)
{
    const QString name = text(entry, "name");
    if (name.isEmpty())
        say(path, tr("The simulator has no name."));
    else if (m_names.contains(name))
        say(path + QStringLiteral("/name"),
            tr("Line %1 has the same name; both share one record and one chosen folder.")
                .arg(m_places.of(m_names.value(name)).line));
    m_names.insert(name, path + QStringLiteral("/name"));
    checkFiles(entry.value(QLatin1String("files")).toArray(), path + QStringLiteral("/files"));
    checkConfiguration(entry, path);
}

void CatalogueCheck::checkFiles(const QJsonArray &files, const QString &path)
{
    if (files.isEmpty())
        say(path.section(u'/', 0, 0),
            tr("There are no files; nothing is installed, and it counts as installed."));
    QSet<QString> destinations;
    for (int i = 0; i < files.size(); ++i) {
        const QString file = path + u'/' + QString::number(i);
        const auto slashed = [&](const char *key) {
            return text(files.at(i).toObject(), key).replace(u'\\', u'/');
        };
        const QString source = slashed("source");
        const QString destination = slashed("destination");
        if (source.isEmpty() || !QFileInfo(m_payload + source).isFile())
            say(file + QStringLiteral("/source"),
                tr("The payload has no file %1; it cannot be copied.").arg(quoted(source)));
        if (destination.isEmpty())
            say(file, tr("There is no destination; it is the simulator's folder itself."));
        if (destination.split(u'/').contains(QLatin1String("..")))
            say(file + QStringLiteral("/destination"),
                tr("\"..\" leads out of the simulator's folder; the file is written there."));
        if (destinations.contains(destination))
            say(file + QStringLiteral("/destination"),
                tr("Another file has the same destination; the later one is copied."));
        destinations.insert(destination);
    }
}

void CatalogueCheck::checkConfiguration(const QJsonObject &entry, const QString &path)
{
    const QJsonValue value = entry.value(QLatin1String("config"));
    const QJsonObject config = value.toObject();
    const QString place = path + QStringLiteral("/config");
    const bool isSilent = !value.isNull() && config.isEmpty();
    if (isSilent && entry.contains(QLatin1String("conflict")))
        say(path + QStringLiteral("/conflict"),
            tr("It is only read beside a \"config\" that is null or not empty; it is ignored."));
    if (config.isEmpty())
        return;
    if (entry.value(QLatin1String("type")).toInt(0) != 0) {
        say(place, tr("\"type\" is not 0, so no configuration file is touched."));
        return;
    }
    if (text(config, "path").isEmpty())
        say(place, tr("There is no path; no file can be edited."));
    checkRemoval(config, place);
}

// An entry that is not recognised is added again by each installation, and never removed.
void CatalogueCheck::checkRemoval(const QJsonObject &config, const QString &path)
{
    const XmlInsertionModel model(nullptr, config);
    if (!model.describesEntry()) {
        say(path, tr(R"(Without "parent" and "values" no entry is added.)"));
        return;
    }
    const bool isRecognised
        = model.element == model.parentName
        && std::any_of(model.values.cbegin(), model.values.cend(), [&model](const auto &pair) {
               return pair.first == model.key && pair.second.trimmed() == model.value.trimmed();
           });
    const QString place
        = config.contains(QLatin1String("remove")) ? path + QStringLiteral("/remove") : path;
    if (!isRecognised)
        say(place,
            tr("This entry installs, but cannot be removed: no pair of \"values\" is what "
               "\"remove\" looks for."));
    else if (!model.deleteParent)
        say(place,
            tr("Only the child element is removed, and the rest of the entry stays: "
               "\"delete_parent\" is not true."));
}

void CatalogueCheck::say(const QString &path, const QString &text)
{
    QString known = path;
    while (!known.isEmpty() && m_places.of(known).line == 1 && m_places.of(known).column == 1)
        known = known.contains(u'/') ? known.section(u'/', 0, -2) : QString();
    sayAt(m_places.of(known), path, text);
}

void CatalogueCheck::sayAt(JsonPlaces::Place place, const QString &path, const QString &text)
{
    m_findings.insert({place.line, place.column},
                      QJsonObject{{QStringLiteral("line"), place.line},
                                  {QStringLiteral("column"), place.column},
                                  {QStringLiteral("key"), path.section(u'/', 1)},
                                  {QStringLiteral("text"), text}});
}

QJsonObject CatalogueCheck::json() const
{
    QJsonArray findings;
    for (const QJsonObject &finding : m_findings)
        findings.append(finding);
    return {{QStringLiteral("fine"), findings.isEmpty()}, {QStringLiteral("findings"), findings}};
}

void CatalogueCheck::write(const QJsonObject &json, const QString &file, Page *page)
{
    const QJsonArray findings = json.value(QLatin1String("findings")).toArray();
    for (const auto &finding : findings) {
        const QJsonObject object = finding.toObject();
        const QString key = printable(text(object, "key"));
        page->add(0,
                  QStringLiteral("%1:%2:%3: %4%5")
                      .arg(printable(file),
                           QString::number(object.value(QLatin1String("line")).toInt()),
                           QString::number(object.value(QLatin1String("column")).toInt()),
                           key.isEmpty() ? key : key + QStringLiteral(": "),
                           text(object, "text")));
    }
    if (findings.isEmpty())
        page->add(0, tr("Nothing is wrong."), Page::Good);
}

} // namespace Quillmont::Utility::Doctor
