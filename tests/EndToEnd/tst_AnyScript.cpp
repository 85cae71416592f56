#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

// In an ASCII locale: names and folders are UTF-8 nevertheless.
class TestAnyScript : public QObject
{
    Q_OBJECT

private slots:
    void worksWithPathsInAnyScript_data();
    void worksWithPathsInAnyScript();
    void worksInALongHomeFolder();
};

void TestAnyScript::worksWithPathsInAnyScript_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ASCII with spaces") << QStringLiteral("Flight Sim (x64)");
    QTest::newRow("Cyrillic") << QStringLiteral("Симулятор полёта");
    QTest::newRow("Japanese") << QStringLiteral("フライトシム 飛行");
    QTest::newRow("Greek") << QStringLiteral("Προσομοιωτής");
    QTest::newRow("emoji") << QStringLiteral("Fly ✈️🛩️");
    QTest::newRow("placeholders") << QStringLiteral("%1 of %0");
}

void TestAnyScript::worksWithPathsInAnyScript()
{
    QFETCH(const QString, name);
    const Sandbox sandbox;
    Program program(sandbox);
    program.setVariable("LC_ALL", QStringLiteral("C"));
    program.setVariable("LANG", QStringLiteral("C"));
    const QString folder = sandbox.path(name);
    const QString configuration = sandbox.dataRoot() + name + QStringLiteral("/dll.xml");
    writeFile(folder + QStringLiteral("/fsx.exe"), "");
    writeFile(configuration, othersConfiguration());
    place(program, {launcherEntry(name, folder, name + QLatin1String("\\dll.xml"))});

    program.start();
    program.window();
    QCOMPARE(program.rows().size(), 1);
    QCOMPARE(program.rows().constFirst().name, name);
    QCOMPARE(program.rows().constFirst().path, folder);
    QVERIFY(program.rows().constFirst().action.enabled);
    program.pressAction(name);
    QCOMPARE(program.box().text,
             QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to ")
                 + name + u'.');

    const QString module = folder + QStringLiteral("/Gauges/QuillmontOrbwell_64.dll");
    QCOMPARE(readFile(module), QByteArray("module"));
    QVERIFY(readFile(configuration).contains("<Name>Quillmont Orbwell</Name>"));
    QCOMPARE(backupsOf(configuration, QStringLiteral("installation")).size(), 1);
    const QJsonObject record = recordOf(name, sandbox.dataRoot());
    QCOMPARE(record.value(QLatin1String("path")).toString(), folder);
    QCOMPARE(record.value(QLatin1String("files")).toArray(), QJsonArray{module});
}

void TestAnyScript::worksInALongHomeFolder()
{
    Sandbox sandbox;
    QString home = sandbox.home();
    while (home.size() < 3000)
        home += QStringLiteral("/a folder with quite a long name, of which there are several, ")
            + QString::number(home.size());
    QVERIFY(QDir().mkpath(home));
    sandbox.setVariable("HOME", QFile::encodeName(home));
    Program program(sandbox);
    const QString folder = home + QStringLiteral("/Skylark");
    QVERIFY(QDir().mkpath(folder));
    place(program,
          {launcherEntry(QStringLiteral("Skylark"), folder, QStringLiteral("Maker\\dll.xml"))});

    program.start();
    const SeenWindow window = program.window();
    QVERIFY(window.rectangle.width() < 1000);
    QVERIFY(window.rectangle.contains(program.row(QStringLiteral("Skylark")).action.rectangle));
    program.pressAction(QStringLiteral("Skylark"));
    QCOMPARE(program.box().title, QStringLiteral("Installation complete"));
    const QString data = home + QStringLiteral("/.local/share/");
    QCOMPARE(readFile(data + QStringLiteral("Maker/dll.xml")).size(), 428);
    QVERIFY(!recordOf(QStringLiteral("Skylark"), data).isEmpty());
}

QTEST_GUILESS_MAIN(TestAnyScript)
#include "tst_AnyScript.moc"
