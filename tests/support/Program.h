#ifndef TESTS_SUPPORT_PROGRAM_H
#define TESTS_SUPPORT_PROGRAM_H

#include "tests/support/Seen.h"

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <functional>

class QJsonObject;

namespace Tests {

class Display;
class Sandbox;

/// The shipped program as a separate process, in its own folder inside a sandbox, with the
/// sandbox's home. A test puts the catalogue and the payload into folder(). A time-out fails the
/// running test.
class Program
{
public:
    /// Runs without a screen, or on @p display if not null, from @p folder of the sandbox.
    explicit Program(const Sandbox &sandbox,
                     const Display *display = nullptr,
                     const QString &folder = QStringLiteral("program"));
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// The folder of the executable, without a trailing slash.
    QString folder() const { return m_folder; }

    /// Sets an environment variable for the next start.
    void setVariable(const char *name, const QString &value);

    /// Sets argv[0] of the next start, which is otherwise the path.
    void setCalledAs(const QString &name) { m_calledAs = name; }

    /// Runs @p prepare in the next child process before it executes the program.
    void prepare(std::function<void()> prepare) { m_process.prepare = std::move(prepare); }

    /// Sets a command to run the program under: a tracer and its options.
    void setTracer(const QStringList &command) { m_tracer = command; }

    /// Starts the program with these arguments.
    void start(const QStringList &arguments = {});

    /// Whether the process is running.
    bool isRunning() const { return m_process.state() == QProcess::Running; }

    /// The visible windows, the active one first.
    QVector<SeenWindow> windows();
    /// The rows of the list of simulators, from the top.
    QVector<SeenRow> rows();
    /// The row of that simulator; an empty one if there is none.
    SeenRow row(const QString &simulator);
    /// Whether the busy pointer is shown.
    bool isBusy();
    /// Waits for a message box.
    SeenWindow box();
    /// Waits for the window with its rows and without a box.
    SeenWindow window();

    /// Presses "Install Orbwell" or "Uninstall Orbwell" in the simulator's row.
    void pressAction(const QString &simulator);
    /// Presses "..." in the simulator's row.
    void pressBrowse(const QString &simulator);
    /// Presses the button in the active window.
    void press(const QString &button);
    /// Enters a folder into the open folder dialog and presses its button.
    void chooseFolder(const QString &folder);
    /// Presses a key, such as "Esc" or "Tab", in the active window.
    void pressKey(const QString &key);
    /// Closes the active window by its frame.
    void close();
    /// Saves a picture of the active window as a PNG file.
    void grab(const QString &file);

    /// Waits until @p condition holds; if it never does, fails the test and returns false.
    bool waitFor(const std::function<bool()> &condition, const char *what);
    /// Waits for the end of the process and returns its exit status, -1 after a crash.
    int exitStatus();
    /// Everything that it has written to standard error since its start.
    QByteArray standardError();

private:
    class Process : public QProcess
    {
    public:
        std::function<void()> prepare;

    protected:
        void setupChildProcess() override;
    };

    QJsonObject ask(const QJsonObject &question);
    void order(const QJsonObject &deed);

    const QString m_folder;
    const QString m_executable;
    QString m_calledAs;
    QStringList m_tracer;
    QProcessEnvironment m_environment;
    QByteArray m_errors;
    Process m_process;
};

} // namespace Tests

#endif
