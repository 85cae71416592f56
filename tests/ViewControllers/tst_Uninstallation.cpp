#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Unprivileged.h"

#include "Controllers/ConfigurationController.h"
#include "Controllers/UserFiles.h"
#include "Library/Helpers/XmlHelper.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using Quillmont::Library::Helpers::XmlHelper;
using Quillmont::Utility::Controllers::ConfigurationController;
using Quillmont::Utility::Controllers::userDataRoot;
using Tests::box;
using Tests::readFile;
using Tests::SettingsHome;
using Tests::treeOf;
using Tests::Unprivileged;
using Tests::Workshop;
using Tests::writeFile;

namespace {

const char *const plainSimulator = R"({"name": "Sim A", "type": 1, "files": [
    {"source": "A/one.dll", "destination": "Modules\\one.dll"},
    {"source": "A/two.dat", "destination": "data/deep/two.dat"}]})";

const char *const configuredSimulator = R"({"name": "Sim A", "files": [
    {"source": "A/one.dll", "destination": "a/one.dll"},
    {"source": "A/two.dat", "destination": "b/two.dat"}], "config": {"path": "Vendor/dll.xml"}})";

QString successBox(const QString &name)
{
    return box(QStringLiteral("Uninstall"),
               QStringLiteral("Quillmont Orbwell for ") + name
                   + QStringLiteral(" has been uninstalled successfully."));
}

QString failureBox(const QString &name, const QString &lines)
{
    return box(QStringLiteral("Uninstall"),
               QStringLiteral("Quillmont Orbwell was not able to uninstall your Orbwell plugin "
                              "from ")
                   + name
                   + QStringLiteral(".\r\n\r\nPlease see the list below for details:\r\n\r\n")
                   + lines);
}

QString unableToRemoveLine(const QString &target, const QString &name)
{
    return QStringLiteral("Unable to remove file '") + target + QStringLiteral("' from ") + name
        + QStringLiteral(". Please remove the file manually.\r\n");
}

void writePlugin(const Workshop &shop)
{
    writeFile(shop.path("A/Modules/one.dll"), "one");
    writeFile(shop.path("A/data/deep/two.dat"), "two");
    writeFile(shop.path("A/sim.exe"), "the simulator");
}

// A device is created like /dev/null.
bool makeNode(const QString &path, uint type)
{
    const QByteArray name = QFile::encodeName(path);
    const auto mode = static_cast<mode_t>(type | S_IRUSR | S_IWUSR | S_IXUSR);
    struct stat empty = {};
    stat("/dev/null", &empty);
    return type == S_IFDIR ? mkdir(name.constData(), mode) == 0
                           : mknod(name.constData(), mode, empty.st_rdev) == 0;
}

} // namespace

class TestUninstallation : public QObject
{
    Q_OBJECT

private slots:

    void doesNothingWithoutAFolder()
    {
        Workshop shop;
        shop.writeCatalogue("[{}]");
        auto *mapping = shop.mapping(configuredSimulator, QString());
        shop.controller().m_errorMessage = QStringLiteral("before");
        const auto disk = shop.disk();
        QVERIFY(!shop.controller().uninstall(mapping, false, true));
        QCOMPARE(shop.controller().m_errorMessage, QStringLiteral("before"));
        QVERIFY(shop.boxes().isEmpty());
        QVERIFY(shop.log.debugLines().isEmpty());
        QCOMPARE(shop.entryCount(), 1);
        QCOMPARE(shop.disk(), disk);
    }

    void removesFilesAndEmptiedFolders()
    {
        Workshop shop;
        writePlugin(shop);
        auto *mapping = shop.mapping(plainSimulator, shop.path("A"));
        mapping->scan->name = QStringLiteral("Sim %1");
        QVERIFY(shop.controller().uninstall(mapping, false, false));
        // Folders above the file's own are never removed.
        QCOMPARE(treeOf(shop.path("A")).keys(),
                 QStringList({QStringLiteral("data/"), QStringLiteral("sim.exe")}));
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim %1"))));
    }

    void keepsAFolderWithVisibleContent_data()
    {
        QTest::addColumn<QString>("other");
        QTest::newRow("file") << "A/Modules/other.dll";
        QTest::newRow("folder") << "A/Modules/folder/";
        QTest::newRow("folder with a hidden file") << "A/Modules/folder/.hidden";
    }

    void keepsAFolderWithVisibleContent()
    {
        QFETCH(QString, other);
        Workshop shop;
        writePlugin(shop);
        if (other.endsWith(u'/'))
            shop.folder(other.toUtf8());
        else
            writeFile(shop.path(other.toUtf8()), "foreign");
        writeFile(shop.path("A/Modules/.hidden"), "foreign");
        auto disk = shop.disk();
        disk.remove(QStringLiteral("A/Modules/one.dll"));
        disk.remove(QStringLiteral("A/data/deep/two.dat"));
        disk.remove(QStringLiteral("A/data/deep/"));
        QVERIFY(
            shop.controller().uninstall(shop.mapping(plainSimulator, shop.path("A")), true, false));
        const auto after = shop.disk();
        for (auto it = disk.cbegin(); it != disk.cend(); ++it)
            QCOMPARE(after.value(it.key(), "gone"), it.value());
        QVERIFY(!after.contains(QStringLiteral("A/Modules/one.dll")));
        QVERIFY(!after.contains(QStringLiteral("A/data/deep/")));
    }

    void removesAFolderWithOnlyHiddenFiles()
    {
        Workshop shop;
        writePlugin(shop);
        writeFile(shop.path("A/Modules/.DS_Store"), "hidden");
        writeFile(shop.path("A/Modules/.hidden/inside"), "hidden");
        QVERIFY(
            shop.controller().uninstall(shop.mapping(plainSimulator, shop.path("A")), true, false));
        QVERIFY(!QFile::exists(shop.path("A/Modules")));
    }

    void keepsAFolderIfAFileManagerShowsSomething_data()
    {
        QTest::addColumn<uint>("type");
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("shown");
        const QString x = QStringLiteral("x");
        const QVector<QPair<const char *, uint>> types{{"a file", S_IFREG},
                                                       {"a folder", S_IFDIR},
                                                       {"a pipe", S_IFIFO},
                                                       {"a socket", S_IFSOCK},
                                                       {"a device", S_IFCHR}};
        for (const auto &[name, type] : types) {
            const bool isDevice = type == S_IFCHR;
            const auto link = isDevice ? QStringLiteral("/dev/null") : QStringLiteral("../../node");
            const bool isPlain = type == S_IFREG || type == S_IFDIR;
            QTest::newRow(name) << type << QString() << x << isPlain;
            QTest::addRow("%s, hidden", name) << type << QString() << u'.' + x << false;
            QTest::addRow("a link to %s", name) << (isDevice ? 0 : type) << link << x << true;
        }
        QTest::newRow("a link, hidden") << 0U << QStringLiteral("/dev/null") << u'.' + x << false;
        const QVector<QPair<const char *, QString>> dangling{
            {"nothing", QStringLiteral("nothing")},
            {"the inside of a file", QStringLiteral("../sim.exe/inside")},
            {"itself", x},
            {"a name that is too long", QString(300, u'x')}};
        for (const auto &[name, target] : dangling)
            QTest::addRow("a link to %s", name) << 0U << target << x << false;
    }

    void keepsAFolderIfAFileManagerShowsSomething()
    {
        QFETCH(uint, type);
        QFETCH(QString, link);
        QFETCH(QString, name);
        QFETCH(bool, shown);
        Workshop shop;
        writePlugin(shop);
        const QDir folder(shop.path("A/Modules"));
        const QString entry = folder.filePath(name);
        if (type && !makeNode(link.isEmpty() ? entry : shop.path("node"), type))
            QSKIP("needs the right to make a device");
        if (!link.isEmpty())
            QVERIFY(QFile::link(link, entry));
        const auto listed = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        QCOMPARE(listed.contains(name), shown);

        QVERIFY(
            shop.controller().uninstall(shop.mapping(plainSimulator, shop.path("A")), true, false));
        QCOMPARE(treeOf(shop.path("A")).contains(QLatin1String("Modules/")), shown);
        QCOMPARE(QFileInfo::exists(entry), shown);
    }

    void keepsAFolderWithInaccessibleContent_data()
    {
        QTest::addColumn<QByteArray>("closed");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("target");
        const QByteArray none;
        QTest::newRow("the folder itself") << QByteArray("A/Modules") << none << none;
        QTest::newRow("a link into another folder")
            << QByteArray("closed") << QByteArray("link") << QByteArray("../../closed/file");
        QTest::newRow("a name that cannot be decoded")
            << QByteArray("closed") << QByteArray("\xE9") << QByteArray("../sim.exe");
    }

    void keepsAFolderWithInaccessibleContent()
    {
        QFETCH(QByteArray, closed);
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, target);
        Workshop shop;
        writePlugin(shop);
        writeFile(shop.path("closed/file"), "foreign");
        const QByteArray entry = QFile::encodeName(shop.path("A/Modules/")) + name;
        QVERIFY(name.isEmpty() || symlink(target.constData(), entry.constData()) == 0);
        auto *mapping = shop.mapping(plainSimulator, shop.path("A"));
        shop.controller();
        const Unprivileged user(shop.sandbox.root());
        const QByteArray folder = QFile::encodeName(shop.path(closed));
        QCOMPARE(chmod(folder.constData(), name.isEmpty() ? S_IWUSR | S_IXUSR : 0), 0);
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QCOMPARE(chmod(folder.constData(), S_IRWXU), 0);
        QCOMPARE(access(entry.constData(), F_OK), 0);
        QVERIFY(!QFile::exists(shop.path("A/Modules/one.dll")));
    }

    void removesTheEmptyFolderOfAMissingFile()
    {
        Workshop shop;
        shop.folder("A/Modules");
        writeFile(shop.path("A/data/deep/other"), "foreign");
        QVERIFY(shop.controller().uninstall(
            shop.mapping(plainSimulator, shop.path("A")), false, false));
        QCOMPARE(treeOf(shop.path("A")).keys().join(u' '),
                 QStringLiteral("data/ data/deep/ data/deep/other"));
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
    }

    void removesTheSimulatorsFolderIfItBecomesEmpty()
    {
        Workshop shop;
        writeFile(shop.path("sims/A/one.dll"), "one");
        auto *mapping = shop.mapping(R"({"type": 1, "files": [{"destination": "one.dll"}]})",
                                     shop.path("sims/A"));
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QVERIFY(QFile::exists(shop.path("sims")));
        QVERIFY(!QFile::exists(shop.path("sims/A")));
    }

    void uninstallsFromADeletedSimulator()
    {
        Workshop shop;
        QVERIFY(shop.controller().uninstall(
            shop.mapping(plainSimulator, shop.path("gone")), false, false));
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
        QVERIFY(!QFile::exists(shop.path("gone")));
    }

    void keepsAFileInPlaceOfTheSimulatorsFolder()
    {
        Workshop shop;
        writeFile(shop.path("A"), "a file");
        QFile::link(shop.path("gone"), shop.path("B"));
        shop.writeRecord("[\n]\n");
        auto *file = shop.mapping(plainSimulator, shop.path("A"));
        auto *link = shop.mapping(plainSimulator, shop.path("B"));
        const auto disk = shop.disk();
        QVERIFY(shop.controller().uninstall(file, false, false));
        QVERIFY(shop.controller().uninstall(link, false, false));
        QCOMPARE(shop.disk(), disk);
        QCOMPARE(shop.boxes().size(), 2);
    }

    void reportsEveryFileThatCannotBeRemovedEvenWhenSilent_data()
    {
        QTest::addColumn<bool>("silent");
        QTest::newRow("silent") << true;
        QTest::newRow("not silent") << false;
    }

    void reportsEveryFileThatCannotBeRemovedEvenWhenSilent()
    {
        QFETCH(bool, silent);
        Workshop shop;
        writeFile(shop.path("A %1/Modules/one.dll/inside"), "precious");
        writeFile(shop.path("A %1/data/deep/two.dat/inside"), "precious");
        auto *mapping = shop.mapping(plainSimulator, shop.path("A %1") + u'/');
        mapping->scan->name = QStringLiteral("Sim %1 %0");
        const auto sim = treeOf(shop.path("A %1"));
        QVERIFY(!shop.controller().uninstall(mapping, silent, false));
        QCOMPARE(
            shop.boxes(),
            QStringList(failureBox(
                QStringLiteral("Sim %1 %0"),
                unableToRemoveLine(shop.path("A %1/Modules/one.dll"), QStringLiteral("Sim %1 %0"))
                    + unableToRemoveLine(shop.path("A %1/data/deep/two.dat"),
                                         QStringLiteral("Sim %1 %0")))));
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
        QCOMPARE(treeOf(shop.path("A %1")), sim);
    }

    void continuesAfterAFailure()
    {
        Workshop shop;
        writeFile(shop.path("A/a/one.dll/inside"), "precious");
        writeFile(shop.path("A/b/two.dat"), "two");
        shop.writeRecord(R"([{"name": "Sim A"}])");
        QVERIFY(!shop.controller().uninstall(
            shop.mapping(configuredSimulator, shop.path("A")), true, false));
        QVERIFY(!QFile::exists(shop.path("A/b")));
        QCOMPARE(shop.controller().findChildren<XmlHelper *>().size(), 2);
        QVERIFY(shop.record().isEmpty());
    }

    void keepsAFileInPlaceOfAFolder()
    {
        Workshop shop;
        writeFile(shop.path("A/Modules"), "precious");
        auto *mapping = shop.mapping(plainSimulator, shop.path("A"));
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QCOMPARE(readFile(shop.path("A/Modules")), QByteArray("precious"));
    }

    void doesNotRemoveTheParentOfALinkedFolder()
    {
        Workshop shop;
        writeFile(shop.path("elsewhere/other"), "precious");
        QFile::link(shop.path("elsewhere"), shop.folder("A") + QStringLiteral("/Modules"));
        QVERIFY(
            shop.controller().uninstall(shop.mapping(plainSimulator, shop.path("A")), true, false));
        QCOMPARE(readFile(shop.path("elsewhere/other")), QByteArray("precious"));
        QVERIFY(QFile::exists(shop.path("A/Modules")));
    }

    void reportsAFolderThatIsNotWritable()
    {
        Workshop shop;
        writePlugin(shop);
        auto *mapping = shop.mapping(R"({"name": "Sim A", "type": 1, "files": [
            {"destination": "Modules/one.dll"}]})",
                                     shop.path("A"));
        shop.controller();
        const Unprivileged user(shop.sandbox.root());
        QFile::setPermissions(shop.path("A/Modules"), QFile::ReadOwner | QFile::ExeOwner);
        QVERIFY(!shop.controller().uninstall(mapping, true, false));
        QFile::setPermissions(shop.path("A/Modules"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(shop.boxes(),
                 QStringList(failureBox(
                     QStringLiteral("Sim A"),
                     unableToRemoveLine(shop.path("A/Modules/one.dll"), QStringLiteral("Sim A")))));
        QCOMPARE(readFile(shop.path("A/Modules/one.dll")), QByteArray("one"));
    }

    void reportsLinesOfAnEarlierSilentOperation()
    {
        Workshop shop;
        writePlugin(shop);
        auto *mapping = shop.mapping(plainSimulator, shop.path("A"));
        shop.controller().m_errorMessage = QStringLiteral("left behind\r\n");
        QVERIFY(!shop.controller().uninstall(mapping, true, false));
        QCOMPARE(
            shop.boxes(),
            QStringList(failureBox(QStringLiteral("Sim A"), QStringLiteral("left behind\r\n"))));
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
        QVERIFY(!QFile::exists(shop.path("A/Modules")));
    }

    void showsNothingAfterASilentSuccess()
    {
        Workshop shop;
        writePlugin(shop);
        QVERIFY(
            shop.controller().uninstall(shop.mapping(plainSimulator, shop.path("A")), true, false));
        QVERIFY(shop.boxes().isEmpty());
    }

    void removesItsRecord()
    {
        Workshop shop;
        writePlugin(shop);
        shop.writeRecord(R"([{"name": "Other"}, {"name": "Sim A"}])");
        QVERIFY(
            shop.controller().uninstall(shop.mapping(plainSimulator, shop.path("A")), true, false));
        QCOMPARE(shop.record().size(), 1);
        QCOMPARE(shop.record().first().toObject().value(QStringLiteral("name")).toString(),
                 QStringLiteral("Other"));
    }

    void failsIfTheRecordCannotBeRead()
    {
        Workshop shop;
        writePlugin(shop);
        QVERIFY(QDir().mkpath(shop.recordPath()));
        QVERIFY(!shop.controller().uninstall(
            shop.mapping(plainSimulator, shop.path("A")), true, false));
        QCOMPARE(shop.boxes().size(), 1);
        QVERIFY(shop.boxes().constFirst().contains(QStringLiteral(".mapping' is empty.")));
    }

    void editsTheConfigurationAfterEachFile()
    {
        Workshop shop;
        writeFile(shop.path("A/a/one.dll"), "one");
        writeFile(shop.path("A/b/two.dat"), "two");
        writeFile(shop.dataPath("Vendor/dll.xml"), "<a></a>");
        QStringList seen;
        shop.log.atEachDebugLine([&](const QString &line) {
            if (line.startsWith(QLatin1String("file backups")))
                seen.append(treeOf(shop.path("A")).keys().join(u' '));
        });
        QVERIFY(shop.controller().uninstall(
            shop.mapping(configuredSimulator, shop.path("A")), true, false));
        QCOMPARE(seen, QStringList({QStringLiteral("b/ b/two.dat"), QString()}));
        QCOMPARE(shop.controller().findChildren<XmlHelper *>().size(), 2);
        QVERIFY(shop.backups().constFirst().contains(
            QStringLiteral("dll.xml_quillmont_orbwell_before_uninstallation_")));
    }

    void removesTheEntryFromTheConfiguration()
    {
        Workshop shop;
        const QByteArray before = "<SimBase.Document>\r\n  <Launch.Addon>\r\n    <Name>Other</Name>"
                                  "\r\n  </Launch.Addon>\r\n  <Launch.Addon>\r\n    <Name>Our entry"
                                  "</Name>\r\n  </Launch.Addon>\r\n</SimBase.Document>\r\n";
        writeFile(shop.dataPath("Vendor/dll.xml"), before);
        // A "root" that keeps the entry from being added does not keep it from being removed.
        auto *mapping = shop.mapping(R"({"name": "Sim A", "root": "1",
            "files": [{"destination": "one.dll"}], "config": {
            "path": "Vendor/dll.xml", "parent": "Launch.Addon",
            "values": [{"key": "Name", "value": "Our entry"}]}})",
                                     shop.folder("A"));
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        const QByteArray after = readFile(shop.dataPath("Vendor/dll.xml"));
        QVERIFY(after.contains("<Name>Other</Name>"));
        QVERIFY(!after.contains("Our entry"));
        QCOMPARE(readFile(shop.backups().constFirst()), before);
    }

    void editsNoConfigurationOfAnotherFamily()
    {
        Workshop shop;
        writeFile(shop.dataPath("Vendor/dll.xml"), "<a></a>");
        auto *mapping = shop.mapping(configuredSimulator, shop.folder("A"));
        for (const int type : {1, -1}) {
            mapping->scan->type = type;
            QVERIFY(shop.controller().uninstall(mapping, true, false));
        }
        QVERIFY(shop.controller().findChildren<XmlHelper *>().isEmpty());
        QVERIFY(shop.backups().isEmpty());
    }

    void editsNothingWithoutAConfigurationEntry()
    {
        Workshop shop;
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        mapping->scan->type = 0;
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QVERIFY(shop.controller().findChildren<XmlHelper *>().isEmpty());
    }

    void doesNotCreateAMissingConfiguration()
    {
        Workshop shop;
        writeFile(shop.path("home/extra"), "ours");
        auto *mapping = shop.mapping(R"({"files": [{"destination": "a/one.dll"}], "config": {
            "path": "Vendor/dll.xml", "remove": {"files": [{"root": "8", "path": "/extra"}]}}})",
                                     shop.folder("A"));
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QVERIFY(!QFile::exists(shop.dataPath("Vendor")));
        QVERIFY(!QFile::exists(shop.path("home/extra")));
        QCOMPARE(shop.controller().findChildren<XmlHelper *>().size(), 1);
    }

    void succeedsIfTheConfigurationCannotBeEdited_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::newRow("not XML") << "<a><b></a>&";
        QTest::newRow("empty") << "";
        QTest::newRow("folder") << "folder";
    }

    void succeedsIfTheConfigurationCannotBeEdited()
    {
        QFETCH(QString, obstacle);
        Workshop shop;
        const QString file = shop.dataPath("Vendor/dll.xml");
        const bool isFolder = obstacle == QLatin1String("folder");
        writeFile(isFolder ? file + QStringLiteral("/inside") : file, obstacle.toUtf8());
        auto *mapping = shop.mapping(R"({"name": "Sim A", "files": [{"destination": "one.dll"}],
            "config": {"path": "Vendor/dll.xml", "parent": "Launch.Addon",
            "values": [{"key": "Name", "value": "Our entry"}]}})",
                                     shop.folder("A"));
        QVERIFY(shop.controller().uninstall(mapping, false, false));
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
        QCOMPARE(readFile(isFolder ? file + QStringLiteral("/inside") : file), obstacle.toUtf8());
        QCOMPARE(shop.backups().size(), isFolder ? 0 : 1);
    }

    void succeedsWithAReadOnlyConfiguration()
    {
        Workshop shop;
        const QString file = shop.dataPath("Vendor/dll.xml");
        writeFile(file, "<a></a>");
        auto *mapping = shop.mapping(configuredSimulator, shop.folder("A"));
        const Unprivileged user(shop.sandbox.root());
        QFile::setPermissions(file, QFile::ReadOwner);
        QVERIFY(shop.controller().uninstall(mapping, false, false));
        QCOMPARE(readFile(file), QByteArray("<a></a>"));
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
    }

    void deletesTheExtraFiles_data()
    {
        QTest::addColumn<QByteArray>("root");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QString>("file");
        const auto row
            = [](const char *name, const char *root, const char *path, const QString &file) {
                  QTest::newRow(name) << QByteArray(root) << QByteArray(path) << file;
              };
        const Workshop shop;
        const QString data = shop.sandbox.dataRoot().mid(shop.sandbox.root().size() + 1);
        row("joined with a backslash", "-1", "x.cfg", QStringLiteral("A\\x.cfg"));
        row("backslashes are kept", "-1", "s\\\\x.cfg", QStringLiteral("A\\s\\x.cfg"));
        row("data root", "17", "V/x.cfg", data + QStringLiteral("V/x.cfg"));
        row("home", "8", "/x.cfg", QStringLiteral("home/x.cfg"));
        row("home, without a separator", "8", "-x.cfg", QStringLiteral("home-x.cfg"));
        const auto last = userDataRoot(QStandardPaths::AppConfigLocation);
        row("highest number",
            "18",
            "/x.cfg",
            QDir::cleanPath(last + QStringLiteral("/x.cfg")).mid(shop.sandbox.root().size() + 1));
        row("desktop", "0", "/x.cfg", QStringLiteral("home/Desktop/x.cfg"));
        row("not a number", "abc", "/x.cfg", QStringLiteral("home/Desktop/x.cfg"));
        row("no root", "", "/x.cfg", QStringLiteral("home/Desktop/x.cfg"));
    }

    void deletesTheExtraFiles()
    {
        QFETCH(QByteArray, root);
        QFETCH(QByteArray, path);
        QFETCH(QString, file);
        Workshop shop;
        writeFile(shop.path(file.toUtf8()), "ours");
        writeFile(shop.path("A/x.cfg"), "foreign");
        auto *mapping = shop.mapping(withExtraFile(root, path), shop.path("A"));
        auto disk = shop.disk();
        disk.remove(file);
        shop.controller().uninstallFromFlightSim(mapping);
        QCOMPARE(shop.disk(), disk);
    }

    void readsAnyRootExceptMinusOneAsANumber()
    {
        Workshop shop;
        writeFile(shop.path("A\\x.cfg"), "foreign");
        const auto disk = shop.disk().keys();
        for (const char *root : {" -1", "-1 ", "-01", "99"}) {
            shop.controller().uninstallFromFlightSim(
                shop.mapping(withExtraFile(root, "x.cfg"), shop.path("A")));
        }
        QVERIFY(disk.contains(QStringLiteral("A\\x.cfg")));
        QCOMPARE(readFile(shop.path("A\\x.cfg")), QByteArray("foreign"));
    }

    void prefersTheRecordsFolderToTheMappings()
    {
        Workshop shop;
        writeFile(shop.path("A\\x.cfg"), "foreign");
        writeFile(shop.path("B\\x.cfg"), "ours");
        auto *mapping = shop.mapping(withExtraFile("-1", "x.cfg"), shop.path("A"));
        mapping->note = shop.path("B");
        shop.controller().uninstallFromFlightSim(mapping);
        QVERIFY(QFile::exists(shop.path("A\\x.cfg")));
        QVERIFY(!QFile::exists(shop.path("B\\x.cfg")));
    }

    void deletesAllExtraFilesThatItCan()
    {
        Workshop shop;
        writeFile(shop.path("home/folder/inside"), "precious");
        writeFile(shop.path("home/two"), "ours");
        QVERIFY(QFile::link(shop.path("gone"), shop.path("home/dead")));
        auto *mapping = shop.mapping(R"({"name": "Sim A", "files": [{"destination": "one.dll"}],
            "config": {"path": "dll.xml", "remove": {"files": [
            {"root": "8", "path": "/missing"}, {"root": "8", "path": "/folder"}, 5,
            {"root": "8", "path": "/dead"},
            {"root": "8", "path": "/two"}]}}})",
                                     shop.folder("A"));
        QVERIFY(shop.controller().uninstall(mapping, false, false));
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
        QCOMPARE(readFile(shop.path("home/folder/inside")), QByteArray("precious"));
        QVERIFY(!QFile::exists(shop.path("home/two")));
        QVERIFY(!QFileInfo(shop.path("home/dead")).isSymLink());
    }

    void scansAgainBeforeItShowsTheResult_data()
    {
        QTest::addColumn<bool>("removable");
        QTest::newRow("success") << true;
        QTest::newRow("failure") << false;
    }

    void scansAgainBeforeItShowsTheResult()
    {
        QFETCH(bool, removable);
        Workshop shop;
        writeFile(shop.path(removable ? "A/Modules/one.dll" : "A/Modules/one.dll/inside"), "one");
        shop.writeRecord(R"([{"name": "Sim A"}])");
        shop.writeCatalogue(R"([{"name": "Row", "location": 1, "path": "$ROOT"}])");
        const QString chosen = shop.folder("chosen");
        auto *settings = ConfigurationController::instance();
        settings->saveSettings(QStringLiteral("flightsim/Row"), chosen);
        auto *mapping = shop.mapping(plainSimulator, shop.path("A"));
        QStringList rows;
        QString lines;
        shop.answerer.whileOpen([&] {
            rows = shop.rowPaths();
            lines = shop.controller().m_errorMessage;
        });
        int recorded = -1;
        shop.log.atEachDebugLine([&](const QString &line) {
            if (line == QLatin1String("Scanning folders..."))
                recorded = shop.record().size();
        });
        QCOMPARE(shop.controller().uninstall(mapping, false, true), removable);
        // A folder that the user picked is kept.
        QCOMPARE(rows, QStringList(chosen));
        QCOMPARE(recorded, 0);
        QCOMPARE(lines.isEmpty(), removable);
        QCOMPARE(shop.entryCount(), 2);
        QCOMPARE(shop.boxes().size(), 1);
        QVERIFY(shop.controller().mappings.isEmpty());
    }

    void installsAgainInASilentRescan()
    {
        Workshop shop;
        writeFile(shop.path("A/Modules/one.dll"), "old");
        writeFile(shop.path("A/sim.exe"), "the simulator");
        shop.writePayload("A/one.dll", "new");
        const QByteArray entry = R"({"name": "Sim A", "type": 1, "location": 1, "path": "$ROOT/A",
            "files": [{"source": "A/one.dll", "destination": "Modules/one.dll"}]})";
        shop.writeCatalogue("[" + entry + "]");
        QVERIFY(shop.controller().uninstall(shop.mapping(entry, shop.path("A")), true, true));
        QCOMPARE(readFile(shop.path("A/Modules/one.dll")), QByteArray("new"));
        QCOMPARE(shop.record().size(), 1);
        QCOMPARE(shop.controller().mappings.size(), 1);
        QVERIFY(shop.rowNames().isEmpty());
        QVERIFY(shop.boxes().isEmpty());
    }

    void scansOnlyOnRequest()
    {
        Workshop shop;
        shop.writeCatalogue("[{}]");
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        QVERIFY(shop.controller().uninstall(mapping, false, false));
        QCOMPARE(shop.entryCount(), 1);
        QVERIFY(shop.rowNames().isEmpty());
    }

    void showsTheBusyPointerWhileItWorks()
    {
        Workshop shop;
        writeFile(shop.dataPath("Vendor/dll.xml"), "<a></a>");
        shop.writeCatalogue(R"([{"location": 1}])");
        auto *mapping = shop.mapping(configuredSimulator, shop.folder("A"));
        int lines = 0;
        int busy = 0;
        shop.log.atEachDebugLine([&](const QString &) {
            ++lines;
            const auto *pointer = QApplication::overrideCursor();
            busy += pointer && pointer->shape() == Qt::WaitCursor ? 1 : 0;
        });
        shop.controller().m_errorMessage = QStringLiteral("a line");
        QVERIFY(!shop.controller().uninstall(mapping, false, true));
        QVERIFY(shop.controller().uninstall(mapping, false, true));
        QVERIFY(lines > 0);
        QCOMPARE(busy, lines);
        QVERIFY(!shop.answerer.boxes().constFirst().busyPointer);
        QVERIFY(!shop.answerer.boxes().constLast().busyPointer);
        QVERIFY(!QApplication::overrideCursor());
        mapping->path.clear();
        QVERIFY(!shop.controller().uninstall(mapping, false, true));
        QVERIFY(!QApplication::overrideCursor());
    }

private:
    SettingsHome m_settingsHome;

    static QByteArray withExtraFile(const QByteArray &root, const QByteArray &path)
    {
        return QByteArray(R"({"config": {"path": "dll.xml", "remove": {"files": [
            {"root": "$root", "path": "$path"}]}}})")
            .replace("$root", root)
            .replace("$path", path);
    }
};

QTEST_MAIN(TestUninstallation)
#include "tst_Uninstallation.moc"
