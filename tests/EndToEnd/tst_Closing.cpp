#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Display.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

class TestClosing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void succeedsByTheButton();
    void succeedsByTheMouse();
    void succeedsByTheWindowFrame();

private:
    void start(const Display *display = nullptr);

    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Program> m_program;
};

void TestClosing::init()
{
    m_sandbox.reset(new Sandbox);
}

void TestClosing::cleanup()
{
    m_program.reset();
    m_sandbox.reset();
}

void TestClosing::start(const Display *display)
{
    m_program.reset(new Program(*m_sandbox, display));
    place(*m_program, {pluginFolderEntry(QStringLiteral("Skylark"), m_sandbox->root())});
    m_program->start();
    QVERIFY(!m_program->window().buttons.isEmpty());
    QCOMPARE(m_program->rows().size(), 1);
}

void TestClosing::succeedsByTheButton()
{
    start();
    m_program->press(QStringLiteral("Close"));
    QCOMPARE(m_program->exitStatus(), 0);
}

void TestClosing::succeedsByTheMouse()
{
    const Display display;
    if (!display.isUp())
        QSKIP("needs Xvfb and xdotool");
    start(&display);
    const SeenWindow window = m_program->window();
    for (const SeenControl &button : window.buttons) {
        if (button.text == QLatin1String("Close"))
            QVERIFY(display.click(button.rectangle.center()));
    }
    QCOMPARE(m_program->exitStatus(), 0);
}

void TestClosing::succeedsByTheWindowFrame()
{
    start();
    m_program->close();
    QCOMPARE(m_program->exitStatus(), 0);
}

QTEST_GUILESS_MAIN(TestClosing)
#include "tst_Closing.moc"
