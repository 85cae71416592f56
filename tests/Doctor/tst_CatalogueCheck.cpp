#include "Doctor/CatalogueCheck.h"
#include "tests/support/Files.h"
#include "tests/support/Literals.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Tests;
using Quillmont::Utility::Doctor::CatalogueCheck;

/// What orbwell-doctor reports to an author of catalogues.
class TestCatalogueCheck : public QObject
{
    Q_OBJECT

private slots:
    void reportsMistakesThatTheProgramIgnores_data();
    void reportsMistakesThatTheProgramIgnores();
};

void TestCatalogueCheck::reportsMistakesThatTheProgramIgnores_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("findings");
    const auto row = [](const char *name, const QByteArray &text, const char *findings) {
        QTest::newRow(name) << text << QString::fromUtf8(findings);
    };
    const QByteArray files = R"("files": [{"source": "a", "destination": "b"}])";
    const auto withConfig = [&files](const QByteArray &rest) {
        return "[{\"name\": \"A\", " + files + ",\n\"config\": {" + rest + "}}]";
    };
    const QByteArray values
        = R"("path": "x", "parent": "P", "values": [{"key": "k", "value": "v"}])";

    row("nothing", "[{\"name\": \"A\", " + files + "}]", "");
    row("not JSON",
        "[\n}",
        "2:1  It is no JSON: object is missing after a comma. The program sees no simulator.");
    row("not an array", "{}", "1:1  It is no array. The program sees no simulator.");
    row("not an object",
        "[3]",
        "1:2  Its type is number, not object; it counts as missing.|"
        "1:2  The simulator has no name.|"
        "1:2  There are no files; nothing is installed, and it counts as installed.");
    row("unknown key",
        "[{\"name\": \"\xc3\xa4\", \"naem\": 1, " + files + "}]",
        "1:16 naem Unknown key; it is ignored.");
    row("wrong type",
        "[{\"name\": \"A\", \"type\": \"1\", " + files + "}]",
        "1:16 type Its type is string, not number; it counts as missing.");
    row("duplicate key",
        "[{\"name\": \"A\", \"name\": \"B\", " + files + "}]",
        "1:16 name The key is there twice; the last one counts.");
    row("duplicate name",
        "[{\"name\": \"A\", " + files + "},\n{\"name\": \"A\", " + files + "}]",
        "2:2 name Line 1 has the same name; both share one record and one chosen folder.");
    row("names of one chosen folder",
        "[{\"name\": \"A B\", " + files + "},\n{\"name\": \"A_B\", " + files + "}]",
        "2:2 name It shares its chosen folder with the name in line 1.");
    row("no whole number",
        "[{\"name\": \"A\", \"location\": 1.5,\n\"type\": 2.5,\n\"root\": \"abc\", " + files + "}]",
        "1:16 location It is no whole number; it counts as 0.|"
        "2:1 type It is no whole number; it counts as 0.|"
        "3:1 root It is no whole number; it counts as 0.");
    row("whole numbers",
        "[{\"name\": \"A\", \"location\": 4, \"type\": 1.0, \"root\": \"-1\", " + files + "}]",
        "");
    row("no location",
        "[{\"name\": \"A\", \"location\": 5, " + files + "}]",
        "1:16 location There is no such location; the entry itself never finds anything.");
    row("source elsewhere",
        R"([{"name": "A", "files": [{"source": "x\\..\\..\\a", "destination": "b"}]}])",
        "1:27 files/0/source \"..\" leads out of the payload.|"
        "1:27 files/0/source The payload has no file \"x/../../a\"; it cannot be copied.");
    row("type without configuration",
        "[{\"name\": \"A\", \"type\": 0, " + files + "}]",
        "1:16 type Without \"config\" no configuration file is touched.");
    row("configuration elsewhere",
        withConfig(QByteArray(values).replace("\"x\"", "\"..\\\\x\"")),
        "2:12 config/path \"..\" leads out of the folder of such files.");
    row("no XML",
        withConfig(R"("path": "x",)"
                   "\n"
                   R"("parent": "Launch Addon",)"
                   "\n"
                   R"("values": [{"key": "k", "value": "\u0001"}])"),
        "3:1 config/parent XML cannot hold this; the entry is never added.|"
        "4:12 config/values/0 XML cannot hold this; the entry is never added.");
    row("source is missing",
        R"([{"name": "A", "files": [{"source": "c", "destination": "b"}]}])",
        "1:27 files/0/source The payload has no file \"c\"; it cannot be copied.");
    row("destinations",
        R"([{"name": "A", "files": [{"source": "a", "destination": "x\\..\\b"},)"
        "\n"
        R"({"source": "a"},)"
        "\n"
        R"({"source": "a", "destination": "x/../b"}]}])",
        "1:42 files/0/destination \"..\" leads out of the simulator's folder; the file is written "
        "there.|"
        "2:1 files/1 There is no destination; it is the simulator's folder itself.|"
        "3:17 files/2/destination \"..\" leads out of the simulator's folder; the file is written "
        "there.|"
        "3:17 files/2/destination Another file has the same destination; the later one is copied.");
    row("lone conflict",
        "[{\"name\": \"A\", " + files + ",\n\"conflict\": {}}]",
        "2:1 conflict It is only read beside a \"config\" that is null or not empty; it is "
        "ignored.");
    row("removable", withConfig(values), "");
    row("not removable",
        withConfig(values + R"(, "remove": {"key": "k", "value": "w", "delete_parent": true})"),
        "2:80 config/remove This entry installs, but cannot be removed: no pair of \"values\" is "
        "what "
        "\"remove\" looks for.");
    row("partly removable",
        withConfig(values + R"(, "remove": {"key": "k", "value": "v"})"),
        "2:80 config/remove Only the child element is removed, and the rest of the entry stays: "
        "\"delete_parent\" is not true.");
    row("no values",
        withConfig(R"("path": "x", "parent": "P")"),
        "2:1 config Without \"parent\" and \"values\" no entry is added.");
    row("no path",
        withConfig(values.mid(13)),
        "2:1 config There is no path; no file can be edited.");
    row("key of another type",
        "[{\"name\": \"A\", \"type\": 1, " + files + ",\n\"config\": {\"path\": \"x\"}}]",
        "2:1 config \"type\" is not 0, so no configuration file is touched.");
}

void TestCatalogueCheck::reportsMistakesThatTheProgramIgnores()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, findings);
    const QTemporaryDir payload;
    writeFile(payload.filePath("a"_s), "");
    const QJsonObject json = CatalogueCheck(text, payload.path() + u'/').json();
    QStringList lines;
    for (const auto &finding : json.value("findings"_s).toArray()) {
        const QJsonObject object = finding.toObject();
        lines.append("%1:%2 %3 %4"_s.arg(object.value("line"_s).toInt())
                         .arg(object.value("column"_s).toInt())
                         .arg(object.value("key"_s).toString(), object.value("text"_s).toString()));
    }
    lines.sort();
    QCOMPARE(lines.join(u'|'), findings);
    QCOMPARE(json.value("fine"_s).toBool(), findings.isEmpty());
}

QTEST_GUILESS_MAIN(TestCatalogueCheck)
#include "tst_CatalogueCheck.moc"
