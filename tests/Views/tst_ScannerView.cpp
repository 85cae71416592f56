#include "Views/ScannerView.h"

#include "Controllers/ConfigurationController.h"
#include "Controllers/FileStamp.h"
#include "Models/FlightSimScan.h"
#include "Widgets/AddonListItem.h"
#include "Widgets/AddonListItemDelegate.h"
#include "tests/Widgets/RowParts.h"
#include "tests/support/BoxAnswerer.h"
#include "tests/support/Files.h"
#include "tests/support/Json.h"
#include "tests/support/LaterTime.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MetaObject.h"
#include "tests/support/Sandbox.h"
#include "tests/support/TextMarker.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <ctime>
#include <limits>

using Quillmont::Utility::Controllers::ConfigurationController;
using Quillmont::Utility::Controllers::fileStamp;
using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Views::ScannerView;
using Quillmont::Utility::Widgets::AddonListItem;
using Quillmont::Utility::Widgets::AddonListItemDelegate;
using Tests::BoxAnswerer;
using Tests::RowParts;

using Mappings = QList<FlightSimulatorMapping *>;

namespace {

QListWidget *listOf(const ScannerView &view)
{
    return view.findChild<QListWidget *>();
}

QPushButton *buttonOf(const ScannerView &view, const QString &text)
{
    const auto buttons = view.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

QPushButton *scanButtonOf(const ScannerView &view)
{
    return buttonOf(view, QStringLiteral("Scan && Install"));
}

QPushButton *closeButtonOf(const ScannerView &view)
{
    return buttonOf(view, QStringLiteral("Close"));
}

AddonListItem *rowOf(const ScannerView &view, int index)
{
    QListWidget *list = listOf(view);
    return qobject_cast<AddonListItem *>(list->itemWidget(list->item(index)));
}

QStringList namesIn(const ScannerView &view)
{
    QStringList names;
    for (int i = 0; i < listOf(view)->count(); ++i)
        names.append(RowParts(rowOf(view, i)).name->text());
    return names;
}

} // namespace

// The settings keep their first path, so all tests share one home.
class TestScannerView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsAnIntroductionAListAndTwoButtons();
    void hasItsTitleAndMinimumSize();
    void ownsItsParts();
    void givesTheListItsRowHeight();
    void showsARowForEachMappingInOrder();
    void givesEveryRowTheSameHeight();
    void hasEmptyItemsBehindTheRows();
    void replacesAllRows();
    void clearsTheListForAnEmptyResult();
    void explainsAnEmptyList();
    void passesTheFlagToItsRows();
    void reportsTheNumberOfFolders_data();
    void reportsTheNumberOfFolders();
    void countsFoldersEvenIfTheyDoNotExist();
    void showsTheRowsBeforeTheBox();
    void showsNoBoxWhenQuiet_data();
    void showsNoBoxWhenQuiet();
    void requestsAScan();
    void passesOnTheRequestsOfRows();
    void survivesAScanDuringARowsRequest();
    void endsTheProgramWithSuccess();
    void translatesItsTextsInItsOwnContext();
    void growsLinearlyWithTheRows_data();
    void growsLinearlyWithTheRows();
    void isBuiltWithoutAWarning();
    void namesItsSignalsInOrder();

private:
    FlightSimulatorMapping *mapping(const QString &name, const QString &path = QString());
    void pickFolders(int rows) const;
    double secondsFor(int windows, int rows);

    QString gone() const { return m_sandbox.path(QStringLiteral("gone")); }

    Tests::Sandbox m_sandbox;
    std::unique_ptr<QObject> m_models;
};

void TestScannerView::init()
{
    m_models = std::make_unique<QObject>();
}

void TestScannerView::cleanup()
{
    QDir(m_sandbox.home()).removeRecursively();
}

FlightSimulatorMapping *TestScannerView::mapping(const QString &name, const QString &path)
{
    QJsonObject entry = Tests::json(R"({"files": [{"destination": "orbwell.dll"}]})");
    entry.insert(QStringLiteral("name"), name);
    return new FlightSimulatorMapping(new FlightSimScan(m_models.get(), entry), path);
}

void TestScannerView::showsAnIntroductionAListAndTwoButtons()
{
    const ScannerView view(nullptr);
    auto *layout = qobject_cast<QVBoxLayout *>(view.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 3);

    auto *introduction = qobject_cast<QLabel *>(layout->itemAt(0)->widget());
    QVERIFY(introduction);
    QCOMPARE(introduction->text(),
             QStringLiteral(
                 "Orbwell will automatically detect your simulators and install the plugin in "
                 "each. Please verify below. To manually scan and install again, press \"Scan & "
                 "Install\" below."));
    QVERIFY(introduction->wordWrap());
    QVERIFY(qobject_cast<QListWidget *>(layout->itemAt(1)->widget()));

    auto *buttons = qobject_cast<QHBoxLayout *>(layout->itemAt(2)->layout());
    QVERIFY(buttons);
    QCOMPARE(buttons->count(), 2);
    QCOMPARE(qobject_cast<QPushButton *>(buttons->itemAt(0)->widget())->text(),
             QStringLiteral("Scan && Install"));
    QCOMPARE(qobject_cast<QPushButton *>(buttons->itemAt(1)->widget())->text(),
             QStringLiteral("Close"));
}

void TestScannerView::hasItsTitleAndMinimumSize()
{
    const ScannerView view(nullptr);
    QCOMPARE(view.windowTitle(), QStringLiteral("Quillmont Orbwell Settings"));
    QCOMPARE(view.minimumSize(), QSize(640, 480));
    QVERIFY(!view.isVisible());
}

void TestScannerView::ownsItsParts()
{
    QWidget parent;
    const auto *view = new ScannerView(&parent);
    QCOMPARE(view->parentWidget(), &parent);
    QCOMPARE(listOf(*view)->parentWidget(), view);
    QCOMPARE(scanButtonOf(*view)->parentWidget(), view);
    QCOMPARE(closeButtonOf(*view)->parentWidget(), view);
    QCOMPARE(view->layout()->itemAt(0)->widget()->parentWidget(), view);
}

void TestScannerView::givesTheListItsRowHeight()
{
    const ScannerView view(nullptr);
    QAbstractItemDelegate *delegate = listOf(view)->itemDelegate();
    QVERIFY(qobject_cast<AddonListItemDelegate *>(delegate));
    QCOMPARE(delegate->parent(), listOf(view));
    QCOMPARE(listOf(view)->count(), 0);
}

void TestScannerView::showsARowForEachMappingInOrder()
{
    ScannerView view(nullptr);
    view.setScanResult({mapping(QStringLiteral("C")),
                        mapping(QStringLiteral("A")),
                        mapping(QStringLiteral("B")),
                        mapping(QStringLiteral("A"))},
                       false,
                       true);
    QCOMPARE(namesIn(view),
             (QStringList{QStringLiteral("<b>C</b>"),
                          QStringLiteral("<b>A</b>"),
                          QStringLiteral("<b>B</b>"),
                          QStringLiteral("<b>A</b>")}));
    for (int i = 0; i < 4; ++i)
        QVERIFY(listOf(view)->isAncestorOf(rowOf(view, i)));
}

void TestScannerView::givesEveryRowTheSameHeight()
{
    ScannerView view(nullptr);
    view.setScanResult({mapping(QStringLiteral("A")),
                        mapping(QStringLiteral("one<br>two<br>three<br>four<br>five")),
                        mapping(QString(500, u'x'), QString(2000, u'y'))},
                       false,
                       true);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QListWidget *list = listOf(view);
    list->item(0)->setText(QStringLiteral("line\n").repeated(20));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(list->visualItemRect(list->item(i)).height(), 64);
        QCOMPARE(rowOf(view, i)->height(), 64);
    }
}

void TestScannerView::hasEmptyItemsBehindTheRows()
{
    ScannerView view(nullptr);
    view.setScanResult({mapping(QStringLiteral("A"))}, false, true);
    const QListWidgetItem *item = listOf(view)->item(0);
    QCOMPARE(item->type(), int(QListWidgetItem::Type));
    QCOMPARE(item->text(), QString());
    QVERIFY(item->icon().isNull());
}

void TestScannerView::replacesAllRows()
{
    ScannerView view(nullptr);
    FlightSimulatorMapping *kept = mapping(QStringLiteral("A"));
    view.setScanResult({kept, mapping(QStringLiteral("B"))}, false, true);
    const QPointer<AddonListItem> first = rowOf(view, 0);
    const QPointer<AddonListItem> second = rowOf(view, 1);

    view.setScanResult({mapping(QStringLiteral("C")), kept}, false, true);
    QCOMPARE(namesIn(view), (QStringList{QStringLiteral("<b>C</b>"), QStringLiteral("<b>A</b>")}));
    QVERIFY(rowOf(view, 1) != first);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!first);
    QVERIFY(!second);
    QCOMPARE(view.findChildren<AddonListItem *>().size(), 2);
}

void TestScannerView::clearsTheListForAnEmptyResult()
{
    const BoxAnswerer boxes;
    ScannerView view(nullptr);
    view.setScanResult({mapping(QStringLiteral("A"), gone())}, false, true);
    view.setScanResult({}, false, false);
    QCOMPARE(listOf(view)->count(), 0);
    QCOMPARE(boxes.boxes().size(), 1);
    QCOMPARE(boxes.boxes().first().text,
             QStringLiteral("Quillmont Orbwell Setup cannot find any flight simulator. Please map "
                            "manually."));
}

void TestScannerView::explainsAnEmptyList()
{
    ScannerView view(nullptr);
    const auto *text = listOf(view)->viewport()->findChild<QLabel *>();
    const auto *read = QAccessible::queryAccessibleInterface(listOf(view));
    view.show();
    for (const bool isEmpty : {true, false, true}) {
        view.setScanResult({}, false, true);
        if (!isEmpty)
            view.setScanResult({mapping(QStringLiteral("A"))}, false, true);
        QCOMPARE(text->isVisible(), isEmpty);
        QCOMPARE(read->text(QAccessible::Description), isEmpty ? text->text() : QString());
    }
    QVERIFY(QRect(QPoint(), listOf(view)->viewport()->size()).contains(text->geometry()));
    QVERIFY(text->text().contains(QStringLiteral("flightsims.json")));
}

void TestScannerView::passesTheFlagToItsRows()
{
    const QString key = QStringLiteral("flightsim/Example_Sim");
    ConfigurationController *settings = ConfigurationController::instance();
    settings->saveSettings(key, QStringLiteral("/chosen"));
    FlightSimulatorMapping *shown = mapping(QStringLiteral("Example Sim"), gone());
    ScannerView view(nullptr);

    view.setScanResult({shown}, true, true);
    QCOMPARE(shown->path, QStringLiteral("/chosen"));
    QCOMPARE(RowParts(rowOf(view, 0)).path->text(), QStringLiteral("/chosen"));
    QVERIFY(settings->getSettings(key).isValid());

    view.setScanResult({shown}, false, true);
    QVERIFY(!settings->getSettings(key).isValid());
}

void TestScannerView::reportsTheNumberOfFolders_data()
{
    QTest::addColumn<int>("withFolder");
    QTest::addColumn<int>("without");
    QTest::addColumn<QString>("text");
    const QString none = QStringLiteral(
        "Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.");
    QTest::newRow("none") << 0 << 0 << none;
    QTest::newRow("none of two") << 0 << 2 << none;
    QTest::newRow("one") << 1 << 0 << QStringLiteral("Scan found 1 flight simulator installed.");
    QTest::newRow("one of three") << 1 << 2
                                  << QStringLiteral("Scan found 1 flight simulator installed.");
    QTest::newRow("two of three") << 2 << 1
                                  << QStringLiteral("Scan found 2 flight simulators installed.");
    QTest::newRow("twelve") << 12 << 0
                            << QStringLiteral("Scan found 12 flight simulators installed.");
}

void TestScannerView::reportsTheNumberOfFolders()
{
    QFETCH(int, withFolder);
    QFETCH(int, without);
    Mappings mappings;
    for (int i = 0; i < withFolder; ++i)
        mappings.append(mapping(QStringLiteral("A"), m_sandbox.root()));
    for (int i = 0; i < without; ++i)
        mappings.prepend(mapping(QStringLiteral("B")));

    const BoxAnswerer boxes;
    ScannerView view(nullptr);
    view.setScanResult(mappings, false, false);
    QCOMPARE(boxes.boxes().size(), 1);
    const Tests::SeenBox &box = boxes.boxes().first();
    QTEST(box.text, "text");
    QCOMPARE(box.title, QStringLiteral("Scan completed"));
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, &view);
}

void TestScannerView::countsFoldersEvenIfTheyDoNotExist()
{
    const BoxAnswerer boxes;
    ScannerView view(nullptr);
    view.setScanResult(
        {mapping(QStringLiteral("A"), gone()), mapping(QStringLiteral("B"), gone())}, false, false);
    QCOMPARE(boxes.boxes().first().text,
             QStringLiteral("Scan found 2 flight simulators installed."));
}

void TestScannerView::showsTheRowsBeforeTheBox()
{
    BoxAnswerer boxes;
    ScannerView view(nullptr);
    int rows = -1;
    boxes.whileOpen([&view, &rows] { rows = listOf(view)->count(); });
    view.setScanResult({mapping(QStringLiteral("A")), mapping(QStringLiteral("B"))}, false, false);
    QCOMPARE(rows, 2);
}

void TestScannerView::showsNoBoxWhenQuiet_data()
{
    QTest::addColumn<bool>("updateDefault");
    QTest::addColumn<bool>("quiet");
    QTest::newRow("at the start") << true << false;
    QTest::newRow("when quiet") << false << true;
    QTest::newRow("at the start and quiet") << true << true;
}

void TestScannerView::showsNoBoxWhenQuiet()
{
    QFETCH(bool, updateDefault);
    QFETCH(bool, quiet);
    const BoxAnswerer boxes;
    ScannerView view(nullptr);
    view.setScanResult({}, updateDefault, quiet);
    view.setScanResult({mapping(QStringLiteral("A"), gone())}, updateDefault, quiet);
    QVERIFY(boxes.boxes().isEmpty());
}

void TestScannerView::requestsAScan()
{
    const ScannerView view(nullptr);
    QSignalSpy scanRequested(&view, &ScannerView::scanRequested);
    closeButtonOf(view)->click();
    QCOMPARE(scanRequested.count(), 0);
    scanButtonOf(view)->click();
    QCOMPARE(scanRequested.count(), 1);
}

void TestScannerView::passesOnTheRequestsOfRows()
{
    const QString installed = m_sandbox.path(QStringLiteral("installed"));
    Tests::writeFile(installed + QLatin1String("/orbwell.dll"), "x");
    FlightSimulatorMapping *first = mapping(QStringLiteral("A"), m_sandbox.root());
    FlightSimulatorMapping *second = mapping(QStringLiteral("B"), installed);
    ScannerView view(nullptr);
    QSignalSpy install(&view, &ScannerView::install);
    QSignalSpy uninstall(&view, &ScannerView::uninstall);
    view.setScanResult({first, second}, false, true);

    RowParts(rowOf(view, 0)).action->click();
    QCOMPARE(install.count(), 1);
    QCOMPARE(uninstall.count(), 0);
    QCOMPARE(install.first().first().value<FlightSimulatorMapping *>(), first);

    RowParts(rowOf(view, 1)).action->click();
    QCOMPARE(install.count(), 1);
    QCOMPARE(uninstall.count(), 1);
    QCOMPARE(uninstall.first().first().value<FlightSimulatorMapping *>(), second);
}

void TestScannerView::survivesAScanDuringARowsRequest()
{
    FlightSimulatorMapping *shown = mapping(QStringLiteral("A"), m_sandbox.root());
    ScannerView view(nullptr);
    view.setScanResult({shown}, false, true);
    connect(&view, &ScannerView::install, this, [&view](FlightSimulatorMapping *mapping) {
        view.setScanResult({mapping, mapping}, false, true);
    });
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTest::mouseClick(RowParts(rowOf(view, 0)).action, Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(listOf(view)->count(), 2);
}

void TestScannerView::endsTheProgramWithSuccess()
{
    ScannerView view(nullptr);
    view.setScanResult({mapping(QStringLiteral("A"), gone())}, false, true);
    view.show();
    // Another window is open, so closing this one alone would not end the loop.
    QWidget other;
    other.show();
    QTimer::singleShot(0, closeButtonOf(view), &QPushButton::click);
    QTimer giveUp;
    connect(&giveUp, &QTimer::timeout, qApp, [] { QCoreApplication::exit(7); });
    giveUp.start(5000);
    QCOMPARE(QCoreApplication::exec(), 0);
}

void TestScannerView::translatesItsTextsInItsOwnContext()
{
    const QString context = QStringLiteral("[Quillmont::Utility::Views::ScannerView] ");
    const Tests::TextMarker marker;
    const BoxAnswerer boxes;
    ScannerView view(nullptr);
    QCOMPARE(view.windowTitle(), context + QLatin1String("Quillmont Orbwell Settings"));
    QVERIFY(buttonOf(view, context + QLatin1String("Close")));
    QVERIFY(buttonOf(view, context + QLatin1String("Scan && Install")));
    auto *introduction = qobject_cast<QLabel *>(view.layout()->itemAt(0)->widget());
    QVERIFY(introduction->text().startsWith(context + QLatin1String("Orbwell will")));

    Mappings mappings;
    for (int count = 0; count < 3; ++count) {
        view.setScanResult(mappings, false, false);
        QCOMPARE(boxes.boxes().last().title, context + QLatin1String("Scan completed"));
        QVERIFY(boxes.boxes().last().text.startsWith(context));
        mappings.append(mapping(QStringLiteral("A"), gone()));
    }
    QCOMPARE(boxes.boxes().last().text,
             context + QLatin1String("Scan found 2 flight simulators installed."));
}

void TestScannerView::pickFolders(int rows) const
{
    QByteArray settings = "[flightsim]\n";
    for (int i = 0; i < rows; ++i)
        settings += QByteArray::number(i) + "=/\n";
    const QString file = m_sandbox.dataRoot() + QStringLiteral("Quillmont/Vellum/.settings");
    Tests::writeFile(file, settings);
    QVERIFY(!fileStamp(file).isEmpty());
}

// The processor time for that many windows of that many rows, shown and scanned again.
double TestScannerView::secondsFor(int windows, int rows)
{
    Mappings mappings;
    for (int i = 0; i < rows; ++i)
        mappings.append(mapping(QString::number(i), m_sandbox.root()));
    std::clock_t taken = 0;
    for (int i = 0; i < windows; ++i) {
        const std::clock_t begin = std::clock();
        ScannerView view(nullptr);
        view.setScanResult(mappings, true, true);
        view.show();
        QCoreApplication::processEvents();
        view.setScanResult(mappings, true, true); // like another scan
        QCoreApplication::processEvents();
        taken += std::clock() - begin;
    }
    return double(taken) / CLOCKS_PER_SEC;
}

void TestScannerView::growsLinearlyWithTheRows_data()
{
    QTest::addColumn<bool>("areStored");
    QTest::newRow("without settings") << false;
    QTest::newRow("with a folder picked for each") << true;
}

void TestScannerView::growsLinearlyWithTheRows()
{
    QFETCH(const bool, areStored);
    constexpr int rows = 300;
    const Tests::LaterTime later(3); // what was read from a file just written is not kept
    secondsFor(1, rows); // costs of the first window only
    double ratio = 0;
    // Either may take longer on a busy machine.
    for (int attempt = 0; attempt < 5 && (attempt == 0 || ratio > 12); ++attempt) {
        if (areStored)
            pickFolders(rows);
        const double few = secondsFor(3, rows) / 3;
        if (areStored)
            pickFolders(10 * rows);
        ratio = secondsFor(1, 10 * rows) / few;
    }
    QVERIFY2(ratio <= 12, qPrintable(QString::number(ratio)));
}

void TestScannerView::isBuiltWithoutAWarning()
{
    const Tests::LogCatcher log;
    ScannerView view(nullptr);
    view.show();
    view.setScanResult(
        {mapping(QStringLiteral("A"), gone()), mapping(QStringLiteral("B"))}, true, true);
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.setScanResult({mapping(QStringLiteral("A"))}, false, true);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    view.grab();
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
}

void TestScannerView::namesItsSignalsInOrder()
{
    const QMetaObject &meta = ScannerView::staticMetaObject;
    QCOMPARE(meta.className(), "Quillmont::Utility::Views::ScannerView");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    const QString argument
        = QStringLiteral("(Quillmont::Utility::Models::FlightSimulatorMapping*)");
    QCOMPARE(Tests::ownMembers(meta),
             (QStringList{QStringLiteral("signal scanRequested()"),
                          QLatin1String("signal install") + argument,
                          QLatin1String("signal uninstall") + argument}));
    const QMetaMethod install = meta.method(meta.methodOffset() + 1);
    QCOMPARE(install.parameterType(0), qMetaTypeId<FlightSimulatorMapping *>());
    QCOMPARE(install.parameterNames(), QList<QByteArray>{"mappingToInstall"});
}

QTEST_MAIN(TestScannerView)
#include "tst_ScannerView.moc"
