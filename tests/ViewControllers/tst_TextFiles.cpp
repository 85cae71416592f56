#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Attributes.h"
#include "tests/support/Unprivileged.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QTextCodec>

#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using Tests::Workshop;
using Tests::writeFile;

// The modes that were set by path.
static QVector<unsigned> s_modes;

// How often the disk can still be read, a little each time; below zero as often as one likes.
static int s_reads = -1;

#ifdef Q_OS_LINUX
// Both replace the C library's functions.
extern "C" ssize_t read(int handle, void *bytes, size_t size)
{
    constexpr size_t little = 1000;
    errno = EIO;
    s_reads -= s_reads > 0 ? 1 : 0;
    return s_reads == 0 ? -1
                        : syscall(SYS_read, handle, bytes, s_reads < 0 ? size : qMin(size, little));
}

extern "C" int chmod(const char *name, mode_t mode) noexcept
{
    s_modes.append(mode);
    return fchmodat(AT_FDCWD, name, mode, 0);
}
#endif

namespace {

const char *const simulator = R"({"name": "Sim A", "config": {"path": "Vendor\\dll.xml"}})";

QString isEmptyLine(const QString &path)
{
    return QStringLiteral("The file '") + path
        + QStringLiteral("' is empty. Quillmont Orbwell installer was not able to change your "
                         "configuration.");
}

QString unableToWriteLine(const QString &path)
{
    return QStringLiteral("Unable to write configuration to file '") + path
        + QStringLiteral("'. Please check if you have permission to that file.");
}

QString timeName(const QDateTime &time)
{
    return time.toString(QStringLiteral("yyyyMMdd_HHmmss"));
}

} // namespace

class TestTextFiles : public QObject
{
    Q_OBJECT

private slots:

    void readsTheWholeTextAsItIs()
    {
        Workshop shop;
        const QString file = shop.path("folder with blanks/Ümlaut %1.txt");
        writeFile(file, "first\r\nsecond\n\tпривет 日本\r\n");
        QCOMPARE(shop.controller().readFile(file),
                 QStringLiteral(u"first\r\nsecond\n\tпривет 日本\r\n"));
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
    }

    void recognisesAByteOrderMark()
    {
        Workshop shop;
        writeFile(shop.path("utf16"), QByteArray("\xff\xfe\x61\x00\x62\x00", 6));
        QCOMPARE(shop.controller().readFile(shop.path("utf16")), QStringLiteral("ab"));
    }

    void readsAnEmptyFileSilently()
    {
        Workshop shop;
        writeFile(shop.path("empty"), {});
        shop.controller().m_errorMessage = QStringLiteral("before");
        QCOMPARE(shop.controller().readFile(shop.path("empty")), QString());
        QCOMPARE(shop.controller().m_errorMessage, QStringLiteral("before"));
    }

    void addsALineForAFileThatCannotBeOpened()
    {
        Workshop shop;
        const QString missing = shop.path("missing %1/file");
        const QString folder = shop.folder("a folder");
        shop.controller().m_errorMessage = QStringLiteral("before");
        const auto disk = shop.disk();
        QCOMPARE(shop.controller().readFile(missing), QString());
        QCOMPARE(shop.controller().readFile(folder), QString());
        QCOMPARE(shop.controller().m_errorMessage,
                 QStringLiteral("before") + isEmptyLine(missing) + isEmptyLine(folder));
        QCOMPARE(shop.disk(), disk);
    }

    void createsMissingFolders()
    {
        Workshop shop;
        const QString file = shop.path("a/b c/d/file.txt");
        shop.controller().saveFile(file, QStringLiteral(u"one\r\ntwo\nдва"));
        QCOMPARE(Tests::readFile(file), QByteArray("one\r\ntwo\nдва"));
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
    }

    void writesALongTextCompletely()
    {
        Workshop shop;
        // With one more character at the front, surrogate pairs cross every buffer boundary.
        for (const QString &begin : {QString(), QStringLiteral("-")}) {
            const QString text = begin + QStringLiteral(u"😀").repeated(20000);
            shop.controller().saveFile(shop.path("long"), text);
            QVERIFY(Tests::readFile(shop.path("long")) == text.toUtf8());
        }
    }

    void truncatesALongerText()
    {
        Workshop shop;
        writeFile(shop.path("file"), QByteArray(5000, 'x'));
        shop.controller().saveFile(shop.path("file"), QStringLiteral("short"));
        QCOMPARE(Tests::readFile(shop.path("file")), QByteArray("short"));
        shop.controller().saveFile(shop.path("file"), QString());
        QCOMPARE(Tests::readFile(shop.path("file")), QByteArray());
    }

    void addsALineForAFileThatCannotBeWritten()
    {
        Workshop shop;
        writeFile(shop.path("plain"), "a file");
        const QString below = shop.path("plain/below/file %1");
        const QString folder = shop.folder("a folder");
        shop.controller().m_errorMessage = QStringLiteral("before");
        const auto disk = shop.disk();
        shop.controller().saveFile(below, QStringLiteral("text"));
        shop.controller().saveFile(folder, QStringLiteral("text"));
        QCOMPARE(shop.controller().m_errorMessage,
                 QStringLiteral("before") + unableToWriteLine(below) + unableToWriteLine(folder));
        QCOMPARE(shop.disk(), disk);
    }

    void writesInTheLocalesEncoding()
    {
        Workshop shop;
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
        shop.controller().saveFile(shop.path("file"), QStringLiteral("\u00fc\u65e5"));
        QCOMPARE(Tests::readFile(shop.path("file")), QByteArray("\xfc?"));
    }

    void keepsTheOldTextOnAFullDisk_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<bool>("hasTwoNames");
        QTest::newRow("a text") << QByteArray("old") << false;
        QTest::newRow("a text under two names") << QByteArray("old") << true;
        QTest::newRow("no old text") << QByteArray() << false;
    }

    // A file that did not exist is now empty.
    void keepsTheOldTextOnAFullDisk()
    {
        QFETCH(QByteArray, before);
        QFETCH(bool, hasTwoNames);
        Workshop shop;
        const QString file = shop.path("folder/file");
        if (!before.isEmpty())
            writeFile(file, before);
        if (hasTwoNames)
            QCOMPARE(::link(QFile::encodeName(file).constData(),
                            QFile::encodeName(shop.path("second")).constData()),
                     0);
        shop.controller();
        struct rlimit usual = {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
        const struct rlimit limit = {5000, usual.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
        shop.controller().saveFile(file, QString(6000, u'x'));
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &usual), 0);

        QCOMPARE(shop.controller().m_errorMessage, unableToWriteLine(file));
        QCOMPARE(Tests::treeOf(shop.path("folder")),
                 (QMap<QString, QByteArray>{{QStringLiteral("file"), before}}));
        QCOMPARE(shop.log.actions().filter(QStringLiteral("written: ")).size(), 1);
        QVERIFY(shop.log.actions().constLast().startsWith(QLatin1String("not written: ")));
    }

    void writesThroughALinkAndKeepsIt()
    {
        Workshop shop;
        writeFile(shop.path("far/file"), "old");
        QVERIFY(QFile::link(QStringLiteral("far/file"), shop.path("link")));
        shop.controller().saveFile(shop.path("link"), QStringLiteral("new"));
        QVERIFY(QFileInfo(shop.path("link")).isSymLink());
        QCOMPARE(Tests::treeOf(shop.path("far")),
                 (QMap<QString, QByteArray>{{QStringLiteral("file"), "new"}}));
    }

    void doesNotBlockOnAPipe()
    {
        Workshop shop;
        const QString pipe = shop.path("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QCOMPARE(shop.controller().readFile(pipe), QString());
        shop.controller().saveFile(pipe, QStringLiteral("text"));
        QCOMPARE(shop.controller().m_errorMessage, isEmptyLine(pipe) + unableToWriteLine(pipe));
    }

    void readsNothingFromAPartlyReadableFile()
    {
        Workshop shop;
        const QString file = shop.path("file");
        writeFile(file, QByteArray(1000 * 1000, 'x'));
        shop.controller();
        s_reads = 3;
        const QString text = shop.controller().readFile(file);
        const bool hasFailed = s_reads == 0;
        s_reads = -1;
        if (!hasFailed)
            QSKIP("no reading that fails on this system");
        QCOMPARE(text.size(), 0);
        QCOMPARE(shop.controller().m_errorMessage, isEmptyLine(file));
    }

    void readsNoFileThatNeverEnds()
    {
        const QString endless = QStringLiteral("/proc/self/pagemap");
        if (!QFile::exists(endless))
            QSKIP("no file without an end on this system");
        Workshop shop;
        const QString link = shop.path("link");
        QVERIFY(QFile::link(endless, link));
        QCOMPARE(shop.controller().readFile(link), QString());
        QCOMPARE(shop.controller().m_errorMessage, isEmptyLine(link));
    }

    void readsNothingTooLarge_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<bool>("isRead");
        constexpr qint64 bound = 96LL * 1024 * 1024;
        QTest::newRow("maximum size") << bound << true;
        QTest::newRow("one byte larger") << bound + 1 << false;
        QTest::newRow("a gigabyte") << 1024LL * 1024 * 1024 << false;
    }

    void writesNothingTooLargeToRead_data()
    {
        QTest::addColumn<int>("characters");
        QTest::addColumn<bool>("isWritten");
        constexpr int bound = 96 * 1024 * 1024 / 2;
        QTest::newRow("maximum size") << bound << true;
        QTest::newRow("one character larger") << bound + 1 << false;
    }

    // Each character takes two bytes.
    void writesNothingTooLargeToRead()
    {
        QFETCH(int, characters);
        QFETCH(bool, isWritten);
        Workshop shop;
        const QString file = shop.path("big");
        writeFile(file, "old");
        shop.controller().saveFile(file, QString(characters, u'\u00fc'));
        QCOMPARE(QFileInfo(file).size(), isWritten ? characters * 2LL : 3LL);
        QCOMPARE(shop.controller().m_errorMessage, isWritten ? QString() : unableToWriteLine(file));
    }

    // The file is sparse.
    void readsNothingTooLarge()
    {
        QFETCH(qint64, size);
        QFETCH(bool, isRead);
        Workshop shop;
        const QString file = shop.path("big");
        writeFile(file, {});
        QVERIFY(QFile::resize(file, size));
        QCOMPARE(shop.controller().readFile(file).size(), isRead ? int(size) : 0);
        QCOMPARE(shop.controller().m_errorMessage, isRead ? QString() : isEmptyLine(file));
    }

    void backsUpBesideTheFileWithTheLocalTime_data()
    {
        QTest::addColumn<bool>("install");
        QTest::addColumn<QString>("occasion");
        QTest::newRow("install") << true << "installation";
        QTest::newRow("uninstall") << false << "uninstallation";
    }

    void backsUpBesideTheFileWithTheLocalTime()
    {
        QFETCH(bool, install);
        QFETCH(QString, occasion);
        Workshop shop;
        // A time zone far from UTC, so that local time is recognised.
        shop.sandbox.setVariable("TZ", "XYZ-11:30");
        const QString file = shop.dataPath("Vendor/dll.xml");
        writeFile(file, "not XML, \xff\r\n");
        const QString before = timeName(QDateTime::currentDateTime());
        changeConfiguration(shop, install);
        const QString after = timeName(QDateTime::currentDateTime());

        QCOMPARE(shop.backups().size(), 1);
        const QString backup = shop.backups().constFirst();
        const QString start = file + QStringLiteral("_quillmont_orbwell_before_") + occasion + u'_';
        QVERIFY2(backup.startsWith(start), qPrintable(backup));
        QVERIFY(backup.endsWith(QLatin1String(".bak")));
        const QString time = backup.mid(start.size()).chopped(4);
        QVERIFY2(before <= time && time <= after, qPrintable(time));
        QCOMPARE(Tests::readFile(backup), QByteArray("not XML, \xff\r\n"));
        QCOMPARE(Tests::readFile(file), QByteArray("not XML, \xff\r\n"));
        QCOMPARE(shop.countOfLine(QStringLiteral("file backups to '") + backup
                                  + QStringLiteral("'. Result: succeed")),
                 1);
    }

    void keepsABackupPrivateWhileCopying_data()
    {
        QTest::addColumn<unsigned>("mode");
        QTest::addColumn<QByteArray>("list");
        for (const unsigned mode : {0600U, 0640U, 0644U, 0444U})
            QTest::newRow(QByteArray::number(mode, 8).constData()) << mode << QByteArray();
        QTest::newRow("a user who may only read") << 0640U << Tests::accessList(04, 0, 04, 0);
    }

    void keepsABackupPrivateWhileCopying()
    {
        QFETCH(unsigned, mode);
        QFETCH(QByteArray, list);
        Workshop shop;
        const QString file = shop.dataPath("Vendor/dll.xml");
        writeFile(file, "<a></a>");
        Tests::setMode(file, mode);
        if (!list.isEmpty() && !Tests::setAttribute(file, Tests::accessListName, list))
            QSKIP("no access lists on this file system");
        const bool hasNote = Tests::setAttribute(file, "user.note", "mine");
        s_modes.clear();
        shop.controller();
        {
            const Tests::Unprivileged user(shop.sandbox.root());
            changeConfiguration(shop, true);
        }
        const QString backup = shop.backups().constFirst();
        QCOMPARE(Tests::modeOf(backup), mode);
        // Not even before the access list is set.
        if (!s_modes.isEmpty())
            QCOMPARE(s_modes, QVector<unsigned>{0600});
        QCOMPARE(Tests::attribute(backup, Tests::accessListName), list);
        QCOMPARE(Tests::attribute(backup, "user.note"), QByteArray(hasNote ? "mine" : ""));
    }

    // The user cannot give the backup the file's group.
    void givesAnotherGroupNoMoreRightsToABackup()
    {
        Workshop shop;
        const QString file = shop.dataPath("Vendor/dll.xml");
        writeFile(file, "<a></a>");
        if (chown(QFile::encodeName(file).constData(), getuid(), 23456) != 0)
            QSKIP("only the superuser gives a file a group of others");
        Tests::setMode(file, 0664);
        shop.folder("A");
        auto *mapping = shop.mapping(simulator, shop.path("A"));
        {
            const Tests::Unprivileged user(shop.sandbox.root());
            shop.controller().installToFlightSim(mapping);
        }
        QCOMPARE(Tests::modeOf(shop.backups().constFirst()), 0644U);
    }

    void neverOverwritesABackupAndContinues_data() { backsUpBesideTheFileWithTheLocalTime_data(); }

    void neverOverwritesABackupAndContinues()
    {
        QFETCH(bool, install);
        QFETCH(QString, occasion);
        Workshop shop;
        const QString file = shop.dataPath("Vendor/dll.xml");
        writeFile(file, "<a></a>");
        const QDateTime now = QDateTime::currentDateTime();
        for (int second = 0; second < 30; ++second) {
            writeFile(file + QStringLiteral("_quillmont_orbwell_before_") + occasion + u'_'
                          + timeName(now.addSecs(second)) + QStringLiteral(".bak"),
                      "earlier");
        }
        const int helpers = countOfHelpers(shop);
        shop.folder("A");
        const auto disk = shop.disk();
        changeConfiguration(shop, install);
        QCOMPARE(shop.disk(), disk);
        QCOMPARE(shop.backups().size(), 30);
        const auto lines = shop.log.debugLines().filter(QStringLiteral("file backups to '"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.constFirst().endsWith(QLatin1String("'. Result: error")));
        QCOMPARE(countOfHelpers(shop), helpers + 1);
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
        QVERIFY(shop.boxes().isEmpty());
    }

    void backsUpOnlyRegularFiles_data() { backsUpBesideTheFileWithTheLocalTime_data(); }

    void backsUpOnlyRegularFiles()
    {
        QFETCH(bool, install);
        Workshop shop;
        const QString pipe = shop.dataPath("Vendor/dll.xml");
        QVERIFY(QDir().mkpath(QFileInfo(pipe).path()));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        changeConfiguration(shop, install);
        QVERIFY(shop.backups().isEmpty());
        const auto lines = shop.log.debugLines().filter(QStringLiteral("file backups to '"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.constFirst().endsWith(QLatin1String("'. Result: error")));
        QVERIFY(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());
    }

    void doesNotBackUpAMissingFile_data() { backsUpBesideTheFileWithTheLocalTime_data(); }

    void doesNotBackUpAMissingFile()
    {
        QFETCH(bool, install);
        Workshop shop;
        changeConfiguration(shop, install);
        QVERIFY(shop.backups().isEmpty());
        QVERIFY(!shop.log.hasDebugLineWith(QStringLiteral("file backups")));
    }

private:
    static void changeConfiguration(Workshop &shop, bool install)
    {
        auto *mapping = shop.mapping(simulator, shop.folder("A"));
        if (install)
            shop.controller().installToFlightSim(mapping);
        else
            shop.controller().uninstallFromFlightSim(mapping);
    }

    static int countOfHelpers(Workshop &shop)
    {
        int count = 0;
        for (const auto *child : shop.controller().children())
            count += child->inherits("Quillmont::Library::Helpers::XmlHelper") ? 1 : 0;
        return count;
    }
};

QTEST_MAIN(TestTextFiles)
#include "tst_TextFiles.moc"
