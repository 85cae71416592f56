#include "tests/Catalogue/CatalogueSchema.h"
#include "tests/Documents/TranslatedTexts.h"
#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/DoctorsPlan.h"
#include "tests/EndToEnd/PilotsHome.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/EndToEnd/Tracer.h"
#include "tests/support/Command.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"
#include "tests/support/Literals.h"
#include "tests/support/Unprivileged.h"

#include <QDir>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

#include <filesystem>
#include <functional>

#include <sys/stat.h>
#include <unistd.h>

using namespace Tests;

using Deed = std::function<void(Computer *)>;
Q_DECLARE_METATYPE(Deed)

/// orbwell-doctor beside the program, on a computer with "Skylark" (type 0) and "Kestrel" (type 1).
class TestReport : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void cleanup() { m_computer.reset(); }

    void reportsEachProblem_data();
    void reportsEachProblem();

    void changesNothingAndFollowsItsSchema_data() { reportsEachProblem_data(); }

    void changesNothingAndFollowsItsSchema();
    void examinesOnlyTheNamedSimulators();
    void escapesALineBreakInAName();
    void reportsFoldersThatAreNotWritable();
    void looksForRoomOnBothDisks();
    void listsTheWorstProblemFirst();
    void reportsHowASimulatorWasFound();
    void saysWhyItDidNotFindASimulator_data();
    void saysWhyItDidNotFindASimulator();
    void examinesAPilotsComputer();
    void doesNotShowOtherProgramsEntries();
    void givesACommandThatRestoresABackup();
    void offersTheNewestBackupThatHelps();
    void refusesUnknownOptions_data();
    void refusesUnknownOptions();
    void saysThatItsAnswerIsLost_data();
    void saysThatItsAnswerIsLost();
    void writesNoColoursIntoAFile();
    void speaksTheLanguageOfItsUser_data();
    void speaksTheLanguageOfItsUser();
    void foldsItsLinesToANarrowTerminal();

private:
    CommandResult run(const QStringList &arguments);
    QString allThatIsSaid(const QString &locale, const QStringList &format);
    QJsonObject report(const QString &simulator);
    void installEverywhere();

    QScopedPointer<Computer> m_computer;
};

void TestReport::init()
{
    m_computer.reset(new Computer);
    m_computer->setCatalogue(
        {m_computer->entry("Skylark"_s, 0), m_computer->entry("Kestrel"_s, 1)});
    m_computer->addSimulator("Skylark"_s);
    m_computer->addSimulator("Kestrel"_s);
    m_computer->write(m_computer->configuration("Skylark"_s), othersConfiguration());
}

CommandResult TestReport::run(const QStringList &arguments)
{
    return runDoctor(*m_computer, arguments);
}

QJsonObject TestReport::report(const QString &simulator)
{
    const QByteArray json = run({"--json"_s, "--"_s, simulator}).output;
    return QJsonDocument::fromJson(json).object().value("simulators"_s).toArray().at(0).toObject();
}

// The first place.
static QString turnedDown(const QJsonObject &report)
{
    const QJsonObject place = report.value("turnedDown"_s).toArray().at(0).toObject();
    return place.isEmpty() ? QString()
                           : "%1 (%2): %3"_s.arg(place.value("path"_s).toString(),
                                                 place.value("namedBy"_s).toString(),
                                                 place.value("reason"_s).toString());
}

// With the file in its place that the entry names.
void TestReport::installEverywhere()
{
    m_computer->write("sims/Skylark/GaugesQuillmontOrbwell_64.dll"_s, "x");
    QCOMPARE(m_computer->run(quietInstallation()), 2);
}

void TestReport::reportsEachProblem_data()
{
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const char *name, const char *sentence, const Deed &deed) {
        QTest::newRow(name) << deed << QString::fromUtf8(sentence);
    };
    const auto edit = [](const char *before, const char *after) {
        return [before, after](Computer *computer) {
            const QString file = computer->configuration("Skylark"_s);
            QByteArray text = readFile(computer->absolute(file));
            computer->write(file, text.replace(before, after));
        };
    };
    const auto lose = [](const char *path) {
        return [path](Computer *computer) {
            QVERIFY(QFile::remove(computer->absolute(QLatin1String(path))));
        };
    };
    row("nothing", "", [](Computer *) {});
    row("a file is missing",
        "Only a part of the plugin is there; \"Resources/plugins/Orbwell/about.txt\" is missing.",
        lose("sims/Kestrel/Resources/plugins/Orbwell/about.txt"));
    row("another version",
        "\"Resources/plugins/Orbwell/about.txt\" differs from the file that comes with this "
        "program: another version, or damaged.",
        [](Computer *computer) {
            computer->write("sims/Kestrel/Resources/plugins/Orbwell/about.txt"_s, "aboux");
        });
    row("dangling link",
        "In the place of \"Gauges/QuillmontOrbwell_64.dll\" is a link that leads nowhere.",
        [](Computer *computer) {
            const QString file
                = computer->absolute("sims/Skylark/Gauges/QuillmontOrbwell_64.dll"_s);
            QVERIFY(QFile::remove(file) && QFile::link("nowhere"_s, file));
        });
    row("payload incomplete",
        "/program/plugins/X-Plane/about.txt\", so it cannot be installed.",
        [](Computer *computer) {
            QFile::remove(computer->program().folder() + "/plugins/X-Plane/about.txt"_s);
        });
    row("configuration damaged",
        "is damaged. <Launch.Addon> in line 4 is never closed; </SimBase.Document> in line 12 came "
        "first.",
        edit("        <Path>Modules\\etude.dll</Path>\r\n    </Launch.Addon>\r\n", ""));
    row("control characters in a tag",
        "is damaged. <A\\u001b[2J> in line 1 is never closed; </R> in line 1 came first.",
        [](Computer *computer) {
            computer->write(computer->configuration("Skylark"_s), "<R><A\x1b[2J></R>");
        });
    row("no room", " bytes; what is written there takes ", [](Computer *computer) {
        const QString file = computer->program().folder() + "/plugins/X-Plane/about.txt"_s;
        const auto space = std::filesystem::space(QFile::encodeName(file).toStdString());
        // The file is sparse.
        QVERIFY(QFile::resize(file, static_cast<qint64>(space.available) + (1LL << 30)));
    });
    row("configuration missing", "dll.xml\" is missing.", [](Computer *computer) {
        QFile::remove(computer->absolute(computer->configuration("Skylark"_s)));
    });
    row("no entry", "dll.xml\" has no entry for it.", [](Computer *computer) {
        computer->write(computer->configuration("Skylark"_s), othersConfiguration());
    });
    row("duplicate entry", "dll.xml\" 2 times.", [](Computer *computer) {
        computer->write(computer->configuration("Skylark"_s),
                        ourConfiguration().replace("</SimBase.Document>",
                                                   pluginEntry() + "</SimBase.Document>"));
    });
    row("entry disabled",
        "dll.xml\" is disabled.",
        edit("Quillmont Orbwell</Name>\r\n        <Disabled>False",
             "Quillmont Orbwell</Name>\r\n        <Disabled>True"));
    row("entry with a missing file",
        "names the file \"GaugesQuillmontOrbwell_64.dll\", which is missing.",
        lose("sims/Skylark/GaugesQuillmontOrbwell_64.dll"));
    row("entry without files",
        "dll.xml\" has an entry for the plugin, whose files are not there.",
        lose("sims/Skylark/Gauges/QuillmontOrbwell_64.dll"));
    const auto become = [](const QByteArray &text, bool hasBackups) {
        return [text, hasBackups](Computer *computer) {
            const QFileInfo file(computer->absolute(computer->configuration("Skylark"_s)));
            for (const QString &name : file.dir().entryList({"*.bak"_s}))
                QVERIFY(hasBackups || file.dir().remove(name));
            writeFile(file.filePath(), text);
        };
    };
    const QByteArray page = "<?xml version='1.0'?>\n<!-- --><html><body/></html>";
    row("web page", "dll.xml\" is a web page. Put the backup of 2", become(page, true));
    row("web page without a backup",
        "dll.xml\" is a web page. Move it away; until then the simulator may load no add-on at "
        "all.",
        become(page, false));
    row("damaged with a backup",
        "</R> in line 1 closes nothing: no <R> is open there. Put the backup of 2",
        become("<A></R>", true));
    row("damaged without a backup",
        "</R> in line 1 closes nothing: no <R> is open there. Mend the file by hand; until then ",
        become("<A></R>", false));
    row("a second entry that is disabled",
        "Our entry: there 2 times, disabled, for no named file",
        become("<R><Launch.Addon><Name>Quillmont Orbwell</Name></Launch.Addon><Launch.Addon><Name>"
               "Quillmont Orbwell</Name><Disabled>True</Disabled></Launch.Addon></R>",
               true));
    row("a second entry that leads nowhere",
        "names the file \"gone.dll\", which is missing.",
        become("<R><Launch.Addon><Name>Quillmont Orbwell</Name></Launch.Addon><Launch.Addon><Name>"
               "Quillmont Orbwell</Name><Path>gone.dll</Path></Launch.Addon></R>",
               true));
    row("configuration is big",
        "cannot be read: too big. Move it away, or make it smaller by hand.",
        become(QByteArray(33 * 1024 * 1024, ' '), true));
    row("configuration is a folder",
        "cannot be read: not a regular file. Move it away.\n",
        [](Computer *computer) {
            const QString file = computer->absolute(computer->configuration("Skylark"_s));
            QVERIFY(QFile::remove(file) && QDir().mkdir(file));
        });
    row("no Proton prefix", "  Configuration: no Proton prefix\n", [](Computer *computer) {
        QJsonObject entry = computer->entry("Skylark"_s, 0);
        QJsonObject config = entry.value("config"_s).toObject();
        config.insert("steam"_s, 314160);
        entry.insert("config"_s, config);
        computer->setCatalogue({entry, computer->entry("Kestrel"_s, 1)});
    });
    row("damaged record", ".mapping\" is damaged; what it said is lost.", [](Computer *computer) {
        computer->write(computer->data("Quillmont/Orbwell/.mapping"_s), "[{");
    });
    row("not recorded",
        "The plugin is there, but not in the installation record.",
        [](Computer *computer) { computer->setRecords({}); });
    row("recorded elsewhere",
        "Unattended runs work on the first, the window on the second.",
        [](Computer *computer) {
            QJsonObject record = computer->recordFor(computer->entry("Kestrel"_s, 1));
            record.insert("path"_s, computer->absolute("elsewhere"_s));
            computer->setRecords({computer->recordFor(computer->entry("Skylark"_s, 0)), record});
        });
    const auto recordsWren = [](Computer *computer) {
        QJsonArray records = computer->records();
        records.append(computer->recordFor(computer->entry("Wren"_s, 1)));
        computer->setRecords(records);
    };
    row("stranger in the record, gone", "", recordsWren);
    row("stranger in the record",
        "/sims/Wren\", which the catalogue no longer knows.",
        [recordsWren](Computer *computer) {
            computer->addSimulator("Wren"_s);
            recordsWren(computer);
        });
    row("no record",
        "The plugin is there, but not in the installation record.",
        [](Computer *computer) {
            QFile::remove(computer->absolute(computer->data("Quillmont/Orbwell/.mapping"_s)));
        });
    const auto link = [](const QString &path, const QString &target) {
        return [path, target](Computer *computer) {
            QDir(computer->absolute(path)).removeRecursively();
            QFile::remove(computer->absolute(path));
            QVERIFY(QFile::link(target, computer->absolute(path)));
        };
    };
    const Computer any;
    const QString record = any.data("Quillmont/Orbwell/.mapping"_s);
    row("dead link for a folder",
        "/sims/Kestrel/Resources\" is a link that leads nowhere.",
        link("sims/Kestrel/Resources"_s, "nowhere"_s));
    row("file for a folder",
        "/sims/Kestrel/Resources\" is a file where a folder has to be.",
        [link](Computer *computer) {
            link("sims/Kestrel/Resources"_s, "nowhere"_s)(computer);
            computer->write("sims/Kestrel/nowhere"_s, "");
        });
    row("configuration is a dead link",
        "dll.xml\" is a link that leads nowhere.",
        link(any.configuration("Skylark"_s), "no/where"_s));
    row("record is a dead link", "Nothing can be recorded: \"", link(record, "no/where"_s));
    row("record's link can be followed",
        "The plugin is there, but not in the installation record.",
        link(record, "elsewhere"_s));
    row("deleted chosen folder", "Its folder \"/nowhere/at all\" is gone.", [](Computer *computer) {
        computer->write(computer->data("Quillmont/Vellum/.settings"_s),
                        "[flightsim]\nKestrel=/nowhere/at all\n");
    });
}

void TestReport::reportsEachProblem()
{
    QFETCH(const Deed, deed);
    QFETCH(const QString, sentence);
    installEverywhere();
    deed(m_computer.get());
    const CommandResult result = run({});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.status, sentence.isEmpty() ? 0 : 1);
    const QString text = QString::fromUtf8(result.output);
    QVERIFY2(text.contains(sentence), result.output.constData());
    QVERIFY(text.contains(sentence.isEmpty() ? "Nothing is wrong."_s : "What to do:\n  1. "_s));
}

// All tasks, with the name of an existing simulator.
static QVector<QStringList> allArguments()
{
    return {{},
            {"--plan"_s},
            {"--plan=repair"_s},
            {"--plan=uninstall"_s, "Kestrel"_s},
            {"--check-catalogue"_s}};
}

// Locks and files opened for writing count as well. Its output goes to a pipe.
static bool mayChangeAnything(const SystemCall &call)
{
    static const QRegularExpression harmless(
        "^(access|arch_prctl|brk|clock_|close|epoll|eventfd|execve|exit|faccessat|fcntl|fstat|"
        "futex|"
        "get|ioctl|lseek|lstat|mmap|mprotect|mremap|munmap|newfstatat|pipe|poll|ppoll|pread|"
        "prlimit|"
        "read|rseq|rt_sig|sched_get|set_robust|set_tid|stat|statfs|statx|sysinfo|umask|uname)"_s);
    static const QRegularExpression writing(
        "O_(WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE)|F_(OFD_)?SETLK"_s);
    if (call.name.startsWith("open"_s) || call.name.startsWith("fcntl"_s))
        return call.text.contains(writing);
    if (call.name == "write"_s || call.name == "writev"_s)
        return !call.text.contains(QRegularExpression("write(v)?\\([12]<"_s));
    return !call.name.contains(harmless);
}

void TestReport::changesNothingAndFollowsItsSchema()
{
    QFETCH(const Deed, deed);
    CatalogueSchema schema(QStringLiteral(ORBWELL_SOURCE "/docs/doctor.schema.json"));
    const bool canTrace = ORBWELL_SANITIZERS == 0 && Tracer::works();
    installEverywhere();
    deed(m_computer.get());
    run({"--version"_s}); // puts it in its place
    const auto before = m_computer->disk();
    const QString log = m_computer->absolute("calls"_s);
    for (const QStringList &arguments : allArguments()) {
        QStringList command = canTrace ? Tracer::recording(log) : QStringList();
        command += {m_computer->program().folder() + "/orbwell-doctor"_s, "--json"_s};
        const QString first = command.takeFirst();
        const QByteArray answer = Command(first, command + arguments).run().output;
        if (schema.problem().isEmpty() || !CatalogueSchema::maySkip())
            QCOMPARE(schema.complaints(answer), QStringList());
        const auto calls = canTrace ? Tracer::callsIn(log) : QVector<SystemCall>();
        QVERIFY(!canTrace || calls.size() > 50);
        for (const SystemCall &call : calls)
            QVERIFY2(!mayChangeAnything(call), qPrintable(call.text));
    }
    QCOMPARE(difference(m_computer->disk(), before), QString());
    if (!canTrace || !schema.problem().isEmpty())
        QSKIP(
            "needs strace, the right to trace a process, no sanitizer, and jsonschema to see all");
}

void TestReport::examinesOnlyTheNamedSimulators()
{
    m_computer->write(m_computer->data("Quillmont/Orbwell/.mapping"_s), "{");
    QCOMPARE(run({}).status, 1);
    QCOMPARE(run({"Kestrel"_s}).status, 0);
    const QByteArray text = run({"Kestrel"_s}).output;
    QVERIFY(text.contains("Nothing is wrong."));
    QVERIFY(text.contains("Kestrel: the plugin is not installed"));
    QVERIFY(!text.contains("Skylark"));
}

void TestReport::escapesALineBreakInAName()
{
    const QString name = "Wren\nNothing is wrong.\x1b[2J"_s;
    m_computer->setCatalogue({m_computer->entry(name, 1)});
    m_computer->addSimulator(name);
    const QByteArray text = run({}).output;
    QVERIFY2(text.startsWith("Wren\\u000aNothing is wrong.\\u001b[2J: "), text.constData());
    QCOMPARE(text.count("\nNothing is wrong."), 1);
    QVERIFY(!text.contains('\x1b'));
}

void TestReport::reportsFoldersThatAreNotWritable()
{
    const QString configuration = m_computer->absolute(m_computer->configuration("Skylark"_s));
    const QString gauges = m_computer->folder("Skylark"_s) + "/Gauges"_s;
    const QString record = m_computer->absolute(m_computer->data("Quillmont/Orbwell/.mapping"_s));
    const bool isRoot = geteuid() == 0;
    m_computer->setRecords({});
    run({"--version"_s}); // puts it in its place
    {
        const Unprivileged givesAllAway(m_computer->absolute(QString()).chopped(1));
    }
    const auto answer = [&] {
        const QString doctor = m_computer->program().folder() + "/orbwell-doctor"_s;
        const QStringList asNobody{"--reuid=65534"_s, "--clear-groups"_s, doctor};
        return isRoot ? Command("setpriv"_s, asNobody).run() : run({});
    };
    const auto mayWrite = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    const auto mayLook = QFile::ReadOwner | QFile::ExeOwner;
    const QString changeIt = "You may not change the configuration file \""_s + configuration;
    const QString module
        = m_computer->program().folder() + "/plugins/FSX/QuillmontOrbwell_64.dll"_s;

    struct Case
    {
        QString path;
        QFile::Permissions mode;
        QString sentence;
    };

    const QVector<Case> cases{
        {gauges, mayLook, "You may not write in the folder of \""_s + gauges},
        {QFileInfo(configuration).path(), mayLook, changeIt},
        {configuration, QFile::ReadOwner, changeIt},
        {record, QFile::ReadOwner, "You may not write the installation record \""_s},
        {module, {}, "You may not read \""_s + module}};
    for (const Case &each : cases) {
        QVERIFY(QFile::setPermissions(each.path, each.mode));
        const QByteArray text = answer().output;
        QVERIFY(QFile::setPermissions(each.path, mayWrite));
        QVERIFY2(text.contains(each.sentence.toUtf8()), text.constData());
    }
    QCOMPARE(answer().status, 0);
}

void TestReport::looksForRoomOnBothDisks()
{
    const QTemporaryDir memory("/dev/shm/orbwell-XXXXXX"_s);
    const QString configuration = m_computer->absolute(m_computer->configuration("Skylark"_s));
    const QString folder = QFileInfo(configuration).path();
    const auto device = [](const QString &path) {
        struct stat status = {};
        return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_dev : 0;
    };
    if (!memory.isValid() || device(memory.path()) == device(folder))
        QSKIP("needs a disk in memory, /dev/shm");
    QVERIFY(QDir(folder).removeRecursively() && QFile::link(memory.path(), folder));
    const auto space = std::filesystem::space(QFile::encodeName(folder).toStdString());
    const qint64 tooMuch = static_cast<qint64>(space.available) + (1LL << 30);
    writeFile(configuration, "");
    QVERIFY(QFile::resize(configuration, tooMuch)); // a hole, which takes no room
    const QJsonObject skylark = report("Skylark"_s);
    QVERIFY(skylark.value("room"_s).toObject().value("needed"_s).toDouble() < 1000);
    QCOMPARE(skylark.value("backupRoom"_s).toObject().value("needed"_s).toDouble(),
             double(tooMuch));
    QVERIFY(run({}).output.contains(("Make room on the disk of \""_s + folder).toUtf8()));
}

void TestReport::listsTheWorstProblemFirst()
{
    installEverywhere();
    m_computer->write("sims/Kestrel/Resources/plugins/Orbwell/about.txt"_s, "another");
    QFile::remove(m_computer->folder("Kestrel"_s) + "/Resources/plugins/Orbwell/64/lin.xpl"_s);
    m_computer->write(m_computer->configuration("Skylark"_s), "<R>");
    const QByteArray text = run({}).output;
    int place = text.indexOf("What to do:");
    for (const char *next : {"1. Skylark: The configuration",
                             "2. Kestrel: Only a part",
                             "3. Kestrel: \"Resources/plugins/Orbwell/about.txt\" differs"}) {
        place = text.indexOf(next, place);
        QVERIFY2(place > 0, text.constData());
    }
}

void TestReport::reportsHowASimulatorWasFound()
{
    QCOMPARE(report("Kestrel"_s).value("foundBy"_s).toString(), "the catalogue's folder"_s);
    m_computer->write(m_computer->data("Quillmont/Vellum/.settings"_s),
                      "[flightsim]\nKestrel=" + m_computer->folder("Skylark"_s).toUtf8() + '\n');
    QCOMPARE(report("Kestrel"_s).value("foundBy"_s).toString(), "chosen by hand"_s);
    QCOMPARE(report("Kestrel"_s).value("folder"_s).toString(), m_computer->folder("Skylark"_s));
    QCOMPARE(turnedDown(report("Kestrel"_s)),
             m_computer->folder("Kestrel"_s)
                 + " (the catalogue's folder): another one was chosen by hand"_s);

    // Two entries of a group that find one folder, one of which gives it up, and X-Plane's own
    // list.
    QJsonObject entry = m_computer->entry("Wren"_s, 1);
    entry.insert("config"_s, QJsonValue::Null);
    entry.insert("conflict"_s, QJsonObject{{"name"_s, "birds"_s}});
    QJsonObject other = entry;
    other.insert("name"_s, "Plover"_s);
    const QJsonObject xplane{{"name"_s, "X"_s}, {"simcode"_s, "XP12"_s}, {"location"_s, 3}};
    m_computer->setCatalogue({entry, other, xplane});
    m_computer->addSimulator("Wren"_s);
    m_computer->write("home/.x-plane/x-plane_install_12.txt"_s,
                      m_computer->absolute("gone"_s).toUtf8() + "\n");
    const QJsonObject gaveWay = report("Wren"_s).value("gaveWay"_s).toObject();
    QCOMPARE(gaveWay.value("to"_s).toString(), "Plover"_s);
    QCOMPARE(gaveWay.value("folder"_s).toString(), m_computer->folder("Wren"_s));
#ifndef Q_OS_MACOS
    QCOMPARE(turnedDown(report("X"_s)),
             m_computer->absolute("gone"_s) + " (X-Plane's own list): no such folder"_s);
#endif
}

void TestReport::saysWhyItDidNotFindASimulator_data()
{
    QTest::addColumn<QJsonObject>("entry");
    QTest::addColumn<QString>("turnedDown");
    const auto row = [](const char *name, QJsonObject entry, const char *turnedDown) {
        entry.insert("name"_s, "Wren"_s);
        QTest::newRow(name) << entry << QString::fromLatin1(turnedDown);
    };
    row("file",
        {{"path"_s, "/a\\b"_s}, {"key"_s, "c"_s}},
        "/a/b/c (the catalogue's file): no such file");
    row("no file", {}, "");
    row("folder",
        {{"location"_s, 1}, {"path"_s, "/a\\b"_s}},
        "/a/b (the catalogue's folder): no such folder");
    row("no folder", {{"location"_s, 1}}, "");
    row("registry",
        {{"location"_s, 2}, {"path"_s, "A\\B"_s}, {"key"_s, "C"_s}},
        "A/B/C (the catalogue's location): no registry on this system");
    row("detection", {{"location"_s, 3}, {"path"_s, "/a"_s}}, "");
    row("several places",
        {{"location"_s, 4}, {"target"_s, "A\\B"_s}},
        "A/B (the catalogue's location): looked for on Windows only");
    row("anything else",
        {{"location"_s, 7}, {"path"_s, "/a"_s}},
        "7 (the catalogue's location): no such \"location\"");
}

void TestReport::saysWhyItDidNotFindASimulator()
{
    QFETCH(const QJsonObject, entry);
    m_computer->setCatalogue({entry});
    QTEST(::turnedDown(report("Wren"_s)), "turnedDown");
}

// With the catalogue and the payload as they ship.
void TestReport::examinesAPilotsComputer()
{
#ifndef Q_OS_LINUX
    QSKIP("a Linux computer: Proton, and X-Plane's list where it is there");
#endif
    m_computer.reset();
    const Sandbox sandbox;
    const PilotsHome home(sandbox, sandbox.path("flightgear"_s));
    QByteArray xml = readFile(home.dllXml());
    for (const char *path : {R"(C:\Users\steamuser\appdata\Roaming\Microsoft\FSX\FSX.cfg)",
                             R"(C:\gone.dll)",
                             R"(Q:\unknown.dll)",
                             R"("MODULES\somebody.dll")",
                             R"(modules\gone.dll)",
                             R"(%APPDATA%\any.dll)"})
        xml.replace(xml.indexOf("..\\somebody.dll"), 15, path);
    writeFile(home.dllXml(), xml);

    const CommandResult result
        = Command(QStringLiteral(ORBWELL_BIN "/orbwell-doctor"), {"--json"_s})
              .with("FG_ROOT"_s, home.flightGear())
              .run();
    QCOMPARE(result.status, 0);
    const QJsonArray all
        = QJsonDocument::fromJson(result.output).object().value("simulators"_s).toArray();
    QMap<QString, QJsonObject> byCode;
    for (const auto &simulator : all)
        byCode.insert(simulator.toObject().value("code"_s).toString(), simulator.toObject());
    const auto origin = [&](const char *code) {
        const QJsonObject simulator = byCode.value(QLatin1String(code));
        return simulator.value("foundBy"_s).toString() + " "_s
            + simulator.value("folder"_s).toString();
    };
    QCOMPARE(origin("XP12"), "X-Plane's own list "_s + home.xplane12());
    QCOMPARE(origin("XP11"), "Steam "_s + home.xplane11());
    QCOMPARE(origin("FSXSE"), "Steam "_s + home.fsx());
    QCOMPARE(origin("FGFS"), "FG_ROOT "_s + home.flightGear());
    QCOMPARE(origin("XP10"), " "_s);
    const QJsonObject configuration = byCode.value("FSXSE"_s).value("configuration"_s).toObject();
    QCOMPARE(configuration.value("state"_s).toString(), "well formed"_s);
    QVERIFY(configuration.value("prefix"_s).toString().endsWith("compatdata/314160/pfx"_s));
    QVERIFY(Command(QStringLiteral(ORBWELL_BIN "/orbwell-doctor"))
                .run()
                .output.contains("    In the Proton prefix \""));
    QStringList gone;
    for (const auto &other : configuration.value("othersWithoutFile"_s).toArray())
        gone.append(other.toObject().value("path"_s).toString());
    QCOMPARE(gone, (QStringList{"C:\\gone.dll"_s, "modules\\gone.dll"_s}));
}

void TestReport::doesNotShowOtherProgramsEntries()
{
    QByteArray text = othersConfiguration();
    text.replace("<Disabled>False</Disabled>", "<CommandLine>secret</CommandLine>");
    m_computer->write(m_computer->configuration("Skylark"_s), text);
    const QJsonObject configuration = report("Skylark"_s).value("configuration"_s).toObject();
    const QJsonObject other = configuration.value("othersWithoutFile"_s).toArray().at(0).toObject();
    QCOMPARE(other.value("name"_s).toString(), "Somebody's \u00e9tude"_s);
    QCOMPARE(other.value("path"_s).toString(), "Modules\\etude.dll"_s);
    for (const char *argument : {"--", "--json"})
        QVERIFY(!run({QLatin1String(argument)}).output.contains("secret"));
    // Windows ignores letter case.
    m_computer->write("sims/Skylark/MODULES/Etude.DLL"_s, "");
    QCOMPARE(report("Skylark"_s).value("configuration"_s).toObject().value("othersWithoutFile"_s),
             QJsonValue(QJsonArray()));
}

void TestReport::givesACommandThatRestoresABackup()
{
    installEverywhere();
    const QString file = m_computer->absolute(m_computer->configuration("Skylark"_s));
    writeFile(file + "_quillmont_orbwell_before_installation_20200102_030405.bak"_s, "<broken");
    const QJsonArray backups = report("Skylark"_s).value("backups"_s).toArray();
    QCOMPARE(backups.size(),
             backupsOf(file, "installation"_s).size() + backupsOf(file, "uninstallation"_s).size());
    const QJsonObject oldest = backups.last().toObject();
    QCOMPARE(oldest.value("time"_s).toString(), "2020-01-02T03:04:05"_s);
    QCOMPARE(oldest.value("size"_s).toInt(), 7);
    QCOMPARE(oldest.value("wellFormed"_s).toBool(true), false);
    const QJsonObject newest = backups.first().toObject();
    QVERIFY(newest.value("wellFormed"_s).toBool());
    QCOMPARE(Command("sh"_s, {"-c"_s, newest.value("restore"_s).toString()}).run().status, 0);
    QCOMPARE(readFile(file), othersConfiguration());
}

void TestReport::offersTheNewestBackupThatHelps()
{
    const QString file = m_computer->absolute(m_computer->configuration("Skylark"_s));
    const auto backup = [&file](const QString &time) {
        return file + "_quillmont_orbwell_before_installation_"_s + time + ".bak"_s;
    };
    const QByteArray page = "<html/>";
    for (const char *time : {"20300102_030405", "20300102_030406", "20300102_030407"})
        writeFile(backup(QLatin1String(time)), page);
    for (const char *time : {"20200102_030405", "20100102_030405", "99999999_999999"})
        writeFile(backup(QLatin1String(time)), othersConfiguration());
    writeFile(file, "<R>");
    const QByteArray text = run({"Skylark"_s}).output;
    QVERIFY2(text.contains("Put the backup of 2020-01-02 03:04:05 back, or "), text.constData());
    QVERIFY2(text.contains("    cp -- '" + backup("20200102_030405"_s).toUtf8()), text.constData());
    QCOMPARE(text.count("cp -- "), 1);
    QVERIFY2(text.contains("Older backups: 1\n"), text.constData());
}

void TestReport::refusesUnknownOptions_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("problem");
    QTest::newRow("unknown option") << "--jsno"_s
                                    << "Unknown option --jsno. Is --json meant?"_s;
    QTest::newRow("unknown short option") << "-x"_s
                                          << "Unknown option -x."_s;
    QTest::newRow("unknown plan")
        << "--plan=destroy"_s
        << "--plan=destroy: a plan is for \"install\", \"repair\" or \"uninstall\"."_s;
    QTest::newRow("missing value") << "--catalogue"_s
                                   << "--catalogue needs a file."_s;
    QTest::newRow("unknown simulator") << "-- --json"_s
                                       << "The catalogue has no simulator \"--json\"."_s;
    QTest::newRow("missing catalogue")
        << "--catalogue /dev/null"_s
        << "The catalogue \"/dev/null\" cannot be read: not a regular file."_s;
    QTest::newRow("catalogue is empty") << "--catalogue empty"_s
                                        << "The catalogue \"empty\" is empty."_s;
    QTest::newRow("catalogue is big") << "--catalogue big"_s
                                      << "The catalogue \"big\" cannot be read: too big."_s;
    QTest::newRow("plan and check") << "--plan --check-catalogue"_s
                                    << "--plan and --check-catalogue exclude each other."_s;
    QTest::newRow("two plans") << "--plan=repair --plan=install"_s
                               << "--plan=repair and --plan=install exclude each other."_s;
    QTest::newRow("check of a name") << "--check-catalogue -- Kestrel"_s
                                     << "--check-catalogue takes no names."_s;
}

void TestReport::refusesUnknownOptions()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, problem);
    run({"--version"_s}); // puts it in its place
    const QString folder = m_computer->program().folder();
    writeFile(folder + "/empty"_s, "");
    writeFile(folder + "/big"_s, "[]");
    QVERIFY(QFile::resize(folder + "/big"_s, 33LL * 1024 * 1024));
    const CommandResult result
        = Command(folder + "/orbwell-doctor"_s, arguments.split(u' ')).in(folder).run();
    QCOMPARE(result.status, 2);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(QString::fromUtf8(result.errors),
             "orbwell-doctor: "_s + problem + "\nTry \"orbwell-doctor --help\".\n"_s);
}

void TestReport::saysThatItsAnswerIsLost_data()
{
    QTest::addColumn<QString>("redirection");
    QTest::addColumn<QByteArray>("problem");
    QTest::newRow("a full disk") << ">/dev/full"_s << QByteArray("No space left on device.");
    QTest::newRow("a closed output") << ">&-"_s << QByteArray("Bad file descriptor.");
    QTest::newRow("a reader that has gone") << "| :"_s << QByteArray();
}

void TestReport::saysThatItsAnswerIsLost()
{
    QFETCH(const QString, redirection);
    QFETCH(const QByteArray, problem);
    if (redirection.endsWith("/dev/full"_s) && !QFile::exists("/dev/full"_s))
        QSKIP("needs a device that is full");
    run({"--version"_s}); // puts it in its place
    const QString script
        = "exec 3>&1; { ./orbwell-doctor --help; echo $? >&3; } %1"_s.arg(redirection);
    const CommandResult result
        = Command("sh"_s, {"-c"_s, script}).in(m_computer->program().folder()).run();
    QCOMPARE(result.output, problem.isEmpty() ? "0\n" : "2\n");
    QCOMPARE(result.errors,
             problem.isEmpty() ? problem
                               : "orbwell-doctor: The answer cannot be written: " + problem + '\n');
}

// A terminal gets some, unless the user wants none.
void TestReport::writesNoColoursIntoAFile()
{
    QVERIFY(!run({}).output.contains('\x1b'));
    if (!Command::exists("script"_s))
        QSKIP("needs script to see more");
    const QString doctor = m_computer->program().folder() + "/orbwell-doctor"_s;
    const QStringList arguments{"--quiet"_s, "--command"_s, doctor, "/dev/null"_s};
    QVERIFY(Command("script"_s, arguments).run().output.contains("\x1b[1m"));
    QVERIFY(
        !Command("script"_s, arguments).with("NO_COLOR"_s, "1"_s).run().output.contains('\x1b'));
}

void TestReport::speaksTheLanguageOfItsUser_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translatedLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

// Less the numbers, of which one is the room on the disk.
QString TestReport::allThatIsSaid(const QString &locale, const QStringList &format)
{
    QByteArray said;
    for (const char *task : {"--", "--plan", "--check-catalogue", "--help", "--plan=none"}) {
        const CommandResult result = Command(m_computer->program().folder() + "/orbwell-doctor"_s,
                                             format + QStringList(QString::fromLatin1(task)))
                                         .with("LC_ALL"_s, locale)
                                         .with("LANGUAGE"_s, QString())
                                         .run();
        said += result.output + result.errors;
    }
    return QString::fromUtf8(said).remove(QRegularExpression("\\d"_s));
}

// What is said around the names and numbers that are filled in.
static bool says(const QString &all, const QString &text)
{
    static const QRegularExpression filledIn("%\\d|\\d"_s);
    const QStringList parts = text.split(filledIn);
    return std::all_of(
        parts.cbegin(), parts.cend(), [&all](const QString &part) { return all.contains(part); });
}

void TestReport::speaksTheLanguageOfItsUser()
{
    QFETCH(const QString, language);
    installEverywhere();
    m_computer->write(m_computer->configuration("Skylark"_s), "<R>");
    m_computer->write("sims/Kestrel/Resources/plugins/Orbwell/about.txt"_s, "another");
    m_computer->write("home/.x-plane/x-plane_install_12.txt"_s, "/gone\n");
    m_computer->setCatalogue(
        {m_computer->entry("Skylark"_s, 0),
         m_computer->entry("Kestrel"_s, 1),
         QJsonObject{{"name"_s, "X"_s}, {"simcode"_s, "XP12"_s}, {"odd"_s, 3}}});
    run({"--version"_s}); // puts it in its place
    const QString english = allThatIsSaid("C"_s, {});
    const QString said = allThatIsSaid(language + ".UTF-8"_s, {});
    int checked = 0;
    for (const TranslatedText &text : translatedTexts(readFile(translationPath(language)))) {
        if (!text.context.contains("::Doctor::"_s) || text.source.startsWith(u'%')
            || !says(english, text.source))
            continue;
        ++checked;
        QVERIFY2(says(said, text.translations.first()), qPrintable(text.source));
    }
    QVERIFY2(checked > 30, qPrintable(QString::number(checked)));
    QCOMPARE(allThatIsSaid("POSIX"_s, {}), english);
    QCOMPARE(allThatIsSaid(language + ".UTF-8"_s, {"--json"_s}),
             allThatIsSaid("C"_s, {"--json"_s}));
}

void TestReport::foldsItsLinesToANarrowTerminal()
{
    if (!Command::exists("script"_s))
        QSKIP("needs script for a terminal");
    run({"--version"_s}); // puts it in its place
    const CommandResult result = Command("script"_s,
                                         {"--quiet"_s,
                                          "--command"_s,
                                          "stty cols 20; ./orbwell-doctor Kestrel"_s,
                                          "/dev/null"_s})
                                     .with("NO_COLOR"_s, "1"_s)
                                     .in(m_computer->program().folder())
                                     .run();
    for (const QByteArray &line : result.output.split('\n'))
        QVERIFY2(line.trimmed().size() <= 20 || !line.trimmed().contains(' '), line.constData());
    QVERIFY(result.output.contains("not installed"));
}

QTEST_GUILESS_MAIN(TestReport)
#include "tst_Report.moc"
