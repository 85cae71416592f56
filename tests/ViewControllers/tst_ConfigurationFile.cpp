#include "tests/ViewControllers/Workshop.h"

#include <QTest>

using Tests::readFile;
using Tests::Workshop;
using Tests::writeFile;

// Which of the files on the disk is the simulator's configuration file.
class TestConfigurationFile : public QObject
{
    Q_OBJECT

private slots:
    void isFoundInAnyLetterCase_data();
    void isFoundInAnyLetterCase();
    void namesTheFilesOfWhichNoneIsTaken();
};

static const char *const entry = R"({"name": "Sim A",
    "files": [{"source": "A/one.dll", "destination": "one.dll"}],
    "config": {"path": "Maker/FSX/dll.xml", "parent": "Launch.Addon",
        "values": [{"key": "Name", "value": "Our entry"}],
        "remove": {"delete_parent": true}}})";

static const char *const others = "<SimBase.Document>\r\n    <Launch.Addon/>\r\n"
                                  "</SimBase.Document>\r\n";

void TestConfigurationFile::isFoundInAnyLetterCase_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("expected");
    const QString exact = QStringLiteral("Maker/FSX/dll.xml");
    const auto row = [](const char *name, const QStringList &files, const QString &expected) {
        QTest::newRow(name) << files << expected;
    };
    row("no file", {}, exact);
    row("exact", {exact}, exact);
    row("file", {QStringLiteral("Maker/FSX/DLL.XML")}, QStringLiteral("Maker/FSX/DLL.XML"));
    row("folders", {QStringLiteral("maker/fsx/dll.xml")}, QStringLiteral("maker/fsx/dll.xml"));
    row("all", {QStringLiteral("MAKER/Fsx/Dll.Xml")}, QStringLiteral("MAKER/Fsx/Dll.Xml"));
    row("exact beside another", {QStringLiteral("Maker/FSX/DLL.XML"), exact}, exact);
    row("exact beside a folder", {QStringLiteral("maker/fsx/dll.xml"), exact}, exact);
    row("several files",
        {QStringLiteral("Maker/FSX/DLL.XML"), QStringLiteral("Maker/FSX/Dll.xml")},
        exact);
    row("several folders",
        {QStringLiteral("maker/FSX/dll.xml"), QStringLiteral("MAKER/FSX/dll.xml")},
        exact);
    row("exact folder without it",
        {QStringLiteral("Maker/FSX/exe.xml"), QStringLiteral("maker/fsx/dll.xml")},
        QStringLiteral("maker/fsx/dll.xml"));
    row("folder of that name", {QStringLiteral("Maker/FSX/DLL.XML/readme.txt")}, exact);
    row("longer name", {QStringLiteral("Maker/FSX/DLL.XML.bak")}, exact);
}

void TestConfigurationFile::isFoundInAnyLetterCase()
{
    QFETCH(const QStringList, files);
    QFETCH(const QString, expected);
    Workshop shop;
    shop.writePayload("A/one.dll", "one");
    for (const QString &file : files)
        writeFile(shop.dataPath(file.toUtf8()), others);
    auto *mapping = shop.mapping(entry, shop.folder("A"));

    QVERIFY(shop.controller().install(mapping, true, false));
    for (const QString &file : files) {
        const bool isEdited = readFile(shop.dataPath(file.toUtf8())).contains("Our entry");
        QVERIFY2(isEdited == (file == expected), qPrintable(file));
    }
    QVERIFY(readFile(shop.dataPath(expected.toUtf8())).contains("Our entry"));

    QVERIFY(shop.controller().uninstall(mapping, true, false));
    QVERIFY(!readFile(shop.dataPath(expected.toUtf8())).contains("Our entry"));
    int left = 0;
    for (const QString &file : files)
        left += readFile(shop.dataPath(file.toUtf8())) == others ? 1 : 0;
    QCOMPARE(left, files.size());
}

void TestConfigurationFile::namesTheFilesOfWhichNoneIsTaken()
{
    Workshop shop;
    shop.writePayload("A/one.dll", "one");
    writeFile(shop.dataPath("Maker/FSX/DLL.XML"), others);
    writeFile(shop.dataPath("Maker/FSX/Dll.xml"), others);
    shop.controller().install(shop.mapping(entry, shop.folder("A")), true, false);
    const QString said = shop.log.actions().join(u'\n');
    QVERIFY2(said.contains(shop.dataPath("Maker/FSX/DLL.XML")), qPrintable(said));
    QVERIFY2(said.contains(shop.dataPath("Maker/FSX/Dll.xml")), qPrintable(said));
}

QTEST_MAIN(TestConfigurationFile)
#include "tst_ConfigurationFile.moc"
