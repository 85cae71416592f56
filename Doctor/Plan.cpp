#include "Doctor/Plan.h"

#include "Doctor/Page.h"
#include "Doctor/Quoting.h"
#include "Doctor/RecordText.h"
#include "Doctor/Rehearsal.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"

#include <QFileInfo>
#include <QMap>

using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::Doctor {

QJsonObject Plan::of(const QString &what,
                     const QList<Simulator> &simulators,
                     const QString &payload,
                     const QStringList &names)
{
    const RecordText record;
    QJsonArray plans;
    bool isFine = true;
    for (const Simulator &simulator : simulators) {
        const auto *mapping = simulator.mapping;
        const bool isAskedFor = names.isEmpty() || names.contains(mapping->scan->name);
        if (mapping->path.isEmpty() || !isAskedFor)
            continue;
        const QJsonObject plan = ofOne(what, mapping, payload, record);
        isFine = isFine && plan.value(QLatin1String("failures")).toArray().isEmpty();
        plans.append(plan);
    }
    return {{QStringLiteral("plan"), what},
            {QStringLiteral("fine"), isFine},
            {QStringLiteral("simulators"), plans}};
}

// The window disables the button of a simulator whose folder is gone.
QJsonObject Plan::ofOne(const QString &what,
                        const FlightSimulatorMapping *mapping,
                        const QString &payload,
                        const RecordText &record)
{
    const bool isThere = QFileInfo::exists(mapping->path);
    Rehearsal rehearsal(mapping, payload, record);
    if (!isThere)
        rehearsal.fail(tr("Its folder %1 is gone.").arg(quoted(mapping->path)));
    if (isThere && what != QLatin1String("install"))
        rehearsal.uninstall();
    if (isThere && what != QLatin1String("uninstall"))
        rehearsal.install();
    QJsonObject plan = rehearsal.plan();
    plan.insert(QStringLiteral("button"),
                !isThere                          ? QStringLiteral("disabled")
                    : mapping->isAddonInstalled() ? QStringLiteral("uninstall")
                                                  : QStringLiteral("install"));
    return plan;
}

void Plan::write(const QJsonObject &plan, Page *page)
{
    const QString what = plan.value(QLatin1String("plan")).toString();
    const QJsonArray simulators = plan.value(QLatin1String("simulators")).toArray();
    if (simulators.isEmpty())
        page->add(0, tr("No simulator is found, so nothing would change."));
    for (const auto &simulator : simulators) {
        const QJsonObject object = simulator.toObject();
        page->add(0,
                  line(what).arg(printable(object.value(QLatin1String("name")).toString()),
                                 quoted(object.value(QLatin1String("folder")).toString())),
                  Page::Title);
        writeSimulator(object, page);
        page->addEmptyLine();
    }
}

void Plan::writeSimulator(const QJsonObject &simulator, Page *page)
{
    const auto each = [&simulator, page](const char *key, const QString &words, Page::Style style) {
        const QJsonArray texts = simulator.value(QLatin1String(key)).toArray();
        for (const auto &text : texts)
            page->add(2, words.arg(quoted(text.toString())), style);
    };
    const QString button = simulator.value(QLatin1String("button")).toString();
    page->add(2, line(QStringLiteral("button ") + button));
    each("foldersMade", tr("Folder made: %1"), Page::Plain);
    const QJsonArray files = simulator.value(QLatin1String("files")).toArray();
    for (const auto &file : files)
        writeChange(QStringLiteral("file"), file.toObject(), page);
    each("foldersRemoved", tr("Folder removed: %1"), Page::Plain);
    each("backups", tr("Backup made: %1"), Page::Plain);
    for (const char *text : {"configuration", "record"}) {
        const QJsonObject change = simulator.value(QLatin1String(text)).toObject();
        if (change.isEmpty())
            continue;
        writeChange(QLatin1String(text), change, page);
        writeDiff(change.value(QLatin1String("diff")).toString(), page);
    }
    const QJsonArray failures = simulator.value(QLatin1String("failures")).toArray();
    for (const auto &failure : failures)
        page->add(2, tr("Problem: %1").arg(failure.toString()), Page::Bad);
}

void Plan::writeChange(const QString &subject, const QJsonObject &change, Page *page)
{
    const QString text = line(subject + u' ' + change.value(QLatin1String("change")).toString());
    page->add(2, text.arg(quoted(change.value(QLatin1String("path")).toString())));
}

QString Plan::line(const QString &change)
{
    const QMap<QString, QString> lines{
        {QStringLiteral("install"), tr("%1: install in %2")},
        {QStringLiteral("repair"), tr("%1: repair in %2")},
        {QStringLiteral("uninstall"), tr("%1: uninstall in %2")},
        {QStringLiteral("button install"), tr("Button in the window: \"Install Orbwell\"")},
        {QStringLiteral("button uninstall"), tr("Button in the window: \"Uninstall Orbwell\"")},
        {QStringLiteral("button disabled"), tr("Button in the window: disabled")},
        {QStringLiteral("file made"), tr("File made: %1")},
        {QStringLiteral("file replaced"), tr("File replaced: %1")},
        {QStringLiteral("file unchanged"), tr("File unchanged: %1")},
        {QStringLiteral("file removed"), tr("File removed: %1")},
        {QStringLiteral("configuration made"), tr("Configuration made: %1")},
        {QStringLiteral("configuration changed"), tr("Configuration changed: %1")},
        {QStringLiteral("configuration unchanged"), tr("Configuration unchanged: %1")},
        {QStringLiteral("record made"), tr("Record made: %1")},
        {QStringLiteral("record changed"), tr("Record changed: %1")},
        {QStringLiteral("record unchanged"), tr("Record unchanged: %1")}};
    return lines.value(change);
}

void Plan::writeDiff(const QString &diff, Page *page)
{
    const QStringList lines = diff.split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const Page::Style style = line.startsWith(u'+') ? Page::Good
            : line.startsWith(u'-')                     ? Page::Bad
                                                        : Page::Plain;
        const int end = line.endsWith(u'\r') ? 1 : 0;
        page->addExactly(4, printable(line.chopped(end)), style);
    }
}

} // namespace Quillmont::Utility::Doctor
