#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Display.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QElapsedTimer>
#include <QtTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Tests;

// Holds the lock like another working copy, for its lifetime.
class OtherCopy
{
public:
    explicit OtherCopy(const QString &folder)
    {
        QDir().mkpath(folder);
        m_folder = open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
        // A shared lock, so that the test fails unless the program requests an exclusive one.
        if (flock(m_folder, LOCK_SH | LOCK_NB) != 0)
            qFatal("cannot lock %s", qPrintable(folder));
    }

    ~OtherCopy() { close(m_folder); }
    Q_DISABLE_COPY(OtherCopy)

private:
    int m_folder;
};

// What the program does while another copy, here this test, is working on the simulators' files.
class TestTakingTurns : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startsAtOnceWithNothingToClear();
    void waitsBeforeItChangesAFile_data();
    void waitsBeforeItChangesAFile();
    void waitsForEachWorkingCopy();
    void waitsOnlyOnceForAHangingCopy();
    void takesNoInputOfAUserWhileItWaits();

private:
    QString simulator(const QString &name) const { return m_sandbox->path(name); }

    QString module() const
    {
        return simulator(QStringLiteral("Wren/Gauges/QuillmontOrbwell_64.dll"));
    }

    void fill();
    void holdTheLock();
    void waitFor(const char *line, int times = 1);

    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Program> m_program;
    QScopedPointer<OtherCopy> m_other;
};

static const char *const waiting = "waiting for another copy of the program";

// Null if there is no such file.
static QByteArray contentAt(const QString &path)
{
    return QFile::exists(path) ? readFile(path) : QByteArray();
}

static QJsonObject with(QJsonObject entry, const char *solution)
{
    entry.insert(QStringLiteral("conflict"),
                 QJsonObject{{QStringLiteral("name"), QStringLiteral("Maker")},
                             {QStringLiteral("solution"), QLatin1String(solution)}});
    return entry;
}

// "Wren" is installed. "Crane" has a conflict with it, which counts only if both exist.
void TestTakingTurns::init()
{
    m_sandbox.reset(new Sandbox);
    m_program.reset(new Program(*m_sandbox));
    fill();
    QDir().mkpath(simulator(QStringLiteral("Wren")));
    holdTheLock();
}

void TestTakingTurns::fill()
{
    QJsonArray entries;
    for (const char *name : {"Wren", "Crane"}) {
        const QString text = QLatin1String(name);
        const QString configuration = text + QStringLiteral("/dll.xml");
        entries.append(with(launcherEntry(text, simulator(text), configuration), "solved.xml"));
    }
    place(*m_program, entries);
}

void TestTakingTurns::cleanup()
{
    m_other.reset();
    m_program.reset();
    m_sandbox.reset();
}

void TestTakingTurns::holdTheLock()
{
    m_other.reset(new OtherCopy(m_sandbox->dataRoot() + QStringLiteral("Quillmont/Orbwell")));
}

void TestTakingTurns::waitFor(const char *line, int times)
{
    m_program->waitFor(
        [this, line, times] { return m_program->standardError().count(line) >= times; }, line);
}

void TestTakingTurns::startsAtOnceWithNothingToClear()
{
    m_program->start();
    QCOMPARE(m_program->window().title, QStringLiteral("Quillmont Orbwell Settings"));
    m_program->press(QStringLiteral("Close"));
    QCOMPARE(m_program->exitStatus(), 0);
    QVERIFY(!m_program->standardError().contains(waiting));
}

void TestTakingTurns::waitsBeforeItChangesAFile_data()
{
    QTest::addColumn<QString>("unfinished");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("calledAs");
    QTest::addColumn<bool>("conflict");
    const QByteArray none;
    const QByteArray module("module");
    const QByteArray half("half");
    const QString plugin;
    const QString own = QStringLiteral("Wren/dll.xml_quillmont_unfinished");
    const QString solved = QStringLiteral("solved.xml_quillmont_unfinished");
    const QString usual;
    const QString nameless = QStringLiteral("/");
    QTest::newRow("to install") << plugin << none << module << usual << false;
    QTest::newRow("to remove") << plugin << module << none << usual << false;
    QTest::newRow("with a program name that is not in the path")
        << plugin << none << module << nameless << false;
    QTest::newRow("to clear") << own << half << none << usual << false;
    QTest::newRow("to clear before a conflict") << own << half << none << usual << true;
    QTest::newRow("to clear in a conflict") << solved << half << none << usual << true;
    QTest::newRow("to clear after a conflict") << solved << half << none << usual << false;
}

void TestTakingTurns::waitsBeforeItChangesAFile()
{
    QFETCH(const QString, unfinished);
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    QFETCH(const QString, calledAs);
    QFETCH(const bool, conflict);
    const bool isChange = unfinished.isEmpty();
    const QString file = isChange ? module() : m_sandbox->dataRoot() + unfinished;
    if (!before.isNull())
        writeFile(file, before);
    if (conflict)
        QDir().mkpath(simulator(QStringLiteral("Crane")));
    m_program->setCalledAs(calledAs);

    m_program->start();
    if (isChange) {
        m_program->window();
        m_program->pressAction(QStringLiteral("Wren"));
    }
    waitFor(waiting);
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(contentAt(file), before);
    m_other.reset();
    if (isChange) {
        m_program->box();
        m_program->press(QStringLiteral("OK"));
    }
    m_program->window();
    QCOMPARE(contentAt(file), after);
    QCOMPARE(QFile::exists(file), !after.isNull());
    m_program->press(QStringLiteral("Close"));
    QCOMPARE(m_program->exitStatus(), 0);
}

// One installs, then one removes.
void TestTakingTurns::waitsForEachWorkingCopy()
{
    m_program->start();
    m_program->window();
    for (const int turn : {1, 2}) {
        holdTheLock();
        m_program->pressAction(QStringLiteral("Wren"));
        waitFor(waiting, turn);
        QCOMPARE(QFile::exists(module()), turn == 2);
        m_other.reset();
        m_program->box();
        m_program->press(QStringLiteral("OK"));
        m_program->window();
        QCOMPARE(QFile::exists(module()), turn == 1);
    }
    m_program->press(QStringLiteral("Close"));
    QCOMPARE(m_program->exitStatus(), 0);
}

// Ten seconds in all, however many changes there are: here a removal and an installation.
void TestTakingTurns::waitsOnlyOnceForAHangingCopy()
{
    m_program->start(quietInstallation());
    waitFor(waiting);
    QElapsedTimer patience;
    patience.start();
    waitFor("not waiting any longer");
    QVERIFY2(patience.elapsed() >= 9500, qPrintable(QString::number(patience.elapsed())));
    QCOMPARE(m_program->exitStatus(), 2);
    QVERIFY2(patience.elapsed() < 19000, qPrintable(QString::number(patience.elapsed())));
    QCOMPARE(m_program->standardError().count(waiting), 1);
    QCOMPARE(contentAt(module()), QByteArray("module"));
}

void TestTakingTurns::takesNoInputOfAUserWhileItWaits()
{
    const Display display;
    if (!display.isUp())
        QSKIP("needs Xvfb and xdotool");
    m_program.reset(new Program(*m_sandbox, &display, QStringLiteral("visible")));
    fill();
    m_program->start();
    const SeenWindow window = m_program->window();
    const auto click = [&](const SeenControl &button) {
        QVERIFY(display.click(button.rectangle.center()));
    };
    const SeenControl action = m_program->row(QStringLiteral("Wren")).action;
    click(action);
    m_program->waitFor(
        [this] { return m_program->windows().value(0).text.contains(QLatin1String("Wren\n")); },
        "the progress window");
    for (const SeenControl &button : window.buttons)
        click(button);
    click(action);
    m_other.reset();
    m_program->box();
    m_program->press(QStringLiteral("OK"));
    QCOMPARE(m_program->window().number, window.number);
    QVERIFY(m_program->isRunning());
    QCOMPARE(m_program->standardError().count("install "), 1);
    QCOMPARE(contentAt(module()), QByteArray("module"));
}

QTEST_GUILESS_MAIN(TestTakingTurns)
#include "tst_TakingTurns.moc"
