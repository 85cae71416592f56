#include "Views/ScannerView.h"

#include "Models/FlightSimScan.h"
#include "tests/Widgets/RowParts.h"
#include "tests/support/Sandbox.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Views::ScannerView;
using Tests::RowParts;

namespace {

QVector<QWidget *> controlsOf(const RowParts &parts)
{
    return {parts.icon, parts.name, parts.path, parts.browse, parts.action};
}

} // namespace

// The layout of the window at its minimum size.
class TestScannerViewLayout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void keepsEveryControlInSight_data();
    void keepsEveryControlInSight();
    void showsEveryTextInFull_data();
    void showsEveryTextInFull();
    void givesSpareWidthToThePath();
    void showsTheIconAsSharpAsTheScreen();
    void hasItsTabOrderFromTopToBottom();
    void keepsItsTabOrderAfterASecondResult();

private:
    void showRows(const QString &name, const QString &path, int count);
    RowParts row(int index) const;
    QVector<QWidget *> walk();
    QVector<QWidget *> expectedWalk() const;

    Tests::Sandbox m_sandbox;
    QFont m_font;
    std::unique_ptr<QObject> m_models;
    std::unique_ptr<ScannerView> m_view;
    QListWidget *m_list = nullptr;
};

void TestScannerViewLayout::initTestCase()
{
    m_font = QApplication::font();
}

void TestScannerViewLayout::init()
{
    m_models = std::make_unique<QObject>();
    m_view = std::make_unique<ScannerView>(nullptr);
    m_list = m_view->findChild<QListWidget *>();
}

void TestScannerViewLayout::cleanup()
{
    m_view.reset();
    QApplication::setFont(m_font);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestScannerViewLayout::showRows(const QString &name, const QString &path, int count)
{
    QList<FlightSimulatorMapping *> mappings;
    for (int i = 0; i < count; ++i) {
        auto *scan = new FlightSimScan(m_models.get(), {{QStringLiteral("name"), name}});
        mappings.append(new FlightSimulatorMapping(scan, path));
    }
    m_view->setScanResult(mappings, false, true);
    m_view->resize(640, 480);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

RowParts TestScannerViewLayout::row(int index) const
{
    return RowParts(m_list->itemWidget(m_list->item(index)));
}

void TestScannerViewLayout::keepsEveryControlInSight_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("rows");
    QTest::addColumn<qreal>("fontScale");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    const QString name = QStringLiteral("Simulator");
    const QString longName = QStringLiteral("Simulator ").repeated(40);
    const QString unbrokenName(300, u'W');
    const QString path = QStringLiteral("/");
    const QString longPath = QStringLiteral("/very long folder").repeated(40);
    QTest::newRow("short") << name << path << 2 << 1.0 << Qt::LeftToRight;
    QTest::newRow("empty") << QString() << QString() << 2 << 1.0 << Qt::LeftToRight;
    QTest::newRow("a long name") << longName << path << 2 << 1.0 << Qt::LeftToRight;
    QTest::newRow("an unbroken name") << unbrokenName << path << 2 << 1.0 << Qt::LeftToRight;
    QTest::newRow("a long path") << name << longPath << 2 << 1.0 << Qt::LeftToRight;
    QTest::newRow("with a scroll bar") << longName << longPath << 30 << 1.0 << Qt::LeftToRight;
    QTest::newRow("a large font") << longName << longPath << 30 << 1.5 << Qt::LeftToRight;
    QTest::newRow("right to left") << longName << longPath << 30 << 1.0 << Qt::RightToLeft;
}

void TestScannerViewLayout::keepsEveryControlInSight()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    QFETCH(int, rows);
    QFETCH(qreal, fontScale);
    QFETCH(Qt::LayoutDirection, direction);
    QFont font = m_font;
    font.setPointSizeF(m_font.pointSizeF() * fontScale);
    QApplication::setFont(font);
    QApplication::setLayoutDirection(direction);
    showRows(name, path, rows);

    QCOMPARE(m_view->size(), QSize(640, 480));
    QVERIFY(!m_list->horizontalScrollBar()->isVisible());
    const QRect sight = m_list->viewport()->rect();
    const QWidget *item = m_list->itemWidget(m_list->item(0));
    QVERIFY(sight.contains(item->geometry()));
    const RowParts parts = row(0);
    const QVector<QWidget *> controls = controlsOf(parts);
    for (int i = 0; i < controls.size(); ++i) {
        QVERIFY(item->rect().contains(controls.at(i)->geometry()));
        for (int j = 0; j < i; ++j)
            QVERIFY(!controls.at(i)->geometry().intersects(controls.at(j)->geometry()));
    }
    for (const QToolButton *button : {parts.browse, parts.action})
        QVERIFY(button->width() >= button->sizeHint().width());
    QVERIFY(parts.path->width() >= 160);
    QVERIFY(parts.name->width() >= 320);
}

void TestScannerViewLayout::showsEveryTextInFull_data()
{
    QTest::addColumn<qreal>("fontScale");
    QTest::newRow("the usual font size") << 1.0;
    QTest::newRow("a larger font") << 1.25;
}

void TestScannerViewLayout::showsEveryTextInFull()
{
    QFETCH(qreal, fontScale);
    QFont font = m_font;
    font.setPointSizeF(m_font.pointSizeF() * fontScale);
    QApplication::setFont(font);
    showRows(QStringLiteral("Simulator"), QStringLiteral("/very long folder").repeated(40), 30);
    const RowParts parts = row(0);
    const QString tall = QStringLiteral("Mgjpqy");
    const QVector<QWidget *> controls = controlsOf(parts);
    for (const QWidget *control : controls)
        QVERIFY(control->height() >= control->fontMetrics().tightBoundingRect(tall).height());
    QVERIFY(parts.name->height() >= parts.name->sizeHint().height());
}

void TestScannerViewLayout::givesSpareWidthToThePath()
{
    showRows(QStringLiteral("Simulator"), QStringLiteral("/"), 1);
    const int path = row(0).path->width();
    const int browse = row(0).browse->width();
    const int action = row(0).action->width();
    m_view->resize(1040, 480);
    QTRY_COMPARE(row(0).path->width(), path + 400);
    QCOMPARE(row(0).browse->width(), browse);
    QCOMPARE(row(0).action->width(), action);
}

void TestScannerViewLayout::showsTheIconAsSharpAsTheScreen()
{
    showRows(QStringLiteral("Simulator"), QString(), 1);
    const QPixmap icon = row(0).icon->pixmap(Qt::ReturnByValue);
    QCOMPARE(icon.devicePixelRatio(), m_view->devicePixelRatioF());
    QCOMPARE(icon.size() / icon.devicePixelRatio(), QSize(44, 44));
    if (icon.devicePixelRatio() == 2) {
        const QPixmap drawn(QStringLiteral(":/assets/Quillmont Orbwell/icon-minus-grey-44@2x.png"));
        QCOMPARE(icon.toImage(), drawn.toImage());
    }
}

QVector<QWidget *> TestScannerViewLayout::walk()
{
    QApplication::setActiveWindow(m_view.get());
    m_list->setFocus();
    QVector<QWidget *> walked;
    while (!walked.contains(QApplication::focusWidget())) {
        walked.append(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return walked;
}

QVector<QWidget *> TestScannerViewLayout::expectedWalk() const
{
    QVector<QWidget *> walk{m_list};
    for (int i = 0; i < m_list->count(); ++i)
        walk += QVector<QWidget *>{row(i).path, row(i).browse, row(i).action};
    const auto buttons = m_view->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        walk.append(button);
    return walk;
}

void TestScannerViewLayout::hasItsTabOrderFromTopToBottom()
{
    showRows(QStringLiteral("Simulator"), QStringLiteral("/"), 3);
    QCOMPARE(walk(), expectedWalk());
}

void TestScannerViewLayout::keepsItsTabOrderAfterASecondResult()
{
    showRows(QStringLiteral("Simulator"), QStringLiteral("/"), 3);
    showRows(QStringLiteral("Simulator"), QStringLiteral("/"), 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(walk(), expectedWalk());
    m_view->setScanResult({}, false, true);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(walk(), expectedWalk());
}

QTEST_MAIN(TestScannerViewLayout)
#include "tst_ScannerViewLayout.moc"
