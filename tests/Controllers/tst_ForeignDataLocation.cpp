#include "Controllers/ConfigurationController.h"

#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QGuiApplication>
#include <QTest>

using Quillmont::Utility::Controllers::ConfigurationController;

// Here the data location does not end in the display name, and the two paths part. A program of
// its own, since the settings keep the place that they were first used with.
class TestForeignDataLocation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void gluesTheSettingsFileToTheLocation();
    void findsASettingsFileThere();
    void putsASlashInTheSharedDataFolder();

private:
    QString location() const { return m_sandbox.dataRoot() + QCoreApplication::applicationName(); }

    Tests::Sandbox m_sandbox;
};

void TestForeignDataLocation::initTestCase()
{
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Another Name"));
    ConfigurationController::instance();
}

void TestForeignDataLocation::gluesTheSettingsFileToTheLocation()
{
    ConfigurationController::instance()->saveSettings(QStringLiteral("flightsim/A"),
                                                      QStringLiteral("/a"));
    QVERIFY(QFile::exists(location() + QLatin1String("Quillmont/Vellum/.settings")));
    QVERIFY(!QFile::exists(location()));
}

void TestForeignDataLocation::findsASettingsFileThere()
{
    Tests::writeFile(location() + QLatin1String("Quillmont/Vellum/.settings"),
                     "[flightsim]\nB=/from/an/earlier/release\n");
    QCOMPARE(
        ConfigurationController::instance()->getSettings(QStringLiteral("flightsim/B")).toString(),
        QStringLiteral("/from/an/earlier/release"));
}

void TestForeignDataLocation::putsASlashInTheSharedDataFolder()
{
    QCOMPARE(ConfigurationController::appDataPath(),
             location() + QLatin1String("/Quillmont/Vellum/"));
}

QTEST_MAIN(TestForeignDataLocation)
#include "tst_ForeignDataLocation.moc"
