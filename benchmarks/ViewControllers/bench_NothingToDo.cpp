#include "ViewControllers/ScanController.h"
#include "benchmarks/ViewControllers/Simulators.h"
#include "benchmarks/support/Quiet.h"
#include "benchmarks/support/Table.h"

#include <QApplication>
#include <QFile>
#include <QLocale>

using namespace Benchmarks;
using Quillmont::Utility::ViewControllers::ScanController;

// An unattended run that finds everything in place.

namespace {

Cost costOfRun()
{
    return Simulators::costOfController([](ScanController *controller) {
        controller->startScan(false, true, ScanController::ModeNone);
        controller->getUserSimulatorMapping();
        controller->autoInstall(controller->mappings, true, ScanController::ModeNone);
    });
}

Cost costOfTests(const QStringList &files)
{
    return costOf([&] {
        for (const QString &file : files)
            if (!QFile::exists(file))
                qFatal("the plugin is not there");
    });
}

Comparison measure(int files, int pairs)
{
    const Simulators simulators(8, {files, 1, 1});
    simulators.copyBare();
    const QStringList targets = simulators.targets();
    return compare(
        pairs, [] { return costOfRun(); }, [&] { return costOfTests(targets); });
}

} // namespace

int main(int argc, char *argv[])
{
    beQuiet();
    const QApplication application(argc, argv);
    const int pairs = Table::pairs(argc, argv);
    const QString what = QStringLiteral("nothing to do");
    QVector<double> sizes;
    QVector<double> costs;
    for (const int files : pairs > 1 ? QVector<int>{100, 1000, 10000} : QVector<int>{2, 4}) {
        const Comparison result = measure(files, pairs);
        const QString size = QLocale::c().toString(files);
        Table::compare(QStringLiteral("%1, 8 x %2 files").arg(what, size), &Cost::cpu, result, 0);
        sizes.append(files);
        costs.append(result.ours.cpu);
    }
    Table::growth(what, sizes, costs);
    Table::explain(QStringLiteral("nothing to do: an unattended run with everything installed, "
                                  "without the start of the program. "
                                  "Floor: one test of each plugin file."));
    return 0;
}
