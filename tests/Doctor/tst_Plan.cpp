#include "Doctor/LineDiff.h"
#include "Doctor/Page.h"
#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/DoctorsPlan.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/Literals.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

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

// Without the backups: a repair run first installs, and makes more of them.
static Disk withoutBackups(Disk disk)
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
    QCOMPARE(difference(withoutBackups(computer.disk()), withoutBackups(planned)), QString());
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
