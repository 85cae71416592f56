#include "Widgets/WorkProgress.h"

#include "Views/ScannerView.h"
#include "tests/ViewControllers/Workshop.h"
#include "tests/support/Literals.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QProgressBar>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <utility>

using namespace Tests;
using Quillmont::Utility::Views::ScannerView;
using Quillmont::Utility::Widgets::WorkProgress;

namespace {

constexpr WorkProgress::Pace always{0, 0};

QProgressDialog *progressWindow()
{
    return qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
}

/// Looks whenever the program looks after its windows while a progress window is up.
class Watcher
{
public:
    explicit Watcher(std::function<void(QProgressDialog *)> look)
        : m_look(std::move(look))
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            if (auto *progress = progressWindow())
                m_look(progress);
        });
        m_timer.start(0);
    }

private:
    std::function<void(QProgressDialog *)> m_look;
    QTimer m_timer;
};

QStringList seen(const std::function<void()> &work)
{
    QStringList states;
    const Watcher watcher([&](QProgressDialog *progress) {
        const QString state = QStringList{progress->windowTitle(),
                                          progress->labelText().replace(u'\n', u'|'),
                                          QString::number(progress->value()) + u'%'}
                                  .join(u'|');
        if (!states.endsWith(state))
            states.append(state);
    });
    work();
    return states;
}

// Bytes that weigh 25, 25 and 50 percent.
QByteArray simulator(const QByteArray &name)
{
    return R"({"name": ")" + name + R"(", "type": 1, "location": 1, "path": "$ROOT/)" + name
        + R"(", "files": [{"source": "a", "destination": "p/a"},
            {"source": "b", "destination": "p/b"}, {"source": "c", "destination": "p/c"}]})";
}

QAbstractButton *buttonWith(const QWidget *window, const QString &name)
{
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (auto *button : buttons) {
        if (QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name) == name)
            return button;
    }
    return nullptr;
}

// All that a user can do to a window, and a screen reader.
void disturb(QWidget *window)
{
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (auto *button : buttons) {
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::keyClick(button, Qt::Key_Space);
        QTest::keyClick(button, Qt::Key_Return);
        QTest::mouseClick(
            window->windowHandle(), Qt::LeftButton, {}, button->mapTo(window, QPoint(5, 5)));
        QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
    }
    for (const auto key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space})
        QTest::keyClick(window->windowHandle(), key);
    window->close();
}

} // namespace

/// Work that lasts shows how far it has come.
class TestWorkProgress : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void namesSimulatorFileAndPart();
    void movesWithinAFile();
    void countsTheFilesThatARemovalTakes();
    void countsTheFilesOfAllSimulatorsThatLackThePlugin();
    void staysAwayFromShortWork();
    void staysAwayFromRunsWithoutAWindow();
    void comesAfterASecondOfWaiting();
    void isGoneBeforeEachBox();
    void leavesNothingToStopOrCloseIt();
    void dropsAllInput_data();
    void dropsAllInput();
    void dropsInputOfTheLastMoment();
    void isHeardByAScreenReader();

private:
    ScanController &controller() { return m_shop->controller(); }

    FlightSimulatorMapping *mapping(const char *name);

    std::unique_ptr<Workshop> m_shop;
};

void TestWorkProgress::init()
{
    WorkProgress::pace = always;
    m_shop = std::make_unique<Workshop>();
    m_shop->writePayload("a", "x");
    m_shop->writePayload("b", "x");
    m_shop->writePayload("c", "xx");
    m_shop->writeCatalogue('[' + simulator("A") + ',' + simulator("B") + ']');
    m_shop->folder("A");
    m_shop->folder("B");
    controller().startScan(true, false, ScanController::ModeNone);
    QVERIFY(QTest::qWaitForWindowExposed(controller().view));
}

void TestWorkProgress::cleanup()
{
    m_shop.reset();
    WorkProgress::pace = {};
}

FlightSimulatorMapping *TestWorkProgress::mapping(const char *name)
{
    return m_shop->mapping(simulator(name), m_shop->path(name));
}

void TestWorkProgress::namesSimulatorFileAndPart()
{
    QCOMPARE(seen([this] { controller().install(mapping("A"), false, true); }),
             (QStringList{"Installing Orbwell|A|File 1 of 3: a|0%"_s,
                          "Installing Orbwell|A|File 1 of 3: a|25%"_s,
                          "Installing Orbwell|A|File 2 of 3: b|25%"_s,
                          "Installing Orbwell|A|File 2 of 3: b|50%"_s,
                          "Installing Orbwell|A|File 3 of 3: c|50%"_s,
                          "Installing Orbwell|A|File 3 of 3: c|100%"_s}));
}

void TestWorkProgress::movesWithinAFile()
{
#ifndef Q_OS_LINUX
    QSKIP("the system copies a file in one call here");
#endif
    m_shop->writePayload("a", QByteArray(4 * 1024 * 1024, 'x'));
    QStringList values;
    for (const QString &state : seen([this] { controller().install(mapping("A"), true, false); }))
        values.append(state.section(u'|', -1));
    values.removeDuplicates();
    QCOMPARE(values.mid(0, 4), (QStringList{"0%"_s, "24%"_s, "49%"_s, "74%"_s}));
}

void TestWorkProgress::countsTheFilesThatARemovalTakes()
{
    auto *installed = mapping("A");
    controller().install(installed, true, false);
    QCOMPARE(seen([&] { controller().uninstall(installed, false, false); }),
             (QStringList{"Uninstalling Orbwell|A|File 1 of 3: a|0%"_s,
                          "Uninstalling Orbwell|A|File 2 of 3: b|25%"_s,
                          "Uninstalling Orbwell|A|File 3 of 3: c|50%"_s}));
}

// What is left of an old installation is removed first, which is no step of its own.
void TestWorkProgress::countsTheFilesOfAllSimulatorsThatLackThePlugin()
{
    auto *complete = mapping("C");
    m_shop->folder("C");
    controller().install(complete, true, false);
    writeFile(m_shop->path("B/p/a"), "left");
    QStringList states = seen([&] {
        controller().autoInstall(
            {mapping("A"), complete, mapping("B")}, false, ScanController::ModeScanAndInstall);
    });
    for (QString &state : states)
        state = state.section(u'|', 1);
    QCOMPARE(states.mid(0, 12),
             (QStringList{"A|File 1 of 6: a|0%"_s,
                          "A|File 1 of 6: a|12%"_s,
                          "A|File 2 of 6: b|12%"_s,
                          "A|File 2 of 6: b|25%"_s,
                          "A|File 3 of 6: c|25%"_s,
                          "A|File 3 of 6: c|50%"_s,
                          "B|File 4 of 6: a|50%"_s,
                          "B|File 4 of 6: a|62%"_s,
                          "B|File 5 of 6: b|62%"_s,
                          "B|File 5 of 6: b|75%"_s,
                          "B|File 6 of 6: c|75%"_s,
                          "B|File 6 of 6: c|100%"_s}));
}

void TestWorkProgress::staysAwayFromShortWork()
{
    WorkProgress::pace = {};
    constexpr int second = 1000;
    QElapsedTimer clock;
    clock.start();
    const QStringList states = seen([this] { controller().install(mapping("A"), false, true); });
    if (clock.elapsed() >= second)
        QSKIP("the computer is too slow for short work");
    QCOMPARE(states, QStringList());
}

void TestWorkProgress::staysAwayFromRunsWithoutAWindow()
{
    controller().view->hide();
    const QStringList states = seen([this] {
        controller().startScan(false, true, ScanController::ModeNone);
        controller().uninstall(mapping("A"), true, true);
    });
    QCOMPARE(states, QStringList());
}

// Another copy of the program is at the files, and goes when the window has been seen.
void TestWorkProgress::comesAfterASecondOfWaiting()
{
    WorkProgress::pace = {};
    const QByteArray folder = QFile::encodeName(QFileInfo(m_shop->recordPath()).path());
    int other = open(folder.constData(), O_RDONLY | O_CLOEXEC);
    QCOMPARE(flock(other, LOCK_EX | LOCK_NB), 0);
    QElapsedTimer clock;
    clock.start();
    qint64 came = 0;
    const Watcher watcher([&](QProgressDialog *progress) {
        if (!progress->windowHandle()->isExposed() || other < 0)
            return;
        came = clock.elapsed();
        close(other);
        other = -1;
    });
    QVERIFY(controller().install(mapping("A"), false, true));
    QVERIFY2(came >= 1000 && came < 5000, qPrintable(QString::number(came)));
}

// Those of a removal that fails come in the middle.
void TestWorkProgress::isGoneBeforeEachBox()
{
    m_shop->folder("B/p/a");
    writeFile(m_shop->path("B/p/a/held"), "x");
    m_shop->answerer.whileOpen([] {
        const auto windows = QApplication::topLevelWidgets();
        for (auto *window : windows)
            QVERIFY(!qobject_cast<QProgressDialog *>(window));
    });
    const QStringList states = seen([this] {
        controller().autoInstall({mapping("B"), mapping("A")}, false, ScanController::ModeNone);
    });
    QCOMPARE(m_shop->boxes().size(), 3);
    QVERIFY(states.constFirst().contains("|B|"_s) && states.constLast().contains("|A|"_s));
}

void TestWorkProgress::leavesNothingToStopOrCloseIt()
{
    const QStringList states = seen([this] {
        const Watcher watcher([](QProgressDialog *progress) {
            QVERIFY(progress->findChildren<QAbstractButton *>().isEmpty());
            QVERIFY(!progress->windowFlags().testFlag(Qt::WindowCloseButtonHint));
            disturb(progress);
            progress->reject();
            QVERIFY(progress->isVisible() && !progress->wasCanceled());
        });
        QVERIFY(controller().install(mapping("A"), false, true));
    });
    QCOMPARE(states.size(), 6);
}

void TestWorkProgress::dropsAllInput_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("installing") << "Install Orbwell: A"_s << QStringList(installedBox("A"_s));
    QTest::newRow("removing") << "Uninstall Orbwell: C"_s << QStringList(uninstalledBox("C"_s));
    QTest::newRow("scanning") << "Scan & Install"_s
                              << QStringList(autoInstalledBox({"B"_s, "A"_s}));
}

void TestWorkProgress::dropsAllInput()
{
    QFETCH(const QString, button);
    QFETCH(const QStringList, boxes);
    m_shop->writeCatalogue('[' + simulator("A") + ',' + simulator("B") + ',' + simulator("C")
                           + ']');
    for (const char *file : {"C/p/a", "C/p/b", "C/p/c"})
        writeFile(m_shop->path(file), "old");
    controller().startScan(true, false, ScanController::ModeNone);
    const auto *view = controller().view;
    QSignalSpy install(view, &ScannerView::install);
    QSignalSpy uninstall(view, &ScannerView::uninstall);
    QSignalSpy scan(view, &ScannerView::scanRequested);
    int storms = 0;
    const Watcher watcher([&](QProgressDialog *progress) {
        ++storms;
        disturb(controller().view);
        QVERIFY(progress->isVisible());
    });
    // What closes the window would have the last word of the loop.
    constexpr int leftOpen = 7;
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        QTest::mouseClick(buttonWith(view, button), Qt::LeftButton);
        QTRY_VERIFY(!buttonWith(view, "Close"_s)->isDown());
        QTRY_VERIFY(!buttonWith(view, "Scan & Install"_s)->isDown());
        loop.exit(leftOpen);
    });
    QCOMPARE(loop.exec(), leftOpen);
    QVERIFY(storms > 5);
    QCOMPARE(install.count() + uninstall.count() + scan.count(), 1);
    QCOMPARE(m_shop->boxes(), boxes);
    QVERIFY(view->isVisible());
}

// What is pressed behind the last look at what has been pressed.
void TestWorkProgress::dropsInputOfTheLastMoment()
{
    WorkProgress::pace = {0, 1000000};
    const auto *view = controller().view;
    QSignalSpy install(view, &ScannerView::install);
    bool isPressed = false;
    m_shop->log.atEachDebugLine([&](const QString &line) {
        if (!line.startsWith("mapping path"_s) || std::exchange(isPressed, true))
            return;
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(buttonWith(view, "Install Orbwell: B"_s),
                                        new QKeyEvent(type, Qt::Key_Space, Qt::NoModifier));
    });
    controller().install(mapping("A"), false, false);
    QCoreApplication::processEvents();
    QCOMPARE(install.count(), 0);
}

// Each change of the bar's value is told to it.
void TestWorkProgress::isHeardByAScreenReader()
{
    m_shop->writePayload("a", QByteArray(64 * 1024 * 1024, 'x'));
    QVector<int> values;
    QString name;
    const Watcher watcher([&](QProgressDialog *progress) {
        auto *bar = progress->findChild<QProgressBar *>();
        auto *heard = QAccessible::queryAccessibleInterface(bar);
        if (name.isEmpty())
            connect(
                bar, &QProgressBar::valueChanged, this, [&](int value) { values.append(value); });
        name = heard->text(QAccessible::Name);
        QCOMPARE(progress->focusWidget(), bar);
        QCOMPARE(heard->role(), QAccessible::ProgressBar);
        QCOMPARE(heard->valueInterface()->currentValue().toInt(), bar->value());
        QCOMPARE(heard->valueInterface()->maximumValue().toInt(), 100);
    });
    WorkProgress::pace = {0, 1000000};
    controller().install(mapping("A"), false, true);
    QCOMPARE(name, "Installing Orbwell: A"_s);
    QVERIFY2(values.size() <= 3, qPrintable(QString::number(values.size())));
    QCOMPARE(values.value(values.size() - 1), 100);
}

QTEST_MAIN(TestWorkProgress)
#include "tst_WorkProgress.moc"
