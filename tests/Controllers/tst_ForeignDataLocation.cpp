#include "Controllers/ConfigurationController.h"

#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QGuiApplication>
#include <QTest>

using Quillmont::Utility::Controllers::ConfigurationController;

// The data location does not end with the display name here, so the two paths differ. A separate
// program, since the settings keep their first path.
class TestForeignDataLocation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void appendsTheSettingsFileWithoutASeparator();
    void readsASettingsFileThere();
    void endsTheSharedDataFolderWithASlash();

private:
    QString location() const { return m_sandbox.dataRoot() + QCoreApplication::applicationName(); }

    Tests::Sandbox m_sandbox;
};

void TestForeignDataLocation::initTestCase()
{
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Another Name"));
    ConfigurationController::instance();
}

void TestForeignDataLocation::appendsTheSettingsFileWithoutASeparator()
{
    ConfigurationController::instance()->saveSettings(QStringLiteral("flightsim/A"),
                                                      QStringLiteral("/a"));
    QVERIFY(QFile::exists(location() + QLatin1String("Quillmont/Vellum/.settings")));
    QVERIFY(!QFile::exists(location()));
}

void TestForeignDataLocation::readsASettingsFileThere()
{
    Tests::writeFile(location() + QLatin1String("Quillmont/Vellum/.settings"),
                     "[flightsim]\nB=/from/an/earlier/release\n");
    QCOMPARE(
        ConfigurationController::instance()->getSettings(QStringLiteral("flightsim/B")).toString(),
        QStringLiteral("/from/an/earlier/release"));
}

void TestForeignDataLocation::endsTheSharedDataFolderWithASlash()
{
    QCOMPARE(ConfigurationController::appDataPath(),
             location() + QLatin1String("/Quillmont/Vellum/"));
}

QTEST_MAIN(TestForeignDataLocation)
#include "tst_ForeignDataLocation.moc"
