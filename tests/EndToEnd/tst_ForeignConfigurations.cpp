#include "tests/EndToEnd/Simulators.h"
#include "tests/Library/Helpers/Corpus.h"
#include "tests/Library/Helpers/XmlPromises.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

// Many pilots' configuration files, one after the other for the same simulator, while the program
// is running: the plugin is installed and removed by click.
class TestForeignConfigurations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void surviveInTheRepositorysSamples_data();
    void surviveInTheRepositorysSamples();
    void surviveInOtherSamples_data();
    void surviveInOtherSamples();
    void getOneEntryForTwoPluginFiles();
    void areEditedSeparatelyByEachOfAGroup();
    void areCreatedWhenMissing();

private:
    static QJsonObject grouped(const QString &name, const QString &solution);
    QString configuration(const QString &name) const;
    QByteArray backup(const QString &file, const QString &occasion) const;
    void press(const QString &simulator);
    void checkRoundTrip();

    const QString m_skylark = QStringLiteral("Skylark");
    const QString m_twin = QStringLiteral("Twin");
    const QString m_east = QStringLiteral("East");
    const QString m_west = QStringLiteral("West");
    Sandbox m_sandbox;
    Program m_program{m_sandbox};
};

QJsonObject TestForeignConfigurations::grouped(const QString &folder, const QString &solution)
{
    QJsonObject entry
        = launcherEntry(QFileInfo(folder).fileName(), folder, QStringLiteral("Maker/shared.xml"));
    entry.insert(QStringLiteral("conflict"),
                 QJsonObject{{QStringLiteral("name"), QStringLiteral("coast")},
                             {QStringLiteral("solution"), solution}});
    return entry;
}

void TestForeignConfigurations::initTestCase()
{
    for (const QString &simulator : {m_skylark, m_twin, m_east, m_west})
        QVERIFY(QDir().mkpath(m_sandbox.path(simulator)));
    QJsonObject twin
        = launcherEntry(m_twin, m_sandbox.path(m_twin), QStringLiteral("Maker/twin.xml"));
    QJsonArray files = twin.value(QLatin1String("files")).toArray();
    files.append(QJsonObject{{QStringLiteral("source"), QStringLiteral("X-Plane/about.txt")},
                             {QStringLiteral("destination"), QStringLiteral("about.txt")}});
    twin.insert(QStringLiteral("files"), files);
    place(m_program,
          {launcherEntry(m_skylark, m_sandbox.path(m_skylark), QStringLiteral("Maker/dll.xml")),
           twin,
           grouped(m_sandbox.path(m_east), QStringLiteral("Maker/east.xml")),
           grouped(m_sandbox.path(m_west), QStringLiteral("Maker/west.xml"))});
    m_program.start();
    m_program.window();
}

void TestForeignConfigurations::init()
{
    QDir(m_sandbox.dataRoot() + QStringLiteral("Maker")).removeRecursively();
}

void TestForeignConfigurations::cleanupTestCase()
{
    m_program.press(QStringLiteral("Close"));
    QCOMPARE(m_program.exitStatus(), 0);
}

QString TestForeignConfigurations::configuration(const QString &name) const
{
    return m_sandbox.dataRoot() + QStringLiteral("Maker/") + name;
}

// The first backup of that occasion; one in the next second has later content.
QByteArray TestForeignConfigurations::backup(const QString &file, const QString &occasion) const
{
    const QStringList names = backupsOf(file, occasion);
    return names.isEmpty() ? QByteArray()
                           : readFile(QFileInfo(file).dir().filePath(names.constFirst()));
}

void TestForeignConfigurations::press(const QString &simulator)
{
    m_program.pressAction(simulator);
    m_program.box();
    m_program.press(QStringLiteral("OK"));
    m_program.window();
}

void TestForeignConfigurations::surviveInTheRepositorysSamples_data()
{
    Corpus::addRows(Corpus::own());
}

void TestForeignConfigurations::surviveInTheRepositorysSamples()
{
    checkRoundTrip();
}

void TestForeignConfigurations::surviveInOtherSamples_data()
{
    if (!QFileInfo::exists(Corpus::foreign()))
        QSKIP("no folder of files; ORBWELL_XML_CORPUS may name one");
    Corpus::addRows(Corpus::foreign());
}

void TestForeignConfigurations::surviveInOtherSamples()
{
    checkRoundTrip();
}

void TestForeignConfigurations::checkRoundTrip()
{
    QFETCH(const QString, path);
    QFETCH(const QString, expected);
    const QByteArray before = readFile(path);
    const QString file = configuration(QStringLiteral("dll.xml"));
    writeFile(file, before);

    press(m_skylark);
    const QByteArray edited = readFile(file);
    QCOMPARE(backup(file, QStringLiteral("installation")), before);
    if (expected == QLatin1String("accept"))
        QVERIFY(edited != before);
    if (expected == QLatin1String("refuse"))
        QCOMPARE(edited, before);

    press(m_skylark);
    const QByteArray after = readFile(file);
    QCOMPARE(backup(file, QStringLiteral("uninstallation")), edited);
    if (XmlPromises::isOpenedRoot(before, after))
        return;
    QCOMPARE(after, before);
    QVERIFY(edited == before || XmlPromises::isOnePieceMore(before, edited));
}

void TestForeignConfigurations::getOneEntryForTwoPluginFiles()
{
    const QString file = configuration(QStringLiteral("twin.xml"));
    writeFile(file, othersConfiguration());
    press(m_twin);
    QCOMPARE(readFile(file).count("<Name>Quillmont Orbwell</Name>"), 1);
    QVERIFY(XmlPromises::isOnePieceMore(othersConfiguration(), readFile(file)));
    QCOMPARE(backup(file, QStringLiteral("installation")), othersConfiguration());
    press(m_twin);
    QCOMPARE(readFile(file), othersConfiguration());
}

void TestForeignConfigurations::areEditedSeparatelyByEachOfAGroup()
{
    for (const char *name : {"shared.xml", "east.xml", "west.xml"})
        writeFile(configuration(QLatin1String(name)), othersConfiguration());
    press(m_east);
    QVERIFY(readFile(configuration(QStringLiteral("east.xml"))) != othersConfiguration());
    QCOMPARE(readFile(configuration(QStringLiteral("west.xml"))), othersConfiguration());
    press(m_west);
    QVERIFY(readFile(configuration(QStringLiteral("west.xml"))) != othersConfiguration());
    press(m_east);
    press(m_west);
    for (const char *name : {"shared.xml", "east.xml", "west.xml"})
        QCOMPARE(readFile(configuration(QLatin1String(name))), othersConfiguration());
    QVERIFY(backup(configuration(QStringLiteral("shared.xml")), QStringLiteral("installation"))
                .isEmpty());
}

void TestForeignConfigurations::areCreatedWhenMissing()
{
    const QString file = configuration(QStringLiteral("dll.xml"));
    press(m_skylark);
    const QByteArray made = readFile(file);
    QCOMPARE(made.size(), 428);
    QCOMPARE(made.count("<Launch.Addon>"), 1);
    QVERIFY(backup(file, QStringLiteral("installation")).isEmpty());
    press(m_skylark);
    QCOMPARE(readFile(file).count("<Launch.Addon>"), 0);
    QVERIFY(readFile(file).startsWith("<?xml version='1.0' encoding='Windows-1252'?>\r\n"));
}

QTEST_GUILESS_MAIN(TestForeignConfigurations)
#include "tst_ForeignConfigurations.moc"
