#include "Models/FlightSimScan.h"

#include "Library/Models/XmlInsertionModel.h"
#include "Models/FileOperation.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimRemoval.h"
#include "tests/support/Json.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MetaObject.h"

#include <QPointer>
#include <QTest>

using Quillmont::Library::Models::XmlInsertionModel;
using Quillmont::Utility::Models::FlightSimConflict;
using Quillmont::Utility::Models::FlightSimRemoval;
using Quillmont::Utility::Models::FlightSimScan;
using Tests::json;
using Tests::jsonValue;

using FileMap = QMap<QString, QString>;

class TestFlightSimScan : public QObject
{
    Q_OBJECT

private slots:
    void readsAWholeEntry();
    void isEmptyForAnEmptyEntry();
    void keepsTheWholeEntry();
    void readsTextsFromStringsOnly_data();
    void readsTextsFromStringsOnly();
    void readsNumbersFromWholeNumbersOnly_data();
    void readsNumbersFromWholeNumbersOnly();
    void readsTheRootFromText_data();
    void readsTheRootFromText();
    void readsFiles_data();
    void readsFiles();
    void ordersFilesByDestination();
    void readsAConflictOnlyBesideAConfig_data();
    void readsAConflictOnlyBesideAConfig();
    void readsAConflictFromAnObjectOnly_data();
    void readsAConflictFromAnObjectOnly();
    void readsARemovalFromAnObjectOnly_data();
    void readsARemovalFromAnObjectOnly();
    void handsTheConfigToItsModel();
    void ownsWhatItReads();
    void isAPlainObjectToTheMetaSystem();
};

void TestFlightSimScan::readsAWholeEntry()
{
    const FlightSimScan scan(nullptr, json(R"({
        "name": "Example Flight Simulator X", "simcode": "EFSX", "location": 2, "type": 1,
        "path": "HKEY_LOCAL_MACHINE\\SOFTWARE\\Example\\10.0", "key": "Setup\\Path",
        "target": "a\\b", "root": "1",
        "files": [{"source": "plugins\\Orbwell.dll", "destination": "Modules\\Orbwell.dll"}],
        "config": {"path": "a\\exe.xml", "remove": {"key": "Name", "parent": "P", "value": "V",
            "delete_parent": false, "files": [{"root": "-1", "path": "b\\c"}]}},
        "conflict": {"name": "group", "solution": "s", "check_file": true,
            "remove_on_conflict": true, "location": 0}})"));
    QCOMPARE(scan.name, QStringLiteral("Example Flight Simulator X"));
    QCOMPARE(scan.simcode, QStringLiteral("EFSX"));
    QCOMPARE(scan.location, 2);
    QCOMPARE(scan.type, 1);
    QCOMPARE(scan.path, QStringLiteral(R"(HKEY_LOCAL_MACHINE\SOFTWARE\Example\10.0)"));
    QCOMPARE(scan.key, QStringLiteral(R"(Setup\Path)"));
    QCOMPARE(scan.target, QStringLiteral(R"(a\b)"));
    QCOMPARE(scan.root, 1);
    QCOMPARE(scan.extra, QString());
    QCOMPARE(
        scan.files,
        (FileMap{{QStringLiteral("Modules/Orbwell.dll"), QStringLiteral("plugins/Orbwell.dll")}}));
    QVERIFY(scan.config);
    QVERIFY(scan.remove);
    QCOMPARE(scan.remove->key, QStringLiteral("Name"));
    QCOMPARE(scan.remove->files.size(), 1);
    QCOMPARE(scan.remove->files.first()->path, QStringLiteral(R"(b\c)"));
    QVERIFY(scan.conflict);
    QCOMPARE(scan.conflict->name, QStringLiteral("group"));
}

void TestFlightSimScan::isEmptyForAnEmptyEntry()
{
    const FlightSimScan scan(nullptr, {});
    QCOMPARE(scan.name + scan.simcode + scan.path + scan.key + scan.target + scan.extra, QString());
    QCOMPARE(scan.location, 0);
    QCOMPARE(scan.type, 0);
    QCOMPARE(scan.root, -1);
    QVERIFY(scan.entry.isEmpty());
    QVERIFY(scan.files.isEmpty());
    QVERIFY(!scan.config);
    QVERIFY(!scan.remove);
    QVERIFY(!scan.conflict);
}

void TestFlightSimScan::keepsTheWholeEntry()
{
    const QJsonObject entry = json(R"({"name": "A", "extra": "x", "other": [1, {"a": null}]})");
    const FlightSimScan scan(nullptr, entry);
    QCOMPARE(scan.entry, entry);
    QCOMPARE(scan.extra, QString());
}

void TestFlightSimScan::readsTextsFromStringsOnly_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QByteArray(R"("a\\ b/ü")") << QStringLiteral("a\\ b/ü");
    for (const char *value : {"null", "5", "true", R"(["a"])", R"({"a": "b"})"})
        QTest::newRow(value) << QByteArray(value) << QString();
}

void TestFlightSimScan::readsTextsFromStringsOnly()
{
    QFETCH(QByteArray, value);
    const QJsonValue json = jsonValue(value);
    const Tests::LogCatcher log;
    const FlightSimScan scan(nullptr,
                             {{QStringLiteral("name"), json},
                              {QStringLiteral("simcode"), json},
                              {QStringLiteral("path"), json},
                              {QStringLiteral("key"), json},
                              {QStringLiteral("target"), json}});
    QTEST(scan.name, "text");
    QTEST(scan.simcode, "text");
    QTEST(scan.path, "text");
    QTEST(scan.key, "text");
    QTEST(scan.target, "text");
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
}

void TestFlightSimScan::readsNumbersFromWholeNumbersOnly_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("number");
    QTest::newRow("4") << QByteArray("4") << 4;
    QTest::newRow("-3") << QByteArray("-3") << -3;
    QTest::newRow("2.0") << QByteArray("2.0") << 2;
    for (const char *value : {"1.5", R"("1")", "true", "null", "[1]", R"({"a": 1})"})
        QTest::newRow(value) << QByteArray(value) << 0;
}

void TestFlightSimScan::readsNumbersFromWholeNumbersOnly()
{
    QFETCH(QByteArray, value);
    const FlightSimScan scan(nullptr,
                             {{QStringLiteral("location"), jsonValue(value)},
                              {QStringLiteral("type"), jsonValue(value)}});
    QTEST(scan.location, "number");
    QTEST(scan.type, "number");
}

void TestFlightSimScan::readsTheRootFromText_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("root");
    QTest::newRow("3 as text") << QByteArray(R"("3")") << 3;
    QTest::newRow("0 as text") << QByteArray(R"("0")") << 0;
    QTest::newRow("-5 as text") << QByteArray(R"("-5")") << -5;
    QTest::newRow("a leading zero is decimal") << QByteArray(R"("010")") << 10;
    QTest::newRow("hexadecimal") << QByteArray(R"("0x10")") << 0;
    QTest::newRow("letters") << QByteArray(R"("abc")") << 0;
    QTest::newRow("a number and letters") << QByteArray(R"("3a")") << 0;
    QTest::newRow("past an int") << QByteArray(R"("99999999999")") << 0;
    QTest::newRow("empty text") << QByteArray(R"("")") << -1;
    QTest::newRow("3 as number") << QByteArray("3") << -1;
    QTest::newRow("null") << QByteArray("null") << -1;
    QTest::newRow("true") << QByteArray("true") << -1;
    QTest::newRow("array") << QByteArray(R"(["3"])") << -1;
}

void TestFlightSimScan::readsTheRootFromText()
{
    QFETCH(QByteArray, value);
    const FlightSimScan scan(nullptr, {{QStringLiteral("root"), jsonValue(value)}});
    QTEST(scan.root, "root");
}

void TestFlightSimScan::readsFiles_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<FileMap>("files");
    const FileMap aToB{{QStringLiteral("a"), QStringLiteral("b")}};
    const FileMap emptyToEmpty{{QString(), QString()}};

    QTest::newRow("slashes stay, backslashes become slashes")
        << QByteArray(R"([{"source": "x\\y\\\\z/w", "destination": "a\\b/c"}])")
        << FileMap{{QStringLiteral("a/b/c"), QStringLiteral("x/y//z/w")}};
    QTest::newRow("the later of two with one destination")
        << QByteArray(R"([{"source": "1", "destination": "a"},
                          {"source": "b", "destination": "a"}])")
        << aToB;
    QTest::newRow("one destination, written two ways")
        << QByteArray(R"([{"source": "1", "destination": "a\\c"},
                          {"source": "2", "destination": "a/c"}])")
        << FileMap{{QStringLiteral("a/c"), QStringLiteral("2")}};
    QTest::newRow("one source, two destinations")
        << QByteArray(R"([{"source": "b", "destination": "a"},
                          {"source": "b", "destination": "c"}])")
        << FileMap{{QStringLiteral("a"), QStringLiteral("b")},
                   {QStringLiteral("c"), QStringLiteral("b")}};
    QTest::newRow("no destination")
        << QByteArray(R"([{"source": "b"}])") << FileMap{{QString(), QStringLiteral("b")}};
    QTest::newRow("no source") << QByteArray(R"([{"destination": "a"}])")
                               << FileMap{{QStringLiteral("a"), QString()}};
    QTest::newRow("wrongly typed texts")
        << QByteArray(R"([{"source": 1, "destination": null}])") << emptyToEmpty;
    for (const char *value : {"[1]", R"(["a"])", "[null]", "[[]]", "[{}]"})
        QTest::newRow(value) << QByteArray(value) << emptyToEmpty;
    for (const char *value :
         {"null", "1", "true", R"("a")", R"({"source": "b", "destination": "a"})", "[]"})
        QTest::newRow(value) << QByteArray(value) << FileMap();
}

void TestFlightSimScan::readsFiles()
{
    QFETCH(QByteArray, value);
    const Tests::LogCatcher log;
    const FlightSimScan scan(nullptr, {{QStringLiteral("files"), jsonValue(value)}});
    QTEST(scan.files, "files");
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
}

void TestFlightSimScan::ordersFilesByDestination()
{
    const FlightSimScan scan(nullptr, json(R"({"files": [
        {"destination": "b"}, {"destination": "a/z"}, {"destination": "B"}]})"));
    QCOMPARE(QStringList(scan.files.keys()),
             (QStringList{QStringLiteral("B"), QStringLiteral("a/z"), QStringLiteral("b")}));
}

void TestFlightSimScan::readsAConflictOnlyBesideAConfig_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<bool>("hasConfig");
    QTest::addColumn<bool>("hasConflict");
    QTest::newRow("no config") << QByteArray(R"({"conflict": {"name": "g"}})") << false << false;
    QTest::newRow("config is null")
        << QByteArray(R"({"config": null, "conflict": {"name": "g"}})") << false << true;
    for (const char *config : {"{}", "1", "true", R"("a")", R"([{"a": 1}])"})
        QTest::addRow("config is %s", config)
            << QByteArray(R"({"conflict": {"name": "g"}, "config": )").append(config).append('}')
            << false << false;
    QTest::newRow("config says something")
        << QByteArray(R"({"config": {"a": 1}, "conflict": {"name": "g"}})") << true << true;
    QTest::newRow("no conflict") << QByteArray(R"({"config": {"a": 1}})") << true << false;
}

void TestFlightSimScan::readsAConflictOnlyBesideAConfig()
{
    QFETCH(QByteArray, entry);
    const FlightSimScan scan(nullptr, json(entry));
    QTEST(scan.config != nullptr, "hasConfig");
    QTEST(scan.conflict != nullptr, "hasConflict");
}

void TestFlightSimScan::readsAConflictFromAnObjectOnly_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : {"null", "{}", "1", "true", R"("a")", R"([{"name": "g"}])"})
        QTest::newRow(value) << QByteArray(value);
}

void TestFlightSimScan::readsAConflictFromAnObjectOnly()
{
    QFETCH(QByteArray, value);
    const FlightSimScan scan(nullptr,
                             {{QStringLiteral("config"), jsonValue("null")},
                              {QStringLiteral("conflict"), jsonValue(value)}});
    QVERIFY(!scan.conflict);
}

void TestFlightSimScan::readsARemovalFromAnObjectOnly_data()
{
    QTest::addColumn<QByteArray>("config");
    for (const char *config : {R"({"a": 1})",
                               R"({"a": 1, "remove": null})",
                               R"({"a": 1, "remove": {}})",
                               R"({"a": 1, "remove": [{"key": "k"}]})",
                               R"({"a": 1, "remove": "k"})"})
        QTest::newRow(config) << QByteArray(config);
}

void TestFlightSimScan::readsARemovalFromAnObjectOnly()
{
    QFETCH(QByteArray, config);
    const FlightSimScan scan(nullptr, {{QStringLiteral("config"), jsonValue(config)}});
    QVERIFY(scan.config);
    QVERIFY(!scan.remove);
}

void TestFlightSimScan::handsTheConfigToItsModel()
{
    const FlightSimScan scan(nullptr, json(R"({"config": {
        "path": "Example\\exe.xml", "remove": {"value": "Other"}}})"));
    QCOMPARE(scan.config->path, QStringLiteral("Example/exe.xml"));
    QCOMPARE(scan.remove->value, QStringLiteral("Other"));
}

void TestFlightSimScan::ownsWhatItReads()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<FlightSimScan> scan = new FlightSimScan(
        parent.get(), json(R"({"config": {"remove": {"key": "k"}}, "conflict": {"name": "g"}})"));
    const QPointer<XmlInsertionModel> config = scan->config;
    const QPointer<FlightSimRemoval> remove = scan->remove;
    const QPointer<FlightSimConflict> conflict = scan->conflict;
    QCOMPARE(scan->parent(), parent.get());
    QCOMPARE(config->parent(), scan.data());
    QCOMPARE(remove->QObject::parent(), scan.data());
    QCOMPARE(conflict->parent(), scan.data());

    parent.reset();
    QVERIFY(!scan);
    QVERIFY(!config);
    QVERIFY(!remove);
    QVERIFY(!conflict);
}

void TestFlightSimScan::isAPlainObjectToTheMetaSystem()
{
    const QMetaObject &meta = FlightSimScan::staticMetaObject;
    QCOMPARE(meta.className(), "Quillmont::Utility::Models::FlightSimScan");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(Tests::ownMembers(meta), QStringList());
}

QTEST_GUILESS_MAIN(TestFlightSimScan)
#include "tst_FlightSimScan.moc"
