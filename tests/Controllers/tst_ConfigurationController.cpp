#include "Controllers/ConfigurationController.h"

#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MetaObject.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QSettings>
#include <QTest>

#include <sys/stat.h>

using Quillmont::Utility::Controllers::ConfigurationController;
using Tests::readFile;
using Tests::writeFile;

// The one instance keeps the place that it was made with, so all tests share one home.
class TestConfigurationController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void isOneObjectWithoutAParent();
    void makesNoFolderUntilItWrites();
    void writesTheKeyIntoItsSection();
    void keepsWhatItIsGiven_data();
    void keepsWhatItIsGiven();
    void answersTheDefaultForWhatIsNotThere();
    void answersTheDefaultForANullOnly();
    void seesWhatOthersWrite();
    void leavesOtherProgramsSettingsAlone();
    void removesAKeyAndWhatIsBelowIt();
    void readsAForeignFileAsEmpty();
    void losesAWriteThatFailsInSilence();
    void waitsForNobodyAtAPipe_data();
    void waitsForNobodyAtAPipe();
    void leavesAFileAloneThatIsTooBig();
    void survivesObjectsInTheFile_data();
    void survivesObjectsInTheFile();
    void keepsPlainObjects();
    void waitsForNoDeadLock();
    void answersTheSharedDataFolder();
    void startsNothingWithTheSystem();
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

void TestConfigurationController::isOneObjectWithoutAParent()
{
    QVERIFY(m_settings);
    QCOMPARE(ConfigurationController::instance(), m_settings);
    QVERIFY(!m_settings->parent());
}

void TestConfigurationController::makesNoFolderUntilItWrites()
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

void TestConfigurationController::keepsWhatItIsGiven_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("plain") << QStringLiteral("flightsim/A") << QStringLiteral("/a");
    QTest::newRow("empty") << QStringLiteral("flightsim/A") << QString(QLatin1String(""));
    QTest::newRow("blanks") << QStringLiteral("flightsim/A") << QStringLiteral("  /a b ");
    QTest::newRow("separators") << QStringLiteral("flightsim/A") << QStringLiteral("/a;b,c=d\"e'");
    QTest::newRow("backslashes") << QStringLiteral("flightsim/A") << QStringLiteral(R"(C:\a\x41)");
    QTest::newRow("an at sign") << QStringLiteral("flightsim/A") << QStringLiteral("@Invalid()");
    QTest::newRow("percent") << QStringLiteral("flightsim/100%1") << QStringLiteral("/100%1");
    QTest::newRow("other scripts")
        << QStringLiteral("flightsim/Símulátor_飛行_محاكي") << QStringLiteral("/дом/飛行/ü/😀");
    QTest::newRow("special characters")
        << QStringLiteral("flightsim/a[b]=c;d#e&<f>") << QStringLiteral("/[a]=b#c<d>");
}

void TestConfigurationController::keepsWhatItIsGiven()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    m_settings->saveSettings(key, value);
    QCOMPARE(m_settings->getSettings(key).toString(), value);
    QCOMPARE(m_settings->getSettings(key, QStringLiteral("default")).toString(), value);

    m_settings->removeSettings(key);
    QVERIFY(!m_settings->getSettings(key).isValid());
}

void TestConfigurationController::answersTheDefaultForWhatIsNotThere()
{
    const QString key = QStringLiteral("flightsim/Example_Sim_2020");
    QVERIFY(!m_settings->getSettings(key).isValid());
    QCOMPARE(m_settings->getSettings(key, QString()), QVariant(QString()));
    QCOMPARE(m_settings->getSettings(key, QStringLiteral("/a")), QVariant(QStringLiteral("/a")));
    QCOMPARE(m_settings->getSettings(key, 7), QVariant(7));
}

void TestConfigurationController::answersTheDefaultForANullOnly()
{
    writeFile(settingsFile(), "[flightsim]\nNull=@Invalid()\nEmpty=\n");
    const QVariant other = QStringLiteral("other");
    QCOMPARE(m_settings->getSettings(QStringLiteral("flightsim/Null"), other), other);
    QCOMPARE(m_settings->getSettings(QStringLiteral("flightsim/Empty"), other),
             QVariant(QString(QLatin1String(""))));
}

void TestConfigurationController::seesWhatOthersWrite()
{
    const QString key = QStringLiteral("flightsim/A");
    m_settings->saveSettings(key, QStringLiteral("/a"));
    writeFile(settingsFile(), "[flightsim]\nA=/written/elsewhere\n");
    QCOMPARE(m_settings->getSettings(key).toString(), QStringLiteral("/written/elsewhere"));
    QFile::remove(settingsFile());
    QVERIFY(!m_settings->getSettings(key).isValid());
}

void TestConfigurationController::leavesOtherProgramsSettingsAlone()
{
    writeFile(settingsFile(), "[General]\nlanguage=de\n\n[other]\nA=/other\n");
    m_settings->saveSettings(QStringLiteral("flightsim/A"), QStringLiteral("/a"));
    m_settings->removeSettings(QStringLiteral("flightsim/A"));
    QCOMPARE(m_settings->getSettings(QStringLiteral("language")).toString(), QStringLiteral("de"));
    QCOMPARE(m_settings->getSettings(QStringLiteral("other/A")).toString(),
             QStringLiteral("/other"));
}

void TestConfigurationController::removesAKeyAndWhatIsBelowIt()
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

void TestConfigurationController::readsAForeignFileAsEmpty()
{
    writeFile(settingsFile(), QByteArray(4096, '\0') + "\xff\xfe[[[=\n]");
    const Tests::LogCatcher log;
    QCOMPARE(m_settings->getSettings(QStringLiteral("flightsim/A"), QString()),
             QVariant(QString()));
    QCOMPARE(log.warnings(), QStringList());
}

void TestConfigurationController::losesAWriteThatFailsInSilence()
{
    // A folder in the file's place stops everybody, root included.
    QVERIFY(QDir().mkpath(settingsFile()));
    const Tests::LogCatcher log;
    m_settings->saveSettings(QStringLiteral("flightsim/A"), QStringLiteral("/a"));
    m_settings->removeSettings(QStringLiteral("flightsim/B"));
    QVERIFY(QDir(settingsFile()).isEmpty());
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
}

void TestConfigurationController::waitsForNobodyAtAPipe_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("the file") << QStringLiteral(".settings");
    QTest::newRow("the toolkit's lock file") << QStringLiteral(".settings.lock");
}

void TestConfigurationController::waitsForNobodyAtAPipe()
{
    QFETCH(QString, name);
    const QString key = QStringLiteral("flightsim/A");
    const QString pipe = QFileInfo(settingsFile()).path() + u'/' + name;
    QVERIFY(QDir().mkpath(QFileInfo(pipe).path()));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    m_settings->saveSettings(key, QStringLiteral("/a"));
    m_settings->removeSettings(key);
    QCOMPARE(m_settings->getSettings(key, QStringLiteral("/b")), QVariant(QStringLiteral("/b")));
    QVERIFY(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());
}

// A gigabyte that takes no room on the disk.
void TestConfigurationController::leavesAFileAloneThatIsTooBig()
{
    const QString key = QStringLiteral("flightsim/A");
    const QByteArray content = "[flightsim]\nA=/a\n";
    constexpr qint64 size = 1024LL * 1024 * 1024;
    writeFile(settingsFile(), content);
    QVERIFY(QFile::resize(settingsFile(), size));
    QVERIFY(!m_settings->getSettings(key).isValid());
    m_settings->saveSettings(key, QStringLiteral("/b"));
    m_settings->removeSettings(key);
    QCOMPARE(QFileInfo(settingsFile()).size(), size);
    QFile::resize(settingsFile(), content.size());
    QCOMPARE(readFile(settingsFile()), content);
}

void TestConfigurationController::survivesObjectsInTheFile_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("as big as all memory")
        << QByteArray(R"(@Variant(\x0\x0\x0\x9\x7f\xff\xff\xff))");
    const QByteArray list = R"(\0\0\0\x9\0\0\0\0\x1)";
    QTest::newRow("deeper than the stack") << "@Variant(" + list.repeated(150000) + ')';
    QTest::newRow("by its letter") << QByteArray(R"(@Variant(\0\0\0\t\x7f\xff\xff\xff\0\0\0\x43))");
    QTest::newRow("in disguise") << R"(@V\141ri\x61nt()" + list.repeated(150000) + ')';
}

void TestConfigurationController::survivesObjectsInTheFile()
{
    QFETCH(QByteArray, value);
    const QString key = QStringLiteral("flightsim/A");
    const QByteArray content = "[flightsim]\nA=\"" + value + "\"\n";
    writeFile(settingsFile(), content);
    QCOMPARE(m_settings->getSettings(key, QStringLiteral("/b")), QVariant(QStringLiteral("/b")));
    m_settings->saveSettings(QStringLiteral("flightsim/B"), QStringLiteral("/b"));
    m_settings->removeSettings(key);
    QCOMPARE(readFile(settingsFile()), content);
}

void TestConfigurationController::keepsPlainObjects()
{
    const QString other = QStringLiteral("other/font");
    const QString key = QStringLiteral("flightsim/A");
    m_settings->saveSettings(other, QFont(QStringLiteral("Serif"), 12));
    m_settings->saveSettings(key, QStringLiteral("/a"));
    QCOMPARE(m_settings->getSettings(key), QVariant(QStringLiteral("/a")));
    QCOMPARE(m_settings->getSettings(other).value<QFont>().pointSize(), 12);
}

void TestConfigurationController::waitsForNoDeadLock()
{
    const QString lock = settingsFile() + QStringLiteral(".lock");
    writeFile(lock, "999999999\nsomebody\nelsewhere\n");
    QVERIFY(QDir().mkpath(lock + QStringLiteral(".rmlock")));
    m_settings->saveSettings(QStringLiteral("flightsim/A"), QStringLiteral("/a"));
    QVERIFY(!QFile::exists(settingsFile()));
}

void TestConfigurationController::answersTheSharedDataFolder()
{
    QCOMPARE(ConfigurationController::appDataPath(),
             m_sandbox.dataRoot() + QLatin1String("Quillmont/Vellum/"));
    QVERIFY(!QFile::exists(ConfigurationController::appDataPath()));
}

void TestConfigurationController::startsNothingWithTheSystem()
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
