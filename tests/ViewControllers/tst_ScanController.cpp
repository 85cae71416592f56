#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Literals.h"

#include "SimDetect/SimDetect.h"
#include "Views/ScannerView.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPointer>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace Tests;

using Quillmont::Utility::Views::ScannerView;

namespace {

// A computer with one simulator, and a payload for it.
class SimulatorShop : public Workshop
{
public:
    SimulatorShop()
    {
        writePayload("x", "new");
        writeFile(path("A/sim.exe"), {});
        writeCatalogue('[' + simulator("A") + ']');
    }

    ScannerView *view() { return controller().view; }

    FlightSimulatorMapping *simulatorInItsFolder() { return mapping(simulator("A"), path("A")); }
};

} // namespace

/// The controller's state after its start, and how it handles its window's requests.
class TestScanController : public QObject
{
    Q_OBJECT

private slots:

    void startsWithWhatTheDetectionLibraryKnows()
    {
        Workshop shop;
        const QString folder = shop.makeDetectedSimulator("X-Plane 12");
        auto &controller = shop.controller();
        QCOMPARE(controller.simPaths, Quillmont::SimDetect::GetAllSimPaths());
        QCOMPARE(controller.simPaths.value("XP12"_s), folder);
        QVERIFY(controller.mappings.isEmpty());
        QCOMPARE(controller.m_errorMessage, QString());
    }

    void showsItsWindowAndScansNothingYet()
    {
        SimulatorShop shop;
        QVERIFY(shop.view()->isVisible());
        QVERIFY(shop.view()->isWindow());
        QCOMPARE(shop.rowNames() + shop.boxes(), QStringList());
        QCOMPARE(shop.entryCount(), 0);
        QVERIFY(QFile::exists(shop.recordPath()));
        QCOMPARE(shop.warnings(), QString());
    }

    void doesNotReadTheRecordForItsWindow()
    {
        Workshop shop;
        shop.writeRecord(R"([{"name": "Sim A", "path": "$ROOT"}])");
        shop.writeCatalogue(R"([{"name": "Sim A"}])");
        shop.controller().startScan(true, false, ScanController::ModeNone);
        QCOMPARE(shop.rowPaths(), QStringList(QString()));
    }

    void isOwnedByItsParentAndItsWindowByTheParentWidget()
    {
        const Workshop shop;
        QWidget parentWidget;
        QObject parent;
        auto *controller = new ScanController(&parent, &parentWidget);
        QCOMPARE(controller->parent(), &parent);
        QCOMPARE(controller->view->parentWidget(), &parentWidget);
    }

    void deletesItsMappingsButNotItsWindow()
    {
        const SimulatorShop shop;
        auto controller = std::make_unique<ScanController>(nullptr, nullptr);
        const std::unique_ptr<ScannerView> window(controller->view);
        const QPointer<ScannerView> stillThere(window.get());
        controller->startScan(false, true, ScanController::ModeNone);
        const QPointer<FlightSimulatorMapping> mapping(controller->mappings.constFirst());
        controller.reset();
        QVERIFY(!mapping);
        QVERIFY(stillThere);
    }

    void scansAndInstallsWhenTheWindowAsksForAScan()
    {
        SimulatorShop shop;
        emit shop.view()->scanRequested();
        QCOMPARE(shop.boxes(), QStringList(autoInstalledBox({"Sim A"_s})));
        QCOMPARE(shop.controller().mappings.size(), 1);
        // One scan for the button and one after the installation.
        QCOMPARE(shop.entryCount(), 2);
        QCOMPARE(readFile(shop.path("A/p/x")), QByteArray("new"));
    }

    void installsScansAndShowsTheResultOnRequest()
    {
        SimulatorShop shop;
        emit shop.view()->install(shop.simulatorInItsFolder());
        QCOMPARE(shop.boxes(), QStringList(installedBox("Sim A"_s)));
        QCOMPARE(readFile(shop.path("A/p/x")), QByteArray("new"));
        QCOMPARE(shop.rowNames(), QStringList("Sim A"_s));
        QVERIFY(shop.controller().mappings.isEmpty());
    }

    void uninstallsScansAndShowsTheResultOnRequest()
    {
        SimulatorShop shop;
        writeFile(shop.path("A/p/x"), "old");
        emit shop.view()->uninstall(shop.simulatorInItsFolder());
        QCOMPARE(shop.boxes(), QStringList(uninstalledBox("Sim A"_s)));
        QVERIFY(!QFile::exists(shop.path("A/p")));
        QCOMPARE(shop.rowNames(), QStringList("Sim A"_s));
        QVERIFY(shop.controller().mappings.isEmpty());
    }

    // Requested from another thread while this one handles no events; the catalogue is a pipe,
    // which shows that it is being read.
    void handlesARequestSynchronously()
    {
        Workshop shop;
        auto *view = shop.controller().view;
        const QByteArray pipe = QFile::encodeName(Workshop::beside("flightsims.json"));
        QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
        std::thread requester([view] { emit view->scanRequested(); });
        int writer = -1;
        QElapsedTimer waiting;
        waiting.start();
        while (writer < 0 && !waiting.hasExpired(10000)) {
            writer = open(pipe.constData(), O_WRONLY | O_NONBLOCK);
            std::this_thread::yield();
        }
        if (writer >= 0)
            close(writer);
        requester.join();
        QVERIFY(writer >= 0);
    }

    void causesNoQtWarningInADayOfWork()
    {
        SimulatorShop shop;
        auto *mapping = shop.simulatorInItsFolder();
        emit shop.view()->install(mapping);
        emit shop.view()->uninstall(mapping);
        emit shop.view()->scanRequested();
        QCOMPARE(shop.boxes().size(), 3);
        QCOMPARE(shop.warnings(), QString());
    }
};

QTEST_MAIN(TestScanController)
#include "tst_ScanController.moc"
