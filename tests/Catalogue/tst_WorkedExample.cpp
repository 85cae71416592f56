#include "tests/Catalogue/Catalogues.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

namespace {

constexpr auto othersEntry = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<SimBase.Document Type=\"Launch\" version=\"1,0\">\n"
                             "    <Launch.Addon>\n"
                             "        <Name>Somebody's étude</Name>\n"
                             "    </Launch.Addon>\n"
                             "</SimBase.Document>\n";

// The block of the guide that is not JSON: the entry that the example says is added.
QByteArray promisedEntry()
{
    const QByteArray guide = readFile(QStringLiteral(ORBWELL_SOURCE "/docs/catalogue.md"));
    const int begin = guide.indexOf("```xml\n") + 7;
    return guide.mid(begin, guide.indexOf("```", begin) - begin);
}

} // namespace

class TestWorkedExample : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void installsWhatTheGuidePromises();
    void removesEverythingAgain();
    void leavesTheEmptyFolderThatTheGuideMentions();
    void editsTheFileInThePrefixOfAGame();
    void givesTheSecondEditionItsOwnFile();
    void installsIntoTheSecondCopyOfASimulator();

private:
    QString simulator(const char *name) const;

    QString data(const char *file) const { return m_sandbox->dataRoot() + QLatin1String(file); }

    void start(QByteArray catalogue);
    void pressAndConfirm(const char *name);

    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Program> m_program;
};

void TestWorkedExample::init()
{
    m_sandbox.reset(new Sandbox);
    m_program.reset(new Program(*m_sandbox));
    const QString payload = m_program->folder() + QStringLiteral("/plugins/Kestrel/");
    for (const char *file : {"Orbwell.so", "Orbwell.dll", "gauge.png", "panel.cfg"})
        writeFile(payload + QLatin1String(file), file);
    writeFile(simulator("Kestrel Flight Deck/Panels/Somebody/panel.cfg"), "somebody else's");
    writeFile(data("Kestrel/launch.xml"), othersEntry);
}

void TestWorkedExample::cleanup()
{
    m_program.reset();
    m_sandbox.reset();
}

QString TestWorkedExample::simulator(const char *name) const
{
    return m_sandbox->path(QStringLiteral("opt/") + QLatin1String(name));
}

void TestWorkedExample::start(QByteArray catalogue)
{
    catalogue.replace("/opt/", m_sandbox->path(QStringLiteral("opt/")).toUtf8());
    writeFile(m_program->folder() + QStringLiteral("/flightsims.json"), catalogue);
    m_program->start();
    m_program->window();
}

void TestWorkedExample::pressAndConfirm(const char *name)
{
    m_program->pressAction(QLatin1String(name));
    m_program->box();
    m_program->press(QStringLiteral("OK"));
    m_program->window();
}

void TestWorkedExample::installsWhatTheGuidePromises()
{
    start(jsonBlocks(QStringLiteral("docs/catalogue.md")).value(0));
    pressAndConfirm("Kestrel Flight Deck");
    QCOMPARE(m_program->row(QStringLiteral("Kestrel Flight Deck")).icon,
             QStringLiteral("check-green"));
    QCOMPARE(readFile(simulator("Kestrel Flight Deck/Modules/Orbwell.so")),
             QByteArray("Orbwell.so"));

    QVERIFY(promisedEntry().contains("Quillmont Orbwell"));
    QByteArray withOurs(othersEntry);
    withOurs.replace("</SimBase.Document>", promisedEntry() + "</SimBase.Document>");
    QCOMPARE(readFile(data("Kestrel/launch.xml")), withOurs);
}

void TestWorkedExample::removesEverythingAgain()
{
    const auto before = treeOf(simulator("Kestrel Flight Deck"));
    start(jsonBlocks(QStringLiteral("docs/catalogue.md")).value(0));
    pressAndConfirm("Kestrel Flight Deck");
    QVERIFY(treeOf(simulator("Kestrel Flight Deck")) != before);
    writeFile(data("Kestrel/orbwell-settings.ini"), "written by the plugin");

    pressAndConfirm("Kestrel Flight Deck");
    QCOMPARE(treeOf(simulator("Kestrel Flight Deck")), before);
    QCOMPARE(readFile(data("Kestrel/launch.xml")), QByteArray(othersEntry));
    QVERIFY(!QFile::exists(data("Kestrel/orbwell-settings.ini")));
}

void TestWorkedExample::leavesTheEmptyFolderThatTheGuideMentions()
{
    QByteArray catalogue = jsonBlocks(QStringLiteral("docs/catalogue.md")).value(0);
    catalogue.replace("Panels/Orbwell/panel.cfg", "Panels/Orbwell/about.txt");
    catalogue.replace("Panels/Orbwell/Images/", "Panels/Orbwell/images/");
    start(catalogue);
    pressAndConfirm("Kestrel Flight Deck");
    pressAndConfirm("Kestrel Flight Deck");
    QVERIFY(QDir(simulator("Kestrel Flight Deck/Panels/Orbwell")).isEmpty());
    QVERIFY(QFile::exists(simulator("Kestrel Flight Deck/Panels/Orbwell")));
}

void TestWorkedExample::editsTheFileInThePrefixOfAGame()
{
    const QString file = data("Steam/steamapps/compatdata/4711/pfx/drive_c/users/steamuser/AppData/"
                              "Roaming/Kestrel/launch.xml");
    writeFile(file, othersEntry);
    QDir().mkpath(simulator("SteamLibrary/steamapps/common/Kestrel"));
    start(jsonBlocks(QStringLiteral("docs/catalogue.md")).value(1));
    pressAndConfirm("Kestrel Flight Deck for Windows");
    QVERIFY(readFile(file).contains("Modules\\Orbwell.dll"));
    pressAndConfirm("Kestrel Flight Deck for Windows");
    QCOMPARE(readFile(file), QByteArray(othersEntry));
}

void TestWorkedExample::givesTheSecondEditionItsOwnFile()
{
    QDir().mkpath(simulator("Kestrel Flight Deck 2"));
    start(jsonBlocks(QStringLiteral("docs/catalogue.md")).value(2));
    pressAndConfirm("Kestrel Flight Deck 2");
    QCOMPARE(readFile(data("Kestrel/launch.xml")), QByteArray(othersEntry));
    QVERIFY(readFile(data("Kestrel 2/launch.xml")).contains("Modules\\Orbwell.so"));

    pressAndConfirm("Kestrel Flight Deck");
    QVERIFY(readFile(data("Kestrel/launch.xml")).contains("Modules\\Orbwell.so"));
}

void TestWorkedExample::installsIntoTheSecondCopyOfASimulator()
{
    const QString payload = m_program->folder() + QStringLiteral("/plugins/X-Plane/");
    for (const char *file : {"64/lin.xpl", "about.txt"})
        writeFile(payload + QLatin1String(file), file);
    for (const char *folder : {"X-Plane 12", "X-Plane 12 beta"}) {
        writeFile(simulator(folder) + QStringLiteral("/X-Plane-x86_64"), "");
        writeFile(simulator(folder) + QStringLiteral("/Resources/plugins/Somebody/64/lin.xpl"), "");
    }
#ifdef Q_OS_MACOS
    const QString lists = QStringLiteral("/Library/Preferences");
#else
    const QString lists = QStringLiteral("/.x-plane");
#endif
    writeFile(m_sandbox->home() + lists + QStringLiteral("/x-plane_install_12.txt"),
              (simulator("X-Plane 12") + u'\n' + simulator("X-Plane 12 beta")).toUtf8());
    const auto before = treeOf(m_sandbox->path(QStringLiteral("opt")));
    start(jsonBlocks(QStringLiteral("docs/catalogue.md")).value(3));
    for (const char *name : {"X-Plane 12 beta", "X-Plane 12"}) {
        QCOMPARE(m_program->row(QLatin1String(name)).path, simulator(name));
        pressAndConfirm(name);
        QCOMPARE(
            readFile(simulator(name) + QStringLiteral("/Resources/plugins/Orbwell/64/lin.xpl")),
            QByteArray("64/lin.xpl"));
    }
    for (const char *name : {"X-Plane 12", "X-Plane 12 beta"})
        pressAndConfirm(name);
    QCOMPARE(treeOf(m_sandbox->path(QStringLiteral("opt"))), before);
}

QTEST_GUILESS_MAIN(TestWorkedExample)
#include "tst_WorkedExample.moc"
