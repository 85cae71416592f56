#include "Library/Models/XmlInsertionModel.h"
#include "Models/FlightSimConflict.h"
#include "Models/FlightSimRemoval.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/ScanController.h"
#include "Views/ScannerView.h"
#include "tests/Catalogue/CatalogueSchema.h"
#include "tests/Catalogue/Catalogues.h"
#include "tests/SimDetect/DescribedComputer.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <algorithm>

using namespace Quillmont::Utility::Models;
using namespace Tests;
using Quillmont::Utility::ViewControllers::ScanController;
using Quillmont::Utility::Views::ScannerView;

namespace {

constexpr auto everySimulator = R"(
    xplane $H/X-Plane 10
    xplane $H/X-Plane 11
    xplane $H/X-Plane 12
    game $S 314160 FSX
    file $S/steamapps/common/FSX/fsx.exe =
    dir $S/steamapps/common/FSX/SimObjects
    game $S 1995890 Aerofly
    dir $S/steamapps/common/Aerofly/scenery
    dir $S/steamapps/common/Aerofly/aircraft
    file $S/steamapps/compatdata/1995890/pfx/drive_c/users/steamuser/Documents/Aerofly FS 4/main.mcf =
    dir $S/steamapps/compatdata/1250410/pfx/drive_c/2020/Community
    file $S/steamapps/compatdata/1250410/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator/UserCfg.opt = InstalledPackagesPath "C:/2020"\n
    dir $S/steamapps/compatdata/2537590/pfx/drive_c/2024/Community
    file $S/steamapps/compatdata/2537590/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator 2024/UserCfg.opt = InstalledPackagesPath "C:/2024"\n
    file $R/usr/share/games/flightgear/version = 2020.3.16\n
    file $R/usr/share/games/flightgear/defaults.xml =)";

QString slashed(const QJsonValue &path)
{
    return path.toString().replace(u'\\', u'/');
}

// The object that the program read, converted back to JSON.
QJsonObject readBack(const FlightSimRemoval *removal)
{
    return {{QStringLiteral("parent"), removal->parent},
            {QStringLiteral("key"), removal->key},
            {QStringLiteral("value"), removal->value},
            {QStringLiteral("delete_parent"), removal->deleteParent}};
}

QJsonValue readBackConfig(const FlightSimScan &scan)
{
    if (!scan.config)
        return QJsonValue::Null;
    QJsonArray values;
    for (const auto &pair : qAsConst(scan.config->values))
        values.append(QJsonObject{{QStringLiteral("key"), pair.first},
                                  {QStringLiteral("value"), pair.second}});
    return QJsonObject{{QStringLiteral("path"), scan.config->path},
                       {QStringLiteral("steam"), scan.config->steam},
                       {QStringLiteral("parent"), scan.config->parentName},
                       {QStringLiteral("values"), values},
                       {QStringLiteral("remove"), readBack(scan.remove)}};
}

QJsonValue readBackConflict(const FlightSimConflict *conflict)
{
    if (!conflict)
        return QJsonValue::Undefined;
    return QJsonObject{{QStringLiteral("name"), conflict->name},
                       {QStringLiteral("remove_on_conflict"), conflict->removeOnConflict}};
}

QJsonObject readBack(const FlightSimScan &scan)
{
    QJsonObject files;
    for (auto it = scan.files.begin(); it != scan.files.end(); ++it)
        files.insert(it.key(), it.value());
    return {{QStringLiteral("name"), scan.name},
            {QStringLiteral("simcode"), scan.simcode},
            {QStringLiteral("location"), scan.location},
            {QStringLiteral("path"), scan.path},
            {QStringLiteral("type"), scan.type},
            {QStringLiteral("files"), files},
            {QStringLiteral("config"), readBackConfig(scan)},
            {QStringLiteral("conflict"), readBackConflict(scan.conflict)}};
}

// The same entry with the program's normalisation: separators, and files by destination.
QJsonObject expected(QJsonObject entry)
{
    QJsonObject files;
    const QJsonArray pairs = entry.value(QLatin1String("files")).toArray();
    for (const QJsonValue &pair : pairs)
        files.insert(slashed(pair[QLatin1String("destination")]),
                     slashed(pair[QLatin1String("source")]));
    entry.insert(QStringLiteral("files"), files);
    QJsonObject config = entry.value(QLatin1String("config")).toObject();
    if (!config.isEmpty()) {
        config.insert(QStringLiteral("path"), slashed(config.value(QLatin1String("path"))));
        config.insert(QStringLiteral("steam"), config.value(QLatin1String("steam")).toDouble());
        entry.insert(QStringLiteral("config"), config);
    }
    return entry;
}

QSet<QString> sourcesOf(const QByteArray &catalogue)
{
    QSet<QString> sources;
    const QJsonArray entries = entriesOf(catalogue);
    for (const QJsonValue &entry : entries) {
        const FlightSimScan scan(nullptr, entry.toObject());
        for (const QString &source : scan.files)
            sources.insert(source);
    }
    return sources;
}

// A file of the simulator's own in the folder of the plugin's files.
QString ownFile(const QString &simcode)
{
    if (simcode.startsWith(QLatin1String("XP")))
        return QStringLiteral("Resources/plugins/Somebody/64/lin.xpl");
    if (simcode == QLatin1String("MSFS2020"))
        return QStringLiteral("Community/somebody-scenery/layout.json");
    if (simcode == QLatin1String("MSFS2024"))
        return QStringLiteral("Community2024/somebody-scenery/layout.json");
    if (simcode == QLatin1String("FGFS"))
        return QStringLiteral("Protocol/atlas.xml");
    return QStringLiteral("fsx.exe");
}

} // namespace

class TestShippedCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void listsEachSimulatorInTheWindowsOrder();
    void installsEachFileWhereItsSimulatorLooks_data();
    void installsEachFileWhereItsSimulatorLooks();
    void usesTheSimulatorCodesOfDetection();
    void readsEveryValueAsWritten_data();
    void readsEveryValueAsWritten();

    void givesEachFileItsOwnDestination_data() { readsEveryValueAsWritten_data(); }

    void givesEachFileItsOwnDestination();
    void hasAPayloadFileForEachSourceAndNoOthers();
    void restoresEachSimulatorByUninstalling_data();
    void restoresEachSimulatorByUninstalling();
    void recognisesTheEntryInANewLaunchDocument();
    void listsTheFilesOfThePackage();
};

void TestShippedCatalogue::initTestCase()
{
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/plugins");
    if (QFile::symLinkTarget(beside) == payloadFolder())
        return;
    QFile::remove(beside);
    QVERIFY(QFile::link(payloadFolder(), beside));
}

void TestShippedCatalogue::listsEachSimulatorInTheWindowsOrder()
{
    QStringList codes;
    const QJsonArray entries = entriesOf(shippedCatalogue());
    for (const QJsonValue &entry : entries)
        codes.prepend(entry[QLatin1String("simcode")].toString());
    QCOMPARE(codes.join(u' '), QStringLiteral("XP12 XP11 XP10 MSFS2024 MSFS2020 FSXSE FGFS AFS4"));
}

void TestShippedCatalogue::installsEachFileWhereItsSimulatorLooks_data()
{
    QTest::addColumn<QString>("placed"); // each source with its destination
    const auto row = [](const char *code, const QStringList &placed) {
        QTest::newRow(code) << placed.join(u'\n');
    };
    row("AFS4",
        {QStringLiteral("Aerofly/QuillmontOrbwell.dll > external_dll/QuillmontOrbwell.dll")});
    row("FGFS",
        {QStringLiteral("FlightGear/quillmont-orbwell.xml > Protocol/quillmont-orbwell.xml")});
    row("FSXSE", {QStringLiteral("FSX/QuillmontOrbwell.dll > Modules/QuillmontOrbwell.dll")});
    for (const char *edition : {"MSFS2020 Community", "MSFS2024 Community2024"}) {
        const QByteArrayList words = QByteArray(edition).split(' ');
        QStringList placed;
        for (const char *file : {"Modules/QuillmontOrbwell.wasm", "layout.json", "manifest.json"})
            placed.append(QStringLiteral("MSFS/%1 > %2/quillmont-orbwell/%1")
                              .arg(QLatin1String(file), QString::fromLatin1(words.at(1))));
        row(words.at(0).constData(), placed);
    }
    for (const char *code : {"XP10", "XP11", "XP12"}) {
        QStringList placed;
        for (const char *file : {"64/lin.xpl", "64/mac.xpl", "64/win.xpl", "about.txt"})
            placed.append(QStringLiteral("X-Plane/%1 > Resources/plugins/Orbwell/%1")
                              .arg(QLatin1String(file)));
        row(code, placed);
    }
}

void TestShippedCatalogue::installsEachFileWhereItsSimulatorLooks()
{
    QFETCH(QString, placed);
    const QJsonArray entries = entriesOf(shippedCatalogue());
    QStringList found;
    for (const QJsonValue &entry : entries) {
        const FlightSimScan scan(nullptr, entry.toObject());
        for (auto it = scan.files.begin(); it != scan.files.end(); ++it)
            if (scan.simcode == QLatin1String(QTest::currentDataTag()))
                found.append(*it + QStringLiteral(" > ") + it.key());
    }
    QCOMPARE(found.join(u'\n'), placed);
}

void TestShippedCatalogue::usesTheSimulatorCodesOfDetection()
{
    DescribedComputer computer(Quillmont::SimDetect::Environment::Linux);
    computer.make(QLatin1String(everySimulator));
    QStringList detected;
    const QStringList lines = computer.detect().split(u'\n');
    for (const QString &line : lines)
        detected.append(line.section(u':', 0, 0).trimmed());

    const QJsonArray entries = entriesOf(shippedCatalogue());
    for (const QJsonValue &entry : entries) {
        const QString code = entry[QLatin1String("simcode")].toString();
        QVERIFY2(detected.contains(code), qPrintable(code));
        // A fixed folder would have priority over detection, even if it is a leftover.
        QCOMPARE(entry[QLatin1String("location")].toInt(), 3);
    }

    const QJsonDocument schema = QJsonDocument::fromJson(readFile(CatalogueSchema::path()));
    const QJsonValue simcode = schema[QLatin1String("$defs")][QLatin1String("simulator")]
                                     [QLatin1String("properties")][QLatin1String("simcode")];
    QCOMPARE(simcode[QLatin1String("enum")].toArray(), QJsonArray::fromStringList(detected));
}

void TestShippedCatalogue::readsEveryValueAsWritten_data()
{
    QTest::addColumn<QJsonObject>("entry");
    const auto add = [](const char *catalogue, const QByteArray &text) {
        const QJsonArray entries = entriesOf(text);
        for (const QJsonValue &entry : entries) {
            const QString name = entry[QLatin1String("name")].toString();
            QTest::addRow("%s: %s", catalogue, qPrintable(name)) << entry.toObject();
        }
    };
    add("shipped", shippedCatalogue());
    add("sample", sampleCatalogue(QStringLiteral("/sample/simulators")));
}

void TestShippedCatalogue::readsEveryValueAsWritten()
{
    QFETCH(QJsonObject, entry);
    const QJsonObject read = readBack(FlightSimScan(nullptr, entry));
    const QJsonObject written = expected(entry);
    for (auto it = written.begin(); it != written.end(); ++it) {
        QVERIFY2(read.contains(it.key()), qPrintable(it.key()));
        QCOMPARE(read.value(it.key()), it.value());
    }
}

void TestShippedCatalogue::givesEachFileItsOwnDestination()
{
    QFETCH(QJsonObject, entry);
    const FlightSimScan scan(nullptr, entry);
    QCOMPARE(scan.files.size(), entry.value(QLatin1String("files")).toArray().size());
    QVERIFY(!scan.files.isEmpty());
}

void TestShippedCatalogue::hasAPayloadFileForEachSourceAndNoOthers()
{
    const QSet<QString> wanted = sourcesOf(shippedCatalogue());
    QSet<QString> there;
    const auto payload = treeOf(payloadFolder());
    for (auto it = payload.begin(); it != payload.end(); ++it) {
        if (!it.key().endsWith(u'/'))
            there.insert(it.key());
        // A layout file cannot contain a text.
        const bool speaks
            = !it.key().endsWith(u'/') && !it.key().endsWith(QLatin1String("layout.json"));
        QVERIFY2(!speaks || it->contains("stand-in"), qPrintable(it.key()));
    }
    QCOMPARE(there, wanted);
    QVERIFY(there.contains(sourcesOf(sampleCatalogue({}))));
}

void TestShippedCatalogue::restoresEachSimulatorByUninstalling_data()
{
    QTest::addColumn<QJsonObject>("entry");
    const QJsonArray entries = entriesOf(shippedCatalogue());
    for (const QJsonValue &entry : entries)
        QTest::newRow(qPrintable(entry[QLatin1String("simcode")].toString())) << entry.toObject();
}

void TestShippedCatalogue::restoresEachSimulatorByUninstalling()
{
    QFETCH(QJsonObject, entry);
    const Sandbox sandbox;
    const QString folder = sandbox.path(QStringLiteral("simulator"));
    FlightSimScan scan(nullptr, entry);
    writeFile(folder + u'/' + ownFile(scan.simcode), "somebody else's");
    const auto before = treeOf(folder);

    ScanController controller(nullptr, nullptr);
    const QScopedPointer<ScannerView> window(controller.view);
    auto *mapping = new FlightSimulatorMapping(&scan, folder);
    QVERIFY2(controller.install(mapping, true, false), qPrintable(controller.m_errorMessage));
    QVERIFY(mapping->isAddonInstalled());
    QVERIFY(controller.uninstall(mapping, true, false));
    QCOMPARE(treeOf(folder), before);
}

void TestShippedCatalogue::recognisesTheEntryInANewLaunchDocument()
{
    const Sandbox sandbox;
    const QString prefix
        = sandbox.dataRoot() + QStringLiteral("Steam/steamapps/compatdata/314160/pfx");
    QVERIFY(QDir().mkpath(prefix + QStringLiteral("/drive_c")));
    writeFile(QCoreApplication::applicationDirPath() + QStringLiteral("/flightsims.json"),
              shippedCatalogue());
    ScanController controller(nullptr, nullptr);
    const QScopedPointer<ScannerView> window(controller.view);
    // Not a silent scan, which would install into simulators on the test's own computer.
    controller.startScan(false, false, ScanController::ModeNone);
    const auto mappings = controller.findChildren<FlightSimulatorMapping *>();
    auto *mapping = *std::find_if(mappings.begin(), mappings.end(), [](const auto *one) {
        return one->scan->simcode == QLatin1String("FSXSE");
    });
    QVERIFY(mapping->scan->remove->deleteParent);

    mapping->path = sandbox.path(QStringLiteral("simulator"));
    QVERIFY(controller.install(mapping, true, false));
    const QString file
        = prefix + QStringLiteral("/drive_c/users/steamuser/AppData/Roaming/Microsoft/FSX/dll.xml");
    const QByteArray content = readFile(file);
    QCOMPARE(content.count("<Launch.Addon>"), 1);
    QVERIFY(content.contains("<Path>Modules\\QuillmontOrbwell.dll</Path>"));
    QVERIFY(controller.uninstall(mapping, true, false));
    QVERIFY(!readFile(file).contains("Orbwell"));
}

void TestShippedCatalogue::listsTheFilesOfThePackage()
{
    const QString package = payloadFolder() + QStringLiteral("/MSFS/");
    QStringList listed;
    const QJsonDocument layout
        = QJsonDocument::fromJson(readFile(package + QStringLiteral("layout.json")));
    const QJsonArray content = layout[QLatin1String("content")].toArray();
    for (const QJsonValue &file : content) {
        const QString path = file[QLatin1String("path")].toString();
        listed.append(path);
        QCOMPARE(QJsonValue(QFileInfo(package + path).size()), file[QLatin1String("size")]);
    }
    // The simulator's own rule: the layout lists neither itself nor the manifest.
    QCOMPARE(listed, QStringList({QStringLiteral("Modules/QuillmontOrbwell.wasm")}));
    QVERIFY(
        !QJsonDocument::fromJson(readFile(package + QStringLiteral("manifest.json"))).isEmpty());
}

QTEST_MAIN(TestShippedCatalogue)
#include "tst_ShippedCatalogue.moc"
