#include "tests/ViewControllers/Workshop.h"

#include <QDir>
#include <QTest>

using Tests::readFile;
using Tests::Workshop;
using Tests::writeFile;

// Which file on the disk is the simulator's configuration file.
class TestConfigurationFile : public QObject
{
    Q_OBJECT

private slots:
    void isFoundInAnyLetterCase_data();
    void isFoundInAnyLetterCase();
    void isFoundOnceByWhateverPath();
    void isSearchedInALimitedNumberOfFolders_data();
    void isSearchedInALimitedNumberOfFolders();
    void isTheTargetOfADanglingLink();
    void isNoneOfSeveralWhichAreLogged();
};

static const char *const entry = R"({"name": "Sim A",
    "files": [{"source": "A/one.dll", "destination": "one.dll"}],
    "config": {"path": "$path", "parent": "Launch.Addon",
        "values": [{"key": "Name", "value": "Our entry"}],
        "remove": {"delete_parent": true}}})";

static const char *const others = "<SimBase.Document>\r\n    <Launch.Addon/>\r\n"
                                  "</SimBase.Document>\r\n";

void TestConfigurationFile::isFoundInAnyLetterCase_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QByteArray>("path"); // as in the catalogue
    const QString exact = QStringLiteral("Maker/FSX/dll.xml");
    const auto row = [](const char *name,
                        const QStringList &files,
                        const QString &expected,
                        const QByteArray &path = "Maker/FSX/dll.xml") {
        QTest::newRow(name) << files << expected << path;
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
    const QString other = QStringLiteral("maker/fsx/dll.xml");
    row("two slashes", {other}, other, "Maker//FSX/dll.xml");
    row("a \".\" component", {other}, other, "Maker/./FSX/dll.xml");
    row("a \"..\" component", {other}, other, "Maker/../Maker/FSX/dll.xml");
    row("a \"..\" component after an existing folder",
        {QStringLiteral("Maker/x"), QStringLiteral("maker/x"), QStringLiteral("fsx/dll.xml")},
        QStringLiteral("fsx/dll.xml"),
        "Maker/../FSX/dll.xml");
    row("hidden",
        {QStringLiteral(".maker/.Dll.xml")},
        QStringLiteral(".maker/.Dll.xml"),
        ".Maker/.dll.xml");
    row("longer name", {QStringLiteral("Maker/FSX/DLL.XML.bak")}, exact);
}

void TestConfigurationFile::isFoundInAnyLetterCase()
{
    QFETCH(const QStringList, files);
    QFETCH(const QString, expected);
    QFETCH(const QByteArray, path);
    Workshop shop;
    shop.writePayload("A/one.dll", "one");
    for (const QString &file : files)
        writeFile(shop.dataPath(file.toUtf8()), others);
    auto *mapping = shop.mapping(QByteArray(entry).replace("$path", path), shop.folder("A"));

    QVERIFY(shop.controller().install(mapping, true, false));
    for (const QString &file : files) {
        const bool isEdited = readFile(shop.dataPath(file.toUtf8())).contains("Our entry");
        QVERIFY2(isEdited == (file == expected), qPrintable(file));
    }
    QVERIFY(readFile(shop.dataPath(expected.toUtf8())).contains("Our entry"));
    const bool isSaid = !shop.log.actions().filter(QStringLiteral("of several")).isEmpty();
    QCOMPARE(isSaid, QByteArray(QTest::currentDataTag()).startsWith("several"));

    QVERIFY(shop.controller().uninstall(mapping, true, false));
    QVERIFY(!readFile(shop.dataPath(expected.toUtf8())).contains("Our entry"));
    int left = 0;
    for (const QString &file : files)
        left += readFile(shop.dataPath(file.toUtf8())) == others ? 1 : 0;
    QCOMPARE(left, files.size());
}

// Each ".." component doubles the number of possible paths.
void TestConfigurationFile::isFoundOnceByWhateverPath()
{
    Workshop shop;
    writeFile(shop.dataPath("maker/DLL.XML"), others);
    for (const char *folder : {"fsx", "Fsx"})
        QVERIFY(QDir().mkpath(shop.dataPath("maker/") + QLatin1String(folder)));
    const QByteArray ways = "Maker/" + QByteArray("FSX/../").repeated(20) + "dll.xml";
    auto *mapping = shop.mapping(QByteArray(entry).replace("$path", ways), shop.folder("A"));
    shop.controller().install(mapping, true, false);
    QVERIFY(readFile(shop.dataPath("maker/DLL.XML")).contains("Our entry"));
}

void TestConfigurationFile::isSearchedInALimitedNumberOfFolders_data()
{
    QTest::addColumn<int>("folders");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("100 folders") << 100 << true;
    QTest::newRow("101 folders") << 101 << false;
}

// All have one name in different letter case.
void TestConfigurationFile::isSearchedInALimitedNumberOfFolders()
{
    QFETCH(const int, folders);
    QFETCH(const bool, isFound);
    Workshop shop;
    QByteArray name = "simmaker";
    for (int i = 1; i <= folders; ++i) {
        name = "simmaker";
        for (int bit = 0; bit < name.size(); ++bit)
            name[bit] = char((i >> bit) % 2 != 0 ? name.at(bit) - 'a' + 'A' : name.at(bit));
        QVERIFY(QDir().mkpath(shop.dataPath(name)));
    }
    const QString file = shop.dataPath(name + "/DLL.XML");
    writeFile(file, others);
    auto *mapping
        = shop.mapping(QByteArray(entry).replace("$path", "simmaker/dll.xml"), shop.folder("A"));
    shop.controller().install(mapping, true, false);
    QCOMPARE(readFile(file).contains("Our entry"), isFound);
}

void TestConfigurationFile::isTheTargetOfADanglingLink()
{
    Workshop shop;
    shop.writePayload("A/one.dll", "one");
    writeFile(shop.dataPath("Maker/FSX/DLL.XML"), others);
    QVERIFY(QFile::link(QStringLiteral("far.xml"), shop.dataPath("Maker/FSX/dll.xml")));
    const QByteArray exact = QByteArray(entry).replace("$path", "Maker/FSX/dll.xml");
    QVERIFY(shop.controller().install(shop.mapping(exact, shop.folder("A")), true, false));
    QVERIFY(readFile(shop.dataPath("Maker/FSX/far.xml")).contains("Our entry"));
    QCOMPARE(readFile(shop.dataPath("Maker/FSX/DLL.XML")), QByteArray(others));
}

void TestConfigurationFile::isNoneOfSeveralWhichAreLogged()
{
    Workshop shop;
    shop.writePayload("A/one.dll", "one");
    writeFile(shop.dataPath("Maker/FSX/DLL.XML"), others);
    writeFile(shop.dataPath("Maker/FSX/Dll.xml"), others);
    const QByteArray exact = QByteArray(entry).replace("$path", "Maker/FSX/dll.xml");
    shop.controller().install(shop.mapping(exact, shop.folder("A")), true, false);
    const QString said = shop.log.actions().join(u'\n');
    QVERIFY2(said.contains(shop.dataPath("Maker/FSX/DLL.XML")), qPrintable(said));
    QVERIFY2(said.contains(shop.dataPath("Maker/FSX/Dll.xml")), qPrintable(said));
}

QTEST_MAIN(TestConfigurationFile)
#include "tst_ConfigurationFile.moc"
