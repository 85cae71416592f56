#include "Library/Models/XmlInsertionModel.h"
#include "Models/FileOperation.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimRemoval.h"
#include "Models/FlightSimScan.h"
#include "tests/support/Json.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCatcher.h"

#include <QPointer>
#include <QTest>

#include <functional>

using namespace Quillmont::Utility::Models;
using namespace Tests;

using Reader = std::function<QVariant(const QJsonObject &)>;
Q_DECLARE_METATYPE(Reader)

namespace {

struct Value
{
    const char *json; ///< "" if the key is missing.
    QVariant meaning; ///< Invalid if no member accepts it.
};

// Possible values of a key in the catalogue. A member of another type gets its default.
const QVector<Value> &values()
{
    static const QVector<Value> all{{"", {}},
                                    {"null", {}},
                                    {R"("a\\ b/ü")", R"(a\ b/ü)"_s},
                                    {R"("")", ""_s},
                                    {R"("1")", "1"_s},
                                    {R"("true")", "true"_s},
                                    {R"("false")", "false"_s},
                                    {"true", true},
                                    {"false", false},
                                    {"0", 0},
                                    {"1", 1},
                                    {"4", 4},
                                    {"-3", -3},
                                    {"2.0", 2},
                                    {"1.5", {}},
                                    {R"(["a"])", {}},
                                    {"[1]", {}},
                                    {"[true]", {}},
                                    {R"({"a": "b"})", {}}};
    return all;
}

QJsonObject object(const char *key, const QByteArray &value)
{
    return value.isEmpty() ? QJsonObject() : QJsonObject{{QLatin1String(key), jsonValue(value)}};
}

void addRow(const QByteArray &json, const QString &expected)
{
    QTest::newRow(json.constData()) << expected;
}

// Adds a row per value for a member with this key and default.
template <typename Record, typename Type>
void addRows(const char *key, Type Record::*member, const Type &fallback)
{
    const Reader read = [member](const QJsonObject &json) {
        return QVariant(Record(nullptr, json).*member);
    };
    for (const Value &value : values()) {
        const bool counts = value.meaning.userType() == qMetaTypeId<Type>();
        QTest::addRow("%s %s: %s", Record::staticMetaObject.className(), key, value.json)
            << read << object(key, value.json) << (counts ? value.meaning : QVariant(fallback));
    }
}

QString written(const FlightSimRemoval &removal)
{
    QStringList files;
    for (const FileOperation *file : removal.files)
        files.append(file->root + u':' + file->path);
    return files.join(u' ');
}

QString written(const FlightSimScan &scan)
{
    QStringList files;
    for (auto it = scan.files.cbegin(); it != scan.files.cend(); ++it)
        files.append(it.key() + u'=' + it.value());
    return files.join(u' ');
}

} // namespace

/// How the catalogue's JSON is read: an entry, and the objects in it.
class TestRecords : public QObject
{
    Q_OBJECT

private slots:

    void readEachMemberOnlyFromItsOwnType_data()
    {
        QTest::addColumn<Reader>("read");
        QTest::addColumn<QJsonObject>("json");
        QTest::addColumn<QVariant>("expected");
        addRows("root", &FileOperation::root, {});
        addRows("path", &FileOperation::path, {});
        addRows("parent", &FlightSimRemoval::parent, {});
        addRows("key", &FlightSimRemoval::key, {});
        addRows("value", &FlightSimRemoval::value, {});
        addRows("delete_parent", &FlightSimRemoval::deleteParent, false);
        addRows("name", &FlightSimConflict::name, {});
        addRows("solution", &FlightSimConflict::solution, {});
        addRows("location", &FlightSimConflict::location, 0);
        addRows("check_file", &FlightSimConflict::checkFile, false);
        // Giving up the folder does no harm.
        addRows("remove_on_conflict", &FlightSimConflict::removeOnConflict, true);
        addRows("name", &FlightSimScan::name, {});
        addRows("simcode", &FlightSimScan::simcode, {});
        addRows("path", &FlightSimScan::path, {});
        addRows("key", &FlightSimScan::key, {});
        addRows("target", &FlightSimScan::target, {});
        addRows("location", &FlightSimScan::location, 0);
        addRows("type", &FlightSimScan::type, 0);
    }

    void readEachMemberOnlyFromItsOwnType()
    {
        QFETCH(const Reader, read);
        QFETCH(const QJsonObject, json);
        const LogCatcher log;
        QTEST(read(json), "expected");
        QCOMPARE(log.warnings() + log.debugLines(), QStringList());
    }

    void readTheRootOfAnEntryFromADecimalText_data()
    {
        QTest::addColumn<int>("root");
        QTest::newRow(R"("3")") << 3;
        QTest::newRow(R"("0")") << 0;
        QTest::newRow(R"("-5")") << -5;
        QTest::newRow(R"("010")") << 10;
        for (const char *noNumber : {R"("0x10")", R"("abc")", R"("3a")", R"("99999999999")"})
            QTest::newRow(noNumber) << 0;
        for (const char *noText : {"", R"("")", "3", "null", "true", R"(["3"])"})
            QTest::newRow(noText) << -1;
    }

    void readTheRootOfAnEntryFromADecimalText()
    {
        QTEST(FlightSimScan(nullptr, object("root", QTest::currentDataTag())).root, "root");
    }

    void readThePluginFilesByDestination_data()
    {
        QTest::addColumn<QString>("files");
        const QByteArray aFromX = R"({"source": "x", "destination": "a"})";
        const QByteArray aFromY = R"({"source": "y", "destination": "a"})";
        const QByteArray bFromX = R"({"source": "x", "destination": "b"})";
        addRow(R"([{"source": "x\\y\\\\z/w", "destination": "a\\b/c"}])", "a/b/c=x/y//z/w"_s);
        addRow('[' + aFromX + ", " + aFromY + ']', "a=y"_s);
        addRow('[' + bFromX + ", " + aFromX + ']', "a=x b=x"_s);
        addRow(R"([{"destination": "a\\c"}, {"source": "y", "destination": "a/c"}])", "a/c=y"_s);
        addRow(R"([{"destination": "b"}, {"destination": "a/z"}, {"destination": "B"}])",
               "B= a/z= b="_s);
        addRow(R"([{"source": "x"}])", "=x"_s);
        addRow(R"([{"source": 1, "destination": null}])", "="_s);
        for (const char *nameless : {"[1]", R"(["a"])", "[null]", "[[]]", "[{}]"})
            addRow(nameless, "="_s);
        for (const char *none : {"null", "1", "true", R"("a")", "[]", ""})
            addRow(none, {});
        addRow(aFromX, {});
    }

    void readThePluginFilesByDestination()
    {
        const LogCatcher log;
        QTEST(written(FlightSimScan(nullptr, object("files", QTest::currentDataTag()))), "files");
        QCOMPARE(log.warnings() + log.debugLines(), QStringList());
    }

    void readTheExtraFilesInOrder_data()
    {
        QTest::addColumn<QString>("files");
        const QByteArray z = R"({"root": "1", "path": "z"})";
        const QByteArray a = R"({"root": "2", "path": "a"})";
        addRow('[' + z + ", " + a + ", " + z + ']', "1:z 2:a 1:z"_s);
        addRow('[' + z + ", 7, " + a + ']', "1:z : 2:a"_s);
        for (const char *none : {"null", "1", "true", R"("a")", "[]", ""})
            addRow(none, {});
        addRow(z, {});
    }

    void readTheExtraFilesInOrder()
    {
        QTEST(written(FlightSimRemoval(nullptr, object("files", QTest::currentDataTag()))),
              "files");
    }

    // A conflict is read only if there is a configuration, or a null for "none".
    void ownTheObjectsThatTheEntryDescribes_data()
    {
        QTest::addColumn<QString>("objects");
        const QByteArray conflict = R"(, "conflict": {"name": "g"}})";
        addRow("{}", {});
        addRow(R"({"config": null)" + conflict, "conflict"_s);
        addRow(R"({"config": {"a": 1})" + conflict, "config conflict"_s);
        addRow(R"({"config": {"remove": {"key": "k"}})" + conflict, "config remove conflict"_s);
        addRow(R"({"other": 1)" + conflict, {});
        for (const char *config : {"{}", "1", "true", R"("a")", R"([{"a": 1}])"})
            addRow(R"({"config": )" + QByteArray(config) + conflict, {});
        addRow(R"({"config": {"a": 1}})", "config"_s);
        for (const char *removal : {"null", "{}", R"([{"key": "k"}])", R"("k")"})
            addRow(R"({"config": {"a": 1, "remove": )" + QByteArray(removal) + "}}", "config"_s);
        for (const char *other : {"null", "{}", "1", "true", R"("a")", R"([{"name": "g"}])"})
            addRow(R"({"config": null, "conflict": )" + QByteArray(other) + '}', {});
    }

    void ownTheObjectsThatTheEntryDescribes()
    {
        const FlightSimScan scan(nullptr, json(QTest::currentDataTag()));
        QStringList objects;
        if (scan.config)
            objects.append("config"_s);
        if (scan.remove)
            objects.append("remove"_s);
        if (scan.conflict)
            objects.append("conflict"_s);
        QTEST(objects.join(u' '), "objects");
    }

    void readAWholeEntry()
    {
        const QJsonObject entry = json(R"({
            "name": "Example Flight Simulator X", "simcode": "EFSX", "location": 2, "type": 1,
            "path": "HKEY_LOCAL_MACHINE\\SOFTWARE\\Example\\10.0", "key": "Setup\\Path",
            "target": "a\\b", "root": "1", "extra": "x", "other": [1, {"a": null}],
            "files": [{"source": "plugins\\Orbwell.dll", "destination": "Modules\\Orbwell.dll"}],
            "config": {"path": "a\\exe.xml", "remove": {"key": "Name", "parent": "P", "value": "V",
                "delete_parent": false, "files": [{"root": "-1", "path": "b\\c"}]}},
            "conflict": {"name": "group", "solution": "s", "check_file": true,
                "remove_on_conflict": true, "location": 0}})");
        const FlightSimScan scan(nullptr, entry);
        QCOMPARE((QStringList{scan.name, scan.simcode, scan.path, scan.key, scan.target}),
                 (QStringList{"Example Flight Simulator X"_s,
                              "EFSX"_s,
                              R"(HKEY_LOCAL_MACHINE\SOFTWARE\Example\10.0)"_s,
                              R"(Setup\Path)"_s,
                              R"(a\b)"_s}));
        QCOMPARE((QVector<int>{scan.location, scan.type, scan.root}), (QVector<int>{2, 1, 1}));
        QCOMPARE(written(scan), "Modules/Orbwell.dll=plugins/Orbwell.dll"_s);
        QCOMPARE(scan.config->path, "a/exe.xml"_s);
        QCOMPARE(scan.remove->key + u' ' + written(*scan.remove), R"(Name -1:b\c)"_s);
        QCOMPARE(scan.conflict->name, "group"_s);
        QCOMPARE(scan.entry, entry);
        QCOMPARE(scan.extra, QString());
    }

    void areDeletedWithTheirOwner()
    {
        auto owner = std::make_unique<QObject>();
        auto *scan = new FlightSimScan(owner.get(), json(R"({"conflict": {"name": "g"},
            "config": {"remove": {"key": "k", "files": [{"path": "a"}]}}})"));
        const QVector<QPair<QPointer<QObject>, QObject *>> owned{
            {scan, owner.get()},
            {scan->config, scan},
            {scan->conflict, scan},
            {scan->remove, scan},
            {scan->remove->files.first(), scan->remove}};
        for (const auto &pair : owned)
            QCOMPARE(pair.first->parent(), pair.second);
        owner.reset();
        for (const auto &pair : owned)
            QVERIFY(!pair.first);
    }
};

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_Records.moc"
