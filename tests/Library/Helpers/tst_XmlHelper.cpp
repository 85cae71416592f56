#include "tests/Library/Helpers/XmlEditTest.h"
#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest>

/// Where an entry is inserted, what is changed in it, and what is removed.
class TestXmlHelper : public Tests::XmlEditTest
{
    Q_OBJECT

private slots:
    void formatsANewEntryLikeItsNeighbours_data();
    void formatsANewEntryLikeItsNeighbours();
    void updatesADifferingEntry_data();
    void updatesADifferingEntry();
    void doesNotRewriteACorrectEntry_data();
    void doesNotRewriteACorrectEntry();
    void ignoresEntriesElsewhereInTheDocument_data();
    void ignoresEntriesElsewhereInTheDocument();
    void escapesValues_data();
    void escapesValues();
    void refusesWhatXmlCannotRepresent_data();
    void refusesWhatXmlCannotRepresent();
    void refusesMalformedCharacterReferences_data();
    void refusesMalformedCharacterReferences();
    void removesOnlyOurEntry_data();
    void removesOnlyOurEntry();
    void writesNothingIfThereIsNothingToRemove();
    void removesOnlyTheKey_data();
    void removesOnlyTheKey();
    void refusesAnEntryFromAnEntity_data();
    void refusesAnEntryFromAnEntity();
    void keepsCompleteEntriesThatAreNotOurs();
    void takesOnlyXmlWhiteSpaceAsWhiteSpace();
    void neverBreaksADocumentByRemoving();
    void opensASelfClosedRoot();
    void addsOneEntryForAModelThatRecognisesAnother();
    void succeedsForAModelThatDescribesNothing_data();
    void succeedsForAModelThatDescribesNothing();
    void doesNotCreateAMissingFile();
    void logsThePlaceOfARefusal();
};

void TestXmlHelper::formatsANewEntryLikeItsNeighbours_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *before, const char *after) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after);
    };
    row("two spaces",
        "<R>\n  <A>\n    <B/>\n  </A>\n</R>\n",
        "<R>\n  <A>\n    <B/>\n  </A>\n  <Addon>\n    <Name>Tide</Name>\n"
        "    <Path>tide.exe</Path>\n  </Addon>\n</R>\n");
    row("tabs",
        "<R>\n\t<A>\n\t\t<B/>\n\t</A>\n</R>",
        "<R>\n\t<A>\n\t\t<B/>\n\t</A>\n\t<Addon>\n\t\t<Name>Tide</Name>\n"
        "\t\t<Path>tide.exe</Path>\n\t</Addon>\n</R>");
    row("CRLF",
        "<R>\r\n <A>x</A>\r\n</R>\r\n",
        "<R>\r\n <A>x</A>\r\n <Addon>\r\n  <Name>Tide</Name>\r\n"
        "  <Path>tide.exe</Path>\r\n </Addon>\r\n</R>\r\n");
    row("CR",
        "<R>\r <A>x</A>\r</R>\r",
        "<R>\r <A>x</A>\r <Addon>\r  <Name>Tide</Name>\r  <Path>tide.exe</Path>\r "
        "</Addon>\r</R>\r");
    row("mixed line ends: the neighbour's",
        "<?xml version='1.0'?>\r\n<R>\r\n <A>x</A>\n <B>y</B>\r\n</R>\n",
        "<?xml version='1.0'?>\r\n<R>\r\n <A>x</A>\n <B>y</B>\n <Addon>\n  <Name>Tide</Name>\n"
        "  <Path>tide.exe</Path>\n </Addon>\r\n</R>\n");
    row("no line end",
        "<R><A><B/></A></R>",
        "<R><A><B/></A><Addon><Name>Tide</Name><Path>tide.exe</Path></Addon></R>");
    row("no line end inside the root",
        "<?xml version='1.0'?>\n<R> <A/> </R>\n",
        "<?xml version='1.0'?>\n<R> <A/> <Addon><Name>Tide</Name><Path>tide.exe</Path></Addon> "
        "</R>\n");
    row("entries of one line each",
        "<R>\n  <A><B/><C/></A>\n</R>",
        "<R>\n  <A><B/><C/></A>\n  <Addon><Name>Tide</Name><Path>tide.exe</Path></Addon>\n</R>");
    row("last entry not on its own line",
        "<R>\n  <A>\n    <B/>\n  </A><A>\n<B/></A>\n</R>",
        "<R>\n  <A>\n    <B/>\n  </A><A>\n<B/></A>\n  <Addon>\n    <Name>Tide</Name>\n"
        "    <Path>tide.exe</Path>\n  </Addon>\n</R>");
    row("no indentation",
        "<R>\n<A>\n<B/>\n</A>\n</R>",
        "<R>\n<A>\n<B/>\n</A>\n<Addon>\n<Name>Tide</Name>\n<Path>tide.exe</Path>\n</Addon>\n</R>");
    row("blank lines are not copied",
        "<R>\n\n\n  <A>\n\n    <B/>\n\n  </A>\n\n</R>",
        "<R>\n\n\n  <A>\n\n    <B/>\n\n  </A>\n  <Addon>\n    <Name>Tide</Name>\n"
        "    <Path>tide.exe</Path>\n  </Addon>\n\n</R>");
    row("empty root", "<R></R>", "<R><Addon><Name>Tide</Name><Path>tide.exe</Path></Addon></R>");
    row("root with an empty line",
        "<R>\n</R>",
        "<R>\n    <Addon>\n        <Name>Tide</Name>\n        <Path>tide.exe</Path>\n    "
        "</Addon>\n</R>");
    row("indented root with an empty line",
        "<!-- -->\n  <R>\r\n  </R>",
        "<!-- -->\n  <R>\r\n      <Addon>\r\n          <Name>Tide</Name>\r\n"
        "          <Path>tide.exe</Path>\r\n      </Addon>\r\n  </R>");
    row("only a comment",
        "<R>\n\t<!-- none -->\n</R>",
        "<R>\n\t<!-- none "
        "-->\n\t<Addon>\n\t\t<Name>Tide</Name>\n\t\t<Path>tide.exe</Path>\n\t</Addon>\n</R>");
    row("after a comment that is last",
        "<R>\n <A>x</A>\n <!-- </R> --></R>",
        "<R>\n <A>x</A>\n <!-- </R> -->\n <Addon>\n  <Name>Tide</Name>\n  <Path>tide.exe</Path>\n "
        "</Addon></R>");
    row("after text that is last",
        "<R>\n <A>x</A>\n  text  </R>",
        "<R>\n <A>x</A>\n  text\n <Addon>\n  <Name>Tide</Name>\n  <Path>tide.exe</Path>\n </Addon> "
        " </R>");
    row("line end only in a grandchild",
        "<R><A>\n</A></R>",
        "<R><A>\n</A>\n    <Addon>\n        <Name>Tide</Name>\n        <Path>tide.exe</Path>\n    "
        "</Addon></R>");
    row("neighbour from an entity",
        "<!DOCTYPE R [<!ENTITY e \"<A>\n\n<B/></A>\">]>\n<R>\n  <C>x</C>\n  &e;\n</R>",
        "<!DOCTYPE R [<!ENTITY e \"<A>\n\n<B/></A>\">]>\n<R>\n  <C>x</C>\n  &e;\n  <Addon>\n"
        "    <Name>Tide</Name>\n    <Path>tide.exe</Path>\n  </Addon>\n</R>");
}

void TestXmlHelper::formatsANewEntryLikeItsNeighbours()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);

    QVERIFY(insertInto(before));
    QCOMPARE(content(), after);

    const QByteArray written = identity();
    QVERIFY(insert());
    QCOMPARE(identity(), written);

    QVERIFY(remove());
    QCOMPARE(content(), before);
}

void TestXmlHelper::updatesADifferingEntry_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *before, const char *after) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after);
    };
    row("differing text",
        "<R><Addon><Name>Tide</Name><Path a='1'>old &amp; gone</Path></Addon></R>",
        "<R><Addon><Name>Tide</Name><Path a='1'>tide.exe</Path></Addon></R>");
    row("text and CDATA sections",
        "<R><Addon><Name>Tide</Name><Path>ti<!-- -->de<![CDATA[.]]>e<b/>xe</Path></Addon></R>",
        "<R><Addon><Name>Tide</Name><Path>tide.exe</Path></Addon></R>");
    row("empty child",
        "<R><Addon><Name>Tide</Name><Path></Path></Addon></R>",
        "<R><Addon><Name>Tide</Name><Path>tide.exe</Path></Addon></R>");
    row("self-closed child",
        "<R><Addon><Name>Tide</Name><Path b=\"/>\"/></Addon></R>",
        "<R><Addon><Name>Tide</Name><Path b=\"/>\">tide.exe</Path></Addon></R>");
    row("missing child after the preceding one",
        "<R>\n <Addon>\n  <Name>Tide</Name>\n  <Disabled>No</Disabled>\n </Addon>\n</R>",
        "<R>\n <Addon>\n  <Name>Tide</Name>\n  <Path>tide.exe</Path>\n  <Disabled>No</Disabled>\n"
        " </Addon>\n</R>");
    row("missing child on one line",
        "<R><Addon> <Name>Tide</Name> </Addon></R>",
        "<R><Addon> <Name>Tide</Name> <Path>tide.exe</Path> </Addon></R>");
    row("other content is kept",
        "<R><Addon x='1'> <!-- mine --> <Name>Tide</Name><Hotkey>F5</Hotkey>text"
        "<Path>x</Path></Addon></R>",
        "<R><Addon x='1'> <!-- mine --> <Name>Tide</Name><Hotkey>F5</Hotkey>text"
        "<Path>tide.exe</Path></Addon></R>");
    row("further entries of ours are removed",
        "<R>\n <Addon><Path>tide.exe</Path><Name>Tide</Name></Addon>\n "
        "<Addon><Name>Else</Name></Addon>\n"
        " <Addon><Name>Tide</Name></Addon>  <Addon><Name> Tide </Name></Addon>\n</R>",
        "<R>\n <Addon><Path>tide.exe</Path><Name>Tide</Name></Addon>\n "
        "<Addon><Name>Else</Name></Addon>\n</R>");
    row("first entry of ours is changed, further ones are removed",
        "<R><Addon><Name>Tide</Name></Addon><Addon><Name>Tide</Name><Path>tide.exe</Path></Addon></"
        "R>",
        "<R><Addon><Name>Tide</Name><Path>tide.exe</Path></Addon></R>");
    row("second child of that name is correct",
        "<R><Addon><Name>Else</Name><Name>Tide</Name><Path>x</Path></Addon></R>",
        "<R><Addon><Name>Else</Name><Name>Tide</Name><Path>tide.exe</Path></Addon></R>");
}

void TestXmlHelper::updatesADifferingEntry()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);

    QVERIFY(insertInto(before));
    QCOMPARE(content(), after);

    const QByteArray written = identity();
    QVERIFY(insert());
    QCOMPARE(identity(), written);
}

void TestXmlHelper::doesNotRewriteACorrectEntry_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const char *bytes) {
        QTest::newRow(name) << QByteArray(bytes);
    };
    row("as we write it", "<R><Addon><Name>Tide</Name><Path>tide.exe</Path></Addon></R>");
    row("in another order", "<R><Addon><Path>tide.exe</Path><Name>Tide</Name></Addon></R>");
    row("with white space around",
        "<R><Addon><Name>\n Tide\t</Name><Path> tide.exe </Path></Addon></R>");
    row("in CDATA sections and references",
        "<R><Addon><Name>T<![CDATA[i]]>de</Name><Path>tide&#46;exe</Path></Addon></R>");
    row("around a comment", "<R><Addon><Name>Ti<!-- -->de</Name><Path>tide.exe</Path></Addon></R>");
    row("with text from an entity",
        "<!DOCTYPE R [<!ENTITY t "
        "'Tide'>]><R><Addon><Name>&t;</Name><Path>tide.exe</Path></Addon></R>");
    row("with children from an entity",
        "<!DOCTYPE R [<!ENTITY t "
        "'<Name>Tide</Name><Path>tide.exe</Path>'>]><R><Addon>&t;</Addon></R>");
    row("entirely from an entity",
        "<!DOCTYPE R [<!ENTITY t "
        "'<Addon><Name>Tide</Name><Path>tide.exe</Path></Addon>'>]><R>&t;</R>");
}

void TestXmlHelper::doesNotRewriteACorrectEntry()
{
    QFETCH(const QByteArray, bytes);
    Tests::writeFile(path(), bytes);
    const QByteArray before = identity();
    QVERIFY(insert());
    QCOMPARE(identity(), before);
    QCOMPARE(content(), bytes);
}

void TestXmlHelper::ignoresEntriesElsewhereInTheDocument_data()
{
    QTest::addColumn<QByteArray>("body");
    const auto row = [](const char *name, const char *body) {
        QTest::newRow(name) << QByteArray(body);
    };
    row("in a comment", "<!-- <Addon><Name>Tide</Name></Addon> -->");
    row("in a CDATA section", "<![CDATA[<Addon><Name>Tide</Name></Addon>]]>");
    row("in an instruction", "<?x <Addon><Name>Tide</Name></Addon>?>");
    row("in an attribute", "<A b='&lt;Addon>&lt;Name>Tide&lt;/Name>&lt;/Addon>'/>");
    row("one level down", "<A><Addon><Name>Tide</Name></Addon></A>");
    row("key one level down", "<Addon><A><Name>Tide</Name></A></Addon>");
    row("key with an element in it", "<Addon><Name>Ti<b/>de</Name></Addon>");
    row("key with an element after its text", "<Addon><Name>Tide<b/></Name></Addon>");
    row("key in a comment", "<Addon><!--<Name>Tide</Name>--></Addon>");
    row("key in an attribute", "<Addon Name='Tide'/>");
    row("another element's name", "<addon><Name>Tide</Name></addon>");
    row("a longer element's name", "<Addon2><Name>Tide</Name></Addon2>");
    row("a prefixed name", "<x:Addon xmlns:x='u'><Name>Tide</Name></x:Addon>");
    row("another key", "<Addon><name>Tide</name></Addon>");
    row("a text of another case", "<Addon><Name>tide</Name></Addon>");
    row("a longer text", "<Addon><Name>Tide 2</Name></Addon>");
    row("a text with a space in it", "<Addon><Name>Ti de</Name></Addon>");
}

void TestXmlHelper::ignoresEntriesElsewhereInTheDocument()
{
    QFETCH(const QByteArray, body);
    const QByteArray ours = "<Addon><Name>Tide</Name><Path>tide.exe</Path></Addon>";

    QVERIFY(insertInto("<R>" + body + "</R>"));
    QVERIFY2(content().contains(ours), content().constData());
    QVERIFY(remove());
    QCOMPARE(content(), QByteArray("<R>" + body + "</R>"));

    const QByteArray before = identity();
    QVERIFY(remove());
    QCOMPARE(identity(), before);
}

void TestXmlHelper::escapesValues_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char *name, const char *value, const char *written) {
        QTest::newRow(name) << QByteArray(value) << QByteArray(written);
    };
    row("markup", R"(<b> & ]]> \"'%1%2)", "&lt;b> &amp; ]]&gt; \"'%1%2");
    row("reference", "&amp;", "&amp;amp;");
    row("line ends", R"(a\nb\r\nc\rd)", "a&#10;b&#xd;&#10;c&#xd;d");
    row("tab", R"(a\tb)", "a\tb");
    row("spaces around", R"(  x\n)", "  x&#10;");
    row("only spaces", "  ", "  ");
    row("nothing", "", "");
    row("backslashes", R"(C:\\a\\b.exe)", "C:\\a\\b.exe");
    row("scripts", "ü 日本 \xf0\x9f\x8c\x8a", "ü 日本 \xf0\x9f\x8c\x8a");
}

void TestXmlHelper::escapesValues()
{
    QFETCH(const QByteArray, value);
    QFETCH(const QByteArray, written);
    const QByteArray config = R"({"parent": "Addon", "values": [{"key": "Name", "value": "Tide"},
        {"key": "Path", "value": ")"
        + value + R"("}]})";
    const QByteArray after = "<R><Addon><Name>Tide</Name><Path>" + written + "</Path></Addon></R>";

    QVERIFY(insertInto("<R></R>", config));
    QCOMPARE(content(), after);
    const QByteArray before = identity();
    QVERIFY(insert(config));
    QCOMPARE(identity(), before);

    QVERIFY(insertInto("<R><Addon><Name>Tide</Name><Path>old</Path></Addon></R>", config));
    QCOMPARE(content(), after);
    QVERIFY(remove(config));
    QCOMPARE(content(), QByteArray("<R></R>"));
}

void TestXmlHelper::refusesWhatXmlCannotRepresent_data()
{
    QTest::addColumn<QByteArray>("config");
    const auto row = [](const char *name, const char *config) {
        QTest::newRow(name) << QByteArray(config);
    };
    row("control character",
        R"({"parent": "Addon", "values": [{"key": "Name", "value": "a\u0001"}]})");
    row("zero", R"({"parent": "Addon", "values": [{"key": "Name", "value": "a\u0000b"}]})");
    row("not a character",
        R"({"parent": "Addon", "values": [{"key": "Name", "value": "\uffff"}]})");
    row("half a character",
        R"({"parent": "Addon", "values": [{"key": "Name", "value": "\ud83cx"}]})");
    row("name with a space", R"({"parent": "Add on", "values": [{"key": "Name", "value": "a"}]})");
    row("name with a digit first", R"({"parent": "1", "values": [{"key": "Name", "value": "a"}]})");
    row("name with markup", R"({"parent": "Addon", "values": [{"key": "N><M", "value": "a"}]})");
    row("name with an attribute",
        R"({"parent": "Addon", "values": [{"key": "N a='1'", "value": "a"}]})");
    row("name with two colons",
        R"({"parent": "Addon", "values": [{"key": "a:b:c", "value": "a"}]})");
}

void TestXmlHelper::refusesWhatXmlCannotRepresent()
{
    QFETCH(const QByteArray, config);
    const Tests::LogCatcher log;
    QVERIFY(!insertInto("<R><A/></R>", config));
    QCOMPARE(content(), QByteArray("<R><A/></R>"));
    QVERIFY(log.hasDebugLineWith(QStringLiteral("XML can hold")));
}

void TestXmlHelper::refusesMalformedCharacterReferences_data()
{
    QTest::addColumn<QByteArray>("root");
    QTest::addColumn<bool>("isWellFormed");
    const auto row = [](const char *root, bool isWellFormed) {
        QTest::newRow(root) << QByteArray(root) << isWellFormed;
    };
    row("<R>&#65; &#x4a; &#x4A;</R>", true);
    row("<R><!-- &#; --><![CDATA[&#x;]]><?p &#65 ;?></R>", true);
    row("<R>&amp;&#x0x41;</R>", false);
    row("<R>&#65\xc2\xa0;</R>", false);
    row("<R>&#x\xc2\x85\x34\x31;</R>", false);
    row("<R a='&#65\xe2\x80\xa8;'/>", false);
    row("<!-- &#; --><R>&#x0x41;</R>", false);
}

void TestXmlHelper::refusesMalformedCharacterReferences()
{
    QFETCH(const QByteArray, root);
    QFETCH(const bool, isWellFormed);
    const char *config = R"({"parent": "Addon", "values": [{"key": "Name", "value": "a"}]})";
    QCOMPARE(insertInto(root, config), isWellFormed);
    QCOMPARE(content() == root, !isWellFormed);
}

void TestXmlHelper::removesOnlyOurEntry_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *before, const char *after) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after);
    };
    row("with the white space before it",
        "<R>\n <A/>\n\n\t <Addon>\n<Name>Tide</Name></Addon>\n</R>",
        "<R>\n <A/>\n</R>");
    row("every entry of ours",
        "<R> <Addon><Name>Tide</Name></Addon><A/><Addon><Name>Tide</Name></Addon> "
        "<Addon><Name>Tide</Name></Addon><Addon><Name>Else</Name></Addon></R>",
        "<R><A/><Addon><Name>Else</Name></Addon></R>");
    row("with content added by others",
        "<R><Addon a='1'>text<!-- --><Name>Tide</Name><More><of/>it</More></Addon ></R>",
        "<R></R>");
    row("not the text before it",
        "<R>text <Addon><Name>Tide</Name></Addon> text</R>",
        "<R>text text</R>");
    row("not the comment before it",
        "<R><!-- --> <Addon><Name>Tide</Name></Addon></R>",
        "<R><!-- --></R>");
}

void TestXmlHelper::removesOnlyOurEntry()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    QVERIFY(removeFrom(before));
    QCOMPARE(content(), after);
    const QByteArray written = identity();
    QVERIFY(remove());
    QCOMPARE(identity(), written);
}

void TestXmlHelper::writesNothingIfThereIsNothingToRemove()
{
    Tests::writeFile(path(), "<R>\r\n <Addon><Name>Else</Name></Addon>\n</R>");
    const QByteArray before = identity();
    QVERIFY(remove());
    QCOMPARE(identity(), before);
}

void TestXmlHelper::removesOnlyTheKey_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *before, const char *after) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after);
    };
    row("the matching child",
        "<R>\n <Item>\n  <File>a</File>\n  <File>b</File>\n </Item>\n</R>",
        "<R>\n <Item>\n  <File>a</File>\n </Item>\n</R>");
    row("in every element of ours",
        "<R><Item><File>b</File></Item><Item><File>b</File><File> b </File>x</Item></R>",
        "<R><Item></Item><Item>x</Item></R>");
    row("not elsewhere",
        "<R><Other><File>b</File></Other></R>",
        "<R><Other><File>b</File></Other></R>");
}

void TestXmlHelper::removesOnlyTheKey()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    const char *const config = R"({"parent": "Addon", "values": [{"key": "Name", "value": "Tide"}],
        "remove": {"parent": "Item", "key": "File", "value": "b", "delete_parent": false}})";
    QVERIFY(removeFrom(before, config));
    QCOMPARE(content(), after);
}

void TestXmlHelper::refusesAnEntryFromAnEntity_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("the entry") << QByteArray(
        "<!DOCTYPE R [<!ENTITY t '<Addon><Name>Tide</Name></Addon>'>]><R>&t;</R>");
    QTest::newRow("the child to change")
        << QByteArray("<!DOCTYPE R [<!ENTITY t '<Path>x</Path>'>]>"
                      "<R><Addon><Name>Tide</Name>&t;</Addon></R>");
    QTest::newRow("a further entry")
        << QByteArray("<!DOCTYPE R [<!ENTITY t '<Addon><Name>Tide</Name></Addon>'>]>"
                      "<R><Addon><Name>Tide</Name><Path>tide.exe</Path></Addon>&t;</R>");
}

void TestXmlHelper::refusesAnEntryFromAnEntity()
{
    QFETCH(const QByteArray, bytes);
    const Tests::LogCatcher log;
    QVERIFY(!insertInto(bytes));
    QCOMPARE(content(), bytes);
    QVERIFY(log.hasDebugLineWith(QStringLiteral("out of an entity")));
}

// A model need not recognise what it writes; what it does not recognise is not ours to remove.
void TestXmlHelper::keepsCompleteEntriesThatAreNotOurs()
{
    const char *const config = R"({"parent": "Addon", "values": [{"key": "Name", "value": "Tide"}],
        "remove": {"key": "Id", "value": "7", "delete_parent": true}})";
    const QByteArray bytes = "<R><Addon><Name>Tide</Name></Addon>"
                             "<Addon><Name>Tide</Name><Id>8</Id></Addon></R>";
    QVERIFY(insertInto(bytes, config));
    QCOMPARE(content(), bytes);
}

void TestXmlHelper::takesOnlyXmlWhiteSpaceAsWhiteSpace()
{
    const QByteArray bytes = "<R><Addon><Name>\xc2\xa0Tide</Name></Addon></R>";
    QVERIFY(removeFrom(bytes));
    QCOMPARE(content(), bytes);
}

void TestXmlHelper::neverBreaksADocumentByRemoving()
{
    const QByteArray bytes = "<R>]]<Addon><Name>Tide</Name></Addon>></R>";
    QVERIFY(!removeFrom(bytes));
    QCOMPARE(content(), bytes);
    QVERIFY(removeFrom("<R>]]<Addon><Name>Tide</Name></Addon> ></R>"));
}

void TestXmlHelper::opensASelfClosedRoot()
{
    QVERIFY(insertInto("<R a='/>' />\r\n"));
    QCOMPARE(
        content(),
        QByteArray("<R a='/>' ><Addon><Name>Tide</Name><Path>tide.exe</Path></Addon></R>\r\n"));
    QVERIFY(remove());
    QCOMPARE(content(), QByteArray("<R a='/>' ></R>\r\n"));
}

void TestXmlHelper::addsOneEntryForAModelThatRecognisesAnother()
{
    const char *const renaming = R"({"parent": "Addon", "values": [{"key": "Name", "value": "New"}],
        "remove": {"key": "Name", "value": "Old", "delete_parent": true}})";
    QVERIFY(insertInto("<R><Addon><Name>Old</Name></Addon></R>", renaming));
    QCOMPARE(content(), QByteArray("<R><Addon><Name>New</Name></Addon></R>"));
    QVERIFY(insert(renaming));
    QCOMPARE(content(), QByteArray("<R><Addon><Name>New</Name></Addon></R>"));
}

void TestXmlHelper::succeedsForAModelThatDescribesNothing_data()
{
    QTest::addColumn<QByteArray>("config");
    QTest::newRow("nothing") << QByteArray("{}");
    QTest::newRow("no parent") << QByteArray(R"({"values": [{"key": "Name", "value": "Tide"}]})");
    QTest::newRow("no values") << QByteArray(R"({"parent": "Addon", "remove": {"key": "Name",
        "value": "Tide", "delete_parent": true}})");
}

void TestXmlHelper::succeedsForAModelThatDescribesNothing()
{
    QFETCH(const QByteArray, config);
    QFile::remove(path());
    QVERIFY(insert(config));
    QVERIFY(remove(config));
    QVERIFY(!QFileInfo::exists(path()));
    for (const char *const bytes : {"<R><Addon><Name>Tide</Name></Addon></R>", "not XML"}) {
        QVERIFY(insertInto(bytes, config));
        QVERIFY(remove(config));
        QCOMPARE(content(), QByteArray(bytes));
    }
}

void TestXmlHelper::doesNotCreateAMissingFile()
{
    QFile::remove(path());
    const Tests::LogCatcher log;
    QVERIFY(remove());
    QVERIFY(log.debugLines().isEmpty());
    QVERIFY(!insert());
    QCOMPARE(log.debugLines().size(), 1);
    QVERIFY(!QFileInfo::exists(path()));
    // A file that the system refuses to look up may exist.
    QVERIFY(!removeAt(path() + QString(300, u'x')));
}

void TestXmlHelper::logsThePlaceOfARefusal()
{
    const Tests::LogCatcher log;
    QVERIFY(!insertInto("<R>\r\n  <A>\r\n  </B>\r\n</R>"));
    QVERIFY(!remove());
    QCOMPARE(log.debugLines().size(), 2);
    const QString start = QStringLiteral("configuration file not changed: %1, line 3, column 6: ");
    for (const QString &line : log.debugLines())
        QVERIFY2(line.startsWith(start.arg(path())), qPrintable(line));
}

QTEST_APPLESS_MAIN(TestXmlHelper)
#include "tst_XmlHelper.moc"
