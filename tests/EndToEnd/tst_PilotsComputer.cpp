#include "tests/Catalogue/Catalogues.h"
#include "tests/EndToEnd/PilotsHome.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

#include <algorithm>

#ifdef Q_OS_LINUX
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>
#endif

using namespace Tests;

namespace {

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

// An empty folder for packaged programs that only this process and its children see. Root alone
// may have one; and where a real FlightGear is installed, nothing may come near it.
bool canPackage()
{
#ifdef Q_OS_LINUX
    static const bool made = geteuid() == 0 && !hasFlightGear() && unshare(CLONE_NEWNS) == 0
        && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && mount("packages", "/usr/local/share", "tmpfs", 0, nullptr) == 0;
    return made;
#else
    return false;
#endif
}

} // namespace

class TestPilotsComputer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void isShownInTheDescribedOrder();
    void getsThePluginInOneGo();
    void isAsBeforeWhenEachIsRemoved();
    void findsAPackagedFlightGear();
    void showsAnUpgradedXPlaneOnce();

private:
    void start();
    void scanAndInstall();
    void remove(const QString &simulator);
    QStringList shown();
    void use(const QString &flightGear);

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
    use(m_sandbox->path(QStringLiteral("usr/share/games/flightgear")));
    // Looked at first, so a FlightGear of the computer that the test runs on is left alone.
    m_program->setVariable("FG_ROOT", m_home->flightGear());
}

void TestPilotsComputer::cleanup()
{
    m_program.reset();
    m_sandbox.reset();
}

void TestPilotsComputer::use(const QString &flightGear)
{
    m_home.reset(new PilotsHome(*m_sandbox, flightGear));
}

void TestPilotsComputer::start()
{
    // No folder of the computer that the test runs on may be a well-known one.
    const QByteArray applications = m_sandbox->path(QStringLiteral("Applications/")).toUtf8();
    writeFile(m_program->folder() + QStringLiteral("/flightsims.json"),
              shippedCatalogue().replace("/Applications/", applications));
    const auto payload = treeOf(payloadFolder());
    for (auto it = payload.begin(); it != payload.end(); ++it) {
        if (!it.key().endsWith(u'/'))
            writeFile(m_program->folder() + QStringLiteral("/plugins/") + it.key(), it.value());
    }
    m_program->start();
    m_program->window();
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

void TestPilotsComputer::isShownInTheDescribedOrder()
{
    start();
    QCOMPARE(
        shown(),
        QStringList({QLatin1String("X-Plane 12: ") + m_home->xplane12(),
                     QLatin1String("X-Plane 11: ") + m_home->xplane11(),
                     QLatin1String("Microsoft Flight Simulator X: Steam Edition: ") + m_home->fsx(),
                     QLatin1String("FlightGear: ") + m_home->flightGear(),
                     QStringLiteral("Microsoft Flight Simulator 2024"),
                     QStringLiteral("Microsoft Flight Simulator 2020"),
                     QStringLiteral("Aerofly FS 4")}));
    QStringList icons;
    const auto rows = m_program->rows();
    for (const SeenRow &row : rows)
        icons.append(row.icon.section(u'-', 0, 0));
    QCOMPARE(icons.join(u' '), QStringLiteral("check check check check minus minus minus"));
}

void TestPilotsComputer::getsThePluginInOneGo()
{
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

void TestPilotsComputer::isAsBeforeWhenEachIsRemoved()
{
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

void TestPilotsComputer::findsAPackagedFlightGear()
{
    if (!canPackage())
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
    // Found as X-Plane 11 by its name, and as X-Plane 12 by what is in it.
    const QString folder = m_sandbox->path(QStringLiteral("Applications/X-Plane 11"));
    PilotsHome::makeXPlane(folder, 12);
    writeFile(m_sandbox->home() + QStringLiteral("/.x-plane/x-plane_install_12.txt"),
              folder.toUtf8());
    QVERIFY(QDir(m_home->xplane11()).removeRecursively());
    start();
    QCOMPARE(m_program->row(QStringLiteral("X-Plane 12")).path, folder);
    QCOMPARE(m_program->row(QStringLiteral("X-Plane 11")).path, QString());
    QCOMPARE(m_program->row(QStringLiteral("X-Plane 11")).icon, QStringLiteral("minus-grey"));
}

QTEST_GUILESS_MAIN(TestPilotsComputer)
#include "tst_PilotsComputer.moc"
