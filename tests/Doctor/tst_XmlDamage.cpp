#include "Doctor/TextPlaces.h"
#include "Doctor/XmlDamage.h"
#include "Library/Text/XmlSource.h"
#include "Library/Xml/XmlDocument.h"

#include <QtTest>

using Quillmont::Library::Text::XmlSource;
using Quillmont::Library::Xml::RootChild;
using Quillmont::Library::Xml::XmlDocument;
using Quillmont::Utility::Doctor::firstInvalid;
using Quillmont::Utility::Doctor::lineAt;
using Quillmont::Utility::Doctor::XmlDamage;

/// Damage that other installers have done to configuration files, in words that a pilot
/// understands.
class TestXmlDamage : public QObject
{
    Q_OBJECT

private slots:
    void explainsTheDamageInWords_data();
    void explainsTheDamageInWords();
    void isNotSeenInCharactersThatAreThere_data();
    void isNotSeenInCharactersThatAreThere();
};

void TestXmlDamage::explainsTheDamageInWords_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<int>("line");
    const auto row = [](const char *name, const QByteArray &bytes, const char *sentence, int line) {
        QTest::newRow(name) << bytes << QString::fromUtf8(sentence) << line;
    };
    row("empty", "", "The file is empty.", 1);
    row("only white space", " \r\n\t", "The file holds nothing but white space.", 1);
    row("zero bytes",
        QByteArray(512, 0),
        "The file holds nothing but zero bytes: the computer stopped while it was written, or its "
        "disk is failing.",
        1);
    row("trailing zero bytes",
        "<R>\n</R>\n" + QByteArray(4, 0),
        "Zero bytes begin in line 3: the file was not written to its end.",
        3);
    row("web page", "<!DOCTYPE html>\n<html><br></html>", "The file is a web page, not XML.", 1);
    row("not XML", "\n[Launch]", "The file does not begin with a tag, so it is not XML.", 2);
    row("no element", "<?xml version='1.0'?>\n", "The file has no element.", 1);
    row("lost end of an entry",
        "<R>\n<Launch.Addon>\n<Name>a</Name>\n<Launch.Addon>\n</Launch.Addon>\n</R>\n",
        "<Launch.Addon> in line 2 is never closed; </R> in line 6 came first.",
        2);
    row("lost start tag",
        "<?xml version='1.0'?>\n<Launch.Addon>\n</Launch.Addon>\n</SimBase.Document>\n",
        "</SimBase.Document> in line 4 closes an element that was never opened: the line with "
        "<SimBase.Document ...> is lost.",
        4);
    row("no root element",
        "<?xml version='1.0'?>\n<Descr>a</Descr>\n<Name>b</Name>\n<C>c</ C>\n</Launch.Addon>\n",
        "</Launch.Addon> in line 5 closes an element that was never opened: the line with "
        "<Launch.Addon ...> is lost.",
        5);
    row("two roots",
        "<R>\n</R>\n<R>\n</R>",
        "There are two root elements: somebody appended a second document in line 3.",
        3);
    row("two documents",
        "<R/>\n<?xml version='1.0'?>\n<R/>",
        "A second document begins in line 2: somebody appended it.",
        2);
    row("declaration not first",
        "\n<?xml version='1.0'?>\n<R/>",
        "<?xml ...?> in line 2 has to be the very beginning of the file.",
        2);
    row("rest of a longer file",
        "<R>\r\n</R>\r\n</R>\r\nment>\r\n",
        "</R> comes a second time in line 3: behind the document is the rest of an older, longer "
        "file.",
        3);
    row("text after the root",
        "<R>\n</R>\nment>",
        "Behind the end of the document, in line 3, there is more text: the rest of an older, "
        "longer file?",
        3);
    row("cut off in a tag",
        "<R>\n<Name>a</Na",
        "The file ends in the middle of a tag, which begins in line 2.",
        2);
    row("cut off after a tag",
        "<R>\n<Name>a</Name>\n",
        "<R> in line 1 is never closed: the file ends in line 3.",
        1);
    row("tag without end", "<R>\n<Name\n<A/></R>", "A tag in line 2 has no \">\".", 2);
    row("backslash",
        "<R>\n<Path>C:\\a.exe<\\Path>\n</R>",
        "<\\Path> in line 2 is no tag; what is meant is </Path>.",
        2);
    row("space in an end tag",
        "<R>\n<A>False</ A>\n</R>",
        "</ A> in line 2 is no tag; what is meant is </A>.",
        2);
    row("less than",
        "<R>\n1 < 2</R>",
        "\"<\" in line 2 begins no tag; as text it is written \"&lt;\".",
        2);
    row("letter case",
        "<R>\n<Path>a</path></R>",
        "<Path> in line 2 ends with </path> in line 2: letter case counts.",
        2);
    row("end tag without a start tag",
        "<R>\n</B>\n</R>",
        "</B> in line 2 closes nothing: no <B> is open there.",
        2);
    row("ampersand", "<R>\r<A>a & b</A></R>", "\"&\" in line 2 has to be written \"&amp;\".", 2);
    row("control character",
        "<R>\n\x01</R>",
        "Line 2 holds a control character, which XML does not allow.",
        2);
    row("web page behind a declaration and a comment",
        "<?xml version='1.0'?>\n<!-- <R> -->\n<HTML><br></HTML>",
        "The file is a web page, not XML.",
        1);
    row("quotation mark lost at the end",
        "<R>\n<A b=\"c>\n</A></R>",
        "A quotation mark is missing in a tag in line 2.",
        2);
    row("quotation mark lost at the beginning",
        "<R>\n<A b=c\" d=\"e\">\n</A></R>",
        "A quotation mark is missing in a tag in line 2.",
        2);
    row("no quotation marks",
        "<R>\n<!-- a & b --><A b='&amp;' c=1/>&</R>",
        "The value of c in line 2 has no quotation marks.",
        2);
    row("ampersand behind a comment",
        "<R>\n<!-- a & b -->\n<![CDATA[&]]>\n&</R>",
        "\"&\" in line 4 has to be written \"&amp;\".",
        4);
    row("encoding that nobody knows",
        "<?xml version='1.0' encoding='klingon'?><R/>",
        "It is not well-formed XML: line 1, column 40: Encoding klingon is unsupported.",
        1);
    row("anything else",
        "<R>\n<A b='' b=''/></R>",
        "It is not well-formed XML: line 2, column 14: Attribute 'b' redefined.",
        2);
    row("UTF-16",
        QByteArray::fromHex("fffe3c005200 3e000a00 3c002f004200 3e00"),
        "</B> in line 2 closes nothing: no <B> is open there.",
        2);
}

void TestXmlDamage::explainsTheDamageInWords()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, sentence);
    QFETCH(const int, line);
    const QString text = XmlSource(bytes).text();
    const QString problem = XmlDocument(text, [](const RootChild &) { return false; }).problem();
    QVERIFY(!problem.isEmpty());
    const XmlDamage damage(text, problem);
    QCOMPARE(damage.sentence(), sentence);
    QCOMPARE(damage.line(), line);
    QVERIFY(damage.brokenLine().size() <= 161 && !damage.brokenLine().contains(u'\n'));
}

void TestXmlDamage::isNotSeenInCharactersThatAreThere_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("line");
    QTest::newRow("none") << QByteArray("<a>\xc3\xa9</a>") << 0;
    QTest::newRow("invalid") << QByteArray("<a>\r\r\n\xe9\n</a>") << 3;
    QTest::newRow("replacement character") << QByteArray("<a>\n\xef\xbf\xbd</a>") << 0;
    QTest::newRow("both") << QByteArray("\xef\xbb\xbf<a>\n\xef\xbf\xbd\n\xe9</a>") << 3;
    QTest::newRow("both in UTF-16") << QByteArray::fromHex("fffe 3c00 fdff 0a00 00d8 3e00") << 2;
    QTest::newRow("an encoding without it")
        << QByteArray("<?xml version='1.0' encoding='iso-8859-7'?>\n<a>\xff</a>") << 2;
}

void TestXmlDamage::isNotSeenInCharactersThatAreThere()
{
    QFETCH(const QByteArray, bytes);
    const XmlSource source(bytes);
    const int place = firstInvalid(source);
    QTEST(place < 0 ? 0 : lineAt(source.text(), place), "line");
}

QTEST_GUILESS_MAIN(TestXmlDamage)
#include "tst_XmlDamage.moc"
