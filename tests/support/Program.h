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

/// The program that ships, as a process of its own in a folder of its own inside a sandbox, with
/// the sandbox's home. A test places the catalogue and the payload into folder(). Whatever the
/// program does not do in time fails the running test.
class Program
{
public:
    /// Runs without a screen, or on @p display when there is one, from @p folder of the sandbox.
    explicit Program(const Sandbox &sandbox,
                     const Display *display = nullptr,
                     const QString &folder = QStringLiteral("program"));
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// The folder that the executable lies in, without a slash at its end.
    QString folder() const { return m_folder; }

    /// Sets a variable of the environment that the next start gets.
    void setVariable(const char *name, const QString &value);

    /// What the next start calls the program, in place of its path.
    void setCalledAs(const QString &name) { m_calledAs = name; }

    /// Has @p prepare done in the next process before it becomes the program.
    void prepare(std::function<void()> prepare) { m_process.prepare = std::move(prepare); }

    /// A command that the next start runs the program under: a tracer and its options.
    void setTracer(const QStringList &command) { m_tracer = command; }

    /// Starts it; the arguments are its command line's.
    void start(const QStringList &arguments = {});

    /// Whether the process has not ended yet.
    bool isRunning() const { return m_process.state() == QProcess::Running; }

    /// The visible windows, the one that takes input first.
    QVector<SeenWindow> windows();
    /// The rows of the list of simulators, from the top.
    QVector<SeenRow> rows();
    /// The row of that simulator; an empty one if there is none.
    SeenRow row(const QString &simulator);
    /// Whether the busy pointer is up.
    bool isBusy();
    /// Waits for a message box.
    SeenWindow box();
    /// Waits for the window with its rows, no box over it.
    SeenWindow window();

    /// Presses "Install Orbwell" or "Uninstall Orbwell" in the simulator's row.
    void pressAction(const QString &simulator);
    /// Presses "..." in the simulator's row.
    void pressBrowse(const QString &simulator);
    /// Presses the button in the window that takes input.
    void press(const QString &button);
    /// Enters a folder into the open folder dialog and presses its button.
    void chooseFolder(const QString &folder);
    /// Presses a key, "Esc" or "Tab", in the window that takes input.
    void pressKey(const QString &key);
    /// Closes the window that takes input by its frame.
    void close();
    /// Saves a picture of the window that takes input as a PNG file.
    void grab(const QString &file);

    /// Waits until @p condition holds; false, and the test has failed, if it never does.
    bool waitFor(const std::function<bool()> &condition, const char *what);
    /// Waits for the end of the process and gives its exit status, -1 after a crash.
    int exitStatus();
    /// All that it has written to standard error since its start, at each call.
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
