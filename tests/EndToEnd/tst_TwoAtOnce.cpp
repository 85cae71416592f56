#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

using namespace Tests;

/// Two copies of the program, each with a simulator of its own to install into. Both simulators
/// load what one configuration file says, each copy's entry under a name of its own.
class TestTwoAtOnce : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void keepBothEntries_data();
    void keepBothEntries();

private:
    QString simulator(const QString &name) const
    {
        return m_sandbox.path(QStringLiteral("sims/") + name);
    }

    void installTogether();

    QString m_configuration;
    Sandbox m_sandbox;
    Program m_first{m_sandbox, nullptr, QStringLiteral("first")};
    Program m_second{m_sandbox, nullptr, QStringLiteral("second")};
};

// More of them show more; ORBWELL_ROUNDS says how many.
static int rounds()
{
    const int asked = qEnvironmentVariableIntValue("ORBWELL_ROUNDS");
    return asked > 0 ? asked : 10;
}

// One file for each, so that the configuration file is edited once: a second edit would mend what
// the first one lost.
static QJsonObject entryOf(const QString &simulator, const QString &folder)
{
    QJsonObject entry = launcherEntry(simulator, folder, QStringLiteral("Maker/dll.xml"));
    const QString name = QStringLiteral("Orbwell for ") + simulator;
    QJsonObject config = entry.value(QLatin1String("config")).toObject();
    config.insert(QStringLiteral("values"),
                  QJsonArray{QJsonObject{{QStringLiteral("key"), QStringLiteral("Name")},
                                         {QStringLiteral("value"), name}}});
    QJsonObject remove = config.value(QLatin1String("remove")).toObject();
    remove.insert(QStringLiteral("value"), name);
    config.insert(QStringLiteral("remove"), remove);
    entry.insert(QStringLiteral("config"), config);
    return entry;
}

static QStringList entryNames(const QByteArray &document)
{
    const QRegularExpression name(QStringLiteral("<Name>(.*)</Name>"));
    QStringList names;
    auto it = name.globalMatch(QString::fromLatin1(document));
    while (it.hasNext())
        names.append(it.next().captured(1));
    names.sort();
    return names;
}

void TestTwoAtOnce::initTestCase()
{
    m_configuration = m_sandbox.dataRoot() + QStringLiteral("Maker/dll.xml");
    place(m_first, {entryOf(QStringLiteral("A"), simulator(QStringLiteral("A")))});
    place(m_second, {entryOf(QStringLiteral("B"), simulator(QStringLiteral("B")))});
}

void TestTwoAtOnce::installTogether()
{
    m_first.start(quietInstallation());
    m_second.start(quietInstallation());
    QCOMPARE(m_first.exitStatus(), 2);
    QCOMPARE(m_second.exitStatus(), 2);
}

void TestTwoAtOnce::keepBothEntries_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("alreadyThere");

    QTest::newRow("others' file") << othersConfiguration()
                                  << QStringLiteral("Somebody's \u00e9tude");
    QTest::newRow("no file yet") << QByteArray() << QStringLiteral("Quillmont Orbwell");
}

void TestTwoAtOnce::keepBothEntries()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, alreadyThere);

    for (int round = 0; round < rounds(); ++round) {
        QDir(m_sandbox.path(QStringLiteral("sims"))).removeRecursively();
        QDir(m_sandbox.dataRoot()).removeRecursively();
        for (const char *name : {"A", "B"})
            QVERIFY(QDir().mkpath(simulator(QLatin1String(name))));
        if (!before.isEmpty())
            writeFile(m_configuration, before);

        installTogether();
        if (QTest::currentTestFailed())
            return;

        QStringList expected{QStringLiteral("Orbwell for A"), QStringLiteral("Orbwell for B")};
        expected.append(alreadyThere);
        expected.sort();
        QCOMPARE(entryNames(readFile(m_configuration)), expected);
        for (const char *name : {"A", "B"}) {
            const QMap<QString, QByteArray> files{
                {QStringLiteral("Gauges/"), QByteArray()},
                {QStringLiteral("Gauges/QuillmontOrbwell_64.dll"), QByteArray("module")}};
            QCOMPARE(treeOf(simulator(QLatin1String(name))), files);
        }
    }
}

QTEST_GUILESS_MAIN(TestTwoAtOnce)
#include "tst_TwoAtOnce.moc"
