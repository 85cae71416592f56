#include "SimDetect/Steam/TextFormat.h"

#include <QTest>

using Quillmont::SimDetect::TextFormat;

/// How Steam's text format is read.
class TestTextFormat : public QObject
{
    Q_OBJECT

private slots:
    void readsEntries_data();
    void readsEntries();
    void refusesBrokenText_data();
    void refusesBrokenText();
    void skipsBlocks();
    void entersTheFirstBlockWithAKey_data();
    void entersTheFirstBlockWithAKey();
    void refusesTextOverItsLimits_data();
    void refusesTextOverItsLimits();
};

namespace {

// The text as it was read: a sequence of key=value; and key{...}, with "!" if it is broken.
QByteArray understood(const QByteArray &content)
{
    TextFormat text(content);
    QByteArray result;
    int level = 0;
    while (level >= 0 && !text.isBroken()) {
        if (!text.next()) {
            --level;
            result += level < 0 || text.isBroken() ? "" : "}";
        } else if (text.isBlock()) {
            ++level;
            result += QByteArray::fromStdString(text.key()) + '{';
        } else {
            result += QByteArray::fromStdString(text.key()) + '=' + text.value().toUtf8() + ';';
        }
    }
    return result + (text.isBroken() ? "!" : "");
}

} // namespace

void TestTextFormat::readsEntries_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("meaning");
    const auto row = [](const char *name, const QByteArray &content, const QByteArray &meaning) {
        QTest::newRow(name) << content << meaning;
    };
    row("nothing", "", "");
    row("only white space", " \t\r\n\v\f", "");
    row("quoted", R"("key" "value")", "key=value;");
    row("bare", "key value", "key=value;");
    row("no space between", R"("key""value")", "key=value;");
    row("a quote ends a bare token", R"(key"value")", "key=value;");
    row("a brace ends a bare token", "key{a b}", "key{a=b;}");
    row("nested", "a { b { c d } e f } g h", "a{b{c=d;}e=f;}g=h;");
    row("an empty value", R"("key" "")", "key=;");
    row("an empty key", R"("" "value")", "=value;");
    row("escapes", R"("k" "a\nb\tc\\d\"e")", "k=a\nb\tc\\d\"e;");
    row("other backslash pairs are kept", R"("k" "C:\Games\0")", R"(k=C:\Games\0;)");
    row("a backslash is literal in a bare token", R"(k a\nb)", R"(k=a\nb;)");
    row("a line end in a quoted token", "k \"a\nb\"", "k=a\nb;");
    row("braces in a quoted token", R"(k "{}")", "k={};");
    row("comments", "// one\nk // two\nv // three { \"\nk2 v2//none", "k=v;k2=v2//none;");
    row("a comment after a quoted token", "\"k\"//x\n\"v\"//y", "k=v;");
    row("slashes in a quoted token", R"(k "//v")", "k=//v;");
    row("a condition", "k v [$WIN32] k2 v2", "k=v;k2=v2;");
    row("a condition before a block", "k [$A] { a b } k2 v2", "k{a=b;}k2=v2;");
    row("a condition with an or", "k v [$A || $B] // why\n[!$C] k2 v2", "k=v;k2=v2;");
    row("a quoted value that looks like a condition", R"(k "[$A]" k2 v2)", "k=[$A];k2=v2;");
    row("an include takes one token",
        "#base \"a.vdf\" #include b.vdf\nk {}",
        "#base=a.vdf;#include=b.vdf;k{}");
    row("a byte-order mark", "\xEF\xBB\xBF\"k\" v", "k=v;");
    row("non-ASCII bytes", "k \xC3\xA9\xFF", "k=\xC3\xA9\xEF\xBF\xBD;");
}

void TestTextFormat::readsEntries()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, meaning);
    QCOMPARE(understood(content), meaning);
}

void TestTextFormat::refusesBrokenText_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << content;
    };
    row("a missing last brace", "a { b c");
    row("a missing inner brace", "a { b { c d } ");
    row("a key without a value", "a");
    row("a key without a value in a block", "a { b }");
    row("a block without a key", "{ a b }");
    row("a brace too many", "a { } }");
    row("a quote that does not end", R"(a "b)");
    row("a quote that ends in a backslash", R"(a "b\)");
    row("a condition that does not end", "a b [$c");
}

void TestTextFormat::refusesBrokenText()
{
    QFETCH(QByteArray, content);
    QVERIFY2(understood(content).endsWith('!'), understood(content).constData());
    // A broken text stays broken.
    TextFormat text(content);
    for (int i = 0; i < 10; ++i)
        text.next();
    QVERIFY(text.isBroken());
    QVERIFY(!text.next());
}

void TestTextFormat::skipsBlocks()
{
    TextFormat text("a { b { c d } e f } g h");
    QVERIFY(text.next());
    text.skip();
    QVERIFY(text.next());
    QCOMPARE(text.key(), std::string("g"));
    text.skip();
    QCOMPARE(text.value(), QStringLiteral("h"));
    QVERIFY(!text.next());
    QVERIFY(!text.isBroken());
}

void TestTextFormat::entersTheFirstBlockWithAKey_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isEntered");
    QTest::newRow("the only one") << QByteArray("key { in 1 }") << true;
    QTest::newRow("other letter case") << QByteArray("KEY { in 1 }") << true;
    QTest::newRow("after others") << QByteArray("other { key { in 2 } } more x key { in 1 }")
                                  << true;
    QTest::newRow("the first of two") << QByteArray("key { in 1 } key { in 2 }") << true;
    QTest::newRow("a value first") << QByteArray("key value key { in 1 }") << false;
    QTest::newRow("a longer name") << QByteArray("keys { in 1 }") << false;
    QTest::newRow("none") << QByteArray() << false;
}

void TestTextFormat::entersTheFirstBlockWithAKey()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isEntered);
    TextFormat text(content);
    QCOMPARE(text.enter("key"), isEntered);
    if (isEntered) {
        QVERIFY(text.next());
        QCOMPARE(text.value(), QStringLiteral("1"));
    }
}

void TestTextFormat::refusesTextOverItsLimits_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isBroken");
    const QByteArray longest(64 * 1024, 'x');
    QTest::newRow("a long quoted token") << QByteArray("k \"" + longest + "\"") << false;
    QTest::newRow("a quoted token that is too long")
        << QByteArray("k \"" + longest + "x\"") << true;
    QTest::newRow("a long bare token") << QByteArray("k " + longest) << false;
    QTest::newRow("a bare token that is too long") << QByteArray("k x" + longest) << true;
    QTest::newRow("a key that is too long") << QByteArray(longest + "x v") << true;
    const QByteArray condition = "k v [$" + longest.mid(2);
    QTest::newRow("a long condition") << QByteArray(condition + "]") << false;
    QTest::newRow("a condition that is too long") << QByteArray(condition + "x]") << true;
    QTest::newRow("64 levels") << QByteArray("k {").repeated(64) + QByteArray(64, '}') << false;
    QTest::newRow("65 levels") << QByteArray("k {").repeated(65) + QByteArray(65, '}') << true;
    QTest::newRow("100,000 levels") << QByteArray("k {").repeated(100000) << true;
    QTest::newRow("100,000 braces") << QByteArray(100000, '{') << true;
}

void TestTextFormat::refusesTextOverItsLimits()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isBroken);
    QCOMPARE(understood(content).endsWith('!'), isBroken);
}

QTEST_GUILESS_MAIN(TestTextFormat)
#include "tst_TextFormat.moc"
