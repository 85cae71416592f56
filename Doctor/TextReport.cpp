#include "Doctor/TextReport.h"

#include "Doctor/Backups.h"
#include "Doctor/Page.h"
#include "Doctor/Quoting.h"
#include "Doctor/Reasons.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

namespace Quillmont::Utility::Doctor {

namespace {

QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

QString quotedText(const QJsonObject &object, const char *key)
{
    return quoted(text(object, key));
}

QString number(const QJsonObject &object, const char *key)
{
    return QString::number(object.value(QLatin1String(key)).toVariant().toLongLong());
}

QJsonArray array(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toArray();
}

} // namespace

void TextReport::write(const QJsonObject &report, Page *page)
{
    const QJsonArray simulators = array(report, "simulators");
    for (const auto &simulator : simulators)
        writeSimulator(simulator.toObject(), page);
    if (simulators.isEmpty())
        page->add(0, tr("The catalogue has no simulator."));
    writeThingsToDo(report, page);
}

void TextReport::writeSimulator(const QJsonObject &simulator, Page *page)
{
    const QString state = text(simulator, "state");
    const bool isFine = array(simulator, "problems").isEmpty();
    page->add(0,
              stateLine(state).arg(printable(text(simulator, "name"))),
              isFine ? Page::Title : Page::Bad);
    writeLocation(simulator, page);
    if (state != QLatin1String("not found")) {
        writeFiles(array(simulator, "files"), page);
        writeConfiguration(simulator.value(QLatin1String("configuration")).toObject(), page);
        writeBackups(array(simulator, "backups"), page);
    }
    writeRecord(simulator.value(QLatin1String("record")).toObject(), page);
    const QJsonArray problems = array(simulator, "problems");
    for (const auto &problem : problems)
        page->add(2, tr("Problem: %1").arg(text(problem.toObject(), "text")), Page::Bad);
    page->addEmptyLine();
}

QString TextReport::stateLine(const QString &state)
{
    const QMap<QString, QString> lines{
        {QStringLiteral("not found"), tr("%1: not found on this computer")},
        {QStringLiteral("installed"), tr("%1: the plugin is installed")},
        {QStringLiteral("partly installed"), tr("%1: only a part of the plugin is installed")},
        {QStringLiteral("not installed"), tr("%1: the plugin is not installed")}};
    return lines.value(state);
}

void TextReport::writeLocation(const QJsonObject &simulator, Page *page)
{
    if (!text(simulator, "folder").isEmpty())
        page->add(2,
                  tr("Folder: %1, known by: %2")
                      .arg(quotedText(simulator, "folder"),
                           Reasons::translated(text(simulator, "foundBy"))));
    const QJsonObject gaveWay = simulator.value(QLatin1String("gaveWay")).toObject();
    if (!gaveWay.isEmpty())
        page->add(2,
                  tr("Gave %1 up to %2, which found the same folder")
                      .arg(quotedText(gaveWay, "folder"), quotedText(gaveWay, "to")));
    const QJsonArray places = array(simulator, "turnedDown");
    for (const auto &place : places) {
        const QJsonObject object = place.toObject();
        page->add(2,
                  tr("Turned down: %1 (%2): %3")
                      .arg(quotedText(object, "path"),
                           Reasons::translated(text(object, "namedBy")),
                           printable(Reasons::translated(text(object, "reason")))));
    }
}

void TextReport::writeFiles(const QJsonArray &files, Page *page)
{
    QMap<QString, int> counts;
    for (const auto &file : files)
        ++counts[text(file.toObject(), "state")];
    const QMap<QString, QString> lines{
        {QStringLiteral("installed"), tr("Files installed: %1")},
        {QStringLiteral("missing"), tr("Files missing: %1")},
        {QStringLiteral("different"), tr("Files different: %1")},
        {QStringLiteral("unreadable"), tr("Files unreadable: %1")},
        {QStringLiteral("dead link"), tr("Dead links in place of files: %1")},
        {QStringLiteral("not a file"), tr("Folders or devices in place of files: %1")}};
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        page->add(2, lines.value(it.key()).arg(it.value()));
}

void TextReport::writeConfiguration(const QJsonObject &configuration, Page *page)
{
    if (text(configuration, "state") == QLatin1String("no prefix"))
        page->add(2, tr("Configuration: no Proton prefix"));
    if (text(configuration, "path").isEmpty())
        return;
    page->add(2, configurationLine(configuration));
    if (!text(configuration, "prefix").isEmpty())
        page->add(4, tr("In the Proton prefix %1").arg(quotedText(configuration, "prefix")));
    const int strange = configuration.value(QLatin1String("strangeBytesInLine")).toInt();
    if (strange > 0)
        page->add(4, tr("Bytes that are not valid in this encoding, from line %1 on").arg(strange));
    const QJsonObject damage = configuration.value(QLatin1String("damage")).toObject();
    if (!damage.isEmpty())
        page->addExactly(4,
                         tr("Line %1, column %2: %3")
                             .arg(number(damage, "line"),
                                  number(damage, "column"),
                                  printable(text(damage, "brokenLine"))));
    const QJsonObject ours = configuration.value(QLatin1String("ours")).toObject();
    if (!ours.isEmpty())
        page->add(4, ourEntryLine(ours));
    const QJsonArray others = array(configuration, "othersWithoutFile");
    for (const auto &other : others)
        page->add(
            4,
            tr("Another program's entry %1 names a file that is not there: %2")
                .arg(quotedText(other.toObject(), "name"), quotedText(other.toObject(), "path")));
}

QString TextReport::configurationLine(const QJsonObject &configuration)
{
    const QString path = quotedText(configuration, "path");
    const QString state = text(configuration, "state");
    if (state == QLatin1String("dead link"))
        return tr("Configuration: %1, a link that leads nowhere").arg(path);
    if (state == QLatin1String("missing"))
        return tr("Configuration: %1, missing").arg(path);
    if (state == QLatin1String("unreadable"))
        return tr("Configuration: %1, unreadable").arg(path);
    const QString line = state == QLatin1String("damaged")
        ? tr("Configuration: %1, damaged, encoding %2")
        : tr("Configuration: %1, well formed, encoding %2");
    return line.arg(path, text(configuration, "encoding"));
}

QString TextReport::ourEntryLine(const QJsonObject &ours)
{
    const int count = ours.value(QLatin1String("count")).toInt();
    if (count == 0)
        return tr("No entry of ours");
    const QString path
        = text(ours, "path").isEmpty() ? tr("no named file") : quotedText(ours, "path");
    const bool isDisabled = ours.value(QLatin1String("disabled")).toBool();
    if (count == 1)
        return (isDisabled ? tr("Our entry: there once, disabled, for %1")
                           : tr("Our entry: there once, enabled, for %1"))
            .arg(path);
    return (isDisabled ? tr("Our entry: there %2 times, disabled, for %1")
                       : tr("Our entry: there %2 times, enabled, for %1"))
        .arg(path, QString::number(count));
}

void TextReport::writeBackup(const QJsonObject &backup, Page *page)
{
    const bool isGood = backup.value(QLatin1String("wellFormed")).toBool();
    const QString line = isGood ? tr("Backup of %1, %2 bytes, well formed; to put it back:")
                                : tr("Backup of %1, %2 bytes, damaged");
    page->add(2, line.arg(timeOf(backup), number(backup, "size")));
    if (isGood)
        page->addExactly(4, text(backup, "restore"));
}

// The newest, and the newest that helps.
void TextReport::writeBackups(const QJsonArray &backups, Page *page)
{
    constexpr int maxShown = 3;
    const int good = newestGood(backups);
    int others = 0;
    for (int i = 0; i < backups.size(); ++i) {
        if (i < maxShown || i == good)
            writeBackup(backups.at(i).toObject(), page);
        else
            ++others;
    }
    if (others > 0)
        page->add(2, tr("Older backups: %1").arg(others));
}

void TextReport::writeRecord(const QJsonObject &record, Page *page)
{
    if (record.isEmpty())
        return;
    page->add(2,
              record.value(QLatin1String("agrees")).toBool()
                  ? tr("Record: agrees")
                  : tr("Record: in %1").arg(quotedText(record, "path")));
}

void TextReport::writeThingsToDo(const QJsonObject &report, Page *page)
{
    QMap<QString, QStringList> found;
    const auto collect = [&](const QJsonObject &object, const QString &name) {
        const QJsonArray problems = array(object, "problems");
        for (const auto &problem : problems) {
            const QJsonObject each = problem.toObject();
            found[text(each, "level")].append(
                tr("%1: %2 %3").arg(name, text(each, "text"), text(each, "advice")));
        }
    };
    const QJsonArray simulators = array(report, "simulators");
    for (const auto &simulator : simulators)
        collect(simulator.toObject(), printable(text(simulator.toObject(), "name")));
    collect(report.value(QLatin1String("record")).toObject(), tr("Record"));
    const QStringList lines = found.value(QStringLiteral("grave"))
        + found.value(QStringLiteral("error")) + found.value(QStringLiteral("warning"));
    if (lines.isEmpty())
        return page->add(0, tr("Nothing is wrong."), Page::Good);
    page->add(0, tr("What to do:"), Page::Title);
    for (int i = 0; i < lines.size(); ++i)
        page->add(2, QStringLiteral("%1. %2").arg(i + 1).arg(lines.at(i)));
}

} // namespace Quillmont::Utility::Doctor
