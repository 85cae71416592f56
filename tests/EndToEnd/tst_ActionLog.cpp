#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QtTest>

using namespace Tests;

// What support reads about a run.
class TestActionLog : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void logsAnInstallation();
    void logsARemoval();
    void logsWhyAFileWasNotCopied();
    void logsWhyAFileWasNotRemoved();
    void logsAConfigurationThatWasNotChanged();
    void logsAMissingCatalogue();
    void writesEachKindOfLineInItsCategory();
    void canBeTurnedOff();

private:
    QStringList run(const QStringList &arguments, int boxes = 0);

    std::unique_ptr<Sandbox> m_sandbox;
    std::unique_ptr<Program> m_program;
    QString m_folder;
};

void TestActionLog::init()
{
    // One home at a time: the old one restores the environment when it is deleted.
    m_program.reset();
    m_sandbox.reset();
    m_sandbox = std::make_unique<Sandbox>();
    m_program = std::make_unique<Program>(*m_sandbox);
    m_folder = m_sandbox->path(QStringLiteral("Skylark"));
    QDir().mkpath(m_folder);
    place(*m_program,
          {launcherEntry(QStringLiteral("Skylark"), m_folder, QStringLiteral("Maker\\dll.xml")),
           pluginFolderEntry(QStringLiteral("Gone"), m_sandbox->path(QStringLiteral("gone")))});
}

// The lines of one run, whose boxes are answered; paths in them begin with "$".
QStringList TestActionLog::run(const QStringList &arguments, int boxes)
{
    m_program->start(arguments);
    for (int i = 0; i < boxes; ++i) {
        m_program->box();
        m_program->press(QStringLiteral("OK"));
    }
    m_program->exitStatus();
    QString log = QString::fromUtf8(m_program->standardError());
    log.replace(QStringLiteral("//"), QStringLiteral("/"));
    log.replace(m_program->folder(), QStringLiteral("$PROGRAM"));
    log.replace(m_sandbox->dataRoot(), QStringLiteral("$DATA/"));
    log.replace(m_sandbox->root(), QStringLiteral("$ROOT"));
    const QStringList lines
        = log.split(u'\n').filter(QRegularExpression(QStringLiteral("^orbwell: ")));
    return QStringList(lines).replaceInStrings(QStringLiteral("orbwell: "), QString());
}

void TestActionLog::logsAnInstallation()
{
    const QStringList lines = run(quietInstallation());
    QVERIFY(lines.first().startsWith(QLatin1String("start of version ")));
    QVERIFY(lines.first().endsWith(QLatin1String(" in ModeInstall")));
    QCOMPARE(lines.mid(1).join(u'\n'), QStringLiteral(R"(folder made: "$DATA/Quillmont/Orbwell"
catalogue "$PROGRAM/flightsims.json" read
entries in the catalogue: 2
simulator "Gone" not found
simulator "Skylark" in "$ROOT/Skylark"
uninstall from "Skylark" in "$ROOT/Skylark"
entry is not in: "$DATA/Maker/dll.xml"
record: "Skylark" is out
written: "$DATA/Quillmont/Orbwell/.mapping"
install into "Skylark" in "$ROOT/Skylark"
folder made: "$ROOT/Skylark/Gauges"
file copied: "$PROGRAM/plugins/FSX/QuillmontOrbwell_64.dll" to "$ROOT/Skylark/Gauges/QuillmontOrbwell_64.dll"
launch document written: "$DATA/Maker/dll.xml"
entry is in: "$DATA/Maker/dll.xml"
record: "Skylark" is in
written: "$DATA/Quillmont/Orbwell/.mapping"
record: "Skylark" is in
written: "$DATA/Quillmont/Orbwell/.mapping"
launcher path written: "$DATA/Quillmont/Orbwell/.path"
folder from the record: "Skylark" "$ROOT/Skylark"
record: "Skylark" is in
written: "$DATA/Quillmont/Orbwell/.mapping"
launcher path written: "$DATA/Quillmont/Orbwell/.path"
end with status 2)"));
}

void TestActionLog::logsARemoval()
{
    run(quietInstallation());
    const QStringList lines = run({QStringLiteral("--UNINSTALL")});
    QVERIFY(lines.first().endsWith(QLatin1String(" in ModeUninstall")));
    const QString plugin = QStringLiteral("$ROOT/Skylark/Gauges");
    for (const QString &line :
         {QStringLiteral("uninstall from \"Skylark\" in \"$ROOT/Skylark\""),
          QStringLiteral("file removed: \"%1/QuillmontOrbwell_64.dll\"").arg(plugin),
          QStringLiteral("folder removed: \"%1\"").arg(plugin),
          QStringLiteral("entry is not in: \"$DATA/Maker/dll.xml\""),
          QStringLiteral("record: \"Skylark\" is out")})
        QVERIFY2(lines.contains(line), qPrintable(line));
    QCOMPARE(lines.last(), QStringLiteral("end with status 0"));
}

void TestActionLog::logsWhyAFileWasNotCopied()
{
    QDir(m_program->folder() + QStringLiteral("/plugins")).removeRecursively();
    const QStringList lines
        = run({QStringLiteral("--UNINSTALL")}, 2).filter(QStringLiteral("not copied"));
    QVERIFY(!lines.isEmpty());
    QVERIFY(lines.first().contains(QLatin1String("to \"$ROOT/Skylark/Gauges/")));
    QVERIFY2(lines.first().contains(QLatin1String("\" \"Cannot open ")), qPrintable(lines.first()));
}

void TestActionLog::logsWhyAFileWasNotRemoved()
{
    const QString module = QStringLiteral("/Gauges/QuillmontOrbwell_64.dll");
    QDir().mkpath(m_folder + module + QStringLiteral("/inside"));
    const QStringList lines
        = run({QStringLiteral("--UNINSTALL")}, 1).filter(QStringLiteral("file not removed"));
    const QString start = QStringLiteral("file not removed: \"$ROOT/Skylark%1\" \"").arg(module);
    QVERIFY(!lines.isEmpty());
    QVERIFY2(lines.first().startsWith(start), qPrintable(lines.first()));
    QVERIFY(lines.first().size() > start.size() + 5);
}

void TestActionLog::logsAConfigurationThatWasNotChanged()
{
    writeFile(m_sandbox->dataRoot() + QStringLiteral("Maker/dll.xml"), "not XML, and secret");
    const QStringList lines = run(quietInstallation());
    QVERIFY(lines.contains(QStringLiteral("entry not added to: \"$DATA/Maker/dll.xml\"")));
    QVERIFY(!m_program->standardError().contains("secret"));
}

void TestActionLog::logsAMissingCatalogue()
{
    QFile::remove(m_program->folder() + QStringLiteral("/flightsims.json"));
    const QStringList lines = run({QStringLiteral("--REPAIR")});
    QVERIFY(lines.contains(QStringLiteral("catalogue \"$PROGRAM/flightsims.json\" not read: "
                                          "\"No such file or directory\"")));
}

// Support has always searched the log for the debug lines without a category; no others are added.
void TestActionLog::writesEachKindOfLineInItsCategory()
{
    const QStringList kinds{
        QStringLiteral(
            R"(default debug (Scanning (files|folders|registry|multiple locations)\.\.\.|file: .+)"
            R"(|folder: .+|hit reg search\.\.\.|mapping path: .+)"
            R"(|file backups to '.+'\. Result: (succeed|error)))"),
        QStringLiteral("orbwell info .+"),
        QStringLiteral("orbwell\\.detection debug XP12 not taken: .+"),
        QStringLiteral("orbwell\\.xml debug configuration file not changed: .+"),
        QStringLiteral("orbwell\\.xml debug no configuration entry to add for Bare"),
        QStringLiteral("orbwell\\.file debug file not written: .+")};
    const QString configuration = QStringLiteral("Maker/dll.xml");
    const QString elsewhere = m_sandbox->path(QStringLiteral("Bare"));
    QDir().mkpath(elsewhere);
    QJsonObject bare = launcherEntry(QStringLiteral("Bare"), elsewhere, configuration);
    bare.remove(QStringLiteral("config"));
    QJsonArray entries{bare, launcherEntry(QStringLiteral("Skylark"), m_folder, configuration)};
    for (const int location : {0, 2, 4}) {
        bare.insert(QStringLiteral("location"), location);
        entries.append(bare);
    }
    place(*m_program, entries);
    writeFile(m_sandbox->dataRoot() + configuration, "not XML");
    writeFile(m_sandbox->home() + QStringLiteral("/.x-plane/x-plane_install_12.txt"), "/nowhere\n");
    QDir().mkpath(m_sandbox->dataRoot() + QStringLiteral("Quillmont/Orbwell/.path"));
    m_program->setVariable("QT_MESSAGE_PATTERN", QStringLiteral("%{category} %{type} %{message}"));
    run(quietInstallation());

    QStringList lines
        = QString::fromUtf8(m_program->standardError()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &kind : kinds) {
        const QRegularExpression line(QRegularExpression::anchoredPattern(kind));
        QVERIFY2(lines.indexOf(line) >= 0, qPrintable(kind));
        lines = lines.filter(QRegularExpression(QStringLiteral("^(?!%1$)").arg(kind)));
    }
    QCOMPARE(lines, QStringList());
}

void TestActionLog::canBeTurnedOff()
{
    m_program->setVariable("QT_LOGGING_RULES", QStringLiteral("orbwell.info=false"));
    QCOMPARE(run(quietInstallation()), QStringList());
}

QTEST_GUILESS_MAIN(TestActionLog)
#include "tst_ActionLog.moc"
