#include "Doctor/Plan.h"

#include "Doctor/Page.h"
#include "Doctor/Quoting.h"
#include "Doctor/Rehearsal.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"

#include <QMap>

namespace Quillmont::Utility::Doctor {

QJsonObject Plan::of(const QString &what,
                     const QList<Simulator> &simulators,
                     const QString &payload,
                     const QStringList &names)
{
    QJsonArray plans;
    bool isFine = true;
    for (const Simulator &simulator : simulators) {
        const auto *mapping = simulator.mapping;
        const bool isAskedFor = names.isEmpty() || names.contains(mapping->scan->name);
        if (mapping->path.isEmpty() || !isAskedFor)
            continue;
        Rehearsal rehearsal(mapping, payload);
        if (what != QLatin1String("install"))
            rehearsal.uninstall();
        if (what != QLatin1String("uninstall"))
            rehearsal.install();
        const QJsonObject plan = rehearsal.plan();
        isFine = isFine && plan.value(QLatin1String("failures")).toArray().isEmpty();
        plans.append(plan);
    }
    return {{QStringLiteral("plan"), what},
            {QStringLiteral("fine"), isFine},
            {QStringLiteral("simulators"), plans}};
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
                  tr("%1: %2 in %3")
                      .arg(printable(object.value(QLatin1String("name")).toString()),
                           what,
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
    each("foldersMade", tr("Folder made: %1"), Page::Plain);
    const QJsonArray files = simulator.value(QLatin1String("files")).toArray();
    for (const auto &file : files)
        page->add(2,
                  tr("File %1: %2")
                      .arg(file.toObject().value(QLatin1String("change")).toString(),
                           quoted(file.toObject().value(QLatin1String("path")).toString())));
    each("foldersRemoved", tr("Folder removed: %1"), Page::Plain);
    each("backups", tr("Backup made: %1"), Page::Plain);
    writeText(
        tr("Configuration"), simulator.value(QLatin1String("configuration")).toObject(), page);
    writeText(tr("Record"), simulator.value(QLatin1String("record")).toObject(), page);
    const QJsonArray failures = simulator.value(QLatin1String("failures")).toArray();
    for (const auto &failure : failures)
        page->add(2, tr("Problem: %1").arg(failure.toString()), Page::Bad);
}

void Plan::writeText(const QString &title, const QJsonObject &change, Page *page)
{
    if (change.isEmpty())
        return;
    page->add(2,
              tr("%1 %2: %3")
                  .arg(title,
                       change.value(QLatin1String("change")).toString(),
                       quoted(change.value(QLatin1String("path")).toString())));
    const QStringList lines
        = change.value(QLatin1String("diff")).toString().split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const Page::Style style = line.startsWith(u'+') ? Page::Good
            : line.startsWith(u'-')                     ? Page::Bad
                                                        : Page::Plain;
        const int end = line.endsWith(u'\r') ? 1 : 0;
        page->addExactly(4, printable(line.chopped(end)), style);
    }
}

} // namespace Quillmont::Utility::Doctor
