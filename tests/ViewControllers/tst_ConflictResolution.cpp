#include "tests/ViewControllers/Workshop.h"

#include "Library/Models/XmlInsertionModel.h"

#include <QTest>

using Tests::FlightSimulatorMapping;
using Tests::Workshop;

class TestConflictResolution : public QObject
{
    Q_OBJECT

private slots:

    void leavesEntriesWithoutConflictAlone()
    {
        Workshop shop;
        auto *a = shop.mapping(R"({"config": {"path": "x.xml"}})", QStringLiteral("/F"));
        auto *b = shop.mapping(R"({"config": {"path": "x.xml"}})", QStringLiteral("/F"));
        auto *c = shop.mapping(R"({"config": {"path": "x.xml"}})", QStringLiteral("/G"));
        settle(shop, {a, b, c});
        QCOMPARE(paths({a, b, c}), QStringLiteral("/F /F /G"));
        QCOMPARE(files({a, b, c}), QStringLiteral("x.xml x.xml x.xml"));
    }

    void theFirstKeepsAFolderThatSeveralFound()
    {
        Workshop shop;
        auto *a = member(shop, "/F", "true", "a.xml");
        auto *b = member(shop, "/F", "true", "b.xml");
        auto *c = member(shop, "/F", "true", "c.xml");
        settle(shop, {a, b, c});
        QCOMPARE(paths({a, b, c}), QStringLiteral("/F - -"));
        QCOMPARE(files({a, b, c}), QStringLiteral("own.xml own.xml own.xml"));
    }

    void theFirstGivesItUpToEveryLaterOne()
    {
        Workshop shop;
        auto *a = member(shop, "/F", "false", "a.xml");
        auto *b = member(shop, "/F", "false", "b.xml");
        auto *c = member(shop, "/F", "false", "c.xml");
        settle(shop, {a, b, c});
        QCOMPARE(paths({a, b, c}), QStringLiteral("- /F /F"));
        QCOMPARE(files({a, b, c}), QStringLiteral("own.xml own.xml own.xml"));
    }

    void theOneThatComesSecondDecides()
    {
        Workshop shop;
        auto *keeps = member(shop, "/F", "false", "");
        auto *givesWay = member(shop, "/F", "true", "");
        settle(shop, {keeps, givesWay});
        QCOMPARE(paths({keeps, givesWay}), QStringLiteral("/F -"));

        auto *loses = member(shop, "/F", "true", "");
        auto *wins = member(shop, "/F", "false", "");
        settle(shop, {loses, wins});
        QCOMPARE(paths({loses, wins}), QStringLiteral("- /F"));
    }

    void givingWayIsTheDefault()
    {
        Workshop shop;
        const char *entry = R"({"config": null, "conflict": {"name": "group"}})";
        auto *a = shop.mapping(entry, QStringLiteral("/F"));
        auto *b = shop.mapping(entry, QStringLiteral("/F"));
        settle(shop, {a, b});
        QCOMPARE(paths({a, b}), QStringLiteral("/F -"));
    }

    void differentFoldersGetTheirSolutions()
    {
        Workshop shop;
        auto *a = member(shop, "/B", "true", "a/a.xml");
        auto *b = member(shop, "/A", "true", "b\\\\b.xml");
        auto *silent = member(shop, "/C", "true", "");
        settle(shop, {a, b, silent});
        QCOMPARE(paths({a, b, silent}), QStringLiteral("/B /A /C"));
        QCOMPARE(files({a, b, silent}), QStringLiteral("a/a.xml b\\b.xml own.xml"));
    }

    void anEntryWithoutConfigurationIsPassedOver()
    {
        Workshop shop;
        auto *without = shop.mapping(
            R"({"config": null, "conflict": {"name": "group", "solution": "w.xml"}})",
            QStringLiteral("/A"));
        auto *with = member(shop, "/B", "true", "b.xml");
        settle(shop, {without, with});
        QVERIFY(!without->scan->config);
        QCOMPARE(files({with}), QStringLiteral("b.xml"));
    }

    void anEmptiedOneIsStillPartOfItsGroup()
    {
        Workshop shop;
        auto *emptied = member(shop, "/F", "false", "emptied.xml");
        auto *later = member(shop, "/F", "false", "later.xml");
        auto *other = member(shop, "/G", "false", "other.xml");
        settle(shop, {emptied, later, other});
        QCOMPARE(paths({emptied, later, other}), QStringLiteral("- /F /G"));
        QCOMPARE(files({emptied, later, other}), QStringLiteral("emptied.xml own.xml other.xml"));
    }

    void oneThatGaveWayIsNot()
    {
        Workshop shop;
        auto *first = member(shop, "/F", "true", "first.xml");
        auto *gaveWay = member(shop, "/F", "true", "gave-way.xml");
        auto *other = member(shop, "/G", "true", "other.xml");
        settle(shop, {first, gaveWay, other});
        QCOMPARE(paths({first, gaveWay, other}), QStringLiteral("/F - /G"));
        QCOMPARE(files({first, gaveWay, other}), QStringLiteral("first.xml own.xml other.xml"));
    }

    void notFoundCountsAsAFolder()
    {
        Workshop shop;
        auto *found = member(shop, "/A", "true", "found.xml");
        auto *notFound = member(shop, "", "true", "not-found.xml");
        settle(shop, {found, notFound});
        QCOMPARE(paths({found, notFound}), QStringLiteral("/A -"));
        QCOMPARE(files({found, notFound}), QStringLiteral("found.xml not-found.xml"));
    }

    void twoThatWereNotFoundAreOneFolder()
    {
        Workshop shop;
        auto *a = member(shop, "", "true", "a.xml");
        auto *b = member(shop, "", "false", "b.xml");
        settle(shop, {a, b});
        QCOMPARE(paths({a, b}), QStringLiteral("- -"));
        QCOMPARE(files({a, b}), QStringLiteral("own.xml own.xml"));
    }

    void namesAndFoldersAreToldApartByLetterCase()
    {
        Workshop shop;
        auto *a = member(shop, "/F", "true", "a.xml", "group");
        auto *b = member(shop, "/F", "true", "b.xml", "Group");
        settle(shop, {a, b});
        QCOMPARE(paths({a, b}), QStringLiteral("/F /F"));
        QCOMPARE(files({a, b}), QStringLiteral("own.xml own.xml"));

        auto *c = member(shop, "/f", "true", "c.xml", "group");
        settle(shop, {a, c});
        QCOMPARE(paths({a, c}), QStringLiteral("/F /f"));
        QCOMPARE(files({a, c}), QStringLiteral("a.xml c.xml"));
    }

    void groupsDoNotMix()
    {
        Workshop shop;
        auto *a = member(shop, "/F", "true", "a.xml", "one");
        auto *b = member(shop, "/G", "true", "b.xml", "two");
        auto *c = member(shop, "/F", "true", "c.xml", "");
        auto *d = member(shop, "/H", "true", "d.xml", "");
        settle(shop, {a, b, c, d});
        QCOMPARE(paths({a, b, c, d}), QStringLiteral("/F /G /F /H"));
        QCOMPARE(files({a, b, c, d}), QStringLiteral("own.xml own.xml c.xml d.xml"));
    }

    void aSecondCallSeesTheEmptiedFolders()
    {
        Workshop shop;
        auto *a = member(shop, "/F", "true", "a.xml");
        auto *b = member(shop, "/F", "true", "b.xml");
        settle(shop, {a, b});
        settle(shop, {a, b});
        QCOMPARE(paths({a, b}), QStringLiteral("/F -"));
        QCOMPARE(files({a, b}), QStringLiteral("a.xml b.xml"));
    }

    void touchesNothingOnDiskAndSaysNothing()
    {
        Workshop shop;
        shop.controller();
        const auto disk = shop.disk();
        settle(shop,
               {member(shop, "/A", "true", "a.xml"),
                member(shop, "/A", "false", "a.xml"),
                member(shop, "/B", "true", "b.xml")});
        QCOMPARE(shop.disk(), disk);
        QVERIFY(shop.log.debugLines().isEmpty());
        QVERIFY(shop.boxes().isEmpty());
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
    }

private:
    using Mappings = QList<FlightSimulatorMapping *>;

    static FlightSimulatorMapping *member(Workshop &shop,
                                          const QByteArray &folder,
                                          const QByteArray &gives,
                                          const QByteArray &solution,
                                          const QByteArray &group = "group")
    {
        return shop.mapping(R"({"config": {"path": "own.xml"}, "conflict": {"name": ")" + group
                                + R"(", "remove_on_conflict": )" + gives + R"(, "solution": ")"
                                + solution + R"("}})",
                            QString::fromUtf8(folder));
    }

    static void settle(Workshop &shop, const Mappings &members)
    {
        shop.controller().sloveConflict(members);
    }

    // The mappings' folders in order, "-" for none.
    static QString paths(const Mappings &mappings)
    {
        QStringList paths;
        for (const auto *mapping : mappings)
            paths.append(mapping->path.isEmpty() ? QStringLiteral("-") : mapping->path);
        return paths.join(u' ');
    }

    // The configuration files of the mappings' entries in order.
    static QString files(const Mappings &mappings)
    {
        QStringList files;
        for (const auto *mapping : mappings)
            files.append(mapping->scan->config->path);
        return files.join(u' ');
    }
};

QTEST_MAIN(TestConflictResolution)
#include "tst_ConflictResolution.moc"
