#include "tests/Catalogue/CatalogueSchema.h"
#include "tests/Catalogue/Catalogues.h"
#include "tests/support/Files.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <algorithm>
#include <iterator>

using namespace Tests;

namespace {

QJsonObject object(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

// A valid entry that uses every key.
QJsonObject soundEntry()
{
    return object(R"({
        "name": "Skylark", "simcode": "FSXSE", "location": 1, "path": "/opt/Skylark", "key": "",
        "target": "", "type": 0, "root": "0",
        "files": [{"source": "a\\b.so", "destination": "Modules/b.so"}],
        "config": {
            "steam": 4294967295, "path": "drive_c\\launch.xml", "parent": "Launch.Addon",
            "values": [{"key": "Name", "value": "Quillmont Orbwell"}],
            "remove": {"parent": "Launch.Addon", "key": "Name", "value": "Quillmont Orbwell",
                       "delete_parent": true, "files": [{"root": "-1", "path": "x.cfg"}]}},
        "conflict": {"name": "Larks", "remove_on_conflict": false, "solution": "Lark/launch.xml",
                     "check_file": true, "location": 0}
    })");
}

int keysIn(const QJsonValue &document)
{
    int keys = 0;
    QVector<QJsonValue> toLookAt{document};
    while (!toLookAt.isEmpty()) {
        const QJsonValue value = toLookAt.takeLast();
        const QJsonObject members = value.toObject();
        keys += members.size();
        std::copy(members.begin(), members.end(), std::back_inserter(toLookAt));
        const QJsonArray elements = value.toArray();
        std::copy(elements.begin(), elements.end(), std::back_inserter(toLookAt));
    }
    return keys;
}

} // namespace

class TestSchema : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void acceptsEveryCatalogueOfOurs_data();
    void acceptsEveryCatalogueOfOurs();
    void acceptsEveryKey();
    void refusesWhatTheProgramWouldIgnore_data();
    void refusesWhatTheProgramWouldIgnore();
    void refusesAKeyWithoutItsCounterpart_data();
    void refusesAKeyWithoutItsCounterpart();
    void describesEveryKey();

private:
    CatalogueSchema m_schema;
};

void TestSchema::init()
{
    if (m_schema.problem().isEmpty()
        || QByteArray(QTest::currentTestFunction()) == "describesEveryKey")
        return;
    QVERIFY2(CatalogueSchema::maySkip(), qPrintable(m_schema.problem()));
    QSKIP(qPrintable(m_schema.problem()));
}

void TestSchema::acceptsEveryCatalogueOfOurs_data()
{
    QTest::addColumn<QByteArray>("catalogue");
    QTest::newRow("shipped") << shippedCatalogue();
    QTest::newRow("sample") << sampleCatalogue(QStringLiteral("/sample/simulators"));
    const auto guide = jsonBlocks(QStringLiteral("docs/catalogue.md"));
    QVERIFY(!guide.isEmpty());
    for (int i = 0; i < guide.size(); ++i)
        QTest::addRow("guide, block %d", i + 1) << guide.at(i);
    const auto readme = jsonBlocks(QStringLiteral("README.md"));
    for (int i = 0; i < readme.size(); ++i)
        QTest::addRow("README, block %d", i + 1) << '[' + readme.at(i) + ']';
}

void TestSchema::acceptsEveryCatalogueOfOurs()
{
    QFETCH(QByteArray, catalogue);
    QCOMPARE(m_schema.complaints(catalogue), QStringList());
}

void TestSchema::acceptsEveryKey()
{
    const QJsonArray catalogue{soundEntry()};
    QCOMPARE(m_schema.complaints(QJsonDocument(catalogue).toJson()), QStringList());
}

void TestSchema::refusesWhatTheProgramWouldIgnore_data()
{
    QTest::addColumn<QByteArray>("slip"); // the faulty member of the entry
    QTest::addColumn<QString>("where");

    const auto row = [](const char *what, const char *slip, const char *where) {
        QTest::newRow(what) << QByteArray(slip) << QString::fromLatin1(where);
    };
    row("misspelt key", R"({"sim_code": "XP12"})", "$[0]:");
    row("number for a name", R"({"name": 12})", "$[0].name:");
    row("unknown simcode", R"({"simcode": "XP13"})", "$[0].simcode:");
    row("location as a string", R"({"location": "1"})", "$[0].location:");
    row("broken location", R"({"location": 1.5})", "$[0].location:");
    row("empty folder", R"({"path": ""})", "$[0].path:");
    row("type as a string", R"({"type": "0"})", "$[0].type:");
    row("root as a number", R"({"root": 1})", "$[0].root:");
    row("root as a word", R"({"root": "one"})", "$[0].root:");
    row("no files", R"({"files": []})", "$[0].files:");
    row("file as a string", R"({"files": ["b.so"]})", "$[0].files[0]:");
    row("file without destination", R"({"files": [{"source": "b.so"}]})", "$[0].files[0]:");
    row("destination outside",
        R"({"files": [{"source": "b.so", "destination": "a/../../b.so"}]})",
        "$[0].files[0].destination:");
    row("absolute destination",
        R"({"files": [{"source": "b.so", "destination": "\\b.so"}]})",
        "$[0].files[0].destination:");
    row("no configuration for type 0", R"({"config": null})", "$[0].config:");
    row("empty configuration", R"({"config": {}})", "$[0].config:");
    row("configuration without file",
        R"({"config": {"parent": "A", "values": [{"key": "N", "value": "O"}]}})",
        "$[0].config:");
    row("removal without delete_parent",
        R"({"config": {"path": "a.xml", "parent": "A", "values": [{"key": "N", "value": "O"}],
                       "remove": {"key": "N", "value": "O"}}})",
        "$[0].config:");
    row("flag as a number",
        R"({"config": {"path": "a.xml", "parent": "A", "values": [{"key": "N", "value": "O"}],
                       "remove": {"delete_parent": 1}}})",
        "$[0].config:");
    row("conflict without a name",
        R"({"conflict": {"remove_on_conflict": true}})",
        "$[0].conflict:");
    row("conflict flag as a string",
        R"({"conflict": {"name": "A", "remove_on_conflict": "false"}})",
        "$[0].conflict:");
    const auto file = [row](const char *what, const char *file) {
        row(what,
            QByteArray(R"({"config": {$, "parent": "A", "values": [{"key": "N", "value": "O"}]}})")
                .replace('$', file)
                .constData(),
            "$[0].config:");
    };
    file("game as a string", R"("steam": "4711", "path": "drive_c/a.xml")");
    file("game 0", R"("steam": 0, "path": "drive_c/a.xml")");
    file("broken game", R"("steam": 4711.5, "path": "drive_c/a.xml")");
    file("game past Steam's numbers", R"("steam": 4294967296, "path": "drive_c/a.xml")");
    file("prefix without its drive", R"("steam": 4711, "path": "users/a.xml")");
    file("prefix without its game", R"("path": "drive_c/a.xml")");
    file("prefix of one Steam", R"("path": "Steam\\steamapps\\compatdata\\4711\\pfx\\a.xml")");
    row("solution with backslashes",
        R"({"conflict": {"name": "A", "remove_on_conflict": true, "solution": "A\\b.xml"}})",
        "$[0].conflict:");
}

void TestSchema::refusesWhatTheProgramWouldIgnore()
{
    QFETCH(QByteArray, slip);
    QFETCH(QString, where);

    QJsonObject entry = soundEntry();
    const QJsonObject replaced = object(slip);
    for (auto it = replaced.begin(); it != replaced.end(); ++it)
        entry.insert(it.key(), it.value());
    const QStringList complaints = m_schema.complaints(QJsonDocument(QJsonArray{entry}).toJson());
    QVERIFY(!complaints.isEmpty());
    QVERIFY2(complaints.first().startsWith(where), qPrintable(complaints.join(u'\n')));
}

void TestSchema::refusesAKeyWithoutItsCounterpart_data()
{
    QTest::addColumn<QByteArray>(
        "entry"); // in addition to a name, files, and a type that edits nothing
    QTest::addColumn<QString>("complaint");
    const auto row = [](const char *entry, const char *complaint) {
        QTest::newRow(entry) << QByteArray(entry) << QString::fromLatin1(complaint);
    };
    row(R"("location": 3, "simcode": "XP12", "conflict": {"name": "a", "remove_on_conflict": true})",
        "'config' is a dependency of 'conflict'");
    row(R"("location": 1)", "'path' is a required property");
    row(R"("location": 0)", "is not valid under any of the given schemas"); // path or key
    row(R"("simcode": "XP12")", "is not valid under any of the given schemas"); // location 0
    for (const char *location : {R"("location": 2)", R"("location": 3)", R"("location": 4)"})
        row(location, "'simcode' is a required property");
    row(R"("location": 3, "simcode": "FSXSE", "type": 0)", "'config' is a required property");
}

void TestSchema::refusesAKeyWithoutItsCounterpart()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, complaint);
    const QByteArray others
        = R"("name": "a", "files": [{"source": "b", "destination": "c"}], "type": 1, )";
    const QStringList found = m_schema.complaints("[{" + others + entry + "}]");
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().contains(complaint), qPrintable(found.first()));
}

void TestSchema::describesEveryKey()
{
    const QJsonObject definitions
        = object(readFile(CatalogueSchema::path())).value(QLatin1String("$defs")).toObject();
    QVector<QJsonValue> toLookAt;
    for (const QJsonValue &definition : definitions)
        toLookAt.append(definition);

    int keys = 0;
    while (!toLookAt.isEmpty()) {
        const QJsonValue schema = toLookAt.takeLast();
        const QJsonObject properties = schema[QLatin1String("properties")].toObject();
        for (auto it = properties.begin(); it != properties.end(); ++it, ++keys) {
            const QString reference = it.value()[QLatin1String("$ref")].toString();
            const QJsonValue referred = definitions.value(reference.section(u'/', -1));
            const QString text = it.value()[QLatin1String("description")].toString()
                + referred[QLatin1String("description")].toString();
            QVERIFY2(text.size() > 20, qPrintable(it.key()));
            toLookAt.append(it.value());
        }
        if (schema[QLatin1String("items")].isObject())
            toLookAt.append(schema[QLatin1String("items")]);
    }
    QCOMPARE(keys, keysIn(soundEntry()));
}

QTEST_GUILESS_MAIN(TestSchema)
#include "tst_Schema.moc"
