#include "Models/FlightSimRemoval.h"

#include "Models/FileOperation.h"
#include "tests/support/Json.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MetaObject.h"

#include <QPointer>
#include <QTest>

using Quillmont::Utility::Models::FileOperation;
using Quillmont::Utility::Models::FlightSimRemoval;
using Tests::json;
using Tests::jsonValue;

class TestFlightSimRemoval : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryMember();
    void takesNothingOutByDefault();
    void readsTextsFromStringsOnly_data();
    void readsTextsFromStringsOnly();
    void readsTheFlagFromBooleansOnly_data();
    void readsTheFlagFromBooleansOnly();
    void keepsFilesInOrderWithDuplicates();
    void takesAnElementThatIsNoObjectAsAnEmptyFile();
    void hasNoFilesUnlessTheyAreAnArray_data();
    void hasNoFilesUnlessTheyAreAnArray();
    void ownsItsFiles();
    void isAPlainObjectToTheMetaSystem();
};

void TestFlightSimRemoval::readsEveryMember()
{
    const FlightSimRemoval removal(nullptr, json(R"({
        "parent": "Launch.Addon", "key": "Name", "value": "Orbwell\\x", "delete_parent": true,
        "files": [{"root": "-1", "path": "a\\b"}]})"));
    QCOMPARE(removal.parent, QStringLiteral("Launch.Addon"));
    QCOMPARE(removal.key, QStringLiteral("Name"));
    QCOMPARE(removal.value, QStringLiteral(R"(Orbwell\x)"));
    QCOMPARE(removal.deleteParent, true);
    QCOMPARE(removal.files.size(), 1);
    QCOMPARE(removal.files.first()->root, QStringLiteral("-1"));
    QCOMPARE(removal.files.first()->path, QStringLiteral(R"(a\b)"));
}

void TestFlightSimRemoval::takesNothingOutByDefault()
{
    const FlightSimRemoval removal(nullptr, {});
    QCOMPARE(removal.parent, QString());
    QCOMPARE(removal.key, QString());
    QCOMPARE(removal.value, QString());
    QCOMPARE(removal.deleteParent, false);
    QVERIFY(removal.files.isEmpty());
}

void TestFlightSimRemoval::readsTextsFromStringsOnly_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : {"null", "5", "true", R"(["a"])", R"({"a": "b"})"})
        QTest::newRow(value) << QByteArray(value);
}

void TestFlightSimRemoval::readsTextsFromStringsOnly()
{
    QFETCH(QByteArray, value);
    const Tests::LogCatcher log;
    const FlightSimRemoval removal(nullptr,
                                   {{QStringLiteral("parent"), jsonValue(value)},
                                    {QStringLiteral("key"), jsonValue(value)},
                                    {QStringLiteral("value"), jsonValue(value)}});
    QCOMPARE(removal.parent, QString());
    QCOMPARE(removal.key, QString());
    QCOMPARE(removal.value, QString());
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
}

void TestFlightSimRemoval::readsTheFlagFromBooleansOnly_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("deleteParent");
    QTest::newRow("true") << QByteArray("true") << true;
    for (const char *value : {"false", "null", "1", R"("true")", "[true]", R"({"a": true})"})
        QTest::newRow(value) << QByteArray(value) << false;
}

void TestFlightSimRemoval::readsTheFlagFromBooleansOnly()
{
    QFETCH(QByteArray, value);
    const FlightSimRemoval removal(nullptr, {{QStringLiteral("delete_parent"), jsonValue(value)}});
    QTEST(removal.deleteParent, "deleteParent");
}

void TestFlightSimRemoval::keepsFilesInOrderWithDuplicates()
{
    const FlightSimRemoval removal(nullptr, json(R"({"files": [
        {"root": "1", "path": "z"}, {"root": "2", "path": "a"}, {"root": "1", "path": "z"}]})"));
    QStringList files;
    for (const FileOperation *file : removal.files)
        files.append(file->root + u':' + file->path);
    QCOMPARE(files,
             (QStringList{QStringLiteral("1:z"), QStringLiteral("2:a"), QStringLiteral("1:z")}));
}

void TestFlightSimRemoval::takesAnElementThatIsNoObjectAsAnEmptyFile()
{
    const FlightSimRemoval removal(nullptr, json(R"({"files": [
        {"root": "1", "path": "a"}, 7, {"root": "2", "path": "b"}]})"));
    QCOMPARE(removal.files.size(), 3);
    QCOMPARE(removal.files.at(0)->path, QStringLiteral("a"));
    QCOMPARE(removal.files.at(1)->root, QString());
    QCOMPARE(removal.files.at(1)->path, QString());
    QCOMPARE(removal.files.at(2)->path, QStringLiteral("b"));
}

void TestFlightSimRemoval::hasNoFilesUnlessTheyAreAnArray_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : {"null", "1", "true", R"("a")", R"({"root": "1", "path": "a"})", "[]"})
        QTest::newRow(value) << QByteArray(value);
}

void TestFlightSimRemoval::hasNoFilesUnlessTheyAreAnArray()
{
    QFETCH(QByteArray, value);
    const FlightSimRemoval removal(nullptr, {{QStringLiteral("files"), jsonValue(value)}});
    QVERIFY(removal.files.isEmpty());
}

void TestFlightSimRemoval::ownsItsFiles()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<FlightSimRemoval> removal
        = new FlightSimRemoval(parent.get(), json(R"({"files": [{"path": "a"}]})"));
    const QPointer<FileOperation> file = removal->files.first();
    QCOMPARE(removal->QObject::parent(), parent.get());
    QCOMPARE(file->parent(), removal.data());
    parent.reset();
    QVERIFY(!removal);
    QVERIFY(!file);
}

void TestFlightSimRemoval::isAPlainObjectToTheMetaSystem()
{
    const QMetaObject &meta = FlightSimRemoval::staticMetaObject;
    QCOMPARE(meta.className(), "Quillmont::Utility::Models::FlightSimRemoval");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(Tests::ownMembers(meta), QStringList());
}

QTEST_GUILESS_MAIN(TestFlightSimRemoval)
#include "tst_FlightSimRemoval.moc"
