#include "Library/Helpers/FileWriter.h"

#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"
#include "tests/support/Unprivileged.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/mount.h>
#endif

using Quillmont::Library::Helpers::FileWriter;

/// Replaces files under the conditions in which that goes wrong.
class TestFileWriter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void newFileIsMade();
    void contentIsReplaced_data();
    void contentIsReplaced();
    void modeStays_data();
    void modeStays();
    void ownerStays();
    void symbolicLinkStays_data();
    void symbolicLinkStays();
    void linkBehindALinkedFolderStays();
    void danglingLinkGetsItsTarget();
    void circleOfLinksIsRefused();
    void otherHardLinkKeepsTheOldBytes();
    void openReaderKeepsTheOldBytes();
    void leftOversDoNotDisturb();
    void unfinishedFileOfAKilledProcessGoes_data();
    void unfinishedFileOfAKilledProcessGoes();
    void nothingElseIsCleared();
    void folderInThePlaceOfTheUnfinishedFileDoesNotDisturb();
    void fileSizeLimitLeavesTheOldBytes_data();
    void fileSizeLimitLeavesTheOldBytes();
    void fullDiskLeavesTheOldBytes_data();
    void fullDiskLeavesTheOldBytes();
    void readOnlyFolderIsRefused();
    void readOnlyFileIsRefused();
    void whatIsNoFileIsRefused_data();
    void whatIsNoFileIsRefused();

private:
    QString path(const char *name = "exe.xml") const
    {
        return m_sandbox.path(QStringLiteral("config/") + QLatin1String(name));
    }

    QStringList files() const
    {
        return Tests::treeOf(m_sandbox.path(QStringLiteral("config"))).keys();
    }

    bool write(const QString &path, const QByteArray &bytes)
    {
        m_problem.clear();
        return FileWriter::write(path, bytes, &m_problem);
    }

    Tests::Sandbox m_sandbox;
    QString m_problem;
};

namespace {

struct stat statusOf(const QString &path)
{
    struct stat result = {};
    if (stat(QFile::encodeName(path).constData(), &result) != 0)
        qFatal("no status of %s", qPrintable(path));
    return result;
}

void setMode(const QString &path, mode_t mode)
{
    if (chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("cannot set the mode of %s", qPrintable(path));
}

} // namespace

void TestFileWriter::init()
{
    QDir(m_sandbox.path(QStringLiteral("config"))).removeRecursively();
    QVERIFY(QDir().mkpath(m_sandbox.path(QStringLiteral("config"))));
}

void TestFileWriter::newFileIsMade()
{
    const mode_t mask = umask(022);
    QVERIFY(write(path(), "new"));
    umask(mask);
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
    QCOMPARE(statusOf(path()).st_mode & 07777, mode_t(0644));
    QCOMPARE(files(), QStringList{QStringLiteral("exe.xml")});
}

void TestFileWriter::contentIsReplaced_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("by nothing") << QByteArray();
    QTest::newRow("by less") << QByteArray("x");
    QTest::newRow("by what a buffer holds") << QByteArray(16 * 1024, 'x');
    QTest::newRow("by more") << QByteArray(1000 * 1000, '\0');
}

void TestFileWriter::contentIsReplaced()
{
    QFETCH(const QByteArray, bytes);
    Tests::writeFile(path(), "old content");
    QVERIFY(write(path(), bytes));
    QCOMPARE(Tests::readFile(path()), bytes);
    QCOMPARE(files(), QStringList{QStringLiteral("exe.xml")});
}

void TestFileWriter::modeStays_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0600, 0640, 0644, 0664, 0666, 0755})
        QTest::newRow(QByteArray::number(mode, 8).constData()) << mode;
}

void TestFileWriter::modeStays()
{
    QFETCH(const int, mode);
    Tests::writeFile(path(), "old");
    setMode(path(), mode_t(mode));
    QVERIFY(write(path(), "new"));
    QCOMPARE(statusOf(path()).st_mode & 07777, mode_t(mode));
}

void TestFileWriter::ownerStays()
{
    if (getuid() != 0)
        QSKIP("only the superuser writes a file that is another's");
    Tests::writeFile(path(), "old");
    setMode(path(), 0640);
    QCOMPARE(chown(QFile::encodeName(path()).constData(), 12345, 23456), 0);
    QVERIFY(write(path(), "new"));
    QCOMPARE(statusOf(path()).st_uid, uid_t(12345));
    QCOMPARE(statusOf(path()).st_gid, gid_t(23456));
    QCOMPARE(statusOf(path()).st_mode & 07777, mode_t(0640));
}

void TestFileWriter::symbolicLinkStays_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("relative") << QStringLiteral("real/target.xml");
    QTest::newRow("absolute") << path("real/target.xml");
    QTest::newRow("link to a link") << QStringLiteral("real/link.xml");
}

void TestFileWriter::symbolicLinkStays()
{
    QFETCH(const QString, target);
    Tests::writeFile(path("real/target.xml"), "old");
    QVERIFY(QFile::link(QStringLiteral("target.xml"), path("real/link.xml")));
    QVERIFY(QFile::link(target, path()));
    const QStringList before = files();

    QVERIFY(write(path(), "new"));
    QVERIFY(QFileInfo(path()).isSymLink());
    QVERIFY(QFileInfo(path("real/link.xml")).isSymLink());
    QVERIFY(!QFileInfo(path("real/target.xml")).isSymLink());
    QCOMPARE(Tests::readFile(path("real/target.xml")), QByteArray("new"));
    QCOMPARE(files(), before);
}

// "..", in a link, leads out of the folder that it really lies in.
void TestFileWriter::linkBehindALinkedFolderStays()
{
    QVERIFY(QDir().mkpath(path("real/deep/folder")));
    Tests::writeFile(path("real/deep/store/dll.xml"), "old");
    Tests::writeFile(path("store/dll.xml"), "foreign");
    QVERIFY(QFile::link(QStringLiteral("../store/dll.xml"), path("real/deep/folder/dll.xml")));
    QVERIFY(QFile::link(QStringLiteral("real/deep/folder"), path("folder")));

    QVERIFY(write(path("folder/dll.xml"), "new"));
    QCOMPARE(Tests::readFile(path("real/deep/store/dll.xml")), QByteArray("new"));
    QCOMPARE(Tests::readFile(path("store/dll.xml")), QByteArray("foreign"));
}

void TestFileWriter::danglingLinkGetsItsTarget()
{
    QVERIFY(QFile::link(QStringLiteral("target.xml"), path()));
    QVERIFY(write(path(), "new"));
    QVERIFY(QFileInfo(path()).isSymLink());
    QCOMPARE(Tests::readFile(path("target.xml")), QByteArray("new"));
}

void TestFileWriter::circleOfLinksIsRefused()
{
    QVERIFY(QFile::link(QStringLiteral("exe.xml"), path("other.xml")));
    QVERIFY(QFile::link(QStringLiteral("other.xml"), path()));
    QVERIFY(!write(path(), "new"));
    QVERIFY(!m_problem.isEmpty());
    QVERIFY(QFileInfo(path()).isSymLink());
    QVERIFY(QFileInfo(path("other.xml")).isSymLink());
}

/// The price of never having half a file: the name gets a new one.
void TestFileWriter::otherHardLinkKeepsTheOldBytes()
{
    Tests::writeFile(path(), "old");
    QCOMPARE(::link(QFile::encodeName(path()).constData(),
                    QFile::encodeName(path("other.xml")).constData()),
             0);
    QVERIFY(write(path(), "new"));
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
    QCOMPARE(Tests::readFile(path("other.xml")), QByteArray("old"));
}

void TestFileWriter::openReaderKeepsTheOldBytes()
{
    Tests::writeFile(path(), "old");
    QFile reader(path());
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QVERIFY(write(path(), "new"));
    QCOMPARE(reader.readAll(), QByteArray("old"));
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
}

void TestFileWriter::leftOversDoNotDisturb()
{
    Tests::writeFile(path(), "old");
    Tests::writeFile(path("exe.xml.AbCdEf"), "half");
    QVERIFY(write(path(), "new"));
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
    QCOMPARE(Tests::readFile(path("exe.xml.AbCdEf")), QByteArray("half"));
}

void TestFileWriter::unfinishedFileOfAKilledProcessGoes_data()
{
    QTest::addColumn<bool>("written");
    QTest::newRow("with the next change") << true;
    QTest::newRow("by itself") << false;
}

void TestFileWriter::unfinishedFileOfAKilledProcessGoes()
{
    QFETCH(const bool, written);
    Tests::writeFile(path("store/exe.xml"), "old");
    Tests::writeFile(path("store/exe.xml_quillmont_unfinished"), "half");
    QVERIFY(QFile::link(QStringLiteral("store/exe.xml"), path()));
    QVERIFY(FileWriter::hasUnfinished(path()));
    if (written)
        QVERIFY(write(path(), "new"));
    else
        FileWriter::clearUnfinished(path());
    QVERIFY(!FileWriter::hasUnfinished(path()));
    QCOMPARE(files().join(u' '), QStringLiteral("exe.xml store/ store/exe.xml"));
    QCOMPARE(Tests::readFile(path()), QByteArray(written ? "new" : "old"));
}

void TestFileWriter::nothingElseIsCleared()
{
    for (const char *name : {"exe.xml", "exe.xml.AbCdEf", "other.xml_quillmont_unfinished"})
        Tests::writeFile(path(name), "foreign");
    QVERIFY(QDir().mkpath(path("exe.xml_quillmont_unfinished")));
    const auto before = Tests::treeOf(m_sandbox.path(QStringLiteral("config")));
    QVERIFY(!FileWriter::hasUnfinished(path()));
    FileWriter::clearUnfinished(path());
    QCOMPARE(Tests::treeOf(m_sandbox.path(QStringLiteral("config"))), before);
}

void TestFileWriter::folderInThePlaceOfTheUnfinishedFileDoesNotDisturb()
{
    Tests::writeFile(path(), "old");
    QVERIFY(QDir().mkpath(path("exe.xml_quillmont_unfinished")));
    QVERIFY(write(path(), "new"));
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
    QCOMPARE(files().size(), 2);
}

void TestFileWriter::fileSizeLimitLeavesTheOldBytes_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("what a buffer holds") << 10 * 1024;
    QTest::newRow("more") << 100 * 1024;
}

void TestFileWriter::fileSizeLimitLeavesTheOldBytes()
{
    QFETCH(const int, size);
    Tests::writeFile(path(), "old");
    struct rlimit before = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const struct rlimit limit = {5000, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const bool isWritten = write(path(), QByteArray(size, 'x'));
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);

    QVERIFY(!isWritten);
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(Tests::readFile(path()), QByteArray("old"));
    QCOMPARE(files(), QStringList{QStringLiteral("exe.xml")});
    struct sigaction action = {};
    QCOMPARE(sigaction(SIGXFSZ, nullptr, &action), 0);
    QVERIFY(action.sa_handler == SIG_DFL);
}

void TestFileWriter::fullDiskLeavesTheOldBytes_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isFilled");
    QTest::newRow("no block left") << 10 * 1024 << true;
    QTest::newRow("some blocks left") << 200 * 1024 << false;
}

void TestFileWriter::fullDiskLeavesTheOldBytes()
{
    QFETCH(const int, size);
    QFETCH(const bool, isFilled);
#ifdef Q_OS_LINUX
    const QByteArray disk = QFile::encodeName(path("disk"));
    QVERIFY(QDir().mkpath(path("disk")));
    if (mount("none", disk.constData(), "tmpfs", 0, "size=100k") != 0)
        QSKIP("needs the right to mount a small disk");
    const auto unmount = qScopeGuard([&disk] { umount2(disk.constData(), MNT_DETACH); });

    Tests::writeFile(path("disk/exe.xml"), "old");
    QFile filler(path("disk/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (isFilled && filler.write(QByteArray(4096, 'x')) > 0)
        continue;
    const QStringList before = files();

    QVERIFY(!write(path("disk/exe.xml"), QByteArray(size, 'x')));
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(Tests::readFile(path("disk/exe.xml")), QByteArray("old"));
    QCOMPARE(files(), before);
#else
    Q_UNUSED(size)
    Q_UNUSED(isFilled)
    QSKIP("needs a small disk");
#endif
}

void TestFileWriter::readOnlyFolderIsRefused()
{
    Tests::writeFile(path(), "old");
    setMode(m_sandbox.path(QStringLiteral("config")), 0555);
    bool isWritten = false;
    {
        const Tests::Unprivileged user(m_sandbox.root());
        isWritten = write(path(), "new");
    }
    setMode(m_sandbox.path(QStringLiteral("config")), 0755);
    QVERIFY(!isWritten);
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(Tests::readFile(path()), QByteArray("old"));
    QCOMPARE(files(), QStringList{QStringLiteral("exe.xml")});
}

void TestFileWriter::readOnlyFileIsRefused()
{
    if (getuid() == 0)
        QSKIP("to the superuser no file is read-only");
    Tests::writeFile(path(), "old");
    setMode(path(), 0444);
    QVERIFY(!write(path(), "new"));
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(Tests::readFile(path()), QByteArray("old"));
}

void TestFileWriter::whatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("folder") << path("folder");
    QTest::newRow("pipe") << path("pipe");
    QTest::newRow("device") << QStringLiteral("/dev/null");
    QTest::newRow("no name") << QString();
    QTest::newRow("missing folder") << path("missing/exe.xml");
}

void TestFileWriter::whatIsNoFileIsRefused()
{
    QFETCH(const QString, target);
    QVERIFY(QDir().mkpath(path("folder")));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    const QStringList before = files();
    QVERIFY(!write(target, "new"));
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(files(), before);
    QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
}

QTEST_APPLESS_MAIN(TestFileWriter)
#include "tst_FileWriter.moc"
