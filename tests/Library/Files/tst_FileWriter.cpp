#include "Library/Files/FileWriter.h"

#include "Library/Files/Replacement.h"
#include "tests/support/Attributes.h"
#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/Sandbox.h"
#include "tests/support/Unprivileged.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <grp.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#endif

// The system calls so far, in order.
static QStringList s_steps;

// The error with which setting a user attribute fails; 0 for none.
static int s_attributeError = 0;

// The maximum length of a name.
static long s_maxNameSize = 255;

// The system call that fails, and how.
static QByteArray s_failing;
static int s_error = 0;

#ifdef Q_OS_LINUX
// These replace the C library's functions.
extern "C" int
fsetxattr(int handle, const char *name, const void *value, size_t size, int flags) noexcept
{
    if (s_attributeError == 0 || qstrncmp(name, "user.", 5) != 0)
        return int(syscall(SYS_fsetxattr, handle, name, value, size, flags));
    errno = s_attributeError;
    return -1;
}

static bool fails(const char *call)
{
    errno = s_error;
    return s_failing == call;
}

// All of these replace the C library's functions.
extern "C" int fsync(int handle)
{
    struct stat status = {};
    fstat(handle, &status);
    s_steps.append(QStringLiteral("%1 bytes on disk").arg(status.st_size));
    return fails("fsync") ? -1 : int(syscall(SYS_fsync, handle));
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    s_steps.append(QStringLiteral("in place"));
    return fails("rename") ? -1 : renameat(AT_FDCWD, from, AT_FDCWD, to);
}

extern "C" int fchmod(int handle, mode_t mode) noexcept
{
    return fails("fchmod") ? -1 : int(syscall(SYS_fchmod, handle, mode));
}

extern "C" ssize_t fgetxattr(int handle, const char *name, void *value, size_t size) noexcept
{
    return fails("fgetxattr") ? -1 : syscall(SYS_fgetxattr, handle, name, value, size);
}

extern "C" ssize_t flistxattr(int handle, char *names, size_t size) noexcept
{
    return fails("flistxattr") ? -1 : syscall(SYS_flistxattr, handle, names, size);
}

extern "C" int
linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    return fails("linkat") ? -1 : int(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

extern "C" long pathconf(const char *, int) noexcept
{
    return s_maxNameSize;
}

extern "C" ssize_t read(int handle, void *bytes, size_t size)
{
    return fails("read") ? -1 : syscall(SYS_read, handle, bytes, size);
}

// Writes only a part at a time, and fails only temporarily.
extern "C" ssize_t write(int handle, const void *bytes, size_t size)
{
    if (fails("write")) {
        s_failing.clear();
        return -1;
    }
    return syscall(SYS_write, handle, bytes, qMin(size, size_t(1000)));
}
#endif

using Quillmont::Library::Files::FileWriter;
using Quillmont::Library::Files::Replacement;
using Tests::modeOf;
using Tests::setMode;

/// Replaces files under conditions in which that can fail.
class TestFileWriter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void createsANewFile();
    void replacesTheContent_data();
    void replacesTheContent();
    void keepsTheMode_data();
    void keepsTheMode();
    void keepsTheOwner_data();
    void keepsTheOwner();
    void keepsTheGroupIfTheOwnerCannotBeKept();
    void copesWithMissingFileSystemFeatures_data();
    void copesWithMissingFileSystemFeatures();
    void keepsAccessListAndAttributes_data();
    void keepsAccessListAndAttributes();
    void ignoresARefusedAttribute_data();
    void ignoresARefusedAttribute();
    void doesNotInheritTheFoldersAccessList();
    void givesAnotherGroupNoMoreRights_data();
    void givesAnotherGroupNoMoreRights();
    void keepsASymbolicLink_data();
    void keepsASymbolicLink();
    void keepsALinkInsideALinkedFolder();
    void createsTheTargetOfADanglingLink_data();
    void createsTheTargetOfADanglingLink();
    void refusesALinkWithoutATarget_data();
    void refusesALinkWithoutATarget();
    void keepsTheOldBytesInOtherHardLinks();
    void keepsTheOldBytesForAnOpenReader();
    void syncsBeforeItReplacesTheFile_data();
    void syncsBeforeItReplacesTheFile();
    void ignoresOldTemporaryFiles();
    void removesTheUnfinishedFileOfAKilledProcess_data();
    void removesTheUnfinishedFileOfAKilledProcess();
    void removesNoOtherFile();
    void writesFilesWithNamesOfAnyLength_data();
    void writesFilesWithNamesOfAnyLength();
    void usesADistinctTemporaryNamePerLongName();
    void keepsHardLinksOfARewrittenFile_data();
    void keepsHardLinksOfARewrittenFile();
    void keepsTheOwnerOfARewrittenFile();
    void rewritesWithoutAFileBesideIt();
    void restoresTheOldBytesIfItCannotFinish_data();
    void restoresTheOldBytesIfItCannotFinish();
    void keepsTheOldBytesOverTheSizeLimit_data();
    void keepsTheOldBytesOverTheSizeLimit();
    void keepsTheOldBytesOnAFullDisk_data();
    void keepsTheOldBytesOnAFullDisk();
    void refusesAReadOnlyFolder();
    void refusesAReadOnlyFile();
    void refusesWhatIsNotARegularFile_data();
    void refusesWhatIsNotARegularFile();

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

    bool rewrite(const QString &path, const QByteArray &bytes)
    {
        m_problem.clear();
        QFile file(path);
        return file.open(QIODevice::ReadWrite) && FileWriter::rewrite(&file, bytes, &m_problem);
    }

    void addWays(const QVector<QPair<const char *, int>> &sizes);
    bool writeInItsWay(const QString &path, const QByteArray &bytes);

    Tests::Sandbox m_sandbox;
    QString m_problem;
};

namespace {

// A file whose first change of size fails.
class StubbornFile : public QFile
{
public:
    using QFile::QFile;

    bool resize(qint64 size) override
    {
        errno = EIO;
        return m_wasAsked ? QFile::resize(size) : !(m_wasAsked = true);
    }

private:
    bool m_wasAsked = false;
};

struct stat statusOf(const QString &path)
{
    struct stat result = {};
    if (stat(QFile::encodeName(path).constData(), &result) != 0)
        qFatal("no status of %s", qPrintable(path));
    return result;
}

} // namespace

void TestFileWriter::init()
{
    QVERIFY(QDir().mkpath(m_sandbox.path(QStringLiteral("config"))));
}

// Also removes names that cannot be decoded.
void TestFileWriter::cleanup()
{
    std::filesystem::remove_all(m_sandbox.path(QStringLiteral("config")).toStdString());
}

void TestFileWriter::createsANewFile()
{
    const mode_t mask = umask(022);
    QVERIFY(write(path(), "new"));
    umask(mask);
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
    QCOMPARE(modeOf(path()), 0644U);
    QCOMPARE(files(), QStringList{QStringLiteral("exe.xml")});

    QDir::setCurrent(QFileInfo(path()).path());
    QVERIFY(write(QStringLiteral("other.xml"), "new"));
    QDir::setCurrent(QDir::rootPath());
    QCOMPARE(Tests::readFile(path("other.xml")), QByteArray("new"));
}

void TestFileWriter::replacesTheContent_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("with nothing") << QByteArray();
    QTest::newRow("with less") << QByteArray("x");
    QTest::newRow("with one full buffer") << QByteArray(16 * 1024, 'x');
    QTest::newRow("with more") << QByteArray(1000 * 1000, '\0');
}

void TestFileWriter::replacesTheContent()
{
    QFETCH(const QByteArray, bytes);
    Tests::writeFile(path(), "old content");
    QVERIFY(write(path(), bytes));
    QCOMPARE(Tests::readFile(path()), bytes);
    QCOMPARE(files(), QStringList{QStringLiteral("exe.xml")});
}

void TestFileWriter::keepsTheMode_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0600, 0640, 0644, 0664, 0666, 0755, 01644})
        QTest::newRow(QByteArray::number(mode, 8).constData()) << mode;
}

void TestFileWriter::keepsTheMode()
{
    QFETCH(const int, mode);
    Tests::writeFile(path(), "old");
    setMode(path(), unsigned(mode));
    QVERIFY(write(path(), "new"));
    QCOMPARE(modeOf(path()), unsigned(mode));
}

void TestFileWriter::keepsTheOwner_data()
{
    QTest::addColumn<uid_t>("user");
    QTest::addColumn<gid_t>("group");
    QTest::newRow("another user and group") << uid_t(12345) << gid_t(23456);
    QTest::newRow("another user") << uid_t(12345) << getgid();
    QTest::newRow("another group") << getuid() << gid_t(23456);
}

void TestFileWriter::keepsTheOwner()
{
    QFETCH(const uid_t, user);
    QFETCH(const gid_t, group);
    if (getuid() != 0)
        QSKIP("only the superuser writes a file that is another's");
    Tests::writeFile(path(), "old");
    setMode(path(), 0640);
    QCOMPARE(chown(QFile::encodeName(path()).constData(), user, group), 0);
    QVERIFY(write(path(), "new"));
    QCOMPARE(statusOf(path()).st_uid, user);
    QCOMPARE(statusOf(path()).st_gid, group);
    QCOMPARE(modeOf(path()), 0640U);
}

// The writing user is in the file's group.
void TestFileWriter::keepsTheGroupIfTheOwnerCannotBeKept()
{
#ifdef Q_OS_LINUX
    QVector<gid_t> before(getgroups(0, nullptr));
    getgroups(before.size(), before.data());
    const gid_t group = 23456;
    if (setgroups(1, &group) != 0)
        QSKIP("only the superuser joins a group");
    QVERIFY(QDir().mkpath(m_sandbox.path(QStringLiteral("nothing"))));
    const auto leave
        = qScopeGuard([&before] { setgroups(size_t(before.size()), before.constData()); });
    Tests::writeFile(path(), "old");
    setMode(path(), 0664);
    {
        const Tests::Unprivileged user(m_sandbox.root());
    }
    QCOMPARE(chown(QFile::encodeName(path()).constData(), 0, group), 0);
    {
        const Tests::Unprivileged user(m_sandbox.path(QStringLiteral("nothing")));
        QVERIFY2(write(path(), "new"), qPrintable(m_problem));
    }
    QCOMPARE(statusOf(path()).st_gid, group);
    QCOMPARE(modeOf(path()), 0664U);
#else
    QSKIP("needs Linux");
#endif
}

void TestFileWriter::copesWithMissingFileSystemFeatures_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isWritten");
    const auto row = [](const char *call, int error, bool isWritten, int mode, const char *way) {
        QTest::addRow("%s, %s, %o, %s", call, strerror(error), unsigned(mode), way)
            << QByteArray(call) << error << QString::fromLatin1(way) << mode << isWritten;
    };
    row("fchmod", EPERM, true, 0600, "written");
    row("fchmod", EPERM, false, 0640, "written");
    for (const int error : {ENODATA, ENOTSUP, ENOSYS})
        row("fgetxattr", error, true, 0640, "written");
    for (const int error : {ENOTSUP, ENOSYS, EIO})
        row("flistxattr", error, error != EIO, 0640, "written");
    for (const int error : {EINVAL, ENOTSUP, EIO})
        row("fsync", error, error != EIO, 0640, "written");
    row("linkat", ENOENT, true, 0640, "written");
    row("read", EIO, false, 0640, "rewritten under two names");
    row("write", EINTR, true, 0640, "rewritten under two names");
    // Overwritten in place, unless it is a disk error.
    for (const int error : {EPERM, ENOSPC, EDQUOT, EFBIG, EIO})
        row("rename", error, error == EPERM, 0640, "rewritten");
    row("rename", EPERM, false, 0640, "written");
}

void TestFileWriter::copesWithMissingFileSystemFeatures()
{
#ifdef Q_OS_LINUX
    QFETCH(const QByteArray, call);
    QFETCH(const int, error);
    QFETCH(const int, mode);
    QFETCH(const bool, isWritten);
    Tests::writeFile(path(), "old");
    setMode(path(), unsigned(mode));
    s_error = error;
    s_failing = call;
    const bool wasWritten = writeInItsWay(path(), "new");
    s_failing.clear();
    QCOMPARE(wasWritten, isWritten);
    QCOMPARE(m_problem.isEmpty(), isWritten);
    QCOMPARE(Tests::readFile(path()), QByteArray(isWritten ? "new" : "old"));
    QCOMPARE(modeOf(path()), unsigned(mode));
    QCOMPARE(files(), QStringList{QStringLiteral("exe.xml")});
#else
    QSKIP("needs Linux");
#endif
}

void TestFileWriter::keepsAccessListAndAttributes_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::newRow("nobody else") << QByteArray();
    QTest::newRow("a user who may only read") << Tests::accessList(04, 0, 04, 0);
    QTest::newRow("a group with fewer rights than a user") << Tests::accessList(06, 0, 06, 04);
}

void TestFileWriter::keepsAccessListAndAttributes()
{
    QFETCH(const QByteArray, list);
    Tests::writeFile(path(), "old");
    Tests::setAttribute(path(), "trusted.note", "the superuser's");
    if (!Tests::setAttribute(path(), "user.note", "mine")
        || !Tests::setAttribute(path(), "user.sign", "mine, too")
        || !(list.isEmpty() || Tests::setAttribute(path(), Tests::accessListName, list)))
        QSKIP("no attributes on this file system");
    const unsigned mode = modeOf(path());

    QVERIFY(write(path(), "new"));
    QCOMPARE(Tests::attribute(path(), Tests::accessListName), list);
    QCOMPARE(Tests::attribute(path(), "user.note"), QByteArray("mine"));
    QCOMPARE(Tests::attribute(path(), "user.sign"), QByteArray("mine, too"));
    QCOMPARE(Tests::attribute(path(), "trusted.note"), QByteArray());
    QCOMPARE(modeOf(path()), mode);
}

void TestFileWriter::ignoresARefusedAttribute_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("stops");
    QTest::newRow("not supported by the file system") << ENOTSUP << false;
    QTest::newRow("not permitted for this user") << EPERM << false;
    QTest::newRow("full disk") << ENOSPC << true;
    QTest::newRow("quota exceeded") << EDQUOT << true;
    QTest::newRow("broken disk") << EIO << true;
}

void TestFileWriter::ignoresARefusedAttribute()
{
    QFETCH(const int, error);
    QFETCH(const bool, stops);
    Tests::writeFile(path(), "old");
    setMode(path(), 0640);
    if (!Tests::setAttribute(path(), "user.note", "mine"))
        QSKIP("no attributes on this file system");
    const Tests::LogCatcher log;
    s_attributeError = error;
    const bool isWritten = write(path(), "new");
    s_attributeError = 0;
    QCOMPARE(isWritten, !stops);
    QCOMPARE(Tests::readFile(path()), QByteArray(stops ? "old" : "new"));
    QCOMPARE(modeOf(path()), 0640U);
    QCOMPARE(log.hasDebugLineWith(QStringLiteral("attribute not kept: user.note")), !stops);
}

void TestFileWriter::doesNotInheritTheFoldersAccessList()
{
    Tests::writeFile(path(), "old");
    setMode(path(), 0640);
    if (!Tests::setAttribute(
            QFileInfo(path()).path(), Tests::passedOnListName, Tests::accessList(06, 06, 06, 0)))
        QSKIP("no access lists on this file system");
    QVERIFY(write(path(), "new"));
    QCOMPARE(Tests::attribute(path(), Tests::accessListName), QByteArray());
    QCOMPARE(modeOf(path()), 0640U);
}

void TestFileWriter::givesAnotherGroupNoMoreRights_data()
{
    QTest::addColumn<unsigned>("before");
    QTest::addColumn<unsigned>("after");
    QTest::addColumn<QByteArray>("listBefore");
    QTest::addColumn<QByteArray>("listAfter");
    const QByteArray none;
    QTest::newRow("readable by all") << 0644U << 0644U << none << none;
    QTest::newRow("the group may write") << 0664U << 0644U << none << none;
    QTest::newRow("only for the group") << 0660U << 0600U << none << none;
    QTest::newRow("everybody except the group") << 0606U << 0600U << none << none;
    QTest::newRow("setgid") << 02775U << 0755U << none << none;
    QTest::newRow("a user in addition to the group")
        << 0U << 0664U << Tests::accessList(06, 06, 06, 04) << Tests::accessList(06, 04, 06, 04);
    QTest::newRow("a user without rights")
        << 0U << 0660U << Tests::accessList(0, 06, 06, 04) << Tests::accessList(0, 0, 06, 0);
    QTest::newRow("a mask below the group")
        << 0U << 0644U << Tests::accessList(06, 06, 04, 06) << Tests::accessList(06, 04, 04, 04);
}

// The writing user cannot give the new file the old one's group.
void TestFileWriter::givesAnotherGroupNoMoreRights()
{
    QFETCH(const unsigned, before);
    QFETCH(const unsigned, after);
    QFETCH(const QByteArray, listBefore);
    QFETCH(const QByteArray, listAfter);
    Tests::writeFile(path(), "old");
    if (chown(QFile::encodeName(path()).constData(), getuid(), 23456) != 0)
        QSKIP("only the superuser gives a file a group of others");
    if (listBefore.isEmpty())
        setMode(path(), before);
    else if (!Tests::setAttribute(path(), Tests::accessListName, listBefore))
        QSKIP("no access lists on this file system");
    {
        const Tests::Unprivileged user(m_sandbox.root());
        QVERIFY(write(path(), "new"));
    }
    QVERIFY(statusOf(path()).st_gid != 23456);
    QCOMPARE(Tests::attribute(path(), Tests::accessListName), listAfter);
    QCOMPARE(QString::number(modeOf(path()), 8), QString::number(after, 8));
}

void TestFileWriter::keepsASymbolicLink_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isFollowed");
    QTest::newRow("relative") << QStringLiteral("real/target.xml") << true;
    QTest::newRow("absolute") << path("real/target.xml") << true;
    QTest::newRow("link to a link") << QStringLiteral("real/link.xml") << true;
    QTest::newRow("the longest chain that the system follows") << QStringLiteral("real/37") << true;
    QTest::newRow("one link more") << QStringLiteral("real/38") << false;
}

void TestFileWriter::keepsASymbolicLink()
{
    QFETCH(const QString, target);
    QFETCH(const bool, isFollowed);
    Tests::writeFile(path("real/target.xml"), "old");
    for (int i = 0; i <= 38; ++i)
        QVERIFY(QFile::link(i == 0 ? QStringLiteral("link.xml") : QString::number(i - 1),
                            path("real/") + QString::number(i)));
    QVERIFY(QFile::link(QStringLiteral("target.xml"), path("real/link.xml")));
    QVERIFY(QFile::link(target, path()));
    const QStringList before = files();

    QCOMPARE(write(path(), "new"), isFollowed);
    QVERIFY(QFileInfo(path()).isSymLink());
    QVERIFY(QFileInfo(path("real/link.xml")).isSymLink());
    QVERIFY(!QFileInfo(path("real/target.xml")).isSymLink());
    QCOMPARE(Tests::readFile(path("real/target.xml")), QByteArray(isFollowed ? "new" : "old"));
    QCOMPARE(files(), before);
}

// ".." in a link's target is relative to the link's real folder.
void TestFileWriter::keepsALinkInsideALinkedFolder()
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

void TestFileWriter::createsTheTargetOfADanglingLink_data()
{
    QTest::addColumn<QByteArray>("link");
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("beside it") << QByteArray("other.xml") << QByteArray("other.xml");
    QTest::newRow("in a linked folder")
        << QByteArray("folder/other.xml") << QByteArray("far/deep/other.xml");
    QTest::newRow("out of a linked folder")
        << QByteArray("folder/../other.xml") << QByteArray("far/other.xml");
    QTest::newRow("through another link")
        << QByteArray("folder/link.xml") << QByteArray("far/other.xml");
    QTest::newRow("into a folder whose name cannot be decoded")
        << QByteArray("\xff/other.xml") << QByteArray("\xff/other.xml");
}

// Files of the same name elsewhere are unchanged, including one left by a killed process.
void TestFileWriter::createsTheTargetOfADanglingLink()
{
    QFETCH(const QByteArray, link);
    QFETCH(const QByteArray, target);
    const QByteArray folder = QFile::encodeName(QFileInfo(path()).path()) + '/';
    const QByteArray real = folder + target;
    QVERIFY(QDir().mkpath(path("far/deep")));
    const bool isText = target.at(0) != '\xff';
    QVERIFY(isText || mkdir((folder + '\xff').constData(), 0700) == 0);
    QVERIFY(QFile::link(QStringLiteral("far/deep"), path("folder")));
    QVERIFY(QFile::link(QStringLiteral("../other.xml"), path("far/deep/link.xml")));
    QCOMPARE(symlink(link.constData(), QFile::encodeName(path()).constData()), 0);
    for (const char *name : {"other.xml", "far/other.xml", "far/deep/other.xml"}) {
        Tests::writeFile(path(name) + QLatin1String("_quillmont_unfinished"), "half");
        if (target != name && target != "other.xml")
            Tests::writeFile(path(name), "foreign");
    }
    const QStringList before = files();

    FileWriter::clearUnfinished(path());
    QCOMPARE(files().size(), before.size() - (isText ? 1 : 0));
    QVERIFY(access((real + "_quillmont_unfinished").constData(), F_OK) != 0);
    QVERIFY(write(path(), "new"));
    QVERIFY(QFileInfo(path()).isSymLink());
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
    QCOMPARE(access(real.constData(), F_OK), 0);
    const auto tree = Tests::treeOf(m_sandbox.path(QStringLiteral("config")));
    QCOMPARE(tree.values().count("new"), isText ? 1 : 0);
}

void TestFileWriter::refusesALinkWithoutATarget_data()
{
    QTest::addColumn<QString>("link");
    for (const char *link : {"other.xml",
                             "exe.xml",
                             "folder/..",
                             "folder/.",
                             "folder/",
                             "folder",
                             "gone/other.xml",
                             "gone/../gone.xml",
                             "file/other.xml"})
        QTest::newRow(link) << QString::fromLatin1(link);
}

// The first two are cycles.
void TestFileWriter::refusesALinkWithoutATarget()
{
    QFETCH(const QString, link);
    QVERIFY(QDir().mkpath(path("folder")));
    Tests::writeFile(path("file"), "file");
    QVERIFY(QFile::link(QStringLiteral("exe.xml"), path("other.xml")));
    QVERIFY(QFile::link(link, path()));
    const auto before = Tests::treeOf(m_sandbox.path(QStringLiteral("config")));
    FileWriter::clearUnfinished(path());
    QVERIFY(!write(path(), "new"));
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(Tests::treeOf(m_sandbox.path(QStringLiteral("config"))), before);
}

/// The price of writing all or nothing: only this name gets the new file.
void TestFileWriter::keepsTheOldBytesInOtherHardLinks()
{
    Tests::writeFile(path(), "old");
    QCOMPARE(::link(QFile::encodeName(path()).constData(),
                    QFile::encodeName(path("other.xml")).constData()),
             0);
    QVERIFY(write(path(), "new"));
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
    QCOMPARE(Tests::readFile(path("other.xml")), QByteArray("old"));
}

void TestFileWriter::keepsTheOldBytesForAnOpenReader()
{
    Tests::writeFile(path(), "old");
    QFile reader(path());
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QVERIFY(write(path(), "new"));
    QCOMPARE(reader.readAll(), QByteArray("old"));
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
}

void TestFileWriter::syncsBeforeItReplacesTheFile_data()
{
    addWays({{"much", 100 * 1024}});
}

// Otherwise a loss of power could leave an empty file instead of a good one.
void TestFileWriter::syncsBeforeItReplacesTheFile()
{
    QFETCH(const int, size);
    QFETCH(const QString, way);
    Tests::writeFile(path(), "old");
    s_steps.clear();
    QVERIFY(writeInItsWay(path(), QByteArray(size, 'x')));
    if (s_steps.isEmpty())
        QSKIP("no view of what the system is asked for");
    const QString onDisk = QStringLiteral("%1 bytes on disk").arg(size);
    // A file with two names is overwritten in place.
    const QString then = way.endsWith(QLatin1String("names")) ? onDisk : QStringLiteral("in place");
    QCOMPARE(s_steps, QStringList({onDisk, then}));
}

void TestFileWriter::ignoresOldTemporaryFiles()
{
    Tests::writeFile(path(), "old");
    Tests::writeFile(path("exe.xml.AbCdEf"), "half");
    QVERIFY(write(path(), "new"));
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
    QCOMPARE(Tests::readFile(path("exe.xml.AbCdEf")), QByteArray("half"));
}

void TestFileWriter::removesTheUnfinishedFileOfAKilledProcess_data()
{
    QTest::addColumn<bool>("written");
    QTest::newRow("with the next change") << true;
    QTest::newRow("without a change") << false;
}

void TestFileWriter::removesTheUnfinishedFileOfAKilledProcess()
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

void TestFileWriter::removesNoOtherFile()
{
    for (const char *name : {"exe.xml", "exe.xml.AbCdEf", "other.xml_quillmont_unfinished"})
        Tests::writeFile(path(name), "foreign");
    QVERIFY(QDir().mkpath(path("exe.xml_quillmont_unfinished")));
    const auto before = Tests::treeOf(m_sandbox.path(QStringLiteral("config")));
    QVERIFY(!FileWriter::hasUnfinished(path()));
    FileWriter::clearUnfinished(path());
    QCOMPARE(Tests::treeOf(m_sandbox.path(QStringLiteral("config"))), before);
}

void TestFileWriter::writesFilesWithNamesOfAnyLength_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isBlocked");
    for (const int size : {7, 227, 228, 234, 235, 248, 249, 254, 255}) {
        for (const bool isBlocked : {false, true}) {
            const QString name = QString(size % 2, u'x') + QString(size / 2, QChar(0xfc));
            QTest::addRow("%d bytes%s", size, isBlocked ? ", the unfinished name is taken" : "")
                << name << isBlocked;
        }
    }
}

// A folder with that name blocks it.
void TestFileWriter::writesFilesWithNamesOfAnyLength()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isBlocked);
    const QString file = m_sandbox.path(QStringLiteral("config/")) + name;
    const QByteArray unfinished = Replacement::unfinishedName(QFile::encodeName(file));
    const QString left = QFile::decodeName(unfinished);
    QCOMPARE(QFile::encodeName(left), unfinished);
    Tests::writeFile(left, "half");
    FileWriter::clearUnfinished(file);
    QCOMPARE(files(), QStringList());

    QVERIFY(!isBlocked || QDir().mkdir(left));
    for (const char *content : {"old", "new"}) {
        QVERIFY2(write(file, content), qUtf8Printable(m_problem));
        QCOMPARE(Tests::readFile(file), QByteArray(content));
        QCOMPARE(files().size(), isBlocked ? 2 : 1);
    }
}

void TestFileWriter::usesADistinctTemporaryNamePerLongName()
{
    const QByteArray name = '/' + QByteArray(254, 'x');
    const QByteArray first = Replacement::unfinishedName(name + 'a');
    QVERIFY(first != Replacement::unfinishedName(name + 'b'));
    QCOMPARE(first, Replacement::unfinishedName(name + 'a'));
    QVERIFY(first.startsWith("/xxxx") && first.endsWith("_quillmont_unfinished"));
#ifdef Q_OS_LINUX
    s_maxNameSize = 143;
    const QByteArray shorter = Replacement::unfinishedName(name);
    s_maxNameSize = 255;
    QCOMPARE(shorter.size(), 143 + 1 - 7);
#endif
}

void TestFileWriter::keepsHardLinksOfARewrittenFile_data()
{
    replacesTheContent_data();
}

void TestFileWriter::keepsHardLinksOfARewrittenFile()
{
    QFETCH(const QByteArray, bytes);
    Tests::writeFile(path(), "old content");
    QCOMPARE(::link(QFile::encodeName(path()).constData(),
                    QFile::encodeName(path("other.xml")).constData()),
             0);
    QVERIFY(rewrite(path(), bytes));
    QCOMPARE(Tests::readFile(path()), bytes);
    QCOMPARE(Tests::readFile(path("other.xml")), bytes);
    QCOMPARE(files().size(), 2);
}

// The user may write there, but may not change a file's owner.
void TestFileWriter::keepsTheOwnerOfARewrittenFile()
{
    if (getuid() != 0)
        QSKIP("only the superuser gives a file away");
    Tests::writeFile(path(), "old content");
    setMode(path(), 0666);
    setMode(m_sandbox.path(QStringLiteral("config")), 0777);
    setMode(m_sandbox.root(), 0711);
    QVERIFY(QDir().mkpath(m_sandbox.path(QStringLiteral("own"))));
    const auto before = statusOf(path());
    bool isWritten = false;
    {
        const Tests::Unprivileged user(m_sandbox.path(QStringLiteral("own")));
        isWritten = rewrite(path(), "new");
    }
    QVERIFY2(isWritten, qPrintable(m_problem));
    QCOMPARE(Tests::readFile(path()), QByteArray("new"));
    QCOMPARE(statusOf(path()).st_uid, before.st_uid);
    QCOMPARE(statusOf(path()).st_gid, before.st_gid);
    QCOMPARE(modeOf(path()), 0666U);
    QCOMPARE(files(), QStringList{QStringLiteral("exe.xml")});
}

void TestFileWriter::rewritesWithoutAFileBesideIt()
{
    Tests::writeFile(path(), "old");
    setMode(m_sandbox.path(QStringLiteral("config")), 0555);
    bool isWritten = false;
    {
        const Tests::Unprivileged user(m_sandbox.root());
        isWritten = rewrite(path(), "the new one");
    }
    setMode(m_sandbox.path(QStringLiteral("config")), 0755);
    QVERIFY2(isWritten, qPrintable(m_problem));
    QCOMPARE(Tests::readFile(path()), QByteArray("the new one"));
}

void TestFileWriter::restoresTheOldBytesIfItCannotFinish_data()
{
    replacesTheContent_data();
}

// The file has a second name, so that it is overwritten in place.
void TestFileWriter::restoresTheOldBytesIfItCannotFinish()
{
    QFETCH(const QByteArray, bytes);
    Tests::writeFile(path(), "old content");
    QCOMPARE(::link(QFile::encodeName(path()).constData(),
                    QFile::encodeName(path("other.xml")).constData()),
             0);
    StubbornFile file(path());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(!FileWriter::rewrite(&file, bytes, &m_problem));
    QCOMPARE(Tests::readFile(path()), QByteArray("old content"));
}

// Each of these sizes with each way of writing a file.
void TestFileWriter::addWays(const QVector<QPair<const char *, int>> &sizes)
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("way");
    for (const auto &[what, size] : sizes) {
        for (const char *way : {"written", "rewritten", "rewritten under two names"})
            QTest::addRow("%s, %s", what, way) << size << QString::fromLatin1(way);
    }
}

bool TestFileWriter::writeInItsWay(const QString &path, const QByteArray &bytes)
{
    QFETCH(const QString, way);
    if (way == QLatin1String("written"))
        return write(path, bytes);
    const QByteArray second = QFile::encodeName(path + QLatin1String(".link"));
    if (way != QLatin1String("rewritten"))
        ::link(QFile::encodeName(path).constData(), second.constData());
    const bool isWritten = rewrite(path, bytes);
    unlink(second.constData());
    return isWritten;
}

void TestFileWriter::keepsTheOldBytesOverTheSizeLimit_data()
{
    addWays({{"what a buffer holds", 10 * 1024}, {"more", 100 * 1024}});
}

void TestFileWriter::keepsTheOldBytesOverTheSizeLimit()
{
    QFETCH(const int, size);
    Tests::writeFile(path(), "old");
    struct rlimit before = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const struct rlimit limit = {5000, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const bool isWritten = writeInItsWay(path(), QByteArray(size, 'x'));
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);

    QVERIFY(!isWritten);
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(Tests::readFile(path()), QByteArray("old"));
    QCOMPARE(files(), QStringList{QStringLiteral("exe.xml")});
    struct sigaction action = {};
    QCOMPARE(sigaction(SIGXFSZ, nullptr, &action), 0);
    QVERIFY(action.sa_handler == SIG_DFL);
}

void TestFileWriter::keepsTheOldBytesOnAFullDisk_data()
{
    addWays({{"no block left", 10 * 1024}, {"some blocks left", 200 * 1024}});
}

void TestFileWriter::keepsTheOldBytesOnAFullDisk()
{
    QFETCH(const int, size);
#ifdef Q_OS_LINUX
    const QByteArray disk = QFile::encodeName(path("disk"));
    QVERIFY(QDir().mkpath(path("disk")));
    if (mount("none", disk.constData(), "tmpfs", 0, "size=100k") != 0)
        QSKIP("needs the right to mount a small disk");
    const auto unmount = qScopeGuard([&disk] { umount2(disk.constData(), MNT_DETACH); });

    Tests::writeFile(path("disk/exe.xml"), "old");
    QFile filler(path("disk/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    constexpr int diskSize = 100 * 1024;
    while (size < diskSize && filler.write(QByteArray(4096, 'x')) > 0)
        continue;
    const QStringList before = files();

    QVERIFY(!writeInItsWay(path("disk/exe.xml"), QByteArray(size, 'x')));
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(Tests::readFile(path("disk/exe.xml")), QByteArray("old"));
    QCOMPARE(files(), before);
#else
    Q_UNUSED(size)
    QSKIP("needs a small disk");
#endif
}

void TestFileWriter::refusesAReadOnlyFolder()
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

void TestFileWriter::refusesAReadOnlyFile()
{
    Tests::writeFile(path(), "old");
    setMode(path(), 0444);
    const Tests::Unprivileged user(m_sandbox.root());
    QVERIFY(!write(path(), "new"));
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(Tests::readFile(path()), QByteArray("old"));
}

void TestFileWriter::refusesWhatIsNotARegularFile_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("folder") << path("folder");
    QTest::newRow("pipe") << path("pipe");
    QTest::newRow("device") << path("device");
    QTest::newRow("empty path") << QString();
    QTest::newRow("a name with a NUL") << path("exe.xml") + QChar(QChar::Null);
    QTest::newRow("missing folder") << path("missing/exe.xml");
}

void TestFileWriter::refusesWhatIsNotARegularFile()
{
    QFETCH(const QString, target);
    QVERIFY(QDir().mkpath(path("folder")));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    // Root could replace the system's own device, so root creates another one.
    const QByteArray device = QFile::encodeName(path("device"));
    if (mknod(device.constData(), S_IFCHR | 0600, statusOf(QStringLiteral("/dev/null")).st_rdev)
        != 0)
        QVERIFY(QFile::link(QStringLiteral("/dev/null"), path("device")));
    const QStringList before = files();
    QVERIFY(!write(target, "new"));
    QVERIFY(!m_problem.isEmpty());
    QCOMPARE(files(), before);
    QVERIFY(!QFileInfo(path("device")).isFile());
}

QTEST_APPLESS_MAIN(TestFileWriter)
#include "tst_FileWriter.moc"
