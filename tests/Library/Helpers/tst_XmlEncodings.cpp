#include "tests/Library/Helpers/RoundTrip.h"
#include "tests/Library/Helpers/XmlEditTest.h"

#include <QSet>
#include <QTextCodec>
#include <QXmlStreamReader>
#include <QtTest>

/// Files in the encodings that occur, declared correctly or not.
class TestXmlEncodings : public Tests::XmlEditTest
{
    Q_OBJECT

private slots:
    void writesTheEntryInTheFilesEncoding_data();
    void writesTheEntryInTheFilesEncoding();
    void keepsAllOtherBytes_data();
    void keepsAllOtherBytes();
    void refusesANameThatTheEncodingLacks();
    void refusesAnEndTagThatTheEncodingLacks();
    void writesNoShiftSequences();
    void refusesHalfACharacterAfterTheRoot();
    void keepsThePromisesForEveryCodec_data();
    void keepsThePromisesForEveryCodec();
    void refusesASecondByteOrderMark();
    void doesNotJoinASplitCharacter();
};

namespace {

QByteArray encoded(const char *codec, const QString &text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName(codec)->fromUnicode(text.constData(), text.size(), &state);
}

/// The text of the last element "Name", as an XML reader decodes it.
QString lastName(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    QString name;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"Name")
            name = reader.readElementText();
    }
    return reader.hasError() ? reader.errorString() : name;
}

} // namespace

void TestXmlEncodings::writesTheEntryInTheFilesEncoding_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written");
    const auto row = [](const char *name,
                        const QByteArray &mark,
                        const char *label,
                        const char *codec,
                        const char *text,
                        const char *written) {
        const QString declaration = *label
            ? QStringLiteral("<?xml version='1.0' encoding='%1'?>").arg(QLatin1String(label))
            : QString();
        QTest::newRow(name) << mark + encoded(codec, declaration) << QByteArray(codec)
                            << QString::fromUtf8(text) << QString::fromUtf8(written);
    };
    row("no label", "", "", "UTF-8", "Flut ü 日 \xf0\x9f\x8c\x8a", "Flut ü 日 \xf0\x9f\x8c\x8a");
    row("UTF-8", "", "utf-8", "UTF-8", "ü 日", "ü 日");
    row("UTF-8 with a mark", "\xef\xbb\xbf", "", "UTF-8", "ü 日", "ü 日");
    row("UTF-8 with mark and label", "\xef\xbb\xbf", "UTF-8", "UTF-8", "ü 日", "ü 日");
    row("Windows-1252", "", "Windows-1252", "windows-1252", "ü € 日", "ü € &#26085;");
    row("Windows-1251", "", "windows-1251", "windows-1251", "Прилив ü", "Прилив &#252;");
    row("Latin-1", "", "ISO-8859-1", "ISO-8859-1", "ü €", "ü &#8364;");
    row("ASCII", "", "US-ASCII", "US-ASCII", "ü", "&#252;");
    row("Shift_JIS", "", "Shift_JIS", "Shift_JIS", "潮 ソ ü", "潮 ソ &#252;");
    row("GB18030", "", "GB18030", "GB18030", "潮 ü \xf0\x9f\x8c\x8a", "潮 ü \xf0\x9f\x8c\x8a");
    row("Big5", "", "Big5", "Big5", "潮 功", "潮 功");
    row("EUC-KR", "", "EUC-KR", "EUC-KR", "조수", "조수");
    row("shift states", "", "ISO-2022-JP", "ISO-2022-JP", "潮", "&#28526;");
    row("beyond the basic plane",
        "",
        "Windows-1252",
        "windows-1252",
        "\xf0\x9f\x8c\x8a",
        "&#127754;");
    row("UTF-16LE",
        "\xff\xfe",
        "utf-16",
        "UTF-16LE",
        "ü 日 \xf0\x9f\x8c\x8a",
        "ü 日 \xf0\x9f\x8c\x8a");
    row("UTF-16BE", "\xfe\xff", "UTF-16", "UTF-16BE", "ü 日", "ü 日");
    row("UTF-16LE unlabelled", "\xff\xfe", "", "UTF-16LE", "ü 日", "ü 日");
    row("UTF-32LE", QByteArray("\xff\xfe\0\0", 4), "UTF-32", "UTF-32LE", "ü 日", "ü 日");
    row("UTF-8 mark contradicting the label",
        "\xef\xbb\xbf",
        "Windows-1252",
        "UTF-8",
        "ü",
        "&#252;");
    row("UTF-16 mark contradicting the label", "\xff\xfe", "utf-8", "UTF-16LE", "ü", "&#252;");
    row("UTF-16 label on single bytes", "", "utf-16", "UTF-8", "ü", "&#252;");
}

void TestXmlEncodings::writesTheEntryInTheFilesEncoding()
{
    QFETCH(const QByteArray, head);
    QFETCH(const QByteArray, codec);
    QFETCH(const QString, name);
    QFETCH(const QString, written);
    const auto bytes = [&](const QString &text) {
        return encoded(codec.constData(), text);
    };
    const QString begin = QStringLiteral("\r\n<R>\r\n <A>x</A>");
    const QString end = QStringLiteral("\r\n</R>\r\n");
    const QString entry
        = QStringLiteral("\r\n <Addon>\r\n  <Name>%1</Name>\r\n </Addon>").arg(written);
    const QByteArray config = R"({"parent": "Addon", "values": [{"key": "Name", "value": ")"
        + name.toUtf8() + R"("}]})";

    const QByteArray before = head + bytes(begin + end);
    QVERIFY(insertInto(before, config));
    QCOMPARE(content(), head + bytes(begin + entry + end));

    const QByteArray after = identity();
    QVERIFY(insert(config));
    QCOMPARE(identity(), after);

    QVERIFY(remove(config));
    QCOMPARE(content(), before);
}

void TestXmlEncodings::keepsAllOtherBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes;
    };
    row("1252 without a label", "<R>\n <A>\x80\xe9</A>\n</R>");
    row("1252 called UTF-8", "<?xml version='1.0' encoding='utf-8'?><R>\n <A>caf\xe9</A>\n</R>");
    row("UTF-8 called 1252",
        "<?xml version='1.0' encoding='windows-1252'?><R><A>\xc3\x9f\x81</A></R>");
    row("unused bytes of 1252",
        "<?xml version='1.0' encoding='windows-1252'?><R>\x81\x8d\x8f\x90\x9d</R>");
    row("unused byte of 1253", "<?xml version='1.0' encoding='windows-1253'?><R>\xaa\xd2\xff</R>");
    row("1252 called ASCII", "<?xml version='1.0' encoding='us-ascii'?><R>\xe9</R>");
    row("lead byte before white space", "<R><A/>\xc3\n</R>");
    row("lead byte before a tag", "<R><A>\xe2\x82</A>\xe2\x82</R>");
    row("lead byte after a tag", "<R><A/>\xf0\x9f</R>");
    row("trail bytes alone", "<R>\x80\xbf<A/>\x80\xbf</R>");
    row("overlong form and surrogates", "<R>\xc0\xbc\xed\xa0\x80\xed\xb0\x80<A/>\xf5\xff\xfe</R>");
    row("long run of undecodable bytes",
        "<R><A>" + QByteArray(10000, '\xe9') + "</A>" + QByteArray(5000, '\xff') + "</R>");
    row("half a pair of Shift_JIS",
        "<?xml version='1.0' encoding='Shift_JIS'?><R><A>\x83</A>\x83\n</R>");
    row("unknown pair of Shift_JIS",
        "<?xml version='1.0' encoding='Shift_JIS'?><R><A>\x81\xad\xfd</A>\n</R>");
    row("bytes beyond GB18030",
        "<?xml version='1.0' encoding='GB18030'?><R><A>\xff\x81\x30</A>\x80\n</R>");
    row("bytes beyond EUC-JP",
        "<?xml version='1.0' encoding='EUC-JP'?><R><A>\x8f\xff\xa1</A>\xfe\n</R>");
    row("shift states",
        "<?xml version='1.0' encoding='ISO-2022-JP'?><R><A>\x1b$B" + QByteArray("<>").repeated(400)
            + "\x1b(B</A>\n</R>");
    row("UTF-16 with halves of pairs",
        "\xff\xfe"
            + encoded("UTF-16LE",
                      QStringLiteral("<R>") + QChar(0xd83d) + QStringLiteral("<A/>") + QChar(0xdc00)
                          + QStringLiteral("</R>")));
    row("UTF-16 with pairs across every five hundred bytes",
        "\xff\xfe"
            + encoded("UTF-16LE",
                      QStringLiteral("<R>") + QStringLiteral("\U0001f600").repeated(300)
                          + QStringLiteral("</R>")));
    row("UTF-16LE without a mark",
        encoded("UTF-16LE",
                QStringLiteral("<?xml version='1.0' encoding='utf-16'?>\n<R>\n<A/>\n</R>")));
    row("UTF-16BE without a mark",
        encoded("UTF-16BE",
                QStringLiteral("<?xml version='1.0' encoding='utf-16'?>\n<R>\n<A/>\n</R>")));
    row("EBCDIC label on ASCII", "<?xml version='1.0' encoding='IBM037'?><R><A/></R>");
    row("UTF-32 label on single bytes",
        "<?xml version='1.0' encoding='UTF-32'?><R><A>\xe9</A></R>");
}

void TestXmlEncodings::keepsAllOtherBytes()
{
    QFETCH(const QByteArray, bytes);
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken(bytes), QString());
    QVERIFY(roundTrip.wasAccepted());
}

void TestXmlEncodings::refusesANameThatTheEncodingLacks()
{
    const char *const config = R"({"parent": "日", "values": [{"key": "Name", "value": "x"}]})";
    const QByteArray bytes = "<?xml version='1.0' encoding='windows-1252'?><R></R>";
    QVERIFY(!insertInto(bytes, config));
    QCOMPARE(content(), bytes);
    QVERIFY(insertInto("<R></R>", config));
    QCOMPARE(content(), QByteArray("<R><日><Name>x</Name></日></R>"));
}

/// In such an encoding a tilde and a brace begin two-byte characters.
void TestXmlEncodings::writesNoShiftSequences()
{
    const QByteArray bytes = "<?xml version='1.0' encoding='HZ-GB-2312'?><R></R>";
    QVERIFY(insertInto(bytes, R"({"parent": "A", "values": [{"key": "Name", "value": "~{x"}]})"));
    QCOMPARE(content(), QByteArray(bytes).replace("</R>", "<A><Name>&#126;{x</Name></A></R>"));
    QVERIFY(
        removeFrom(content(), R"({"parent": "A", "values": [{"key": "Name", "value": "~{x"}]})"));
    QCOMPARE(content(), bytes);
}

void TestXmlEncodings::refusesAnEndTagThatTheEncodingLacks()
{
    const QByteArray bytes = "<?xml version='1.0' encoding='ISO-2022-JP'?><\x1b$BF|\x1b(B/>";
    QVERIFY(!insertInto(bytes));
    QCOMPARE(content(), bytes);
}

void TestXmlEncodings::refusesHalfACharacterAfterTheRoot()
{
    const QByteArray bytes = "<R></R>\xc3";
    QVERIFY(!insertInto(bytes));
    QCOMPARE(content(), bytes);
}

void TestXmlEncodings::keepsThePromisesForEveryCodec_data()
{
    QTest::addColumn<QByteArray>("name");
    QSet<QByteArray> seen;
    const QList<QByteArray> aliases = QTextCodec::availableCodecs();
    for (const QByteArray &alias : aliases) {
        const QByteArray name = QTextCodec::codecForName(alias)->name();
        if (!seen.contains(name))
            QTest::newRow(name.constData()) << name;
        seen.insert(name);
    }
}

void TestXmlEncodings::keepsThePromisesForEveryCodec()
{
    QFETCH(const QByteArray, name);
    // Longer than the pieces in which it is decoded.
    const QString foreign = QStringLiteral("\u00fc\u0431\u65e5\uc870 ~\\").repeated(300);
    const QString text
        = QStringLiteral(
              "<?xml version='1.0' encoding='%1'?>\n<R>\n  <A>x</A>\n  <B>%2</B>\n</R>\n")
              .arg(QString::fromLatin1(name), foreign);

    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken(QTextCodec::codecForName(name)->fromUnicode(text)), QString());
    // ASCII can be read under the name of any encoding that extends it.
    QString ascii = text;
    ascii.replace(QRegularExpression(QStringLiteral("[^\\n -}]")), QString());
    QCOMPARE(roundTrip.broken(ascii.toLatin1()), QString());
    if (roundTrip.wasAccepted() && encoded(name.constData(), ascii) == ascii.toLatin1()) {
        QVERIFY(
            insertInto(ascii.toLatin1(),
                       R"({"parent": "A", "values": [{"key": "Name", "value": "\u00fc\u65e5"}]})"));
        QCOMPARE(lastName(content()), QStringLiteral("\u00fc\u65e5"));
    }
}

void TestXmlEncodings::refusesASecondByteOrderMark()
{
    const QByteArray bytes = "\xef\xbb\xbf\xef\xbb\xbf<R></R>";
    QVERIFY(!insertInto(bytes));
    QCOMPARE(content(), bytes);
}

/// Two halves of a character, with our entry between them: they were invalid bytes, and must not
/// become a character.
void TestXmlEncodings::doesNotJoinASplitCharacter()
{
    const QByteArray bytes = "<R>\xc3<Addon><Name>Tide</Name></Addon>\xa9</R>";
    QVERIFY(!removeFrom(bytes));
    QCOMPARE(content(), bytes);
}

QTEST_APPLESS_MAIN(TestXmlEncodings)
#include "tst_XmlEncodings.moc"
