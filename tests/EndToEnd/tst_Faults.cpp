#include "tests/EndToEnd/DisturbedComputer.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/EndToEnd/Tracer.h"

#include <QtTest>

#include <algorithm>

using namespace Tests;

// Unattended runs that are killed, or in which one system call fails, at every point after the
// first access to the user's files. script/fault-injection tries all points; without its variables
// each test takes a sample.
class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void loseNothingInAKilledRun_data() { addRuns(); }

    void loseNothingInAKilledRun();

    void loseNothingInAFailingCall_data();
    void loseNothingInAFailingCall();

private:
    /// A system call and the fault that replaces it.
    using Fault = QPair<SystemCall, QString>;

    static void addRuns();
    void runUndisturbed();
    bool isOnUserData(const SystemCall &call) const;
    QVector<Fault> kills() const;
    QVector<Fault> failures() const;

    QString log() const { return m_disturbed->computer().absolute(QStringLiteral("calls")); }

    int runWith(const Fault &fault);
    QStringList wrongAfterKill(const Disk &left);
    bool hasHitUserData() const;
    QStringList wrongAfterFailure(const SystemCall &call, int status) const;
    QStringList untold(const QString &simulator, int status) const;
    bool knewNoSimulator() const;
    void report(const Fault &fault, const QStringList &wrong);
    void summarise(int points) const;

    QScopedPointer<DisturbedComputer> m_disturbed;
    QStringList m_arguments;
    QVector<SystemCall> m_calls;
    int m_usualStatus = -1;
    Disk m_usual;
    QVector<Disk> m_overcome; ///< the results of killed runs that the next run has repaired
    int m_fellShort = 0;
};

static bool isLook(const SystemCall &call)
{
    static const QStringList names
        = words("access fgetxattr flistxattr getdents64 newfstatat read readlink statx");
    return names.contains(call.name);
}

template <typename Item>
static QVector<Item> sample(const QVector<Item> &all)
{
    bool chosen = false;
    const int stride = qEnvironmentVariableIntValue("ORBWELL_FAULTS_STRIDE", &chosen);
    const int offset = qEnvironmentVariableIntValue("ORBWELL_FAULTS_OFFSET");
    constexpr int ample = 5;
    QVector<Item> some;
    for (int i = offset; i < all.size(); i += chosen ? qMax(1, stride) : all.size() / ample)
        some.append(all.at(i));
    return some;
}

void TestFaults::initTestCase()
{
    if (ORBWELL_SANITIZERS != 0)
        QSKIP("a sanitizer makes calls of its own, and ends the process when they fail");
    if (!Tracer::works())
        QSKIP("needs strace, and the right to trace a process");
}

void TestFaults::cleanup()
{
    m_disturbed.reset();
    m_overcome.clear();
    m_fellShort = 0;
}

void TestFaults::addRuns()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("beginning");
    QTest::newRow("install") << quietInstallation() << int(DisturbedComputer::PartlyInstalled);
    QTest::newRow("repair") << words("--REPAIR") << int(DisturbedComputer::Installed);
    QTest::newRow("uninstall") << words("--UNINSTALL") << int(DisturbedComputer::Installed);
    QTest::newRow("uninstall by record")
        << words("--UNINSTALL") << int(DisturbedComputer::OnlyRecorded);
}

bool TestFaults::isOnUserData(const SystemCall &call) const
{
    const Computer &computer = m_disturbed->computer();
    return call.text.contains(computer.absolute(QStringLiteral("sims/")))
        || call.text.contains(computer.absolute(computer.data({})));
}

void TestFaults::runUndisturbed()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, beginning);
    m_arguments = arguments;
    m_disturbed.reset(new DisturbedComputer(DisturbedComputer::Beginning(beginning)));
    Computer &computer = m_disturbed->computer();

    computer.program().setTracer(Tracer::recording(log()));
    m_usualStatus = computer.run(m_arguments);
    QCOMPARE(m_disturbed->harm() + m_disturbed->leftovers(), QStringList());
    m_usual = m_disturbed->outcome();

    const QVector<SystemCall> all = Tracer::callsIn(log());
    const auto ours = [this](const SystemCall &call) {
        return isOnUserData(call);
    };
    m_calls = QVector<SystemCall>(std::find_if(all.cbegin(), all.cend(), ours),
                                  std::find_if(all.crbegin(), all.crend(), ours).base());
    QVERIFY2(m_calls.size() > 100, "the tracer saw hardly anything");
}

QVector<TestFaults::Fault> TestFaults::kills() const
{
    QVector<Fault> faults;
    for (const SystemCall &call : m_calls)
        faults.append({call, QStringLiteral("signal=KILL")});
    return faults;
}

QVector<TestFaults::Fault> TestFaults::failures() const
{
    static const QStringList changing = words(
        "openat write sendfile rename linkat mkdir unlink rmdir lseek ftruncate fchmod chmod "
        "fsync");
    QVector<Fault> faults;
    for (const SystemCall &call : m_calls) {
        QStringList errors;
        if (changing.contains(call.name))
            errors = words("ENOSPC EIO EACCES EMFILE EROFS");
        else if (isLook(call))
            errors = words("EIO EACCES");
        for (const QString &error : qAsConst(errors)) {
            if (isOnUserData(call))
                faults.append({call, QStringLiteral("error=") + error});
        }
    }
    return faults;
}

int TestFaults::runWith(const Fault &fault)
{
    m_disturbed->reset();
    m_disturbed->computer().program().setTracer(
        Tracer::disturbing(fault.first, fault.second, log()));
    return m_disturbed->computer().run(m_arguments);
}

void TestFaults::report(const Fault &fault, const QStringList &wrong)
{
    if (wrong.isEmpty())
        return;
    ++m_fellShort;
    qWarning().noquote() << fault.second << "at" << fault.first.text
                         << QStringLiteral("\n  ") + wrong.join(QLatin1String("\n  "));
}

// script/fault-injection adds these lines up.
void TestFaults::summarise(int points) const
{
    qInfo("%d points, %d fell short", points, m_fellShort);
    QCOMPARE(m_fellShort, 0);
}

void TestFaults::loseNothingInAKilledRun()
{
    runUndisturbed();
    if (QTest::currentTestFailed())
        return;
    int killed = 0;
    const auto faults = sample(kills());
    for (const Fault &fault : faults) {
        killed += runWith(fault) == -1 ? 1 : 0;
        report(fault, wrongAfterKill(m_disturbed->computer().disk()));
    }
    // The number of memory allocations varies from run to run.
    QVERIFY(killed >= faults.size() * 9 / 10);
    summarise(faults.size());
}

// The next run depends only on the disk, so it is made only once for the same content.
QStringList TestFaults::wrongAfterKill(const Disk &left)
{
    QStringList wrong = m_disturbed->harm();
    if (m_overcome.contains(left))
        return wrong;

    const Disk expected = m_disturbed->expectedAfter(left, m_usual);
    m_disturbed->computer().program().setTracer({});
    if (m_disturbed->computer().run(m_arguments) != m_usualStatus)
        wrong.append(QStringLiteral("the next run ends with another status"));
    const QString difference = Tests::difference(m_disturbed->outcome(), expected);
    if (!difference.isEmpty())
        wrong.append(difference);
    wrong += m_disturbed->harm();
    if (wrong.isEmpty())
        m_overcome.append(left);
    return wrong;
}

// A record with two hard links cannot be replaced, and is overwritten.
void TestFaults::loseNothingInAFailingCall_data()
{
    addRuns();
    QTest::newRow("repair, recorded twice")
        << words("--REPAIR") << int(DisturbedComputer::RecordedTwice);
}

void TestFaults::loseNothingInAFailingCall()
{
    runUndisturbed();
    if (QTest::currentTestFailed())
        return;
    int hit = 0;
    const auto faults = sample(failures());
    for (const Fault &fault : faults) {
        const int status = runWith(fault);
        hit += hasHitUserData() ? 1 : 0;
        report(fault, wrongAfterFailure(fault.first, status));
    }
    QVERIFY(hit >= faults.size() * 9 / 10);
    summarise(faults.size());
}

// The number of calls varies from run to run, so a fault may hit a call on a file of the program.
bool TestFaults::hasHitUserData() const
{
    return isOnUserData({{}, 0, Tracer::disturbedIn(log())});
}

QStringList TestFaults::wrongAfterFailure(const SystemCall &call, int status) const
{
    QStringList wrong = m_disturbed->harm() + m_disturbed->leftovers();
    if (status != 0 && status != 2)
        wrong.append(QStringLiteral("ended with status %1").arg(status));
    // What cannot be accessed counts as missing, which is not reported as a failure.
    if (isLook(call) || !hasHitUserData())
        return wrong;
    const QStringList simulators = DisturbedComputer::simulators();
    for (const QString &simulator : simulators)
        wrong += untold(simulator, status);
    const QString record = m_disturbed->recordPath();
    const bool isUsual = m_disturbed->outcome().value(record) == m_usual.value(record);
    if (!isUsual && !Tracer::disturbedIn(log()).contains(QLatin1String("/.mapping")))
        wrong.append(QStringLiteral("another record"));
    if (!isUsual && status != 2 && !knewNoSimulator())
        wrong.append(QStringLiteral("silent about the record"));
    return wrong;
}

// A run that knows its simulators only by the record, and cannot read it, has nothing to report on.
bool TestFaults::knewNoSimulator() const
{
    QFETCH(const int, beginning);
    const QStringList simulators = DisturbedComputer::simulators();
    return beginning == DisturbedComputer::OnlyRecorded
        && Tracer::disturbedIn(log()).contains(QLatin1String("/.mapping"))
        && std::all_of(simulators.cbegin(), simulators.cend(), [this](const QString &simulator) {
               return m_disturbed->remaining(simulator) == m_disturbed->pluginFilesOf(simulator);
           });
}

// The failures at a simulator that the run does not report.
QStringList TestFaults::untold(const QString &simulator, int status) const
{
    QFETCH(const int, beginning);
    const QString said = m_disturbed->computer().said().join(u'\n');
    const QStringList remaining = m_disturbed->remaining(simulator);
    QStringList wrong;
    if (m_arguments.contains(QLatin1String("--REPAIR")) && !m_disturbed->isWhole(simulator)
        && (status != 2 || !said.contains(simulator + QStringLiteral(": Not updated"))))
        wrong.append(QStringLiteral("silent about ") + simulator);
    if (beginning == DisturbedComputer::OnlyRecorded
        && remaining.size() < m_disturbed->pluginFilesOf(simulator).size()) {
        for (const QString &path : remaining) {
            if (status != 2 || !said.contains(m_disturbed->computer().absolute(path)))
                wrong.append(QStringLiteral("silent about ") + path);
        }
    }
    return wrong;
}

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_Faults.moc"
