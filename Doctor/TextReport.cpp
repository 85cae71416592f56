#include "Doctor/TextReport.h"

#include "Doctor/Page.h"
#include "Doctor/Quoting.h"

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
              tr("%1: %2").arg(printable(text(simulator, "name")), stateInWords(state)),
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

QString TextReport::stateInWords(const QString &state)
{
    const QMap<QString, QString> words{
        {QStringLiteral("not found"), tr("not found on this computer")},
        {QStringLiteral("installed"), tr("the plugin is installed")},
        {QStringLiteral("partly installed"), tr("only a part of the plugin is installed")},
        {QStringLiteral("not installed"), tr("the plugin is not installed")}};
    return words.value(state);
}

void TextReport::writeLocation(const QJsonObject &simulator, Page *page)
{
    if (!text(simulator, "folder").isEmpty())
        page->add(2,
                  tr("Folder: %1, known by: %2")
                      .arg(quotedText(simulator, "folder"), text(simulator, "foundBy")));
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
                           text(object, "namedBy"),
                           printable(text(object, "reason"))));
    }
}

void TextReport::writeFiles(const QJsonArray &files, Page *page)
{
    QMap<QString, int> counts;
    for (const auto &file : files)
        ++counts[text(file.toObject(), "state")];
    QStringList parts;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        parts.append(tr("%1 %2").arg(it.value()).arg(it.key()));
    page->add(2, tr("Files: %1").arg(parts.join(QStringLiteral(", "))));
}

void TextReport::writeConfiguration(const QJsonObject &configuration, Page *page)
{
    if (text(configuration, "path").isEmpty())
        return;
    page->add(2, configurationLine(configuration));
    const QJsonObject damage = configuration.value(QLatin1String("damage")).toObject();
    if (!damage.isEmpty())
        page->addExactly(4,
                         tr("Line %1, column %2: %3")
                             .arg(damage.value(QLatin1String("line")).toInt())
                             .arg(damage.value(QLatin1String("column")).toInt())
                             .arg(printable(text(damage, "brokenLine"))));
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
    QString line = tr("Configuration: %1, %2")
                       .arg(quotedText(configuration, "path"), text(configuration, "state"));
    if (!text(configuration, "encoding").isEmpty())
        line += tr(", encoding %1").arg(text(configuration, "encoding"));
    if (configuration.contains(QLatin1String("strangeBytesInLine")))
        line += tr(" (with bytes that are not valid in it from line %1 on)")
                    .arg(configuration.value(QLatin1String("strangeBytesInLine")).toInt());
    return line;
}

QString TextReport::ourEntryLine(const QJsonObject &ours)
{
    const int count = ours.value(QLatin1String("count")).toInt();
    if (count == 0)
        return tr("No entry of ours");
    const QString times
        = count == 1 ? tr("Our entry: there once") : tr("Our entry: there %1 times").arg(count);
    const bool isDisabled = ours.value(QLatin1String("disabled")).toBool();
    return tr("%1, %2, for %3")
        .arg(times, isDisabled ? tr("disabled") : tr("enabled"), quotedText(ours, "path"));
}

void TextReport::writeBackups(const QJsonArray &backups, Page *page)
{
    constexpr int maxShown = 3;
    for (int i = 0; i < backups.size() && i < maxShown; ++i) {
        const QJsonObject backup = backups.at(i).toObject();
        const bool isWhole = backup.value(QLatin1String("wellFormed")).toBool();
        page->add(2,
                  tr("Backup of %1, %2 bytes, %3; to put it back:")
                      .arg(text(backup, "time").replace(u'T', u' '))
                      .arg(backup.value(QLatin1String("size")).toDouble(), 0, 'f', 0)
                      .arg(isWhole ? tr("well formed") : tr("damaged")));
        page->addExactly(4, text(backup, "restore"));
    }
    if (backups.size() > maxShown)
        page->add(2, tr("%1 older backups").arg(backups.size() - maxShown));
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
        page->add(2, tr("%1. %2").arg(i + 1).arg(lines.at(i)));
}

} // namespace Quillmont::Utility::Doctor
