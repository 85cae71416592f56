#include "tests/support/Program.h"

#include "tests/support/Display.h"
#include "tests/support/Sandbox.h"
#include "tests/support/driver/Channel.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <unistd.h>

namespace Tests {

static const int patience = 30000;

static void fail(const QString &what)
{
    QTest::qFail(qUtf8Printable(what), __FILE__, __LINE__);
}

static QString copyOfProgram(const QString &folder)
{
    const QFileInfo built(QStringLiteral(ORBWELL_PROGRAM));
    QString copy = folder + u'/' + built.fileName();
    if (!QDir().mkpath(folder) || !QFile::copy(built.filePath(), copy))
        qFatal("cannot place the program at %s", qPrintable(copy));
    return copy;
}

// The program looks the same on every desktop.
static QProcessEnvironment plainEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY",
                             "WAYLAND_DISPLAY",
                             "XDG_CURRENT_DESKTOP",
                             "DESKTOP_SESSION",
                             "QT_QPA_PLATFORMTHEME",
                             "QT_STYLE_OVERRIDE",
                             "QT_SCALE_FACTOR"})
        environment.remove(QLatin1String(name));
    return environment;
}

Program::Program(const Sandbox &sandbox, const Display *display, const QString &folder)
    : m_folder(sandbox.path(folder))
    , m_executable(copyOfProgram(m_folder))
    , m_environment(plainEnvironment())
{
    const QString runtime = sandbox.path(QStringLiteral("runtime"));
    QDir().mkpath(runtime);
    QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    setVariable("XDG_RUNTIME_DIR", runtime);
    setVariable("QT_QPA_GENERIC_PLUGINS", QStringLiteral("orbwell-driver"));
    setVariable("QT_PLUGIN_PATH", QStringLiteral(ORBWELL_DRIVER_PLUGINS));
    setVariable("QT_QPA_PLATFORM", QLatin1String(display ? "xcb" : "offscreen"));
    if (display)
        setVariable("DISPLAY", display->name());
    // The window is not deleted before the process ends, which a sanitizer reports as a leak.
    setVariable("ASAN_OPTIONS", QStringLiteral("detect_leaks=0"));
}

Program::~Program()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished();
}

void Program::Process::setupChildProcess()
{
    dup2(STDIN_FILENO, driverInput);
    dup2(STDOUT_FILENO, driverOutput);
    if (prepare)
        prepare();
}

void Program::setVariable(const char *name, const QString &value)
{
    m_environment.insert(QLatin1String(name), value);
}

void Program::start(const QStringList &arguments)
{
    m_errors.clear();
    m_process.setProcessEnvironment(m_environment);
    if (m_calledAs.isEmpty()) {
        QStringList command = m_tracer + QStringList(m_executable) + arguments;
        const QString first = command.takeFirst();
        m_process.start(first, command);
    } else {
        // QProcess cannot set argv[0], but a shell can.
        const QStringList shell{QStringLiteral("-c"),
                                QStringLiteral("exec -a \"$0\" \"$@\""),
                                m_calledAs,
                                m_executable};
        m_process.start(QStringLiteral("bash"), shell + arguments);
    }
    if (!m_process.waitForStarted(patience))
        fail(QStringLiteral("the program does not start: ") + m_process.errorString());
}

QJsonObject Program::ask(const QJsonObject &question)
{
    if (!isRunning())
        return {};
    m_process.write(QJsonDocument(question).toJson(QJsonDocument::Compact) + '\n');
    QElapsedTimer sinceAsked;
    sinceAsked.start();
    while (isRunning() && !m_process.canReadLine()) {
        if (sinceAsked.elapsed() > patience) {
            fail(QStringLiteral("the program does not answer"));
            return {};
        }
        m_process.waitForReadyRead(100);
    }
    return QJsonDocument::fromJson(m_process.readLine()).object();
}

void Program::order(const QJsonObject &deed)
{
    const QString error
        = ask(deed)
              .value(QLatin1String("error"))
              .toString(isRunning() ? QString() : QStringLiteral("the program has ended"));
    if (!error.isEmpty())
        fail(error);
}

QVector<SeenWindow> Program::windows()
{
    const QString what = QStringLiteral("windows");
    QVector<SeenWindow> seen;
    const QJsonArray answer = ask({{QStringLiteral("ask"), what}}).value(what).toArray();
    for (const auto &window : answer)
        seen.append(SeenWindow(window.toObject()));
    return seen;
}

QVector<SeenRow> Program::rows()
{
    const QString what = QStringLiteral("rows");
    QVector<SeenRow> seen;
    const QJsonArray answer = ask({{QStringLiteral("ask"), what}}).value(what).toArray();
    for (const auto &row : answer)
        seen.append(SeenRow(row.toObject()));
    return seen;
}

SeenRow Program::row(const QString &simulator)
{
    const QVector<SeenRow> seen = rows();
    for (const SeenRow &row : seen) {
        if (row.name == simulator)
            return row;
    }
    return {};
}

bool Program::isBusy()
{
    return ask({{QStringLiteral("ask"), QStringLiteral("pointer")}})
        .value(QLatin1String("busy"))
        .toBool();
}

SeenWindow Program::box()
{
    SeenWindow seen;
    waitFor(
        [&] {
            seen = windows().value(0);
            return seen.className == QLatin1String("QMessageBox");
        },
        "a message box");
    return seen;
}

SeenWindow Program::window()
{
    SeenWindow seen;
    waitFor(
        [&] {
            seen = windows().value(0);
            return seen.className == QLatin1String("Quillmont::Utility::Views::ScannerView");
        },
        "the window");
    return seen;
}

void Program::pressAction(const QString &simulator)
{
    order({{QStringLiteral("do"), QStringLiteral("press row")},
           {QStringLiteral("control"), QStringLiteral("action")},
           {QStringLiteral("row"), simulator}});
}

void Program::pressBrowse(const QString &simulator)
{
    order({{QStringLiteral("do"), QStringLiteral("press row")},
           {QStringLiteral("control"), QStringLiteral("browse")},
           {QStringLiteral("row"), simulator}});
}

void Program::press(const QString &button)
{
    order({{QStringLiteral("do"), QStringLiteral("press")}, {QStringLiteral("button"), button}});
}

void Program::chooseFolder(const QString &folder)
{
    waitFor([this] { return windows().value(0).className == QLatin1String("QFileDialog"); },
            "the folder dialog");
    order({{QStringLiteral("do"), QStringLiteral("choose folder")},
           {QStringLiteral("folder"), folder}});
}

void Program::pressKey(const QString &key)
{
    order({{QStringLiteral("do"), QStringLiteral("key")}, {QStringLiteral("key"), key}});
}

void Program::close()
{
    order({{QStringLiteral("do"), QStringLiteral("close")}});
}

void Program::grab(const QString &file)
{
    order({{QStringLiteral("do"), QStringLiteral("grab")}, {QStringLiteral("file"), file}});
}

bool Program::waitFor(const std::function<bool()> &condition, const char *what)
{
    bool holds = false;
    // Its last output may arrive only after it has ended.
    const auto isDecided = [&] {
        const bool hasEnded = !isRunning();
        holds = condition();
        return holds || hasEnded;
    };
    if (QTest::qWaitFor(isDecided, patience) && holds)
        return true;
    fail(QStringLiteral("waited in vain for %1; the program wrote: %2")
             .arg(QLatin1String(what), QString::fromUtf8(standardError())));
    return false;
}

int Program::exitStatus()
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patience)) {
        fail(QStringLiteral("the program does not end"));
        return -1;
    }
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QByteArray Program::standardError()
{
    m_errors += m_process.readAllStandardError();
    return m_errors;
}

} // namespace Tests
