#include "Controllers/ConfigurationController.h"

#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MetaObject.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QTest>

using Quillmont::Utility::Controllers::ConfigurationController;
using Tests::readFile;
using Tests::writeFile;

// The single instance keeps its first path, so all tests share one home.
class TestConfigurationController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void isASingleObjectWithoutAParent();
    void createsNoFolderUntilItWrites();
    void writesTheKeyIntoItsSection();
    void returnsWhatWasSaved_data();
    void returnsWhatWasSaved();
    void returnsTheDefaultForAMissingKey();
    void returnsTheDefaultOnlyForANull();
    void readsWhatOtherProgramsWrite();
    void keepsOtherProgramsSettings();
    void removesAKeyWithEverythingBelowIt();
    void readsAFileThatIsNotSettingsAsEmpty();
    void reportsAFailedWriteOnlyInTheLog();
    void returnsTheSharedDataFolder();
    void neverStartsWithTheSystem();
    void isAPlainObjectToTheMetaSystem();

private:
    QString settingsFolder() const { return m_sandbox.dataRoot() + QLatin1String("Quillmont/"); }

    QString settingsFile() const { return settingsFolder() + QLatin1String("Vellum/.settings"); }

    Tests::Sandbox m_sandbox;
    ConfigurationController *m_settings = nullptr;
};

void TestConfigurationController::initTestCase()
{
    m_settings = ConfigurationController::instance();
}

void TestConfigurationController::cleanup()
{
    QDir(settingsFolder()).removeRecursively();
}

void TestConfigurationController::isASingleObjectWithoutAParent()
{
    QVERIFY(m_settings);
    QCOMPARE(ConfigurationController::instance(), m_settings);
    QVERIFY(!m_settings->parent());
}

void TestConfigurationController::createsNoFolderUntilItWrites()
{
    m_settings->getSettings(QStringLiteral("flightsim/A"));
    QVERIFY(!QFile::exists(settingsFolder()));
    m_settings->saveSettings(QStringLiteral("flightsim/A"), QStringLiteral("/a"));
    QVERIFY(QFile::exists(settingsFile()));
}

void TestConfigurationController::writesTheKeyIntoItsSection()
{
    m_settings->saveSettings(QStringLiteral("flightsim/Example_Sim_2020"),
                             QStringLiteral("/games/Example Sim"));
    QCOMPARE(readFile(settingsFile()),
             QByteArray("[flightsim]\nExample_Sim_2020=/games/Example Sim\n"));
}

void TestConfigurationController::returnsWhatWasSaved_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("plain") << QStringLiteral("flightsim/A") << QStringLiteral("/a");
    QTest::newRow("empty") << QStringLiteral("flightsim/A") << QString(QLatin1String(""));
    QTest::newRow("spaces") << QStringLiteral("flightsim/A") << QStringLiteral("  /a b ");
    QTest::newRow("separators") << QStringLiteral("flightsim/A") << QStringLiteral("/a;b,c=d\"e'");
    QTest::newRow("backslashes") << QStringLiteral("flightsim/A") << QStringLiteral(R"(C:\a\x41)");
    QTest::newRow("an at sign") << QStringLiteral("flightsim/A") << QStringLiteral("@Invalid()");
    QTest::newRow("percent") << QStringLiteral("flightsim/100%1") << QStringLiteral("/100%1");
    QTest::newRow("other scripts")
        << QStringLiteral("flightsim/Símulátor_飛行_محاكي") << QStringLiteral("/дом/飛行/ü/😀");
    QTest::newRow("special characters")
        << QStringLiteral("flightsim/a[b]=c;d#e&<f>") << QStringLiteral("/[a]=b#c<d>");
}

void TestConfigurationController::returnsWhatWasSaved()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    m_settings->saveSettings(key, value);
    QCOMPARE(m_settings->getSettings(key).toString(), value);
    QCOMPARE(m_settings->getSettings(key, QStringLiteral("default")).toString(), value);

    m_settings->removeSettings(key);
    QVERIFY(!m_settings->getSettings(key).isValid());
}

void TestConfigurationController::returnsTheDefaultForAMissingKey()
{
    const QString key = QStringLiteral("flightsim/Example_Sim_2020");
    QVERIFY(!m_settings->getSettings(key).isValid());
    QCOMPARE(m_settings->getSettings(key, QString()), QVariant(QString()));
    QCOMPARE(m_settings->getSettings(key, QStringLiteral("/a")), QVariant(QStringLiteral("/a")));
    QCOMPARE(m_settings->getSettings(key, 7), QVariant(7));
}

void TestConfigurationController::returnsTheDefaultOnlyForANull()
{
    writeFile(settingsFile(), "[flightsim]\nNull=@Invalid()\nEmpty=\n");
    const QVariant other = QStringLiteral("other");
    QCOMPARE(m_settings->getSettings(QStringLiteral("flightsim/Null"), other), other);
    QCOMPARE(m_settings->getSettings(QStringLiteral("flightsim/Empty"), other),
             QVariant(QString(QLatin1String(""))));
}

void TestConfigurationController::readsWhatOtherProgramsWrite()
{
    const QString key = QStringLiteral("flightsim/A");
    m_settings->saveSettings(key, QStringLiteral("/a"));
    writeFile(settingsFile(), "[flightsim]\nA=/written/elsewhere\n");
    QCOMPARE(m_settings->getSettings(key).toString(), QStringLiteral("/written/elsewhere"));
    QFile::remove(settingsFile());
    QVERIFY(!m_settings->getSettings(key).isValid());
}

void TestConfigurationController::keepsOtherProgramsSettings()
{
    writeFile(settingsFile(), "[General]\nlanguage=de\n\n[other]\nA=/other\n");
    m_settings->saveSettings(QStringLiteral("flightsim/A"), QStringLiteral("/a"));
    m_settings->removeSettings(QStringLiteral("flightsim/A"));
    QCOMPARE(m_settings->getSettings(QStringLiteral("language")).toString(), QStringLiteral("de"));
    QCOMPARE(m_settings->getSettings(QStringLiteral("other/A")).toString(),
             QStringLiteral("/other"));
}

void TestConfigurationController::removesAKeyWithEverythingBelowIt()
{
    const QString above = QStringLiteral("flightsim/A");
    const QString below = QStringLiteral("flightsim/A/deep");
    const QString beside = QStringLiteral("flightsim/AB");
    for (const QString &key : {above, below, beside})
        m_settings->saveSettings(key, QStringLiteral("/a"));
    m_settings->removeSettings(above);
    QVERIFY(!m_settings->getSettings(above).isValid());
    QVERIFY(!m_settings->getSettings(below).isValid());
    QVERIFY(m_settings->getSettings(beside).isValid());
}

void TestConfigurationController::readsAFileThatIsNotSettingsAsEmpty()
{
    writeFile(settingsFile(), QByteArray(4096, '\0') + "\xff\xfe[[[=\n]");
    const Tests::LogCatcher log;
    QCOMPARE(m_settings->getSettings(QStringLiteral("flightsim/A"), QString()),
             QVariant(QString()));
    QCOMPARE(log.warnings(), QStringList());
}

void TestConfigurationController::reportsAFailedWriteOnlyInTheLog()
{
    // A folder in place of the file stops even root.
    QVERIFY(QDir().mkpath(settingsFile()));
    const Tests::LogCatcher log;
    m_settings->saveSettings(QStringLiteral("flightsim/A"), QStringLiteral("/a"));
    m_settings->removeSettings(QStringLiteral("flightsim/B"));
    QVERIFY(QDir(settingsFile()).isEmpty());
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
    const QString line = QStringLiteral("settings not saved: \"%1\" \"not a regular file\"");
    QCOMPARE(log.actions(), QStringList({line.arg(settingsFile()), line.arg(settingsFile())}));
}

void TestConfigurationController::returnsTheSharedDataFolder()
{
    QCOMPARE(ConfigurationController::appDataPath(),
             m_sandbox.dataRoot() + QLatin1String("Quillmont/Vellum/"));
    QVERIFY(!QFile::exists(ConfigurationController::appDataPath()));
}

void TestConfigurationController::neverStartsWithTheSystem()
{
    QVERIFY(!m_settings->startWithWindows());
    m_settings->setStartWithWindows(true);
    QVERIFY(!m_settings->startWithWindows());
    QVERIFY(!QFile::exists(settingsFolder()));
}

void TestConfigurationController::isAPlainObjectToTheMetaSystem()
{
    const QMetaObject &meta = ConfigurationController::staticMetaObject;
    QCOMPARE(meta.className(), "Quillmont::Utility::Controllers::ConfigurationController");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(Tests::ownMembers(meta), QStringList());
}

QTEST_MAIN(TestConfigurationController)
#include "tst_ConfigurationController.moc"
