#include "tests/Library/Helpers/RoundTrip.h"
#include "tests/Library/Helpers/XmlEditTest.h"
#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>

/// Files that are made, or broken, so that they take for ever or all of the memory.
class TestXmlBounds : public Tests::XmlEditTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void entityBombIsRefused_data();
    void entityBombIsRefused();
    void entitiesOfAnHonestSizeAreRead_data();
    void entitiesOfAnHonestSizeAreRead();
    void deepNestingIsEdited();
    void manyEntriesAreEdited();
    void manyEntriesOfOursAreRemoved();
    void zerosAreRefused_data();
    void zerosAreRefused();
    void hugeFileIsRefused_data();
    void hugeFileIsRefused();
    void whatIsNoFileIsRefused_data();
    void whatIsNoFileIsRefused();

private:
    QElapsedTimer m_timer;
};

// A document in which one entity, used so often, adds so many characters each time.
static QByteArray grown(int size, int times, const QByteArray &beside)
{
    return "<!DOCTYPE R [<!ENTITY x 'x'><!ENTITY a '" + QByteArray(size, 'x') + "'>]>\n<R><A>"
        + QByteArray("&a;").repeated(times) + "</A>" + beside + "</R>";
}

// A document in which one entity holds the next, and so on.
static QByteArray nested(int depth)
{
    QByteArray bytes = "<!DOCTYPE R [<!ENTITY a1 'x'>";
    for (int i = 2; i <= depth; ++i)
        bytes += QStringLiteral("<!ENTITY a%1 '&a%2;'>").arg(i).arg(i - 1).toLatin1();
    return bytes + "]>\n<R>&a" + QByteArray::number(depth) + ";</R>";
}

void TestXmlBounds::init()
{
    m_timer.start();
}

void TestXmlBounds::cleanup()
{
    // Far more than any of them takes, far less than what they would take without a bound.
    QVERIFY2(m_timer.elapsed() < 60000, "took too long");
    struct rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
#ifdef Q_OS_LINUX
    QVERIFY2(usage.ru_maxrss < 1048576, "took too much memory");
#endif
}

void TestXmlBounds::entityBombIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray laughs = "<!DOCTYPE R [<!ENTITY a0 'ha'>";
    for (int i = 1; i < 30; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        laughs += "<!ENTITY a" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
    }
    QTest::newRow("doubled again and again") << laughs + "]>\n<R>&a29;</R>";
    QTest::newRow("the same in an attribute") << laughs + "]>\n<R a='&a29;'/>";

    const QByteArray small = "<!DOCTYPE R [<!ENTITY a '" + QByteArray(4000, 'x') + "'>]>\n<R>";
    const QByteArray many = QByteArray("&a;").repeated(1000000);
    QTest::newRow("one of moderate size a million times") << small + many + "</R>";
    QTest::newRow("the same in an attribute, at once") << small + "<A a='" + many + "'/></R>";
    QTest::newRow("elements a million times") << "<!DOCTYPE R [<!ENTITY a '"
            + QByteArray("<b/>").repeated(900) + "'>]>\n<R>" + many + "</R>";
    QTest::newRow("one of great size")
        << "<!DOCTYPE R [<!ENTITY a '" + QByteArray(100000, 'x') + "'>]>\n<R>&a;</R>";
    QTest::newRow("in itself") << QByteArray(
        "<!DOCTYPE R [<!ENTITY a '&b;'><!ENTITY b '&a;'>]>\n<R>&a;</R>");
    QTest::newRow("in defaults of attributes")
        << QByteArray(small).replace("]>\n<R>", "<!ATTLIST R b CDATA '" + many + "'>]>\n<R/>");
    QTest::newRow("of the declarations' own") << "<!DOCTYPE R [<!ENTITY % a '<!--"
            + QByteArray(4000, 'x') + "-->'>" + QByteArray(many).replace('&', '%') + "]>\n<R/>";
    QTest::newRow("behind a small one of the declarations' own")
        << QByteArray(small).replace("[", "[<!ENTITY % a ''>") + many + "</R>";
    QTest::newRow("one character more than one may have") << grown(4100, 1, "");
    QTest::newRow("one character more than all may have") << grown(4096, 4096, "&x;");
    QTest::newRow("one deeper than they may be") << nested(101);
}

void TestXmlBounds::entityBombIsRefused()
{
    QFETCH(const QByteArray, bytes);
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken(bytes), QString());
    QVERIFY(!roundTrip.wasAccepted());
    QVERIFY(m_timer.elapsed() < 10000);
}

void TestXmlBounds::entitiesOfAnHonestSizeAreRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray head = "<!DOCTYPE R [<!ENTITY a 'Harbour and Sons'>]>\n<R>\n";
    QTest::newRow("a short one many times")
        << head + QByteArray(" <A>&a;</A>\n").repeated(4200) + "</R>";
    QTest::newRow("a long one once, beside what every document has")
        << grown(3000, 1, QByteArray("&amp;&#65;").repeated(8000));
    QTest::newRow("a short one with what every document has")
        << QByteArray(head).replace("and", "&#38;amp;") + QByteArray("&a;").repeated(50000)
            + "</R>";
    const QByteArray names = QByteArray("&a;").repeated(5000);
    QTest::newRow("where they are only text")
        << grown(4096, 1, "<!--" + names + "--><![CDATA[" + names + "]]><?p " + names + "?>");
    QTest::newRow("as long as one may be") << grown(4099, 1, "");
    QTest::newRow("as much as all may be") << grown(4096, 4096, "");
    QTest::newRow("as deep as they may be") << nested(100);
}

void TestXmlBounds::entitiesOfAnHonestSizeAreRead()
{
    QFETCH(const QByteArray, bytes);
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken(bytes), QString());
    QVERIFY(roundTrip.wasAccepted());
}

void TestXmlBounds::deepNestingIsEdited()
{
    constexpr int depth = 100000;
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(
        roundTrip.broken(QByteArray("<A>").repeated(depth) + QByteArray("</A>").repeated(depth)),
        QString());
    QVERIFY(roundTrip.wasAccepted());
    QCOMPARE(roundTrip.broken("<R><Launch.Addon>" + QByteArray("<Name>").repeated(depth)
                              + QByteArray("</Name>").repeated(depth) + "</Launch.Addon></R>"),
             QString());
    QVERIFY(roundTrip.wasAccepted());
}

void TestXmlBounds::manyEntriesAreEdited()
{
    const QByteArray entry = "  <Launch.Addon>\r\n    <Name>Tide</Name>\r\n  </Launch.Addon>\r\n";
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken("<R>\r\n" + entry.repeated(4200) + "</R>\r\n"), QString());
    QVERIFY(roundTrip.wasAccepted());
}

void TestXmlBounds::manyEntriesOfOursAreRemoved()
{
    const QByteArray other = "  <A>\n    <B/>\n  </A>\n";
    const QByteArray ours = "  <Addon>\n    <Name>Tide</Name>\n  </Addon>\n";
    QVERIFY(removeFrom("<R>\n" + (other + ours).repeated(20000) + "</R>\n"));
    QCOMPARE(content(), QByteArray("<R>\n" + other.repeated(20000) + "</R>\n"));
}

void TestXmlBounds::zerosAreRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing but zeros") << QByteArray(5000, '\0');
    QTest::newRow("many zeros") << QByteArray(30000000, '\0');
    QTest::newRow("zeros behind the root") << "<R></R>\n" + QByteArray(512, '\0');
    QTest::newRow("zeros in front") << QByteArray(512, '\0') + "<R></R>\n";
    QTest::newRow("a zero in a text") << QByteArray("<R>a\0b</R>", 10);
    QTest::newRow("a zero in a name") << QByteArray("<R a\0b='1'></R>", 15);
    QTest::newRow("zeros behind UTF-16") << QByteArray("\xff\xfe<\0R\0/\0>\0\0\0\0\0", 14);
}

void TestXmlBounds::zerosAreRefused()
{
    QFETCH(const QByteArray, bytes);
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken(bytes), QString());
    QVERIFY(!roundTrip.wasAccepted());
}

// Zeros are refused as well, but only a file that is read has a place where it is wrong.
void TestXmlBounds::hugeFileIsRefused_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("reason");
    constexpr qint64 most = 32LL * 1024 * 1024;
    QTest::newRow("as big as it may be") << most << "line 1, column 4: ";
    QTest::newRow("bigger by a byte") << most + 1 << "too big";
    QTest::newRow("far bigger") << 3 * most << "too big";
}

void TestXmlBounds::hugeFileIsRefused()
{
    QFETCH(const qint64, size);
    QFETCH(const QString, reason);
    const Tests::LogCatcher log;
    Tests::writeFile(path(), "<R>");
    QVERIFY(QFile::resize(path(), size));
    const QByteArray before = identity();
    QVERIFY(!insert());
    QVERIFY(!remove());
    QCOMPARE(identity(), before);
    QCOMPARE(log.debugLines().filter(reason).size(), 2);
    QVERIFY(m_timer.elapsed() < 5000);
    QVERIFY(QFile::remove(path()));
}

void TestXmlBounds::whatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("path");
    const QString folder = m_sandbox.path(QStringLiteral("folder"));
    QVERIFY(QDir().mkpath(folder));
    QTest::newRow("folder") << folder;
    const QString pipe = m_sandbox.path(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("pipe") << pipe;
    QTest::newRow("endless device") << QStringLiteral("/dev/zero");
    const QString link = m_sandbox.path(QStringLiteral("link"));
    QVERIFY(QFile::link(pipe, link));
    QTest::newRow("link to a pipe") << link;
}

void TestXmlBounds::whatIsNoFileIsRefused()
{
    QFETCH(const QString, path);
    const Tests::LogCatcher log;
    QVERIFY(!insertAt(path));
    QVERIFY(!removeAt(path));
    QCOMPARE(log.debugLines().size(), 2);
    QVERIFY(log.hasDebugLineWith(path));
}

QTEST_APPLESS_MAIN(TestXmlBounds)
#include "tst_XmlBounds.moc"
