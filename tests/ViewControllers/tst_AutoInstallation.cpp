#include "tests/ViewControllers/Workshop.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

using Tests::box;
using Tests::FlightSimulatorMapping;
using Tests::readFile;
using Tests::ScanController;
using Tests::Workshop;
using Tests::writeFile;

namespace {

QString resultBox(const QString &text)
{
    return box(QStringLiteral("Quillmont Orbwell Settings"), text);
}

QString installedBox(const QString &names)
{
    return resultBox(
        QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to ") + names
        + u'.');
}

QString nothingToDoBox()
{
    return resultBox(QStringLiteral("Orbwell plugin is installed in all simulators."));
}

// A catalogue entry whose one file lies in the simulator's folder "p".
QByteArray simulator(const QByteArray &name)
{
    return R"({"name": "Sim )" + name + R"(", "type": 1, "location": 1, "path": "$ROOT/)" + name
        + R"(", "files": [{"source": "x.dll", "destination": "p/x.dll"}]})";
}

FlightSimulatorMapping *mapping(Workshop &shop, const QByteArray &name)
{
    return shop.mapping(simulator(name), shop.folder(name));
}

} // namespace

class TestAutoInstallation : public QObject
{
    Q_OBJECT

private slots:

    void anEmptyListIsSaid()
    {
        Workshop shop;
        QString pathWhileOpen;
        shop.answerer.whileOpen([&] {
            if (QFile::exists(launcherPath(shop)))
                pathWhileOpen = QStringLiteral("already there");
        });
        shop.controller().autoInstall({}, false, ScanController::ModeNone);
        QCOMPARE(shop.boxes(),
                 QStringList(resultBox(QStringLiteral(
                     "There are no other simulator found for install Orbwell plugin."))));
        QCOMPARE(pathWhileOpen, QString());
        verifyLauncherPath(shop);
    }

    void installsWhereTheFolderIsKnownAndThePluginMissing()
    {
        Workshop shop;
        shop.writePayload("x.dll", "new");
        writeFile(shop.path("A/sim.exe"), {});
        writeFile(shop.path("B/p/x.dll"), "complete");
        auto *notFound = shop.mapping(simulator("C"), QString());
        shop.controller().autoInstall(
            {mapping(shop, "A"), mapping(shop, "B"), notFound}, false, ScanController::ModeInstall);
        QCOMPARE(shop.boxes(), QStringList(installedBox(QStringLiteral(" Sim A"))));
        QCOMPARE(readFile(shop.path("A/p/x.dll")), QByteArray("new"));
        QCOMPARE(readFile(shop.path("B/p/x.dll")), QByteArray("complete"));
        QCOMPARE(recordedNames(shop), QStringLiteral("Sim A|Sim B"));
        verifyLauncherPath(shop);
    }

    void namesBeginWithABlank()
    {
        Workshop shop;
        shop.writePayload("x.dll", "new");
        auto *a = mapping(shop, "A");
        auto *b = mapping(shop, "B");
        b->scan->name = QStringLiteral("%1 %0");
        shop.controller().autoInstall({b, a}, false, ScanController::ModeNone);
        QCOMPARE(shop.boxes(), QStringList(installedBox(QStringLiteral(" %1 %0 Sim A"))));
        QVERIFY(shop.boxes().constFirst().contains(QStringLiteral("plugin to  %1")));
    }

    void whenAllHaveItAllAreRecordedAgain()
    {
        Workshop shop;
        writeFile(shop.path("A/p/x.dll"), "complete");
        writeFile(shop.path("B/p/x.dll"), "complete");
        shop.writeRecord(R"([{"name": "Sim A", "path": "old"}])");
        shop.controller().autoInstall(
            {mapping(shop, "B"), mapping(shop, "A")}, false, ScanController::ModeNone);
        QCOMPARE(shop.boxes(), QStringList(nothingToDoBox()));
        QCOMPARE(recordedNames(shop), QStringLiteral("Sim B|Sim A"));
        QCOMPARE(shop.record().last().toObject().value(QStringLiteral("path")).toString(),
                 shop.path("A"));
        QCOMPARE(readFile(shop.path("A/p/x.dll")), QByteArray("complete"));
    }

    void whatWasNotFoundIsPassedOver()
    {
        Workshop shop;
        auto *withoutFiles = shop.mapping(R"({"name": "Sim A"})", QString());
        shop.controller().autoInstall({withoutFiles}, false, ScanController::ModeNone);
        QCOMPARE(shop.boxes(), QStringList(nothingToDoBox()));
        QCOMPARE(readFile(shop.recordPath()), QByteArray());
    }

    void aFailedInstallationIsNamedAndRecorded()
    {
        Workshop shop;
        auto *a = mapping(shop, "A");
        shop.controller().autoInstall({a}, false, ScanController::ModeNone);
        QCOMPARE(shop.boxes(), QStringList(installedBox(QStringLiteral(" Sim A"))));
        QCOMPARE(recordedNames(shop), QStringLiteral("Sim A"));
        QVERIFY(shop.controller().m_errorMessage.startsWith(QStringLiteral("Unable to copy")));
    }

    void clearsAPartialInstallationFirst()
    {
        Workshop shop;
        shop.writePayload("one", "new");
        shop.writePayload("two", "new");
        writeFile(shop.path("A/a/one"), "old");
        writeFile(shop.path("A/a/.leftover"), "hidden");
        writeFile(shop.path("home/extra"), "ours");
        writeFile(shop.dataPath("V/dll.xml"), "<a></a>");
        auto *a = shop.mapping(R"({"name": "Sim A", "files": [
            {"source": "one", "destination": "a/one"}, {"source": "two", "destination": "b/two"}],
            "config": {"path": "V/dll.xml", "remove": {"files": [
            {"root": "8", "path": "/extra"}]}}})",
                               shop.path("A"));
        shop.controller().autoInstall({a}, true, ScanController::ModeNone);
        QCOMPARE(Tests::treeOf(shop.path("A")).keys().join(u' '),
                 QStringLiteral("a/ a/one b/ b/two"));
        QCOMPARE(readFile(shop.path("A/a/one")), QByteArray("new"));
        QVERIFY(!QFile::exists(shop.path("home/extra")));
        const QString order = shop.backups().join(u' ');
        QVERIFY(order.contains(QStringLiteral("before_installation")));
        QVERIFY(order.contains(QStringLiteral("before_uninstallation")));
        QCOMPARE(recordedNames(shop), QStringLiteral("Sim A"));
        QVERIFY(shop.boxes().isEmpty());
    }

    void theClearingNeverScansAgain()
    {
        Workshop shop;
        shop.writePayload("x.dll", "new");
        shop.writeCatalogue("[{}]");
        shop.controller().autoInstall({mapping(shop, "A")}, true, ScanController::ModeRepair);
        QCOMPARE(shop.entryCount(), 1);
    }

    void whatCannotBeClearedIsSaidEvenSilently()
    {
        Workshop shop;
        shop.writePayload("x.dll", "new");
        shop.writePayload("y.dll", "new");
        writeFile(shop.path("A/p/x.dll/inside"), "precious");
        auto *a = mapping(shop, "A");
        a->scan->files.insert(QStringLiteral("q/y.dll"), QStringLiteral("y.dll"));
        shop.controller().autoInstall({a}, true, ScanController::ModeNone);
        QCOMPARE(shop.boxes(),
                 QStringList(box(QStringLiteral("Uninstall"),
                                 QStringLiteral("Quillmont Orbwell was not able to uninstall your "
                                                "Orbwell plugin from Sim A.\r\n\r\nPlease see the "
                                                "list below for details:\r\n\r\nUnable to remove "
                                                "file '")
                                     + shop.path("A/p/x.dll")
                                     + QStringLiteral("' from Sim A. Please remove the file "
                                                      "manually.\r\n"))));
        QCOMPARE(readFile(shop.path("A/p/x.dll/inside")), QByteArray("precious"));
        QCOMPARE(readFile(shop.path("A/q/y.dll")), QByteArray("new"));
    }

    void aFailedCopyIsShownByTheNextClearing()
    {
        Workshop shop;
        shop.controller().autoInstall(
            {mapping(shop, "A"), mapping(shop, "B")}, true, ScanController::ModeNone);
        QCOMPARE(shop.boxes().size(), 1);
        QVERIFY(shop.boxes().constFirst().contains(QStringLiteral("plugin from Sim B.")));
        QVERIFY(shop.boxes().constFirst().contains(shop.path("A/p/x.dll")));
        QVERIFY(!shop.boxes().constFirst().contains(shop.path("B/p/x.dll")));
        // B's own line waits for whoever shows it.
        QVERIFY(shop.controller().m_errorMessage.contains(shop.path("B/p/x.dll")));
    }

    void scansAfterEachInstallationOnlyForTheWindowsButton_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("scans");
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("install") << 1 << 0;
        QTest::newRow("uninstall") << 2 << 0;
        QTest::newRow("repair") << 3 << 0;
        QTest::newRow("scan and install") << 4 << 3;
    }

    void scansAfterEachInstallationOnlyForTheWindowsButton()
    {
        QFETCH(int, mode);
        QFETCH(int, scans);
        Workshop shop;
        shop.writePayload("x.dll", "new");
        writeFile(shop.path("D/p/x.dll"), "complete");
        shop.writeCatalogue("[" + simulator("A") + "," + simulator("B") + "]");
        const QList<FlightSimulatorMapping *> list{
            mapping(shop, "A"), mapping(shop, "B"), mapping(shop, "C"), mapping(shop, "D")};
        const int before = shop.entryCount();
        int scansWhileOpen = -1;
        QStringList rows;
        shop.answerer.whileOpen([&] {
            scansWhileOpen = (shop.entryCount() - before) / 2;
            rows = shop.rowNames();
        });
        shop.controller().autoInstall(
            list, false, static_cast<ScanController::InstallationMode>(mode));
        QCOMPARE(scansWhileOpen, scans);
        QCOMPARE((shop.entryCount() - before) / 2, scans);
        QCOMPARE(rows.size(), scans > 0 ? 2 : 0);
        QCOMPARE(shop.boxes(), QStringList(installedBox(QStringLiteral(" Sim A Sim B Sim C"))));
        QCOMPARE(recordedNames(shop), QStringLiteral("Sim A|Sim B|Sim C|Sim D"));
    }

    void silentlyDoesAllTheSame()
    {
        Workshop shop;
        shop.writePayload("x.dll", "new");
        writeFile(shop.path("B/p/x.dll"), "complete");
        shop.controller().autoInstall(
            {mapping(shop, "A"), mapping(shop, "B")}, true, ScanController::ModeScanAndInstall);
        QVERIFY(shop.boxes().isEmpty());
        QCOMPARE(recordedNames(shop), QStringLiteral("Sim A|Sim B"));
        // For A by the removal, by the installation and once more; for B once.
        QCOMPARE(shop.log.debugLines().filter(QStringLiteral("mapping path: ")).size(), 4);
        verifyLauncherPath(shop);
        shop.controller().autoInstall({}, true, ScanController::ModeInstall);
        QVERIFY(shop.boxes().isEmpty());
    }

    void theLauncherPathLiesBesideTheSettings()
    {
        Workshop shop;
        shop.sandbox.setVariable("HOME", QFile::encodeName(shop.path("Vellum/Vellum home")));
        shop.controller().autoInstall({}, true, ScanController::ModeNone);
        const auto disk = shop.disk();
        QStringList found;
        for (auto it = disk.cbegin(); it != disk.cend(); ++it) {
            if (it.key().endsWith(QLatin1String("/.path")))
                found.append(it.key());
        }
        QCOMPARE(found.size(), 1);
        QVERIFY2(found.constFirst().startsWith(QLatin1String("Orbwell/Orbwell home/")),
                 qPrintable(found.constFirst()));
        QVERIFY(found.constFirst().endsWith(QLatin1String("/Quillmont/Orbwell/.path")));
    }

    void anOldLauncherPathIsReplaced()
    {
        Workshop shop;
        writeFile(launcherPath(shop), QByteArray(5000, 'x'));
        shop.controller().autoInstall({}, true, ScanController::ModeNone);
        verifyLauncherPath(shop);
    }

    void aLauncherPathThatCannotBeWrittenIsNotReported()
    {
        Workshop shop;
        shop.controller();
        writeFile(launcherPath(shop) + QStringLiteral("/inside"), "precious");
        const auto disk = shop.disk();
        shop.controller().autoInstall({}, true, ScanController::ModeNone);
        QCOMPARE(shop.disk(), disk);
        QVERIFY(shop.boxes().isEmpty());
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
    }

private:
    static QString launcherPath(const Workshop &shop)
    {
        return shop.dataPath("Quillmont/Orbwell/.path");
    }

    static void verifyLauncherPath(const Workshop &shop)
    {
        QCOMPARE(QString::fromUtf8(readFile(launcherPath(shop))),
                 QCoreApplication::applicationDirPath() + QStringLiteral("/QuillmontOrbwell.exe"));
    }

    static QString recordedNames(const Workshop &shop)
    {
        QStringList names;
        const auto records = shop.record();
        for (const auto &record : records)
            names.append(record.toObject().value(QStringLiteral("name")).toString());
        return names.join(u'|');
    }
};

QTEST_MAIN(TestAutoInstallation)
#include "tst_AutoInstallation.moc"
