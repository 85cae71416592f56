#include "tests/Catalogue/Catalogues.h"
#include "tests/EndToEnd/Mounts.h"
#include "tests/EndToEnd/PilotsHome.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QJsonArray>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

using namespace Tests;

Q_DECLARE_METATYPE(Tests::PilotsSteam)

namespace {

using Tree = QMap<QString, QByteArray>;

QString packagedFlightGear()
{
    return QStringLiteral("/usr/local/share/flightgear");
}

bool hasFlightGear()
{
    const auto places = {"/usr/share/games/flightgear",
                         "/usr/share/games/FlightGear",
                         "/usr/share/flightgear",
                         "/usr/local/share/flightgear"};
    return std::any_of(places.begin(), places.end(), [](const char *place) {
        return QFile::exists(QLatin1String(place));
    });
}

} // namespace

class TestPilotsComputer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void listsItsSimulatorsInOrder();
    void getsThePluginInOneGo();
    void isRestoredByUninstallingEach();
    void changesOnlyInItsSimulatorsFolders_data();
    void changesOnlyInItsSimulatorsFolders();
    void findsAPackagedFlightGear();
    void showsAnUpgradedXPlaneOnce();

private:
    void start();
    void scanAndInstall();
    void remove(const QString &simulator);
    QStringList shown();
    void use(const PilotsSteam &steam = {});
    void use(const QString &flightGear, const PilotsSteam &steam = {});
    void placeDataRoot(const QString &place, bool isLink);
    Tree disk() const;
    QString keyOf(const QString &path) const;
    void addPlugin(Tree &tree, const QMap<QString, QString> &folders) const;

    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Program> m_program;
    QScopedPointer<PilotsHome> m_home;
};

void TestPilotsComputer::initTestCase()
{
#ifndef Q_OS_LINUX
    QSKIP("a Linux computer: Proton, and X-Plane's list where it lies there");
#endif
}

void TestPilotsComputer::init()
{
    m_sandbox.reset(new Sandbox);
    m_program.reset(new Program(*m_sandbox));
}

void TestPilotsComputer::cleanup()
{
    m_home.reset();
    m_program.reset();
    m_sandbox.reset();
}

void TestPilotsComputer::use(const PilotsSteam &steam)
{
    use(m_sandbox->path(QStringLiteral("usr/share/games/flightgear")), steam);
}

void TestPilotsComputer::use(const QString &flightGear, const PilotsSteam &steam)
{
    m_home.reset(new PilotsHome(*m_sandbox, flightGear, steam));
    // Checked first, so that a real FlightGear on this computer is not used.
    m_program->setVariable("FG_ROOT", flightGear);
}

void TestPilotsComputer::placeDataRoot(const QString &place, bool isLink)
{
    const QString usual = m_sandbox->dataRoot().chopped(1);
    const QString folder = place.isEmpty() ? usual : m_sandbox->path(place);
    QDir().mkpath(folder);
    QDir().mkpath(QFileInfo(usual).path());
    if (isLink)
        QVERIFY(QFile::link(folder, usual));
    else if (!place.isEmpty())
        m_program->setVariable("XDG_DATA_HOME", folder);
}

void TestPilotsComputer::start()
{
    writeFile(m_program->folder() + QStringLiteral("/flightsims.json"), shippedCatalogue());
    const auto payload = treeOf(payloadFolder());
    for (auto it = payload.begin(); it != payload.end(); ++it) {
        if (!it.key().endsWith(u'/'))
            writeFile(m_program->folder() + QStringLiteral("/plugins/") + it.key(), it.value());
    }
    m_program->start();
    m_program->window();
}

// Everything except the program's own files and the backups, which are kept.
Tree TestPilotsComputer::disk() const
{
    Tree disk = treeOf(m_sandbox->root());
    for (const QString &path : disk.keys()) {
        const bool isOurs = path.contains(QLatin1String("/Quillmont/"))
            || path.contains(QRegularExpression(QStringLiteral("^(program|runtime|home/.cache)/")));
        if (isOurs || path.endsWith(QLatin1String(".bak")))
            disk.remove(path);
    }
    return disk;
}

QString TestPilotsComputer::keyOf(const QString &path) const
{
    const QDir root(QFileInfo(m_sandbox->root()).canonicalFilePath());
    const QFileInfo folder(QFileInfo(path).path());
    return root.relativeFilePath(folder.canonicalFilePath()) + u'/' + QFileInfo(path).fileName();
}

// Adds the catalogue's files for each simulator's folder.
void TestPilotsComputer::addPlugin(Tree &tree, const QMap<QString, QString> &folders) const
{
    const QJsonArray entries = entriesOf(shippedCatalogue());
    for (const QJsonValue &entry : entries) {
        const QString folder = folders.value(entry[QLatin1String("name")].toString());
        const QJsonArray files
            = folder.isEmpty() ? QJsonArray() : entry[QLatin1String("files")].toArray();
        for (const QJsonValue &file : files) {
            QString path = folder + u'/' + file[QLatin1String("destination")].toString();
            tree.insert(
                keyOf(path),
                readFile(payloadFolder() + u'/' + file[QLatin1String("source")].toString()));
            for (path = QFileInfo(path).path(); path != folder; path = QFileInfo(path).path())
                tree.insert(keyOf(path) + u'/', {});
        }
    }
}

// Name and folder of each row, from the top.
QStringList TestPilotsComputer::shown()
{
    QStringList rows;
    const auto seen = m_program->rows();
    for (const SeenRow &row : seen)
        rows.append(row.path.isEmpty() ? row.name : row.name + QStringLiteral(": ") + row.path);
    return rows;
}

void TestPilotsComputer::scanAndInstall()
{
    m_program->press(QStringLiteral("Scan & Install"));
    QCOMPARE(m_program->box().text,
             QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to  "
                            "X-Plane 12 X-Plane 11 Microsoft Flight Simulator X: Steam Edition "
                            "FlightGear."));
    m_program->press(QStringLiteral("OK"));
    m_program->window();
}

void TestPilotsComputer::remove(const QString &simulator)
{
    m_program->pressAction(simulator);
    QCOMPARE(m_program->box().text,
             QStringLiteral("Quillmont Orbwell for %1 has been uninstalled successfully.")
                 .arg(simulator));
    m_program->press(QStringLiteral("OK"));
    m_program->window();
}

void TestPilotsComputer::listsItsSimulatorsInOrder()
{
    use();
    start();
    QCOMPARE(
        shown(),
        QStringList({QLatin1String("X-Plane 12: ") + m_home->xplane12(),
                     QLatin1String("X-Plane 11: ") + m_home->xplane11(),
                     QLatin1String("Microsoft Flight Simulator X: Steam Edition: ") + m_home->fsx(),
                     QLatin1String("FlightGear: ") + m_home->flightGear(),
                     QStringLiteral("X-Plane 10"),
                     QStringLiteral("Microsoft Flight Simulator 2024"),
                     QStringLiteral("Microsoft Flight Simulator 2020"),
                     QStringLiteral("Aerofly FS 4")}));
    QStringList icons;
    const auto rows = m_program->rows();
    for (const SeenRow &row : rows)
        icons.append(row.icon.section(u'-', 0, 0));
    QCOMPARE(icons.join(u' '), QStringLiteral("check check check check minus minus minus minus"));
}

void TestPilotsComputer::getsThePluginInOneGo()
{
    use();
    start();
    scanAndInstall();
    // The README's picture of this computer is taken here.
    if (qEnvironmentVariableIsSet("ORBWELL_PICTURE"))
        m_program->grab(qEnvironmentVariable("ORBWELL_PICTURE"));
    QCOMPARE(m_program->row(QStringLiteral("X-Plane 12")).icon, QStringLiteral("check-green"));
    for (const QString &xplane : {m_home->xplane12(), m_home->xplane11()}) {
        for (const char *library : {"lin.xpl", "mac.xpl", "win.xpl"}) {
            const QString file = QStringLiteral("64/") + QLatin1String(library);
            QCOMPARE(readFile(xplane + QStringLiteral("/Resources/plugins/Orbwell/") + file),
                     readFile(payloadFolder() + QLatin1String("/X-Plane/") + file));
        }
    }
    QVERIFY(
        QFile::exists(m_home->flightGear() + QStringLiteral("/Protocol/quillmont-orbwell.xml")));
    QVERIFY(QFile::exists(m_home->fsx() + QStringLiteral("/Modules/QuillmontOrbwell.dll")));

    const QByteArray list = readFile(m_home->dllXml());
    QCOMPARE(list.count("<Launch.Addon>\r\n"), 7);
    QVERIFY(list.endsWith("  <Launch.Addon>\r\n"
                          "    <Name>Quillmont Orbwell</Name>\r\n"
                          "    <Disabled>False</Disabled>\r\n"
                          "    <ManualLoad>False</ManualLoad>\r\n"
                          "    <Path>Modules\\QuillmontOrbwell.dll</Path>\r\n"
                          "  </Launch.Addon>\r\n"
                          "</SimBase.Document>"));
    QVERIFY(!backupsOf(m_home->dllXml(), QStringLiteral("installation")).isEmpty());
}

void TestPilotsComputer::isRestoredByUninstallingEach()
{
    use();
    const auto before = m_home->trees();
    start();
    scanAndInstall();
    QVERIFY(m_home->trees() != before);
    for (const char *simulator : {"X-Plane 12",
                                  "X-Plane 11",
                                  "Microsoft Flight Simulator X: Steam Edition",
                                  "FlightGear"}) {
        remove(QLatin1String(simulator));
        QCOMPARE(m_program->row(QLatin1String(simulator)).icon, QStringLiteral("check-grey"));
    }
    QCOMPARE(m_home->trees(), before);
    QVERIFY(!backupsOf(m_home->dllXml(), QStringLiteral("uninstallation")).isEmpty());
}

void TestPilotsComputer::changesOnlyInItsSimulatorsFolders_data()
{
    QTest::addColumn<PilotsSteam>("steam");
    QTest::addColumn<QString>("dataRoot"); // empty: the default
    QTest::addColumn<bool>(
        "isLink"); // a link to it at the default path; otherwise $XDG_DATA_HOME names it
    const auto row = [](const char *name,
                        const PilotsSteam &steam,
                        const QString &dataRoot = {},
                        bool isLink = false) {
        QTest::newRow(name) << steam << dataRoot << isLink;
    };
    const auto all = [](const QString &root) {
        return PilotsSteam{root, root, root};
    };
    const QString native = PilotsSteam().root;
    const QString debian = QStringLiteral("home/.steam/debian-installation");
    const QString flatpak
        = QStringLiteral("home/.var/app/com.valvesoftware.Steam/.local/share/Steam");
    const QString drive = QStringLiteral("media/Spiele \u2013 \u904A\u6232/Steam");
    const QString share = QStringLiteral("media/share");
    row("a native Steam", all(native));
    row("Debian's own Steam", all(debian));
    row("Flatpak", all(flatpak));
    row("Snap", all(QStringLiteral("home/snap/steam/common/.local/share/Steam")));
    row("a second drive", {native, drive, drive});
    row("prefixes in another library", {flatpak, drive, flatpak});
    row("no prefix", {debian, drive, {}});
    row("a data root that is a link", all(native), share, true);
    row("a data root that is a link, and Debian's own Steam", {debian, drive, debian}, share, true);
    row("a data root elsewhere", {debian, drive, drive}, share);
}

void TestPilotsComputer::changesOnlyInItsSimulatorsFolders()
{
    QFETCH(PilotsSteam, steam);
    QFETCH(QString, dataRoot);
    QFETCH(bool, isLink);
    placeDataRoot(dataRoot, isLink);
    use(steam);
    m_home->addNewerSimulators();
    QMap<QString, QString> folders{
        {QStringLiteral("X-Plane 12"), m_home->xplane12()},
        {QStringLiteral("X-Plane 11"), m_home->xplane11()},
        {QStringLiteral("Microsoft Flight Simulator X: Steam Edition"), m_home->fsx()},
        {QStringLiteral("FlightGear"), m_home->flightGear()}};
    if (!steam.prefixes.isEmpty()) {
        folders.insert(QStringLiteral("Aerofly FS 4"), m_home->aerofly());
        folders.insert(QStringLiteral("Microsoft Flight Simulator 2020"), m_home->packages());
        folders.insert(QStringLiteral("Microsoft Flight Simulator 2024"), m_home->packages());
    }
    const auto before = disk();

    start();
    const auto rows = m_program->rows();
    for (const SeenRow &row : rows)
        QCOMPARE(row.path, folders.value(row.name));
    m_program->press(QStringLiteral("Scan & Install"));
    m_program->box();
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    auto expected = before;
    addPlugin(expected, folders);
    if (!steam.prefixes.isEmpty()) {
        const QByteArray list = readFile(m_home->dllXml());
        QCOMPARE(list.count("<Name>Quillmont Orbwell</Name>"), 2); // one is a comment
        expected.insert(keyOf(m_home->dllXml()), list);
        QVERIFY(!backupsOf(m_home->dllXml(), QStringLiteral("installation")).isEmpty());
    }
    QCOMPARE(disk().keys(), expected.keys());
    QCOMPARE(disk(), expected);

    for (auto it = folders.keyBegin(); it != folders.keyEnd(); ++it)
        remove(*it);
    QCOMPARE(disk().keys(), before.keys());
    QCOMPARE(disk(), before);
}

void TestPilotsComputer::findsAPackagedFlightGear()
{
    // Nobody but this process and its children sees what is mounted here.
    Mounts::separate();
    Mounts packages;
    if (hasFlightGear() || !packages.addDisk(QStringLiteral("/usr/local/share"), 8192))
        QSKIP("needs root, and a computer without FlightGear");
    use(packagedFlightGear());
    m_program->setVariable("FG_ROOT", QString());
    start();
    QCOMPARE(m_program->row(QStringLiteral("FlightGear")).path, packagedFlightGear());
    const auto before = m_home->trees();
    scanAndInstall();
    QVERIFY(
        QFile::exists(packagedFlightGear() + QStringLiteral("/Protocol/quillmont-orbwell.xml")));
    remove(QStringLiteral("X-Plane 12"));
    remove(QStringLiteral("X-Plane 11"));
    remove(QStringLiteral("Microsoft Flight Simulator X: Steam Edition"));
    remove(QStringLiteral("FlightGear"));
    QCOMPARE(m_home->trees(), before);
}

void TestPilotsComputer::showsAnUpgradedXPlaneOnce()
{
    use();
    // X-Plane 11 by its name and by a list, but X-Plane 12 by its content.
    const QString folder = m_sandbox->path(QStringLiteral("games/X-Plane 11"));
    PilotsHome::makeXPlane(folder, 12);
    for (const char *list : {"11", "12"})
        writeFile(m_sandbox->home()
                      + QStringLiteral("/.x-plane/x-plane_install_%1.txt").arg(QLatin1String(list)),
                  folder.toUtf8());
    QVERIFY(QDir(m_home->xplane11()).removeRecursively());
    start();
    QCOMPARE(m_program->row(QStringLiteral("X-Plane 12")).path, folder);
    QCOMPARE(m_program->row(QStringLiteral("X-Plane 11")).path, QString());
    QCOMPARE(m_program->row(QStringLiteral("X-Plane 11")).icon, QStringLiteral("minus-grey"));
}

QTEST_GUILESS_MAIN(TestPilotsComputer)
#include "tst_PilotsComputer.moc"
