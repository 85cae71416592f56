#include "tests/ViewControllers/Workshop.h"

#include "SimDetect/SimDetect.h"
#include "Views/ScannerView.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPointer>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using Quillmont::Utility::Views::ScannerView;
using Tests::box;
using Tests::FlightSimulatorMapping;
using Tests::ScanController;
using Tests::Workshop;
using Tests::writeFile;

namespace {

const char *const simulator = R"({"name": "Sim A", "type": 1, "location": 1, "path": "$ROOT/A",
    "files": [{"source": "x", "destination": "p/x"}]})";

} // namespace

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
        QCOMPARE(controller.simPaths.value(QStringLiteral("XP12")), folder);
        QVERIFY(controller.mappings.isEmpty());
        QVERIFY(controller.m_errorMessage.isEmpty());
    }

    void showsItsWindowAndScansNothingYet()
    {
        Workshop shop;
        shop.writeCatalogue("[{}]");
        QVERIFY(shop.controller().view->isVisible());
        QVERIFY(shop.controller().view->isWindow());
        QVERIFY(shop.rowNames().isEmpty());
        QCOMPARE(shop.entryCount(), 0);
        QVERIFY(shop.boxes().isEmpty());
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

    void belongsToItsParentAndTheWindowToItsOwn()
    {
        const Workshop shop;
        QWidget parentWidget;
        QObject parent;
        auto *controller = new ScanController(&parent, &parentWidget);
        QCOMPARE(controller->parent(), &parent);
        QCOMPARE(controller->view->parentWidget(), &parentWidget);
    }

    void theWindowOutlivesTheController()
    {
        Workshop shop;
        shop.writeCatalogue("[{}]");
        auto *controller = new ScanController(nullptr, nullptr);
        const QPointer<ScannerView> window(controller->view);
        controller->startScan(false, true, ScanController::ModeNone);
        const QPointer<FlightSimulatorMapping> mapping(controller->mappings.constFirst());
        delete controller;
        QVERIFY(!mapping);
        QVERIFY(window);
        delete window;
    }

    void aRequestToScanScansAndInstalls()
    {
        Workshop shop;
        shop.writePayload("x", "new");
        shop.folder("A");
        shop.writeCatalogue("[" + QByteArray(simulator) + "]");
        emit shop.controller().view->scanRequested();
        QCOMPARE(shop.boxes(),
                 QStringList(box(QStringLiteral("Quillmont Orbwell Settings"),
                                 QStringLiteral("Quillmont Orbwell have successfully installed "
                                                "Orbwell plugin to  Sim A."))));
        QCOMPARE(shop.controller().mappings.size(), 1);
        // One scan for the button and one after the installation.
        QCOMPARE(shop.entryCount(), 2);
        QCOMPARE(Tests::readFile(shop.path("A/p/x")), QByteArray("new"));
    }

    void aRequestToInstallInstallsTellsAndScans()
    {
        Workshop shop;
        shop.writePayload("x", "new");
        shop.writeCatalogue("[" + QByteArray(simulator) + "]");
        auto *mapping = shop.mapping(simulator, shop.folder("A"));
        emit shop.controller().view->install(mapping);
        QCOMPARE(shop.boxes(),
                 QStringList(box(QStringLiteral("Installation complete"),
                                 QStringLiteral("Quillmont Orbwell have successfully installed "
                                                "Orbwell plugin to Sim A."))));
        QCOMPARE(Tests::readFile(shop.path("A/p/x")), QByteArray("new"));
        QCOMPARE(shop.rowNames(), QStringList(QStringLiteral("Sim A")));
        QVERIFY(shop.controller().mappings.isEmpty());
    }

    void aRequestToUninstallUninstallsTellsAndScans()
    {
        Workshop shop;
        writeFile(shop.path("A/p/x"), "old");
        writeFile(shop.path("A/sim.exe"), {});
        shop.writeCatalogue("[" + QByteArray(simulator) + "]");
        auto *mapping = shop.mapping(simulator, shop.path("A"));
        emit shop.controller().view->uninstall(mapping);
        QCOMPARE(shop.boxes(),
                 QStringList(box(QStringLiteral("Uninstall"),
                                 QStringLiteral("Quillmont Orbwell for Sim A has been uninstalled "
                                                "successfully."))));
        QVERIFY(!QFile::exists(shop.path("A/p")));
        QCOMPARE(shop.rowNames(), QStringList(QStringLiteral("Sim A")));
        QVERIFY(shop.controller().mappings.isEmpty());
    }

    // Seen by a request from another thread: the catalogue is a pipe, and somebody reads from it
    // while this thread handles no events.
    void aRequestIsServedAtOnceWhereItIsMade()
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

    void aDayOfWorkMakesTheToolkitWarnOfNothing()
    {
        Workshop shop;
        shop.writePayload("x", "new");
        shop.folder("A");
        shop.writeCatalogue("[" + QByteArray(simulator) + "]");
        auto *mapping = shop.mapping(simulator, shop.path("A"));
        emit shop.controller().view->install(mapping);
        emit shop.controller().view->uninstall(mapping);
        emit shop.controller().view->scanRequested();
        QCOMPARE(shop.boxes().size(), 3);
        QCOMPARE(shop.warnings(), QString());
    }
};

QTEST_MAIN(TestScanController)
#include "tst_ScanController.moc"
