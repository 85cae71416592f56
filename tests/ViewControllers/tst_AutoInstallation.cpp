#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Literals.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

using namespace Tests;

namespace {

using Mappings = QList<FlightSimulatorMapping *>;

// A simulator's name, followed by "+" if it has the plugin, "!" if the payload lacks it, "-" if the
// simulator was not found, or "0" if it was not found and has no plugin files.
FlightSimulatorMapping *mapping(Workshop &shop, const QString &word)
{
    const QByteArray name = word.left(1).toUtf8();
    const QString sign = word.mid(1);
    const bool isFound = sign != "-"_s && sign != "0"_s;
    auto *mapping
        = shop.mapping(Workshop::simulator(name), isFound ? shop.folder(name) : QString());
    if (sign == "+"_s)
        writeFile(shop.path(name + "/p/x"), "complete");
    if (sign == "!"_s)
        mapping->scan->files = {{"p/x"_s, "gone"_s}};
    if (sign == "0"_s)
        mapping->scan->files.clear();
    return mapping;
}

Mappings mappings(Workshop &shop, const QString &words)
{
    Mappings mappings;
    const QStringList all = words.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : all)
        mappings.append(mapping(shop, word));
    return mappings;
}

QString launcherPath(const Workshop &shop)
{
    return shop.dataPath("Quillmont/Orbwell/.path");
}

QByteArray launcher()
{
    return QCoreApplication::applicationDirPath().toUtf8() + "/QuillmontOrbwell.exe";
}

// The records' names and folders, each with the plugin's file there, if it exists.
QString recorded(const Workshop &shop)
{
    QStringList lines;
    const auto records = shop.record();
    for (const auto &record : records) {
        const QString folder = record["path"_s].toString();
        QFile plugin(folder + "/p/x"_s);
        const bool isThere = plugin.open(QIODevice::ReadOnly);
        lines.append(record["name"_s].toString() + " in "_s + folder + ": "_s
                     + (isThere ? QString::fromUtf8(plugin.readAll()) : "none"_s));
    }
    return lines.join(u'|');
}

} // namespace

/// Installs into all simulators at once.
class TestAutoInstallation : public QObject
{
    Q_OBJECT

private slots:

    void installsWhereThePluginIsMissingAndRecordsAllThatHaveIt_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("records");
        const auto row = [](const char *simulators, const QString &box, const QString &records) {
            QTest::newRow(simulators) << box << records;
        };
        row("", noSimulatorBox(), "Sim A in old: none"_s);
        row("C-", allInstalledBox(), "Sim A in old: none"_s);
        row("C0", allInstalledBox(), "Sim A in old: none"_s);
        row("A B+ C-",
            autoInstalledBox({"Sim A"_s}),
            "Sim A in $ROOT/A: new|Sim B in $ROOT/B: complete"_s);
        row("B A",
            autoInstalledBox({"Sim B"_s, "Sim A"_s}),
            "Sim B in $ROOT/B: new|Sim A in $ROOT/A: new"_s);
        row("B+ A+", allInstalledBox(), "Sim B in $ROOT/B: complete|Sim A in $ROOT/A: complete"_s);
        // A failed installation is reported and recorded like any other.
        row("B!", autoInstalledBox({"Sim B"_s}), "Sim A in old: none|Sim B in $ROOT/B: none"_s);
    }

    void installsWhereThePluginIsMissingAndRecordsAllThatHaveIt()
    {
        QFETCH(const QString, box);
        QFETCH(QString, records);
        for (const bool silent : {false, true}) {
            Workshop shop;
            shop.writePayload("x", "new");
            shop.writeRecord(R"([{"name": "Sim A", "path": "old"}])");
            bool isLauncherPathLast = true;
            shop.answerer.whileOpen(
                [&] { isLauncherPathLast = !QFile::exists(launcherPath(shop)); });
            shop.controller().autoInstall(
                mappings(shop, QString::fromUtf8(QTest::currentDataTag())),
                silent,
                silent ? ScanController::ModeScanAndInstall : ScanController::ModeInstall);
            QCOMPARE(shop.boxes(), silent ? QStringList() : QStringList(box));
            QCOMPARE(recorded(shop), QString(records).replace("$ROOT"_s, shop.sandbox.root()));
            QVERIFY(isLauncherPathLast);
            QCOMPARE(readFile(launcherPath(shop)), launcher());
        }
    }

    void namesSimulatorsAsInTheCatalogue()
    {
        Workshop shop;
        shop.writePayload("x", "new");
        const auto all = mappings(shop, "B A"_s);
        all.first()->scan->name = "%1 %0"_s;
        shop.controller().autoInstall(all, false, ScanController::ModeNone);
        QCOMPARE(shop.boxes(), QStringList(autoInstalledBox({"%1 %0"_s, "Sim A"_s})));
    }

    void removesAPartialInstallationFirst()
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
        QCOMPARE(treeOf(shop.path("A")).keys().join(u' '), "a/ a/one b/ b/two"_s);
        QCOMPARE(readFile(shop.path("A/a/one")), QByteArray("new"));
        QVERIFY(!QFile::exists(shop.path("home/extra")));
        const QString backups = shop.backups().join(u' ');
        QVERIFY(backups.contains("before_installation"_s));
        QVERIFY(backups.contains("before_uninstallation"_s));
        QCOMPARE(recorded(shop), "Sim A in "_s + shop.path("A") + ": none"_s);
        QCOMPARE(shop.boxes(), QStringList());
    }

    void reportsEvenSilentlyWhatCannotBeRemoved()
    {
        Workshop shop;
        shop.writePayload("x", "new");
        shop.writePayload("y", "new");
        const QString obstacle = shop.path("A/p/x");
        writeFile(obstacle + "/inside"_s, "precious");
        auto *a = mapping(shop, "A"_s);
        a->scan->files.insert("q/y"_s, "y"_s);
        shop.controller().autoInstall({a}, true, ScanController::ModeNone);
        QCOMPARE(shop.boxes(),
                 QStringList(notUninstalledBox("Sim A"_s, cannotRemove(obstacle, "Sim A"_s))));
        QCOMPARE(readFile(obstacle + "/inside"_s), QByteArray("precious"));
        QCOMPARE(readFile(shop.path("A/q/y")), QByteArray("new"));
    }

    // B's own error line is shown by the next box.
    void showsAFailedCopyWithTheNextRemoval()
    {
        Workshop shop;
        const auto line = [&shop](const QByteArray &name) {
            return cannotCopy(
                Workshop::beside("plugins/gone"), shop.path(name + "/p/x"), shop.path(name + '/'));
        };
        shop.controller().autoInstall(mappings(shop, "A! B!"_s), true, ScanController::ModeNone);
        QCOMPARE(shop.boxes(), QStringList(notUninstalledBox("Sim B"_s, line("A"))));
        QCOMPARE(shop.controller().m_errorMessage, line("B"));
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
        QFETCH(const int, mode);
        QFETCH(const int, scans);
        Workshop shop;
        shop.writePayload("x", "new");
        shop.writeCatalogue('[' + Workshop::simulator("A") + ',' + Workshop::simulator("B") + ']');
        const auto all = mappings(shop, "A B C D+"_s);
        const int before = shop.entryCount();
        QString whileOpen;
        shop.answerer.whileOpen([&] {
            whileOpen = "%1 entries, %2 rows"_s.arg(shop.entryCount() - before)
                            .arg(shop.rowNames().size());
        });
        shop.controller().autoInstall(
            all, false, static_cast<ScanController::InstallationMode>(mode));
        // Each scan adds the catalogue's two entries.
        QCOMPARE(whileOpen, "%1 entries, %2 rows"_s.arg(2 * scans).arg(scans > 0 ? 2 : 0));
        QCOMPARE(shop.entryCount() - before, 2 * scans);
        QCOMPARE(shop.boxes(), QStringList(autoInstalledBox({"Sim A"_s, "Sim B"_s, "Sim C"_s})));
        QCOMPARE(recorded(shop).remove(shop.sandbox.root()),
                 "Sim A in /A: new|Sim B in /B: new|Sim C in /C: new|Sim D in /D: complete"_s);
    }

    void recordsAnInstallationThreeTimes()
    {
        Workshop shop;
        shop.writePayload("x", "new");
        shop.controller().autoInstall(mappings(shop, "A B+"_s), true, ScanController::ModeNone);
        // A is recorded by the removal, by the installation and once more; B once.
        QCOMPARE(shop.log.debugLines().filter("mapping path: "_s).size(), 4);
    }

    void writesTheLauncherPathBesideTheSettings()
    {
        Workshop shop;
        shop.sandbox.setVariable("HOME", QFile::encodeName(shop.path("Vellum/Vellum home")));
        shop.controller().autoInstall({}, true, ScanController::ModeNone);
        const QStringList found = QStringList(shop.disk().keys()).filter("/.path"_s);
        QCOMPARE(found.size(), 1);
        QVERIFY2(found.first().startsWith("Orbwell/Orbwell home/"_s), qPrintable(found.first()));
        QVERIFY(found.first().endsWith("/Quillmont/Orbwell/.path"_s));
    }

    void replacesAnOldLauncherPath()
    {
        Workshop shop;
        writeFile(launcherPath(shop), QByteArray(5000, 'x'));
        shop.controller().autoInstall({}, true, ScanController::ModeNone);
        QCOMPARE(readFile(launcherPath(shop)), launcher());
    }

    void ignoresALauncherPathThatCannotBeWritten()
    {
        Workshop shop;
        shop.controller();
        writeFile(launcherPath(shop) + "/inside"_s, "precious");
        const auto disk = shop.disk();
        shop.controller().autoInstall({}, true, ScanController::ModeNone);
        QCOMPARE(shop.disk(), disk);
        QCOMPARE(shop.boxes(), QStringList());
        QCOMPARE(shop.controller().m_errorMessage, QString());
    }
};

QTEST_MAIN(TestAutoInstallation)
#include "tst_AutoInstallation.moc"
