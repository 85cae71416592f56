#include "benchmarks/support/Table.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>

using namespace Benchmarks;
using Tests::Sandbox;
using Tests::writeFile;

// Runs of orbwell-doctor, from exec to its end, where the plugin is installed everywhere.

namespace {

const QString doctor = QStringLiteral(ORBWELL_DOCTOR);

struct Size
{
    int simulators;
    int files; // of each
};

/// Simulators with the plugin, the catalogue that finds them, its payload, and their record.
class Fleet
{
public:
    explicit Fleet(Size size)
        : m_size(size)
    {
        for (int i = 0; i < m_size.files; ++i)
            writeFile(m_sandbox.path(QStringLiteral("plugins/") + file(i)), "plugin");
        for (int i = 0; i < m_size.simulators; ++i)
            add(i);
        writeFile(catalogue(), QJsonDocument(m_entries).toJson());
        writeFile(m_sandbox.dataRoot() + QStringLiteral("Quillmont/Orbwell/.mapping"),
                  QJsonDocument(m_records).toJson());
    }

    QString catalogue() const { return m_sandbox.path(QStringLiteral("flightsims.json")); }

private:
    static QString file(int number) { return QStringLiteral("Orbwell/%1.xpl").arg(number); }

    void add(int number)
    {
        const QString folder = m_sandbox.path(QStringLiteral("sims/%1").arg(number));
        QJsonArray pairs;
        QJsonArray installed;
        for (int i = 0; i < m_size.files; ++i) {
            writeFile(folder + u'/' + file(i), "plugin");
            installed.append(folder + u'/' + file(i));
            pairs.append(QJsonObject{{QStringLiteral("source"), file(i)},
                                     {QStringLiteral("destination"), file(i)}});
        }
        const QString name = QStringLiteral("Simulator %1").arg(number);
        m_entries.append(QJsonObject{{QStringLiteral("name"), name},
                                     {QStringLiteral("path"), folder},
                                     {QStringLiteral("location"), 1},
                                     {QStringLiteral("type"), 1},
                                     {QStringLiteral("files"), pairs}});
        m_records.append(QJsonObject{{QStringLiteral("name"), name},
                                     {QStringLiteral("path"), folder},
                                     {QStringLiteral("files"), installed}});
    }

    const Size m_size;
    Sandbox m_sandbox;
    QJsonArray m_entries;
    QJsonArray m_records;
};

// What it says goes nowhere, so that it does not end up in the table.
Cost costOfRun(const QStringList &arguments)
{
    const QString silently = QStringLiteral("exec \"$0\" \"$@\" > /dev/null");
    return costOfProgram(
        QStringList{QStringLiteral("/bin/sh"), QStringLiteral("-c"), silently, doctor} + arguments);
}

// Without what a process takes that does nothing.
double measure(const QString &task, const QString &what, Size size, int pairs, double goal)
{
    const Fleet fleet(size);
    const QStringList arguments{QStringLiteral("--catalogue=") + fleet.catalogue(), task};
    const Comparison result = compare(
        pairs,
        [&arguments] { return costOfRun(arguments); },
        [] { return costOfRun({QStringLiteral("--version")}); });
    const QString full
        = QStringLiteral("%1, %2").arg(what).arg(QLocale::c().toString(size.simulators));
    Table::row(full + QStringLiteral(" x %1 files, CPU").arg(size.files),
               QStringLiteral("%1 ms").arg(result.ours.cpu, 0, 'f', 1),
               QStringLiteral("%1 ms").arg(result.floor.cpu, 0, 'f', 1),
               QString::number(result.ratio.cpu, 'f', 2),
               goal > 0 ? QStringLiteral("%1 ms at most").arg(goal) : QStringLiteral("told"));
    return std::max(0.1, result.ours.cpu - result.floor.cpu);
}

void measureGrowth(const QString &task, const QString &what, const QVector<Size> &all, int pairs)
{
    QVector<double> sizes;
    QVector<double> costs;
    for (const Size size : all) {
        sizes.append(size.simulators * size.files);
        costs.append(measure(task, what, size, pairs, 0));
    }
    Table::growth(what, sizes, costs);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const int pairs = Table::pairs(argc, argv);
    const int many = pairs > 1 ? 100 : 1;
    measureGrowth(QStringLiteral("--plan=uninstall"),
                  QStringLiteral("doctor --plan=uninstall"),
                  {{1, 10 * many}, {1, 20 * many}, {1, 80 * many}},
                  pairs);
    for (const char *task : {"--", "--plan"}) {
        const QString option = QString::fromLatin1(task);
        const QString what = option == QLatin1String("--") ? QStringLiteral("doctor")
                                                           : QStringLiteral("doctor ") + option;
        measure(option, what, {13, 4}, pairs, 30);
        measureGrowth(option, what, {{many, 4}, {2 * many, 4}, {8 * many, 4}}, pairs);
        measureGrowth(option, what, {{1, 10 * many}, {1, 20 * many}, {1, 80 * many}}, pairs);
    }
    Table::explain(QStringLiteral(
        "doctor: a report or plan from exec to its end, on a computer that has the plugin in each "
        "simulator. Floor: the same program, which says its version; growth is without it."));
    return 0;
}
