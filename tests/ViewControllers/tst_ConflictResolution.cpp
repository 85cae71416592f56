#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Literals.h"

#include "Library/Models/XmlInsertionModel.h"

#include <QTest>

using namespace Tests;

/// What happens to simulators that were found in one folder, or in several.
class TestConflictResolution : public QObject
{
    Q_OBJECT

private slots:

    // A simulator's line: its group, the folder found, whether it gives up its folder, and its
    // solution; after "=" the resulting folder and configuration file. The group "none" is an entry
    // without a conflict, the solution "none" one without a configuration. "default" omits whether
    // it gives up its folder.
    void decidesWhichEntryKeepsWhichFolderAndFile_data()
    {
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const QStringList &lines) {
            QTest::newRow(name) << lines;
        };
        row("entries without a conflict are unchanged",
            {"none /F - - = /F own.xml"_s,
             "none /F - - = /F own.xml"_s,
             "none /G - - = /G own.xml"_s});
        row("the first keeps a folder that several found",
            {"a /F true 1.xml = /F own.xml"_s,
             "a /F true 2.xml = - own.xml"_s,
             "a /F true 3.xml = - own.xml"_s});
        row("the first gives up its folder to every later one",
            {"a /F false 1.xml = - own.xml"_s,
             "a /F false 2.xml = /F own.xml"_s,
             "a /F false 3.xml = /F own.xml"_s});
        row("the second entry decides, and gives up its folder",
            {"a /F false - = /F own.xml"_s, "a /F true - = - own.xml"_s});
        row("the second entry decides, and keeps the folder",
            {"a /F true - = - own.xml"_s, "a /F false - = /F own.xml"_s});
        row("giving up the folder is the default",
            {"a /F default - = /F own.xml"_s, "a /F default - = - own.xml"_s});
        row("different folders get their solutions, as written",
            {"a /B true 1/1.xml = /B 1/1.xml"_s,
             R"(a /A true 2\2.xml = /A 2\2.xml)"_s,
             "a /C true - = /C own.xml"_s});
        row("an entry without a configuration is ignored",
            {"a /A true none = /A none"_s, "a /B true 2.xml = /B 2.xml"_s});
        row("an emptied entry is still part of its group",
            {"a /F false 1.xml = - 1.xml"_s,
             "a /F false 2.xml = /F own.xml"_s,
             "a /G false 3.xml = /G 3.xml"_s});
        row("an entry that gave up its folder leaves its group",
            {"a /F true 1.xml = /F 1.xml"_s,
             "a /F true 2.xml = - own.xml"_s,
             "a /G true 3.xml = /G 3.xml"_s});
        row("an empty folder counts as a folder",
            {"a /A true 1.xml = /A 1.xml"_s, "a - true 2.xml = - 2.xml"_s});
        row("two entries that were not found share a folder",
            {"a - true 1.xml = - own.xml"_s, "a - false 2.xml = - own.xml"_s});
        row("group names are case-sensitive",
            {"a /F true 1.xml = /F own.xml"_s, "A /F true 2.xml = /F own.xml"_s});
        row("folders are case-sensitive",
            {"a /F true 1.xml = /F 1.xml"_s, "a /f true 2.xml = /f 2.xml"_s});
        row("groups are separate, including the unnamed one",
            {"a /F true 1.xml = /F own.xml"_s,
             "b /G true 2.xml = /G own.xml"_s,
             "- /F true 3.xml = /F 3.xml"_s,
             "- /H true 4.xml = /H 4.xml"_s});
    }

    void decidesWhichEntryKeepsWhichFolderAndFile()
    {
        QFETCH(const QStringList, lines);
        Workshop shop;
        const auto mappings = simulators(shop, lines);
        const auto disk = shop.disk();
        shop.controller().sloveConflict(mappings);
        QStringList after;
        for (int i = 0; i < lines.size(); ++i)
            after.append(lines.at(i).section(" = "_s, 0, 0) + " = "_s + outcome(mappings.at(i)));
        QCOMPARE(after, lines);
        QCOMPARE(shop.disk(), disk);
        QCOMPARE(shop.log.debugLines() + shop.boxes(), QStringList());
        QCOMPARE(shop.controller().m_errorMessage, QString());
    }

    void seesTheEmptiedFoldersInASecondCall()
    {
        Workshop shop;
        const auto both = simulators(shop, {"a /F true 1.xml"_s, "a /F true 2.xml"_s});
        shop.controller().sloveConflict(both);
        shop.controller().sloveConflict(both);
        QCOMPARE(outcome(both.at(0)), "/F 1.xml"_s);
        QCOMPARE(outcome(both.at(1)), "- 2.xml"_s);
    }

private:
    using Mappings = QList<FlightSimulatorMapping *>;

    static Mappings simulators(Workshop &shop, const QStringList &lines)
    {
        Mappings mappings;
        for (const QString &line : lines)
            mappings.append(simulator(shop, line.split(u' ')));
        return mappings;
    }

    static FlightSimulatorMapping *simulator(Workshop &shop, const QStringList &words)
    {
        const auto text = [&words](int word) {
            return words.at(word) == "-"_s ? QString() : words.at(word);
        };
        QJsonObject conflict{{"name"_s, text(0)}, {"solution"_s, text(3)}};
        if (words.at(2) != "default"_s)
            conflict.insert("remove_on_conflict"_s, words.at(2) == "true"_s);
        QJsonObject entry{{"config"_s, QJsonObject{{"path"_s, "own.xml"_s}}}};
        if (words.at(3) == "none"_s)
            entry.insert("config"_s, QJsonValue::Null);
        if (words.at(0) != "none"_s)
            entry.insert("conflict"_s, conflict);
        return new FlightSimulatorMapping(new FlightSimScan(&shop.controller(), entry), text(1));
    }

    static QString outcome(const FlightSimulatorMapping *mapping)
    {
        const auto *config = mapping->scan->config;
        return (mapping->path.isEmpty() ? "-"_s : mapping->path) + u' '
            + (config ? config->path : "none"_s);
    }
};

QTEST_MAIN(TestConflictResolution)
#include "tst_ConflictResolution.moc"
