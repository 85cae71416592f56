#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTextDocument>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

/// Creates something at a path.
using Maker = std::function<void(const QString &path)>;
Q_DECLARE_METATYPE(Maker)

using namespace Tests;

// Malicious files and folders: a run ends soon and in limited memory, installs where it can, and
// changes no other files.
class TestHostileData : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void endsARunWhateverTheFilesAre_data();
    void endsARunWhateverTheFilesAre();

    void showsTheWindowWhateverTheFilesAre_data();

    void showsTheWindowWhateverTheFilesAre();
    void endsARunWhateverTheRecordSays_data();
    void endsARunWhateverTheRecordSays();
    void leavesFilesOutsideTheSimulatorAlone_data();
    void leavesFilesOutsideTheSimulatorAlone();
    void worksInAFolderWithAnyName_data();
    void worksInAFolderWithAnyName();

private:
    void putAt(const QString &dataPath, const Maker &make) const;

    QJsonObject entry() const { return m_computer->entry(m_det, 0); }

    QString place() const { return m_computer->folder(m_det) + m_module; }

    bool isInstalled() const
    {
        return QFileInfo(place()).isFile() && readFile(place()) == "module";
    }

    const QString m_det = QStringLiteral("Det");
    const QString m_module = QStringLiteral("/Gauges/QuillmontOrbwell_64.dll");
    QScopedPointer<Computer> m_computer;
};

static const QStringList repair{QStringLiteral("--REPAIR")};

// Large files are sparse, and copies of them hit a limit. A sanitizer needs the whole address
// space, so memory is not limited there.
static void limit()
{
    constexpr rlim_t mega = 1U << 20U;
    const struct rlimit file = {100 * mega, 100 * mega};
    bool done = setrlimit(RLIMIT_FSIZE, &file) == 0;
    const struct rlimit memory = {1536 * mega, 1536 * mega};
    if (ORBWELL_SANITIZERS == 0)
        done = done && setrlimit(RLIMIT_AS, &memory) == 0;
    if (!done)
        _exit(99);
}

void TestHostileData::init()
{
    m_computer.reset(new Computer);
    m_computer->setCatalogue({entry()});
    m_computer->addSimulator(m_det);
    m_computer->write(m_computer->configuration(m_det), othersConfiguration());
    m_computer->write(QStringLiteral("precious/file"), "precious");
    m_computer->program().prepare(limit);
}

void TestHostileData::cleanup()
{
    m_computer.reset();
}

// Replaces whatever is there.
void TestHostileData::putAt(const QString &dataPath, const Maker &make) const
{
    const QString path = m_computer->absolute(m_computer->data(dataPath));
    QDir().mkpath(QFileInfo(path).path());
    QDir(path).removeRecursively();
    QFile::remove(path);
    make(path);
}

static void makePipe(const QString &path)
{
    mkfifo(QFile::encodeName(path).constData(), 0600);
}

static void makeFolder(const QString &path)
{
    QDir().mkpath(path + QLatin1String("/in"));
}

static void linkToItself(const QString &path)
{
    QFile::link(path, path);
}

static Maker linkTo(const char *target)
{
    return [target](const QString &path) {
        QFile::link(QLatin1String(target), path);
    };
}

static void makeGigabyte(const QString &path)
{
    writeFile(path, "[");
    QFile::resize(path, 1024LL * 1024 * 1024);
}

static Maker repeated(const QByteArray &piece, int times)
{
    return [piece, times](const QString &path) {
        writeFile(path, piece.repeated(times));
    };
}

static void addPlaces(const QStringList &places)
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<Maker>("make");
    const QVector<QPair<const char *, Maker>> makers{
        {"a pipe", makePipe},
        {"a folder", makeFolder},
        {"a link to itself", linkToItself},
        {"a link to nowhere", linkTo("/nowhere/at/all")},
        {"an endless device", linkTo("/dev/zero")},
        {"a full device", linkTo("/dev/full")},
        {"a gigabyte", makeGigabyte},
        {"deep nesting", repeated("[", 5000000)},
        {"deep elements", repeated("<a>", 500000)},
        {"one line", repeated("=", 5000000)},
        {"zeros", repeated(QByteArray(1, '\0'), 5000000)},
    };
    for (const QString &place : places) {
        for (const auto &[name, make] : makers)
            QTest::addRow("%s as %s", name, qPrintable(place)) << place << make;
    }
}

void TestHostileData::endsARunWhateverTheFilesAre_data()
{
    addPlaces({QStringLiteral("Quillmont/Orbwell/.mapping"),
               QStringLiteral("Quillmont/Orbwell/.path"),
               QStringLiteral("Quillmont/Orbwell"),
               QStringLiteral("Quillmont/Vellum/.settings"),
               QStringLiteral("Quillmont/Vellum/.settings.lock"),
               QStringLiteral("Maker/Det/dll.xml"),
               QStringLiteral("Maker/Det")});
}

void TestHostileData::endsARunWhateverTheFilesAre()
{
    QFETCH(const QString, place);
    QFETCH(const Maker, make);
    putAt(place, make);

    QElapsedTimer sinceStart;
    sinceStart.start();
    const int status = m_computer->run(repair);
    QVERIFY2(status == 0 || status == 2, qPrintable(QString::number(status)));
    QVERIFY2(sinceStart.elapsed() < 25000, qPrintable(QString::number(sinceStart.elapsed())));
    QVERIFY(isInstalled());
}

void TestHostileData::showsTheWindowWhateverTheFilesAre_data()
{
    addPlaces({QStringLiteral("Quillmont/Orbwell/.mapping"),
               QStringLiteral("Quillmont/Vellum/.settings"),
               QStringLiteral("Maker/Det/dll.xml")});
}

void TestHostileData::showsTheWindowWhateverTheFilesAre()
{
    QFETCH(const QString, place);
    QFETCH(const Maker, make);
    putAt(place, make);

    m_computer->program().start();
    m_computer->program().window();
    m_computer->program().pressAction(m_det);
    m_computer->program().box();
    QVERIFY(isInstalled());
    m_computer->program().press(QStringLiteral("OK"));
    QCOMPARE(m_computer->program().row(m_det).action.text, QStringLiteral("Uninstall Orbwell"));
    m_computer->program().press(QStringLiteral("Close"));
    QCOMPARE(m_computer->program().exitStatus(), 0);
}

void TestHostileData::endsARunWhateverTheRecordSays_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("files");
    QTest::newRow("an endless folder") << QByteArray("/a").repeated(1000000) << QByteArray();
    QTest::newRow("many lines") << QByteArray("\\n").repeated(1000000) << QByteArray();
    QTest::newRow("a lot of markup") << QByteArray("<b>").repeated(1000000) << QByteArray();
    QTest::newRow("many placeholders") << QByteArray("%1").repeated(100000) << QByteArray();
    QTest::newRow("a path inside a device") << QByteArray("/dev/null/x") << QByteArray();
    QTest::newRow("invalid characters") << QByteArray("\\u0000\\ud800") << QByteArray();
    QTest::newRow("many files") << QByteArray("/gone") << QByteArray("\"/\",").repeated(300000);
    QTest::newRow("very long file names")
        << QByteArray("/gone") << '"' + QByteArray("/a").repeated(3000000) + "\",";
}

// The record's folder is used, and nothing can be installed there; the message fits on the screen.
void TestHostileData::endsARunWhateverTheRecordSays()
{
    QFETCH(const QByteArray, path);
    QFETCH(const QByteArray, files);
    m_computer->setCatalogue({m_computer->hiddenEntry(m_det, 0)});
    m_computer->write(m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping")),
                      R"([{"name": "Det", "path": ")" + path + R"(", "files": [)"
                          + (files + "\"/\"") + "]}]");
    QElapsedTimer sinceStart;
    sinceStart.start();
    const int status = m_computer->run(repair);
    QVERIFY2(status == 0 || status == 2, qPrintable(QString::number(status)));
    QVERIFY2(sinceStart.elapsed() < 25000, qPrintable(QString::number(sinceStart.elapsed())));
    for (const QString &said : m_computer->said())
        QVERIFY(said.size() < 30000);
    QVERIFY(!isInstalled());
}

void TestHostileData::leavesFilesOutsideTheSimulatorAlone_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("a link") << Maker([](const QString &path) {
        QFile::link(
            QFileInfo(path + QLatin1String("/../../../../precious/file")).absoluteFilePath(), path);
    });
    QTest::newRow("a link to nothing") << Maker([](const QString &path) {
        QFile::link(QFileInfo(path + QLatin1String("/../../../../precious/new")).absoluteFilePath(),
                    path);
    });
    QTest::newRow("a link to itself") << Maker(linkToItself);
    QTest::newRow("a pipe") << Maker(makePipe);
    QTest::newRow("a device") << linkTo("/dev/full");
    QTest::newRow("a folder") << Maker(
        [](const QString &path) { writeFile(path + QLatin1String("/in"), "in"); });
    QTest::newRow("a link to a folder") << Maker([](const QString &path) {
        QFile::link(QFileInfo(path + QLatin1String("/../../../../precious")).absoluteFilePath(),
                    path);
    });
    QTest::newRow("a hard link") << Maker([](const QString &path) {
        const QString precious
            = QFileInfo(path + QLatin1String("/../../../../precious/file")).absoluteFilePath();
        QCOMPARE(::link(QFile::encodeName(QDir::cleanPath(precious)).constData(),
                        QFile::encodeName(path).constData()),
                 0);
    });
}

// In place of the plugin's file; whether it is installed or not, the link's target is unchanged.
void TestHostileData::leavesFilesOutsideTheSimulatorAlone()
{
    QFETCH(const Maker, make);
    make(place());
    for (const char *argument : {"--INSTALL", "--REPAIR", "--UNINSTALL"}) {
        const int status = m_computer->run({QLatin1String(argument), QStringLiteral("1")});
        QVERIFY2(status == 0 || status == 2, qPrintable(QString::number(status)));
        QCOMPARE(treeOf(m_computer->absolute(QStringLiteral("precious"))),
                 (QMap<QString, QByteArray>{{QStringLiteral("file"), "precious"}}));
    }
}

void TestHostileData::worksInAFolderWithAnyName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << QStringLiteral("<b>bold</b> & <img src=x>");
    QTest::newRow("placeholders") << QStringLiteral("%1 %0 %2 %n %L1");
    QTest::newRow("lines") << QStringLiteral("a\nb\r\nc\td");
    QTest::newRow("quotes") << QStringLiteral("'\"`$(x);");
    QTest::newRow("reversed writing direction") << QStringLiteral("a%1txt.exe").arg(QChar(0x202e));
}

// The name appears unchanged and as plain text in every message.
void TestHostileData::worksInAFolderWithAnyName()
{
    QFETCH(const QString, name);
    const QString folder = m_computer->folder(name);
    QJsonObject record = m_computer->recordFor(entry());
    record.insert(QStringLiteral("path"), folder);
    record.insert(QStringLiteral("files"), QJsonArray());
    m_computer->setCatalogue({m_computer->hiddenEntry(m_det, 0)});
    m_computer->setRecords({record});
    writeFile(folder + m_module + QLatin1String("/kept"), "kept");

    QCOMPARE(m_computer->run(repair), 2);
    const QString line = QStringLiteral("Unable to remove file '") + folder + m_module
        + QStringLiteral("' from Det. Please remove the file manually.\r\n");
    QVERIFY2(m_computer->said().constFirst().endsWith(QLatin1String("\r\n\r\n") + line),
             qUtf8Printable(m_computer->said().constFirst()));
    QVERIFY(!Qt::mightBeRichText(m_computer->boxes().constFirst().text));
    QCOMPARE(readFile(folder + m_module + QLatin1String("/kept")), QByteArray("kept"));
}

QTEST_GUILESS_MAIN(TestHostileData)
#include "tst_HostileData.moc"
