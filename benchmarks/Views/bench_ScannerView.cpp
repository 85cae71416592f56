#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "Views/ScannerView.h"
#include "benchmarks/support/PlainRow.h"
#include "benchmarks/support/Quiet.h"
#include "benchmarks/support/Table.h"
#include "tests/support/Sandbox.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>

#include <memory>

using namespace Benchmarks;
using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Views::ScannerView;

// A window of very many simulators, from nothing to its pixels.

namespace {

void paint(QWidget *window)
{
    window->show();
    QApplication::processEvents();
    window->grab();
}

QList<FlightSimulatorMapping *> mappings(int count, const QString &path, QObject *parent)
{
    QList<FlightSimulatorMapping *> result;
    for (int i = 0; i < count; ++i) {
        auto *scan = new FlightSimScan(
            parent,
            {{QStringLiteral("name"), QStringLiteral("Simulator %1").arg(i)},
             {QStringLiteral("files"),
              QJsonArray{QJsonObject{{QStringLiteral("destination"), QStringLiteral("a.dat")}}}}});
        result.append(new FlightSimulatorMapping(scan, path));
    }
    return result;
}

Cost costOfOurs(const QList<FlightSimulatorMapping *> &simulators)
{
    std::unique_ptr<ScannerView> view;
    return costOf([&] {
        view.reset(new ScannerView(nullptr));
        view->setScanResult(simulators, true, true);
        paint(view.get());
    });
}

Cost costOfPlain(int rows, const QString &path)
{
    std::unique_ptr<QWidget> window;
    return costOf([&] {
        window.reset(plainWindow(rows, path));
        paint(window.get());
    });
}

} // namespace

int main(int argc, char *argv[])
{
    beQuiet();
    const Tests::Sandbox sandbox;
    const QApplication application(argc, argv);
    const int pairs = Table::pairs(argc, argv);
    const QString what = QStringLiteral("window");
    QVector<double> sizes;
    QVector<double> costs;
    for (const int rows : pairs > 1 ? QVector<int>{10, 200, 1000} : QVector<int>{1, 2}) {
        QObject parent;
        const auto simulators = mappings(rows, sandbox.root(), &parent);
        const Comparison result = compare(
            pairs,
            [&] { return costOfOurs(simulators); },
            [&] { return costOfPlain(rows, sandbox.root()); });
        const QString size = QLocale::c().toString(rows);
        Table::compare(QStringLiteral("%1, %2 rows").arg(what, size), &Cost::cpu, result, 1.3);
        sizes.append(rows);
        costs.append(result.ours.cpu);
    }
    Table::growth(what, sizes, costs);
    Table::explain(QStringLiteral(
        "window: made, filled, shown and painted. Floor: the same child widgets in a list."));
    return 0;
}
