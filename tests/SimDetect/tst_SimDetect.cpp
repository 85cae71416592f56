#include "SimDetect/SimDetect.h"

#include "SimDetect/Environment.h"
#include "tests/SimDetect/Cases.h"
#include "tests/SimDetect/DescribedComputer.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTest>

using namespace Quillmont::SimDetect;
using namespace Tests;

/// Detection on complete computers, and the description of this computer.
class TestSimDetect : public QObject
{
    Q_OBJECT

private slots:
    void findsEverySimulator_data();

    void findsEverySimulator() { checkCase(); }

    void findsNothingWithoutAHome_data();
    void findsNothingWithoutAHome();
    void searchesTheComputerItRunsOn();
    void treatsAnUnsetHomeAsNone();
    void writesNothing();
};

void TestSimDetect::findsEverySimulator_data()
{
    caseColumns();
    addCase("an empty home", OnBoth, "dir $H", "");
    addCase("no home folder on the disk", OnBoth, "", "");
    addCase(
        "a pilot's Linux computer",
        OnLinux,
        R"(xplane $R/sims/X-Plane 12
               file $L/x-plane_install_12.txt = $R/sims/X-Plane 12/\n
               libraries $S = $S, $R/media/games
               game $R/media/games 269950 X-Plane 11
               xplane $R/media/games/steamapps/common/X-Plane 11
               game $S 314160 FSX
               file $S/steamapps/common/FSX/fsx.exe =
               dir $S/steamapps/common/FSX/SimObjects
               game $S 1995890 Aerofly FS 4
               dir $S/steamapps/common/Aerofly FS 4/scenery
               dir $S/steamapps/common/Aerofly FS 4/aircraft
               file $S/steamapps/compatdata/1995890/pfx/drive_c/users/steamuser/Documents/Aerofly FS 4/main.mcf =
               file $R/usr/share/games/flightgear/version = 2020.3.16\n
               file $R/usr/share/games/flightgear/defaults.xml =)",
        R"(AFS4: $S/steamapps/compatdata/1995890/pfx/drive_c/users/steamuser/Documents/Aerofly FS 4
               FGFS: $R/usr/share/games/flightgear
               FSXSE: $S/steamapps/common/FSX
               XP11: $R/media/games/steamapps/common/X-Plane 11
               XP12: $R/sims/X-Plane 12)");
    addCase(
        "a macOS library with a space in its name, an unplugged one, and other files beside them",
        OnMacOS,
        R"(libraries $S = $S, $R/Volumes/Sim Drive/Steam, /Volumes/Unplugged/Steam
               game $R/Volumes/Sim Drive/Steam 2014780 X-Plane 12
               xplane $R/Volumes/Sim Drive/Steam/steamapps/common/X-Plane 12
               file $R/Volumes/Sim Drive/Steam/steamapps/._appmanifest_2014780.acf = \0\x05\x16\x07
               file $R/Volumes/Sim Drive/Steam/steamapps/common/X-Plane 12/._X-Plane.app = \0\x05
               file $S/config/._libraryfolders.vdf = \0\x05\x16\x07
               game $S 269950 X-Plane 11
               xplane $S/steamapps/common/X-Plane 11)",
        R"(XP11: $S/steamapps/common/X-Plane 11
               XP12: $R/Volumes/Sim Drive/Steam/steamapps/common/X-Plane 12)");
}

void TestSimDetect::findsNothingWithoutAHome_data()
{
    QTest::addColumn<QString>("home");
    QTest::newRow("none") << QString();
    const DescribedComputer any(Environment::Linux);
    QTest::newRow("a relative one") << QFileInfo(any.environment.home).fileName();
    QTest::newRow("one that is a file") << QStringLiteral("/dev/null");
}

void TestSimDetect::findsNothingWithoutAHome()
{
    QFETCH(QString, home);
    for (const auto system : {Environment::Linux, Environment::MacOS}) {
        DescribedComputer computer(system);
        computer.make(QStringLiteral("xplane $R/sim\nfile $L/x-plane_install_12.txt = $R/sim"));
        // In this folder a relative home would lead to the list.
        QDir::setCurrent(QFileInfo(computer.environment.home).path());
        const auto leave = qScopeGuard([] { QDir::setCurrent(QDir::rootPath()); });
        computer.environment.home = home;
        QCOMPARE(computer.detect(), QString());
        QCOMPARE(computer.log(), QStringList());
    }
}

void TestSimDetect::searchesTheComputerItRunsOn()
{
    Sandbox sandbox;
    const QString data = sandbox.path(QStringLiteral("fgdata"));
    writeFile(data + QStringLiteral("/version"), "2020.3.16\n");
    writeFile(data + QStringLiteral("/defaults.xml"), {});
    sandbox.setVariable("FG_ROOT", QFile::encodeName(data));
    QCOMPARE(GetAllSimPaths().value(QStringLiteral("FGFS")), data);

    const auto environment = Environment::current();
    QCOMPARE(environment.home, sandbox.home());
    QCOMPARE(environment.root, QString());
    QCOMPARE(environment.variables.value(QStringLiteral("FG_ROOT")), data);
}

void TestSimDetect::treatsAnUnsetHomeAsNone()
{
    Sandbox sandbox;
    sandbox.setVariable("HOME", {});
    QCOMPARE(Environment::current().home, QString());
    GetAllSimPaths();
}

void TestSimDetect::writesNothing()
{
    DescribedComputer computer(Environment::Linux);
    computer.make(QStringLiteral(R"(
        xplane $R/sims/X-Plane 12
        file $L/x-plane_install_12.txt = $R/sims/X-Plane 12/\n
        game $S 2014780 X-Plane 12)"));
    const auto before = treeOf(computer.environment.root);
    computer.detect();
    QCOMPARE(treeOf(computer.environment.root), before);
}

QTEST_GUILESS_MAIN(TestSimDetect)
#include "tst_SimDetect.moc"
