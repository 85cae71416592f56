#include "Doctor/LineDiff.h"
#include "Doctor/Page.h"
#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/DoctorsPlan.h"
#include "tests/support/LaunchDocuments.h"
#include "tests/support/Literals.h"
#include "tests/support/Unprivileged.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <functional>

using namespace Tests;
using Quillmont::Utility::Doctor::lineDiff;
using Quillmont::Utility::Doctor::Page;

/// What orbwell-doctor predicts that the program would do. EndToEnd/RandomSequences compares it
/// with each click.
class TestPlan : public QObject
{
    Q_OBJECT

private slots:
    void predictsWhatARepairDoes_data();
    void predictsWhatARepairDoes();
    void predictsTheRecordThatARunWrites_data();
    void predictsTheRecordThatARunWrites();
    void isTrueOnADisturbedComputer_data();
    void isTrueOnADisturbedComputer();
    void plansNothingInAGoneFolder();
    void reportsWhatCannotBeDone_data();
    void reportsWhatCannotBeDone();
    void writesAPlanForAPerson();
    void showsOnlyChangedLines_data();
    void showsOnlyChangedLines();
    void foldsToTheColumnsOfATerminal_data();
    void foldsToTheColumnsOfATerminal();
};

void TestPlan::predictsWhatARepairDoes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("beside");
    QTest::addColumn<bool>("hasConfiguration");
    for (const int type : {0, 1}) {
        for (const char *beside : {"", ".hidden", "visible"}) {
            for (const bool has : {true, false})
                QTest::addRow("type %d, %s, %d", type, beside, has)
                    << type << QString::fromLatin1(beside) << has;
        }
    }
}

// Without the backups, of which a repair run makes more since it first installs, and without the
// launcher path, which a plan does not contain.
static Disk comparable(Disk disk)
{
    for (const QString &path : disk.keys()) {
        if (path.endsWith(".bak"_s) || path.endsWith("/.path"_s))
            disk.remove(path);
    }
    return disk;
}

void TestPlan::predictsWhatARepairDoes()
{
    QFETCH(const int, type);
    QFETCH(const QString, beside);
    QFETCH(const bool, hasConfiguration);
    Computer computer;
    const QString name = "Skylark"_s;
    computer.setCatalogue({computer.entry(name, type)});
    computer.addSimulator(name);
    computer.addPlugin(name, type);
    if (!beside.isEmpty())
        computer.write("sims/Skylark/Resources/plugins/Orbwell/64/"_s + beside, "x");
    if (hasConfiguration)
        computer.write(computer.configuration(name), ourConfiguration());
    computer.setRecords({});
    const Disk planned = plannedDisk(computer, doctorsPlan(computer, "repair"_s, name));
    computer.run({"--REPAIR"_s});
    QCOMPARE(difference(comparable(computer.disk()), comparable(planned)), QString());
}

void TestPlan::predictsTheRecordThatARunWrites_data()
{
    QTest::addColumn<QString>("birds");
    QTest::addColumn<QString>("what");
    for (const char *birds :
         {"", "S", "K", "SK", "KS", "KSK", "SKS", "KSSK", "SSS", "5SK", "KS5"}) {
        for (const char *what : {"install", "repair", "uninstall"})
            QTest::addRow("%s, %s", birds, what)
                << QString::fromLatin1(birds) << QString::fromLatin1(what);
    }
}

// Each by its first letter; a number is no record.
void TestPlan::predictsTheRecordThatARunWrites()
{
    QFETCH(const QString, birds);
    QFETCH(const QString, what);
    Computer computer;
    const QJsonObject skylark = computer.entry("Skylark"_s, 1);
    const QJsonObject kestrel = computer.entry("Kestrel"_s, 1);
    QJsonArray records;
    for (const QChar bird : birds)
        records.append(bird.isDigit()     ? QJsonValue(bird.digitValue())
                           : bird == u'S' ? computer.recordFor(skylark)
                                          : computer.recordFor(kestrel));
    computer.setCatalogue({skylark});
    computer.addSimulator("Skylark"_s);
    computer.setRecords(records);
    const Disk planned = plannedDisk(computer, doctorsPlan(computer, what, "Skylark"_s));
    QString left = birds;
    for (int i = what == "repair"_s ? 2 : 1; i > 0 && left.contains(u'S'); --i) {
        records.removeAt(left.lastIndexOf(u'S'));
        left.remove(left.lastIndexOf(u'S'), 1);
    }
    if (what != "uninstall"_s)
        records.append(computer.recordFor(skylark));
    QCOMPARE(planned.value(computer.data("Quillmont/Orbwell/.mapping"_s)),
             QJsonDocument(records).toJson());
}

using Deed = std::function<void(Computer *)>;
Q_DECLARE_METATYPE(Deed)

static Deed protects(const QString &path, QFile::Permissions mode)
{
    return [path, mode](Computer *computer) {
        QVERIFY(QFile::setPermissions(computer->absolute(path), mode));
    };
}

static Deed links(const QString &path, const QString &target)
{
    return [path, target](Computer *computer) {
        QVERIFY(QDir().mkpath(QFileInfo(computer->absolute(path)).path()));
        QFile::remove(computer->absolute(path));
        QVERIFY(QFile::link(target, computer->absolute(path)));
    };
}

static Deed writes(const QString &path)
{
    return [path](Computer *computer) {
        computer->write(path, "old");
    };
}

static Deed operator+(const Deed &first, const Deed &second)
{
    return [first, second](Computer *computer) {
        first(computer);
        second(computer);
    };
}

void TestPlan::isTrueOnADisturbedComputer_data()
{
    QTest::addColumn<QString>("files");
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<bool>("isDone");
    const Computer computer;
    const QString configuration = computer.configuration("Skylark"_s);
    const QString folder = QFileInfo(configuration).path();
    const QString record = computer.data("Quillmont/Orbwell/.mapping"_s);
    const QString installed = "sims/Skylark/New/a.dll"_s;
    const auto readOnly = QFile::ReadOwner | QFile::ExeOwner;
    const auto row = [](const char *name, const char *files, const Deed &deed, bool isDone) {
        QTest::newRow(name) << QString::fromLatin1(files) << deed << isDone;
    };
    row("folder of the simulator", "New/a.dll", protects("sims/Skylark"_s, readOnly), false);
    row("folder of a file", "Gauges/a.dll", protects("sims/Skylark/Gauges"_s, readOnly), false);
    row("file to remove",
        "New/a.dll",
        writes(installed) + protects("sims/Skylark/New"_s, readOnly),
        false);
    row("folder to remove",
        "New/a.dll",
        writes(installed) + protects("sims/Skylark"_s, readOnly),
        true);
    row("hidden folder to remove",
        "New/a.dll",
        writes(installed) + writes("sims/Skylark/New/.b/c"_s)
            + protects("sims/Skylark/New/.b"_s, readOnly),
        true);
    row("hidden in a linked folder",
        "New/a.dll",
        links("sims/Skylark/New"_s, "../far"_s) + writes("sims/far/.hidden"_s)
            + writes("sims/far/a.dll"_s),
        true);
    row("link in place of a file", "New/a.dll", links(installed, "../Gauges"_s), true);
    row("payload", "New/a.dll", protects("program/plugins/a"_s, {}), false);
    row("file for a folder", "New/m/a.dll", writes("sims/Skylark/New"_s), false);
    row("dead link for a folder", "New/m/a.dll", links("sims/Skylark/New"_s, "nowhere"_s), false);
    row("file in another's place", "New/a.dll New/a.dll/b.dll", writes(folder + "/x"_s), false);
    row("up behind a link",
        "New/../D/a.dll",
        links("sims/Skylark/New"_s, "../far/away"_s) + writes("sims/far/away/b"_s),
        true);
    row("up behind a new folder", "New/../../D/a.dll", writes(folder + "/x"_s), true);
    row("configuration's folder", "New/a.dll", protects(folder, readOnly), false);
    row("configuration", "New/a.dll", protects(configuration, QFile::ReadOwner), false);
    row("configuration's dead link", "New/a.dll", links(configuration, "../a/dll.xml"_s), false);
    row("configuration's link to make", "New/a.dll", links(configuration, "made.xml"_s), true);
    row(
        "no backup",
        "New/a.dll",
        links(configuration, "../far/dll.xml"_s) +
            [configuration](Computer *computer) {
                const QString far = QFileInfo(configuration).path() + "/../far/dll.xml"_s;
                computer->write(far, othersConfiguration());
            }
            + protects(folder, readOnly),
        false);
    row("record", "New/a.dll", writes(record) + protects(record, QFile::ReadOwner), false);
    row("record's folder",
        "New/a.dll",
        writes(record) + protects(QFileInfo(record).path(), readOnly),
        true);
    row("record's dead link", "New/a.dll", links(record, "nowhere/record"_s), false);
    row("extra file", "New/a.dll", writes(installed) + links("sims/Skylark\\x"_s, "no"_s), true);
}

// What the program does with the rights of an ordinary user.
void TestPlan::isTrueOnADisturbedComputer()
{
    QFETCH(const QString, files);
    QFETCH(const Deed, deed);
    QFETCH(const bool, isDone);
    Computer computer;
    const QString name = "Skylark"_s;
    computer.addSimulator(name);
    computer.write(computer.configuration(name), othersConfiguration());
    computer.write("program/plugins/a"_s, "payload");
    QJsonObject entry = computer.entry(name, 0);
    QJsonArray destinations;
    for (const QString &file : files.split(u' '))
        destinations.append(QJsonObject{{"source"_s, "a"_s}, {"destination"_s, file}});
    entry.insert("files"_s, destinations);
    QJsonObject config = entry.value("config"_s).toObject();
    QJsonObject removal = config.value("remove"_s).toObject();
    removal.insert("files"_s, QJsonArray{QJsonObject{{"root"_s, "-1"_s}, {"path"_s, "x"_s}}});
    config.insert("remove"_s, removal);
    entry.insert("config"_s, config);
    computer.setCatalogue({entry});
    runDoctor(computer, {"--version"_s}); // puts it in its place
    deed(&computer);
    QVERIFY(!QTest::currentTestFailed());

    const Unprivileged user(computer.absolute(QString()).chopped(1));
    computer.program().start();
    computer.program().window();
    const QString button = doctorsPlan(computer, "install"_s, name).value("button"_s).toString();
    const QJsonObject plan = doctorsPlan(computer, button, name);
    const Disk planned = plannedDisk(computer, plan);
    computer.program().pressAction(name);
    computer.program().box();
    const Disk actual = computer.disk();
    Command("chmod"_s, {"-R"_s, "u+rwX"_s, computer.absolute(QString())}).run();
    QCOMPARE(difference(actual, planned), QString());
    QCOMPARE(plan.value("failures"_s).toArray().isEmpty(), isDone);
}

void TestPlan::plansNothingInAGoneFolder()
{
    Computer computer;
    computer.setCatalogue({computer.entry("Skylark"_s, 0)});
    computer.write(computer.data("Quillmont/Vellum/.settings"_s),
                   "[flightsim]\nSkylark=/nowhere/at all\n");
    const CommandResult result = runDoctor(computer, {"--plan"_s});
    QCOMPARE(result.status, 1);
    QVERIFY(result.output.contains("Button in the window: disabled\n"));
    QVERIFY(result.output.contains("Its folder \"/nowhere/at all\" is gone."));
    QVERIFY(!result.output.contains(" made: "));
}

void TestPlan::reportsWhatCannotBeDone_data()
{
    QTest::addColumn<QString>("lost");
    QTest::addColumn<QString>("link");
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QString>("sentence");
    const QString module = "plugins/FSX/QuillmontOrbwell_64.dll"_s;
    QTest::newRow("payload") << module << QString() << othersConfiguration()
                             << "\" cannot be copied: the payload lacks it."_s;
    QTest::newRow("link") << QString() << "sims/Skylark/Gauges/QuillmontOrbwell_64.dll"_s
                          << othersConfiguration()
                          << "a link that leads nowhere, is in its place."_s;
    QTest::newRow("configuration")
        << QString() << QString() << QByteArray("<R>") << "dll.xml\" stays as it is: line 1"_s;
}

void TestPlan::reportsWhatCannotBeDone()
{
    QFETCH(const QString, lost);
    QFETCH(const QString, link);
    QFETCH(const QByteArray, configuration);
    QFETCH(const QString, sentence);
    Computer computer;
    computer.setCatalogue({computer.entry("Skylark"_s, 0)});
    computer.addSimulator("Skylark"_s);
    computer.write(computer.configuration("Skylark"_s), configuration);
    QFile::remove(computer.program().folder() + u'/' + lost);
    if (!link.isEmpty())
        QVERIFY(QFile::link("nowhere"_s, computer.absolute(link)));
    const CommandResult result = runDoctor(computer, {"--plan"_s});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.output.contains(sentence.toUtf8()), result.output.constData());
}

void TestPlan::writesAPlanForAPerson()
{
    Computer computer;
    computer.setCatalogue({computer.entry("Skylark"_s, 0), computer.entry("Wren"_s, 1)});
    computer.addSimulator("Skylark"_s);
    computer.write(computer.configuration("Skylark"_s), othersConfiguration());
    const Disk before = computer.disk();
    const CommandResult result = runDoctor(computer, {"--plan"_s});
    QCOMPARE(result.status, 0);
    QCOMPARE(difference(computer.disk(), before), QString());
    QVERIFY(result.output.startsWith("Skylark: install in \""));
    QVERIFY(!result.output.contains("Wren"));
    for (const char *line : {"  File made: \"",
                             "  Backup made: \"",
                             "  Configuration changed: \"",
                             "    @@ -8,0 +9,5 @@\n    +    <Launch.Addon>\n",
                             "  Record made: \""})
        QVERIFY2(result.output.contains(line), line);
    QVERIFY(!result.output.contains("etude"));
}

void TestPlan::showsOnlyChangedLines_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("diff");
    const QString head = "--- f\n+++ f\n"_s;
    QTest::newRow("nothing") << "a\n"_s
                             << "a\n"_s << QString();
    QTest::newRow("new file") << QString() << "a\n"_s
                              << "--- /dev/null\n+++ f\n@@ -0,0 +1,1 @@\n+a\n"_s;
    QTest::newRow("two changes") << "a\nb\nc\nd\n"_s
                                 << "A\nb\nc\n"_s
                                 << head + "@@ -1,1 +1,1 @@\n-a\n+A\n@@ -4,1 +3,0 @@\n-d\n"_s;
    QTest::newRow("added") << "a\nb\n"_s
                           << "a\nx\nb\n"_s << head + "@@ -1,0 +2,1 @@\n+x\n"_s;
    QTest::newRow("no line end") << "a"_s
                                 << "b\n"_s
                                 << head
            + "@@ -1,1 +1,1 @@\n-a\n\\ No newline at end of file\n+b\n"_s;
}

void TestPlan::showsOnlyChangedLines()
{
    QFETCH(const QString, before);
    QFETCH(const QString, after);
    QTEST(lineDiff("f"_s, before, after), "diff");
}

void TestPlan::foldsToTheColumnsOfATerminal_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("folded");
    QTest::newRow("at blanks") << "abcdefg \"/a b/c-d\""_s
                               << "  abcdefg\n    \"/a\n    b/c-d\"\n"_s;
    QTest::newRow("just fits") << "abcde fgh"_s
                               << "  abcde fgh\n"_s;
    QTest::newRow("wide characters")
        << u8"記録記録記録記録"_s << u8"  記録記録\n    記録記\n    録\n"_s;
    QTest::newRow("no line begins with a full stop")
        << u8"記録記録。録"_s << u8"  記録記\n    録。録\n"_s;
    QTest::newRow("combining characters") << u8"abcde\u0301fghi"_s << u8"  abcde\u0301fghi\n"_s;
    QTest::newRow("a long word") << "ab abcdefghijklmnop cd"_s
                                 << "  ab\n    abcdefghijklmnop\n    cd\n"_s;
}

void TestPlan::foldsToTheColumnsOfATerminal()
{
    QFETCH(const QString, text);
    Page page(11, false);
    page.add(2, text);
    QTEST(page.text(), "folded");
    Page file(0, false);
    file.add(2, text);
    QCOMPARE(file.text(), "  "_s + text + u'\n');
}

QTEST_GUILESS_MAIN(TestPlan)
#include "tst_Plan.moc"
