#include "Controllers/ConfigurationController.h"
#include "Controllers/FileStamp.h"
#include "Controllers/SettingsFile.h"
#include "tests/support/Files.h"
#include "tests/support/LaterTime.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/Sandbox.h"

#include <QtGui>
#include <QtTest>

#include <sys/stat.h>

using Quillmont::Utility::Controllers::ConfigurationController;
using Quillmont::Utility::Controllers::fileStamp;
using Quillmont::Utility::Controllers::SettingsFile;
using Tests::LaterTime;
using Tests::readFile;
using Tests::writeFile;

namespace {

const QString ours = QStringLiteral("flightsim/A");

QByteArray number(quint32 value)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << value;
    return bytes;
}

template <typename Value>
QByteArray serialised(int type, const Value &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_0);
    stream << type << value;
    return bytes;
}

QByteArray escaped(const QByteArray &bytes)
{
    const QByteArray separated = '-' + bytes.toHex('-');
    return QByteArray(separated).replace('-', "\\x");
}

QByteArray object(const QByteArray &bytes)
{
    return "@Variant(" + escaped(bytes) + ')';
}

// Nested lists.
QByteArray nested(int depth)
{
    return (number(9) + number(1)).repeated(depth - 1) + number(9) + number(0);
}

// A list that claims more elements than fit in memory.
QByteArray endless()
{
    return number(9) + number(0x7fffffff);
}

QImage picture(int width, int height)
{
    QImage image(width, height, QImage::Format_Mono);
    image.fill(1);
    return image;
}

QRegion rectangles(int count)
{
    QVector<QRect> all;
    for (int i = 0; i < count; ++i)
        all.append(QRect(0, 2 * i, 1, 1));
    QRegion region;
    region.setRects(all.constData(), count);
    return region;
}

QByteArray dateIn(const QByteArray &zone)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_6);
    stream << quint32(QMetaType::QDateTime) << false << QDate(2020, 1, 2) << QTime(1, 2) << qint8(3)
           << QString::fromLatin1(zone);
    return "@DateTime(" + escaped(bytes) + ')';
}

} // namespace

// What other programs or damage leave in the settings file and beside it. The single instance keeps
// its first path, so all tests share one home.
class TestSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void keepsOtherProgramsValues_data();
    void keepsOtherProgramsValues();
    void keepsTextsInUtf8();
    void doesNotWriteAFileThatWouldLoseValues_data();
    void doesNotWriteAFileThatWouldLoseValues();
    void refusesHarmfulObjects_data();
    void refusesHarmfulObjects();
    void readsItsOwnSectionBesideAHarmfulObject();
    void rereadsAFileThatChanged();
    void readsFilesUpToAMaximumSize_data();
    void readsFilesUpToAMaximumSize();
    void doesNotBlockOnAPipe_data();
    void doesNotBlockOnAPipe();
    void removesStaleLocks_data();
    void removesStaleLocks();
    void waitsOnlyOnceForAHangingProgram();

private:
    QString file() const
    {
        return m_sandbox.dataRoot() + QStringLiteral("Quillmont/Vellum/.settings");
    }

    QString folder(const QString &key) const { return m_settings->getSettings(key).toString(); }

    Tests::Sandbox m_sandbox;
    ConfigurationController *m_settings = nullptr;
};

void TestSettingsFile::initTestCase()
{
    m_settings = ConfigurationController::instance();
}

void TestSettingsFile::cleanup()
{
    QDir(m_sandbox.dataRoot() + QStringLiteral("Quillmont")).removeRecursively();
}

void TestSettingsFile::keepsOtherProgramsValues_data()
{
    QTest::addColumn<QVariant>("value");
    const auto add = [](const char *name, const QVariant &value) {
        QTest::newRow(name) << value;
    };
    const QVariantMap map{{QStringLiteral("a"), 1},
                          {QStringLiteral("b"), QVariantList{2.5, QVariant(), QStringList()}}};
    add("map", map);
    add("hash", QVariantHash{{QStringLiteral("a"), map}});
    add("list", QVariantList{1, map, QStringLiteral("x")});
    add("list of one", QVariantList{map});
    add("empty list", QVariantList());
    QVariant deep = QVariantList();
    for (int i = 1; i < 1000; ++i)
        deep = QVariantList{deep};
    add("list in 999 lists", deep);
    add("texts",
        QStringList{QStringLiteral("@Variant("), QStringLiteral("a, b"), QStringLiteral("@")});
    add("text that contains an object's mark", QStringLiteral("a @Variant(\\0\\0\\0\\x9\\x7f) b"));
    add("text like an object", QStringLiteral("@Variant(\0\0)"));
    add("text like bytes", QStringLiteral("@ByteArray(@Variant())"));
    add("bytes with an object's mark", QByteArray("@Variant(\0\xff)", 12));
    add("bits", QBitArray(13, true));
    add("list of bytes", QVariant::fromValue(QByteArrayList{"a", "b"}));
    add("URL", QUrl(QStringLiteral("http://example.org/a b?c=d,e;f")));
    add("float", 1.5F);
    add("character", QChar(u'x'));
    add("char", QVariant::fromValue('c'));
    add("short", QVariant::fromValue<short>(-3));
    add("unsigned long", QVariant::fromValue<ulong>(3));
    add("null pointer", QVariant::fromValue(nullptr));
    add("UUID", QUuid(QStringLiteral("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}")));
    add("JSON value", QVariant::fromValue(QJsonValue(3.5)));
    add("JSON document", QVariant::fromValue(QJsonDocument(QJsonArray{1, QJsonObject()})));
    add("CBOR",
        QVariant::fromValue(QCborValue(QCborArray{1, QCborMap{{1, 2}}, QString(300, u'x')})));
    add("CBOR map", QVariant::fromValue(QCborMap{{1, QCborArray{1, 2, 3}}}));
    add("date", QDate(2020, 1, 2));
    add("time", QTime(1, 2, 3));
    add("date and time", QDateTime(QDate(2020, 1, 2), QTime(1, 2), Qt::UTC));
    if (const QTimeZone zone("Europe/Berlin"); zone.isValid())
        add("date and time with a time zone", QDateTime(QDate(2020, 1, 2), QTime(1, 2), zone));
    add("locale", QLocale(QLocale::German));
    add("QRegularExpression", QRegularExpression(QStringLiteral("((a{999}){999}){999}")));
    add("QRegExp", QRegExp(QStringLiteral("[0-9a-f]{8}-([0-9a-f]{4}-){3}[0-9a-f]{12}")));
    // It is stored twice, so this is half of the limit per file.
    add("longest accepted QRegExp", QRegExp(QString(1290, u'a')));
    add("easing curve", QEasingCurve(QEasingCurve::OutElastic));
    add("rectangle", QRectF(1, 2, 3, 4));
    add("line", QLineF(1, 2, 3, 4));
    add("font", QFont(QStringLiteral("Serif"), 12));
    add("colour", QColor(Qt::red));
    add("key sequence", QVariant::fromValue(QKeySequence(QStringLiteral("Ctrl+A"))));
    add("picture", picture(8, 8).convertToFormat(QImage::Format_ARGB32));
    add("largest accepted picture", picture(8192, 8191));
    add("several large pictures", QVector<QVariant>(5, picture(2600, 2600)).toList());
    QImage described = picture(8, 8);
    described.setText(QStringLiteral("about"), QString(5000, u'x'));
    add("picture with a text", described);
    add("pixmap", QPixmap::fromImage(picture(8, 8)));
    add("bitmap", QBitmap::fromImage(picture(8, 8)));
    add("icon", QIcon(QPixmap::fromImage(picture(8, 8))));
    add("cursor", QCursor(Qt::WaitCursor));
    add("cursor with a picture", QCursor(QPixmap::fromImage(picture(8, 8))));
    add("brush", QBrush(Qt::red));
    add("brush with a texture", QBrush(picture(8, 8)));
    for (const QGradient &gradient : {QGradient(QLinearGradient(0, 0, 1, 1)),
                                      QGradient(QRadialGradient(1, 2, 3)),
                                      QGradient(QConicalGradient(1, 2, 3))})
        QTest::addRow("gradient %d", gradient.type()) << QVariant(QBrush(gradient));
    QPen pen(Qt::red);
    pen.setDashPattern({1, 2, 3, 4});
    add("pen", pen);
    add("palette", QPalette(Qt::red));
    add("polygon", QVariant::fromValue(QPolygon(QRect(0, 0, 3, 3))));
    add("polygon of floats", QVariant::fromValue(QPolygonF(QRectF(0, 0, 3, 3))));
    add("region", QRegion(0, 0, 900, 900, QRegion::Ellipse) + QRegion(950, 50, 9, 9));
    add("region of many rectangles", rectangles(16385));
    add("no region", QRegion());
    add("matrix", QMatrix4x4());
    add("vector", QVector3D(1, 2, 3));
    add("text length", QVariant::fromValue(QTextLength(QTextLength::FixedLength, 3)));
    QTextCharFormat format;
    format.setForeground(Qt::red);
    add("text format", QVariant::fromValue<QTextFormat>(format));
}

void TestSettingsFile::keepsOtherProgramsValues()
{
    QFETCH(const QVariant, value);
    // In another file, since Qt caches the objects of a file that it wrote itself.
    const QString written = m_sandbox.path(QStringLiteral("written"));
    for (const QString &key : {QStringLiteral("flightsim/B"), QStringLiteral("other/B")})
        QSettings(written, QSettings::IniFormat).setValue(key, value);
    QSettings(written, QSettings::IniFormat).setValue(ours, QStringLiteral("/a"));
    const QByteArray before = readFile(written);
    QVERIFY(QFile::remove(written));
    writeFile(file(), before);

    const Tests::LogCatcher log;
    QCOMPARE(folder(ours), QStringLiteral("/a"));
    m_settings->saveSettings(ours, QStringLiteral("/new"));
    QCOMPARE(readFile(file()), QByteArray(before).replace("A=/a\n", "A=/new\n"));
    QCOMPARE(log.actions() + log.warnings(), QStringList());
}

// A program that makes Qt write UTF-8 would also read any other encoding as UTF-8.
void TestSettingsFile::keepsTextsInUtf8()
{
    const QString written = m_sandbox.path(QStringLiteral("written"));
    {
        QSettings other(written, QSettings::IniFormat);
        other.setIniCodec("UTF-8");
        other.setValue(ours, QStringLiteral("/a"));
        other.setValue(QStringLiteral("flightsim/B"), QStringLiteral("/飛行 ü"));
        other.setValue(QStringLiteral("other/date"), QDateTime::fromSecsSinceEpoch(1600000000));
    }
    QByteArray expected = readFile(written);
    QVERIFY(QFile::remove(written));
    writeFile(file(), expected);
    QCOMPARE(folder(QStringLiteral("flightsim/B")), QStringLiteral("/飛行 ü"));
    m_settings->saveSettings(ours, QStringLiteral("/é"));
    QCOMPARE(readFile(file()), expected.replace("A=/a\n", "A=/é\n"));
    QCOMPARE(folder(ours), QStringLiteral("/é"));
}

void TestSettingsFile::doesNotWriteAFileThatWouldLoseValues_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("another program's own type")
        << object(serialised(127, QByteArray("Somebody::Thing\0", 16)) + "secret");
    QTest::newRow("in a list") << object(number(9) + number(1)
                                         + serialised(127, QByteArray("Somebody::Thing\0", 16)));
    QTest::newRow("in a list of values")
        << "a, " + object(serialised(127, QByteArray("Somebody::Thing\0", 16)));
    QTest::newRow("cut off") << object(serialised(10, QStringLiteral("text")).chopped(2));
    QTest::newRow("cut off in a list") << object(number(9) + number(3) + number(2) + number(1));
    QTest::newRow("bytes after the object") << object(number(2) + number(1) + "more");
    QTest::newRow("unknown type") << object(number(60) + number(0));
    QTest::newRow("pointer") << object(number(128));
}

void TestSettingsFile::doesNotWriteAFileThatWouldLoseValues()
{
    QFETCH(const QByteArray, value);
    const QByteArray before = "[flightsim]\nA=/a\nthing=" + value + '\n';
    writeFile(file(), before);
    const Tests::LogCatcher log;
    QCOMPARE(folder(ours), QStringLiteral("/a"));
    m_settings->saveSettings(ours, QStringLiteral("/new"));
    m_settings->removeSettings(ours);
    QCOMPARE(readFile(file()), before);
    QCOMPARE(log.actions().size(), 2);
    QVERIFY(log.actions().constFirst().contains(QLatin1String("\"flightsim/thing holds ")));
}

void TestSettingsFile::refusesHarmfulObjects_data()
{
    QTest::addColumn<QByteArray>("line");
    const auto add = [](const char *name, const QByteArray &object) {
        QTest::newRow(name) << "B=" + object;
    };
    add("larger than all memory", object(endless()));
    for (const int type : {8, 11, 28, 71, 146}) {
        const QByteArray name
            = QByteArray("of kind ") + QMetaType::typeName(type > 127 ? type - 97 : type);
        add(name.constData(), object(number(type) + number(0x7fffffff)));
    }
    add("in a map", object(number(8) + number(1) + number(0) + endless()));
    add("in a format", object(number(79) + number(1) + number(1) + number(1) + endless()));
    add("in an object", object(number(138) + endless()));
    add("type given by name",
        object(serialised(127, QByteArray("QVariantList\0", 13)) + number(0x7fffffff)));
    add("after half a character", object(number(8) + number(1) + number(3) + endless()));
    add("one level too deep", object(nested(1001)));
    add("deeper than the stack", object(nested(45000)));
    add("QRegExp that is one character too long",
        object(serialised(27, QRegExp(QString(1626, u'a')))));
    const QByteArray pattern = serialised(27, QRegExp(QString(100, u'a')));
    add("very many QRegExps", object(number(9) + number(3400) + pattern.repeated(3400)));
    add("QRegExp with huge repetitions",
        object(serialised(27, QRegExp(QStringLiteral("(((a{99}){99}){99})(b{9}){9}")).pattern())));
    add("CBOR with huge arrays",
        object(serialised(150, QByteArray("\x9a\x01\0\0\0", 5).repeated(900))));
    add("CBOR nested too deeply", object(serialised(150, QByteArray(1001, '\x81') + '\0')));
    add("polygon of floats",
        object(serialised(127, QByteArray("QPolygonF\0", 10)) + number(0x7fffffff)));
    add("huge region", object(serialised(72, number(10) + number(0x7fffffff))));
    add("round region",
        object(serialised(
            72, number(2) + QByteArray(8, '\0') + number(0x7fffffff) + number(0x7fffffff))));
    add("region with too many rectangles", object(serialised(72, rectangles(65537))));
    add("overlapping region",
        object(serialised(72,
                          number(10) + number(2)
                              + (QByteArray(8, '\0') + number(9) + number(9)).repeated(2))));
    add("picture that is too large", object(serialised(70, picture(16385, 8192))));
    QByteArray bomb = serialised(70, picture(8, 8));
    add("invalid picture", object(QByteArray(bomb).replace("IDAT", "XXXX")));
    add("picture in another format", object(number(70) + number(1) + "BM" + QByteArray(60, '\0')));
    QImage described = picture(8, 8);
    QRandomGenerator random(1);
    QString noise(1400000, QChar());
    std::generate(noise.begin(), noise.end(), [&random] { return QChar(random.bounded(33, 127)); });
    described.setText(QStringLiteral("about"), noise);
    add("long text in a picture", object(serialised(70, described)));
    add("brush", object(number(66) + '\x0f' + QByteArray(15, '\0') + number(0x7fffffff)));
    add("pen",
        object(number(77) + QByteArray(9, '\0') + '\x0f' + QByteArray(15, '\0')
               + number(0x7fffffff)));
    add("cursor", object(number(74) + QByteArray("\0\x18\1", 3) + number(1) + "no picture"));
    add("time zone outside its folder", dateIn("../../../dev/null"));
    add("another type instead of a date",
        "@DateTime(" + escaped(number(9) + QByteArray(1, '\0') + number(0x7fffffff)) + ')');

    const QByteArray bytes = escaped(endless());
    QTest::newRow("type given by a letter")
        << QByteArray(R"(B=@Variant(\0\0\0\t\x7f\xff\xff\xff\0\0\0\x43))");
    QTest::newRow("in quotes") << "B= \t\"@Variant(" + bytes + ")\"";
    QTest::newRow("between quotes") << R"(B="@" "Vari"ant()" + bytes + ')';
    QTest::newRow("with trailing spaces") << "B=@Variant(" + bytes + ") \t";
    QTest::newRow("with escaped letters") << R"(B=@V\141ri\x61nt()" + bytes + ')';
    QTest::newRow("over two lines") << "B=@Var\\\n\riant(" + bytes + ')';
    QTest::newRow("with invalid escapes") << R"(B=@\qVar\xiant()" + bytes + ')';
    QTest::newRow("in a list of values") << "B=a, \"b,c\",@Variant(" + bytes + ')';
    QTest::newRow("after a comment") << "; \"\\\n\t;B\nB=@Variant(" + bytes + ')';
    QTest::newRow("after a value with a comment") << "C=1;\"\nB=@Variant(" + bytes + ')';
    QTest::newRow("after a line end in quotes") << "C=\"1\n\"\nB=@Variant(" + bytes + ')';
    QTest::newRow("after another section")
        << "[other]\nC=1\n\n[%66lightsim]\nB=@Variant(" + bytes + ')';
    QTest::newRow("in a nested section") << "[flightsim\\sub]\nB=@Variant(" + bytes + ')';
}

void TestSettingsFile::refusesHarmfulObjects()
{
    QFETCH(const QByteArray, line);
    for (const QByteArray &mark : {QByteArray(), QByteArray("\xef\xbb\xbf")}) {
        const QByteArray before = mark + "[flightsim]\nA=/a\n" + line + '\n';
        writeFile(file(), before);
        const Tests::LogCatcher log;
        QCOMPARE(m_settings->getSettings(ours, QStringLiteral("/b")),
                 QVariant(QStringLiteral("/b")));
        m_settings->saveSettings(ours, QStringLiteral("/new"));
        m_settings->removeSettings(ours);
        QCOMPARE(readFile(file()), before);
        const QStringList named
            = log.actions().filter(QRegularExpression(QStringLiteral("B.* holds")));
        QCOMPARE(named.filter(QStringLiteral("not saved")).size(), 2);
        QCOMPARE(log.warnings(), QStringList());
    }
}

void TestSettingsFile::readsItsOwnSectionBesideAHarmfulObject()
{
    writeFile(file(), "[flightsim]\nA=/a\n\n[other]\nB=" + object(endless()) + '\n');
    QCOMPARE(folder(ours), QStringLiteral("/a"));
}

// The result of a check is cached for the window's rows.
void TestSettingsFile::rereadsAFileThatChanged()
{
    const QByteArray harmless = "[flightsim]\nA=/a\nB=" + object(number(9) + number(0)) + '\n';
    const QByteArray harmful = "[flightsim]\nA=/a\nB=" + object(endless()) + '\n';
    const QStringList paths{file(), file() + u'2', file() + u'3'};
    for (const QString &path : paths) {
        writeFile(path, harmless);
        QVERIFY(fileStamp(path).isEmpty());
    }
    const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1600000000);
    QFile dated(paths.at(2));
    QVERIFY(dated.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    QVERIFY(dated.setFileTime(longAgo, QFileDevice::FileModificationTime));
    const auto canRead = [](const QString &path) {
        return SettingsFile(path).canRead(ours);
    };
    const auto canReadLater = [&canRead](const QString &path) {
        const LaterTime later(3);
        return !fileStamp(path).isEmpty() && canRead(path);
    };
    QVERIFY(canReadLater(paths.at(0)));
    writeFile(paths.at(0), harmful);
    QVERIFY2(!canRead(paths.at(0)), "written over");

    QVERIFY(canReadLater(paths.at(1)));
    QVERIFY(QFile::remove(paths.at(1)) && QFile::rename(paths.at(0), paths.at(1)));
    QVERIFY2(!canReadLater(paths.at(1)), "replaced");

    const LaterTime later(3);
    const QByteArray stamp = fileStamp(paths.at(2));
    QVERIFY(!stamp.isEmpty() && canRead(paths.at(2)));
    QVERIFY(dated.write(harmful) > 0);
    // Time stamps have coarse steps.
    QTRY_VERIFY(dated.setFileTime(longAgo, QFileDevice::FileModificationTime)
                && fileStamp(paths.at(2)) != stamp);
    QVERIFY2(!canRead(paths.at(2)), "written over a while ago, with its old time");
}

void TestSettingsFile::readsFilesUpToAMaximumSize_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("isRead");
    constexpr qint64 most = 8LL * 1024 * 1024;
    QTest::newRow("maximum size") << most << true;
    QTest::newRow("one byte larger") << most + 1 << false;
    QTest::newRow("a sparse file of a gigabyte") << 1024LL * 1024 * 1024 << false;
}

void TestSettingsFile::readsFilesUpToAMaximumSize()
{
    QFETCH(const qint64, size);
    QFETCH(const bool, isRead);
    writeFile(file(), "[flightsim]\nA=/a\n");
    QVERIFY(QFile::resize(file(), size));
    QCOMPARE(folder(ours), isRead ? QStringLiteral("/a") : QString());
    m_settings->saveSettings(ours, QStringLiteral("/b"));
    QCOMPARE(QFileInfo(file()).size() == size, !isRead);
    QCOMPARE(folder(ours), isRead ? QStringLiteral("/b") : QString());
    m_settings->removeSettings(ours);
    QFile bytes(file());
    QVERIFY(bytes.open(QIODevice::ReadOnly));
    QCOMPARE(bytes.read(17), isRead ? QByteArray() : QByteArray("[flightsim]\nA=/a\n"));
}

void TestSettingsFile::doesNotBlockOnAPipe_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("the file") << QStringLiteral(".settings");
    QTest::newRow("Qt's lock file") << QStringLiteral(".settings.lock");
    QTest::newRow("the lock to remove that lock") << QStringLiteral(".settings.lock.rmlock");
    QTest::newRow("the lock to remove the second lock")
        << QStringLiteral(".settings.lock.rmlock.rmlock");
}

void TestSettingsFile::doesNotBlockOnAPipe()
{
    QFETCH(const QString, name);
    const QString pipe = QFileInfo(file()).path() + u'/' + name;
    for (QString dead = file() + QStringLiteral(".lock"); dead.size() < pipe.size();
         dead += QStringLiteral(".rmlock"))
        writeFile(dead, "999999999\nsomebody\n\n");
    QVERIFY(QDir().mkpath(QFileInfo(pipe).path()));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const Tests::LogCatcher log;
    m_settings->saveSettings(ours, QStringLiteral("/a"));
    m_settings->removeSettings(ours);
    QCOMPARE(m_settings->getSettings(ours, QStringLiteral("/b")), QVariant(QStringLiteral("/b")));
    QVERIFY(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());
    QCOMPARE(log.actions().filter(QStringLiteral("not saved")).size(), 2);
}

void TestSettingsFile::removesStaleLocks_data()
{
    QTest::addColumn<QStringList>("names");
    const QString lock = QStringLiteral(".lock");
    const QString second = QStringLiteral(".lock.rmlock");
    QTest::newRow("a stale lock") << QStringList{lock};
    QTest::newRow("the lock to remove that lock") << QStringList{second};
    QTest::newRow("both locks") << QStringList{lock, second};
    QTest::newRow("three locks") << QStringList{lock, second, second + QStringLiteral(".rmlock")};
}

void TestSettingsFile::removesStaleLocks()
{
    QFETCH(const QStringList, names);
    for (const QString &name : names)
        writeFile(file() + name, "999999999\nsomebody\n\n");
    const Tests::LogCatcher log;
    m_settings->saveSettings(ours, QStringLiteral("/a"));
    QCOMPARE(folder(ours), QStringLiteral("/a"));
    QCOMPARE(log.actions(), QStringList());
}

void TestSettingsFile::waitsOnlyOnceForAHangingProgram()
{
    writeFile(file(), "[flightsim]\nA=/a\n");
    QLockFile held(file() + QStringLiteral(".lock"));
    QVERIFY(held.lock());
    const Tests::LogCatcher log;
    QCOMPARE(folder(ours), QStringLiteral("/a"));
    QElapsedTimer patience;
    patience.start();
    m_settings->saveSettings(ours, QStringLiteral("/b"));
    QVERIFY2(patience.elapsed() >= 10000, qPrintable(QString::number(patience.elapsed())));
    m_settings->removeSettings(ours);
    QVERIFY2(patience.elapsed() < 19000, qPrintable(QString::number(patience.elapsed())));
    QCOMPARE(log.actions().filter(QStringLiteral("another program has locked them")).size(), 2);
    QCOMPARE(folder(ours), QStringLiteral("/a"));
    held.unlock();
    m_settings->saveSettings(ours, QStringLiteral("/c"));
    QCOMPARE(folder(ours), QStringLiteral("/c"));
}

QTEST_MAIN(TestSettingsFile)
#include "tst_SettingsFile.moc"
