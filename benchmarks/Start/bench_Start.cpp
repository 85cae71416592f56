#include "benchmarks/support/Table.h"
#include "tests/support/Display.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Benchmarks;
using Tests::Display;
using Tests::Sandbox;

// From the start of the process until its window is painted, for the shipped program.

namespace {

const QString product = QStringLiteral(ORBWELL_PROGRAM);
const QString plainWindow = QStringLiteral(ORBWELL_PLAIN_WINDOW);

int shippedRows()
{
    const QByteArray catalogue
        = Tests::readFile(QStringLiteral(ORBWELL_SOURCE "/catalogue/flightsims.json"));
    return QJsonDocument::fromJson(catalogue).array().size();
}

void makeRuntimeFolder(Sandbox *sandbox)
{
    const QString folder = sandbox->path(QStringLiteral("run"));
    QDir().mkdir(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    sandbox->setVariable("XDG_RUNTIME_DIR", QFile::encodeName(folder));
}

void useFirstPaint(Sandbox *sandbox)
{
    sandbox->setVariable("QT_PLUGIN_PATH", ORBWELL_BENCHMARK_PLUGINS);
    sandbox->setVariable("QT_QPA_GENERIC_PLUGINS", "orbwell-first-paint");
    sandbox->setVariable("QT_QPA_PLATFORMTHEME", "");
    sandbox->setVariable("QT_LOGGING_RULES", "*.debug=false");
}

Comparison compareWith(int pairs, const QStringList &floor)
{
    return compare(
        pairs, [] { return costOfProgram({product}); }, [&floor] { return costOfProgram(floor); });
}

void withoutAScreen(Sandbox *sandbox, int pairs)
{
    sandbox->setVariable("QT_QPA_PLATFORM", "offscreen");
    const auto result = compareWith(pairs, {plainWindow, QString::number(shippedRows())});
    const QString what = QStringLiteral("start, offscreen");
    Table::compare(what, &Cost::cpu, result, 1.15);
    Table::compare(what, &Cost::memory, result, 1.15);
    Table::explain(QStringLiteral(
        "start, offscreen: from exec to the first painted window with the shipped catalogue. "
        "Floor: a program that shows the same child widgets in as many rows."));
}

void onAnXServer(Sandbox *sandbox, int pairs)
{
    const Display display;
    if (!display.isUp()) {
        Table::explain(QStringLiteral("start, X server: not measured, Xvfb is missing."));
        return;
    }
    sandbox->setVariable("QT_QPA_PLATFORM", "xcb");
    sandbox->setVariable("DISPLAY", display.name().toLatin1());
    const auto result = compareWith(pairs, {plainWindow});
    const QString what = QStringLiteral("start, X server");
    Table::compare(what, &Cost::wall, result, 0.7);
    Table::compare(what, &Cost::memory, result, 0.7);
    Table::compare(what, &Cost::cpu, result, 0);
    Table::explain(QStringLiteral(
        "start, X server: the same in Xvfb. Floor: a program that shows an empty window, as "
        "Qt starts it, which loads OpenGL there."));
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const int pairs = Table::pairs(argc, argv);
    Sandbox sandbox;
    useFirstPaint(&sandbox);
    makeRuntimeFolder(&sandbox);

    withoutAScreen(&sandbox, pairs);
    onAnXServer(&sandbox, pairs);
    return 0;
}
