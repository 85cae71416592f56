#include "Models/FlightSimulatorMapping.h"

#include "Models/FlightSimScan.h"
#include "tests/Models/LookedUpPaths.h"
#include "tests/support/Files.h"
#include "tests/support/Json.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MetaObject.h"

#include <QDir>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Tests::json;
using Tests::writeFile;

namespace {

QJsonObject entryWithFiles(const QStringList &destinations)
{
    QByteArray files;
    for (const QString &destination : destinations)
        files += (files.isEmpty() ? "" : ",") + QByteArray(R"({"destination": ")")
            + destination.toUtf8() + "\"}";
    return json(R"({"files": [)" + files + "]}");
}

} // namespace

class TestFlightSimulatorMapping : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void startsWithItsEntryAndFolder();
    void changesOnlyItsFolder();
    void isNotInstalledWithoutAFolder();
    void isInstalledAnywhereWithoutFiles();
    void isInstalledWhenEveryFileExists_data();
    void isInstalledWhenEveryFileExists();
    void takesAFolderForAFile();
    void takesAnEmptyDestinationForTheFolder();
    void standsASlashAtTheFoldersEnd();
    void findsFilesInFoldersWithForeignNames();
    void looksAtTheDiskEachTime();
    void looksUpEveryFileInOrder();
    void belongsToItsEntry();
    void isAPlainObjectToTheMetaSystem();
    void travelsThroughSignalsAsARegisteredPointer();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFlightSimulatorMapping::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestFlightSimulatorMapping::startsWithItsEntryAndFolder()
{
    FlightSimScan scan(nullptr, {});
    const FlightSimulatorMapping mapping(&scan, QStringLiteral("/a b/ü"));
    QCOMPARE(mapping.scan, &scan);
    QCOMPARE(mapping.path, QStringLiteral("/a b/ü"));
    QCOMPARE(mapping.note, QString());
}

void TestFlightSimulatorMapping::changesOnlyItsFolder()
{
    FlightSimScan scan(nullptr, {});
    FlightSimulatorMapping mapping(&scan, QStringLiteral("/old"));
    mapping.note = QStringLiteral("noted");
    mapping.updateFlightSimPath(QStringLiteral("/new/"));
    QCOMPARE(mapping.path, QStringLiteral("/new/"));
    QCOMPARE(mapping.note, QStringLiteral("noted"));
    QCOMPARE(mapping.scan, &scan);
}

void TestFlightSimulatorMapping::isNotInstalledWithoutAFolder()
{
    FlightSimScan withoutFiles(nullptr, {});
    QVERIFY(!FlightSimulatorMapping(&withoutFiles, QString()).isAddonInstalled());

    // The root of the disk has this one: an empty folder must not mean the root.
    FlightSimScan withFiles(nullptr, entryWithFiles({QStringLiteral("etc")}));
    QVERIFY(!FlightSimulatorMapping(&withFiles, QString()).isAddonInstalled());
}

void TestFlightSimulatorMapping::isInstalledAnywhereWithoutFiles()
{
    FlightSimScan scan(nullptr, {});
    QVERIFY(FlightSimulatorMapping(&scan, m_folder->path()).isAddonInstalled());
    QVERIFY(FlightSimulatorMapping(&scan, m_folder->filePath(QStringLiteral("gone")))
                .isAddonInstalled());
}

void TestFlightSimulatorMapping::isInstalledWhenEveryFileExists_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<bool>("installed");
    const QString first = QStringLiteral("a/one.dll");
    const QString second = QStringLiteral("b.dll");
    QTest::newRow("none") << QStringList() << false;
    QTest::newRow("the first") << QStringList{first} << false;
    QTest::newRow("the second") << QStringList{second} << false;
    QTest::newRow("both") << QStringList{first, second} << true;
}

void TestFlightSimulatorMapping::isInstalledWhenEveryFileExists()
{
    QFETCH(QStringList, present);
    for (const QString &file : qAsConst(present))
        writeFile(m_folder->filePath(file), "x");
    FlightSimScan scan(nullptr,
                       entryWithFiles({QStringLiteral("a/one.dll"), QStringLiteral("b.dll")}));
    const Tests::LogCatcher log;
    FlightSimulatorMapping mapping(&scan, m_folder->path());
    QTEST(mapping.isAddonInstalled(), "installed");
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
}

void TestFlightSimulatorMapping::takesAFolderForAFile()
{
    QDir(m_folder->path()).mkdir(QStringLiteral("b.dll"));
    FlightSimScan scan(nullptr, entryWithFiles({QStringLiteral("b.dll")}));
    QVERIFY(FlightSimulatorMapping(&scan, m_folder->path()).isAddonInstalled());
}

void TestFlightSimulatorMapping::takesAnEmptyDestinationForTheFolder()
{
    FlightSimScan scan(nullptr, entryWithFiles({QString()}));
    QVERIFY(FlightSimulatorMapping(&scan, m_folder->path()).isAddonInstalled());
    QVERIFY(!FlightSimulatorMapping(&scan, m_folder->filePath(QStringLiteral("gone")))
                 .isAddonInstalled());
}

void TestFlightSimulatorMapping::standsASlashAtTheFoldersEnd()
{
    writeFile(m_folder->filePath(QStringLiteral("b.dll")), "x");
    FlightSimScan scan(nullptr, entryWithFiles({QStringLiteral("b.dll")}));
    QVERIFY(FlightSimulatorMapping(&scan, m_folder->path() + u'/').isAddonInstalled());
}

void TestFlightSimulatorMapping::findsFilesInFoldersWithForeignNames()
{
    const QString folder = m_folder->filePath(QStringLiteral("Símulátor 飛行 %1"));
    writeFile(folder + QStringLiteral("/плагин.dll"), "x");
    FlightSimScan scan(nullptr, entryWithFiles({QStringLiteral("плагин.dll")}));
    QVERIFY(FlightSimulatorMapping(&scan, folder).isAddonInstalled());
}

void TestFlightSimulatorMapping::looksAtTheDiskEachTime()
{
    const QString file = m_folder->filePath(QStringLiteral("b.dll"));
    FlightSimScan scan(nullptr, entryWithFiles({QStringLiteral("b.dll")}));
    FlightSimulatorMapping mapping(&scan, m_folder->path());
    QVERIFY(!mapping.isAddonInstalled());
    writeFile(file, "x");
    QVERIFY(mapping.isAddonInstalled());
    QFile::remove(file);
    QVERIFY(!mapping.isAddonInstalled());
}

void TestFlightSimulatorMapping::looksUpEveryFileInOrder()
{
    if (!Tests::canSeeLookUps())
        QSKIP("no view of what the toolkit looks up on this system");
    const QString folder = m_folder->path();
    writeFile(folder + QStringLiteral("/c"), "x");
    FlightSimScan scan(
        nullptr, entryWithFiles({QStringLiteral("c"), QStringLiteral("a"), QStringLiteral("b")}));
    FlightSimulatorMapping mapping(&scan, folder);

    Tests::takeLookedUpPaths();
    QVERIFY(!mapping.isAddonInstalled());
    QCOMPARE(Tests::takeLookedUpPaths(),
             (QStringList{folder + QLatin1String("/a"),
                          folder + QLatin1String("/b"),
                          folder + QLatin1String("/c")}));
}

void TestFlightSimulatorMapping::belongsToItsEntry()
{
    auto scan = std::make_unique<FlightSimScan>(nullptr, QJsonObject());
    const QPointer<FlightSimulatorMapping> mapping
        = new FlightSimulatorMapping(scan.get(), QString());
    QCOMPARE(mapping->parent(), scan.get());
    scan.reset();
    QVERIFY(!mapping);
}

void TestFlightSimulatorMapping::isAPlainObjectToTheMetaSystem()
{
    const QMetaObject &meta = FlightSimulatorMapping::staticMetaObject;
    QCOMPARE(meta.className(), "Quillmont::Utility::Models::FlightSimulatorMapping");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(Tests::ownMembers(meta), QStringList());
}

void TestFlightSimulatorMapping::travelsThroughSignalsAsARegisteredPointer()
{
    const int id = qMetaTypeId<FlightSimulatorMapping *>();
    QCOMPARE(qMetaTypeId<FlightSimulatorMapping *>(), id);
    QCOMPARE(QMetaType::type("Quillmont::Utility::Models::FlightSimulatorMapping*"), id);
    QCOMPARE(QMetaType::typeName(id), "Quillmont::Utility::Models::FlightSimulatorMapping*");
    QCOMPARE(int(QMetaType::typeFlags(id)),
             int(QMetaType::WasDeclaredAsMetaType | QMetaType::PointerToQObject
                 | QMetaType::MovableType));
    QCOMPARE(QMetaType::metaObjectForType(id), &FlightSimulatorMapping::staticMetaObject);
}

QTEST_GUILESS_MAIN(TestFlightSimulatorMapping)
#include "tst_FlightSimulatorMapping.moc"
