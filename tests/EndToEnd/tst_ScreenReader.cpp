#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Command.h"
#include "tests/support/Display.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QtTest>

using namespace Tests;

// What a screen reader finds and presses, on the system's accessibility bus.
class TestScreenReader : public QObject
{
    Q_OBJECT

private slots:
    void findsARowAndPressesItsButton();

private:
    CommandResult listen(const QString &python, const QString &program) const;

    Sandbox m_sandbox;
    Display m_display;
};

CommandResult TestScreenReader::listen(const QString &python, const QString &program) const
{
    return Command(QStringLiteral("dbus-run-session"),
                   {QStringLiteral("--"),
                    python,
                    QStringLiteral(ORBWELL_SOURCE "/tests/EndToEnd/screen-reader.py"),
                    program,
                    QStringLiteral("Skylark")})
        .with(QStringLiteral("DISPLAY"), m_display.name())
        .with(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"))
        .with(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"))
        .with(QStringLiteral("XDG_RUNTIME_DIR"), m_sandbox.path(QStringLiteral("runtime")))
        .run();
}

void TestScreenReader::findsARowAndPressesItsButton()
{
    if (!qEnvironmentVariableIsSet("ORBWELL_SCREEN_READER"))
        QSKIP("script/check screen-reader asks for it: the bus is others', and sometimes loses a "
              "press");
    if (!m_display.isUp() || !Command::exists(QStringLiteral("dbus-run-session")))
        QSKIP("needs Xvfb, xdotool and dbus-run-session");
    const Program program(m_sandbox);
    const QString folder = m_sandbox.path(QStringLiteral("Skylark"));
    QDir().mkpath(folder);
    place(program,
          {pluginFolderEntry(QStringLiteral("Skylark"), folder),
           pluginFolderEntry(QStringLiteral("Elsewhere"), folder + QStringLiteral("/gone"))});

    const QString executable = program.folder() + QStringLiteral("/QuillmontOrbwell");
    // The module belongs to the system's Python, which may not be the first on the path.
    CommandResult heard = listen(QStringLiteral("python3"), executable);
    if (heard.status == 77)
        heard = listen(QStringLiteral("/usr/bin/python3"), executable);
    if (heard.status == 77)
        QSKIP("needs at-spi2-core and python3-pyatspi");

    QVERIFY2(heard.status == 0, (heard.errors.right(300) + heard.output).constData());
    const char *elsewhere = "list item: Elsewhere: Folder not known\n"
                            "- image: Elsewhere: Folder not known\n"
                            "- label: Elsewhere\n"
                            "- text: Folder of Elsewhere\n"
                            "- push button: Choose the folder of Elsewhere\n"
                            "- push button: Install Orbwell: Elsewhere\n";
    const QByteArray expected = QByteArray(elsewhere)
        + "list item: Skylark: Orbwell is not installed\n"
          "- image: Skylark: Orbwell is not installed\n"
          "- label: Skylark\n"
          "- text: Folder of Skylark\n"
          "- push button: Choose the folder of Skylark\n"
          "- push button: Install Orbwell: Skylark\n"
          "alert: Installation complete\n"
          "- label: Quillmont Orbwell have successfully installed Orbwell plugin to Skylark.\n"
        + elsewhere
        + "list item: Skylark: Orbwell is installed\n"
          "- image: Skylark: Orbwell is installed\n"
          "- label: Skylark\n"
          "- text: Folder of Skylark\n"
          "- push button: Choose the folder of Skylark\n"
          "- push button: Uninstall Orbwell: Skylark\n"
          "status: 0\n";
    // The bus's registry prints its own lines first.
    QCOMPARE(heard.output.mid(heard.output.indexOf("list item")), expected);
}

QTEST_GUILESS_MAIN(TestScreenReader)
#include "tst_ScreenReader.moc"
