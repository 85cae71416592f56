#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

#include <memory>
#include <vector>

using namespace Tests;

/// Copies of the program that install at once, each into its own simulator. All simulators share
/// one configuration file, in which each copy's entry has its own name.
class TestTwoAtOnce : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void keepAllEntries_data();
    void keepAllEntries();

private:
    QString simulator(const QString &name) const
    {
        return m_sandbox.path(QStringLiteral("sims/") + name);
    }

    void installTogether(int copies);

    QString m_configuration;
    Sandbox m_sandbox;
    std::vector<std::unique_ptr<Program>> m_programs;
};

static const QStringList names{QStringLiteral("A"),
                               QStringLiteral("B"),
                               QStringLiteral("C"),
                               QStringLiteral("D"),
                               QStringLiteral("E")};

// More rounds find more; ORBWELL_ROUNDS sets their number for two copies.
static int rounds(int copies)
{
    const int asked = qEnvironmentVariableIntValue("ORBWELL_ROUNDS");
    const int withTwo = asked > 0 ? asked : 10;
    return copies == 2 ? withTwo : qMax(1, withTwo / 4);
}

// One plugin file each, so that the configuration file is edited only once: a second edit would
// repair what the first one lost.
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
    for (const QString &name : names) {
        m_programs.push_back(std::make_unique<Program>(m_sandbox, nullptr, name));
        place(*m_programs.back(), {entryOf(name, simulator(name))});
    }
}

// The runs are silent: nobody would answer a box.
void TestTwoAtOnce::installTogether(int copies)
{
    for (int i = 0; i < copies; ++i)
        m_programs.at(i)->start(quietInstallation());
    for (int i = 0; i < copies; ++i)
        QCOMPARE(m_programs.at(i)->exitStatus(), 2);
}

void TestTwoAtOnce::keepAllEntries_data()
{
    QTest::addColumn<int>("copies");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("alreadyThere");
    for (const int copies : {2, 5}) {
        QTest::addRow("%d, others' file", copies)
            << copies << othersConfiguration() << QStringLiteral("Somebody's \u00e9tude");
        QTest::addRow("%d, no file yet", copies)
            << copies << QByteArray() << QStringLiteral("Quillmont Orbwell");
    }
}

void TestTwoAtOnce::keepAllEntries()
{
    QFETCH(int, copies);
    QFETCH(QByteArray, before);
    QFETCH(QString, alreadyThere);
    const QStringList simulators = names.mid(0, copies);
    QStringList expected(alreadyThere);
    for (const QString &name : simulators)
        expected.append(QStringLiteral("Orbwell for ") + name);
    expected.sort();

    for (int round = 0; round < rounds(copies); ++round) {
        QDir(m_sandbox.path(QStringLiteral("sims"))).removeRecursively();
        QDir(m_sandbox.dataRoot()).removeRecursively();
        for (const QString &name : simulators)
            QVERIFY(QDir().mkpath(simulator(name)));
        if (!before.isEmpty())
            writeFile(m_configuration, before);

        installTogether(copies);
        if (QTest::currentTestFailed())
            return;

        QCOMPARE(entryNames(readFile(m_configuration)), expected);
        // The last writer of the record wins, but the record is always complete.
        const auto kept = treeOf(m_sandbox.dataRoot() + QStringLiteral("Quillmont/Orbwell"));
        QCOMPARE(kept.keys(), QStringList({QStringLiteral(".mapping"), QStringLiteral(".path")}));
        QVERIFY(!QJsonDocument::fromJson(kept.first()).array().isEmpty());
        for (const QString &name : simulators) {
            const QMap<QString, QByteArray> files{
                {QStringLiteral("Gauges/"), QByteArray()},
                {QStringLiteral("Gauges/QuillmontOrbwell_64.dll"), QByteArray("module")}};
            QCOMPARE(treeOf(simulator(name)), files);
        }
    }
}

QTEST_GUILESS_MAIN(TestTwoAtOnce)
#include "tst_TwoAtOnce.moc"
