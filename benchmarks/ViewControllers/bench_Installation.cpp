#include "ViewControllers/ScanController.h"
#include "Views/ScannerView.h"
#include "benchmarks/ViewControllers/Simulators.h"
#include "benchmarks/support/Quiet.h"
#include "benchmarks/support/Table.h"

#include <QApplication>
#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Benchmarks;
using Quillmont::Utility::ViewControllers::ScanController;

// A silent scan and installation into all simulators against copying the same files in a loop.

namespace {

bool allExist(const QStringList &files)
{
    return std::all_of(
        files.begin(), files.end(), [](const QString &file) { return QFile::exists(file); });
}

// Only behind a visible window work shows its progress.
Cost costOfInstallation(const Simulators &simulators, bool isVisible = true)
{
    simulators.reset();
    const Cost cost = Simulators::costOfController([isVisible](ScanController *controller) {
        controller->view->setVisible(isVisible);
        controller->startScan(false, true, ScanController::ModeNone);
    });
    if (!allExist(simulators.targets()))
        qFatal("the plugin was not installed");
    return cost;
}

Cost costOfCopying(const Simulators &simulators)
{
    simulators.reset();
    return costOf([&] { simulators.copyBare(); });
}

/// The minimum cost of each simulator's configuration file: it is read twice per plugin file, once
/// when an old installation is cleared and once when the new one is added.
Cost costOfCopyingAndReading(const Simulators &simulators)
{
    simulators.reset();
    const QByteArray configuration = Simulators::configuration();
    const int passes = 2 * simulators.targets().size();
    return costOf([&] {
        simulators.copyBare();
        for (int i = 0; i < passes; ++i) {
            QXmlStreamReader reader(configuration);
            while (!reader.atEnd())
                reader.readNext();
        }
    });
}

void install(const QString &what, Simulators::Payload payload, int pairs, double goal)
{
    const Simulators simulators(8, payload);
    const auto ours = [&] {
        return costOfInstallation(simulators);
    };
    const Comparison result = compare(pairs, ours, [&] { return costOfCopying(simulators); });
    Table::compare(what, &Cost::wall, result, goal);
    Table::compare(what, &Cost::cpu, result, goal);
    if (payload.type == 0) {
        // It only shows where the time goes, and takes long, so it is measured once.
        const auto floor = [&] {
            return costOfCopyingAndReading(simulators);
        };
        Table::compare(what + QStringLiteral(", readings in the floor"),
                       &Cost::cpu,
                       compare(1, ours, floor),
                       0);
    }
}

void showProgress(const QString &what, Simulators::Payload payload, int pairs)
{
    const Simulators simulators(8, payload);
    const Comparison result = compare(
        pairs,
        [&] { return costOfInstallation(simulators); },
        [&] { return costOfInstallation(simulators, false); });
    Table::compare(what, &Cost::wall, result, 1.01);
    Table::compare(what, &Cost::cpu, result, 0);
}

} // namespace

int main(int argc, char *argv[])
{
    beQuiet();
    const QApplication application(argc, argv);
    const int pairs = Table::pairs(argc, argv);
    const bool tiny = pairs == 1;

    constexpr int fourMegabytes = 4 * 1000 * 1000;
    constexpr int fourKilobytes = 4096;
    install(QStringLiteral("install, 50 files of 4 MB"),
            {tiny ? 3 : 50, tiny ? fourKilobytes : fourMegabytes, 1},
            pairs,
            1.05);
    showProgress(QStringLiteral("progress, 50 files of 4 MB"),
                 {tiny ? 3 : 50, tiny ? fourKilobytes : fourMegabytes, 1},
                 pairs);
    const int many = tiny ? 3 : 2000;
    install(QStringLiteral("install, 2,000 files of 4 KB"), {many, fourKilobytes, 1}, pairs, 1.15);
    install(QStringLiteral("install, 2,000 files, XML"), {many, fourKilobytes, 0}, pairs, 1.5);
    Table::explain(QStringLiteral(
        "progress: that installation behind a visible window, which shows its progress after a "
        "second. Floor: the same without a window."));
    Table::explain(QStringLiteral(
        "install: a silent scan that installs into 8 simulators. Floor: QFile::copy of the same "
        "files in a loop. XML: type 0, with a configuration file of 20 KB that is backed up and "
        "read twice for each plugin file; the last row has as many readings by QXmlStreamReader in "
        "the floor as well."));
    return 0;
}
