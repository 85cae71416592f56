#include "Controllers/UserFiles.h"

#include "Controllers/ConfigurationController.h"
#include "tests/support/Sandbox.h"

#include <QGuiApplication>
#include <QTest>

using Quillmont::Utility::Controllers::ConfigurationController;
using Quillmont::Utility::Controllers::userDataRoot;

class TestUserFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void removesTheProgramsName();
    void removesEveryOccurrenceOfTheName();
    void respectsLetterCase();
    void treatsOtherLocationsTheSame();
    void hasNoDoubledSlashInTheSharedDataFolder_data();
    void hasNoDoubledSlashInTheSharedDataFolder();

private:
    std::unique_ptr<Tests::Sandbox> m_sandbox;
};

void TestUserFiles::init()
{
    m_sandbox.reset();
    m_sandbox = std::make_unique<Tests::Sandbox>();
}

void TestUserFiles::removesTheProgramsName()
{
    QCOMPARE(userDataRoot(), m_sandbox->dataRoot());
    QCOMPARE(userDataRoot(QStandardPaths::AppDataLocation), m_sandbox->dataRoot());
}

void TestUserFiles::removesEveryOccurrenceOfTheName()
{
    m_sandbox->setVariable("HOME", "/home/" + QCoreApplication::applicationName().toUtf8() + "s");
    QVERIFY2(userDataRoot().startsWith(QLatin1String("/home/s/")), qPrintable(userDataRoot()));
    QVERIFY(userDataRoot().endsWith(u'/'));
}

void TestUserFiles::respectsLetterCase()
{
    const QByteArray home = "/home/" + QCoreApplication::applicationName().toUpper().toUtf8() + '/';
    m_sandbox->setVariable("HOME", home);
    QVERIFY2(userDataRoot().startsWith(QString::fromUtf8(home)), qPrintable(userDataRoot()));
}

void TestUserFiles::treatsOtherLocationsTheSame()
{
    m_sandbox->setVariable("HOME", "/home/" + QCoreApplication::applicationName().toUtf8() + "s");
    QCOMPARE(userDataRoot(QStandardPaths::HomeLocation), QStringLiteral("/home/s"));
}

void TestUserFiles::hasNoDoubledSlashInTheSharedDataFolder_data()
{
    QTest::addColumn<QByteArray>("home");
    QTest::addColumn<QString>("start");
    const QByteArray name = QCoreApplication::applicationName().toUtf8();
    QTest::newRow("plain") << QByteArray("/home/a") << QStringLiteral("/home/a/");
    QTest::newRow("a folder with the program's name")
        << QByteArray("/home/" + name + "/b") << QStringLiteral("/home/b/");
    QTest::newRow("three such folders")
        << QByteArray("/home/" + name + '/' + name + '/' + name + "/b")
        << QStringLiteral("/home/b/");
}

void TestUserFiles::hasNoDoubledSlashInTheSharedDataFolder()
{
    QFETCH(QByteArray, home);
    QFETCH(QString, start);
    m_sandbox->setVariable("HOME", home);
    const QString path = ConfigurationController::appDataPath();
    QVERIFY2(path.startsWith(start), qPrintable(path));
    QVERIFY2(path.endsWith(QLatin1String("/Quillmont/Vellum/")), qPrintable(path));
    QVERIFY2(!path.contains(QLatin1String("//")), qPrintable(path));
}

QTEST_MAIN(TestUserFiles)
#include "tst_UserFiles.moc"
