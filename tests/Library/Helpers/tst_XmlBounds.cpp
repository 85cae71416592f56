#include "tests/Library/Helpers/RoundTrip.h"
#include "tests/Library/Helpers/XmlEditTest.h"
#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <ctime>
#include <sys/resource.h>
#include <sys/stat.h>

/// Files made or damaged so that reading them could take for ever or use up memory.
class TestXmlBounds : public Tests::XmlEditTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void refusesAnEntityBomb_data();
    void refusesAnEntityBomb();
    void readsEntitiesOfRealisticSize_data();
    void readsEntitiesOfRealisticSize();
    void editsDeepNesting();
    void editsManyEntries();
    void removesManyEntriesOfOurs();
    void refusesZeroBytes_data();
    void refusesZeroBytes();
    void refusesAHugeFile_data();
    void refusesAHugeFile();
    void refusesWhatIsNotARegularFile_data();
    void refusesWhatIsNotARegularFile();

private:
    // Of the processor, so that a busy machine makes no difference.
    double seconds() const { return double(std::clock() - m_start) / CLOCKS_PER_SEC; }

    std::clock_t m_start = 0;
};

// A document with one entity of this size, used this many times.
static QByteArray grown(int size, int times, const QByteArray &beside)
{
    return "<!DOCTYPE R [<!ENTITY x 'x'><!ENTITY a '" + QByteArray(size, 'x') + "'>]>\n<R><A>"
        + QByteArray("&a;").repeated(times) + "</A>" + beside + "</R>";
}

// A document in which each entity contains the next one.
static QByteArray nested(int depth)
{
    QByteArray bytes = "<!DOCTYPE R [<!ENTITY a1 'x'>";
    for (int i = 2; i <= depth; ++i)
        bytes += QStringLiteral("<!ENTITY a%1 '&a%2;'>").arg(i).arg(i - 1).toLatin1();
    return bytes + "]>\n<R>&a" + QByteArray::number(depth) + ";</R>";
}

void TestXmlBounds::init()
{
    m_start = std::clock();
}

void TestXmlBounds::cleanup()
{
    // Far more than any of them takes, far less than they would take without a limit.
    QVERIFY2(seconds() < 60, "took too long");
    struct rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
#ifdef Q_OS_LINUX
    QVERIFY2(usage.ru_maxrss < 1048576, "took too much memory");
#endif
}

void TestXmlBounds::refusesAnEntityBomb_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray laughs = "<!DOCTYPE R [<!ENTITY a0 'ha'>";
    for (int i = 1; i < 30; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        laughs += "<!ENTITY a" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
    }
    QTest::newRow("exponential expansion") << laughs + "]>\n<R>&a29;</R>";
    QTest::newRow("exponential expansion in an attribute") << laughs + "]>\n<R a='&a29;'/>";

    const QByteArray small = "<!DOCTYPE R [<!ENTITY a '" + QByteArray(4000, 'x') + "'>]>\n<R>";
    const QByteArray many = QByteArray("&a;").repeated(1000000);
    QTest::newRow("a medium entity a million times") << small + many + "</R>";
    QTest::newRow("a medium entity a million times in an attribute")
        << small + "<A a='" + many + "'/></R>";
    QTest::newRow("elements a million times") << "<!DOCTYPE R [<!ENTITY a '"
            + QByteArray("<b/>").repeated(900) + "'>]>\n<R>" + many + "</R>";
    QTest::newRow("a huge entity")
        << "<!DOCTYPE R [<!ENTITY a '" + QByteArray(100000, 'x') + "'>]>\n<R>&a;</R>";
    QTest::newRow("a recursive entity")
        << QByteArray("<!DOCTYPE R [<!ENTITY a '&b;'><!ENTITY b '&a;'>]>\n<R>&a;</R>");
    QTest::newRow("in default attribute values")
        << QByteArray(small).replace("]>\n<R>", "<!ATTLIST R b CDATA '" + many + "'>]>\n<R/>");
    QTest::newRow("parameter entities") << "<!DOCTYPE R [<!ENTITY % a '<!--" + QByteArray(4000, 'x')
            + "-->'>" + QByteArray(many).replace('&', '%') + "]>\n<R/>";
    QTest::newRow("after a small parameter entity of the same name")
        << QByteArray(small).replace("[", "[<!ENTITY % a ''>") + many + "</R>";
    QTest::newRow("one character over the limit per entity") << grown(4100, 1, "");
    QTest::newRow("one character over the limit for all") << grown(4096, 4096, "&x;");
    QTest::newRow("one level too deep") << nested(101);
}

void TestXmlBounds::refusesAnEntityBomb()
{
    QFETCH(const QByteArray, bytes);
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken(bytes), QString());
    QVERIFY(!roundTrip.wasAccepted());
    QVERIFY(seconds() < 10);
}

void TestXmlBounds::readsEntitiesOfRealisticSize_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray head = "<!DOCTYPE R [<!ENTITY a 'Harbour and Sons'>]>\n<R>\n";
    QTest::newRow("a short entity many times")
        << head + QByteArray(" <A>&a;</A>\n").repeated(4200) + "</R>";
    QTest::newRow("a long entity once, beside predefined entities")
        << grown(3000, 1, QByteArray("&amp;&#65;").repeated(8000));
    QTest::newRow("a short entity with predefined entities")
        << QByteArray(head).replace("and", "&#38;amp;") + QByteArray("&a;").repeated(50000)
            + "</R>";
    const QByteArray names = QByteArray("&a;").repeated(5000);
    QTest::newRow("in comments and CDATA sections")
        << grown(4096, 1, "<!--" + names + "--><![CDATA[" + names + "]]><?p " + names + "?>");
    QTest::newRow("the limit per entity") << grown(4099, 1, "");
    QTest::newRow("the limit for all") << grown(4096, 4096, "");
    QTest::newRow("the maximum depth") << nested(100);
}

void TestXmlBounds::readsEntitiesOfRealisticSize()
{
    QFETCH(const QByteArray, bytes);
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken(bytes), QString());
    QVERIFY(roundTrip.wasAccepted());
}

void TestXmlBounds::editsDeepNesting()
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

void TestXmlBounds::editsManyEntries()
{
    const QByteArray entry = "  <Launch.Addon>\r\n    <Name>Tide</Name>\r\n  </Launch.Addon>\r\n";
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken("<R>\r\n" + entry.repeated(4200) + "</R>\r\n"), QString());
    QVERIFY(roundTrip.wasAccepted());
}

void TestXmlBounds::removesManyEntriesOfOurs()
{
    const QByteArray other = "  <A>\n    <B/>\n  </A>\n";
    const QByteArray ours = "  <Addon>\n    <Name>Tide</Name>\n  </Addon>\n";
    QVERIFY(removeFrom("<R>\n" + (other + ours).repeated(20000) + "</R>\n"));
    QCOMPARE(content(), QByteArray("<R>\n" + other.repeated(20000) + "</R>\n"));
}

void TestXmlBounds::refusesZeroBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing but zeros") << QByteArray(5000, '\0');
    QTest::newRow("many zeros") << QByteArray(30000000, '\0');
    QTest::newRow("zeros after the root") << "<R></R>\n" + QByteArray(512, '\0');
    QTest::newRow("zeros before the root") << QByteArray(512, '\0') + "<R></R>\n";
    QTest::newRow("a zero in a text") << QByteArray("<R>a\0b</R>", 10);
    QTest::newRow("a zero in a name") << QByteArray("<R a\0b='1'></R>", 15);
    QTest::newRow("zeros after UTF-16") << QByteArray("\xff\xfe<\0R\0/\0>\0\0\0\0\0", 14);
}

void TestXmlBounds::refusesZeroBytes()
{
    QFETCH(const QByteArray, bytes);
    Tests::RoundTrip roundTrip(path());
    QCOMPARE(roundTrip.broken(bytes), QString());
    QVERIFY(!roundTrip.wasAccepted());
}

// Zero bytes are refused in any case, but the message names their place only if the file was read.
void TestXmlBounds::refusesAHugeFile_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("reason");
    constexpr qint64 most = 32LL * 1024 * 1024;
    QTest::newRow("maximum size") << most << "line 1, column 4: ";
    QTest::newRow("one byte larger") << most + 1 << "too big";
    QTest::newRow("far larger") << 3 * most << "too big";
}

void TestXmlBounds::refusesAHugeFile()
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
    QVERIFY(seconds() < 5);
    QVERIFY(QFile::remove(path()));
}

void TestXmlBounds::refusesWhatIsNotARegularFile_data()
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

void TestXmlBounds::refusesWhatIsNotARegularFile()
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
