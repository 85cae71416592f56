#include "Library/Models/XmlInsertionModel.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using Quillmont::Library::Models::XmlConfigModel;
using Quillmont::Library::Models::XmlInsertionModel;
using Quillmont::Library::Models::XmlValues;

/// What a "config" object of the catalogue means.
class TestXmlConfigModel : public QObject
{
    Q_OBJECT

private slots:
    void pathUsesSlashes();
    void pathCanBeSet();
    void entryIsRecognisedByItsFirstValue();
    void removalSaysHowTheEntryIsRecognised();
    void removalIsTakenAsFarAsItGoes_data();
    void removalIsTakenAsFarAsItGoes();
    void wholeEntryGoesUnlessRemovalSaysOtherwise_data();
    void wholeEntryGoesUnlessRemovalSaysOtherwise();
    void nothingIsDescribedWithoutParentOrValues_data();
    void nothingIsDescribedWithoutParentOrValues();
    void valuesKeepTheirOrder();
    void valueWithoutNameIsLeftOut();
    void insertionModelIsAConfigModel();
};

namespace {

QJsonObject json(const QByteArray &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        qFatal("not an object: %s", text.constData());
    return document.object();
}

} // namespace

void TestXmlConfigModel::pathUsesSlashes()
{
    const XmlConfigModel model(nullptr, json(R"({"path": "Maker\\Sim\\exe.xml"})"));
    QCOMPARE(model.path, QStringLiteral("Maker/Sim/exe.xml"));
}

void TestXmlConfigModel::pathCanBeSet()
{
    XmlInsertionModel model(nullptr, json(R"({"path": "exe.xml"})"));
    model.path = QStringLiteral("other.xml");
    QCOMPARE(static_cast<XmlConfigModel &>(model).path, QStringLiteral("other.xml"));
}

void TestXmlConfigModel::entryIsRecognisedByItsFirstValue()
{
    const XmlConfigModel model(nullptr, json(R"({"parent": "Launch.Addon", "values":
        [{"key": "Name", "value": "Tide"}, {"key": "Path", "value": "tide.exe"}]})"));
    QVERIFY(model.describesEntry());
    QCOMPARE(model.element, QStringLiteral("Launch.Addon"));
    QCOMPARE(model.key, QStringLiteral("Name"));
    QCOMPARE(model.value, QStringLiteral("Tide"));
}

void TestXmlConfigModel::removalSaysHowTheEntryIsRecognised()
{
    const XmlConfigModel model(nullptr, json(R"({"parent": "Launch.Addon", "values":
        [{"key": "Name", "value": "Tide"}],
        "remove": {"parent": "Other", "key": "Path", "value": "tide.exe"}})"));
    QCOMPARE(model.element, QStringLiteral("Other"));
    QCOMPARE(model.key, QStringLiteral("Path"));
    QCOMPARE(model.value, QStringLiteral("tide.exe"));
}

void TestXmlConfigModel::removalIsTakenAsFarAsItGoes_data()
{
    QTest::addColumn<QByteArray>("removal");
    QTest::newRow("no element") << QByteArray(R"({"key": "Name", "value": "Tide"})");
    QTest::newRow("no key") << QByteArray(R"({"parent": "Launch.Addon", "value": "x"})");
    QTest::newRow("no value") << QByteArray(R"({"parent": "Launch.Addon", "key": "x"})");
    QTest::newRow("wrong types") << QByteArray(R"({"parent": 1, "key": [], "value": true})");
    QTest::newRow("nothing") << QByteArray("{}");
    QTest::newRow("no object") << QByteArray(R"("Launch.Addon")");
}

void TestXmlConfigModel::removalIsTakenAsFarAsItGoes()
{
    QFETCH(const QByteArray, removal);
    const XmlConfigModel model(nullptr,
                               json(R"({"parent": "Launch.Addon", "values":
        [{"key": "Name", "value": "Tide"}], "remove": )"
                                    + removal + '}'));
    QCOMPARE(model.element, QStringLiteral("Launch.Addon"));
    QCOMPARE(model.key, QStringLiteral("Name"));
    QCOMPARE(model.value, QStringLiteral("Tide"));
}

void TestXmlConfigModel::wholeEntryGoesUnlessRemovalSaysOtherwise_data()
{
    QTest::addColumn<QByteArray>("config");
    QTest::addColumn<bool>("deleteParent");
    QTest::newRow("no removal") << QByteArray("{}") << true;
    QTest::newRow("removal of no object") << QByteArray(R"({"remove": null})") << true;
    QTest::newRow("silent removal") << QByteArray(R"({"remove": {"key": "Name"}})") << false;
    QTest::newRow("yes") << QByteArray(R"({"remove": {"delete_parent": true}})") << true;
    QTest::newRow("no") << QByteArray(R"({"remove": {"delete_parent": false}})") << false;
    QTest::newRow("wrong type") << QByteArray(R"({"remove": {"delete_parent": "true"}})") << false;
}

void TestXmlConfigModel::wholeEntryGoesUnlessRemovalSaysOtherwise()
{
    QFETCH(const QByteArray, config);
    QFETCH(const bool, deleteParent);
    QCOMPARE(XmlConfigModel(nullptr, json(config)).deleteParent, deleteParent);
}

void TestXmlConfigModel::nothingIsDescribedWithoutParentOrValues_data()
{
    QTest::addColumn<QByteArray>("config");
    const QByteArray values = R"("values": [{"key": "Name", "value": "Tide"}])";
    const QByteArray removal = R"("remove": {"parent": "Launch.Addon", "key": "a", "value": "b"})";
    QTest::newRow("nothing") << QByteArray("{}");
    QTest::newRow("no parent") << '{' + values + ", " + removal + '}';
    QTest::newRow("empty parent") << R"({"parent": "", )" + values + '}';
    QTest::newRow("parent of a wrong type") << R"({"parent": 1, )" + values + '}';
    QTest::newRow("no values") << R"({"parent": "Launch.Addon", )" + removal + '}';
    QTest::newRow("empty values") << QByteArray(R"({"parent": "Launch.Addon", "values": []})");
    QTest::newRow("values without names")
        << QByteArray(R"({"parent": "Launch.Addon", "values": [{}, 1, {"value": "x"}]})");
}

void TestXmlConfigModel::nothingIsDescribedWithoutParentOrValues()
{
    QFETCH(const QByteArray, config);
    QVERIFY(!XmlConfigModel(nullptr, json(config)).describesEntry());
}

void TestXmlConfigModel::valuesKeepTheirOrder()
{
    const XmlInsertionModel model(nullptr, json(R"({"parent": "Launch.Addon", "values":
        [{"key": "Path", "value": "x"}, {"key": "Name"}, {"key": "Path", "value": 1}]})"));
    QCOMPARE(model.parentName, QStringLiteral("Launch.Addon"));
    QCOMPARE(model.values,
             (XmlValues{{QStringLiteral("Path"), QStringLiteral("x")},
                        {QStringLiteral("Name"), QString()},
                        {QStringLiteral("Path"), QString()}}));
}

void TestXmlConfigModel::valueWithoutNameIsLeftOut()
{
    const XmlInsertionModel model(nullptr, json(R"({"parent": "Launch.Addon", "values":
        [{"value": "x"}, "y", {"key": "Name", "value": "z"}]})"));
    QCOMPARE(model.values, (XmlValues{{QStringLiteral("Name"), QStringLiteral("z")}}));
}

void TestXmlConfigModel::insertionModelIsAConfigModel()
{
    QObject owner;
    auto *model = new XmlInsertionModel(&owner, json(R"({"path": "a\\b", "parent": "P"})"));
    QCOMPARE(model->parent(), &owner);
    QVERIFY(qobject_cast<XmlConfigModel *>(model));
    QCOMPARE(model->path, QStringLiteral("a/b"));
}

QTEST_APPLESS_MAIN(TestXmlConfigModel)
#include "tst_XmlConfigModel.moc"
