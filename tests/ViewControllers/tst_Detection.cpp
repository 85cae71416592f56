#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Literals.h"

#include <QFile>
#include <QTest>

using namespace Tests;

namespace {

void addRow(const char *name, int location, const QStringList &texts)
{
    QTest::newRow(name) << location << texts;
}

// An entry with this path and key, the file that the strategy looks for, and whether it exists.
void addFile(
    const char *name, const QString &path, const QString &key, const QString &file, bool exists)
{
    addRow(name, 0, {path, key, "Scanning files...|file: "_s + file, exists ? file : "nothing"_s});
}

void addFolder(const char *name, const QString &path, const QString &folder, bool exists)
{
    const QString lines = "Scanning folders...|folder: "_s + folder;
    addRow(name, 1, {path, "game"_s, lines, exists ? folder : "nothing"_s});
}

void addNothing(const char *name, int location, const QString &lines = {})
{
    addRow(name, location, {"$ROOT/sim"_s, "game"_s, lines, "nothing"_s});
}

} // namespace

/// Whether an entry's simulator is found by the strategy that the entry names.
class TestDetection : public QObject
{
    Q_OBJECT

private slots:

    void findsASimulatorByItsEntrysStrategy_data()
    {
        QTest::addColumn<int>("location");
        QTest::addColumn<QStringList>("texts");
        addFile("file", R"($ROOT\sim)"_s, "game"_s, "$ROOT/sim/game"_s, true);
        addFile("slashes of both kinds",
                R"($ROOT\My Sims/спутник)"_s,
                R"(bin\game.exe)"_s,
                "$ROOT/My Sims/спутник/bin/game.exe"_s,
                true);
        addFile("a folder for a file", "$ROOT/sim"_s, "bin"_s, "$ROOT/sim/bin"_s, true);
        addFile("no key", "$ROOT/sim"_s, {}, "$ROOT/sim/"_s, true);
        addFile("no path", {}, "$ROOT/sim"_s, "/$ROOT/sim"_s, true);
        addFile("no such file", R"($ROOT\no)"_s, "game %1"_s, "$ROOT/no/game %1"_s, false);
        addFile("a link to no file", "$ROOT"_s, "link"_s, "$ROOT/link"_s, false);
        addFile("no file named", {}, {}, "/"_s, false);

        addFolder("folder", R"($ROOT\sim)"_s, "$ROOT/sim"_s, true);
        addFolder("folder, slashes of both kinds",
                  R"($ROOT\My Sims/спутник)"_s,
                  "$ROOT/My Sims/спутник"_s,
                  true);
        addFolder("a slash at its end", "$ROOT/sim/"_s, "$ROOT/sim/"_s, true);
        addFolder("a file for a folder", R"($ROOT\sim\game)"_s, "$ROOT/sim/game"_s, false);
        addFolder("no such folder", R"($ROOT\no)"_s, "$ROOT/no"_s, false);
        addFolder("a link to no folder", "$ROOT/link"_s, "$ROOT/link"_s, false);
        addFolder("no folder named", {}, {}, false);

        addNothing("registry", 2, "Scanning registry..."_s);
        addNothing("three", 3);
        addNothing("several locations", 4, "Scanning multiple locations..."_s);
        addNothing("five", 5);
        addNothing("minus one", -1);
    }

    void findsASimulatorByItsEntrysStrategy()
    {
        QFETCH(const int, location);
        QFETCH(QStringList, texts);
        Workshop shop;
        makeFiles(shop);
        texts.replaceInStrings("$ROOT"_s, shop.sandbox.root());
        auto *entry = shop.entry(R"({"target": "$ROOT\\sim"})");
        entry->location = location;
        entry->path = texts.at(0);
        entry->key = texts.at(1);
        const auto disk = shop.disk();
        const auto simPaths = shop.controller().simPaths;

        const auto *mapping = shop.controller().scan(entry);

        QCOMPARE(shop.log.debugLines().join(u'|'), texts.at(2));
        QCOMPARE(mapping ? mapping->path : "nothing"_s, texts.at(3));
        QCOMPARE(entry->children().size(), mapping ? 1 : 0);
        QVERIFY(!mapping || (mapping->scan == entry && mapping->parent() == entry));
        QVERIFY(!mapping || mapping->note.isNull());
        QCOMPARE(shop.disk(), disk);
        QCOMPARE(shop.controller().m_errorMessage, QString());
        QVERIFY(shop.controller().mappings.isEmpty());
        QCOMPARE(shop.controller().simPaths, simPaths);
    }

    void usesOneStrategyWhateverTheEntrySays()
    {
        Workshop shop;
        makeFiles(shop);
        auto *entry = shop.entry(
            R"({"location": 3, "path": "$ROOT/sim", "key": "game", "target": "$ROOT\\$ROOT"})");
        QVERIFY(!shop.controller().scanRegistry(entry));
        QVERIFY(!shop.controller().scanMultiple(entry));
        QVERIFY(entry->children().isEmpty());
        QVERIFY(shop.log.debugLines().isEmpty());
        QCOMPARE(shop.controller().scanFile(entry)->path, shop.path("sim/game"));
        QCOMPARE(shop.controller().scanFolder(entry)->path, shop.path("sim"));
    }

private:
    static void makeFiles(const Workshop &shop)
    {
        writeFile(shop.path("sim/game"), {});
        writeFile(shop.path("sim/bin/other"), {});
        writeFile(shop.path("My Sims/спутник/bin/game.exe"), {});
        QFile::link(shop.path("gone"), shop.path("link"));
    }
};

QTEST_MAIN(TestDetection)
#include "tst_Detection.moc"
