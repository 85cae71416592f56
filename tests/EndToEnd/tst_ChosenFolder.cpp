#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

class TestChosenFolder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void isShownAtOnce();
    void isRememberedByTheNextStart();
    void getsThePlugin();
    void hasPriorityOverTheDetectedFolder();
    void isForgottenByTheScanButton();
    void changesNothingWhenCancelled();

private:
    void start();
    void end();
    void choose(const QString &simulator);
    QString settings() const;

    const QString m_plover = QStringLiteral("Plover 2");
    const QString m_skylark = QStringLiteral("Skylark");
    QString m_chosen;
    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Program> m_program;
};

// Plover is not found automatically; Skylark is.
void TestChosenFolder::init()
{
    m_sandbox.reset(new Sandbox);
    m_program.reset(new Program(*m_sandbox));
    m_chosen = m_sandbox->path(QStringLiteral("Chosen by hand"));
    QDir().mkpath(m_chosen);
    QDir().mkpath(m_sandbox->path(m_skylark));
    place(*m_program,
          {pluginFolderEntry(m_skylark, m_sandbox->path(m_skylark)),
           pluginFolderEntry(m_plover, m_sandbox->path(QStringLiteral("nowhere")))});
}

void TestChosenFolder::cleanup()
{
    m_program.reset();
    m_sandbox.reset();
}

void TestChosenFolder::start()
{
    m_program->start();
    m_program->window();
}

void TestChosenFolder::end()
{
    m_program->press(QStringLiteral("Close"));
    QCOMPARE(m_program->exitStatus(), 0);
}

void TestChosenFolder::choose(const QString &simulator)
{
    m_program->pressBrowse(simulator);
    m_program->chooseFolder(m_chosen);
    m_program->window();
}

QString TestChosenFolder::settings() const
{
    return m_sandbox->dataRoot() + QStringLiteral("Quillmont/Vellum/.settings");
}

void TestChosenFolder::isShownAtOnce()
{
    start();
    QVERIFY(!m_program->row(m_plover).action.enabled);
    choose(m_plover);
    const SeenRow row = m_program->row(m_plover);
    QCOMPARE(row.path, m_chosen);
    QCOMPARE(row.toolTip, m_chosen);
    QCOMPARE(row.icon, QStringLiteral("check-grey"));
    QVERIFY(row.action.enabled);
}

void TestChosenFolder::isRememberedByTheNextStart()
{
    start();
    choose(m_plover);
    end();
    QCOMPARE(readFile(settings()), "[flightsim]\nPlover_2=" + m_chosen.toUtf8() + '\n');
    start();
    QCOMPARE(m_program->row(m_plover).path, m_chosen);
    QVERIFY(m_program->row(m_plover).action.enabled);
}

void TestChosenFolder::getsThePlugin()
{
    start();
    choose(m_plover);
    end();
    start();
    m_program->pressAction(m_plover);
    QCOMPARE(m_program->box().title, QStringLiteral("Installation complete"));
    QVERIFY(QFileInfo::exists(m_chosen + QStringLiteral("/Resources/plugins/Orbwell/64/lin.xpl")));
    QCOMPARE(recordOf(m_plover, m_sandbox->dataRoot()).value(QLatin1String("path")).toString(),
             m_chosen);
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    QCOMPARE(m_program->row(m_plover).path, m_chosen);
}

void TestChosenFolder::hasPriorityOverTheDetectedFolder()
{
    start();
    choose(m_skylark);
    end();
    start();
    QCOMPARE(m_program->row(m_skylark).path, m_chosen);
}

// The button searches for the simulators again. It installs into the folders found; each
// installation shows the rows with the chosen folders.
void TestChosenFolder::isForgottenByTheScanButton()
{
    start();
    choose(m_skylark);
    m_program->press(QStringLiteral("Scan & Install"));
    QCOMPARE(m_program->box().text,
             QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to  "
                            "Skylark."));
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    QVERIFY(treeOf(m_chosen).isEmpty());
    QVERIFY(!treeOf(m_sandbox->path(m_skylark)).isEmpty());
}

void TestChosenFolder::changesNothingWhenCancelled()
{
    start();
    m_program->pressBrowse(m_skylark);
    QVERIFY(m_program->waitFor(
        [this] { return m_program->windows().value(0).title == QLatin1String("Open Directory"); },
        "the folder dialog"));
    m_program->press(QStringLiteral("Cancel"));
    m_program->window();
    QCOMPARE(m_program->row(m_skylark).path, m_sandbox->path(m_skylark));
    QVERIFY(!QFileInfo::exists(settings()));
}

QTEST_GUILESS_MAIN(TestChosenFolder)
#include "tst_ChosenFolder.moc"
