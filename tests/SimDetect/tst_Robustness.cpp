#include "tests/SimDetect/DescribedComputer.h"
#include "tests/support/Attributes.h"
#include "tests/support/Files.h"
#include "tests/support/Unprivileged.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTest>

#include <cstring>
#include <functional>

#ifdef Q_OS_LINUX
#include <sys/inotify.h>
#endif
#include <sys/stat.h>
#include <unistd.h>

/// Creates something at a path.
using Maker = std::function<void(const QString &path)>;
Q_DECLARE_METATYPE(Maker)

/// Files with the sizes to extend them to.
using Sizes = QVector<QPair<QString, int>>;
Q_DECLARE_METATYPE(Sizes)

using namespace Quillmont::SimDetect;
using namespace Tests;

/// Whatever is on the disk, detection finishes soon and never reports a wrong folder.
class TestRobustness : public QObject
{
    Q_OBJECT

private slots:
    void findsNothingInRandomBytes_data();
    void findsNothingInRandomBytes();
    void survivesDamagedFiles();
    void finishesSoonWhateverTheFilesAre_data();
    void finishesSoonWhateverTheFilesAre();
    void finishesSoonWithAllOfTheseTogether();
    void limitsTheNumberOfFolders();
    void followsPathsUpToAMaximumDepth_data();
    void followsPathsUpToAMaximumDepth();
    void limitsTheBytesRead();
    void readsFilesUpToAMaximumSize_data();
    void readsFilesUpToAMaximumSize();
    void readsEntriesAfterJunk();
    void opensNoFileTwice();
    void reportsAFolderWithoutPermission_data();
    void reportsAFolderWithoutPermission();
};

namespace {

// A computer with every kind of source, each with a simulator.
const auto Everything = QStringLiteral(R"(
    xplane $R/sims/X-Plane 12
    file $R/sims/X-Plane 12/Log.txt = Log.txt for X-Plane 12.0.9\n
    file $L/x-plane_install_10.txt = $R/gone/\n
    file $L/x-plane_install_11.txt = $R/sims/X-Plane 12/\n
    file $L/x-plane_install_12.txt = $R/sims/X-Plane 12/\n
    libraries $S = $S, $R/drive
    file $S/steamapps/libraryfolders.vdf = "libraryfolders" { "1" "$R/drive" }
    game $R/drive 269950 X-Plane 11
    xplane $R/drive/steamapps/common/X-Plane 11
    file $R/drive/steamapps/common/X-Plane 11/X-Plane.app/Contents/Info.plist = <plist><dict><key>CFBundleShortVersionString</key><string>11.55</string></dict></plist>
    game $S 292180 X-Plane 10
    game $S 2014780 X-Plane 12
    game $S 314160 FSX
    file $S/steamapps/common/FSX/fsx.exe =
    dir $S/steamapps/common/FSX/SimObjects
    game $S 1995890 Aerofly
    dir $S/steamapps/common/Aerofly/scenery
    dir $S/steamapps/common/Aerofly/aircraft
    file $S/steamapps/compatdata/1995890/pfx/drive_c/users/steamuser/Documents/Aerofly FS 4/main.mcf =
    dir $S/steamapps/compatdata/314160/pfx/drive_c
    dir $S/steamapps/compatdata/2014780/pfx/drive_c
    game $R/drive 2014780 X-Plane 12
    dir $S/steamapps/compatdata/1250410/pfx/drive_c/P/Community
    file $S/steamapps/compatdata/1250410/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator/UserCfg.opt = InstalledPackagesPath "C:\\P"\n
    dir $S/steamapps/compatdata/2537590/pfx/drive_c/P/Community
    file $S/steamapps/compatdata/2537590/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator 2024/UserCfg.opt = InstalledPackagesPath "C:\\P"\n
    variable FG_HOME = $H/.fgfs
    file $H/.fgfs/FlightGear/FlightGear.ini = [General]\nfg-root-2020-3=$R/data\ndownload-dir=$R\n
    file $R/data/version = 2020.3.19\n
    file $R/data/defaults.xml =)");

const auto EverythingFound
    = QStringLiteral("AFS4: $S/steamapps/compatdata/1995890/pfx/drive_c/users/steamuser/Documents/"
                     "Aerofly FS 4\n"
                     "FGFS: $R/data\n"
                     "FSXSE: $S/steamapps/common/FSX\n"
                     "MSFS2020: $S/steamapps/compatdata/1250410/pfx/drive_c/P\n"
                     "MSFS2024: $S/steamapps/compatdata/2537590/pfx/drive_c/P\n"
                     "XP11: $R/drive/steamapps/common/X-Plane 11\n"
                     "XP12: $R/sims/X-Plane 12");

QStringList filesWithContent(const DescribedComputer &computer)
{
    QStringList paths;
    const auto tree = treeOf(computer.environment.root);
    for (auto it = tree.cbegin(); it != tree.cend(); ++it)
        if (!it->isEmpty())
            paths.append(computer.environment.root + u'/' + it.key());
    return paths;
}

QByteArray randomBytes(QRandomGenerator &random, int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (auto &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

// A few bytes changed, a piece removed or doubled, or the end cut off.
QByteArray damaged(const QByteArray &content, QRandomGenerator &random)
{
    QByteArray result = content;
    const int at = random.bounded(content.size());
    const int size = random.bounded(40);
    switch (random.bounded(4)) {
    case 0:
        return result.replace(at, size, randomBytes(random, size));
    case 1:
        return result.remove(at, size);
    case 2:
        return result.insert(at, content.mid(at, size));
    default:
        return result.left(at);
    }
}

} // namespace

void TestRobustness::findsNothingInRandomBytes_data()
{
    QTest::addColumn<int>("system");
    QTest::newRow("Linux") << int(Environment::Linux);
    QTest::newRow("macOS") << int(Environment::MacOS);
}

void TestRobustness::findsNothingInRandomBytes()
{
    QFETCH(int, system);
    DescribedComputer computer(static_cast<Environment::System>(system));
    computer.make(Everything);
    QString found = EverythingFound;
    if (system == Environment::MacOS)
        found = found.section(u'\n', 1); // all but Aerofly
    QCOMPARE(computer.detect(), computer.expanded(found));
    const auto paths = filesWithContent(computer);
    QRandomGenerator random(20260101);
    for (int round = 0; round < 50; ++round) {
        for (const auto &path : paths)
            writeFile(path, randomBytes(random, random.bounded(3000)));
        QCOMPARE(computer.detect(), QString());
    }
}

void TestRobustness::survivesDamagedFiles()
{
    DescribedComputer computer(Environment::Linux);
    computer.make(Everything);
    const QStringList found = computer.detect().split(u'\n');
    const auto paths = filesWithContent(computer);
    QRandomGenerator random(20260102);
    for (int round = 0; round < 150; ++round) {
        QMap<QString, QByteArray> before;
        for (int i = 0; i < 3; ++i) {
            const QString &path = paths.at(random.bounded(paths.size()));
            before.insert(path, before.value(path, readFile(path)));
            writeFile(path, damaged(before.value(path), random));
        }
        computer.detect();
        QVERIFY(computer.duration() < 2000);
        for (auto it = before.cbegin(); it != before.cend(); ++it)
            writeFile(it.key(), it.value());
    }
    QCOMPARE(computer.detect().split(u'\n'), found);
}

void TestRobustness::finishesSoonWhateverTheFilesAre_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("pipes") << Maker(
        [](const QString &path) { mkfifo(QFile::encodeName(path).constData(), 0600); });
    QTest::newRow("folders") << Maker([](const QString &path) { QDir().mkpath(path); });
    QTest::newRow("links to themselves")
        << Maker([](const QString &path) { QFile::link(path, path); });
    QTest::newRow("files of 64 MiB") << Maker([](const QString &path) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(64LL * 1024 * 1024));
    });
    const auto row = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << Maker([content](const QString &path) { writeFile(path, content); });
    };
    const int most = 1024 * 1024;
    row("100,000 nested braces", QByteArray(100000, '{'));
    row("100,000 nested blocks", QByteArray("libraryfolders{").repeated(100000));
    row("a block that is cut off", "AppState { installdir X");
    row("1 MiB of one character", QByteArray(most, 'x'));
    row("1 MiB of spaces", QByteArray(most, ' '));
    row("1 MiB of line ends", QByteArray(most, '\n'));
    row("1 MiB of short lines", QByteArray("/\n").repeated(most / 2));
    row("1 MiB of keys", "AppState { " + QByteArray("a b ").repeated(most / 4 - 10) + "}");
    row("1 MiB of libraries",
        "libraryfolders { " + QByteArray("1 / ").repeated(most / 4 - 10) + "}");
    row("1 MiB of elements", "<plist><dict>" + QByteArray("<dict>").repeated(most / 6 - 10));
}

void TestRobustness::finishesSoonWhateverTheFilesAre()
{
    QFETCH(Maker, make);
    DescribedComputer computer(Environment::Linux);
    computer.make(Everything);
    const auto paths = filesWithContent(computer);
    for (const auto &path : paths) {
        QFile::remove(path);
        make(path);
    }
    QCOMPARE(computer.detect(), QString());
    QVERIFY2(computer.duration() < 2000, qPrintable(QString::number(computer.duration())));
}

void TestRobustness::finishesSoonWithAllOfTheseTogether()
{
    DescribedComputer computer(Environment::Linux);
    computer.make(QStringLiteral(R"(
        fifo $L/x-plane_install_10.txt
        dir $L/x-plane_install_11.txt
        xplane $R/good
        fifo $R/good/Log.txt
        link $R/loop -> $R/loop
        link $S/loop -> $S
        file $L/x-plane_install_12.txt = $R/loop/X-Plane\n$R/closed/X-Plane\n\xFF\xFE\0\n$R/good\n
        fifo $S/steamapps/libraryfolders.vdf
        file $S/steamapps/appmanifest_269950.acf = AppState { installdir ../../.. }
        file $S/steamapps/appmanifest_292180.acf = AppState { installdir X
        file $S/steamapps/appmanifest_1995890.acf = \0\xFF\x01"{
        link $S/steamapps/compatdata/1250410/pfx -> $S/steamapps/compatdata
        fifo $S/steamapps/compatdata/2537590/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator 2024/UserCfg.opt
        file $H/.fgfs/fgdata_2024_1/defaults.xml =
        fifo $H/.fgfs/fgdata_2024_1/version
        link $H/.steam/steam -> $H/.steam/root
        link $H/.steam/root -> $H/.steam/steam
        dir $R/closed/X-Plane)"));
    writeFile(computer.expanded(QStringLiteral("$S/config/libraryfolders.vdf")),
              QByteArray("x{").repeated(100000));
    writeFile(computer.expanded(QStringLiteral("$S/steamapps/appmanifest_314160.acf")),
              QByteArray(64 * 1024 * 1024, ' '));
    const QString closed = computer.expanded(QStringLiteral("$R/closed"));
    QFile::setPermissions(closed, {});
    QCOMPARE(computer.detect(), computer.expanded(QStringLiteral("XP12: $R/good")));
    QVERIFY2(computer.duration() < 2000, qPrintable(QString::number(computer.duration())));
    QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestRobustness::limitsTheNumberOfFolders()
{
    DescribedComputer computer(Environment::Linux);
    QByteArray lines;
    for (int i = 0; i < 100000; ++i)
        lines += computer.environment.root.toUtf8() + "/gone " + QByteArray::number(i) + '\n';
    for (const int version : {10, 11, 12}) {
        writeFile(computer.expanded(QStringLiteral("$L/x-plane_install_%1.txt").arg(version)),
                  lines);
    }
    QCOMPARE(computer.detect(), QString());
    QVERIFY2(computer.duration() < 2000, qPrintable(QString::number(computer.duration())));
}

void TestRobustness::followsPathsUpToAMaximumDepth_data()
{
    QTest::addColumn<QString>("step"); // repeated before the path
    QTest::addColumn<int>("size"); // of the whole path, in characters or in names
    QTest::addColumn<bool>("isFollowed");
    QTest::newRow("maximum length") << QStringLiteral("/") << 4096 << true;
    QTest::newRow("one character longer") << QStringLiteral("/") << 4097 << false;
    QTest::newRow("maximum depth") << QStringLiteral("/.") << 128 << true;
    QTest::newRow("one level deeper") << QStringLiteral("/.") << 129 << false;
}

void TestRobustness::followsPathsUpToAMaximumDepth()
{
    QFETCH(const QString, step);
    QFETCH(const int, size);
    QFETCH(const bool, isFollowed);
    DescribedComputer computer(Environment::Linux);
    const QString path = computer.expanded(QStringLiteral("$R/sim"));
    const int itsSize = step.size() == 1 ? path.size() : path.count(u'/');
    computer.make(QStringLiteral("xplane %1\nfile $L/x-plane_install_12.txt = %2%1")
                      .arg(path, step.repeated(size - itsSize)));
    QCOMPARE(computer.detect(), isFollowed ? QStringLiteral("XP12: ") + path : QString());
}

// Each file has an acceptable size, and is valid up to the last brace.
void TestRobustness::limitsTheBytesRead()
{
    DescribedComputer computer(Environment::Linux);
    computer.make(QStringLiteral("xplane $R/sims/X-Plane 12\n"
                                 "file $L/x-plane_install_12.txt = $R/sims/X-Plane 12\\n\n"
                                 "file $R/manifest ="));
    const QString manifest = computer.environment.root + QLatin1String("/manifest");
    writeFile(manifest, "AppState { " + QByteArray("a b ").repeated(2 * 1024 * 1024 - 10) + "}");
    QByteArray list = "libraryfolders {";
    for (int i = 0; i < 150; ++i) {
        const QString library = QStringLiteral("%1/drive%2").arg(computer.environment.root).arg(i);
        list += " \"" + QByteArray::number(i) + "\" \"" + library.toUtf8() + '"';
        QDir().mkpath(library + QLatin1String("/steamapps"));
        for (const char *id : {"269950", "292180", "314160", "1995890"}) {
            QFile::link(
                manifest,
                QStringLiteral("%1/steamapps/appmanifest_%2.acf").arg(library, QLatin1String(id)));
        }
    }
    writeFile(computer.expanded(QStringLiteral("$S/config/libraryfolders.vdf")), list + " }");
    QCOMPARE(computer.detect(), computer.expanded(QStringLiteral("XP12: $R/sims/X-Plane 12")));
    // A release build takes a second; gigabytes would take minutes.
    QVERIFY2(computer.duration() < 15000, qPrintable(QString::number(computer.duration())));
}

void TestRobustness::readsFilesUpToAMaximumSize_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<Sizes>("sizes");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("foundBehindIt");
    constexpr int small = 1024 * 1024;
    constexpr int big = 8 * small;
    const auto path = [](const char *name) {
        return QString::fromLatin1(name);
    };
    QTest::newRow("X-Plane's list")
        << "xplane $R/sim\nfile $L/x-plane_install_12.txt = $R/sim\\n"
        << Sizes{{path("$L/x-plane_install_12.txt"), small}} << "XP12: $R/sim"
        << "";
    QTest::newRow("X-Plane's version")
        << "xplane $R/sim\nfile $L/x-plane_install_12.txt = $R/sim\\n\n"
           "file $R/sim/X-Plane.app/Contents/Info.plist = "
           "<plist><dict><key>CFBundleShortVersionString</key><string>11.55</string>"
           "</dict></plist>"
        << Sizes{{path("$R/sim/X-Plane.app/Contents/Info.plist"), small}} << "XP11: $R/sim"
        << "XP12: $R/sim";
    QTest::newRow("MSFS' options")
        << "dir $S/steamapps/compatdata/1250410/pfx/drive_c/P/Community\n"
           "link $S/steamapps/compatdata/1250410/pfx/drive_c/users/steamuser/AppData/Roaming/"
           "Microsoft Flight Simulator -> $R\n"
           R"(file $R/UserCfg.opt = InstalledPackagesPath "C:\\P"\n)"
        << Sizes{{path("$R/UserCfg.opt"), small}}
        << "MSFS2020: $S/steamapps/compatdata/1250410/pfx/drive_c/P"
        << "";
    const auto game = path("game $R/drive 292180 X\nlibraries $S = $R/drive\n"
                           "xplane $R/drive/steamapps/common/X");
    const auto libraries = path("$S/config/libraryfolders.vdf");
    const auto manifest = path("$R/drive/steamapps/appmanifest_292180.acf");
    const auto found = path("XP10: $R/drive/steamapps/common/X");
    QTest::newRow("Steam's libraries") << game << Sizes{{libraries, big}} << found << "";
    QTest::newRow("Steam's game") << game << Sizes{{manifest, big}} << found << "";
    // Half of what the large files leave.
    const auto otherLibraries = path("$S/steamapps/libraryfolders.vdf");
    QTest::newRow("all files together")
        << game + path("\nfile $S/steamapps/libraryfolders.vdf =")
        << Sizes{{libraries, big}, {otherLibraries, big}, {manifest, 4 * small}} << found << "";
}

void TestRobustness::readsFilesUpToAMaximumSize()
{
    QFETCH(const QString, description);
    QFETCH(const Sizes, sizes);
    QFETCH(const QString, found);
    QFETCH(const QString, foundBehindIt);
    DescribedComputer computer(Environment::Linux);
    const QString last = sizes.constLast().first;
    computer.make(QStringLiteral("file %1 =\n").arg(last) + description);
    for (const auto &size : sizes) {
        const QString path = computer.expanded(size.first);
        writeFile(path, readFile(path).leftJustified(size.second, '\n'));
    }
    QCOMPARE(computer.detect(), computer.expanded(found));
    writeFile(computer.expanded(last), readFile(computer.expanded(last)) + '\n');
    QCOMPARE(computer.detect(), computer.expanded(foundBehindIt));
}

void TestRobustness::readsEntriesAfterJunk()
{
    DescribedComputer computer(Environment::Linux);
    computer.make(QStringLiteral(R"(
        game $R/drive 292180 X
        xplane $R/drive/steamapps/common/X
        libraries $H/.steam/root = $R/drive
        file $S/config/libraryfolders.vdf =
        file $S/steamapps/libraryfolders.vdf =
        file $H/.steam/steam/config/libraryfolders.vdf =)"));
    for (const char *junk : {"$S/config/libraryfolders.vdf",
                             "$S/steamapps/libraryfolders.vdf",
                             "$H/.steam/steam/config/libraryfolders.vdf"})
        writeFile(computer.expanded(QLatin1String(junk)), QByteArray(8 * 1024 * 1024, '\n'));
    QCOMPARE(computer.detect(),
             computer.expanded(QStringLiteral("XP10: $R/drive/steamapps/common/X")));
}

void TestRobustness::opensNoFileTwice()
{
#ifdef Q_OS_LINUX
    DescribedComputer computer(Environment::Linux);
    computer.make(Everything + QStringLiteral("\nprefix 314160 =\nprefix 2014780 ="));
    const auto paths = filesWithContent(computer);
    const int watcher = inotify_init1(IN_NONBLOCK);
    for (const auto &path : paths)
        QVERIFY(inotify_add_watch(watcher, QFile::encodeName(path).constData(), IN_OPEN) > 0);
    computer.detect();
    QFile events;
    QVERIFY(
        events.open(watcher, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle));
    // The system merges consecutive equal events, but here other files come between.
    QHash<int, int> opened;
    const QByteArray seen = events.read(65536);
    for (int at = 0; at + int(sizeof(inotify_event)) <= seen.size();) {
        inotify_event event{};
        std::memcpy(&event, seen.constData() + at, sizeof(event));
        at += int(sizeof(event) + event.len);
        ++opened[event.wd];
    }
    QVERIFY(opened.size() > 10);
    for (auto it = opened.cbegin(); it != opened.cend(); ++it)
        QVERIFY2(*it == 1, qPrintable(paths.at(it.key() - 1)));
#else
    QSKIP("Only Linux tells who opens a file.");
#endif
}

void TestRobustness::reportsAFolderWithoutPermission_data()
{
    QTest::addColumn<unsigned>("mode");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no permissions") << 0U << "no permission to look inside";
    QTest::newRow("permission to list only") << 0400U << "no permission to look inside";
    QTest::newRow("permission to open only") << 0100U << "no permission to look inside";
    QTest::newRow("permission to list and open") << 0500U << "no X-Plane executable";
}

// FlightGear's data can be recognised without listing its folder.
void TestRobustness::reportsAFolderWithoutPermission()
{
    QFETCH(const unsigned, mode);
    QFETCH(const QString, reason);
    DescribedComputer computer(Environment::Linux);
    computer.make(QStringLiteral(R"(
        dir $R/closed/Resources/plugins
        file $R/closed/version = 2020.3
        file $R/closed/defaults.xml =
        variable FG_ROOT = $R/closed
        xplane $R/good
        file $L/x-plane_install_12.txt = $R/closed\n$R/good\n)"));
    const Unprivileged user(computer.environment.root);
    setMode(computer.expanded(QStringLiteral("$R/closed")), mode);
    const QString found = computer.detect();
    setMode(computer.expanded(QStringLiteral("$R/closed")), 0700);
    QCOMPARE(found,
             computer.expanded((mode & 0100) != 0 ? QStringLiteral("FGFS: $R/closed\nXP12: $R/good")
                                                  : QStringLiteral("XP12: $R/good")));
    QCOMPARE(computer.log().constFirst(),
             computer.expanded(QStringLiteral("XP12 not taken: $R/closed: ") + reason));
}

QTEST_GUILESS_MAIN(TestRobustness)
#include "tst_Robustness.moc"
