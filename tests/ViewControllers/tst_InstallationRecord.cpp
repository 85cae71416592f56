#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Literals.h"
#include "tests/support/Unprivileged.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTest>
#include <QTextCodec>

using namespace Tests;

namespace {

const char *const simulator = R"({"name": "Sim A", "files": [
    {"source": "z", "destination": "plugins\\file.dll"}, {"source": "a", "destination": "b.dat"}]})";

// The record of that simulator in the folder "/Sims/Спутник A", as it is written.
const char *const newRecord = "    {\n"
                              "        \"files\": [\n"
                              "            \"/Sims/Спутник A/b.dat\",\n"
                              "            \"/Sims/Спутник A/plugins/file.dll\"\n"
                              "        ],\n"
                              "        \"name\": \"Sim A\",\n"
                              "        \"path\": \"/Sims/Спутник A\"\n"
                              "    }\n";

// Records an installation of that simulator, or its removal.
void save(Workshop &shop, bool uninstalled)
{
    auto *mapping = shop.mapping(simulator, "/Sims/Спутник A"_s);
    shop.controller().saveInstallationInfo(mapping, uninstalled);
}

} // namespace

/// The record of installed files for later runs.
class TestInstallationRecord : public QObject
{
    Q_OBJECT

private slots:

    void isCreatedEmptyAtTheFirstStart()
    {
        Workshop shop;
        QVERIFY(!QFile::exists(shop.dataPath("Quillmont")));
        shop.controller().createMappingFile();
        QCOMPARE(readFile(shop.recordPath()), QByteArray());
        QCOMPARE(QStringList(treeOf(shop.dataPath("Quillmont")).keys()),
                 (QStringList{"Orbwell/"_s, "Orbwell/.mapping"_s}));
        QCOMPARE(shop.controller().m_errorMessage, QString());
    }

    void isCreatedEmptyAtTheTargetOfALink()
    {
        Workshop shop;
        QVERIFY(QDir().mkpath(shop.dataPath("Quillmont/Orbwell")));
        QVERIFY(QFile::link(shop.path("record"), shop.dataPath("Quillmont/Orbwell/.mapping")));
        shop.controller().createMappingFile();
        QCOMPARE(QFileInfo(shop.path("record")).size(), 0);
        QVERIFY(QFileInfo::exists(shop.path("record")));
    }

    void isNotTouchedByALaterStart()
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

    void isNotReportedIfItCannotBeCreated()
    {
        for (const char *obstacle : {"Quillmont/Orbwell/.mapping/inside", "Quillmont"}) {
            Workshop shop;
            writeFile(shop.dataPath(obstacle), "precious");
            const auto disk = shop.disk();
            shop.controller().createMappingFile();
            QCOMPARE(shop.disk(), disk);
            QCOMPARE(shop.controller().m_errorMessage, QString());
            QCOMPARE(shop.boxes(), QStringList());
        }
    }

    // The scan found each in the folder "old".
    void givesItsFoldersToTheSimulatorsThatItNames_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<QString>("paths");
        QTest::addColumn<QString>("names");
        const auto row = [](const char *name,
                            const char *record,
                            const char *paths,
                            const QString &names = "Sim A"_s) {
            QTest::newRow(name) << QByteArray(record) << QString::fromUtf8(paths) << names;
        };
        row("nothing", "", "old");
        row("several simulators, two of one name",
            R"([{"name": "Sim Б", "path": "$ROOT/Bücher", "config": "ignored", "files": ["$ROOT"]}])",
            "old|$ROOT/Bücher|old|old",
            "Sim A|Sim Б|sim б|Sim Б"_s);
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
        row("files not an array",
            R"([{"name": "Sim A", "path": "new", "files": "$ROOT/no"}])",
            "new");
        row("file not a string", R"([{"name": "Sim A", "path": "new", "files": [5]}])", "old");
        row("empty path", R"([{"name": "Sim A", "path": ""}])", "");
        row("no path", R"([{"name": "Sim A"}])", "");
        row("path not a string", R"([{"name": "Sim A", "path": 5}])", "");
        row("other letter case", R"([{"name": "sim a", "path": "new"}])", "old");
        row("another simulator", R"([{"name": "Sim A2", "path": "new"}])", "old");
        row("name not a string",
            R"([{"name": 5, "path": "new"}, 7, "Sim A", null, ["Sim A"]])",
            "old");
        row("neither has a name", R"([{"name": 5, "path": "new"}])", "new", {});
        row("a later one",
            R"([{"name": "Sim A", "path": "new"}, {"name": "Sim A", "path": "newer"}])",
            "newer");
        row("a later one without its files",
            R"([{"name": "Sim A", "path": "new"},
                {"name": "Sim A", "path": "newer", "files": ["$ROOT/no"]}])",
            "new");
        row("after invalid records", R"([[], {}, 1, {"name": "Sim A", "path": "new"}])", "new");
        const auto beside = [](int depth) {
            return "[" + QByteArray(depth, '[') + QByteArray(depth, ']')
                + R"(, {"name": "Sim A", "path": "new"}])";
        };
        row("maximum depth", beside(1023).constData(), "new");
        row("one level too deep", beside(1024).constData(), "old");
        row("cut off", R"([{"name": "Sim A", "path": "new"})", "old");
        row("an object", R"({"name": "Sim A", "path": "new"})", "old");
        row("not JSON", "\xff\xfe\x01 anything", "old");
    }

    void givesItsFoldersToTheSimulatorsThatItNames()
    {
        QFETCH(const QByteArray, record);
        QFETCH(const QString, names);
        Workshop shop;
        shop.writeRecord(record);
        auto &mappings = shop.controller().mappings;
        for (const QString &name : names.split(u'|')) {
            mappings.append(shop.mapping("{}", "old"_s));
            mappings.last()->scan->name = name;
        }
        const auto before = mappings;
        const auto disk = shop.disk();
        shop.controller().getUserSimulatorMapping();
        QStringList paths;
        for (const auto *mapping : qAsConst(mappings)) {
            paths.append(mapping->path);
            QCOMPARE(mapping->note, mapping->path == "old"_s ? QString() : mapping->path);
        }
        QTEST(paths.join(u'|').replace(shop.sandbox.root(), "$ROOT"_s), "paths");
        QCOMPARE(mappings, before);
        QCOMPARE(shop.disk(), disk);
        QCOMPARE(shop.controller().m_errorMessage, QString());
    }

    // "+" installs into the simulator, "-" removes from it, and "$NEW" is its record.
    void followsInstallationsAndRemovals_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("work");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *name,
                            const QByteArray &before,
                            const char *work,
                            const QByteArray &after) {
            QTest::newRow(name) << before << QString::fromUtf8(work) << after;
        };
        row("an installation replaces the last of its name",
            R"([{"name": "Sim A", "path": "first", "extra": true}, {"name": "Sim A"},
                {"name": "sim a"}, {"name": "Foreign", "path": 5, "config": [1]}, 7, "text", null])",
            "+",
            R"([{"name": "Sim A", "path": "first", "extra": true},
                {"name": "sim a"}, {"name": "Foreign", "path": 5, "config": [1]}, 7, "text", null,
                $NEW])");
        row("two installations leave one record",
            R"([{"name": "Sim A"}, {"name": "Other"}])",
            "++",
            R"([{"name": "Other"}, $NEW])");
        const char *const two = R"([{"name": "Sim A", "path": "first"}, {"name": "Other"},
            {"name": "Sim A", "path": "last"}])";
        row("a removal removes the last record of its name",
            two,
            "-",
            R"([{"name": "Sim A", "path": "first"}, {"name": "Other"}])");
        row("a second removal removes the one before", two, "--", R"([{"name": "Other"}])");
        row("a third removal finds none", two, "---", R"([{"name": "Other"}])");
        row("an empty record stays a list", "", "-", "[]");
        row("a removal undoes an installation", "", "+-", "[]");
        row("an empty record", "", "+", "[$NEW]");
        row("a truncated record", R"([{"name": "Sim B"})", "+", "[$NEW]");
        row("an object", R"({"name": "Sim A"})", "+", "[$NEW]");
        row("binary data", QByteArray("\x00\xff\xfe[", 4), "+", "[$NEW]");
        const QByteArray other = R"([{"name": "Other"}])";
        const QByteArray both = R"([{"name": "Other"}, $NEW])";
        row("UTF-8 with a byte-order mark", "\xef\xbb\xbf" + other, "+", both);
        row("UTF-16",
            QTextCodec::codecForName("UTF-16")->fromUnicode(QString::fromUtf8(other)),
            "+",
            both);
        row("a byte that is no text",
            QByteArray(other).replace('O', '\xff'),
            "+",
            QByteArray(both).replace("O", "\ufffd"));
        row("half a character at the end", other + "\xe2\x82", "+", both);
    }

    void followsInstallationsAndRemovals()
    {
        QFETCH(const QByteArray, before);
        QFETCH(const QString, work);
        QFETCH(const QByteArray, after);
        Workshop shop;
        shop.writeRecord(before);
        for (const QChar step : work)
            save(shop, step == u'-');
        const QByteArray expected = QByteArray(after).replace("$NEW", newRecord);
        QCOMPARE(shop.record(), QJsonDocument::fromJson(expected).array());
        QCOMPARE(shop.controller().m_errorMessage, QString());
    }

    void isWrittenIndented()
    {
        Workshop shop;
        save(shop, false);
        QCOMPARE(readFile(shop.recordPath()), QByteArray("[\n") + newRecord + "]\n");
        QCOMPARE(shop.controller().m_errorMessage, QString());
        save(shop, true);
        QCOMPARE(readFile(shop.recordPath()), QByteArray("[\n]\n"));
    }

    void keepsThePathUnchanged()
    {
        Workshop shop;
        shop.controller().saveInstallationInfo(shop.mapping(simulator, R"(/Sims/A\/)"_s), false);
        const auto record = shop.record().first();
        QCOMPARE(record["path"_s].toString(), R"(/Sims/A\/)"_s);
        QCOMPARE(record["files"_s][0].toString(), R"(/Sims/A\//b.dat)"_s);
    }

    void keepsRecordsWhoseNameIsNotAString()
    {
        Workshop shop;
        shop.writeRecord(R"([{"name": 5}, {}])");
        for (const char *nameless : {R"({"name": "5"})", "{}"}) {
            shop.controller().saveInstallationInfo(shop.mapping(nameless, QString()), true);
            QCOMPARE(shop.record().size(), 2);
        }
    }

    void isReadAndWrittenUnderItsTwoPaths()
    {
        Workshop shop;
        QVERIFY(QDir().mkpath(shop.recordPath()));
        const auto disk = shop.disk();
        shop.controller().getUserSimulatorMapping();
        QCOMPARE(shop.controller().m_errorMessage,
                 cannotRead(shop.sandbox.dataRoot() + "/Quillmont/Orbwell//.mapping"_s));
        shop.controller().m_errorMessage.clear();
        save(shop, false);
        const QString written = shop.sandbox.dataRoot() + "/Quillmont/Orbwell/.mapping"_s;
        QCOMPARE(shop.log.debugLines(), QStringList("mapping path: "_s + written));
        QCOMPARE(shop.controller().m_errorMessage, cannotRead(written) + cannotWrite(written));
        QCOMPARE(shop.disk(), disk);
    }

    void isCreatedAndReportedIfMissing()
    {
        Workshop shop;
        shop.controller();
        QVERIFY(QDir(shop.dataPath("Quillmont")).removeRecursively());
        save(shop, false);
        QCOMPARE(shop.record().size(), 1);
        QCOMPARE(shop.controller().m_errorMessage,
                 cannotRead(shop.sandbox.dataRoot() + "/Quillmont/Orbwell/.mapping"_s));
    }

    void isKeptIfReadOnly()
    {
        Workshop shop;
        shop.writeRecord(R"([{"name": "Other"}])");
        shop.controller();
        const Unprivileged user(shop.sandbox.root());
        QFile::setPermissions(shop.recordPath(), QFile::ReadOwner);
        save(shop, false);
        QCOMPARE(shop.record().size(), 1);
        QCOMPARE(shop.controller().m_errorMessage,
                 cannotWrite(shop.sandbox.dataRoot() + "/Quillmont/Orbwell/.mapping"_s));
    }

    void isNotWrittenIfItCannotBeRead_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<bool>("isWritten");
        constexpr qint64 bound = 96LL * 1024 * 1024;
        QTest::newRow("maximum size") << bound << true;
        QTest::newRow("one byte larger") << bound + 1 << false;
    }

    // A readable file that is not a list of records is replaced.
    void isNotWrittenIfItCannotBeRead()
    {
        QFETCH(qint64, size);
        QFETCH(bool, isWritten);
        Workshop shop;
        shop.controller();
        QVERIFY(QFile::resize(shop.recordPath(), size));
        save(shop, false);
        QCOMPARE(QFileInfo(shop.recordPath()).size() == size, !isWritten);
        const QString said = shop.controller().m_errorMessage;
        QCOMPARE(said.count(QStringLiteral("/.mapping' is empty. ")), isWritten ? 0 : 1);
        QCOMPARE(said.count(QStringLiteral("Unable to write configuration ")), isWritten ? 0 : 1);
        QCOMPARE(shop.log.actions().filter(QStringLiteral("is in")).size(), isWritten ? 1 : 0);
    }

    void isClearedOfUnfinishedFilesAtTheNextStart()
    {
        Workshop shop;
        shop.writeRecord("[]");
        writeFile(shop.recordPath() + QStringLiteral("_quillmont_unfinished"), "[]");
        shop.controller();
        QCOMPARE(Tests::treeOf(shop.dataPath("Quillmont/Orbwell")).keys(),
                 QStringList(QStringLiteral(".mapping")));
    }

    void isReadAsItWasWritten()
    {
        Workshop shop;
        writeFile(shop.path("My Sims/плагин/plugins/file.dll"), {});
        writeFile(shop.path("My Sims/плагин/b.dat"), {});
        shop.controller().saveInstallationInfo(shop.mapping(simulator, shop.path("My Sims/плагин")),
                                               false);
        auto *mapping = shop.mapping(simulator, "old"_s);
        shop.controller().mappings = {mapping};
        shop.controller().getUserSimulatorMapping();
        QCOMPARE(mapping->path, shop.path("My Sims/плагин"));
    }

    // Fifty megabytes of short records without indentation become eighty when indented.
    void keepsEightyMegabytesOfRecords()
    {
        Workshop shop;
        const QByteArray other = R"({"files": ["/gone/$"], "name": "Other"},)";
        const QByteArray longer = QByteArray(other).replace('$', QByteArray(4000, 'x'));
        const int count = 80 * 1024 * 1024 / longer.size();
        shop.writeRecord('[' + longer.repeated(count).chopped(1) + ']');
        save(shop, false);
        save(shop, true);
        QCOMPARE(shop.controller().m_errorMessage, QString());
        QCOMPARE(readFile(shop.recordPath()).count("\"Other\""), count);
    }
};

QTEST_MAIN(TestInstallationRecord)
#include "tst_InstallationRecord.moc"
