#include "tests/Library/Helpers/XmlEditTest.h"
#include "tests/support/Attributes.h"
#include "tests/support/Files.h"

#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

/// Kills the process that edits a file at each of its system calls, and makes each of them fail.
class TestXmlFaults : public Tests::XmlEditTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void leaveOldOrNewBytesInAKilledProcess_data();
    void leaveOldOrNewBytesInAKilledProcess();
    void leaveOldOrNewBytesInAFailingCall_data();
    void leaveOldOrNewBytesInAFailingCall();

private:
    /// The system calls of a complete run between its marks: name, and the number of calls with
    /// that name since the process began.
    QVector<QPair<QString, int>> callsOf(const QString &operation);
    /// Runs the tool under the tracer with @p options; returns the exit status, or -1 if a signal
    /// ended it.
    int run(const QStringList &options, const QString &operation);

    QString fileFolder() const { return m_sandbox.path(QStringLiteral("config")); }

    QString filePath() const { return fileFolder() + QLatin1String("/exe.xml"); }

    QStringList files() const { return Tests::treeOf(fileFolder()).keys(); }
};

namespace {

// Larger than a file's buffer, so that writing it can be interrupted at several points.
const QByteArray foreign
    = "<R>\r\n" + QByteArray("  <Addon>\r\n    <Name>Else</Name>\r\n  </Addon>\r\n").repeated(600);
const QByteArray entry = "  <Addon>\r\n    <Name>Tide</Name>\r\n  </Addon>\r\n";
const QByteArray without = foreign + "</R>\r\n";
const QByteArray with = foreign + entry + "</R>\r\n";

} // namespace

void TestXmlFaults::initTestCase()
{
    QProcess tracer;
    tracer.start(QStringLiteral("strace"), {QStringLiteral("true")});
    if (!tracer.waitForFinished() || tracer.exitCode() != 0)
        QSKIP("needs strace, and the right to trace a process");
}

void TestXmlFaults::leaveOldOrNewBytesInAKilledProcess_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("insertion") << QStringLiteral("insert") << without << with;
    QTest::newRow("removal") << QStringLiteral("remove") << with << without;
}

void TestXmlFaults::leaveOldOrNewBytesInAKilledProcess()
{
    QFETCH(const QString, operation);
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);

    Tests::writeFile(filePath(), before);
    const QVector<QPair<QString, int>> calls = callsOf(operation);
    QCOMPARE(Tests::readFile(filePath()), after);
    QVERIFY2(calls.size() > 10, "the tracer saw hardly anything");

    int killed = 0;
    int old = 0;
    for (const auto &[name, count] : calls) {
        Tests::writeFile(filePath(), before);
        const QString fault = QStringLiteral("inject=%1:signal=KILL:when=%2").arg(name).arg(count);
        killed += run({QStringLiteral("-e"), fault}, operation) == -1 ? 1 : 0;

        const QByteArray left = Tests::readFile(filePath());
        QVERIFY2(left == before || left == after, qPrintable(fault));
        old += left == before ? 1 : 0;

        // Leftovers of the killed process do not disturb the next one.
        QCOMPARE(run({}, operation), 0);
        QCOMPARE(Tests::readFile(filePath()), after);
        QVERIFY(files().size() <= 2);
        for (const QString &file : files())
            QFile::remove(fileFolder() + u'/' + file);
    }
    qInfo("killed at %d points of %s: %d times the old bytes, %d times the new ones",
          killed,
          qPrintable(operation),
          old,
          calls.size() - old);
    QVERIFY(killed > calls.size() * 3 / 4);
}

void TestXmlFaults::leaveOldOrNewBytesInAFailingCall_data()
{
    leaveOldOrNewBytesInAKilledProcess_data();
}

void TestXmlFaults::leaveOldOrNewBytesInAFailingCall()
{
    if (ORBWELL_SANITIZERS != 0)
        QSKIP("a sanitizer makes calls of its own, and ends the process when they fail");
    QFETCH(const QString, operation);
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    // Calls that fail on real systems; no program can do without the others, such as memory
    // allocation.
    static const QStringList fallible{QStringLiteral("openat"),
                                      QStringLiteral("read"),
                                      QStringLiteral("write"),
                                      QStringLiteral("fsync"),
                                      QStringLiteral("fdatasync"),
                                      QStringLiteral("fchmod"),
                                      QStringLiteral("linkat"),
                                      QStringLiteral("rename"),
                                      QStringLiteral("statx"),
                                      QStringLiteral("newfstatat"),
                                      QStringLiteral("access"),
                                      QStringLiteral("close"),
                                      QStringLiteral("fchown"),
                                      QStringLiteral("fgetxattr"),
                                      QStringLiteral("flistxattr"),
                                      QStringLiteral("fstat"),
                                      QStringLiteral("lseek"),
                                      QStringLiteral("ftruncate")};

    Tests::writeFile(filePath(), before);
    int failed = 0;
    for (const auto &[name, count] : callsOf(operation)) {
        if (!fallible.contains(name))
            continue;
        for (const QString &error :
             {QStringLiteral("EIO"), QStringLiteral("ENOSPC"), QStringLiteral("EACCES")}) {
            Tests::writeFile(filePath(), before);
            Tests::setMode(filePath(), 0640);
            const QString fault
                = QStringLiteral("inject=%1:error=%3:when=%2").arg(name).arg(count).arg(error);
            const int status = run({QStringLiteral("-e"), fault}, operation);
            const QByteArray left = Tests::readFile(filePath());
            QVERIFY2(status == 0 ? left == after : status == 1 && left == before,
                     qPrintable(fault));
            // If the access list cannot be read, only the owner keeps rights.
            QCOMPARE(Tests::modeOf(filePath()), name == QLatin1String("fgetxattr") ? 0600U : 0640U);
            QVERIFY2(files() == QStringList{QStringLiteral("exe.xml")}, qPrintable(fault));
            failed += status;
        }
    }
    qInfo("%d failing calls made the %s fail", failed, qPrintable(operation));
    QVERIFY(failed > 0);
}

QVector<QPair<QString, int>> TestXmlFaults::callsOf(const QString &operation)
{
    const QString log = m_sandbox.path(QStringLiteral("calls"));
    if (run({QStringLiteral("-o"), log}, operation) != 0)
        qFatal("the tool fails untroubled");

    static const QRegularExpression call(QStringLiteral(R"(^\d+ +(\w+)\()"));
    QVector<QPair<QString, int>> calls;
    QMap<QString, int> counts;
    int marks = 0;
    const QStringList lines = QString::fromLatin1(Tests::readFile(log)).split(u'\n');
    for (const QString &line : lines) {
        const QString name = call.match(line).captured(1);
        ++counts[name];
        marks += name == QLatin1String("getpgrp") ? 1 : 0;
        if (marks == 1 && !name.isEmpty())
            calls.append({name, counts.value(name)});
    }
    return calls;
}

int TestXmlFaults::run(const QStringList &options, const QString &operation)
{
    QStringList arguments{QStringLiteral("-f"), QStringLiteral("-q")};
    if (!options.contains(QLatin1String("-o")))
        arguments << QStringLiteral("-o") << QStringLiteral("/dev/null");
    arguments << options << QStringLiteral(ORBWELL_EDIT_TOOL) << operation << filePath();
    QProcess process;
    // A leak checker is also a tracer, and a process can have only one.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("strace"), arguments);
    if (!process.waitForFinished())
        qFatal("the tracer does not end");
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QTEST_GUILESS_MAIN(TestXmlFaults)
#include "tst_XmlFaults.moc"
