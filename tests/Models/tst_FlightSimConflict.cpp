#include "Models/FlightSimConflict.h"

#include "tests/support/Json.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MetaObject.h"

#include <QPointer>
#include <QTest>

using Quillmont::Utility::Models::FlightSimConflict;
using Tests::json;
using Tests::jsonValue;

class TestFlightSimConflict : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryMember();
    void givesWayUnlessToldOtherwise();
    void readsFlagsFromBooleansOnly_data();
    void readsFlagsFromBooleansOnly();
    void readsTheLocationFromWholeNumbersOnly_data();
    void readsTheLocationFromWholeNumbersOnly();
    void readsTextsFromStringsOnly_data();
    void readsTextsFromStringsOnly();
    void belongsToItsParent();
    void isAPlainObjectToTheMetaSystem();
};

void TestFlightSimConflict::readsEveryMember()
{
    const FlightSimConflict conflict(nullptr, json(R"({
        "name": "group", "solution": "a\\b/exe.xml", "location": 3,
        "check_file": true, "remove_on_conflict": false})"));
    QCOMPARE(conflict.name, QStringLiteral("group"));
    QCOMPARE(conflict.solution, QStringLiteral(R"(a\b/exe.xml)"));
    QCOMPARE(conflict.location, 3);
    QCOMPARE(conflict.checkFile, true);
    QCOMPARE(conflict.removeOnConflict, false);
}

void TestFlightSimConflict::givesWayUnlessToldOtherwise()
{
    const FlightSimConflict conflict(nullptr, {});
    QCOMPARE(conflict.removeOnConflict, true);
    QCOMPARE(conflict.checkFile, false);
    QCOMPARE(conflict.name, QString());
    QCOMPARE(conflict.solution, QString());
    QCOMPARE(conflict.location, 0);
}

void TestFlightSimConflict::readsFlagsFromBooleansOnly_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("removeOnConflict");
    QTest::addColumn<bool>("checkFile");
    QTest::newRow("true") << QByteArray("true") << true << true;
    QTest::newRow("false") << QByteArray("false") << false << false;
    for (const char *value :
         {"null", "0", "1", R"("false")", R"("true")", "[true]", R"({"a": true})"})
        QTest::newRow(value) << QByteArray(value) << true << false;
}

void TestFlightSimConflict::readsFlagsFromBooleansOnly()
{
    QFETCH(QByteArray, value);
    const Tests::LogCatcher log;
    const FlightSimConflict conflict(nullptr,
                                     {{QStringLiteral("remove_on_conflict"), jsonValue(value)},
                                      {QStringLiteral("check_file"), jsonValue(value)}});
    QTEST(conflict.removeOnConflict, "removeOnConflict");
    QTEST(conflict.checkFile, "checkFile");
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
}

void TestFlightSimConflict::readsTheLocationFromWholeNumbersOnly_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("location");
    QTest::newRow("4") << QByteArray("4") << 4;
    QTest::newRow("-1") << QByteArray("-1") << -1;
    QTest::newRow("2.0") << QByteArray("2.0") << 2;
    for (const char *value : {"1.5", R"("1")", "true", "null", "[1]", "{}"})
        QTest::newRow(value) << QByteArray(value) << 0;
}

void TestFlightSimConflict::readsTheLocationFromWholeNumbersOnly()
{
    QFETCH(QByteArray, value);
    const FlightSimConflict conflict(nullptr, {{QStringLiteral("location"), jsonValue(value)}});
    QTEST(conflict.location, "location");
}

void TestFlightSimConflict::readsTextsFromStringsOnly_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QByteArray(R"("a b")") << QStringLiteral("a b");
    for (const char *value : {"null", "5", "true", R"(["a"])", R"({"a": "b"})"})
        QTest::newRow(value) << QByteArray(value) << QString();
}

void TestFlightSimConflict::readsTextsFromStringsOnly()
{
    QFETCH(QByteArray, value);
    const FlightSimConflict conflict(nullptr,
                                     {{QStringLiteral("name"), jsonValue(value)},
                                      {QStringLiteral("solution"), jsonValue(value)}});
    QTEST(conflict.name, "text");
    QTEST(conflict.solution, "text");
}

void TestFlightSimConflict::belongsToItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<FlightSimConflict> conflict = new FlightSimConflict(parent.get(), {});
    QCOMPARE(conflict->parent(), parent.get());
    parent.reset();
    QVERIFY(!conflict);
}

void TestFlightSimConflict::isAPlainObjectToTheMetaSystem()
{
    const QMetaObject &meta = FlightSimConflict::staticMetaObject;
    QCOMPARE(meta.className(), "Quillmont::Utility::Models::FlightSimConflict");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(Tests::ownMembers(meta), QStringList());
}

QTEST_GUILESS_MAIN(TestFlightSimConflict)
#include "tst_FlightSimConflict.moc"
