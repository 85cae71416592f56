#include "SimDetect/SimDetect.h"
#include "benchmarks/support/Quiet.h"
#include "benchmarks/support/Table.h"
#include "tests/SimDetect/DescribedComputer.h"
#include "tests/support/Files.h"

#include <QCoreApplication>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>

using namespace Benchmarks;
using namespace Quillmont::SimDetect;
using namespace Tests;

// The time to find every simulator in the home of a user with several, and many other games.

namespace {

void makeHome(DescribedComputer &computer)
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

Cost costOnce(const Environment &environment)
{
    return costOf([&environment] { simPaths(environment); });
}

/// The maximum number of times that a detection opens any one file, according to strace.
int maxOpenings(const QString &program)
{
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("calls"));
    const QStringList arguments{QStringLiteral("-e"),
                                QStringLiteral("trace=open,openat"),
                                QStringLiteral("-o"),
                                log,
                                program,
                                QStringLiteral("--once")};
    if (QProcess::execute(QStringLiteral("strace"), arguments) != 0)
        return -1;

    // Folders are listed, not read.
    static const QRegularExpression opening(
        QStringLiteral("\"([^\"]*sandbox-[^\"]*)\", (O_RDONLY[^)]*)\\) = [0-9]"));
    QHash<QString, int> openings;
    int most = 0;
    const QStringList calls = QString::fromUtf8(readFile(log)).split(u'\n');
    for (const QString &call : calls) {
        const auto match = opening.match(call);
        if (match.hasMatch() && !match.captured(2).contains(QLatin1String("O_DIRECTORY")))
            most = std::max(most, ++openings[match.captured(1)]);
    }
    return most;
}

void tellTime(const Environment &environment, bool tiny)
{
    QVector<double> times;
    for (int round = 0; round < (tiny ? 1 : 101); ++round)
        times.append(costOnce(environment).wall);
    std::sort(times.begin(), times.end());
    Table::row(QStringLiteral("detection in a normal home, wall"),
               QStringLiteral("%1 ms").arg(times.at(times.size() / 2), 0, 'f', 1),
               {},
               {},
               QStringLiteral("20 ms at most"));
}

void tellOpenings(const QString &program)
{
    const int most = maxOpenings(program);
    Table::row(QStringLiteral("detection in a normal home, reads of one file"),
               most < 0 ? QStringLiteral("strace is missing") : QString::number(most),
               {},
               {},
               QStringLiteral("1 at most"));
}

} // namespace

int main(int argc, char *argv[])
{
    beQuiet();
    const QCoreApplication application(argc, argv);
    DescribedComputer computer(Environment::Linux);
    makeHome(computer);
    if (application.arguments().contains(QStringLiteral("--once"))) {
        simPaths(computer.environment);
        return 0;
    }
    tellTime(computer.environment, Table::pairs(argc, argv) == 1);
    tellOpenings(QCoreApplication::applicationFilePath());
    Table::explain(QStringLiteral("detection: every simulator in the home of somebody who has "
                                  "several, and 300 other games."));
    return 0;
}
