#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"

#include <QDir>
#include <QtTest>

using namespace Tests;

// The user's folders, when the environment names them in a way that Qt does not expect.
class TestUserFolders : public QObject
{
    Q_OBJECT

private slots:
    void writesNothingBesideAFolderThatCannotBeDecoded_data();
    void writesNothingBesideAFolderThatCannotBeDecoded();
    void writesNoLauncherPathThatCannotBeDecoded();
    void storesNoFolderBesideAFolderThatCannotBeDecoded();
    void usesAFolderNamedWithTheReplacementCharacter();
    void ignoresARelativeFolder();
};

// Set by a shell, since QProcessEnvironment can hold only valid text.
static void setBytes(Computer *computer, const char *variable, const QString &shellText)
{
    computer->program().setTracer(
        {QStringLiteral("bash"),
         QStringLiteral("-c"),
         QStringLiteral("cd '%1' && %2='%1/'%3 && mkdir -p \"$%2\" && export %2 && exec \"$@\"")
             .arg(computer->absolute({}).chopped(1), QLatin1String(variable), shellText),
         QStringLiteral("bash")});
}

static QString lost()
{
    return QStringLiteral("caf\uFFFD");
}

void TestUserFolders::writesNothingBesideAFolderThatCannotBeDecoded_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isThereAlready");
    for (const char *variable : {"HOME", "XDG_DATA_HOME"}) {
        for (const QStringList &arguments :
             {quietInstallation(), words("--REPAIR"), words("--UNINSTALL"), QStringList()}) {
            for (const bool isThere : {false, true})
                QTest::addRow("%s %s%s",
                              variable,
                              qPrintable(arguments.value(0)),
                              isThere ? ", a folder of the garbled name" : "")
                    << QByteArray(variable) << arguments << isThere;
        }
    }
}

void TestUserFolders::writesNothingBesideAFolderThatCannotBeDecoded()
{
    QFETCH(const QByteArray, variable);
    QFETCH(const QStringList, arguments);
    QFETCH(const bool, isThereAlready);
    Computer computer;
    const QString simulator = QStringLiteral("Det");
    computer.addSimulator(simulator);
    const QString configuration = QStringLiteral("Maker/Det/dll.xml");
    QJsonObject entry = computer.entry(simulator, 0);
    entry.insert(QStringLiteral("conflict"),
                 QJsonObject{{QStringLiteral("solution"), configuration}});
    QJsonObject config = entry.value(QLatin1String("config")).toObject();
    QJsonObject removal = config.value(QLatin1String("remove")).toObject();
    removal.insert(QStringLiteral("files"),
                   QJsonArray{QJsonObject{{QStringLiteral("root"), QStringLiteral("17")},
                                          {QStringLiteral("path"), QStringLiteral("Maker/x")}}});
    config.insert(QStringLiteral("remove"), removal);
    entry.insert(QStringLiteral("config"), config);
    computer.setCatalogue({entry});
    const QString data
        = variable == "HOME" ? QStringLiteral("/.local/share/") : QStringLiteral("/");
    if (isThereAlready) {
        computer.write(lost() + data + configuration, othersConfiguration());
        computer.write(lost() + data + configuration + QStringLiteral("_quillmont_unfinished"), {});
        computer.write(lost() + data + QStringLiteral("Maker/x"), {});
        computer.write(lost() + data + QStringLiteral("Quillmont/Orbwell/.mapping"), "[ ]");
    }
    const Disk before = treeOf(computer.absolute(lost()));
    setBytes(&computer, variable.constData(), QStringLiteral("$'caf\\xe9'"));

    const int status = computer.run(arguments);
    const QByteArray log = computer.program().standardError();
    QCOMPARE(difference(treeOf(computer.absolute(lost())), before), QString());
    QVERIFY(isThereAlready || !QFileInfo::exists(computer.absolute(lost())));
    QVERIFY2(log.contains("whose name is not valid text"), log.constData());
    if (!arguments.isEmpty()) {
        QCOMPARE(status, 2);
        QVERIFY2(log.contains("name is not valid text, so no configuration file"), log.constData());
    }
    QVERIFY(!log.contains("Proton"));
    if (arguments == words("--REPAIR"))
        QVERIFY(computer.said().constLast().endsWith(QLatin1String("Det: Not updated")));
}

// The program cannot find its own folder by such a name either, so it finds no catalogue.
void TestUserFolders::writesNoLauncherPathThatCannotBeDecoded()
{
    Computer computer;
    computer.program().setTracer(
        {QStringLiteral("bash"),
         QStringLiteral("-c"),
         QStringLiteral("folder='%1'$'caf\\xe9' && mkdir \"$folder\" && cp \"$1\" \"$folder\" && "
                        "program=\"$folder/${1##*/}\" && shift && exec \"$program\" \"$@\"")
             .arg(computer.absolute({})),
         QStringLiteral("bash")});
    computer.run(quietInstallation());
    const QByteArray log = computer.program().standardError();
    QVERIFY2(log.contains("launcher path not written"), log.constData());
    QVERIFY2(log.contains("the program's folder is not valid text"), log.constData());
    QVERIFY(treeOf(computer.absolute({})).keys().filter(QStringLiteral("/.path")).isEmpty());
}

void TestUserFolders::storesNoFolderBesideAFolderThatCannotBeDecoded()
{
    Computer computer;
    const QString simulator = QStringLiteral("Det");
    computer.addSimulator(simulator);
    computer.setCatalogue({computer.hiddenEntry(simulator, 1)});
    setBytes(&computer, "HOME", QStringLiteral("$'caf\\xe9'"));
    Program &program = computer.program();
    program.start();
    program.window();
    program.pressBrowse(simulator);
    program.chooseFolder(computer.folder(simulator));
    program.window();
    QCOMPARE(program.row(simulator).path, computer.folder(simulator));
    program.press(QStringLiteral("Close"));
    QCOMPARE(program.exitStatus(), 0);
    QVERIFY(!QFileInfo::exists(computer.absolute(lost())));
}

void TestUserFolders::usesAFolderNamedWithTheReplacementCharacter()
{
    Computer computer;
    const QString simulator = QStringLiteral("Det");
    computer.addSimulator(simulator);
    computer.setCatalogue({computer.entry(simulator, 0)});
    setBytes(&computer, "HOME", lost());
    QCOMPARE(computer.run(words("--REPAIR")), 0);
    QVERIFY(QFile::exists(
        computer.absolute(lost() + QLatin1String("/.local/share/Quillmont/Orbwell/.mapping"))));
}

void TestUserFolders::ignoresARelativeFolder()
{
    Computer computer;
    const QString simulator = QStringLiteral("Det");
    computer.addSimulator(simulator);
    const QJsonObject entry = computer.entry(simulator, 0);
    computer.setCatalogue({entry});
    computer.program().setVariable("XDG_DATA_HOME", QStringLiteral("some/where"));
    const QString working = QDir::currentPath();
    QVERIFY(QDir::setCurrent(computer.absolute({})));
    const int status = computer.run(quietInstallation());
    QVERIFY(QDir::setCurrent(working));
    QCOMPARE(status, 2);
    QVERIFY(!QFile::exists(computer.absolute(QStringLiteral("some"))));
    QCOMPARE(computer.records(), QJsonArray{computer.recordFor(entry)});
    QVERIFY(readFile(computer.absolute(computer.configuration(simulator))).size() > 0);
}

QTEST_GUILESS_MAIN(TestUserFolders)
#include "tst_UserFolders.moc"
