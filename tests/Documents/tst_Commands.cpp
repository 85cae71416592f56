#include "tests/Documents/Document.h"
#include "tests/support/Command.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QtTest>

using namespace Tests;

/// The commands in the documents work. script/documents-test tries the rest.
class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void areAllListed_data();
    void areAllListed();
    void startTheProgram_data();
    void startTheProgram();
    void areValidShellCommands();
    void tryTheSample();

private:
    struct Entry
    {
        QString command;
        QString remark;
    };

    static int expectedStatus(const QString &remark);

    /// The list's entries, by the first words of their heading.
    QMap<QString, QVector<Entry>> m_entries;
};

void TestCommands::initTestCase()
{
    static const QRegularExpression remark(QStringLiteral("^(.*?)(?: {2,}# (.*))?$"));
    const QString list = QString::fromUtf8(
        readFile(QStringLiteral(ORBWELL_SOURCE "/tests/Documents/commands.txt")));
    QString heading;
    for (const QString &line : list.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'[')) {
            heading = line.mid(1).chopped(1).section(u':', 0, 0);
            continue;
        }
        const auto parts = remark.match(line);
        m_entries[heading].append({parts.captured(1), parts.captured(2)});
    }
}

int TestCommands::expectedStatus(const QString &remark)
{
    static const QRegularExpression status(QStringLiteral("^status (\\d+)"));
    return status.match(remark).captured(1).toInt();
}

void TestCommands::areAllListed_data()
{
    QTest::addColumn<QString>("command");
    for (const Document &document : Document::all()) {
        for (const QString &command : document.commands())
            QTest::addRow("%s: %s", qPrintable(document.name()), qPrintable(command)) << command;
    }
}

void TestCommands::areAllListed()
{
    QFETCH(QString, command);
    bool listed = false;
    for (const auto &entries : qAsConst(m_entries)) {
        for (const Entry &entry : entries)
            listed |= entry.command == command;
    }
    QVERIFY2(listed, "tests/Documents/commands.txt does not say how it is tried");
    for (const Entry &entry : m_entries.value(QStringLiteral("not tried")))
        QVERIFY2(!entry.remark.isEmpty(), "it is not tried, and nobody says why");
}

void TestCommands::startTheProgram_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("remark");
    for (const Entry &entry : m_entries.value(QStringLiteral("the program")))
        QTest::newRow(qPrintable(entry.command)) << entry.command << entry.remark;
}

void TestCommands::startTheProgram()
{
    QFETCH(QString, command);
    QFETCH(QString, remark);
    const Sandbox sandbox;
    Program program(sandbox);
    const QString simulator = sandbox.path(QStringLiteral("Skylark"));
    QDir().mkpath(simulator);
    writeFile(program.folder() + QStringLiteral("/plugins/Orbwell.so"), "plugin");
    writeFile(
        program.folder() + QStringLiteral("/flightsims.json"),
        QStringLiteral(R"([{"name": "Skylark", "location": 1, "path": "%1", "type": 1, "files": [)"
                       R"({"source": "Orbwell.so", "destination": "Modules/Orbwell.so"}]}])")
            .arg(simulator)
            .toUtf8());

    program.start(command.split(u' ').mid(1));
    if (remark.endsWith(QLatin1String("box"))) {
        program.box();
        program.press(QStringLiteral("OK"));
    }
    QCOMPARE(program.exitStatus(), expectedStatus(remark));
}

void TestCommands::areValidShellCommands()
{
    const Sandbox sandbox;
    const QString path
        = QFileInfo(QStringLiteral(ORBWELL_PROGRAM)).path() + u':' + qEnvironmentVariable("PATH");
    for (const Entry &entry : m_entries.value(QStringLiteral("a shell"))) {
        const CommandResult result
            = Command(QStringLiteral("sh"), {QStringLiteral("-c"), entry.command})
                  .with(QStringLiteral("PATH"), path)
                  .in(sandbox.home())
                  .run();
        const QByteArray what = entry.command.toUtf8() + ": " + result.errors;
        QVERIFY2(result.status == expectedStatus(entry.remark), what.constData());
    }
}

static void copyFolder(const QString &source, const QString &target)
{
    QDir().mkpath(QFileInfo(target).path());
    QCOMPARE(Command(QStringLiteral("cp"), {QStringLiteral("-R"), source, target}).run().status, 0);
}

// script/run --headless, with the program that is already built: building it and installing its
// dependencies takes minutes, and is left to script/documents-test.
void TestCommands::tryTheSample()
{
    for (const char *needed : {"Xvfb", "xdotool", "import"}) {
        if (!Command::exists(QLatin1String(needed)))
            QSKIP("needs Xvfb, xdotool and ImageMagick");
    }
    const Sandbox sandbox;
    const QString tree = sandbox.path(QStringLiteral("tree"));
    for (const QString &folder : {QStringLiteral("/script"), QStringLiteral("/sample")})
        copyFolder(QStringLiteral(ORBWELL_SOURCE) + folder, tree + folder);
    copyFolder(QFileInfo(QStringLiteral(ORBWELL_PROGRAM)).path(),
               tree + QStringLiteral("/build/release/bin"));
    for (const char *done : {"/script/build", "/script/bootstrap"})
        writeFile(tree + QLatin1String(done), "#!/bin/sh\n");

    const CommandResult result
        = Command(tree + QStringLiteral("/script/run"), {QStringLiteral("--headless")}).run();
    QVERIFY2(result.status == 0, result.errors.constData());
    for (const char *told : {"  simulators/X-Plane 12/Resources/plugins/Orbwell/about.txt\n",
                             "  simulators/Flight Simulator X/Gauges/QuillmontOrbwell_64.dll\n",
                             "  +        <Name>Quillmont Orbwell</Name>\n",
                             "\"name\": \"Flight Simulator X: Steam Edition\""})
        QVERIFY2(result.output.contains(told), result.output.constData());
    const QImage picture(tree + QStringLiteral("/build/sample/screenshot.png"));
    QVERIFY(picture.width() >= 640 && picture.height() >= 480);
    QVERIFY(!picture.allGray());
    QCOMPARE(treeOf(sandbox.home()), (QMap<QString, QByteArray>()));
}

QTEST_GUILESS_MAIN(TestCommands)
#include "tst_Commands.moc"
