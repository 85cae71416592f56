#include "ViewControllers/ScanController.h"
#include "benchmarks/ViewControllers/Simulators.h"
#include "benchmarks/support/Quiet.h"
#include "benchmarks/support/Table.h"
#include "tests/support/Files.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

using namespace Benchmarks;
using Quillmont::Utility::ViewControllers::ScanController;
using Tests::readFile;
using Tests::writeFile;

// A scan that looks for very many simulators.

namespace {

QString catalogueFile()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/flightsims.json");
}

QString folder(int number)
{
    return QStringLiteral("/Sims/Simulator %1").arg(number);
}

/// Entries like those of the shipped catalogue.
void writeCatalogue(int entries)
{
    const QByteArray shipped
        = readFile(QStringLiteral(ORBWELL_SOURCE "/catalogue/flightsims.json"));
    QJsonObject entry = QJsonDocument::fromJson(shipped).array().last().toObject();
    QJsonArray catalogue;
    for (int i = 0; i < entries; ++i) {
        entry.insert(QStringLiteral("name"), QStringLiteral("Simulator %1").arg(i));
        entry.insert(QStringLiteral("simcode"), QStringLiteral("SIM%1").arg(i));
        entry.insert(QStringLiteral("path"), folder(i));
        catalogue.append(entry);
    }
    writeFile(catalogueFile(), QJsonDocument(catalogue).toJson());
}

Cost costOfScan()
{
    return Simulators::costOfController([](ScanController *controller) {
        controller->startScan(false, true, ScanController::ModeNone);
    });
}

Cost costOfFloor(int entries)
{
    return costOf([entries] {
        if (QJsonDocument::fromJson(readFile(catalogueFile())).array().size() != entries)
            qFatal("the catalogue does not hold what it should");
        for (int i = 0; i < entries; ++i)
            if (QFile::exists(folder(i)))
                qFatal("there is no such simulator");
    });
}

} // namespace

int main(int argc, char *argv[])
{
    beQuiet();
    const QApplication application(argc, argv);
    const Tests::Sandbox sandbox;
    const int pairs = Table::pairs(argc, argv);
    const QString what = QStringLiteral("scan");
    QVector<double> sizes;
    QVector<double> costs;
    for (const int entries : pairs > 1 ? QVector<int>{10, 1000, 10000} : QVector<int>{2, 4}) {
        writeCatalogue(entries);
        const Comparison result = compare(
            pairs, [] { return costOfScan(); }, [&] { return costOfFloor(entries); });
        const QString size = QLocale::c().toString(entries);
        Table::compare(QStringLiteral("%1, %2 entries").arg(what, size), &Cost::cpu, result, 0);
        sizes.append(entries);
        costs.append(result.ours.cpu);
    }
    QFile::remove(catalogueFile());
    Table::growth(what, sizes, costs);
    Table::explain(QStringLiteral(
        "scan: a silent scan that finds none of the catalogue's simulators. Floor: QJsonDocument "
        "reads the catalogue, and one file test for each entry."));
    return 0;
}
