#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Display.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QJsonDocument>
#include <QtTest>

using namespace Tests;

class TestInstallByClick : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void worksByMouseOnAScreen();
    void showsTheResult_data();
    void showsTheResult();
    void closesItsBoxByTheReturnKey();
    void copiesTheFiles();
    void addsItsEntryToTheConfiguration();
    void keepsABackupOfTheConfiguration();
    void createsAMissingLaunchDocument();
    void recordsTheInstallation();
    void showsTheRowAsInstalled();
    void doesNotTouchOtherSimulators();
    void namesTheFileThatCouldNotBeCopied();
    void isUndoneByTheNextClick();

private:
    void start(const Display *display = nullptr);
    void install(const QString &simulator);
    QString configuration(const char *simulator) const;

    const QString m_skylark = QStringLiteral("Skylark 2000");
    const QString m_plover = QStringLiteral("Plover");
    const QString m_kestrel = QStringLiteral("Kestrel");
    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Program> m_program;
};

void TestInstallByClick::init()
{
    m_sandbox.reset(new Sandbox);
    for (const QString &simulator : {m_skylark, m_plover, m_kestrel})
        writeFile(m_sandbox->path(simulator + QStringLiteral("/Gauges/other.dll")), "other");
    writeFile(configuration("Sky lark"), othersConfiguration());
}

void TestInstallByClick::cleanup()
{
    m_program.reset();
    m_sandbox.reset();
}

void TestInstallByClick::start(const Display *display)
{
    m_program.reset(new Program(*m_sandbox, display));
    place(*m_program,
          {launcherEntry(
               m_skylark, m_sandbox->path(m_skylark), QStringLiteral("Maker\\Sky lark\\dll.xml")),
           launcherEntry(
               m_plover, m_sandbox->path(m_plover), QStringLiteral("Maker\\Plover\\dll.xml")),
           pluginFolderEntry(m_kestrel, m_sandbox->path(m_kestrel))});
    m_program->start();
    m_program->window();
}

void TestInstallByClick::install(const QString &simulator)
{
    start();
    m_program->pressAction(simulator);
    m_program->box();
    m_program->press(QStringLiteral("OK"));
    m_program->window();
}

QString TestInstallByClick::configuration(const char *simulator) const
{
    return m_sandbox->dataRoot() + QStringLiteral("Maker/") + QLatin1String(simulator)
        + QStringLiteral("/dll.xml");
}

void TestInstallByClick::worksByMouseOnAScreen()
{
    const Display display;
    if (!display.isUp())
        QSKIP("needs Xvfb and xdotool");
    start(&display);
    QVERIFY(display.click(m_program->row(m_skylark).action.rectangle.center()));
    const SeenWindow box = m_program->box();
    QCOMPARE(box.title, QStringLiteral("Installation complete"));
    QVERIFY(display.click(box.buttons.value(0).rectangle.center()));
    m_program->window();
    QCOMPARE(m_program->row(m_skylark).icon, QStringLiteral("check-green"));
    QCOMPARE(
        readFile(m_sandbox->path(m_skylark + QStringLiteral("/Gauges/QuillmontOrbwell_64.dll"))),
        QByteArray("module"));
    QVERIFY(readFile(configuration("Sky lark")).contains("<Name>Quillmont Orbwell</Name>"));
    QCOMPARE(backupsOf(configuration("Sky lark"), QStringLiteral("installation")).size(), 1);
    QVERIFY(!recordOf(m_skylark, m_sandbox->dataRoot()).isEmpty());
}

void TestInstallByClick::showsTheResult_data()
{
    QTest::addColumn<QString>("simulator");
    QTest::newRow("with a configuration") << m_skylark;
    QTest::newRow("without a configuration") << m_plover;
    QTest::newRow("with a plugin folder") << m_kestrel;
}

void TestInstallByClick::showsTheResult()
{
    QFETCH(const QString, simulator);
    start();
    m_program->pressAction(simulator);
    const SeenWindow box = m_program->box();
    QCOMPARE(box.title, QStringLiteral("Installation complete"));
    QCOMPARE(box.text,
             QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to %1.")
                 .arg(simulator));
    QCOMPARE(box.icon, QStringLiteral("Information"));
    QCOMPARE(box.buttonTexts(), QStringList(QStringLiteral("OK")));
    QCOMPARE(box.parent, QString());
    QVERIFY(!m_program->isBusy());
    QCOMPARE(m_program->row(simulator).icon, QStringLiteral("check-green"));
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    QVERIFY(!m_program->isBusy());
}

void TestInstallByClick::closesItsBoxByTheReturnKey()
{
    start();
    m_program->pressAction(m_kestrel);
    m_program->box();
    m_program->pressKey(QStringLiteral("Return"));
    m_program->window();
    QCOMPARE(m_program->windows().size(), 1);
}

void TestInstallByClick::copiesTheFiles()
{
    install(m_kestrel);
    const QMap<QString, QByteArray> tree = treeOf(m_sandbox->path(m_kestrel));
    QCOMPARE(tree.value(QStringLiteral("Resources/plugins/Orbwell/64/lin.xpl")),
             QByteArray("plugin"));
    QCOMPARE(tree.value(QStringLiteral("Resources/plugins/Orbwell/about.txt")),
             QByteArray("about"));
    QCOMPARE(tree.value(QStringLiteral("Gauges/other.dll")), QByteArray("other"));
    QCOMPARE(tree.size(), 8); // three files and the five folders to them
}

void TestInstallByClick::addsItsEntryToTheConfiguration()
{
    install(m_skylark);
    QCOMPARE(readFile(configuration("Sky lark")), ourConfiguration());
}

void TestInstallByClick::keepsABackupOfTheConfiguration()
{
    install(m_skylark);
    const QStringList backups
        = backupsOf(configuration("Sky lark"), QStringLiteral("installation"));
    QCOMPARE(backups.size(), 1);
    const QDir beside = QFileInfo(configuration("Sky lark")).dir();
    QCOMPARE(readFile(beside.filePath(backups.constFirst())), othersConfiguration());
    QCOMPARE(beside.entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void TestInstallByClick::createsAMissingLaunchDocument()
{
    install(m_plover);
    QCOMPARE(launchDocument().size(), 428);
    QCOMPARE(readFile(configuration("Plover")), launchDocument());
    QCOMPARE(QFileInfo(configuration("Plover")).dir().entryList(QDir::Files).size(), 1);
}

void TestInstallByClick::recordsTheInstallation()
{
    install(m_kestrel);
    const QString folder = m_sandbox->path(m_kestrel);
    const QJsonObject expected{
        {QStringLiteral("name"), m_kestrel},
        {QStringLiteral("path"), folder},
        {QStringLiteral("files"),
         QJsonArray{folder + QLatin1String("/Resources/plugins/Orbwell/64/lin.xpl"),
                    folder + QLatin1String("/Resources/plugins/Orbwell/about.txt")}}};
    const QString record = m_sandbox->dataRoot() + QStringLiteral("Quillmont/Orbwell/.mapping");
    QCOMPARE(readFile(record), QJsonDocument(QJsonArray{expected}).toJson());
}

void TestInstallByClick::showsTheRowAsInstalled()
{
    start();
    QCOMPARE(m_program->row(m_skylark).icon, QStringLiteral("check-grey"));
    QCOMPARE(m_program->row(m_skylark).action.text, QStringLiteral("Install Orbwell"));
    m_program->pressAction(m_skylark);
    m_program->box();
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    QCOMPARE(m_program->rows().size(), 3);
    QCOMPARE(m_program->row(m_skylark).icon, QStringLiteral("check-green"));
    QCOMPARE(m_program->row(m_skylark).action.text, QStringLiteral("Uninstall Orbwell"));
}

void TestInstallByClick::doesNotTouchOtherSimulators()
{
    install(m_skylark);
    QCOMPARE(m_program->row(m_plover).icon, QStringLiteral("check-grey"));
    for (const QString &other : {m_plover, m_kestrel})
        QCOMPARE(treeOf(m_sandbox->path(other)).keys(),
                 QStringList({QStringLiteral("Gauges/"), QStringLiteral("Gauges/other.dll")}));
    QVERIFY(!QFileInfo::exists(configuration("Plover")));
}

void TestInstallByClick::namesTheFileThatCouldNotBeCopied()
{
    start();
    const QString source = m_program->folder() + QStringLiteral("/plugins/X-Plane/about.txt");
    QVERIFY(QFile::remove(source));
    m_program->pressAction(m_kestrel);
    const SeenWindow box = m_program->box();
    const QString folder = m_sandbox->path(m_kestrel) + u'/';
    const QString target = folder + QStringLiteral("Resources/plugins/Orbwell/about.txt");
    QCOMPARE(box.title, QStringLiteral("Installation"));
    QCOMPARE(box.icon, QStringLiteral("Information"));
    QCOMPARE(box.text,
             QStringLiteral("Quillmont Orbwell was not able to install your Orbwell plugin to "
                            "Kestrel.\r\n\r\nPlease see the list below for details:\r\n\r\n"
                            "Unable to copy '%1' to '%2'. Please check if you have permission to "
                            "folder '%3'.\r\n")
                 .arg(source, target, folder));
}

void TestInstallByClick::isUndoneByTheNextClick()
{
    const QMap<QString, QByteArray> before = treeOf(m_sandbox->path(m_skylark));
    install(m_skylark);
    m_program->pressAction(m_skylark);
    QCOMPARE(
        m_program->box().text,
        QStringLiteral("Quillmont Orbwell for Skylark 2000 has been uninstalled successfully."));
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    QCOMPARE(treeOf(m_sandbox->path(m_skylark)), before);
    QCOMPARE(readFile(configuration("Sky lark")), othersConfiguration());
    QVERIFY(recordOf(m_skylark, m_sandbox->dataRoot()).isEmpty());
    QCOMPARE(m_program->row(m_skylark).icon, QStringLiteral("check-grey"));
}

QTEST_GUILESS_MAIN(TestInstallByClick)
#include "tst_InstallByClick.moc"
