#include "Library/Models/XmlInsertionModel.h"

#include "tests/support/Json.h"
#include "tests/support/Literals.h"

#include <QTest>

using namespace Quillmont::Library::Models;
using namespace Tests;

/// How a "config" object of the catalogue is read.
class TestXmlConfigModel : public QObject
{
    Q_OBJECT

private slots:

    void convertsThePathToSlashes()
    {
        QObject owner;
        auto *model = new XmlInsertionModel(&owner, json(R"({"path": "Maker\\Sim/exe.xml"})"));
        QCOMPARE(model->parent(), &owner);
        QCOMPARE(model->path, "Maker/Sim/exe.xml"_s);
        QCOMPARE(XmlConfigModel(nullptr, json(R"({"path": "a\\b"})")).path, "a/b"_s);
    }

    void readsTheGameOnlyFromAnInteger_data()
    {
        QTest::addColumn<qint64>("steam");
        QTest::newRow(R"({"steam": 314160})") << 314160LL;
        QTest::newRow(R"({"steam": 4294967295})") << 4294967295LL;
        QTest::newRow("{}") << 0LL;
        for (const char *value :
             {R"("314160")", "314160.5", "4294967296", "0", "-1", "true", "null", "[1]"})
            QTest::addRow(R"({"steam": %s})", value) << -1LL;
    }

    void readsTheGameOnlyFromAnInteger()
    {
        QTEST(XmlConfigModel(nullptr, json(QTest::currentDataTag())).steam, "steam");
    }

    // Element, key and value that make an element ours; empty if none is described.
    void readsHowOurElementIsRecognised_data()
    {
        QTest::addColumn<QString>("ours");
        const auto row = [](const QByteArray &config, const char *ours) {
            QTest::newRow(('{' + config + '}').constData()) << QString::fromUtf8(ours);
        };
        const QByteArray parent = R"("parent": "Launch.Addon", )";
        const QByteArray values = R"("values": [{"key": "Name", "value": "Tide"}, {"key": "b"}])";
        const QByteArray removal = R"("remove": {"parent": "Other", "key": "Path", "value": "x"})";
        row(parent + values, "Launch.Addon Name=Tide");
        row(parent + values + ", " + removal, "Other Path=x");
        for (const char *silent : {R"({"key": "Name", "value": "Tide"})",
                                   R"({"parent": "Launch.Addon", "value": "x"})",
                                   R"({"parent": "Launch.Addon", "key": "x"})",
                                   R"({"parent": 1, "key": [], "value": true})",
                                   "{}",
                                   R"("Other")"})
            row(parent + values + R"(, "remove": )" + silent, "Launch.Addon Name=Tide");
        row({}, "");
        row(values + ", " + removal, "");
        row(R"("parent": "", )" + values, "");
        row(R"("parent": 1, )" + values, "");
        row(parent + removal, "");
        row(parent + R"("values": [])", "");
        row(parent + R"("values": [{}, 1, {"value": "x"}])", "");
    }

    void readsHowOurElementIsRecognised()
    {
        const XmlConfigModel model(nullptr, json(QTest::currentDataTag()));
        QTEST(model.describesEntry() ? model.element + u' ' + model.key + u'=' + model.value
                                     : QString(),
              "ours");
    }

    void removesTheWholeElementUnlessToldOtherwise_data()
    {
        QTest::addColumn<bool>("whole");
        QTest::newRow("{}") << true;
        QTest::newRow(R"({"remove": null})") << true;
        QTest::newRow(R"({"remove": {"key": "Name"}})") << false;
        QTest::newRow(R"({"remove": {"delete_parent": true}})") << true;
        QTest::newRow(R"({"remove": {"delete_parent": false}})") << false;
        QTest::newRow(R"({"remove": {"delete_parent": "true"}})") << false;
    }

    void removesTheWholeElementUnlessToldOtherwise()
    {
        QTEST(XmlConfigModel(nullptr, json(QTest::currentDataTag())).deleteParent, "whole");
    }

    void keepsTheNamedValuesInOrder()
    {
        const XmlInsertionModel model(nullptr, json(R"({"parent": "Launch.Addon", "remove": {
            "parent": "Other"}, "values": [{"key": "Path", "value": "x"}, {"value": "nameless"},
            "no object", {"key": "Name"}, {"key": "Path", "value": 1}]})"));
        QCOMPARE(model.parentName, "Launch.Addon"_s);
        QCOMPARE(model.values, (XmlValues{{"Path"_s, "x"_s}, {"Name"_s, {}}, {"Path"_s, {}}}));
    }
};

QTEST_APPLESS_MAIN(TestXmlConfigModel)
#include "tst_XmlConfigModel.moc"
