#include "Models/FlightSimulatorMapping.h"

#include "Models/FlightSimScan.h"
#include "tests/support/Files.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCatcher.h"

#include <QDir>
#include <QJsonArray>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>

using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using namespace Tests;

namespace {

QJsonObject entryWithFiles(const QStringList &destinations)
{
    QJsonArray files;
    for (const QString &destination : destinations)
        files.append(QJsonObject{{"destination"_s, destination}});
    return {{"files"_s, files}};
}

} // namespace

class TestFlightSimulatorMapping : public QObject
{
    Q_OBJECT

private slots:

    void changesOnlyItsFolder()
    {
        FlightSimScan scan(nullptr, {});
        FlightSimulatorMapping mapping(&scan, "/a b/ü"_s);
        QCOMPARE(mapping.scan, &scan);
        QCOMPARE(mapping.path, "/a b/ü"_s);
        QCOMPARE(mapping.note, QString());

        mapping.note = "noted"_s;
        mapping.updateFlightSimPath("/new/"_s);
        QCOMPARE(mapping.scan, &scan);
        QCOMPARE(mapping.path, "/new/"_s);
        QCOMPARE(mapping.note, "noted"_s);
    }

    // "$ROOT" is the test's own folder. A present path that ends with "/" is a folder.
    void isInstalledIfEveryFileExists_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QStringList>("destinations");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<bool>("installed");
        const auto row = [](const char *name,
                            const QString &folder,
                            const QStringList &destinations,
                            const QStringList &present,
                            bool installed) {
            QTest::newRow(name) << folder << destinations << present << installed;
        };
        const QString sim = "$ROOT/sim"_s;
        const QStringList two{"a/one.dll"_s, "b.dll"_s};
        row("no folder, no files", {}, {}, {}, false);
        row("no folder, a file in the root directory", {}, {"etc"_s}, {}, false);
        row("no files", sim, {}, {"sim/"_s}, true);
        row("no files, folder gone", sim, {}, {}, true);
        row("none of two files", sim, two, {}, false);
        row("the first of two", sim, two, {"sim/a/one.dll"_s}, false);
        row("the second of two", sim, two, {"sim/b.dll"_s}, false);
        row("both", sim, two, {"sim/a/one.dll"_s, "sim/b.dll"_s}, true);
        row("a folder in place of a file", sim, {"b.dll"_s}, {"sim/b.dll/"_s}, true);
        row("empty destination", sim, {QString()}, {"sim/"_s}, true);
        row("empty destination, folder gone", sim, {QString()}, {}, false);
        row("a trailing slash", sim + u'/', {"b.dll"_s}, {"sim/b.dll"_s}, true);
        row("non-ASCII names",
            "$ROOT/Símulátor 飛行 %1"_s,
            {"плагин.dll"_s},
            {"Símulátor 飛行 %1/плагин.dll"_s},
            true);
    }

    void isInstalledIfEveryFileExists()
    {
        QFETCH(QString, folder);
        QFETCH(const QStringList, destinations);
        QFETCH(const QStringList, present);
        const QTemporaryDir root;
        for (const QString &path : present) {
            if (path.endsWith(u'/'))
                QDir(root.path()).mkpath(path);
            else
                writeFile(root.filePath(path), "x");
        }
        FlightSimScan scan(nullptr, entryWithFiles(destinations));
        const FlightSimulatorMapping mapping(&scan, folder.replace("$ROOT"_s, root.path()));
        const LogCatcher log;
        QTEST(mapping.isAddonInstalled(), "installed");
        QCOMPARE(log.warnings() + log.debugLines(), QStringList());
    }

    void checksTheDiskEachTime()
    {
        const QTemporaryDir folder;
        FlightSimScan scan(nullptr, entryWithFiles({"b.dll"_s}));
        const FlightSimulatorMapping mapping(&scan, folder.path());
        QVERIFY(!mapping.isAddonInstalled());
        writeFile(folder.filePath("b.dll"_s), "x");
        QVERIFY(mapping.isAddonInstalled());
        QFile::remove(folder.filePath("b.dll"_s));
        QVERIFY(!mapping.isAddonInstalled());
    }

    void isDeletedWithItsEntry()
    {
        auto scan = std::make_unique<FlightSimScan>(nullptr, QJsonObject());
        const QPointer<FlightSimulatorMapping> mapping
            = new FlightSimulatorMapping(scan.get(), QString());
        QCOMPARE(mapping->parent(), scan.get());
        scan.reset();
        QVERIFY(!mapping);
    }
};

QTEST_GUILESS_MAIN(TestFlightSimulatorMapping)
#include "tst_FlightSimulatorMapping.moc"
