#include "tests/ViewControllers/Workshop.h"

#include "Controllers/UserFiles.h"
#include "Library/Models/XmlInsertionModel.h"

#include <QDir>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

using namespace Tests;
using Quillmont::Utility::Controllers::userDataRoot;

namespace {

constexpr auto prefix = "/steamapps/compatdata/4711/pfx";

// A catalogue whose one simulator has its configuration in a game's prefix.
QByteArray catalogue(const QByteArray &conflict = {})
{
    return R"([{"name": "Kestrel", "location": 1, "path": "$ROOT/Kestrel",
        "files": [{"source": "x", "destination": "x"}],
        "config": {"steam": 4711, "path": "drive_c\\Roaming/launch.xml", "parent": "Launch.Addon",
            "values": [{"key": "Name", "value": "Quillmont Orbwell"}],
            "remove": {"delete_parent": true, "files": [{"root": "8", "path": "/extra"}]}})"
        + conflict + "}]";
}

QStringList paths(const QMap<QString, QByteArray> &tree)
{
    QStringList paths;
    for (auto it = tree.keyBegin(); it != tree.keyEnd(); ++it) {
        if (!it->contains(QLatin1String("Quillmont")))
            paths.append(*it);
    }
    return paths;
}

void prepare(Workshop &shop, const QByteArray &steam)
{
    shop.folder("Kestrel");
    shop.folder(steam + prefix + "/drive_c");
    shop.writePayload("x", "x");
    shop.writeCatalogue(catalogue());
}

} // namespace

class TestSteamPrefix : public QObject
{
    Q_OBJECT

private slots:

    void initTestCase()
    {
#ifndef Q_OS_LINUX
        QSKIP("Proton runs on Linux only");
#endif
    }

    void editsOnlyTheFileInThePrefix_data()
    {
        QTest::addColumn<QByteArray>("steam"); // the root of Steam, in the sandbox
        QTest::addColumn<QByteArray>("dataRoot"); // the data root's real path
        QTest::addColumn<bool>("isLink"); // or $XDG_DATA_HOME
        QTest::addColumn<QString>("way"); // the expected relative path; empty if any will do
        const QByteArray usual = "home/.local/share";
        const auto row = [](const char *name,
                            const QByteArray &steam,
                            const QByteArray &dataRoot,
                            bool isLink,
                            const char *way) {
            QTest::newRow(name) << steam << dataRoot << isLink << QString::fromLatin1(way);
        };
        row("below the data root",
            "home/.local/share/Steam",
            usual,
            false,
            "Steam/steamapps/compatdata/4711/pfx/drive_c/Roaming/launch.xml");
        row("beside the data root", "home/.steam/debian-installation", usual, false, "");
        row("the data root is elsewhere", "home/.steam/root", "far/away/and/deep", false, "");
        row("the data root is elsewhere, and contains it",
            "far/share/Steam",
            "far/share",
            false,
            "Steam/steamapps/compatdata/4711/pfx/drive_c/Roaming/launch.xml");
        row("the data root is a link to a folder less deep", "home/.steam/root", "share", true, "");
        row("the data root is a link to a deeper folder",
            "home/.steam/root",
            "far/away/and/much/deeper/than/that/share",
            true,
            "");
        row("the data root is a link, and contains it",
            "share/Steam",
            "share",
            true,
            "Steam/steamapps/compatdata/4711/pfx/drive_c/Roaming/launch.xml");
    }

    void editsOnlyTheFileInThePrefix()
    {
        QFETCH(QByteArray, steam);
        QFETCH(QByteArray, dataRoot);
        QFETCH(bool, isLink);
        QFETCH(QString, way);
        Workshop shop;
        const QString usual = shop.folder("home/.local") + QStringLiteral("/share");
        if (isLink)
            QVERIFY(QFile::link(shop.folder(dataRoot), usual));
        else if (dataRoot != "home/.local/share")
            shop.sandbox.setVariable("XDG_DATA_HOME", QFile::encodeName(shop.folder(dataRoot)));
        prepare(shop, steam);
        shop.controller();
        const auto before = shop.disk();

        shop.controller().startScan(false, true, ScanController::ModeNone);
        auto *mapping = shop.controller().mappings.constFirst();
        if (!way.isEmpty())
            QCOMPARE(mapping->scan->config->path, way);
        const QString file = shop.path(steam + prefix + "/drive_c/Roaming/launch.xml");
        QVERIFY(readFile(file).contains("Quillmont Orbwell"));
        // The path from the data root, as the system resolves it.
        QVERIFY(QFile::exists(userDataRoot() + mapping->scan->config->path));
        auto after = before;
        const QString inside = QString::fromLatin1(steam + prefix);
        for (const QString &made : {QStringLiteral("Kestrel/x"),
                                    inside + QStringLiteral("/drive_c/Roaming/"),
                                    inside + QStringLiteral("/drive_c/Roaming/launch.xml")})
            after.insert(made, {});
        QCOMPARE(paths(shop.disk()), paths(after));

        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QVERIFY(!readFile(file).contains("Quillmont Orbwell"));
        QCOMPARE(shop.backups().size(), 1);
        QVERIFY(shop.backups().constFirst().startsWith(file));
    }

    void usesAnExistingFileInOtherLetterCase()
    {
        Workshop shop;
        prepare(shop, "home/.steam/root");
        const QString inside = shop.path("home/.steam/root" + QByteArray(prefix));
        QVERIFY(QDir().rmdir(inside + QStringLiteral("/drive_c")));
        const QString file = inside + QStringLiteral("/Drive_C/roaming/Launch.XML");
        writeFile(file, "<SimBase.Document>\n</SimBase.Document>\n");
        shop.controller().startScan(false, true, ScanController::ModeNone);
        QVERIFY(readFile(file).contains("Quillmont Orbwell"));
        QCOMPARE(
            paths(shop.disk()).filter(QRegularExpression(QStringLiteral("(?i)\\.xml$"))).size(), 1);
    }

    void ignoresLeftoversInOtherLetterCase_data()
    {
        QTest::addColumn<QByteArray>("steam");
        QTest::addColumn<QByteArray>("leftover");
        for (const char *steam : {"home/.local/share/Steam", "home/.steam/root"}) {
            QTest::addRow("an old steamapps in %s", steam)
                << QByteArray(steam) << QByteArray(prefix).replace("steamapps", "SteamApps");
            QTest::addRow("a folder in the prefix in %s", steam)
                << QByteArray(steam) << QByteArray(prefix);
        }
    }

    // As Wine does it: an exact folder name has priority, even if the file is not in it.
    void ignoresLeftoversInOtherLetterCase()
    {
        QFETCH(QByteArray, steam);
        QFETCH(QByteArray, leftover);
        Workshop shop;
        prepare(shop, steam);
        shop.folder(steam + prefix + "/drive_c/Roaming");
        const QString other = shop.path(steam + leftover + "/drive_c/roaming/LAUNCH.XML");
        const QByteArray document = "<SimBase.Document>\n</SimBase.Document>\n";
        writeFile(other, document);
        shop.controller().startScan(false, true, ScanController::ModeNone);
        const QString file = shop.path(steam + prefix + "/drive_c/Roaming/launch.xml");
        QVERIFY(QFile::exists(file));
        QVERIFY(readFile(file).contains("Quillmont Orbwell"));
        QCOMPARE(readFile(other), document);
    }

    void copiesOnlyFilesWithoutAPrefix_data()
    {
        QTest::addColumn<QByteArray>("game");
        QTest::newRow("the game has no prefix") << QByteArray("4712");
        QTest::newRow("the app id is a string") << QByteArray("\"4711\"");
        QTest::newRow("the app id is invalid") << QByteArray("-4711");
    }

    void copiesOnlyFilesWithoutAPrefix()
    {
        QFETCH(QByteArray, game);
        Workshop shop;
        prepare(shop, "home/.local/share/Steam");
        shop.writeCatalogue(
            catalogue()
                .replace("4711", game)
                .replace(R"([{"source")", R"([{"source": "x", "destination": "y"}, {"source")"));
        shop.controller();
        writeFile(shop.sandbox.home() + QStringLiteral("/extra"), "");
        auto disk = shop.disk();
        shop.controller().startScan(false, false, ScanController::ModeNone);
        shop.controller().startScan(false, true, ScanController::ModeNone);
        auto *mapping = shop.controller().mappings.constFirst();
        disk.insert(QStringLiteral("Kestrel/x"), {});
        disk.insert(QStringLiteral("Kestrel/y"), {});
        disk.remove(QStringLiteral("home/extra")); // removed before the installation
        QCOMPARE(paths(shop.disk()), paths(disk));
        QCOMPARE(shop.record().size(), 1);
        QCOMPARE(mapping->scan->config->path, QString());

        writeFile(shop.sandbox.home() + QStringLiteral("/extra"), "");
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        disk.remove(QStringLiteral("Kestrel/x"));
        disk.remove(QStringLiteral("Kestrel/y"));
        disk.remove(QStringLiteral("Kestrel/"));
        QCOMPARE(paths(shop.disk()), paths(disk));
        QVERIFY(shop.record().isEmpty());
        QCOMPARE(shop.log.actions().filter(QStringLiteral("no Proton prefix")),
                 QVector<QString>(3,
                                  QStringLiteral("no Proton prefix, so no configuration file to "
                                                 "edit: \"Kestrel\""))
                     .toList());
        QVERIFY(!shop.log.hasDebugLineWith(QStringLiteral("hit reg search")));
        QVERIFY(!shop.log.hasDebugLineWith(QStringLiteral("file backups")));
    }

    void isSearchedInEachScanAndNeverCreated()
    {
        Workshop shop;
        prepare(shop, "home/.local/share/Steam");
        QVERIFY(QDir().rmdir(shop.dataPath("Steam/steamapps/compatdata/4711/pfx/drive_c")));
        shop.controller().startScan(false, true, ScanController::ModeNone);
        QCOMPARE(shop.controller().mappings.constFirst()->scan->config->path, QString());
        shop.folder("home/.steam/root" + QByteArray(prefix) + "/drive_c");
        shop.controller().startScan(false, true, ScanController::ModeNone);
        auto *mapping = shop.controller().mappings.constFirst();
        QVERIFY(!mapping->scan->config->path.isEmpty());

        QVERIFY(QDir(shop.path("home/.steam/root")).removeRecursively());
        QVERIFY(shop.controller().install(mapping, true, false));
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QVERIFY(!QFile::exists(shop.path("home/.steam/root")));
    }

    void toleratesADataRootWithoutATrailingSlash()
    {
        const QString usual = QGuiApplication::applicationDisplayName();
        QGuiApplication::setApplicationDisplayName(QStringLiteral("no folder's name"));
        const auto reset
            = qScopeGuard([usual] { QGuiApplication::setApplicationDisplayName(usual); });
        Workshop shop;
        prepare(shop, "home/.steam/root");
        shop.controller().startScan(false, true, ScanController::ModeNone);
        QVERIFY(readFile(shop.path("home/.steam/root" + QByteArray(prefix)
                                   + "/drive_c/Roaming/launch.xml"))
                    .contains("Quillmont Orbwell"));
    }

    void hasNoFileWithoutAPath()
    {
        Workshop shop;
        prepare(shop, "home/.steam/root");
        shop.writeCatalogue(catalogue().replace(R"("path": "drive_c\\Roaming/launch.xml", )", ""));
        shop.controller().startScan(false, true, ScanController::ModeNone);
        QVERIFY(!shop.log.hasDebugLineWith(QStringLiteral("hit reg search")));
    }

    // On this file system, a folder in other letter case is another folder.
    void usesNoFileInAnotherPrefix()
    {
        Workshop shop;
        prepare(shop, "home/.local/share/Steam");
        const QByteArray file = QByteArray(prefix) + "/drive_c/Roaming/launch.xml";
        const QByteArray foreign = "<SimBase.Document>\n</SimBase.Document>\n";
        writeFile(shop.dataPath("STEAM" + file), foreign);
        shop.controller().startScan(false, true, ScanController::ModeNone);
        QVERIFY(readFile(shop.dataPath("Steam" + file)).contains("Quillmont Orbwell"));
        QCOMPARE(readFile(shop.dataPath("STEAM" + file)), foreign);
    }

    void isKnownForAFolderChosenLater()
    {
        Workshop shop;
        prepare(shop, "home/.steam/root");
        QVERIFY(QDir().rmdir(shop.path("Kestrel")));
        shop.controller().startScan(false, true, ScanController::ModeNone);
        auto *mapping = shop.controller().mappings.constFirst();
        QCOMPARE(mapping->path, QString());
        mapping->path = shop.folder("chosen");
        QVERIFY(shop.controller().install(mapping, true, false));
        QVERIFY(readFile(shop.path("home/.steam/root" + QByteArray(prefix)
                                   + "/drive_c/Roaming/launch.xml"))
                    .contains("Quillmont Orbwell"));
    }

    void resolvesASolutionAgainstTheDataRoot_data()
    {
        QTest::addColumn<QByteArray>("steam");
        QTest::newRow("with a prefix") << QByteArray("home/.steam/root");
        QTest::newRow("without a prefix") << QByteArray("elsewhere");
    }

    void resolvesASolutionAgainstTheDataRoot()
    {
        QFETCH(QByteArray, steam);
        Workshop shop;
        prepare(shop, steam);
        const QByteArray conflict = R"(, "conflict": {"name": "g", "solution": "Lark/launch.xml"})";
        const QByteArray other = R"(, {"config": null, "conflict": {"name": "g"}}])";
        shop.writeCatalogue(catalogue(conflict).chopped(1) + other);
        shop.controller().startScan(false, true, ScanController::ModeNone);
        QVERIFY(readFile(shop.dataPath("Lark/launch.xml")).contains("Quillmont Orbwell"));
        QVERIFY(QDir(shop.path(steam + prefix + "/drive_c")).isEmpty());

        QVERIFY(QDir(shop.path(steam)).removeRecursively());
        auto *mapping = shop.controller().mappings.constLast();
        QCOMPARE(mapping->scan->name, QStringLiteral("Kestrel"));
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QVERIFY(!readFile(shop.dataPath("Lark/launch.xml")).contains("Quillmont Orbwell"));
    }

    void isFoundWhileTheDataRootIsMissing()
    {
        Workshop shop;
        prepare(shop, "home/.steam/root");
        shop.controller();
        const QString local = shop.path("home/.local");
        QVERIFY(QDir(local).removeRecursively());
        shop.controller().startScan(false, false, ScanController::ModeNone);
        auto *mapping = shop.controller().findChild<FlightSimulatorMapping *>();
        shop.controller().installToFlightSim(mapping);
        const QString file
            = shop.path("home/.steam/root" + QByteArray(prefix) + "/drive_c/Roaming/launch.xml");
        QVERIFY(QFile::exists(file));
        QVERIFY(readFile(file).contains("Quillmont Orbwell"));
        QVERIFY(!QFile::exists(local));
    }
};

QTEST_MAIN(TestSteamPrefix)
#include "tst_SteamPrefix.moc"
