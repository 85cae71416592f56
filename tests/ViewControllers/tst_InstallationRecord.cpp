#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Unprivileged.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using Tests::FlightSimulatorMapping;
using Tests::readFile;
using Tests::Unprivileged;
using Tests::Workshop;
using Tests::writeFile;

namespace {

const char *const simulator = R"({"name": "Sim A", "files": [
    {"source": "z", "destination": "plugins\\file.dll"}, {"source": "a", "destination": "b.dat"}]})";

} // namespace

class TestInstallationRecord : public QObject
{
    Q_OBJECT

private slots:

    void theFirstStartMakesAnEmptyRecord()
    {
        Workshop shop;
        QVERIFY(!QFile::exists(shop.dataPath("Quillmont")));
        shop.controller().createMappingFile();
        QCOMPARE(readFile(shop.recordPath()), QByteArray());
        QCOMPARE(Tests::treeOf(shop.dataPath("Quillmont")).keys(),
                 QStringList({QStringLiteral("Orbwell/"), QStringLiteral("Orbwell/.mapping")}));
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
    }

    void anExistingRecordIsNotTouched()
    {
        Workshop shop;
        shop.writeRecord("anything \xff");
        QFile file(shop.recordPath());
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1000000000);
        QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
        file.close();
        shop.controller().createMappingFile();
        QCOMPARE(readFile(shop.recordPath()), QByteArray("anything \xff"));
        QCOMPARE(QFileInfo(file).lastModified(), longAgo);
    }

    void aRecordThatCannotBeMadeIsNoError_data()
    {
        QTest::addColumn<QByteArray>("obstacle");
        QTest::newRow("a folder in its place") << QByteArray("Quillmont/Orbwell/.mapping/inside");
        QTest::newRow("a file in its folder's place") << QByteArray("Quillmont");
    }

    void aRecordThatCannotBeMadeIsNoError()
    {
        QFETCH(QByteArray, obstacle);
        Workshop shop;
        writeFile(shop.dataPath(obstacle), "precious");
        const auto disk = shop.disk();
        shop.controller().createMappingFile();
        QCOMPARE(shop.disk(), disk);
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
        QVERIFY(shop.boxes().isEmpty());
    }

    void aRecordGivesItsFolderToItsSimulator()
    {
        Workshop shop;
        writeFile(shop.path("Bücher/one"), {});
        const auto all = mappings(shop, {"Sim A", "Sim Б", "sim б", "Sim Б"});
        shop.writeRecord(R"([{"name": "Sim Б", "path": "$ROOT/Bücher", "config": "ignored",
            "files": ["$ROOT/Bücher/one"]}])");
        const auto disk = shop.disk();
        shop.controller().getUserSimulatorMapping();
        QCOMPARE(paths(all),
                 QStringLiteral("old|") + shop.path("Bücher") + QStringLiteral("|old|old"));
        QCOMPARE(all.at(1)->note, shop.path("Bücher"));
        QVERIFY(all.at(0)->note.isNull());
        QCOMPARE(shop.controller().mappings, all);
        QCOMPARE(shop.disk(), disk);
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
    }

    void aRecordAppliesWhenItSaysSo_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<QString>("path");
        const auto row = [](const char *name, const char *record, const char *path) {
            QTest::newRow(name) << QByteArray(record) << QString::fromLatin1(path);
        };
        row("nothing", "", "old");
        row("all files",
            R"([{"name": "Sim A", "path": "new", "files": ["$ROOT", "$ROOT/home"]}])",
            "new");
        row("first missing",
            R"([{"name": "Sim A", "path": "new", "files": ["$ROOT/no", "$ROOT"]}])",
            "old");
        row("last missing",
            R"([{"name": "Sim A", "path": "new", "files": ["$ROOT", "$ROOT/no"]}])",
            "old");
        row("empty files", R"([{"name": "Sim A", "path": "new", "files": []}])", "new");
        row("no files", R"([{"name": "Sim A", "path": "new"}])", "new");
        row("files no array", R"([{"name": "Sim A", "path": "new", "files": "$ROOT/no"}])", "new");
        row("files no text", R"([{"name": "Sim A", "path": "new", "files": [5]}])", "old");
        row("empty path", R"([{"name": "Sim A", "path": ""}])", "");
        row("no path", R"([{"name": "Sim A"}])", "");
        row("path no text", R"([{"name": "Sim A", "path": 5}])", "");
        row("other letter case", R"([{"name": "sim a", "path": "new"}])", "old");
        row("foreign", R"([{"name": "Sim A2", "path": "new"}])", "old");
        row("name no text", R"([{"name": 5, "path": "new"}, 7, "Sim A", null, ["Sim A"]])", "old");
        row("a later one",
            R"([{"name": "Sim A", "path": "new"}, {"name": "Sim A", "path": "newer"}])",
            "newer");
        row("a later one without its files",
            R"([{"name": "Sim A", "path": "new"},
            {"name": "Sim A", "path": "newer", "files": ["$ROOT/no"]}])",
            "new");
        row("after wrong ones", R"([[], {}, 1, {"name": "Sim A", "path": "new"}])", "new");
        row("cut off", R"([{"name": "Sim A", "path": "new"})", "old");
        row("an object", R"({"name": "Sim A", "path": "new"})", "old");
        row("not JSON", "\xff\xfe\x01 anything", "old");
    }

    void aRecordAppliesWhenItSaysSo()
    {
        QFETCH(QByteArray, record);
        QFETCH(QString, path);
        Workshop shop;
        shop.writeRecord(record);
        const auto all = mappings(shop, {"Sim A"});
        shop.controller().getUserSimulatorMapping();
        QCOMPARE(all.constFirst()->path, path);
        QCOMPARE(all.constFirst()->note, path == QLatin1String("old") ? QString() : path);
        QCOMPARE(readFile(shop.recordPath()), shop.expanded(record));
    }

    void entriesWithoutANameMeetRecordsWithoutOne()
    {
        Workshop shop;
        shop.writeRecord(R"([{"name": 5, "path": "new"}])");
        const auto all = mappings(shop, {""});
        shop.controller().getUserSimulatorMapping();
        QCOMPARE(all.constFirst()->path, QStringLiteral("new"));
    }

    void readsAndWritesUnderItsTwoPaths()
    {
        Workshop shop;
        QVERIFY(QDir().mkpath(shop.recordPath()));
        const auto disk = shop.disk();
        shop.controller().getUserSimulatorMapping();
        QCOMPARE(shop.controller().m_errorMessage,
                 QStringLiteral("The file '") + shop.sandbox.dataRoot()
                     + QStringLiteral("/Quillmont/Orbwell//.mapping' is empty. Quillmont Orbwell "
                                      "installer was not able to change your configuration."));
        shop.controller().m_errorMessage.clear();
        shop.controller().saveInstallationInfo(shop.mapping(simulator, shop.path("A")), false);
        const QString written
            = shop.sandbox.dataRoot() + QStringLiteral("/Quillmont/Orbwell/.mapping");
        QCOMPARE(shop.log.debugLines(), QStringList(QStringLiteral("mapping path: ") + written));
        QCOMPARE(shop.controller().m_errorMessage,
                 QStringLiteral("The file '") + written
                     + QStringLiteral("' is empty. Quillmont Orbwell installer was not able to "
                                      "change your configuration.Unable to write configuration to "
                                      "file '")
                     + written
                     + QStringLiteral("'. Please check if you have permission to that file."));
        QCOMPARE(shop.disk(), disk);
    }

    void writesOneRecord()
    {
        Workshop shop;
        shop.controller().saveInstallationInfo(
            shop.mapping(simulator, QStringLiteral(u"/Sims/Спутник A")), false);
        QCOMPARE(readFile(shop.recordPath()),
                 QByteArray("[\n"
                            "    {\n"
                            "        \"files\": [\n"
                            "            \"/Sims/Спутник A/b.dat\",\n"
                            "            \"/Sims/Спутник A/plugins/file.dll\"\n"
                            "        ],\n"
                            "        \"name\": \"Sim A\",\n"
                            "        \"path\": \"/Sims/Спутник A\"\n"
                            "    }\n"
                            "]\n"));
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
    }

    void keepsThePathAsItIsHeld()
    {
        Workshop shop;
        shop.controller().saveInstallationInfo(
            shop.mapping(simulator, QStringLiteral("/Sims/A\\/")), false);
        const QJsonObject record = shop.record().first().toObject();
        QCOMPARE(record.value(QStringLiteral("path")).toString(), QStringLiteral("/Sims/A\\/"));
        QCOMPARE(record.value(QStringLiteral("files")).toArray().first().toString(),
                 QStringLiteral("/Sims/A\\//b.dat"));
    }

    void aNewRecordReplacesTheLastOfItsName()
    {
        Workshop shop;
        shop.writeRecord(R"([{"name": "Sim A", "path": "first", "extra": true},
            {"name": "Sim A", "path": "second"}, {"name": "sim a", "path": "third"},
            {"name": "Foreign", "path": 5, "config": [1]}, 7, "text", null])");
        auto expected = shop.record();
        expected.removeAt(1);
        shop.controller().saveInstallationInfo(shop.mapping(simulator, QStringLiteral("/new")),
                                               false);
        auto record = shop.record();
        QCOMPARE(record.last().toObject().value(QStringLiteral("path")).toString(),
                 QStringLiteral("/new"));
        record.removeLast();
        QCOMPARE(record, expected);
    }

    void savingTwiceLeavesOneRecord()
    {
        Workshop shop;
        shop.writeRecord(R"([{"name": "Sim A"}, {"name": "Other"}])");
        shop.controller().saveInstallationInfo(shop.mapping(simulator, QStringLiteral("/a")),
                                               false);
        shop.controller().saveInstallationInfo(shop.mapping(simulator, QStringLiteral("/b")),
                                               false);
        QCOMPARE(shop.record().size(), 2);
        QCOMPARE(shop.record().last().toObject().value(QStringLiteral("path")).toString(),
                 QStringLiteral("/b"));
    }

    void uninstallingRemovesTheLastOfItsName()
    {
        Workshop shop;
        shop.writeRecord(R"([{"name": "Sim A", "path": "first"}, {"name": "Other"},
            {"name": "Sim A", "path": "last"}])");
        auto expected = shop.record();
        expected.removeLast();
        auto *mapping = shop.mapping(simulator, shop.path("A"));
        shop.controller().saveInstallationInfo(mapping, true);
        QCOMPARE(shop.record(), expected);
        shop.controller().saveInstallationInfo(mapping, true);
        expected.removeFirst();
        QCOMPARE(shop.record(), expected);
        shop.controller().saveInstallationInfo(mapping, true);
        QCOMPARE(shop.record(), expected);
    }

    void anEmptyRecordStaysAList()
    {
        Workshop shop;
        shop.controller().saveInstallationInfo(shop.mapping(simulator, shop.path("A")), true);
        QCOMPARE(readFile(shop.recordPath()), QByteArray("[\n]\n"));
    }

    void aNameThatIsNoTextNeverMatches()
    {
        Workshop shop;
        shop.writeRecord(R"([{"name": 5}, {}])");
        shop.controller().saveInstallationInfo(shop.mapping(R"({"name": "5"})", QString()), true);
        QCOMPARE(shop.record().size(), 2);
        shop.controller().saveInstallationInfo(shop.mapping("{}", QString()), true);
        QCOMPARE(shop.record().size(), 2);
    }

    void aDamagedRecordIsStartedAnew_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("cut off") << QByteArray(R"([{"name": "Sim B"})");
        QTest::newRow("an object") << QByteArray(R"({"name": "Sim A"})");
        QTest::newRow("binary") << QByteArray("\x00\xff\xfe[", 4);
        QTest::newRow("empty") << QByteArray();
    }

    void aDamagedRecordIsStartedAnew()
    {
        QFETCH(QByteArray, text);
        Workshop shop;
        shop.writeRecord(text);
        shop.controller().saveInstallationInfo(shop.mapping(simulator, shop.path("A")), false);
        QCOMPARE(shop.record().size(), 1);
        QVERIFY(shop.controller().m_errorMessage.isEmpty());
    }

    void aMissingRecordIsMadeWithAWord()
    {
        Workshop shop;
        shop.controller();
        QVERIFY(QDir(shop.dataPath("Quillmont")).removeRecursively());
        shop.controller().saveInstallationInfo(shop.mapping(simulator, shop.path("A")), false);
        QCOMPARE(shop.record().size(), 1);
        QVERIFY(shop.controller().m_errorMessage.startsWith(QStringLiteral("The file '")));
        QCOMPARE(shop.controller().m_errorMessage.count(QStringLiteral("The file '")), 1);
        QVERIFY(!shop.controller().m_errorMessage.contains(QStringLiteral("Unable")));
    }

    void aReadOnlyRecordStaysAsItIs()
    {
        Workshop shop;
        shop.writeRecord(R"([{"name": "Other"}])");
        auto *mapping = shop.mapping(simulator, shop.path("A"));
        const Unprivileged user(shop.sandbox.root());
        QFile::setPermissions(shop.recordPath(), QFile::ReadOwner);
        shop.controller().saveInstallationInfo(mapping, false);
        QCOMPARE(shop.record().size(), 1);
        QCOMPARE(shop.controller().m_errorMessage,
                 QStringLiteral("Unable to write configuration to file '") + shop.sandbox.dataRoot()
                     + QStringLiteral("/Quillmont/Orbwell/.mapping'. Please check if you have "
                                      "permission to that file."));
    }

    void whatWasWrittenIsReadBack()
    {
        Workshop shop;
        writeFile(shop.path("My Sims/плагин/plugins/file.dll"), {});
        writeFile(shop.path("My Sims/плагин/b.dat"), {});
        auto *mapping = shop.mapping(simulator, shop.path("My Sims/плагин"));
        shop.controller().saveInstallationInfo(mapping, false);
        const auto all = mappings(shop, {"Sim A"});
        shop.controller().getUserSimulatorMapping();
        QCOMPARE(all.constFirst()->path, shop.path("My Sims/плагин"));
    }

    // Somebody kept them for years, or wrote them closer than the program does.
    void keepsFiftyMegabytesOfRecords()
    {
        Workshop shop;
        const QByteArray other
            = R"({"files": ["/gone/Resources/plugins/Orbwell/64/lin.xpl"], "name": "Other"},)";
        const int count = 50 * 1024 * 1024 / other.size();
        shop.writeRecord('[' + other.repeated(count).chopped(1) + ']');
        auto *mapping = shop.mapping(simulator, shop.path("A"));
        shop.controller().saveInstallationInfo(mapping, false);
        shop.controller().saveInstallationInfo(mapping, true);
        QCOMPARE(shop.controller().m_errorMessage, QString());
        QCOMPARE(shop.record().size(), count);
    }

private:
    // Makes the controller's current mappings, each in the folder "old".
    static QList<FlightSimulatorMapping *> mappings(Workshop &shop,
                                                    const QVector<QByteArray> &names)
    {
        auto &mappings = shop.controller().mappings;
        for (const auto &name : names) {
            mappings.append(shop.mapping(R"({"name": ")" + name + R"("})", QStringLiteral("old")));
        }
        return mappings;
    }

    static QString paths(const QList<FlightSimulatorMapping *> &mappings)
    {
        QStringList paths;
        for (const auto *mapping : mappings)
            paths.append(mapping->path);
        return paths.join(u'|');
    }
};

QTEST_MAIN(TestInstallationRecord)
#include "tst_InstallationRecord.moc"
