#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QJsonDocument>
#include <QtTest>

using namespace Tests;

class TestInstallTwice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void keepsOneRecordAtTheEnd();
    void keepsOneEntryInTheConfiguration();
    void keepsTheFirstBackup();
    void restoresADeletedFile();

private:
    void install(const QString &simulator);

    const QString m_skylark = QStringLiteral("Skylark");
    const QString m_kestrel = QStringLiteral("Kestrel");
    QString m_configuration;
    QString m_module;
    Sandbox m_sandbox;
    Program m_program{m_sandbox};
};

// Installs into one simulator, into another, and again into the first, after deleting a file there.
void TestInstallTwice::initTestCase()
{
    m_configuration = m_sandbox.dataRoot() + QStringLiteral("Maker/dll.xml");
    m_module = m_sandbox.path(QStringLiteral("Skylark/Gauges/QuillmontOrbwell_64.dll"));
    writeFile(m_configuration, othersConfiguration());
    QDir().mkpath(m_sandbox.path(m_skylark));
    QDir().mkpath(m_sandbox.path(m_kestrel));
    place(m_program,
          {launcherEntry(m_skylark, m_sandbox.path(m_skylark), QStringLiteral("Maker\\dll.xml")),
           pluginFolderEntry(m_kestrel, m_sandbox.path(m_kestrel))});
    install(m_skylark);
    install(m_kestrel);
    QVERIFY(QFile::remove(m_module));
    install(m_skylark);
}

void TestInstallTwice::install(const QString &simulator)
{
    m_program.start();
    m_program.window();
    QCOMPARE(m_program.row(simulator).action.text, QStringLiteral("Install Orbwell"));
    m_program.pressAction(simulator);
    QCOMPARE(m_program.box().title, QStringLiteral("Installation complete"));
    m_program.press(QStringLiteral("OK"));
    m_program.window();
    m_program.press(QStringLiteral("Close"));
    QCOMPARE(m_program.exitStatus(), 0);
}

void TestInstallTwice::keepsOneRecordAtTheEnd()
{
    const QJsonArray records
        = QJsonDocument::fromJson(
              readFile(m_sandbox.dataRoot() + QStringLiteral("Quillmont/Orbwell/.mapping")))
              .array();
    QCOMPARE(records.size(), 2);
    QCOMPARE(records.at(0).toObject().value(QLatin1String("name")).toString(), m_kestrel);
    QCOMPARE(records.at(1).toObject().value(QLatin1String("name")).toString(), m_skylark);
}

void TestInstallTwice::keepsOneEntryInTheConfiguration()
{
    QCOMPARE(readFile(m_configuration).count("<Name>Quillmont Orbwell</Name>"), 1);
}

void TestInstallTwice::keepsTheFirstBackup()
{
    // There is only one backup per second.
    const QStringList backups = backupsOf(m_configuration, QStringLiteral("installation"));
    QVERIFY(backups.size() == 1 || backups.size() == 2);
    const QDir beside = QFileInfo(m_configuration).dir();
    QCOMPARE(readFile(beside.filePath(backups.constFirst())), othersConfiguration());
}

void TestInstallTwice::restoresADeletedFile()
{
    QCOMPARE(readFile(m_module), QByteArray("module"));
}

QTEST_GUILESS_MAIN(TestInstallTwice)
#include "tst_InstallTwice.moc"
