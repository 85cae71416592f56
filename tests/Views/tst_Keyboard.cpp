#include "Views/ScannerView.h"

#include "Models/FlightSimScan.h"
#include "tests/Widgets/RowParts.h"
#include "tests/support/Json.h"
#include "tests/support/Sandbox.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Views::ScannerView;
using Tests::RowParts;

// The window without a mouse.
class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void pressesEveryButtonByKey_data();
    void pressesEveryButtonByKey();
    void pressesAButtonThatIsOutOfSight();
    void treatsAKeyHeldDownAsOnePress();
    void actsOncePerPressHoweverLongTheKeyIsHeld_data();
    void actsOncePerPressHoweverLongTheKeyIsHeld();
    void acceptsADoubleClickOnlyInOneWindow();
    void distinguishesAPressFromARepeatByItsTime_data();
    void distinguishesAPressFromARepeatByItsTime();
    void clicksTwiceOnlyInTheWindowOfTheFirstClick_data();
    void clicksTwiceOnlyInTheWindowOfTheFirstClick();
    void closesABoxByKey_data();
    void closesABoxByKey();
    void bringsTheRowWithTheFocusIntoSight();
    void keepsTheFocusOnTheSameSimulator_data();
    void keepsTheFocusOnTheSameSimulator();
    void keepsTheFocusInTheRowOfAFolderThatIsGone();
    void keepsTheFocusOnTheSecondOfTwoWithOneName();
    void keepsTheFocusOutsideTheList();
    void keepsTheScrollPosition();
    void scrollsByARowPerNotchOfTheWheel();
    void tabsFromTheLastRowToTheButtonsInALargerWindow();

private:
    FlightSimulatorMapping *mapping(const QString &name, const QString &path);
    void showRows(const QStringList &names);
    RowParts row(int index) const;
    QPushButton *button(const QString &text) const;

    Tests::Sandbox m_sandbox;
    std::unique_ptr<QObject> m_models;
    std::unique_ptr<ScannerView> m_view;
    QListWidget *m_list = nullptr;
};

static QStringList numbered(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QStringLiteral("Simulator %1").arg(i));
    return names;
}

void TestKeyboard::init()
{
    m_models = std::make_unique<QObject>();
    m_view = std::make_unique<ScannerView>(nullptr);
    m_list = m_view->findChild<QListWidget *>();
    m_view->show();
    QApplication::setActiveWindow(m_view.get());
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
}

void TestKeyboard::cleanup()
{
    m_view.reset();
}

FlightSimulatorMapping *TestKeyboard::mapping(const QString &name, const QString &path)
{
    QJsonObject entry = Tests::json(R"({"files": [{"destination": "orbwell.dll"}]})");
    entry.insert(QStringLiteral("name"), name);
    return new FlightSimulatorMapping(new FlightSimScan(m_models.get(), entry), path);
}

void TestKeyboard::showRows(const QStringList &names)
{
    QList<FlightSimulatorMapping *> mappings;
    for (const QString &name : names)
        mappings.append(mapping(name, m_sandbox.root()));
    m_view->setScanResult(mappings, false, true);
}

RowParts TestKeyboard::row(int index) const
{
    return RowParts(m_list->itemWidget(m_list->item(index)));
}

QPushButton *TestKeyboard::button(const QString &text) const
{
    const auto buttons = m_view->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

void TestKeyboard::pressesEveryButtonByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space bar") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter on the number pad") << Qt::Key_Enter;
}

void TestKeyboard::pressesEveryButtonByKey()
{
    QFETCH(Qt::Key, key);
    showRows(numbered(2));
    for (QAbstractButton *each :
         std::initializer_list<QAbstractButton *>{row(1).browse,
                                                  row(1).action,
                                                  button(QStringLiteral("Scan && Install")),
                                                  button(QStringLiteral("Close"))}) {
        each->disconnect(); // its action is tested elsewhere
        QSignalSpy clicked(each, &QAbstractButton::clicked);
        each->setFocus();
        QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(clicked.count(), 1);
    }
    QSignalSpy install(m_view.get(), &ScannerView::install);
    row(0).action->setFocus();
    QTest::keyClick(QApplication::focusWidget(), key);
    QCOMPARE(install.count(), 1);
}

void TestKeyboard::pressesAButtonThatIsOutOfSight()
{
    showRows(numbered(50));
    QSignalSpy install(m_view.get(), &ScannerView::install);
    QTest::keyClick(row(49).action, Qt::Key_Space);
    QCOMPARE(install.count(), 1);
}

static void send(QWidget *widget, QEvent::Type type, int key, ulong time, bool isMarked = false)
{
    QKeyEvent event(type, key, Qt::NoModifier, {}, isMarked);
    event.setTimestamp(time);
    QApplication::sendEvent(widget, &event);
}

// A repeat that the system marks as such.
void TestKeyboard::treatsAKeyHeldDownAsOnePress()
{
    showRows(numbered(1));
    QSignalSpy install(m_view.get(), &ScannerView::install);
    row(0).action->setFocus();
    send(row(0).action, QEvent::KeyPress, Qt::Key_Return, 1000);
    for (const ulong time : {1500UL, 1533UL})
        send(row(0).action, QEvent::KeyPress, Qt::Key_Return, time, true);
    QCOMPARE(install.count(), 1);
}

// Repeats a key like an X server: release and press at the same time, whether Qt marks it or not.
static void repeat(QWidget *widget, int key, ulong *time, bool isMarked)
{
    for (int i = 0; i < 20; ++i) {
        *time += 33;
        send(widget, QEvent::KeyRelease, key, *time, isMarked);
        send(widget, QEvent::KeyPress, key, *time, isMarked);
    }
}

void TestKeyboard::actsOncePerPressHoweverLongTheKeyIsHeld_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isMarked");
    QTest::addColumn<bool>("isRow");
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select})
        for (const bool isMarked : {true, false})
            for (const bool isRow : {true, false})
                QTest::addRow("%s %s %s",
                              QMetaEnum::fromType<Qt::Key>().valueToKey(key),
                              isMarked ? "marked" : "unmarked",
                              isRow ? "row" : "window")
                    << key << isMarked << isRow;
}

void TestKeyboard::actsOncePerPressHoweverLongTheKeyIsHeld()
{
    QFETCH(const int, key);
    QFETCH(const bool, isMarked);
    QFETCH(const bool, isRow);
    showRows(numbered(1));
    QWidget *control
        = isRow ? static_cast<QWidget *>(row(0).action) : button(QStringLiteral("Scan && Install"));
    control->setFocus();
    // These keys press a button when they are released.
    const bool isLetGo = key == Qt::Key_Space || key == Qt::Key_Select;
    ulong time = 1000;
    int started = 0;
    bool isAnswered = false;
    const auto act = [&] {
        ++started;
        QMessageBox box(QMessageBox::Information, QStringLiteral("Title"), {}, QMessageBox::Ok);
        QTimer::singleShot(0, &box, [&] {
            if (isLetGo)
                send(box.button(QMessageBox::Ok), QEvent::KeyPress, key, time, isMarked);
            repeat(box.button(QMessageBox::Ok), key, &time, isMarked);
            repeat(&box, key, &time, isMarked);
            isAnswered = isAnswered || !box.isVisible();
            box.close();
        });
        box.exec();
    };
    connect(m_view.get(), &ScannerView::install, this, act);
    connect(m_view.get(), &ScannerView::scanRequested, this, act);

    send(control, QEvent::KeyPress, key, time);
    time += 500;
    if (isLetGo)
        send(control, QEvent::KeyRelease, key, time, isMarked);
    repeat(control, key, &time, isMarked);
    send(control, QEvent::KeyRelease, key, time += 20);
    QCOMPARE(started, 1);
    QVERIFY(!isAnswered);

    QApplication::setActiveWindow(m_view.get());
    control->setFocus();
    send(control, QEvent::KeyPress, key, time += 80);
    send(control, QEvent::KeyRelease, key, time += 80);
    QCOMPARE(started, 2);
    disconnect(m_view.get(), nullptr, this, nullptr);
}

static void doubleClick(QWidget *first, QWidget *second)
{
    QTest::mouseClick(first, Qt::LeftButton);
    for (const auto type : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, second->rect().center(), Qt::LeftButton, {}, {});
        QApplication::sendEvent(second, &event);
    }
}

void TestKeyboard::acceptsADoubleClickOnlyInOneWindow()
{
    showRows(numbered(1));
    auto *scan = button(QStringLiteral("Scan && Install"));
    const QSignalSpy scanned(m_view.get(), &ScannerView::scanRequested);
    doubleClick(scan, scan);
    QCOMPARE(scanned.count(), 2);

    QMessageBox box(QMessageBox::Information, QStringLiteral("Title"), {}, QMessageBox::Ok);
    connect(m_view.get(), &ScannerView::install, &box, &QWidget::show);
    doubleClick(row(0).action, box.button(QMessageBox::Ok));
    QVERIFY(box.isVisible());
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    QVERIFY(!box.isVisible());
}

void TestKeyboard::distinguishesAPressFromARepeatByItsTime_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("later");
    QTest::addColumn<bool>("isPress");
    QTest::newRow("at once") << int(Qt::Key_Return) << 0 << false;
    QTest::newRow("faster than a finger") << int(Qt::Key_Return) << 2 << false;
    QTest::newRow("as fast as a finger") << int(Qt::Key_Return) << 3 << true;
    QTest::newRow("another key at once") << int(Qt::Key_Enter) << 0 << true;
}

void TestKeyboard::distinguishesAPressFromARepeatByItsTime()
{
    QFETCH(const int, key);
    QFETCH(const int, later);
    QFETCH(const bool, isPress);
    showRows(numbered(1));
    QSignalSpy install(m_view.get(), &ScannerView::install);
    row(0).action->setFocus();
    send(row(0).action, QEvent::KeyPress, Qt::Key_Return, 1000);
    send(row(0).action, QEvent::KeyRelease, Qt::Key_Return, 1500);
    send(row(0).action, QEvent::KeyPress, key, ulong(1500 + later));
    QCOMPARE(install.count(), isPress ? 2 : 1);
    send(row(0).action, QEvent::KeyRelease, key, 3000);
}

void TestKeyboard::clicksTwiceOnlyInTheWindowOfTheFirstClick_data()
{
    QTest::addColumn<bool>("isSame");
    QTest::addColumn<Qt::WindowType>("type");
    QTest::addColumn<int>("clicks");
    QTest::newRow("in one window") << true << Qt::Window << 1;
    QTest::newRow("in a window that has opened") << false << Qt::Window << 0;
    QTest::newRow("in a menu that has opened") << false << Qt::Popup << 1;
}

void TestKeyboard::clicksTwiceOnlyInTheWindowOfTheFirstClick()
{
    QFETCH(const bool, isSame);
    QFETCH(const Qt::WindowType, type);
    QFETCH(const int, clicks);
    showRows(numbered(1));
    QWidget other(isSame ? m_view.get() : nullptr, isSame ? Qt::Widget : type);
    QPushButton second(&other);
    QSignalSpy clicked(&second, &QAbstractButton::clicked);
    QTest::mouseClick(m_view.get(), Qt::LeftButton);
    for (const auto part : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QMouseEvent event(
            part, second.rect().center(), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&second, &event);
    }
    QCOMPARE(clicked.count(), clicks);
}

void TestKeyboard::closesABoxByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("escape") << Qt::Key_Escape;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("space bar") << Qt::Key_Space;
}

void TestKeyboard::closesABoxByKey()
{
    QFETCH(Qt::Key, key);
    int boxes = 0;
    QTimer::singleShot(0, this, [key, &boxes] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        ++boxes;
        QTest::keyClick(box->focusWidget(), key);
    });
    m_view->setScanResult({}, false, false);
    QCOMPARE(boxes, 1);
}

void TestKeyboard::bringsTheRowWithTheFocusIntoSight()
{
    showRows(numbered(30));
    for (const int index : {29, 0, 15}) {
        row(index).action->setFocus(Qt::TabFocusReason);
        QVERIFY(m_list->viewport()->rect().contains(
            m_list->itemWidget(m_list->item(index))->geometry()));
    }
}

void TestKeyboard::keepsTheFocusOnTheSameSimulator_data()
{
    QTest::addColumn<QString>("control");
    QTest::newRow("the folder") << QStringLiteral("path");
    QTest::newRow("choosing the folder") << QStringLiteral("browse");
    QTest::newRow("installing") << QStringLiteral("action");
}

// All rows are replaced meanwhile.
void TestKeyboard::keepsTheFocusOnTheSameSimulator()
{
    QFETCH(QString, control);
    QStringList names = numbered(30);
    showRows(names);
    m_list->itemWidget(m_list->item(25))->findChild<QWidget *>(control)->setFocus();

    names.move(25, 2);
    showRows(names);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto *after = m_list->itemWidget(m_list->item(2));
    QCOMPARE(QApplication::focusWidget(), after->findChild<QWidget *>(control));
    QVERIFY(m_list->viewport()->rect().contains(after->geometry()));

    showRows(numbered(10));
    QVERIFY(m_view->isAncestorOf(QApplication::focusWidget()));
}

void TestKeyboard::keepsTheFocusInTheRowOfAFolderThatIsGone()
{
    showRows(numbered(3));
    row(1).action->setFocus();
    m_view->setScanResult({mapping(QStringLiteral("Simulator 0"), m_sandbox.root()),
                           mapping(QStringLiteral("Simulator 1"), QString())},
                          false,
                          true);
    QCOMPARE(QApplication::focusWidget(), row(1).browse);
}

void TestKeyboard::keepsTheFocusOnTheSecondOfTwoWithOneName()
{
    const QStringList names{QStringLiteral("Kestrel"), QStringLiteral("Kestrel")};
    showRows(names);
    row(1).action->setFocus();
    showRows(names);
    QVERIFY(row(1).action->hasFocus());
}

void TestKeyboard::keepsTheFocusOutsideTheList()
{
    showRows(numbered(3));
    auto *scan = button(QStringLiteral("Scan && Install"));
    scan->setFocus();
    showRows(numbered(3));
    QCOMPARE(QApplication::focusWidget(), scan);
}

void TestKeyboard::keepsTheScrollPosition()
{
    showRows(numbered(50));
    QScrollBar *bar = m_list->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    const int before = bar->value();
    QVERIFY(before > 0);
    showRows(numbered(50));
    QCOMPARE(bar->value(), before);
    QApplication::processEvents();
    QCOMPARE(bar->value(), before);
    showRows(numbered(2));
    QCOMPARE(bar->value(), 0);
}

void TestKeyboard::scrollsByARowPerNotchOfTheWheel()
{
    showRows(numbered(50));
    QWheelEvent notch(
        {}, {}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_list->viewport(), &notch);
    QCOMPARE(m_list->verticalScrollBar()->value(), 3 * 21); // of 64
}

void TestKeyboard::tabsFromTheLastRowToTheButtonsInALargerWindow()
{
    QWidget window;
    QLineEdit others(&window);
    m_view = std::make_unique<ScannerView>(&window);
    m_list = m_view->findChild<QListWidget *>();
    showRows(numbered(2));
    QCOMPARE(row(1).action->nextInFocusChain(), button(QStringLiteral("Scan && Install")));
    QCOMPARE(button(QStringLiteral("Scan && Install"))->nextInFocusChain(),
             button(QStringLiteral("Close")));
    m_view.reset();
}

QTEST_MAIN(TestKeyboard)
#include "tst_Keyboard.moc"
