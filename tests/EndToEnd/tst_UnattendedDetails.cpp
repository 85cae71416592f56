#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"

#include <QFileInfo>
#include <QtTest>

using namespace Tests;

// Less obvious consequences of a run's steps.
class TestUnattendedDetails : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void removesAPartialInstallationFirst();
    void deletesAnEmptiedFolderWithHiddenFiles();
    void prefersTheDetectedFolder_data();
    void prefersTheDetectedFolder();
    void repairsNoPartialInstallation();
    void replacesAPlaceholderInASimulatorsName();
    void removesAnEntryThatItDoesNotAdd();
    void usesTheLaterOfTwoEntriesInOneFolder();
    void installsTheLaterOfTwoEntriesFirst();
    void showsAFailedCopyBeforeTheNextInstallation();
    void writesTheLauncherPath();
    void writesSingleBackslashesInTheLauncherPath();
    void detectsSimulatorsOnTheComputer_data();
    void detectsSimulatorsOnTheComputer();

private:
    const QString m_det = QStringLiteral("Det");
    QScopedPointer<Computer> m_computer;
};

static QJsonObject with(QJsonObject entry, const char *key, const QJsonValue &value)
{
    entry.insert(QLatin1String(key), value);
    return entry;
}

static QJsonObject file(const char *source, const char *destination)
{
    return {{QStringLiteral("source"), QLatin1String(source)},
            {QStringLiteral("destination"), QLatin1String(destination)}};
}

static QJsonObject withFilesToDelete(const QJsonObject &entry)
{
    const auto operation = [](const char *root, const char *path) {
        return QJsonObject{{QStringLiteral("root"), QLatin1String(root)},
                           {QStringLiteral("path"), QLatin1String(path)}};
    };
    const QJsonArray files{operation("-1", "x.cfg"), operation("8", "/y.cfg")};
    QJsonObject config = entry.value(QLatin1String("config")).toObject();
    const QJsonObject removal = config.value(QLatin1String("remove")).toObject();
    config.insert(QStringLiteral("remove"), with(removal, "files", files));
    return with(entry, "config", config);
}

void TestUnattendedDetails::init()
{
    m_computer.reset(new Computer);
}

void TestUnattendedDetails::cleanup()
{
    m_computer.reset();
}

// The entry moves after the others, which shows that it was removed and added again.
void TestUnattendedDetails::removesAPartialInstallationFirst()
{
    const QJsonObject entry = withFilesToDelete(m_computer->entry(m_det, 0));
    m_computer->setCatalogue({entry});
    m_computer->addSimulator(m_det);
    QByteArray before = othersConfiguration();
    before.insert(before.indexOf("    <Launch.Addon>"),
                  "    <Launch.Addon>\r\n        <Name>Quillmont Orbwell</Name>\r\n"
                  "        <Disabled>True</Disabled>\r\n    </Launch.Addon>\r\n");
    const QString configuration = m_computer->configuration(m_det);
    m_computer->write(configuration, before);
    Disk expected = m_computer->disk();
    m_computer->write(QStringLiteral("sims/Det\\x.cfg"), "extra");
    m_computer->write(QStringLiteral("home/y.cfg"), "extra");

    QCOMPARE(m_computer->run(quietInstallation()), 2);
    m_computer->putPlugin(&expected, entry);
    put(&expected, configuration, ourConfiguration());
    put(&expected, backupOf(configuration, "uninstallation"), before);
    put(&expected, backupOf(configuration, "installation"), othersConfiguration());
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
    QVERIFY(!QFileInfo::exists(m_computer->absolute(QStringLiteral("home/y.cfg"))));
}

void TestUnattendedDetails::deletesAnEmptiedFolderWithHiddenFiles()
{
    const QJsonObject entry = m_computer->entry(m_det, 1);
    m_computer->setCatalogue({entry});
    m_computer->write(QStringLiteral("sims/Det/Resources/plugins/.hidden"), "stays");
    Disk expected = m_computer->disk();
    m_computer->write(QStringLiteral("sims/Det/Resources/plugins/Orbwell/about.txt"), "old");
    m_computer->write(QStringLiteral("sims/Det/Resources/plugins/Orbwell/.hidden"), "goes");
    m_computer->write(QStringLiteral("sims/Det/Resources/plugins/Orbwell/64/.hidden"), "goes");

    QCOMPARE(m_computer->run(quietInstallation()), 2);
    m_computer->putPlugin(&expected, entry);
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedDetails::prefersTheDetectedFolder_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("install") << quietInstallation() << 2;
    QTest::newRow("repair") << QStringList(QStringLiteral("--REPAIR")) << 0;
    QTest::newRow("uninstall") << QStringList(QStringLiteral("--UNINSTALL")) << 0;
}

// The record names a folder with all files, but the scan rewrites the record before it is read.
void TestUnattendedDetails::prefersTheDetectedFolder()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    const QJsonObject entry = m_computer->entry(m_det, 1);
    m_computer->setCatalogue({entry});
    m_computer->addSimulator(m_det);
    const QString before = QStringLiteral("Before");
    m_computer->addPlugin(before, 1);
    m_computer->setRecords(
        {with(m_computer->recordFor(m_computer->entry(before, 1)), "name", m_det)});
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run(arguments), status);
    m_computer->putPlugin(&expected, entry);
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedDetails::repairsNoPartialInstallation()
{
    const QJsonObject entry = m_computer->hiddenEntry(m_det, 1);
    m_computer->setCatalogue({entry});
    m_computer->write(QStringLiteral("sims/Det/Resources/plugins/Orbwell/about.txt"), "old");
    m_computer->setRecords({m_computer->recordFor(entry)});
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run({QStringLiteral("--REPAIR")}), 0);
    QCOMPARE(m_computer->said(), QStringList());
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

// The summary's lines are inserted before its status word, so a "%1" in them is replaced.
void TestUnattendedDetails::replacesAPlaceholderInASimulatorsName()
{
    const QJsonObject entry = m_computer->hiddenEntry(QStringLiteral("Rec %1"), 1);
    m_computer->setCatalogue({entry});
    m_computer->addPlugin(QStringLiteral("Rec %1"), 1);
    m_computer->setRecords({m_computer->recordFor(entry)});

    QCOMPARE(m_computer->run({QStringLiteral("--REPAIR")}), 0);
    QCOMPARE(m_computer->said().value(0).section(u'\n', -1),
             QStringLiteral("Rec updated: Updated"));
}

void TestUnattendedDetails::removesAnEntryThatItDoesNotAdd()
{
    const QJsonObject entry = with(m_computer->entry(m_det, 0), "root", QStringLiteral("1"));
    m_computer->setCatalogue({entry});
    m_computer->addSimulator(m_det);
    const QString configuration = m_computer->configuration(m_det);
    m_computer->write(configuration, ourConfiguration());
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run(quietInstallation()), 2);
    m_computer->putPlugin(&expected, entry);
    put(&expected, configuration, othersConfiguration());
    put(&expected, backupOf(configuration, "uninstallation"), ourConfiguration());
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

// Both have the same files: the first one installs them, and the other one finds them.
void TestUnattendedDetails::usesTheLaterOfTwoEntriesInOneFolder()
{
    const QJsonObject first = m_computer->entry(m_det, 1);
    const QJsonArray others{
        file("FSX\\QuillmontOrbwell_64.dll", "Resources/plugins/Orbwell/64/lin.xpl"),
        file("X-Plane\\about.txt", "Resources/plugins/Orbwell/about.txt")};
    const QJsonObject later = with(with(first, "files", others), "name", QStringLiteral("Later"));
    m_computer->setCatalogue({first, later});
    m_computer->addSimulator(m_det);
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run({QStringLiteral("--INSTALL")}), 2);
    QCOMPARE(m_computer->said(),
             QStringList(QStringLiteral("Quillmont Orbwell Settings: Quillmont Orbwell have "
                                        "successfully installed Orbwell plugin to  Later.")));
    m_computer->putPlugin(&expected, with(first, "files", others));
    const QJsonObject record = m_computer->recordFor(first);
    m_computer->finish(&expected, {with(record, "name", QStringLiteral("Later")), record});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedDetails::installsTheLaterOfTwoEntriesFirst()
{
    const QJsonObject later = with(m_computer->entry(m_det, 1), "name", QStringLiteral("Later"));
    m_computer->setCatalogue({with(m_computer->entry(m_det, 0), "type", 1), later});
    m_computer->addSimulator(m_det);
    QCOMPARE(m_computer->run({QStringLiteral("--INSTALL")}), 2);
    QCOMPARE(m_computer->said(),
             QStringList(QStringLiteral("Quillmont Orbwell Settings: Quillmont Orbwell have "
                                        "successfully installed Orbwell plugin to  Later Det.")));
}

// And under that one's name; the failed installation itself is reported as successful.
void TestUnattendedDetails::showsAFailedCopyBeforeTheNextInstallation()
{
    const QString next = QStringLiteral("Next");
    const QJsonObject broken = with(
        m_computer->entry(m_det, 1), "files", QJsonArray{file("absent.dll", "Gauges/absent.dll")});
    m_computer->setCatalogue({m_computer->entry(next, 1), broken});
    m_computer->addSimulator(m_det);
    m_computer->addSimulator(next);
    const QString line
        = QStringLiteral("Unable to copy '%1/plugins/absent.dll' to '%2/Gauges/absent.dll'. Please "
                         "check if you have permission to folder '%2/'.\r\n")
              .arg(m_computer->program().folder(), m_computer->folder(m_det));
    const QString box
        = QStringLiteral("Uninstall: Quillmont Orbwell was not able to uninstall your Orbwell "
                         "plugin from Next.\r\n\r\nPlease see the list below for details:\r\n\r\n")
        + line;

    QCOMPARE(m_computer->run({QStringLiteral("--INSTALL")}), 2);
    QCOMPARE(m_computer->said(),
             QStringList({box,
                          QStringLiteral("Quillmont Orbwell Settings: Quillmont Orbwell have "
                                         "successfully installed Orbwell plugin to  Det Next.")}));
    QCOMPARE(m_computer->records(),
             QJsonArray({m_computer->recordFor(broken),
                         m_computer->recordFor(m_computer->entry(next, 1))}));
}

// The maker's other programs expect the same file name on every system.
void TestUnattendedDetails::writesTheLauncherPath()
{
    m_computer->setCatalogue({});
    Disk expected;
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    m_computer->finish(&expected, {});
    put(&expected, m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping")), "");
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedDetails::writesSingleBackslashesInTheLauncherPath()
{
    const Sandbox sandbox;
    Program program(sandbox, nullptr, QStringLiteral(R"(one\two\\\three)"));
    writeFile(program.folder() + QLatin1String("/flightsims.json"), "[]");
    program.start(quietInstallation());
    QCOMPARE(program.exitStatus(), 2);
    QCOMPARE(
        QString::fromUtf8(readFile(sandbox.dataRoot() + QLatin1String("Quillmont/Orbwell/.path"))),
        sandbox.path(QStringLiteral(R"(one\two\\three/QuillmontOrbwell.exe)")));
}

void TestUnattendedDetails::detectsSimulatorsOnTheComputer_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("times");
    QTest::newRow("once for an installation") << quietInstallation() << 1;
    QTest::newRow("again after each removal") << QStringList(QStringLiteral("--UNINSTALL")) << 3;
    QTest::newRow("again after each repair") << QStringList(QStringLiteral("--REPAIR")) << 5;
}

// Two simulators lack the plugin.
void TestUnattendedDetails::detectsSimulatorsOnTheComputer()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, times);
    const QString other = QStringLiteral("Other");
    m_computer->addSimulator(m_det);
    m_computer->addSimulator(other);
    m_computer->setCatalogue({m_computer->entry(m_det, 1), m_computer->entry(other, 1)});
    m_computer->run(arguments);
    const QByteArray line = "folder: " + m_computer->folder(m_det).toUtf8() + '\n';
    QCOMPARE(m_computer->program().standardError().count(line), times);
}

QTEST_GUILESS_MAIN(TestUnattendedDetails)
#include "tst_UnattendedDetails.moc"
