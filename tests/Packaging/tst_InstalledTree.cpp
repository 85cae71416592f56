#include "tests/support/Command.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QSettings>
#include <QXmlStreamReader>
#include <QtTest>

using namespace Tests;

/// What cmake --install installs below a prefix.
class TestInstalledTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void keepsCatalogueAndPayloadBesideTheProgram();
    void hasLinksToTheProgramsInThePath();
    void hasAnIconInEverySizeOfTheTheme();
    void hasAMenuEntryThatStartsTheLauncher();
    void hasAPageForTheSoftwareCentre();
    void hasManualPages_data();
    void hasManualPages();
    void completesTheDoctorsOptions();
    void hasTheSameVersionEverywhere();
    void runsFromAnyFolder();

private:
    QString path(const QString &relative) const
    {
        return m_sandbox.path(QStringLiteral("moved/usr/") + relative);
    }

    Sandbox m_sandbox;
    const QString m_together = QStringLiteral(ORBWELL_LIBDIR "/quillmont-orbwell/");
};

void TestInstalledTree::initTestCase()
{
    const CommandResult result
        = Command(QStringLiteral(ORBWELL_CMAKE),
                  {QStringLiteral("--install"),
                   QStringLiteral(ORBWELL_BUILD),
                   QStringLiteral("--prefix"),
                   QStringLiteral("/usr")})
              .with(QStringLiteral("DESTDIR"), m_sandbox.path(QStringLiteral("staged")))
              .run();
    QVERIFY2(result.status == 0, result.errors.constData());
    QVERIFY(QDir().rename(m_sandbox.path(QStringLiteral("staged")),
                          m_sandbox.path(QStringLiteral("moved"))));
}

void TestInstalledTree::keepsCatalogueAndPayloadBesideTheProgram()
{
    QVERIFY(QFileInfo(path(m_together + QStringLiteral("QuillmontOrbwell"))).isExecutable());
    QCOMPARE(readFile(path(m_together + QStringLiteral("flightsims.json"))),
             readFile(QStringLiteral(ORBWELL_SOURCE "/catalogue/flightsims.json")));
    QCOMPARE(treeOf(path(m_together + QStringLiteral("plugins"))),
             treeOf(QStringLiteral(ORBWELL_SOURCE "/sample/plugins")));
}

void TestInstalledTree::hasLinksToTheProgramsInThePath()
{
    for (const char *name : {"QuillmontOrbwell", "orbwell-doctor"}) {
        const QFileInfo launcher(path(QStringLiteral("bin/") + QLatin1String(name)));
        QVERIFY(launcher.isSymLink());
        QCOMPARE(launcher.canonicalFilePath(),
                 QFileInfo(path(m_together + QLatin1String(name))).canonicalFilePath());
    }
}

void TestInstalledTree::hasAnIconInEverySizeOfTheTheme()
{
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QImage icon(
            path(QStringLiteral("share/icons/hicolor/%1x%1/apps/quillmont-orbwell.png").arg(size)));
        QCOMPARE(icon.size(), QSize(size, size));
        QVERIFY(icon.hasAlphaChannel());
    }
    QVERIFY(QFile::exists(
        path(QStringLiteral("share/icons/hicolor/scalable/apps/quillmont-orbwell.svg"))));
}

void TestInstalledTree::hasAMenuEntryThatStartsTheLauncher()
{
    const QString file = path(QStringLiteral("share/applications/QuillmontOrbwell.desktop"));
    QSettings entry(file, QSettings::IniFormat);
    entry.beginGroup(QStringLiteral("Desktop Entry"));
    QCOMPARE(entry.value(QStringLiteral("Exec")).toString(), QStringLiteral("QuillmontOrbwell"));
    QCOMPARE(entry.value(QStringLiteral("Icon")).toString(), QStringLiteral("quillmont-orbwell"));
    // The window has the program's name as its class, by which a panel finds the icon.
    QCOMPARE(entry.value(QStringLiteral("StartupWMClass")).toString(),
             QStringLiteral("QuillmontOrbwell"));

    if (!Command::exists(QStringLiteral("desktop-file-validate")))
        QSKIP("needs desktop-file-validate to see more");
    const CommandResult result = Command(QStringLiteral("desktop-file-validate"), {file}).run();
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.status, 0);
}

void TestInstalledTree::hasAPageForTheSoftwareCentre()
{
    const QString file = path(QStringLiteral("share/metainfo/com.quillmont.orbwell.metainfo.xml"));
    QXmlStreamReader page(readFile(file));
    QString entry;
    while (!page.atEnd()) {
        if (page.readNext() == QXmlStreamReader::StartElement
            && page.name() == QLatin1String("launchable"))
            entry = page.readElementText();
    }
    QVERIFY2(!page.hasError(), qPrintable(page.errorString()));
    QVERIFY(QFile::exists(path(QStringLiteral("share/applications/") + entry)));

    if (!Command::exists(QStringLiteral("appstreamcli")))
        QSKIP("needs appstreamcli to see more");
    const CommandResult result
        = Command(QStringLiteral("appstreamcli"),
                  {QStringLiteral("validate"), QStringLiteral("--no-net"), file})
              .run();
    QVERIFY2(result.status == 0, result.output.constData());
}

static QByteArray manualPage(const QString &file)
{
    return Command(QStringLiteral("gzip"), {QStringLiteral("-dc"), file}).run().output;
}

void TestInstalledTree::hasManualPages_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("options");
    QTest::newRow("window") << QStringLiteral("QuillmontOrbwell")
                            << QByteArray("INSTALL REPAIR UNINSTALL");
    QTest::newRow("doctor") << QStringLiteral("orbwell-doctor")
                            << QByteArray("json plan catalogue check\\-catalogue help version");
}

void TestInstalledTree::hasManualPages()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, options);
    const QString file = path(QStringLiteral("share/man/man1/%1.1.gz").arg(name));
    const QByteArray page = manualPage(file);
    for (const QByteArray &option : options.split(' '))
        QVERIFY2(page.contains("\\-\\-" + option), option.constData());
    QVERIFY(!page.contains('@'));

    if (!Command::exists(QStringLiteral("man")))
        QSKIP("needs man to see more");
    const CommandResult result
        = Command(QStringLiteral("man"),
                  {QStringLiteral("--warnings"), QStringLiteral("--local-file"), file})
              .run();
    QCOMPARE(result.errors, QByteArray());
    QVERIFY(result.output.contains("NAME"));
}

// Completes as bash does when the user presses Tab.
void TestInstalledTree::completesTheDoctorsOptions()
{
    const QString script = QStringLiteral(
        "source \"$1\"; COMP_WORDS=(orbwell-doctor $2); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
        "_orbwell_doctor; echo \"${COMPREPLY[@]}\"");
    const auto completed = [&](const QString &words) {
        const QString file
            = path(QStringLiteral("share/bash-completion/completions/orbwell-doctor"));
        return Command(QStringLiteral("bash"),
                       {QStringLiteral("-c"), script, QStringLiteral("bash"), file, words})
            .run()
            .output;
    };
    QCOMPARE(completed(QStringLiteral("--ch")), QByteArray("--check-catalogue\n"));
    QCOMPARE(completed(QStringLiteral("--plan = re")), QByteArray("repair\n"));
    // What follows it without "=" is a simulator's name.
    QCOMPARE(completed(QStringLiteral("--plan re")), QByteArray("\n"));
    const QByteArray help
        = Command(path(QStringLiteral("bin/orbwell-doctor")), {QStringLiteral("--help")})
              .run()
              .output;
    for (const QByteArray &option : completed(QStringLiteral("--")).simplified().split(' '))
        QVERIFY2(help.contains(option.split('=').first()), option.constData());
}

void TestInstalledTree::hasTheSameVersionEverywhere()
{
    const QByteArray version = ORBWELL_VERSION;
    const QByteArray changes = readFile(QStringLiteral(ORBWELL_SOURCE "/CHANGELOG.md"));
    const auto newest = QRegularExpression(QStringLiteral("^## (\\S+) - (\\d{4}-\\d\\d-\\d\\d)$"),
                                           QRegularExpression::MultilineOption)
                            .match(QString::fromUtf8(changes));
    QCOMPARE(newest.captured(1).toUtf8(), version);

    const QByteArray metainfo
        = readFile(path(QStringLiteral("share/metainfo/com.quillmont.orbwell.metainfo.xml")));
    const QByteArray date = newest.captured(2).toUtf8();
    QVERIFY(metainfo.contains("<release version=\"" + version + "\" date=\"" + date + "\"/>"));
    for (const char *name : {"QuillmontOrbwell", "orbwell-doctor"})
        QVERIFY(manualPage(path(QStringLiteral("share/man/man1/%1.1.gz").arg(QLatin1String(name))))
                    .contains(' ' + version + '"'));
    const QString doctor = path(QStringLiteral("bin/orbwell-doctor"));
    QCOMPARE(Command(doctor, {QStringLiteral("--version")}).run().output,
             "orbwell-doctor " + version + '\n');
}

void TestInstalledTree::runsFromAnyFolder()
{
    const QString simulator = m_sandbox.path(QStringLiteral("Skylark"));
    QDir().mkpath(simulator);
    writeFile(
        path(m_together + QStringLiteral("flightsims.json")),
        QStringLiteral(R"([{"name": "Skylark", "location": 1, "path": "%1", "type": 1, "files": [)"
                       R"({"source": "X-Plane/about.txt", "destination": "Orbwell/about.txt"}]}])")
            .arg(simulator)
            .toUtf8());

    const CommandResult before
        = Command(path(QStringLiteral("bin/orbwell-doctor")), {QStringLiteral("--plan")})
              .with(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none"))
              .run();
    QVERIFY2(before.output.contains("File made: \""), before.errors.constData());

    const CommandResult result
        = Command(path(QStringLiteral("bin/QuillmontOrbwell")),
                  {QStringLiteral("--INSTALL"), QStringLiteral("1")})
              .with(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"))
              .run();
    QVERIFY2(result.status == 2, result.errors.constData());
    QCOMPARE(readFile(simulator + QStringLiteral("/Orbwell/about.txt")),
             readFile(QStringLiteral(ORBWELL_SOURCE "/sample/plugins/X-Plane/about.txt")));
    // Directly below the maker's folder: the program removes its own name from the path.
    QVERIFY(QFile::exists(m_sandbox.dataRoot() + QStringLiteral("Quillmont/Orbwell/.mapping")));
    QCOMPARE(Command(path(QStringLiteral("bin/orbwell-doctor"))).run().status, 0);
}

QTEST_GUILESS_MAIN(TestInstalledTree)
#include "tst_InstalledTree.moc"
