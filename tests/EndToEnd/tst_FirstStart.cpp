#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Display.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

class TestFirstStart : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsTheWindow();
    void showsOneRowPerSimulator();
    void showsTheRowsOnAScreen();
    void keepsEverythingInsideTheWindow();
    void isDrawnAtTheScaleOfTheScreen();
    void isDrawnAtTheDensityOfTheScreen();
    void createsAnEmptyRecordAndNothingElse();
    void keepsAnOldRecord();
    void writesNoWarnings();

private:
    void start(const Display *display = nullptr);

    QString skylark() const { return m_sandbox->path(QStringLiteral("Sky lark")); }

    QString m_scale;
    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Program> m_program;
};

void TestFirstStart::init()
{
    m_scale = QStringLiteral("1");
    m_sandbox.reset(new Sandbox);
    QDir().mkpath(skylark());
    writeFile(m_sandbox->path(QStringLiteral("Kestrel/Resources/plugins/Orbwell/64/lin.xpl")), "");
    writeFile(m_sandbox->path(QStringLiteral("Kestrel/Resources/plugins/Orbwell/about.txt")), "");
}

void TestFirstStart::start(const Display *display)
{
    m_program.reset(new Program(*m_sandbox, display));
    m_program->setVariable("QT_SCALE_FACTOR", m_scale);
    place(*m_program,
          {pluginFolderEntry(QStringLiteral("Skylark"), skylark()),
           pluginFolderEntry(QStringLiteral("Kestrel"), m_sandbox->path(QStringLiteral("Kestrel"))),
           pluginFolderEntry(QStringLiteral("Plover"), m_sandbox->path(QStringLiteral("Plover")))});
    m_program->start();
    m_program->window();
}

void TestFirstStart::cleanup()
{
    m_program.reset();
    m_sandbox.reset();
}

void TestFirstStart::showsTheWindow()
{
    start();
    const SeenWindow window = m_program->window();
    QCOMPARE(window.title, QStringLiteral("Quillmont Orbwell Settings"));
    QCOMPARE(window.text,
             QStringLiteral("Orbwell will automatically detect your simulators and install the "
                            "plugin in each. Please verify below. To manually scan and install "
                            "again, press \"Scan & Install\" below."));
    QCOMPARE(window.buttonTexts(),
             QStringList({QStringLiteral("Scan & Install"), QStringLiteral("Close")}));
    QVERIFY(window.rectangle.width() >= 640);
    QVERIFY(window.rectangle.height() >= 480);
    QCOMPARE(m_program->windows().size(), 1);
}

void TestFirstStart::showsOneRowPerSimulator()
{
    start();
    const QVector<SeenRow> rows = m_program->rows();
    QCOMPARE(rows.size(), 3);

    QCOMPARE(rows.at(0).name, QStringLiteral("Plover"));
    QCOMPARE(rows.at(0).path, QString());
    QCOMPARE(rows.at(0).placeholder, QStringLiteral("Path not set"));
    QCOMPARE(rows.at(0).icon, QStringLiteral("minus-grey"));
    QCOMPARE(rows.at(0).action.text, QStringLiteral("Install Orbwell"));
    QVERIFY(!rows.at(0).action.enabled);

    QCOMPARE(rows.at(1).name, QStringLiteral("Kestrel"));
    QCOMPARE(rows.at(1).icon, QStringLiteral("check-green"));
    QCOMPARE(rows.at(1).action.text, QStringLiteral("Uninstall Orbwell"));
    QVERIFY(rows.at(1).action.enabled);

    QCOMPARE(rows.at(2).name, QStringLiteral("Skylark"));
    QCOMPARE(rows.at(2).path, skylark());
    QCOMPARE(rows.at(2).toolTip, skylark());
    QCOMPARE(rows.at(2).icon, QStringLiteral("check-grey"));
    QCOMPARE(rows.at(2).action.text, QStringLiteral("Install Orbwell"));
    QVERIFY(rows.at(2).action.enabled);
}

void TestFirstStart::showsTheRowsOnAScreen()
{
    const Display display;
    if (!display.isUp())
        QSKIP("needs Xvfb and xdotool");
    start(&display);
    QStringList icons;
    const QVector<SeenRow> rows = m_program->rows();
    for (const SeenRow &row : rows)
        icons.append(row.icon);
    QCOMPARE(icons.join(u' '), QStringLiteral("minus-grey check-green check-grey"));
}

void TestFirstStart::keepsEverythingInsideTheWindow()
{
    start();
    const SeenWindow window = m_program->window();
    for (const SeenControl &button : window.buttons)
        QVERIFY(window.rectangle.contains(button.rectangle));
    const QVector<SeenRow> rows = m_program->rows();
    for (const SeenRow &row : rows) {
        QVERIFY(window.rectangle.contains(row.rectangle));
        QVERIFY(row.rectangle.contains(row.action.rectangle));
        QVERIFY(row.rectangle.contains(row.browse.rectangle));
    }
}

void TestFirstStart::isDrawnAtTheScaleOfTheScreen()
{
    m_scale = QStringLiteral("2");
    start();
    const QString picture = m_sandbox->path(QStringLiteral("window.png"));
    m_program->grab(picture);
    QCOMPARE(QImage(picture).size(), QSize(1280, 960));
    QCOMPARE(m_program->rows().value(1).icon, QStringLiteral("check-green"));
}

void TestFirstStart::isDrawnAtTheDensityOfTheScreen()
{
    const Display display(192);
    if (!display.isUp())
        QSKIP("needs Xvfb and xdotool");
    start(&display);
    const QString picture = m_sandbox->path(QStringLiteral("window.png"));
    m_program->grab(picture);
    QCOMPARE(QImage(picture).size(), QSize(1280, 960));
}

void TestFirstStart::createsAnEmptyRecordAndNothingElse()
{
    start();
    QMap<QString, QByteArray> written = treeOf(m_sandbox->dataRoot());
    QVERIFY(written.contains(QStringLiteral("Quillmont/Orbwell/.mapping")));
    QCOMPARE(written.take(QStringLiteral("Quillmont/Orbwell/.mapping")), QByteArray());
    QCOMPARE(written.keys(),
             QStringList({QStringLiteral("Quillmont/"), QStringLiteral("Quillmont/Orbwell/")}));
    QCOMPARE(QDir(skylark()).count(), 2U); // "." and ".."
}

void TestFirstStart::keepsAnOldRecord()
{
    const QString record = m_sandbox->dataRoot() + QStringLiteral("Quillmont/Orbwell/.mapping");
    writeFile(record, "[ not quite JSON");
    start();
    QCOMPARE(readFile(record), QByteArray("[ not quite JSON"));
}

void TestFirstStart::writesNoWarnings()
{
    start();
    m_program->press(QStringLiteral("Close"));
    QCOMPARE(m_program->exitStatus(), 0);
    const QList<QByteArray> log = m_program->standardError().split('\n');
    QVERIFY(log.contains("Scanning folders..."));
    for (const QByteArray &line : log) {
        const bool ours = line.isEmpty() || line.startsWith("Scanning ")
            || line.startsWith("folder: ") || line.startsWith("orbwell: ");
        QVERIFY2(ours, line.constData());
    }
}

QTEST_GUILESS_MAIN(TestFirstStart)
#include "tst_FirstStart.moc"
