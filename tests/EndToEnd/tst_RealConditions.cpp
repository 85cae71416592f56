#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Mounts.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Display.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"
#include "tests/support/Unprivileged.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QtTest>

#include <algorithm>
#include <functional>

#include <sys/resource.h>
#include <unistd.h>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#endif

/// Runs in the child process before it executes the program.
using Preparation = std::function<void()>;
Q_DECLARE_METATYPE(Preparation)

using namespace Tests;

// Full and read-only disks, immutable files, users without permission, a log without a reader, and
// a computer without a screen: real ones, not simulated.
class TestRealConditions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void reportsAFolderOfAnotherUser();
    void keepsAConfigurationOfAnotherUser();
    void worksWithoutADataFolder_data();
    void worksWithoutADataFolder();
    void opensItsWindowWithoutADataFolder();
    void reportsFilesThatDoNotFitASmallDisk();
    void keepsAConfigurationOnAFullDisk();
    void reportsARecordOnAFullDisk();
    void reportsFilesOverTheSizeLimit();
    void keepsAConfigurationOverTheSizeLimit();
    void reportsAReadOnlyDisk();
    void worksWithAReadOnlyDataFolder();
    void keepsAnImmutableConfiguration();
    void reportsAnImmutablePluginFile();
    void keepsAConfigurationThatIsAMountPoint();
    void reportsAPluginFileThatIsAMountPoint();
    void worksWithoutStandardDescriptors_data();
    void worksWithoutStandardDescriptors();
    void showsItsWindowWithoutStandardError();
    void endsWithoutAScreen_data();
    void endsWithoutAScreen();

private:
    void installInto(int type, const QByteArray &payload);

    QString place() const { return m_computer->folder(m_det) + m_module; }

    QString cannotCopy() const;
    QString cannotRecord(const QString &dataRoot) const;
    QString cannotInstall(const QString &lines) const;
    QString configuration() const;
    void forbid(const QString &folder);
    void becomeAUser();
    void limitFiles(rlim_t size);
    bool makeImmutable(const QString &path);

    const QString m_det = QStringLiteral("Det");
    const QString m_module = QStringLiteral("/Gauges/QuillmontOrbwell_64.dll");
    QStringList m_immutable;
    QScopedPointer<Computer> m_computer;
    QScopedPointer<Mounts> m_mounts;
    QScopedPointer<Unprivileged> m_user;
};

static const char *const noMount = "needs the right to mount something";

static bool setImmutable(const QString &path, bool on)
{
#ifdef Q_OS_LINUX
    const int handle = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    unsigned long flags = 0;
    bool done = ioctl(handle, FS_IOC_GETFLAGS, &flags) == 0;
    flags = on ? flags | FS_IMMUTABLE_FL : flags & ~static_cast<unsigned long>(FS_IMMUTABLE_FL);
    done = done && ioctl(handle, FS_IOC_SETFLAGS, &flags) == 0;
    close(handle);
    return done;
#else
    Q_UNUSED(path)
    Q_UNUSED(on)
    return false;
#endif
}

void TestRealConditions::init()
{
    m_computer.reset(new Computer);
    m_mounts.reset(new Mounts);
}

void TestRealConditions::cleanup()
{
    m_user.reset();
    for (const QString &path : qAsConst(m_immutable))
        setImmutable(path, false);
    m_immutable.clear();
    m_mounts.reset();
    m_computer.reset();
}

// One simulator, found in its folder, with this plugin file.
void TestRealConditions::installInto(int type, const QByteArray &payload)
{
    QJsonObject entry = m_computer->entry(m_det, 0);
    entry.insert(QStringLiteral("type"), type);
    m_computer->setCatalogue({entry});
    writeFile(m_computer->program().folder()
                  + QLatin1String("/plugins/FSX/QuillmontOrbwell_64.dll"),
              payload);
    m_computer->addSimulator(m_det);
}

QString TestRealConditions::cannotCopy() const
{
    return QStringLiteral("Unable to copy '%1' to '%2'. Please check if you have permission to "
                          "folder '%3/'.\r\n")
        .arg(m_computer->program().folder() + QLatin1String("/plugins/FSX/QuillmontOrbwell_64.dll"),
             place(),
             m_computer->folder(m_det));
}

// The messages about reading and writing appear together, without a line end.
QString TestRealConditions::cannotRecord(const QString &dataRoot) const
{
    return QStringLiteral("The file '%1' is empty. Quillmont Orbwell installer was not able to "
                          "change your configuration.Unable to write configuration to file '%1'. "
                          "Please check if you have permission to that file.")
        .arg(dataRoot + QLatin1String("//Quillmont/Orbwell/.mapping"));
}

QString TestRealConditions::cannotInstall(const QString &lines) const
{
    return QStringLiteral("Uninstall: Quillmont Orbwell was not able to uninstall your Orbwell "
                          "plugin from Det.\r\n\r\nPlease see the list below for details:\r\n\r\n")
        + lines;
}

QString TestRealConditions::configuration() const
{
    return m_computer->absolute(m_computer->configuration(m_det));
}

void TestRealConditions::forbid(const QString &folder)
{
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
}

// Root may write anywhere, so the program runs as another user then.
void TestRealConditions::becomeAUser()
{
    m_user.reset(new Unprivileged(m_computer->absolute(QString()).chopped(1)));
    const uid_t user = geteuid();
    m_computer->program().prepare([user] {
        if (setreuid(user, user) != 0)
            _exit(99);
    });
}

void TestRealConditions::limitFiles(rlim_t size)
{
    m_computer->program().prepare([size] {
        const struct rlimit limit = {size, size};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            _exit(99);
    });
}

bool TestRealConditions::makeImmutable(const QString &path)
{
    m_immutable.append(path);
    return setImmutable(path, true);
}

void TestRealConditions::reportsAFolderOfAnotherUser()
{
    installInto(1, "module");
    becomeAUser();
    const QString gauges = m_computer->folder(m_det) + QLatin1String("/Gauges");
    forbid(gauges);
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList(cannotInstall(cannotCopy())));
    QCOMPARE(QDir(gauges).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("other.dll")));
    QCOMPARE(m_computer->records().size(), 1);
}

void TestRealConditions::keepsAConfigurationOfAnotherUser()
{
    installInto(0, "module");
    m_computer->write(m_computer->configuration(m_det), othersConfiguration());
    becomeAUser();
    QVERIFY(QFile::setPermissions(configuration(), QFile::ReadOwner));
    forbid(QFileInfo(configuration()).path());
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList());
    QCOMPARE(treeOf(QFileInfo(configuration()).path()),
             (QMap<QString, QByteArray>{{QStringLiteral("dll.xml"), othersConfiguration()}}));
    QCOMPARE(readFile(place()), QByteArray("module"));
    QCOMPARE(m_computer->records().size(), 1);
}

void TestRealConditions::worksWithoutADataFolder_data()
{
    QTest::addColumn<QString>("home");
    QTest::newRow("a read-only home") << QStringLiteral("closed");
    QTest::newRow("a home that does not exist") << QStringLiteral("closed/gone");
}

// The plugin is installed nevertheless.
void TestRealConditions::worksWithoutADataFolder()
{
    QFETCH(const QString, home);
    installInto(1, "module");
    const QString closed = m_computer->absolute(QStringLiteral("closed"));
    QVERIFY(QDir().mkpath(closed));
    becomeAUser();
    forbid(closed);
    m_computer->program().setVariable("HOME", m_computer->absolute(home));
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    const QString dataRoot = m_computer->absolute(home) + QLatin1String("/.local/share");
    QCOMPARE(m_computer->said(), QStringList(cannotInstall(cannotRecord(dataRoot))));
    QCOMPARE(readFile(place()), QByteArray("module"));
    QCOMPARE(treeOf(closed), (QMap<QString, QByteArray>()));
    QCOMPARE(treeOf(m_computer->absolute(QStringLiteral("home"))), (QMap<QString, QByteArray>()));
}

void TestRealConditions::opensItsWindowWithoutADataFolder()
{
    installInto(1, "module");
    becomeAUser();
    m_computer->program().setVariable("HOME", QStringLiteral("/nobody's/home"));
    QCOMPARE(m_computer->run({}), 0);
    QVERIFY(m_computer->showedTheWindow());
    QCOMPARE(m_computer->said(), QStringList());
    QVERIFY(!QFileInfo::exists(QStringLiteral("/nobody's")));
}

void TestRealConditions::reportsFilesThatDoNotFitASmallDisk()
{
    if (!m_mounts->addDisk(m_computer->folder(m_det), 100))
        QSKIP(noMount);
    installInto(1, QByteArray(200 * 1024, 'x'));
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList(cannotInstall(cannotCopy())));
    QCOMPARE(treeOf(m_computer->folder(m_det)).keys(),
             QStringList({QStringLiteral("Gauges/"), QStringLiteral("Gauges/other.dll")}));
}

void TestRealConditions::keepsAConfigurationOnAFullDisk()
{
    const QString folder = QFileInfo(configuration()).path();
    if (!m_mounts->addDisk(folder, 100))
        QSKIP(noMount);
    installInto(0, "module");
    const QByteArray content
        = othersConfiguration() + "<!--" + QByteArray(70 * 1024, 'x') + "-->\r\n";
    writeFile(configuration(), content);
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList());
    QCOMPARE(readFile(configuration()), content);
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("dll.xml")));
    QCOMPARE(readFile(place()), QByteArray("module"));
}

void TestRealConditions::reportsARecordOnAFullDisk()
{
    const QString folder
        = m_computer->absolute(m_computer->data(QStringLiteral("Quillmont/Orbwell")));
    if (!m_mounts->addDisk(folder, 20))
        QSKIP(noMount);
    installInto(1, "module");
    const QString others = QStringLiteral("Somebody else's");
    m_computer->setRecords({QJsonObject{{QStringLiteral("name"), others}}});
    QFile filler(folder + QLatin1String("/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) > 0)
        continue;
    const QByteArray before = readFile(folder + QLatin1String("/.mapping"));

    QCOMPARE(m_computer->run({QStringLiteral("--REPAIR")}), 2);
    QVERIFY(m_computer->said().constLast().endsWith(QLatin1String("Det: Not updated")));
    QVERIFY(m_computer->said().constFirst().contains(
        QLatin1String("Unable to write configuration to file '")));
    QCOMPARE(readFile(folder + QLatin1String("/.mapping")), before);
    QCOMPARE(readFile(place()), QByteArray("module"));
    QVERIFY(!m_computer->program().standardError().contains("orbwell: written"));
}

void TestRealConditions::reportsFilesOverTheSizeLimit()
{
    installInto(1, QByteArray(200 * 1024, 'x'));
    limitFiles(100000);
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList(cannotInstall(cannotCopy())));
    QCOMPARE(treeOf(m_computer->folder(m_det)).keys(),
             QStringList({QStringLiteral("Gauges/"), QStringLiteral("Gauges/other.dll")}));
    QCOMPARE(m_computer->records().size(), 1);
}

void TestRealConditions::keepsAConfigurationOverTheSizeLimit()
{
    installInto(0, "module");
    const QByteArray content
        = othersConfiguration() + "<!--" + QByteArray(200 * 1024, 'x') + "-->\r\n";
    m_computer->write(m_computer->configuration(m_det), content);
    limitFiles(100000);
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList());
    QCOMPARE(treeOf(QFileInfo(configuration()).path()),
             (QMap<QString, QByteArray>{{QStringLiteral("dll.xml"), content}}));
}

void TestRealConditions::reportsAReadOnlyDisk()
{
    installInto(1, "module");
    if (!m_mounts->protect(m_computer->folder(m_det)))
        QSKIP(noMount);
    const Disk before = treeOf(m_computer->folder(m_det));
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList(cannotInstall(cannotCopy())));
    QCOMPARE(treeOf(m_computer->folder(m_det)), before);
}

void TestRealConditions::worksWithAReadOnlyDataFolder()
{
    installInto(0, "module");
    m_computer->write(m_computer->configuration(m_det), othersConfiguration());
    const QString dataRoot = m_computer->absolute(m_computer->data({})).chopped(1);
    if (!m_mounts->protect(dataRoot))
        QSKIP(noMount);
    const Disk before = treeOf(dataRoot);
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList(cannotInstall(cannotRecord(dataRoot))));
    QCOMPARE(treeOf(dataRoot), before);
    QCOMPARE(readFile(place()), QByteArray("module"));
}

void TestRealConditions::keepsAnImmutableConfiguration()
{
    installInto(0, "module");
    m_computer->write(m_computer->configuration(m_det), othersConfiguration());
    if (!makeImmutable(configuration()))
        QSKIP("needs root and a file system with immutable files");
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList());
    QCOMPARE(readFile(configuration()), othersConfiguration());
    // Only the backup, and no temporary file.
    const QStringList files
        = QFileInfo(configuration()).dir().entryList(QDir::Files | QDir::Hidden);
    QCOMPARE(files.size(),
             1 + backupsOf(configuration(), QStringLiteral("installation")).size()
                 + backupsOf(configuration(), QStringLiteral("uninstallation")).size());
    QVERIFY(files.size() > 1);
}

void TestRealConditions::reportsAnImmutablePluginFile()
{
    QJsonObject entry = m_computer->entry(m_det, 1);
    m_computer->setCatalogue({entry});
    m_computer->addPlugin(m_det, 1);
    const QString about
        = m_computer->folder(m_det) + QLatin1String("/Resources/plugins/Orbwell/about.txt");
    if (!makeImmutable(about))
        QSKIP("needs root and a file system with immutable files");
    QCOMPARE(m_computer->run({QStringLiteral("--REPAIR")}), 2);
    QVERIFY(m_computer->said().constFirst().startsWith(
        cannotInstall(QStringLiteral("Unable to remove file '%1' from Det. Please remove the file "
                                     "manually.\r\n")
                          .arg(about))));
    QVERIFY(m_computer->said().constLast().endsWith(QLatin1String("Det: Not updated")));
    QCOMPARE(readFile(about), QByteArray("old"));
}

// Nothing can be renamed over it.
void TestRealConditions::keepsAConfigurationThatIsAMountPoint()
{
    installInto(0, "module");
    m_computer->write(m_computer->configuration(m_det), othersConfiguration());
    m_computer->write(QStringLiteral("elsewhere"), othersConfiguration());
    if (!m_mounts->show(m_computer->absolute(QStringLiteral("elsewhere")), configuration()))
        QSKIP(noMount);
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList());
    QCOMPARE(readFile(configuration()), othersConfiguration());
    QCOMPARE(QFileInfo(configuration()).dir().entryList({QStringLiteral("dll.xml.*")}),
             QStringList());
}

void TestRealConditions::reportsAPluginFileThatIsAMountPoint()
{
    installInto(1, "module");
    writeFile(place(), "old");
    m_computer->write(QStringLiteral("elsewhere"), "precious");
    if (!m_mounts->show(m_computer->absolute(QStringLiteral("elsewhere")), place()))
        QSKIP(noMount);
    QCOMPARE(m_computer->run({QStringLiteral("--REPAIR")}), 2);
    QVERIFY(m_computer->said().constLast().endsWith(QLatin1String("Det: Not updated")));
    QCOMPARE(readFile(place()), QByteArray("precious"));
}

static Preparation closing(const QVector<int> &descriptors)
{
    return [descriptors] {
        std::for_each(descriptors.cbegin(), descriptors.cend(), close);
    };
}

static void loseTheReaderOfTheLog()
{
    int ends[2];
    if (pipe(ends) != 0 || dup2(ends[1], STDERR_FILENO) < 0 || close(ends[0]) != 0)
        _exit(99);
}

void TestRealConditions::worksWithoutStandardDescriptors_data()
{
    QTest::addColumn<Preparation>("prepare");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    const QVector<QPair<const char *, Preparation>> preparations{
        {"<&- 2>&-", closing({0, 2})},
        {">&- 2>&-", closing({1, 2})},
        {"2>&-", closing({2})},
        {"all closed", closing({0, 1, 2})},
        {"no reader", loseTheReaderOfTheLog},
    };
    for (const auto &[name, prepare] : preparations) {
        QTest::addRow("--INSTALL 1, %s", name) << prepare << quietInstallation() << 2;
        QTest::addRow("--REPAIR, %s", name) << prepare << words("--REPAIR") << 0;
    }
}

// No log line is written into the record, and no other record is lost.
void TestRealConditions::worksWithoutStandardDescriptors()
{
    QFETCH(const Preparation, prepare);
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    const QJsonObject found = m_computer->entry(m_det, 0);
    const QJsonObject recorded = m_computer->hiddenEntry(QStringLiteral("Rec"), 1);
    m_computer->setCatalogue({recorded, found});
    m_computer->addSimulator(m_det);
    m_computer->addPlugin(QStringLiteral("Rec"), 1);
    m_computer->setRecords({m_computer->recordFor(recorded)});
    m_computer->program().prepare(prepare);
    QCOMPARE(m_computer->run(arguments), status);
    const QJsonArray records{m_computer->recordFor(found), m_computer->recordFor(recorded)};
    const QString record = m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping"));
    QCOMPARE(readFile(m_computer->absolute(record)), QJsonDocument(records).toJson());
}

// The log is not sent to the X server, which would then hang.
void TestRealConditions::showsItsWindowWithoutStandardError()
{
    const Display display;
    if (!display.isUp())
        QSKIP("needs Xvfb and xdotool");
    m_computer.reset();
    m_computer.reset(new Computer(&display));
    installInto(1, "module");
    m_computer->program().prepare(closing({STDERR_FILENO}));
    QCOMPARE(m_computer->run({}), 0);
    QVERIFY(m_computer->showedTheWindow());
}

void TestRealConditions::endsWithoutAScreen_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QStringList>("arguments");
    for (const char *platform : {"xcb", "nothing like it"}) {
        const QString name = QLatin1String(platform);
        QTest::newRow(platform) << name << QStringList();
        QTest::newRow(qPrintable(name + QLatin1String(", unattended")))
            << name << quietInstallation();
    }
}

// It reports that, and changes nothing.
void TestRealConditions::endsWithoutAScreen()
{
    QFETCH(const QString, platform);
    QFETCH(const QStringList, arguments);
    installInto(1, "module");
    m_computer->program().setVariable("QT_QPA_PLATFORM", platform);
    m_computer->program().setVariable("DISPLAY", QStringLiteral(":nowhere"));
    m_computer->program().prepare([] {
        const struct rlimit none = {0, 0};
        setrlimit(RLIMIT_CORE, &none);
    });
    const Disk before = m_computer->disk();
    QVERIFY(m_computer->run(arguments) != 0);
    const QByteArray said = m_computer->program().standardError();
    QVERIFY2(said.contains("no Qt platform plugin could be initialized"), said.constData());
    QCOMPARE(difference(m_computer->disk(), before), QString());
    QCOMPARE(treeOf(m_computer->absolute(QStringLiteral("home"))), (QMap<QString, QByteArray>()));
}

int main(int argc, char *argv[])
{
    Mounts::separate();
    QCoreApplication application(argc, argv);
    TestRealConditions test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_RealConditions.moc"
