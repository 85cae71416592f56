#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/ScanController.h"
#include "benchmarks/ViewControllers/Simulators.h"
#include "benchmarks/support/Quiet.h"
#include "benchmarks/support/Table.h"
#include "tests/support/Files.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

using namespace Benchmarks;
using Quillmont::Utility::ViewControllers::ScanController;
using Tests::readFile;
using Tests::writeFile;

// One installation with a record that already has very many simulators.

namespace {

QString recordFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/Quillmont/Orbwell/.mapping");
}

QByteArray bigRecord(int entries, int files)
{
    QJsonArray records;
    for (int entry = 0; entry < entries; ++entry) {
        const QString path = QStringLiteral("/Sims/Another Simulator %1").arg(entry);
        QJsonArray names;
        for (int file = 0; file < files; ++file)
            names.append(QStringLiteral("%1/Resources/plugins/file %2.dat").arg(path).arg(file));
        records.append(QJsonObject{{QStringLiteral("name"), path.mid(6)},
                                   {QStringLiteral("path"), path},
                                   {QStringLiteral("files"), names}});
    }
    return QJsonDocument(records).toJson();
}

Cost costOfInstallation(const QByteArray &record)
{
    Cost cost;
    Simulators::costOfController([&](ScanController *controller) {
        controller->startScan(false, true, ScanController::ModeNone);
        writeFile(recordFile(), record);
        auto *mapping = controller->mappings.first();
        cost = costOf([&] { controller->install(mapping, true, false); });
    });
    return cost;
}

Cost costOfRewriting(const QByteArray &record)
{
    writeFile(recordFile(), record);
    return costOf([] {
        const auto document = QJsonDocument::fromJson(readFile(recordFile()));
        writeFile(recordFile(), document.toJson(QJsonDocument::Indented));
    });
}

} // namespace

int main(int argc, char *argv[])
{
    beQuiet();
    const QApplication application(argc, argv);
    const int pairs = Table::pairs(argc, argv);
    const Simulators simulators(1, {50, 4096, 1});
    const QByteArray record = bigRecord(pairs > 1 ? 10000 : 10, 50);
    const Comparison result = compare(
        pairs, [&] { return costOfInstallation(record); }, [&] { return costOfRewriting(record); });
    const QString what = QStringLiteral("record of 10,000 entries");
    Table::compare(what, &Cost::cpu, result, 1.3);
    Table::compare(what, &Cost::wall, result, 1.3);
    Table::explain(QStringLiteral(
        "record: one installation of 50 files where the record holds 10,000 entries of 50 files. "
        "Floor: QJsonDocument reads the record and writes it indented."));
    return 0;
}
