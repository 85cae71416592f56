#include "tests/SimDetect/Cases.h"

#include "tests/SimDetect/DescribedComputer.h"

#include <QDir>
#include <QScopeGuard>
#include <QTest>

using Quillmont::SimDetect::Environment;

namespace Tests {

namespace {

QString linesOf(const QString &text)
{
    QStringList lines;
    const auto written = text.split(u'\n');
    for (const auto &line : written)
        if (!line.trimmed().isEmpty())
            lines.append(line.trimmed());
    return lines.join(u'\n');
}

void checkCaseOn(Environment::System system)
{
    QFETCH(QString, tree);
    QFETCH(QString, found);
    QFETCH(QString, log);
    DescribedComputer computer(system);
    computer.make(tree);
    // Relative paths must not be resolved against the working folder.
    QDir::setCurrent(computer.environment.root);
    const auto leave = qScopeGuard([] { QDir::setCurrent(QDir::rootPath()); });
    QCOMPARE(computer.detect(), computer.expanded(linesOf(found)));
    if (log != QLatin1String("*"))
        QCOMPARE(computer.log().join(u'\n'), computer.expanded(linesOf(log)));
}

} // namespace

void caseColumns()
{
    QTest::addColumn<int>("systems");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("log");
}

void addCase(const QByteArray &name,
             On systems,
             const QByteArray &tree,
             const QByteArray &found,
             const QByteArray &log)
{
    QTest::newRow(name.constData()) << int(systems) << QString::fromUtf8(tree)
                                    << QString::fromUtf8(found) << QString::fromUtf8(log);
}

void checkCase()
{
    QFETCH(int, systems);
    if ((systems & OnLinux) != 0)
        checkCaseOn(Environment::Linux);
    if ((systems & OnMacOS) != 0 && !QTest::currentTestFailed())
        checkCaseOn(Environment::MacOS);
}

} // namespace Tests
