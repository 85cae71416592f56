#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/LaunchDocuments.h"

#include <QtTest>

using namespace Tests;

// Runs with simulators that are found, installed or in conflict in various ways.
class TestUnattendedSimulators : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void restoresALostFile_data();
    void restoresALostFile();
    void keepsACompleteInstallation();
    void findsAFolderOnlyByTheRecord();
    void findsAFolderByDetection_data();
    void findsAFolderByDetection();
    void assignsAFolderToOneOfTwoEntries_data();
    void assignsAFolderToOneOfTwoEntries();
    void editsSeparateConfigurationsForTwoFolders_data();
    void editsSeparateConfigurationsForTwoFolders();
    void repairsBothRecordedEntries();

private:
    QJsonObject rival(const char *name, const QJsonObject &conflict) const;
    QString updated(const char *lines) const;

    QScopedPointer<Computer> m_computer;
};

static QString installed(const char *names)
{
    return QStringLiteral("Quillmont Orbwell Settings: Quillmont Orbwell have successfully "
                          "installed Orbwell plugin to %1.")
        .arg(QLatin1String(names));
}

void TestUnattendedSimulators::init()
{
    m_computer.reset(new Computer);
}

void TestUnattendedSimulators::cleanup()
{
    m_computer.reset();
}

QString TestUnattendedSimulators::updated(const char *lines) const
{
    return QStringLiteral("Plugins updated: Quillmont Orbwell has updated plugins on your "
                          "computer.\r\n\r\nPlease see the list below for details:\r\n\r\n%1")
        .arg(QLatin1String(lines));
}

// An entry for a simulator with a configuration, in the folder "Shared".
QJsonObject TestUnattendedSimulators::rival(const char *name, const QJsonObject &conflict) const
{
    QJsonObject entry = m_computer->entry(QStringLiteral("Shared"), 0);
    entry.insert(QStringLiteral("name"), QLatin1String(name));
    entry.insert(QStringLiteral("conflict"), conflict);
    return entry;
}

static QJsonObject conflict(const char *key, const QJsonValue &value)
{
    return {{QStringLiteral("name"), QStringLiteral("family")}, {QLatin1String(key), value}};
}

void TestUnattendedSimulators::restoresALostFile_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("install") << quietInstallation() << 2;
    QTest::newRow("repair") << words("--REPAIR") << 0;
    QTest::newRow("uninstall") << words("--UNINSTALL") << 0;
}

// Existing plugin files are replaced as well.
void TestUnattendedSimulators::restoresALostFile()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    const QString half = QStringLiteral("Half");
    const QJsonObject entry = m_computer->entry(half, 1);
    m_computer->setCatalogue({entry});
    m_computer->addSimulator(half);
    m_computer->write(QStringLiteral("sims/Half/Resources/plugins/Orbwell/about.txt"), "old");
    m_computer->setRecords({m_computer->recordFor(entry)});
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run(arguments), status);
    m_computer->putPlugin(&expected, entry);
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedSimulators::keepsACompleteInstallation()
{
    const QString whole = QStringLiteral("Whole");
    const QJsonObject entry = m_computer->entry(whole, 0);
    m_computer->setCatalogue({entry});
    m_computer->addPlugin(whole, 0);
    m_computer->write(m_computer->configuration(whole), othersConfiguration());
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run(words("--INSTALL")), 2);
    QCOMPARE(m_computer->said(),
             QStringList(QStringLiteral("Quillmont Orbwell Settings: Orbwell plugin is installed "
                                        "in all simulators.")));
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

// A second uninstallation finds nothing to do.
void TestUnattendedSimulators::findsAFolderOnlyByTheRecord()
{
    const QString recorded = QStringLiteral("Recorded");
    const QJsonObject entry = m_computer->hiddenEntry(recorded, 1);
    m_computer->setCatalogue({entry});
    m_computer->addSimulator(recorded);
    Disk expected = m_computer->disk();
    put(&expected, QStringLiteral("sims/Recorded/Resources/plugins/Orbwell/x"), {});
    takeOut(&expected, QStringLiteral("sims/Recorded/Resources/plugins/Orbwell/"));
    m_computer->finish(&expected, {});
    m_computer->addPlugin(recorded, 1);
    m_computer->setRecords({m_computer->recordFor(entry)});

    for (int time = 0; time < 2; ++time) {
        QCOMPARE(m_computer->run(words("--UNINSTALL")), 0);
        QCOMPARE(m_computer->said(), QStringList());
        QCOMPARE(difference(m_computer->disk(), expected), QString());
    }
    QCOMPARE(m_computer->run(words("--REPAIR")), 0);
    QCOMPARE(m_computer->said(), QStringList());
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedSimulators::findsAFolderByDetection_data()
{
    restoresALostFile_data();
}

// It comes before the entries that detection did not find.
void TestUnattendedSimulators::findsAFolderByDetection()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    const QString detected = QStringLiteral("Detected");
    const QString other = QStringLiteral("Other");
    QJsonObject entry = m_computer->hiddenEntry(detected, 1);
    entry.insert(QStringLiteral("simcode"), QStringLiteral("XP12"));
    m_computer->setCatalogue({entry, m_computer->entry(other, 1)});
    m_computer->addSimulator(other);
    m_computer->write(QStringLiteral("sims/Detected/X-Plane-x86_64"), "program");
    m_computer->write(QStringLiteral("sims/Detected/Resources/plugins/other.txt"), "other");
    for (const char *place : {".x-plane", "Library/Preferences"})
        m_computer->write(
            QStringLiteral("home/%1/x-plane_install_12.txt").arg(QLatin1String(place)),
            m_computer->folder(detected).toUtf8() + "/\n");
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run(arguments), status);
    for (const QJsonObject &installed : {entry, m_computer->entry(other, 1)})
        m_computer->putPlugin(&expected, installed);
    m_computer->finish(
        &expected,
        {m_computer->recordFor(entry), m_computer->recordFor(m_computer->entry(other, 1))});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedSimulators::assignsAFolderToOneOfTwoEntries_data()
{
    QTest::addColumn<bool>("removeOnConflict");
    QTest::addColumn<QString>("winner");
    QTest::newRow("to the first entry") << true << "Later";
    QTest::newRow("to the second entry") << false << "First";
}

void TestUnattendedSimulators::assignsAFolderToOneOfTwoEntries()
{
    QFETCH(const bool, removeOnConflict);
    QFETCH(const QString, winner);
    const QJsonObject givesWay = conflict("remove_on_conflict", removeOnConflict);
    m_computer->setCatalogue({rival("First", givesWay), rival("Later", givesWay)});
    m_computer->addSimulator(QStringLiteral("Shared"));

    QCOMPARE(m_computer->run(words("--INSTALL")), 2);
    QCOMPARE(m_computer->said(), QStringList(installed(qPrintable(u' ' + winner))));
    QCOMPARE(m_computer->records().size(), 1);
    QCOMPARE(m_computer->records().at(0).toObject().value(QLatin1String("name")), winner);
    QCOMPARE(m_computer->run(words("--REPAIR")), 0);
    QCOMPARE(m_computer->said(),
             QStringList(updated(qPrintable(winner + QLatin1String(": Updated")))));
}

void TestUnattendedSimulators::editsSeparateConfigurationsForTwoFolders_data()
{
    restoresALostFile_data();
}

// Each gets its own configuration instead of the one that both would edit.
void TestUnattendedSimulators::editsSeparateConfigurationsForTwoFolders()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QJsonArray catalogue;
    QJsonArray records;
    for (const char *name : {"First", "Later"}) {
        const QString simulator = QLatin1String(name);
        const QString solution = QStringLiteral("Maker/%1 own/dll.xml").arg(simulator);
        QJsonObject entry = rival(name, conflict("solution", solution));
        entry.insert(QStringLiteral("path"), m_computer->folder(simulator));
        m_computer->addSimulator(simulator);
        catalogue.append(entry);
        records.prepend(m_computer->recordFor(entry));
    }
    m_computer->setCatalogue(catalogue);
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run(arguments), status);
    for (const QJsonValue entry : catalogue)
        m_computer->putPlugin(&expected, entry.toObject());
    for (const char *name : {"First own", "Later own"})
        put(&expected, m_computer->configuration(QLatin1String(name)), launchDocument());
    m_computer->finish(&expected, records);
    Disk actual = m_computer->disk();
    for (const QString &path : actual.keys()) {
        if (path.endsWith(QLatin1String(".bak")))
            actual.remove(path);
    }
    QCOMPARE(difference(actual, expected), QString());
}

// An earlier record gives the folder back to the entry that has to give it up.
void TestUnattendedSimulators::repairsBothRecordedEntries()
{
    const QJsonObject first = rival("First", conflict("check_file", true));
    const QJsonObject later = rival("Later", conflict("check_file", true));
    m_computer->setCatalogue({first, later});
    m_computer->addPlugin(QStringLiteral("Shared"), 0);
    QJsonObject record = m_computer->recordFor(m_computer->entry(QStringLiteral("Shared"), 0));
    record.insert(QStringLiteral("name"), QStringLiteral("First"));
    m_computer->setRecords({record});

    QCOMPARE(m_computer->run(words("--REPAIR")), 0);
    QCOMPARE(m_computer->said(), QStringList(updated("Later: Updated\nFirst: Updated")));
    QCOMPARE(m_computer->records().size(), 2);
}

QTEST_GUILESS_MAIN(TestUnattendedSimulators)
#include "tst_UnattendedSimulators.moc"
