#include "tests/ViewControllers/Workshop.h"

#include <QFile>
#include <QTest>

using Tests::Workshop;
using Tests::writeFile;

class TestDetection : public QObject
{
    Q_OBJECT

private slots:

    void usesTheStrategyOfTheLocation_data()
    {
        QTest::addColumn<int>("location");
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("found");
        QTest::newRow("file") << 0 << "Scanning files...|file: %1/sim/game"
                              << "%1/sim/game";
        QTest::newRow("folder") << 1 << "Scanning folders...|folder: %1/sim"
                                << "%1/sim";
        QTest::newRow("registry") << 2 << "Scanning registry..."
                                  << "nothing";
        QTest::newRow("three") << 3 << ""
                               << "nothing";
        QTest::newRow("several") << 4 << "Scanning multiple locations..."
                                 << "nothing";
        QTest::newRow("five") << 5 << ""
                              << "nothing";
        QTest::newRow("minus one") << -1 << ""
                                   << "nothing";
    }

    void usesTheStrategyOfTheLocation()
    {
        QFETCH(int, location);
        QFETCH(QString, lines);
        QFETCH(QString, found);
        Workshop shop;
        writeFile(shop.path("sim/game"), {});
        auto *entry
            = shop.entry(R"({"path": "$ROOT\\sim", "key": "game", "target": "$ROOT\\sim"})");
        entry->location = location;
        const auto disk = shop.disk();
        const auto simPaths = shop.controller().simPaths;

        const auto *mapping = shop.controller().scan(entry);

        QCOMPARE(shop.log.debugLines().join(u'|'), lines.replace(QLatin1String("%1"), root(shop)));
        QCOMPARE(mapping ? mapping->path : QStringLiteral("nothing"),
                 found.replace(QLatin1String("%1"), root(shop)));
        QCOMPARE(shop.disk(), disk);
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
        QVERIFY(shop.controller().mappings.isEmpty());
        QCOMPARE(shop.controller().simPaths, simPaths);
    }

    void findsAFileWhateverItsSlashes()
    {
        Workshop shop;
        const QString game = shop.path("My Sims/спутник/bin/game.exe");
        writeFile(game, {});
        auto *entry = shop.entry(R"({"path": "$ROOT\\My Sims/спутник", "key": "bin\\game.exe"})");
        const auto *mapping = shop.controller().scanFile(entry);
        QVERIFY(mapping);
        QCOMPARE(mapping->path, game);
        QCOMPARE(mapping->scan, entry);
        QCOMPARE(mapping->parent(), entry);
        QVERIFY(mapping->note.isNull());
    }

    void aFolderIsAlsoAFileSystemEntry()
    {
        Workshop shop;
        shop.folder("sim/bin");
        QCOMPARE(foundFile(shop, R"({"path": "$ROOT/sim", "key": "bin"})"), shop.path("sim/bin"));
        QCOMPARE(foundFile(shop, R"({"path": "$ROOT/sim"})"), shop.path("sim/"));
        QCOMPARE(foundFile(shop, R"({"key": "$ROOT/sim"})"), u'/' + shop.path("sim"));
    }

    void saysWhichFileItLooksForThoughItIsMissing()
    {
        Workshop shop;
        QFile::link(shop.path("gone"), shop.path("link"));
        QCOMPARE(foundFile(shop, R"({"path": "$ROOT\\no", "key": "game %1"})"),
                 QStringLiteral("nothing"));
        QCOMPARE(foundFile(shop, R"({"path": "$ROOT", "key": "link"})"), QStringLiteral("nothing"));
        QCOMPARE(shop.log.debugLines(),
                 QStringList({QStringLiteral("file: ") + shop.path("no/game %1"),
                              QStringLiteral("file: ") + shop.path("link")}));
    }

    void anEntryThatNamesNoFileFindsNone()
    {
        Workshop shop;
        QCOMPARE(foundFile(shop, "{}"), QStringLiteral("nothing"));
        QCOMPARE(shop.log.debugLines(), QStringList(QStringLiteral("file: /")));
    }

    void findsAFolderWhateverItsSlashes()
    {
        Workshop shop;
        shop.folder("My Sims/спутник");
        auto *entry = shop.entry(R"({"path": "$ROOT\\My Sims\\спутник", "key": "ignored"})");
        const auto *mapping = shop.controller().scanFolder(entry);
        QVERIFY(mapping);
        QCOMPARE(mapping->path, shop.path("My Sims/спутник"));
        QCOMPARE(mapping->scan, entry);
        QCOMPARE(mapping->parent(), entry);
        QCOMPARE(foundFolder(shop, R"({"path": "$ROOT/My Sims/"})"), shop.path("My Sims/"));
    }

    void aFileIsNotAFolder()
    {
        Workshop shop;
        writeFile(shop.path("plain"), {});
        QFile::link(shop.path("gone"), shop.path("link"));
        QCOMPARE(foundFolder(shop, R"({"path": "$ROOT\\plain"})"), QStringLiteral("nothing"));
        QCOMPARE(foundFolder(shop, R"({"path": "$ROOT/link"})"), QStringLiteral("nothing"));
        QCOMPARE(foundFolder(shop, R"({"path": "$ROOT\\no"})"), QStringLiteral("nothing"));
        QCOMPARE(shop.log.debugLines(),
                 QStringList({QStringLiteral("folder: ") + shop.path("plain"),
                              QStringLiteral("folder: ") + shop.path("link"),
                              QStringLiteral("folder: ") + shop.path("no")}));
    }

    void anEntryThatNamesNoFolderFindsNone()
    {
        Workshop shop;
        QCOMPARE(foundFolder(shop, R"({"key": "$ROOT"})"), QStringLiteral("nothing"));
        QCOMPARE(shop.log.debugLines(), QStringList(QStringLiteral("folder: ")));
    }

    void theOtherStrategiesFindNothing()
    {
        Workshop shop;
        auto *entry = shop.entry(R"({"path": "$ROOT", "key": "home", "target": "$ROOT\\$ROOT"})");
        QVERIFY(!shop.controller().scanRegistry(entry));
        QVERIFY(!shop.controller().scanMultiple(entry));
        QVERIFY(entry->children().isEmpty());
        QVERIFY(shop.log.debugLines().isEmpty());
    }

private:
    static QString root(const Workshop &shop) { return shop.sandbox.root(); }

    static QString foundFile(Workshop &shop, const char *json)
    {
        const auto *mapping = shop.controller().scanFile(shop.entry(json));
        return mapping ? mapping->path : QStringLiteral("nothing");
    }

    static QString foundFolder(Workshop &shop, const char *json)
    {
        const auto *mapping = shop.controller().scanFolder(shop.entry(json));
        return mapping ? mapping->path : QStringLiteral("nothing");
    }
};

QTEST_MAIN(TestDetection)
#include "tst_Detection.moc"
