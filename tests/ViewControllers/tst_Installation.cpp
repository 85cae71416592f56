#include "tests/ViewControllers/Workshop.h"
#include "tests/support/LaunchDocuments.h"
#include "tests/support/Unprivileged.h"

#include "Controllers/ConfigurationController.h"
#include "Library/Helpers/XmlHelper.h"

#include <QApplication>
#include <QFile>
#include <QTest>

using Quillmont::Library::Helpers::XmlHelper;
using Quillmont::Utility::Controllers::ConfigurationController;
using Tests::box;
using Tests::launchDocument;
using Tests::readFile;
using Tests::SettingsHome;
using Tests::Unprivileged;
using Tests::Workshop;
using Tests::writeFile;

namespace {

// Two files, no configuration entry.
const char *const plainSimulator = R"({"name": "Sim A", "type": 1, "files": [
    {"source": "A\\one.dll", "destination": "Modules\\one.dll"},
    {"source": "A/two.dat", "destination": "data/deep er/two.dat"}]})";

// Two files and a configuration file, without a description of our entry.
const char *const configuredSimulator = R"({"name": "Sim A", "files": [
    {"source": "A/one.dll", "destination": "a/one.dll"},
    {"source": "A/two.dat", "destination": "b/two.dat"}], "config": {"path": "Vendor\\dll.xml"}})";

QString successBox(const QString &name)
{
    return box(QStringLiteral("Installation complete"),
               QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to ")
                   + name + u'.');
}

QString failureBox(const QString &name, const QString &lines)
{
    return box(
        QStringLiteral("Installation"),
        QStringLiteral("Quillmont Orbwell was not able to install your Orbwell plugin to ") + name
            + QStringLiteral(".\r\n\r\nPlease see the list below for details:\r\n\r\n") + lines);
}

QString unableToCopyLine(const QString &source, const QString &target, const QString &folder)
{
    return QStringLiteral("Unable to copy '") + Workshop::beside("plugins/") + source
        + QStringLiteral("' to '") + target
        + QStringLiteral("'. Please check if you have permission to folder '") + folder
        + QStringLiteral("'.\r\n");
}

void writePayload(const Workshop &shop)
{
    shop.writePayload("A/one.dll", "one");
    shop.writePayload("A/two.dat", "two");
}

} // namespace

class TestInstallation : public QObject
{
    Q_OBJECT

private slots:

    // This test comes first, since a process waits only once for a hanging copy.
    void doesNotWaitWithoutAnotherCopy_data()
    {
        QTest::addColumn<bool>("isLockable");
        QTest::newRow("with a lock") << true;
        QTest::newRow("where locks are not supported") << false;
    }

    void doesNotWaitWithoutAnotherCopy()
    {
        QFETCH(bool, isLockable);
        Workshop shop;
        writePayload(shop);
        if (!isLockable)
            writeFile(shop.dataPath("Quillmont"), "precious");
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        for (int i = 0; i < 2; ++i)
            shop.controller().install(mapping, true, false);
        QCOMPARE(readFile(shop.path("A/Modules/one.dll")), QByteArray("one"));
        QCOMPARE(shop.log.actions().filter(QStringLiteral("waiting")), QStringList());
    }

    void doesNothingWithoutAFolder()
    {
        Workshop shop;
        writePayload(shop);
        shop.writeCatalogue("[{}]");
        auto *mapping = shop.mapping(configuredSimulator, QString());
        shop.controller().m_errorMessage = QStringLiteral("before");
        const auto disk = shop.disk();
        QVERIFY(!shop.controller().install(mapping, false, true));
        QCOMPARE(shop.controller().m_errorMessage, QStringLiteral("before"));
        QVERIFY(shop.boxes().isEmpty());
        QVERIFY(shop.log.debugLines().isEmpty());
        QCOMPARE(shop.entryCount(), 1);
        QCOMPARE(shop.disk(), disk);
    }

    void copiesEveryFileAndCreatesItsFolder()
    {
        Workshop shop;
        writePayload(shop);
        auto *mapping = shop.mapping(plainSimulator, shop.folder("My Sims/спутник"));
        auto disk = shop.disk();
        QVERIFY(shop.controller().install(mapping, false, false));
        disk[QStringLiteral(u"My Sims/спутник/Modules/")] = {};
        disk[QStringLiteral(u"My Sims/спутник/Modules/one.dll")] = "one";
        disk[QStringLiteral(u"My Sims/спутник/data/")] = {};
        disk[QStringLiteral(u"My Sims/спутник/data/deep er/")] = {};
        disk[QStringLiteral(u"My Sims/спутник/data/deep er/two.dat")] = "two";
        withoutRecord(disk);
        QCOMPARE(diskWithoutRecord(shop), disk);
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
    }

    // The empty folder of that name beside the link must not be used.
    void resolvesLinkedFoldersAsTheSystemDoes()
    {
        Workshop shop;
        writePayload(shop);
        shop.folder("far/deep");
        shop.folder("sim/empty");
        QVERIFY(QFile::link(shop.path("far/deep"), shop.path("sim/link")));
        auto *mapping = shop.mapping(QByteArray(R"({"name": "Sim A", "type": 1, "files": [
                {"source": "A/one.dll", "destination": "link/../new/one.dll"},
                {"source": "A/two.dat", "destination": "link/../empty/two.dat"}]})"),
                                     shop.path("sim"));
        auto disk = shop.disk();
        withoutRecord(disk);
        shop.controller().install(mapping, true, false);
        auto installed = disk;
        installed[QStringLiteral("far/empty/")] = {};
        installed[QStringLiteral("far/empty/two.dat")] = "two";
        installed[QStringLiteral("far/new/")] = {};
        installed[QStringLiteral("far/new/one.dll")] = "one";
        QCOMPARE(diskWithoutRecord(shop), installed);
        shop.controller().m_errorMessage.clear();
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QCOMPARE(diskWithoutRecord(shop), disk);
    }

    void createsTheSimulatorsFolderToo()
    {
        Workshop shop;
        writePayload(shop);
        auto *mapping = shop.mapping(plainSimulator, shop.path("not/there/yet"));
        QVERIFY(shop.controller().install(mapping, true, false));
        QCOMPARE(readFile(shop.path("not/there/yet/Modules/one.dll")), QByteArray("one"));
    }

    void worksInADeepHome()
    {
        Workshop shop;
        writePayload(shop);
        const QByteArray deep = QByteArray(200, 'd') + "/" + QByteArray(200, 'e') + "/спутник 日本";
        shop.sandbox.setVariable("HOME", QFile::encodeName(shop.folder(deep)));
        auto *mapping = shop.mapping(configuredSimulator, shop.path(deep + "/sims/A"));
        QVERIFY(shop.controller().install(mapping, false, false));
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
        const auto disk = shop.disk();
        QCOMPARE(disk.value(QString::fromUtf8(deep) + QStringLiteral("/sims/A/a/one.dll")),
                 QByteArray("one"));
        const QStringList files = disk.keys();
        const QString written = files.join(u'\n');
        QVERIFY(written.contains(QStringLiteral("/Quillmont/Orbwell/.mapping")));
        QVERIFY(written.contains(QStringLiteral("/Vendor/dll.xml")));
    }

    void replacesExistingFiles()
    {
        Workshop shop;
        writePayload(shop);
        writeFile(shop.path("A/Modules/one.dll"), "an older and longer one");
        writeFile(shop.path("A/Modules/foreign.dll"), "foreign");
        auto *mapping = shop.mapping(plainSimulator, shop.path("A"));
        QVERIFY(shop.controller().install(mapping, true, false));
        QCOMPARE(readFile(shop.path("A/Modules/one.dll")), QByteArray("one"));
        QCOMPARE(readFile(shop.path("A/Modules/foreign.dll")), QByteArray("foreign"));
    }

    void addsNoSecondSeparator()
    {
        Workshop shop;
        auto *slashed = shop.mapping(plainSimulator, shop.folder("A/") + u'/');
        slashed->path = shop.path("A/");
        QVERIFY(!shop.controller().install(slashed, true, false));
        QCOMPARE(shop.controller().m_errorMessage,
                 unableToCopyLine(
                     QStringLiteral("A/one.dll"), shop.path("A/Modules/one.dll"), shop.path("A/"))
                     + unableToCopyLine(QStringLiteral("A/two.dat"),
                                        shop.path("A/data/deep er/two.dat"),
                                        shop.path("A/")));
        auto *backslashed = shop.mapping(plainSimulator, shop.path("B\\"));
        QVERIFY(!shop.controller().install(backslashed, true, false));
        QVERIFY(shop.controller().m_errorMessage.endsWith(QStringLiteral("permission to folder '")
                                                          + shop.path("B\\")
                                                          + QStringLiteral("'.\r\n")));
    }

    void convertsBackslashesInTheWholeTarget()
    {
        Workshop shop;
        writePayload(shop);
        shop.folder("A");
        auto *mapping = shop.mapping(plainSimulator, shop.path("A\\"));
        QVERIFY(shop.controller().install(mapping, true, false));
        QCOMPARE(readFile(shop.path("A/Modules/one.dll")), QByteArray("one"));
        QVERIFY(shop.controller().uninstall(mapping, true, false));
        QVERIFY(!QFile::exists(shop.path("A/Modules/one.dll")));
    }

    void listsEveryFileThatItCouldNotCopy()
    {
        Workshop shop;
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A %1 %0"));
        mapping->scan->name = QStringLiteral("Sim %1 %2 %0");
        shop.controller().m_errorMessage = QStringLiteral("from before");
        QVERIFY(!shop.controller().install(mapping, false, false));
        QCOMPARE(shop.boxes(),
                 QStringList(failureBox(QStringLiteral("Sim %1 %2 %0"),
                                        missingLines(shop.path("A %1 %0")))));
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
        QCOMPARE(shop.record().size(), 1);
    }

    void keepsTheErrorLinesWhenSilent()
    {
        Workshop shop;
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        shop.controller().m_errorMessage = QStringLiteral("from before");
        QVERIFY(!shop.controller().install(mapping, true, false));
        QCOMPARE(shop.controller().m_errorMessage, missingLines(shop.path("A")));
        QVERIFY(shop.boxes().isEmpty());

        writePayload(shop);
        QVERIFY(shop.controller().install(mapping, true, false));
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
        QVERIFY(shop.boxes().isEmpty());
    }

    void continuesAfterAFailure()
    {
        Workshop shop;
        shop.writePayload("A/two.dat", "two");
        auto *mapping = shop.mapping(configuredSimulator, shop.folder("A"));
        QVERIFY(!shop.controller().install(mapping, true, false));
        QCOMPARE(readFile(shop.path("A/b/two.dat")), QByteArray("two"));
        QVERIFY(!QFile::exists(shop.path("A/a/one.dll")));
        QCOMPARE(shop.countOfLine(QStringLiteral("hit reg search...")), 2);
        QCOMPARE(shop.record().size(), 1);
    }

    void logsADanglingLinkInAPathOfValidLength_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("isNamed");
        QTest::newRow("maximum length") << 4096 << true;
        QTest::newRow("one character longer") << 4097 << false;
    }

    void logsADanglingLinkInAPathOfValidLength()
    {
        QFETCH(int, size);
        QFETCH(bool, isNamed);
        Workshop shop;
        writePayload(shop);
        const QString link = shop.path("link");
        QVERIFY(QFile::link(shop.path("gone"), link));
        const QString folder
            = (link + QStringLiteral("/x").repeated(2100)).left(size - int(strlen("/one.dll")) - 1);
        auto *mapping = shop.mapping(
            R"({"type": 1, "files": [{"source": "A/one.dll", "destination": "one.dll"}]})",
            folder + u'x');
        QVERIFY(!shop.controller().install(mapping, true, false));
        QCOMPARE(shop.log.actions().filter(QStringLiteral("leads nowhere")).size(),
                 isNamed ? 1 : 0);
    }

    void removesTheOldFileBeforeAFailedCopy()
    {
        Workshop shop;
        writeFile(shop.path("A/Modules/one.dll"), "old");
        writeFile(Workshop::beside("plugins/A/one.dll/a folder now"), {});
        shop.writePayload("A/two.dat", "two");
        auto *mapping = shop.mapping(plainSimulator, shop.path("A"));
        QVERIFY(!shop.controller().install(mapping, true, false));
        QCOMPARE(Tests::treeOf(shop.path("A/Modules")).keys(), QStringList());
        QCOMPARE(shop.log.actions().filter(QStringLiteral("old file removed: ")).size(), 1);
        QCOMPARE(shop.controller().m_errorMessage,
                 unableToCopyLine(
                     QStringLiteral("A/one.dll"), shop.path("A/Modules/one.dll"), shop.path("A/")));
    }

    void keepsObstacles_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::addColumn<QByteArray>("deadLink"); // as in the log
        QTest::newRow("a folder in place of the file") << "folder" << QByteArray();
        QTest::newRow("a link to a folder") << "folder link" << QByteArray();
        QTest::newRow("a file in place of the folder") << "file" << QByteArray();
        QTest::newRow("a dangling link in place of the folder")
            << "link" << QByteArray("A/Modules");
        QTest::newRow("a dangling link in place of the file")
            << "file link" << QByteArray("A/Modules/one.dll");
    }

    void keepsObstacles()
    {
        QFETCH(QString, obstacle);
        QFETCH(QByteArray, deadLink);
        Workshop shop;
        writePayload(shop);
        if (obstacle == QLatin1String("folder"))
            writeFile(shop.path("A/Modules/one.dll/precious"), "precious");
        else if (obstacle == QLatin1String("folder link"))
            QFile::link(shop.path("far"), shop.folder("A") + QStringLiteral("/Modules"));
        else if (obstacle == QLatin1String("file"))
            writeFile(shop.path("A/Modules"), "precious");
        else if (obstacle == QLatin1String("file link"))
            QFile::link(shop.path("gone"), shop.folder("A/Modules") + QStringLiteral("/one.dll"));
        else
            QFile::link(shop.path("gone"), shop.folder("A") + QStringLiteral("/Modules"));
        writeFile(shop.path("far/one.dll/precious"), "precious");
        auto *mapping = shop.mapping(plainSimulator, shop.path("A"));
        auto disk = shop.disk();
        QVERIFY(!shop.controller().install(mapping, false, false));
        disk[QStringLiteral("A/data/")] = {};
        disk[QStringLiteral("A/data/deep er/")] = {};
        disk[QStringLiteral("A/data/deep er/two.dat")] = "two";
        withoutRecord(disk);
        QCOMPARE(diskWithoutRecord(shop), disk);
        QCOMPARE(shop.boxes(),
                 QStringList(failureBox(QStringLiteral("Sim A"),
                                        unableToCopyLine(QStringLiteral("A/one.dll"),
                                                         shop.path("A/Modules/one.dll"),
                                                         shop.path("A/")))));
        QCOMPARE(shop.log.actions().filter(QStringLiteral("leads nowhere")).join(u'\n'),
                 deadLink.isEmpty()
                     ? QString()
                     : QStringLiteral("this link leads nowhere: \"%1\"").arg(shop.path(deadLink)));
    }

    void keepsAFileInPlaceOfTheSimulatorsFolder_data()
    {
        QTest::addColumn<bool>("isFile");
        QTest::newRow("file") << true;
        QTest::newRow("dangling link") << false;
    }

    void keepsAFileInPlaceOfTheSimulatorsFolder()
    {
        QFETCH(bool, isFile);
        Workshop shop;
        writePayload(shop);
        if (isFile)
            writeFile(shop.path("A"), "a file");
        else
            QFile::link(shop.path("gone"), shop.path("A"));
        auto *mapping = shop.mapping(plainSimulator, shop.path("A"));
        auto disk = shop.disk();
        QVERIFY(!shop.controller().install(mapping, false, false));
        QCOMPARE(shop.boxes(),
                 QStringList(failureBox(QStringLiteral("Sim A"), missingLines(shop.path("A")))));
        withoutRecord(disk);
        QCOMPARE(diskWithoutRecord(shop), disk);
    }

    void reportsAFolderThatIsNotWritable()
    {
        Workshop shop;
        writePayload(shop);
        const QString folder = shop.folder("A");
        auto *mapping = shop.mapping(plainSimulator, folder);
        const Unprivileged user(shop.sandbox.root());
        if (!QFile(Workshop::beside("plugins/A/one.dll")).open(QIODevice::ReadOnly))
            QSKIP("an ordinary user cannot read the payload here");
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
        QVERIFY(!shop.controller().install(mapping, false, false));
        QCOMPARE(shop.boxes(),
                 QStringList(failureBox(QStringLiteral("Sim A"), missingLines(folder))));
        QVERIFY(Tests::treeOf(folder).isEmpty());
        QCOMPARE(shop.record().size(), 1);
    }

    void failsIfItCannotWriteTheRecord()
    {
        Workshop shop;
        writePayload(shop);
        shop.folder(QFile::encodeName(shop.recordPath().mid(shop.sandbox.root().size() + 1)));
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        QVERIFY(!shop.controller().install(mapping, false, false));
        QCOMPARE(shop.boxes().size(), 1);
        QVERIFY(shop.boxes().constFirst().contains(
            QStringLiteral(".mapping'. Please check if you have permission to that file.")));
        QCOMPARE(readFile(shop.path("A/Modules/one.dll")), QByteArray("one"));
    }

    void editsTheConfigurationAfterEachFile()
    {
        Workshop shop;
        writePayload(shop);
        const QString folder = shop.folder("A");
        auto *mapping = shop.mapping(configuredSimulator, folder);
        QStringList seen;
        shop.log.atEachDebugLine([&](const QString &line) {
            if (line == QLatin1String("hit reg search..."))
                seen.append(Tests::treeOf(folder).keys().join(u' ')
                            + QString::number(readFile(shop.recordPath()).size()));
        });
        QVERIFY(shop.controller().install(mapping, true, false));
        QCOMPARE(seen,
                 QStringList({QStringLiteral("a/ a/one.dll0"),
                              QStringLiteral("a/ a/one.dll b/ b/two.dat0")}));
        QCOMPARE(shop.controller().findChildren<XmlHelper *>().size(), 2);
        QCOMPARE(shop.record().size(), 1);
    }

    void createsAMissingLaunchDocument()
    {
        Workshop shop;
        writePayload(shop);
        auto *mapping = shop.mapping(configuredSimulator, shop.folder("A"));
        QVERIFY(shop.controller().install(mapping, true, false));
        QCOMPARE(readFile(shop.dataPath("Vendor/dll.xml")), launchDocument());
        QCOMPARE(readFile(shop.dataPath("Vendor/dll.xml")).size(), 428);
        // The step for the second file backs up the document created for the first one.
        QCOMPARE(shop.backups().size(), 1);
        QCOMPARE(readFile(shop.backups().constFirst()), launchDocument());
    }

    void addsTheEntryToTheConfiguration()
    {
        Workshop shop;
        writePayload(shop);
        const QByteArray before = "<SimBase.Document>\r\n  <Launch.Addon>\r\n    <Name>Other</Name>"
                                  "\r\n  </Launch.Addon>\r\n</SimBase.Document>\r\n";
        writeFile(shop.dataPath("Vendor/dll.xml"), before);
        auto *mapping = shop.mapping(R"({"name": "Sim A", "files": [
            {"source": "A/one.dll", "destination": "one.dll"}], "config": {
            "path": "Vendor/dll.xml", "parent": "Launch.Addon", "values": [
            {"key": "Name", "value": "Our entry"}, {"key": "Path", "value": "one.dll"}]}})",
                                     shop.folder("A"));
        QVERIFY(shop.controller().install(mapping, true, false));
        const QByteArray after = readFile(shop.dataPath("Vendor/dll.xml"));
        QVERIFY(after.contains("<Name>Other</Name>"));
        QVERIFY(after.contains("<Name>Our entry</Name>"));
        QVERIFY(after.contains("<Path>one.dll</Path>"));
        QCOMPARE(readFile(shop.backups().constFirst()), before);
    }

    void editsTheConfigurationOnlyOnRequest_data()
    {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<int>("steps");
        QTest::newRow("type 0") << QByteArray(R"("type": 0, )") << 1;
        QTest::newRow("root 0") << QByteArray(R"("root": "0", )") << 1;
        QTest::newRow("root -5") << QByteArray(R"("root": "-5", )") << 1;
        QTest::newRow("root 1") << QByteArray(R"("root": "1", )") << 0;
        QTest::newRow("root 7") << QByteArray(R"("root": "7", )") << 0;
        QTest::newRow("type 1") << QByteArray(R"("type": 1, )") << 0;
        QTest::newRow("type -1") << QByteArray(R"("type": -1, )") << 0;
    }

    void editsTheConfigurationOnlyOnRequest()
    {
        QFETCH(QByteArray, keys);
        QFETCH(int, steps);
        Workshop shop;
        writePayload(shop);
        auto *mapping = shop.mapping(
            "{" + keys + R"("files": [{"source": "A/one.dll", "destination": "one.dll"}],
                "config": {"path": "dll.xml"}})",
            shop.folder("A"));
        QVERIFY(shop.controller().install(mapping, true, false));
        QCOMPARE(shop.countOfLine(QStringLiteral("hit reg search...")), steps);
        QCOMPARE(QFile::exists(shop.dataPath("dll.xml")), steps == 1);
        QCOMPARE(shop.controller().findChildren<XmlHelper *>().size(), steps);
        QCOMPARE(readFile(shop.path("A/one.dll")), QByteArray("one"));
    }

    void editsNothingWithoutAConfigurationEntry()
    {
        Workshop shop;
        writePayload(shop);
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        mapping->scan->type = 0;
        QVERIFY(shop.controller().install(mapping, false, false));
        QCOMPARE(shop.countOfLine(QStringLiteral("no configuration entry to add for Sim A")), 2);
        QCOMPARE(shop.countOfLine(QStringLiteral("hit reg search...")), 0);
        QVERIFY(shop.controller().findChildren<XmlHelper *>().isEmpty());
        const QStringList files = shop.disk().keys();
        QVERIFY(files.filter(QStringLiteral(".xml")).isEmpty());
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
    }

    void recordsAnEntryWithoutFiles()
    {
        Workshop shop;
        auto *mapping
            = shop.mapping(R"({"name": "Sim A", "config": {"path": "dll.xml"}})", shop.folder("A"));
        QVERIFY(shop.controller().install(mapping, false, false));
        QCOMPARE(shop.countOfLine(QStringLiteral("hit reg search...")), 0);
        QVERIFY(!QFile::exists(shop.dataPath("dll.xml")));
        QCOMPARE(shop.record().size(), 1);
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
    }

    void succeedsIfTheConfigurationCannotBeEdited_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::newRow("not XML") << "not XML";
        QTest::newRow("empty") << "empty";
        QTest::newRow("folder") << "folder";
        QTest::newRow("missing folder") << "no folder";
    }

    void succeedsIfTheConfigurationCannotBeEdited()
    {
        QFETCH(QString, obstacle);
        Workshop shop;
        writePayload(shop);
        const QString file = shop.dataPath("Vendor/dll.xml");
        if (obstacle == QLatin1String("folder"))
            writeFile(file + QStringLiteral("/inside"), "precious");
        else if (obstacle == QLatin1String("no folder"))
            writeFile(shop.dataPath("Vendor"), "precious");
        else
            writeFile(file, obstacle == QLatin1String("empty") ? QByteArray() : "<a><b></a>&");
        auto *mapping = shop.mapping(R"({"name": "Sim A",
            "files": [{"source": "A/one.dll", "destination": "one.dll"}], "config": {
            "path": "Vendor/dll.xml", "parent": "Launch.Addon",
            "values": [{"key": "Name", "value": "Our entry"}]}})",
                                     shop.folder("A"));
        const auto vendor = Tests::treeOf(shop.sandbox.dataRoot() + QStringLiteral("Vendor"));
        QVERIFY(shop.controller().install(mapping, false, false));
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
        auto after = Tests::treeOf(shop.sandbox.dataRoot() + QStringLiteral("Vendor"));
        const auto backups = shop.backups();
        for (const QString &backup : backups)
            after.remove(backup.section(u'/', -1));
        QCOMPARE(after, vendor);
        const bool isFile = QFileInfo(file).isFile();
        QCOMPARE(shop.backups().size(), isFile ? 1 : 0);
    }

    void succeedsWithAReadOnlyConfiguration()
    {
        Workshop shop;
        writePayload(shop);
        const QString file = shop.dataPath("Vendor/dll.xml");
        writeFile(file, "<a></a>");
        auto *mapping = shop.mapping(configuredSimulator, shop.folder("A"));
        const Unprivileged user(shop.sandbox.root());
        if (!QFile(Workshop::beside("plugins/A/one.dll")).open(QIODevice::ReadOnly))
            QSKIP("an ordinary user cannot read the payload here");
        QFile::setPermissions(file, QFile::ReadOwner);
        QVERIFY(shop.controller().install(mapping, false, false));
        QCOMPARE(readFile(file), QByteArray("<a></a>"));
        QCOMPARE(shop.boxes(), QStringList(successBox(QStringLiteral("Sim A"))));
    }

    void scansAgainBeforeItShowsTheResult_data()
    {
        QTest::addColumn<bool>("payload");
        QTest::newRow("success") << true;
        QTest::newRow("failure") << false;
    }

    void scansAgainBeforeItShowsTheResult()
    {
        QFETCH(bool, payload);
        Workshop shop;
        if (payload)
            writePayload(shop);
        shop.writeCatalogue(R"([{"name": "Row", "location": 1, "path": "$ROOT/A"}])");
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        QStringList rows;
        QString lines;
        shop.answerer.whileOpen([&] {
            rows = shop.rowNames();
            lines = shop.controller().m_errorMessage;
        });
        int recorded = -1;
        shop.log.atEachDebugLine([&](const QString &line) {
            if (line == QLatin1String("Scanning folders..."))
                recorded = shop.record().size();
        });
        QCOMPARE(shop.controller().install(mapping, false, true), payload);
        QCOMPARE(rows, QStringList(QStringLiteral("Row")));
        QCOMPARE(recorded, 1);
        QCOMPARE(lines.isEmpty(), payload);
        QCOMPARE(shop.entryCount(), 2);
        QCOMPARE(shop.boxes().size(), 1);
        QVERIFY(shop.controller().mappings.isEmpty());
    }

    void scansForTheWindowEvenWhenSilent()
    {
        Workshop shop;
        writePayload(shop);
        shop.writeCatalogue(R"([{"name": "Row", "location": 1, "path": "$ROOT/A"}])");
        const QString chosen = shop.folder("chosen");
        auto *settings = ConfigurationController::instance();
        settings->saveSettings(QStringLiteral("flightsim/Row"), chosen);
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        QVERIFY(shop.controller().install(mapping, true, true));
        // A folder that the user picked is kept.
        QCOMPARE(shop.rowPaths(), QStringList(chosen));
        QCOMPARE(settings->getSettings(QStringLiteral("flightsim/Row")).toString(), chosen);
        QVERIFY(shop.controller().mappings.isEmpty());
        QVERIFY(shop.boxes().isEmpty());
    }

    void scansOnlyOnRequest()
    {
        Workshop shop;
        writePayload(shop);
        shop.writeCatalogue("[{}]");
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        QVERIFY(shop.controller().install(mapping, true, false));
        QCOMPARE(shop.entryCount(), 1);
        QVERIFY(shop.rowNames().isEmpty());
    }

    void showsTheBusyPointerWhileItWorks()
    {
        Workshop shop;
        writePayload(shop);
        shop.writeCatalogue(R"([{"location": 1}])");
        auto *mapping = shop.mapping(configuredSimulator, shop.folder("A"));
        int lines = 0;
        int busy = 0;
        shop.log.atEachDebugLine([&](const QString &) {
            ++lines;
            const auto *pointer = QApplication::overrideCursor();
            busy += pointer && pointer->shape() == Qt::WaitCursor ? 1 : 0;
        });
        QVERIFY(shop.controller().install(mapping, false, true));
        QVERIFY(lines > 0);
        QCOMPARE(busy, lines);
        QVERIFY(!shop.answerer.boxes().constFirst().busyPointer);
        QVERIFY(!QApplication::overrideCursor());
        mapping->path.clear();
        QVERIFY(!shop.controller().install(mapping, false, true));
        QVERIFY(!QApplication::overrideCursor());
    }

    void changesNothingMoreTheSecondTime()
    {
        Workshop shop;
        writePayload(shop);
        auto *mapping = shop.mapping(plainSimulator, shop.folder("A"));
        QVERIFY(shop.controller().install(mapping, true, false));
        const auto disk = shop.disk();
        QVERIFY(shop.controller().install(mapping, true, false));
        QCOMPARE(shop.disk(), disk);
    }

private:
    SettingsHome m_settingsHome;

    static void withoutRecord(QMap<QString, QByteArray> &disk)
    {
        for (auto it = disk.begin(); it != disk.end();)
            it = it.key().endsWith(QStringLiteral("/.mapping")) ? disk.erase(it) : it + 1;
    }

    static QMap<QString, QByteArray> diskWithoutRecord(const Workshop &shop)
    {
        auto disk = shop.disk();
        withoutRecord(disk);
        return disk;
    }

    // The error lines for the plain simulator in a folder that takes none of its files.
    static QString missingLines(const QString &folder)
    {
        return unableToCopyLine(QStringLiteral("A/one.dll"),
                                folder + QStringLiteral("/Modules/one.dll"),
                                folder + u'/')
            + unableToCopyLine(QStringLiteral("A/two.dat"),
                               folder + QStringLiteral("/data/deep er/two.dat"),
                               folder + u'/');
    }
};

QTEST_MAIN(TestInstallation)
#include "tst_Installation.moc"
