#include "SimDetect/SimDetect.h"
#include "tests/SimDetect/Computer.h"

#include <QElapsedTimer>
#include <QTextStream>
#include <QVector>

#include <algorithm>

using namespace Quillmont::SimDetect;
using namespace Tests;

// How long it takes to find every simulator in the home of somebody who has several, and many
// other games. Prints the median and fails above 20 ms, which a user would begin to notice.
namespace {

constexpr double MostMilliseconds = 20;
constexpr int Rounds = 51;

void makeHome(Computer &computer)
{
    computer.make(QStringLiteral(R"(
        xplane $R/sims/X-Plane 12
        file $R/sims/X-Plane 12/Log.txt = Log.txt for X-Plane 12.0.9\n
        file $L/x-plane_install_12.txt = $R/gone/X-Plane 12/\n$R/sims/X-Plane 12/\n
        link $H/.steam/steam -> $S
        link $H/.steam/root -> $S
        libraries $S = $S, $R/drive, $R/unplugged
        game $R/drive 269950 X-Plane 11
        xplane $R/drive/steamapps/common/X-Plane 11
        game $S 314160 FSX
        file $S/steamapps/common/FSX/fsx.exe =
        dir $S/steamapps/common/FSX/SimObjects
        dir $S/steamapps/compatdata/1250410/pfx/drive_c/P/Community
        file $S/steamapps/compatdata/1250410/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator/UserCfg.opt = InstalledPackagesPath "C:\\P"\n
        dir $H/.fgfs/fgdata_2020_3
        file $R/usr/share/games/flightgear/version = 2020.3.16\n
        file $R/usr/share/games/flightgear/defaults.xml =)"));
    for (int i = 0; i < 300; ++i) {
        computer.make(QStringLiteral("game $%1 %2 Game %2")
                          .arg(i % 2 != 0 ? QStringLiteral("S") : QStringLiteral("R/drive"))
                          .arg(i));
        computer.make(QStringLiteral("file $R/sims/X-Plane 12/file %1 =").arg(i));
        computer.make(QStringLiteral("file $H/document %1 =").arg(i));
    }
}

double millisecondsOnce(const Environment &environment)
{
    QElapsedTimer timer;
    timer.start();
    simPaths(environment);
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    Computer computer(Environment::Linux);
    makeHome(computer);
    QVector<double> times;
    for (int round = 0; round < Rounds; ++round)
        times.append(millisecondsOnce(computer.environment));
    std::sort(times.begin(), times.end());
    const double median = times.at(Rounds / 2);
    QTextStream(stdout) << "detection in a normal home: " << median << " ms (median of " << Rounds
                        << ", slowest " << times.last() << ")\n";
    return median < MostMilliseconds ? 0 : 1;
}
