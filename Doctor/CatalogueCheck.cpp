#include "Doctor/CatalogueCheck.h"

#include "Controllers/ChosenFolder.h"
#include "Doctor/CatalogueKeys.h"
#include "Doctor/Page.h"
#include "Doctor/Quoting.h"
#include "Library/Models/XmlInsertionModel.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QSet>
#include <QStringList>

#include <algorithm>

using Quillmont::Library::Models::XmlInsertionModel;
using Quillmont::Utility::Controllers::chosenFolderKey;

namespace Quillmont::Utility::Doctor {

namespace {

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
    const QString json = wanted == QLatin1String("integer") ? QStringLiteral("number")
        : wanted == QLatin1String("digits")                 ? QStringLiteral("string")
                                                            : wanted;
    if (typeOf(value) != json) {
        say(path, tr("Its type is %1, not %2; it counts as missing.").arg(typeOf(value), json));
        return;
    }
    if (!isWhole(value, wanted))
        say(path, tr("It is no whole number; it counts as 0."));
    if (value.isObject())
        checkKeys(value.toObject(), path, kind);
    const QJsonArray elements = value.toArray();
    for (int i = 0; i < elements.size(); ++i)
        checkMember(
            elements.at(i), path + u'/' + QString::number(i), QStringLiteral("object:") + kind);
}

void CatalogueCheck::checkEntry(const QJsonObject &entry, const QString &path)
{
    const int location = entry.value(QLatin1String("location")).toInt(0);
    checkName(text(entry, "name"), path);
    if (location < 0 || location > 4)
        say(path + QStringLiteral("/location"),
            tr("There is no such location; the entry itself never finds anything."));
    checkFiles(entry.value(QLatin1String("files")).toArray(), path + QStringLiteral("/files"));
    checkConfiguration(entry, path);
}

void CatalogueCheck::checkName(const QString &name, const QString &path)
{
    const QString place = path + QStringLiteral("/name");
    const QString key = chosenFolderKey(name);
    const QPair<QString, QString> other = m_names.value(key);
    const int line = m_places.of(other.second).line;
    if (name.isEmpty())
        say(path, tr("The simulator has no name."));
    else if (m_names.contains(key) && other.first == name)
        say(place,
            tr("Line %1 has the same name; both share one record and one chosen folder.")
                .arg(line));
    else if (m_names.contains(key))
        say(place, tr("It shares its chosen folder with the name in line %1.").arg(line));
    m_names.insert(key, {name, place});
}

void CatalogueCheck::checkFiles(const QJsonArray &files, const QString &path)
{
    if (files.isEmpty())
        say(path.section(u'/', 0, 0),
            tr("There are no files; nothing is installed, and it counts as installed."));
    QSet<QString> destinations;
    for (int i = 0; i < files.size(); ++i)
        checkFile(files.at(i).toObject(), path + u'/' + QString::number(i), &destinations);
}

void CatalogueCheck::checkFile(const QJsonObject &file,
                               const QString &path,
                               QSet<QString> *destinations)
{
    const QString source = text(file, "source").replace(u'\\', u'/');
    const QString destination = text(file, "destination").replace(u'\\', u'/');
    const QString place = path + QStringLiteral("/destination");
    if (source.isEmpty() || !QFileInfo(m_payload + source).isFile())
        say(path + QStringLiteral("/source"),
            tr("The payload has no file %1; it cannot be copied.").arg(quoted(source)));
    if (leadsOut(source))
        say(path + QStringLiteral("/source"), tr("\"..\" leads out of the payload."));
    if (destination.isEmpty())
        say(path, tr("There is no destination; it is the simulator's folder itself."));
    if (leadsOut(destination))
        say(place, tr("\"..\" leads out of the simulator's folder; the file is written there."));
    if (destinations->contains(destination))
        say(place, tr("Another file has the same destination; the later one is copied."));
    destinations->insert(destination);
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
    if (config.isEmpty() && entry.value(QLatin1String("type")) == QJsonValue(0))
        say(path + QStringLiteral("/type"),
            tr("Without \"config\" no configuration file is touched."));
    if (config.isEmpty())
        return;
    if (entry.value(QLatin1String("type")).toInt(0) != 0) {
        say(place, tr("\"type\" is not 0, so no configuration file is touched."));
        return;
    }
    if (text(config, "path").isEmpty())
        say(place, tr("There is no path; no file can be edited."));
    if (leadsOut(text(config, "path").replace(u'\\', u'/')))
        say(place + QStringLiteral("/path"), tr("\"..\" leads out of the folder of such files."));
    const QStringList impossible = noMarkupOf(config);
    for (const QString &key : impossible)
        say(place + u'/' + key, tr("XML cannot hold this; the entry is never added."));
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
