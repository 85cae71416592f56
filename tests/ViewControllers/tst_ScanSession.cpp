#include "tests/ViewControllers/Workshop.h"

#include "Controllers/ConfigurationController.h"

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QTest>

using Quillmont::Utility::Controllers::ConfigurationController;
using Tests::box;
using Tests::FlightSimScan;
using Tests::FlightSimulatorMapping;
using Tests::ScanController;
using Tests::SettingsHome;
using Tests::Workshop;
using Tests::writeFile;

namespace {

const char *const threeSimulators = R"([{"name": "One", "simcode": "S1", "location": 2},
    {"name": "Two", "simcode": "XP12", "location": 2}, {"name": "Three", "location": 2}])";

QString boxTitle()
{
    return QStringLiteral("Quillmont Orbwell Settings");
}

} // namespace

class TestScanSession : public QObject
{
    Q_OBJECT

private slots:

    void readsTheCatalogueAsItIs()
    {
        Workshop shop;
        writeFile(Workshop::beside("flightsims.json"), "[ ]\r\n\t\"Спутник\" \xe6\x97\xa5\n");
        QCOMPARE(shop.controller().getJsonContent(), QStringLiteral(u"[ ]\r\n\t\"Спутник\" 日\n"));
    }

    void aCatalogueThatCannotBeOpenedReadsAsNothing()
    {
        Workshop shop;
        QCOMPARE(shop.controller().getJsonContent(), QString());
        QVERIFY(QDir().mkpath(Workshop::beside("flightsims.json")));
        QCOMPARE(shop.controller().getJsonContent(), QString());
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
        QVERIFY(shop.boxes().isEmpty());
    }

    void theCatalogueMayBeginWithAByteOrderMark()
    {
        Workshop shop;
        shop.writeCatalogue("\xef\xbb\xbf[{\"name\": \"One\"}]");
        startScan(shop);
        QCOMPARE(shop.rowNames(), QStringList(QStringLiteral("One")));
    }

    void withoutACatalogueEverythingStaysAsItWas_data()
    {
        QTest::addColumn<bool>("empty");
        QTest::newRow("missing") << false;
        QTest::newRow("empty") << true;
    }

    void withoutACatalogueEverythingStaysAsItWas()
    {
        QFETCH(bool, empty);
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        startScan(shop);
        const auto rows = shop.rowNames();
        const QMap<QString, QString> simPaths{{QStringLiteral("a"), QStringLiteral("b")}};
        shop.controller().simPaths = simPaths;
        auto *mapping = shop.mapping("{}", QString());
        shop.controller().mappings = {mapping};
        shop.writeCatalogue({});
        if (!empty)
            QFile::remove(Workshop::beside("flightsims.json"));
        const auto disk = shop.disk();
        const int entries = shop.entryCount();

        for (const int mode : {0, 1, 2, 3, 4}) {
            for (const bool silent : {false, true}) {
                shop.controller().startScan(
                    true, silent, static_cast<ScanController::InstallationMode>(mode));
            }
        }
        QCOMPARE(shop.rowNames(), rows);
        QCOMPARE(shop.controller().simPaths, simPaths);
        QCOMPARE(shop.controller().mappings, QList<FlightSimulatorMapping *>{mapping});
        QCOMPARE(shop.entryCount(), entries);
        QCOMPARE(shop.disk(), disk);
        QVERIFY(shop.boxes().isEmpty());
        QVERIFY(!QApplication::overrideCursor());
    }

    void aCatalogueThatIsNoListHoldsNothing_data()
    {
        QTest::addColumn<QByteArray>("catalogue");
        QTest::newRow("an object") << QByteArray(R"({"name": "One"})");
        QTest::newRow("cut off") << QByteArray(R"([{"name": "One"}, {"name":)");
        QTest::newRow("text behind it") << QByteArray(R"([{"name": "One"}] x)");
        QTest::newRow("no JSON") << QByteArray("simulators:\n- One\n");
        QTest::newRow("a blank") << QByteArray(" ");
        QTest::newRow("binary") << QByteArray("\x00\x01\xff\xfe", 4);
        QTest::newRow("nested too deeply") << QByteArray(5000, '[') + QByteArray(5000, ']');
    }

    void aCatalogueThatIsNoListHoldsNothing()
    {
        QFETCH(QByteArray, catalogue);
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        startScan(shop);
        QCOMPARE(shop.rowNames().size(), 3);
        shop.writeCatalogue(catalogue);
        startScan(shop);
        QVERIFY(shop.rowNames().isEmpty());
        QVERIFY(shop.boxes().isEmpty());

        shop.controller().startScan(false, false, ScanController::ModeScanAndInstall);
        QCOMPARE(shop.boxes(),
                 QStringList(box(boxTitle(),
                                 QStringLiteral("There are no other simulator found for install "
                                                "Orbwell plugin."))));
    }

    void simulatorsComeInReverseAndTheDetectedOnesFirst()
    {
        Workshop shop;
        const QString folder = shop.makeDetectedSimulator("X-Plane 12");
        shop.writeCatalogue(threeSimulators);
        startScan(shop);
        QCOMPARE(shop.rowNames().join(u' '), QStringLiteral("Two Three One"));
        QCOMPARE(shop.rowPaths(), QStringList({folder, QString(), QString()}));
    }

    void bothGroupsAreInReverse()
    {
        Workshop shop;
        shop.makeDetectedSimulator("X-Plane 12");
        shop.writeCatalogue(R"([{"name": "a", "simcode": "XP12", "location": 2}, {"name": "b"},
            {"name": "c", "simcode": "XP12", "location": 2}, {"name": "d", "simcode": "xp12"},
            {"name": "e", "simcode": ""}])");
        startScan(shop);
        QCOMPARE(shop.rowNames().join(u' '), QStringLiteral("c a e d b"));
    }

    void anEntrysOwnStrategyComesBeforeTheDetectedFolder()
    {
        Workshop shop;
        const QString detected = shop.makeDetectedSimulator("X-Plane 12");
        const QString own = shop.folder("own place");
        shop.writeCatalogue(R"([{"simcode": "XP12", "location": 1, "path": "$ROOT/gone"},
            {"simcode": "XP12", "location": 1, "path": "$ROOT/own place"},
            {"location": 1, "path": "$ROOT/own place"}])");
        startScan(shop);
        QCOMPARE(shop.rowPaths(), QStringList({own, detected, own}));
    }

    void eachScanAsksAnewWhatIsThere()
    {
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        shop.controller().simPaths.insert(QStringLiteral("S1"), QStringLiteral("/stale"));
        startScan(shop);
        QVERIFY(!shop.controller().simPaths.contains(QStringLiteral("S1")));
        QCOMPARE(shop.rowPaths(), QStringList({QString(), QString(), QString()}));
        const QString folder = shop.makeDetectedSimulator("X-Plane 12");
        startScan(shop);
        QCOMPARE(shop.controller().simPaths.value(QStringLiteral("XP12")), folder);
        QCOMPARE(shop.rowPaths(), QStringList({folder, QString(), QString()}));
    }

    void clearsWhatAKilledRunLeftBesideAConfiguration()
    {
        Workshop shop;
        const QString left = shop.dataPath("Maker/dll.xml_quillmont_unfinished");
        writeFile(left, "half");
        shop.writeCatalogue(R"([{"name": "One", "config": {"path": "Maker\\dll.xml"}}])");
        startScan(shop);
        QVERIFY(!QFile::exists(left));
    }

    void scansInTheOrderOfItsResult()
    {
        Workshop shop;
        shop.writeCatalogue(R"([{"location": 0}, {"location": 1}, {"location": 4}])");
        startScan(shop);
        QCOMPARE(shop.log.debugLines().filter(QStringLiteral("Scanning")).join(u' '),
                 QStringLiteral("Scanning multiple locations... Scanning folders... "
                                "Scanning files..."));
    }

    void conflictsAreSettledBeforeTheResultIsShown()
    {
        Workshop shop;
        shop.folder("sim");
        shop.writeCatalogue(R"([
            {"name": "a", "location": 1, "path": "$ROOT/sim", "config": null,
                "conflict": {"name": "x"}},
            {"name": "b", "location": 1, "path": "$ROOT/sim", "config": null,
                "conflict": {"name": "x"}}])");
        startScan(shop);
        QCOMPARE(shop.rowNames().join(u' '), QStringLiteral("b a"));
        QCOMPARE(shop.rowPaths(), QStringList({shop.path("sim"), QString()}));
    }

    void aScanForTheWindowLeavesTheMappingsAlone()
    {
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        auto *mapping = shop.mapping("{}", QString());
        shop.controller().mappings = {mapping};
        const auto disk = shop.disk();
        for (const int mode : {0, 1, 2, 3}) {
            shop.controller().startScan(
                true, false, static_cast<ScanController::InstallationMode>(mode));
        }
        QCOMPARE(shop.controller().mappings, QList<FlightSimulatorMapping *>{mapping});
        QCOMPARE(shop.rowNames().size(), 3);
        QVERIFY(shop.boxes().isEmpty());
        QCOMPARE(shop.disk(), disk);
    }

    void theButtonsScanInstallsAndLeavesTheWindowAlone()
    {
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        auto *before = shop.mapping("{}", QString());
        shop.controller().mappings = {before};
        shop.controller().startScan(false, false, ScanController::ModeScanAndInstall);
        QCOMPARE(shop.controller().mappings.size(), 3);
        QCOMPARE(shop.controller().mappings.constFirst()->scan->name, QStringLiteral("Three"));
        QVERIFY(shop.rowNames().isEmpty());
        QCOMPARE(shop.boxes(),
                 QStringList(box(boxTitle(),
                                 QStringLiteral("Orbwell plugin is installed in all "
                                                "simulators."))));
    }

    void theButtonsScanScansAgainAfterEachInstallation()
    {
        Workshop shop;
        shop.writePayload("x", "x");
        shop.folder("A");
        shop.folder("B");
        shop.folder("C");
        shop.writeCatalogue(R"([
            {"name": "A", "type": 1, "location": 1, "path": "$ROOT/A",
                "files": [{"source": "x", "destination": "x"}]},
            {"name": "B", "type": 1, "location": 1, "path": "$ROOT/B",
                "files": [{"source": "x", "destination": "p/x"}]},
            {"name": "C", "type": 1, "location": 1, "path": "$ROOT/C",
                "files": [{"source": "x", "destination": "p/x"}]}])");
        shop.controller().startScan(false, false, ScanController::ModeScanAndInstall);
        QCOMPARE(shop.entryCount(), 4 * 3);
        QCOMPARE(shop.rowNames().join(u' '), QStringLiteral("C B A"));
        QCOMPARE(shop.boxes(),
                 QStringList(box(boxTitle(),
                                 QStringLiteral("Quillmont Orbwell have successfully installed "
                                                "Orbwell plugin to  C B A."))));
    }

    void aSilentScanInstalls_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("saysSo");
        QTest::newRow("none") << 0 << false;
        QTest::newRow("install") << 1 << true;
        QTest::newRow("uninstall") << 2 << false;
        QTest::newRow("repair") << 3 << false;
        QTest::newRow("scan and install") << 4 << false;
    }

    void aSilentScanInstalls()
    {
        QFETCH(int, mode);
        QFETCH(bool, saysSo);
        Workshop shop;
        shop.writePayload("x", "new");
        shop.folder("A");
        shop.writeCatalogue(R"([{"name": "A", "type": 1, "location": 1, "path": "$ROOT/A",
            "files": [{"source": "x", "destination": "x"}]}])");
        shop.controller().startScan(
            false, true, static_cast<ScanController::InstallationMode>(mode));
        QCOMPARE(Tests::readFile(shop.path("A/x")), QByteArray("new"));
        QCOMPARE(shop.record().size(), 1);
        QCOMPARE(shop.controller().mappings.size(), 1);
        QCOMPARE(shop.boxes().size(), saysSo ? 1 : 0);
        QCOMPARE(shop.entryCount(), mode == 4 ? 2 : 1);
        QCOMPARE(shop.rowNames().size(), mode == 4 ? 1 : 0);
    }

    void nothingIsDeletedBetweenScans()
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
        const auto *second = shop.controller().mappings.constFirst();
        shop.controller().startScan(false, true, ScanController::ModeNone);
        startScan(shop);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!first.contains(nullptr));
        QVERIFY(shop.controller().mappings.constFirst() != second);
        QCOMPARE(shop.entryCount(), 9);
        shop.dropController();
        QCOMPARE(first.count(nullptr), 3);
    }

    void theWindowLearnsWhetherToTakeUpChosenFolders_data()
    {
        QTest::addColumn<bool>("updateDefault");
        QTest::newRow("take up") << true;
        QTest::newRow("forget") << false;
    }

    void theWindowLearnsWhetherToTakeUpChosenFolders()
    {
        QFETCH(bool, updateDefault);
        Workshop shop;
        shop.writeCatalogue(R"([{"name": "One", "location": 3}])");
        auto *settings = ConfigurationController::instance();
        settings->saveSettings(QStringLiteral("flightsim/One"), shop.folder("chosen"));
        shop.controller().startScan(updateDefault, false, ScanController::ModeNone);
        QCOMPARE(shop.rowPaths(), QStringList(updateDefault ? shop.path("chosen") : QString()));
        QCOMPARE(settings->getSettings(QStringLiteral("flightsim/One")).isNull(), !updateDefault);
        // The window is always asked to be quiet.
        QVERIFY(shop.boxes().isEmpty());
    }

    void wrongTypesGiveDefaults()
    {
        Workshop shop;
        shop.writePayload("x", "x");
        shop.writeCatalogue(R"([1, "x", null, [], {}, true, {"name": 5, "simcode": [],
            "location": "1", "path": {}, "key": true, "type": "0", "target": 9, "root": 3,
            "files": "x", "config": 7, "conflict": "y"}, {"name": "Good", "location": 1,
            "path": "$ROOT", "files": [1, null, {"source": 5}], "config": {"path": 5, "values": 7,
            "remove": []}, "conflict": {"name": 5, "solution": {}}}])");
        startScan(shop);
        QCOMPARE(shop.rowNames().size(), 8);
        QCOMPARE(shop.rowNames().constFirst(), QStringLiteral("Good"));
        QCOMPARE(shop.rowNames().count(QString()), 7);
        QCOMPARE(shop.rowPaths().count(QString()), 7);
        const auto disk = shop.disk();
        shop.controller().startScan(false, true, ScanController::ModeNone);
        auto expected = shop.disk();
        for (const char *ours : {"Quillmont/Orbwell/.mapping", "Quillmont/Orbwell/.path"})
            expected.remove(shop.dataPath(ours).mid(shop.sandbox.root().size() + 1));
        for (auto it = expected.cbegin(); it != expected.cend(); ++it)
            QCOMPARE(disk.value(it.key(), "not there before"), it.value());
        QVERIFY(shop.boxes().isEmpty());
    }

    void aHugeCatalogueIsReadWhole()
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
        QCOMPARE(mappings.at(1)->scan->name, QStringLiteral("Simulator 19999"));
        QCOMPARE(mappings.constLast()->scan->name, QStringLiteral("Simulator 0"));
    }

    void theBusyPointerIsUpWhileItWorks()
    {
        Workshop shop;
        shop.writeCatalogue(R"([{"location": 1}])");
        shop.controller();
        bool busy = false;
        shop.log.atEachDebugLine([&](const QString &) {
            const auto *pointer = QApplication::overrideCursor();
            busy = pointer && pointer->shape() == Qt::WaitCursor;
        });
        shop.controller().startScan(false, false, ScanController::ModeScanAndInstall);
        QVERIFY(busy);
        QVERIFY(!shop.answerer.boxes().constFirst().busyPointer);
        QVERIFY(!QApplication::overrideCursor());
    }

    void aScanMakesTheToolkitWarnOfNothing()
    {
        Workshop shop;
        shop.writeCatalogue(threeSimulators);
        startScan(shop);
        startScan(shop);
        QCOMPARE(shop.warnings(), QString());
    }

private:
    SettingsHome m_settingsHome;

    static void startScan(Workshop &shop)
    {
        shop.controller().startScan(true, false, ScanController::ModeNone);
    }
};

QTEST_MAIN(TestScanSession)
#include "tst_ScanSession.moc"
