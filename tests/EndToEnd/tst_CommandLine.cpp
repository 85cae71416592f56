#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Simulators.h"

#include <QFileInfo>
#include <QtTest>

using namespace Tests;

// Which run a command line starts, as seen by a user.
class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void startsInTheModeOfItsSwitches_data();
    void startsInTheModeOfItsSwitches();
    void readsItsOwnNameAsASwitch_data();
    void readsItsOwnNameAsASwitch();

private:
    void run(const QStringList &arguments, const QString &calledAs = {});
    QString seen() const;

    QScopedPointer<Computer> m_computer;
    int m_status = -1;
};

static void addLine(const char *what, const QStringList &arguments, const char *run)
{
    QTest::newRow(what) << arguments << run;
}

void TestCommandLine::startsInTheModeOfItsSwitches_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");

    addLine("nothing", {}, "window");
    addLine("install", words("--INSTALL"), "install");
    addLine("repair", words("--REPAIR"), "repair");
    addLine("uninstall", words("--UNINSTALL"), "uninstall");

    addLine("lower case", words("--install"), "install");
    addLine("one capital letter", words("--Repair"), "repair");
    addLine("mixed case", words("--unInStall"), "uninstall");
    addLine("a letter whose capital is ASCII", words("--\u0131n\u017ftall"), "install");
    addLine("a capital from another alphabet", words("--\u0130NSTALL"), "window");
    addLine("a Unicode dash", words("\u2014INSTALL"), "window");

    addLine("repair, then uninstall", words("--REPAIR --UNINSTALL"), "uninstall");
    addLine("uninstall, then repair", words("--UNINSTALL --REPAIR"), "repair");
    addLine("install between others", words("--repair --INSTALL nonsense"), "install");
    addLine("the first switch again", words("--REPAIR --INSTALL --REPAIR"), "repair");

    addLine("a quiet one", words("--INSTALL 1"), "quiet install");
    addLine("quiet first", words("1 --INSTALL"), "quiet install");
    addLine("quiet, in between", words("--REPAIR 1 --install"), "quiet install");
    addLine("quiet twice", words("1 --INSTALL 1"), "quiet install");
    addLine("quiet, whatever follows", words("--INSTALL 1 0"), "quiet install");
    addLine("only quiet", words("1"), "window");
    addLine("a repair is never quiet", words("--REPAIR 1"), "repair");
    addLine("another number", words("--INSTALL 01"), "install");
    addLine("another one", words("--INSTALL \uff11"), "install");
    addLine("a one with a space", {QStringLiteral("--INSTALL"), QStringLiteral("1 ")}, "install");

    addLine("a value", words("--INSTALL=1"), "window");
    addLine("a slash", words("/INSTALL"), "window");
    addLine("one dash", words("-INSTALL"), "window");
    addLine("no dash", words("INSTALL"), "window");
    addLine("with a suffix", words("--INSTALLED"), "window");
    addLine("with a prefix", words("x--INSTALL"), "window");
    addLine("a leading space", {QStringLiteral(" --INSTALL")}, "window");
    addLine("a trailing space", {QStringLiteral("--REPAIR ")}, "window");
    addLine("a trailing line end", {QStringLiteral("--UNINSTALL\n")}, "window");
    addLine("two switches in one argument", {QStringLiteral("--INSTALL 1")}, "window");
    addLine("unknown switches", words("--HELP --force ../file 2"), "window");
    addLine("a mode as a number", words("--MODE 4"), "window");
    addLine("an empty argument", {QString()}, "window");
    addLine("empty arguments around it",
            {QString(), QStringLiteral("--INSTALL"), QString()},
            "install");
}

void TestCommandLine::startsInTheModeOfItsSwitches()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, expected);
    run(arguments);
    QCOMPARE(seen(), expected);
}

void TestCommandLine::readsItsOwnNameAsASwitch_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");

    const auto add
        = [](const char *what, const char *name, const QStringList &rest, const char *run) {
              QTest::newRow(what) << QString::fromUtf8(name) << rest << run;
          };
    add("install", "--INSTALL", {}, "install");
    add("lower case", "--repair", {}, "repair");
    add("uninstall", "--Uninstall", {}, "uninstall");
    add("one, and install", "1", words("--INSTALL"), "quiet install");
    add("install, and one", "--INSTALL", words("1"), "quiet install");
    add("a later switch wins", "--INSTALL", words("--REPAIR"), "repair");
    add("in a folder", "folder/--INSTALL", {}, "window");
    add("another name", "setup", {}, "window");
}

void TestCommandLine::readsItsOwnNameAsASwitch()
{
    QFETCH(const QString, name);
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, expected);
    run(arguments, name);
    QCOMPARE(seen(), expected);
}

// One simulator is found and lacks the plugin; only the record knows the other one.
void TestCommandLine::run(const QStringList &arguments, const QString &calledAs)
{
    m_computer.reset(new Computer);
    const QString found = QStringLiteral("Det");
    const QString recorded = QStringLiteral("Rec");
    m_computer->addSimulator(found);
    m_computer->addPlugin(recorded, 1);
    m_computer->setCatalogue({m_computer->hiddenEntry(recorded, 1), m_computer->entry(found, 1)});
    m_computer->setRecords({m_computer->recordFor(m_computer->hiddenEntry(recorded, 1))});
    m_computer->program().setCalledAs(calledAs);
    m_status = m_computer->run(arguments);
}

QString TestCommandLine::seen() const
{
    const QString file = QStringLiteral("/Resources/plugins/Orbwell/about.txt");
    const bool foundHasIt = QFileInfo::exists(m_computer->folder(QStringLiteral("Det")) + file);
    const bool recordedHasIt = QFileInfo::exists(m_computer->folder(QStringLiteral("Rec")) + file);
    const QString title = m_computer->boxes().value(0).title;
    const int boxes = m_computer->boxes().size();
    const auto is = [&](int status, int count, const char *shown) {
        return m_status == status && boxes == count && title == QLatin1String(shown)
            && foundHasIt != m_computer->showedTheWindow();
    };
    if (is(0, 0, "") && !recordedHasIt)
        return QStringLiteral("uninstall");
    if (is(0, 0, "") && m_computer->showedTheWindow())
        return QStringLiteral("window");
    if (is(0, 1, "Plugins updated"))
        return QStringLiteral("repair");
    if (is(2, 1, "Quillmont Orbwell Settings"))
        return QStringLiteral("install");
    return is(2, 0, "") ? QStringLiteral("quiet install") : QStringLiteral("something else");
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_CommandLine.moc"
