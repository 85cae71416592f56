#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Literals.h"

#include "Controllers/ConfigurationController.h"

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QTest>

using namespace Tests;

using Quillmont::Utility::Controllers::ConfigurationController;

namespace {

using Mode = ScanController::InstallationMode;

const char *const threeSimulators = R"([{"name": "One", "simcode": "S1", "location": 2},
    {"name": "Two", "simcode": "XP12", "location": 2}, {"name": "Three", "location": 2}])";

void scanForTheWindow(Workshop &shop)
{
    shop.controller().startScan(true, false, ScanController::ModeNone);
}

// The names and folders in the window, with "$ROOT" for the sandbox's folder.
QString rows(Workshop &shop)
{
    const QStringList names = shop.rowNames();
    const QStringList paths = shop.rowPaths();
    QStringList rows;
    for (int i = 0; i < names.size(); ++i)
        rows.append(names.at(i) + u'=' + paths.at(i));
    return rows.join(u'|').replace(shop.sandbox.root(), "$ROOT"_s);
}

} // namespace

/// From the catalogue's text to the window, or to automatic installation.
class TestScanSession : public QObject
{
    Q_OBJECT

private slots:

    void readsTheCatalogueAsItIs()
    {
        Workshop shop;
        writeFile(Workshop::beside("flightsims.json"), "[ ]\r\n\t\"Спутник\" \xe6\x97\xa5\n");
        QCOMPARE(shop.controller().getJsonContent(), "[ ]\r\n\t\"Спутник\" 日\n"_s);
    }

    void readsAnUnreadableCatalogueAsEmpty()
    {
        Workshop shop;
        QCOMPARE(shop.controller().getJsonContent(), QString());
        QVERIFY(QDir().mkpath(Workshop::beside("flightsims.json")));
        QCOMPARE(shop.controller().getJsonContent(), QString());
        QCOMPARE(shop.controller().m_errorMessage, QString());
        QCOMPARE(shop.boxes(), QStringList());
    }

    void changesNothingWithoutACatalogue()
    {
        for (const bool isMissing : {true, false}) {
            Workshop shop;
            shop.writeCatalogue(threeSimulators);
            scanForTheWindow(shop);
            const QString before = rows(shop);
            const QMap<QString, QString> simPaths{{"a"_s, "b"_s}};
            shop.controller().simPaths = simPaths;
            auto *mapping = shop.mapping("{}", QString());
            shop.controller().mappings = {mapping};
            shop.writeCatalogue({});
            if (isMissing)
                QFile::remove(Workshop::beside("flightsims.json"));
            const auto disk = shop.disk();
            const int entries = shop.entryCount();

            for (const int mode : {0, 1, 2, 3, 4}) {
                for (const bool silent : {false, true})
                    shop.controller().startScan(true, silent, static_cast<Mode>(mode));
            }
            QCOMPARE(rows(shop), before);
            QCOMPARE(shop.controller().simPaths, simPaths);
            QCOMPARE(shop.controller().mappings, QList<FlightSimulatorMapping *>{mapping});
            QCOMPARE(shop.entryCount(), entries);
            QCOMPARE(shop.disk(), disk);
            QCOMPARE(shop.boxes(), QStringList());
            QVERIFY(!QApplication::overrideCursor());
        }
    }

    // On a computer with an X-Plane 12, which the detection library finds, and a folder "own".
    void showsTheCataloguesEntries_data()
    {
        QTest::addColumn<QByteArray>("catalogue");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QByteArray &catalogue, const char *expected) {
            QTest::newRow(name) << catalogue << QString::fromUtf8(expected);
        };
        row("in reverse, the detected ones first",
            threeSimulators,
            "Two=$ROOT/X-Plane 12|Three=|One=");
        row("both groups in reverse",
            R"([{"name": "a", "simcode": "XP12", "location": 2}, {"name": "b"},
                {"name": "c", "simcode": "XP12", "location": 2}, {"name": "d", "simcode": "xp12"},
                {"name": "e", "simcode": ""}])",
            "c=$ROOT/X-Plane 12|a=$ROOT/X-Plane 12|e=|d=|b=");
        row("the entry's own strategy before the detected folder",
            R"([{"name": "a", "simcode": "XP12", "location": 1, "path": "$ROOT/gone"},
                {"name": "b", "simcode": "XP12", "location": 1, "path": "$ROOT/own"},
                {"name": "c", "location": 1, "path": "$ROOT/own"}])",
            "b=$ROOT/own|a=$ROOT/X-Plane 12|c=$ROOT/own");
        row("their conflicts settled",
            R"([{"name": "a", "location": 1, "path": "$ROOT/own", "config": null,
                    "conflict": {"name": "x"}},
                {"name": "b", "location": 1, "path": "$ROOT/own", "config": null,
                    "conflict": {"name": "x"}}])",
            "b=$ROOT/own|a=");
        row("after a byte-order mark", "\xef\xbb\xbf[{\"name\": \"One\"}]", "One=");
        row("none of an object", R"({"name": "One"})", "");
        row("none of a truncated list", R"([{"name": "One"}, {"name":)", "");
        row("none of a list with trailing text", R"([{"name": "One"}] x)", "");
        row("none of a text that is not JSON", "simulators:\n- One\n", "");
        row("none of a space", " ", "");
        row("none of binary data", QByteArray("\x00\x01\xff\xfe", 4), "");
        row("none of lists nested too deeply", QByteArray(5000, '[') + QByteArray(5000, ']'), "");
    }

    void showsTheCataloguesEntries()
    {
        QFETCH(const QByteArray, catalogue);
        QFETCH(const QString, expected);
        Workshop shop;
        shop.makeDetectedSimulator("X-Plane 12");
        shop.folder("own");
        shop.writeCatalogue(R"([{"name": "an earlier one"}])");
        scanForTheWindow(shop);
        shop.writeCatalogue(catalogue);
        scanForTheWindow(shop);
        QCOMPARE(rows(shop), expected);
        QCOMPARE(shop.boxes(), QStringList());

        if (expected.isEmpty()) {
            shop.controller().startScan(false, false, ScanController::ModeScanAndInstall);
            QCOMPARE(shop.boxes(), QStringList(noSimulatorBox()));
        }
    }

    void detectsSimulatorsAnewInEachScan()
    {
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        shop.controller().simPaths.insert("S1"_s, "/stale"_s);
        scanForTheWindow(shop);
        QVERIFY(!shop.controller().simPaths.contains("S1"_s));
        QCOMPARE(rows(shop), "Three=|Two=|One="_s);
        const QString folder = shop.makeDetectedSimulator("X-Plane 12");
        scanForTheWindow(shop);
        QCOMPARE(shop.controller().simPaths.value("XP12"_s), folder);
        QCOMPARE(rows(shop), "Two=$ROOT/X-Plane 12|Three=|One="_s);
    }

    void removesUnfinishedFilesBesideAConfiguration()
    {
        Workshop shop;
        const QString left = shop.dataPath("Maker/dll.xml_quillmont_unfinished");
        writeFile(left, "half");
        shop.writeCatalogue(R"([{"name": "One", "config": {"path": "Maker\\dll.xml"}}])");
        scanForTheWindow(shop);
        QVERIFY(!QFile::exists(left));
    }

    void scansInTheOrderOfItsResult()
    {
        Workshop shop;
        shop.writeCatalogue(R"([{"location": 0}, {"location": 1}, {"location": 4}])");
        scanForTheWindow(shop);
        QCOMPARE(shop.log.debugLines().filter("Scanning"_s).join(u' '),
                 "Scanning multiple locations... Scanning folders... Scanning files..."_s);
    }

    void keepsTheMappingsInAScanForTheWindow()
    {
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        auto *mapping = shop.mapping("{}", QString());
        shop.controller().mappings = {mapping};
        const auto disk = shop.disk();
        for (const int mode : {0, 1, 2, 3})
            shop.controller().startScan(true, false, static_cast<Mode>(mode));
        QCOMPARE(shop.controller().mappings, QList<FlightSimulatorMapping *>{mapping});
        QCOMPARE(shop.rowNames().size(), 3);
        QCOMPARE(shop.boxes(), QStringList());
        QCOMPARE(shop.disk(), disk);
    }

    void keepsTheWindowInTheButtonsScan()
    {
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        shop.controller().mappings = {shop.mapping("{}", QString())};
        shop.controller().startScan(false, false, ScanController::ModeScanAndInstall);
        QCOMPARE(shop.controller().mappings.size(), 3);
        QCOMPARE(shop.controller().mappings.constFirst()->scan->name, "Three"_s);
        QCOMPARE(shop.rowNames(), QStringList());
        QCOMPARE(shop.boxes(), QStringList(allInstalledBox()));
    }

    // The button's scan scans again after each installation; only these scans change the window.
    void installsInTheButtonsScanAndInEverySilentOne_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("silent");
        QTest::addColumn<bool>("saysSo");
        QTest::addColumn<int>("scans");
        QTest::newRow("the button's") << 4 << false << true << 4;
        QTest::newRow("none") << 0 << true << false << 1;
        QTest::newRow("install") << 1 << true << true << 1;
        QTest::newRow("uninstall") << 2 << true << false << 1;
        QTest::newRow("repair") << 3 << true << false << 1;
        QTest::newRow("scan and install") << 4 << true << false << 4;
    }

    void installsInTheButtonsScanAndInEverySilentOne()
    {
        QFETCH(const int, mode);
        QFETCH(const bool, silent);
        QFETCH(const bool, saysSo);
        QFETCH(const int, scans);
        Workshop shop;
        shop.writePayload("x", "new");
        for (const char *name : {"A", "B", "C"})
            shop.folder(name);
        shop.writeCatalogue('[' + Workshop::simulator("A") + ',' + Workshop::simulator("B") + ','
                            + Workshop::simulator("C") + ']');
        shop.controller().startScan(false, silent, static_cast<Mode>(mode));
        for (const char *name : {"A/p/x", "B/p/x", "C/p/x"})
            QCOMPARE(readFile(shop.path(name)), QByteArray("new"));
        QCOMPARE(shop.record().size(), 3);
        QCOMPARE(shop.controller().mappings.size(), 3);
        QCOMPARE(shop.boxes(),
                 saysSo ? QStringList(autoInstalledBox({"Sim C"_s, "Sim B"_s, "Sim A"_s}))
                        : QStringList());
        QCOMPARE(shop.entryCount(), 3 * scans);
        QCOMPARE(shop.rowNames().join(u' '), scans > 1 ? "Sim C Sim B Sim A"_s : QString());
    }

    void deletesNothingBetweenScans()
    {
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        shop.controller().startScan(false, true, ScanController::ModeNone);
        QVector<QPointer<QObject>> first;
        for (auto *mapping : qAsConst(shop.controller().mappings)) {
            QCOMPARE(mapping->parent(), mapping->scan);
            QCOMPARE(mapping->scan->parent(), &shop.controller());
            first.append(mapping);
        }
        shop.controller().startScan(false, true, ScanController::ModeNone);
        scanForTheWindow(shop);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!first.contains(nullptr));
        QVERIFY(shop.controller().mappings.constFirst() != first.constFirst());
        QCOMPARE(shop.entryCount(), 9);
        shop.dropController();
        QCOMPARE(first.count(nullptr), 3);
    }

    void passesTheFlagsToTheWindow()
    {
        for (const bool updateDefault : {true, false}) {
            Workshop shop;
            shop.writeCatalogue(R"([{"name": "One", "location": 3}])");
            auto *settings = ConfigurationController::instance();
            settings->saveSettings("flightsim/One"_s, shop.folder("chosen"));
            shop.controller().startScan(updateDefault, false, ScanController::ModeNone);
            QCOMPARE(rows(shop), updateDefault ? "One=$ROOT/chosen"_s : "One="_s);
            QCOMPARE(settings->getSettings("flightsim/One"_s).isNull(), !updateDefault);
            QCOMPARE(shop.boxes(), QStringList());
        }
    }

    void readsWrongTypesAsDefaults()
    {
        Workshop shop;
        shop.writePayload("x", "x");
        shop.writeCatalogue(R"([1, "x", null, [], {}, true, {"name": 5, "simcode": [],
            "location": "1", "path": {}, "key": true, "type": "0", "target": 9, "root": 3,
            "files": "x", "config": 7, "conflict": "y"}, {"name": "Good", "location": 1,
            "path": "$ROOT", "files": [1, null, {"source": 5}], "config": {"path": 5, "values": 7,
            "remove": []}, "conflict": {"name": 5, "solution": {}}}])");
        scanForTheWindow(shop);
        QCOMPARE(rows(shop), "Good=$ROOT|=|=|=|=|=|=|="_s);
        const auto before = shop.disk();
        shop.controller().startScan(false, true, ScanController::ModeNone);
        auto after = shop.disk();
        for (const char *ours : {"Quillmont/Orbwell/.mapping", "Quillmont/Orbwell/.path"})
            after.remove(QDir(shop.sandbox.root()).relativeFilePath(shop.dataPath(ours)));
        for (auto it = after.cbegin(); it != after.cend(); ++it)
            QCOMPARE(before.value(it.key(), "not there before"), it.value());
        QCOMPARE(shop.boxes(), QStringList());
    }

    void readsAHugeCatalogueWhole()
    {
        Workshop shop;
        QByteArray catalogue = "[";
        for (int i = 0; i < 20000; ++i)
            catalogue += QByteArray(R"({"location": 3, "name": "Simulator $"},)")
                             .replace('$', QByteArray::number(i));
        shop.writeCatalogue(catalogue + R"({"name": ")" + QByteArray(1000000, 'x') + R"("}])");
        shop.controller().startScan(false, true, ScanController::ModeNone);
        const auto &mappings = shop.controller().mappings;
        QCOMPARE(mappings.size(), 20001);
        QCOMPARE(mappings.constFirst()->scan->name.size(), 1000000);
        QCOMPARE(mappings.at(1)->scan->name, "Simulator 19999"_s);
        QCOMPARE(mappings.constLast()->scan->name, "Simulator 0"_s);
    }

    void showsTheBusyPointerWhileItWorks()
    {
        Workshop shop;
        // A removal that fails opens a box during the scan.
        writeFile(shop.path("A/x/inside"), "precious");
        shop.writeCatalogue(R"([{"location": 1, "path": "$ROOT/A", "type": 1,
            "files": [{"destination": "x"}, {"destination": "y"}]}])");
        shop.controller();
        int lines = 0;
        int busy = 0;
        shop.log.atEachDebugLine([&](const QString &) {
            const auto *pointer = QApplication::overrideCursor();
            busy += pointer && pointer->shape() == Qt::WaitCursor ? 1 : 0;
            ++lines;
        });
        shop.controller().startScan(false, false, ScanController::ModeScanAndInstall);
        QVERIFY(lines > 0);
        QCOMPARE(busy, lines);
        QCOMPARE(shop.answerer.boxes().size(), 2);
        for (const auto &box : shop.answerer.boxes())
            QVERIFY(!box.busyPointer);
        QVERIFY(!QApplication::overrideCursor());
    }

    void causesNoQtWarning()
    {
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        scanForTheWindow(shop);
        scanForTheWindow(shop);
        QCOMPARE(shop.warnings(), QString());
    }

private:
    SettingsHome m_settingsHome;
};

QTEST_MAIN(TestScanSession)
#include "tst_ScanSession.moc"
