#include "Views/ScannerView.h"

#include "Models/FlightSimScan.h"
#include "tests/Widgets/RowParts.h"
#include "tests/support/BoxAnswerer.h"
#include "tests/support/Files.h"
#include "tests/support/FolderPicker.h"
#include "tests/support/Json.h"
#include "tests/support/Sandbox.h"
#include "tests/support/TextMarker.h"

#include <QAccessible>
#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaEnum>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Views::ScannerView;
using Tests::RowParts;

namespace {

QAccessibleInterface *accessible(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString nameOf(QObject *object)
{
    return accessible(object)->text(QAccessible::Name);
}

QString roleOf(const QAccessibleInterface *part)
{
    return QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(part->role()));
}

// Everything that a screen reader can reach from @p top, as "role: name".
QStringList walk(QAccessibleInterface *top)
{
    QStringList seen{roleOf(top) + QLatin1String(": ") + top->text(QAccessible::Name)};
    for (int i = 0; i < top->childCount(); ++i)
        seen += walk(top->child(i));
    return seen;
}

} // namespace

// The window as a screen reader presents it.
class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void namesEverythingInTheWindow();
    void namesEverythingInABox();
    void hasTheSameParentsAsChildren();
    void knowsTheCurrentRow();
    void describesTheStateInWords_data();
    void describesTheStateInWords();
    void describesTheStateOfAChosenFolder();
    void pressesAButtonWithoutWaitingForTheWork();
    void pressesNoDisabledButton();
    void pressesNothingBehindADialog_data();
    void pressesNothingBehindADialog();
    void pressesNoButtonBehindADialog();
    void showsAPathInTheToolTipAsItIs_data();
    void showsAPathInTheToolTipAsItIs();
    void translatesItsTexts();

private:
    FlightSimulatorMapping *mapping(const QString &name, const QString &path);
    RowParts row(int index) const;

    Tests::Sandbox m_sandbox;
    std::unique_ptr<QObject> m_models;
    std::unique_ptr<ScannerView> m_view;
    QListWidget *m_list = nullptr;
};

void TestAccessibility::init()
{
    m_models = std::make_unique<QObject>();
    m_view = std::make_unique<ScannerView>(nullptr);
    m_list = m_view->findChild<QListWidget *>();
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void TestAccessibility::cleanup()
{
    m_view.reset();
    QDir(m_sandbox.home()).removeRecursively();
}

FlightSimulatorMapping *TestAccessibility::mapping(const QString &name, const QString &path)
{
    QJsonObject entry = Tests::json(R"({"files": [{"destination": "orbwell.dll"}]})");
    entry.insert(QStringLiteral("name"), name);
    return new FlightSimulatorMapping(new FlightSimScan(m_models.get(), entry), path);
}

RowParts TestAccessibility::row(int index) const
{
    return RowParts(m_list->itemWidget(m_list->item(index)));
}

void TestAccessibility::namesEverythingInTheWindow()
{
    const QString installed = m_sandbox.path(QStringLiteral("installed"));
    Tests::writeFile(installed + QLatin1String("/orbwell.dll"), "x");
    m_view->setScanResult({mapping(QStringLiteral("Skylark"), installed),
                           mapping(QStringLiteral("A & B"), QString())},
                          false,
                          true);
    QStringList seen = walk(accessible(m_view.get()));
    QVERIFY(seen.at(1).startsWith(QLatin1String("StaticText: Orbwell will automatically")));
    seen.removeAt(1);
    QCOMPARE(seen,
             (QStringList{QStringLiteral("Client: Quillmont Orbwell Settings"),
                          QStringLiteral("List: Simulators"),
                          QStringLiteral("ListItem: Skylark"),
                          QStringLiteral("Graphic: Skylark: Orbwell is installed"),
                          QStringLiteral("StaticText: Skylark"),
                          QStringLiteral("EditableText: Folder of Skylark"),
                          QStringLiteral("Button: Choose the folder of Skylark"),
                          QStringLiteral("Button: Uninstall Orbwell: Skylark"),
                          QStringLiteral("ListItem: A & B"),
                          QStringLiteral("Graphic: A & B: Folder not known"),
                          QStringLiteral("StaticText: A & B"),
                          QStringLiteral("EditableText: Folder of A & B"),
                          QStringLiteral("Button: Choose the folder of A & B"),
                          QStringLiteral("Button: Install Orbwell: A & B"),
                          QStringLiteral("Button: Scan & Install"),
                          QStringLiteral("Button: Close")}));
}

void TestAccessibility::namesEverythingInABox()
{
    QStringList seen;
    Tests::BoxAnswerer boxes;
    boxes.whileOpen([&seen] { seen = walk(accessible(QApplication::activeModalWidget())); });
    m_view->setScanResult({}, false, false);
    QCOMPARE(seen.first(), QStringLiteral("AlertMessage: Scan completed"));
    QVERIFY(seen.contains(QStringLiteral("StaticText: Quillmont Orbwell Setup cannot find any "
                                         "flight simulator. Please map manually.")));
    QVERIFY(seen.contains(QStringLiteral("Button: OK")));
}

void TestAccessibility::hasTheSameParentsAsChildren()
{
    m_view->setScanResult(
        {mapping(QStringLiteral("A"), QString()), mapping(QStringLiteral("B"), QString())},
        false,
        true);
    auto *list = accessible(m_list);
    for (int i = 0; i < list->childCount(); ++i) {
        QCOMPARE(list->child(i)->parent(), list);
        QCOMPARE(list->indexOfChild(list->child(i)), i);
        auto *button = accessible(row(i).browse);
        QCOMPARE(button->parent(), list->child(i));
        QCOMPARE(list->child(i)->child(list->child(i)->indexOfChild(button)), button);
    }
    QCOMPARE(list->indexOfChild(accessible(m_view.get())), -1);
    QVERIFY(!list->child(2));
    QVERIFY(!list->child(-1));
}

void TestAccessibility::knowsTheCurrentRow()
{
    m_view->setScanResult(
        {mapping(QStringLiteral("A"), QString()), mapping(QStringLiteral("B"), QString())},
        false,
        true);
    QApplication::setActiveWindow(m_view.get());
    m_list->setFocus();
    m_list->setCurrentRow(1);
    auto *list = accessible(m_list);
    QCOMPARE(list->focusChild(), list->child(1));
    QVERIFY(list->child(1)->state().focused);
    QVERIFY(!list->child(0)->state().focused);
    QVERIFY(list->child(0)->state().focusable);
    QVERIFY(m_list->selectedItems().isEmpty());

    row(0).browse->setFocus();
    QCOMPARE(list->focusChild(), accessible(row(0).browse));
    QVERIFY(!list->child(1)->state().focused);
}

void TestAccessibility::describesTheStateInWords_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("words");
    const QString installed = m_sandbox.path(QStringLiteral("installed"));
    QTest::newRow("installed") << installed << QStringLiteral("Orbwell is installed");
    QTest::newRow("not installed")
        << m_sandbox.root() << QStringLiteral("Orbwell is not installed");
    QTest::newRow("deleted folder")
        << m_sandbox.path(QStringLiteral("gone")) << QStringLiteral("Folder not found");
    QTest::newRow("never set") << QString() << QStringLiteral("Folder not known");
}

void TestAccessibility::describesTheStateInWords()
{
    QFETCH(QString, path);
    QFETCH(QString, words);
    Tests::writeFile(m_sandbox.path(QStringLiteral("installed/orbwell.dll")), "x");
    m_view->setScanResult({mapping(QStringLiteral("Skylark"), path)}, false, true);
    const RowParts parts = row(0);
    QCOMPARE(nameOf(parts.icon), QString(QLatin1String("Skylark: ") + words));
    QCOMPARE(parts.icon->toolTip(), words);
    for (QWidget *part : {m_list->itemWidget(m_list->item(0)), static_cast<QWidget *>(parts.path)})
        QCOMPARE(accessible(part)->text(QAccessible::Description), words);
    QCOMPARE(accessible(parts.path)->text(QAccessible::Value), path);
}

void TestAccessibility::describesTheStateOfAChosenFolder()
{
    Tests::writeFile(m_sandbox.path(QStringLiteral("installed/orbwell.dll")), "x");
    m_view->setScanResult({mapping(QStringLiteral("Skylark"), QString())}, false, true);
    const Tests::FolderPicker person(m_sandbox.path(QStringLiteral("installed")));
    row(0).browse->click();
    QCOMPARE(nameOf(row(0).icon), QStringLiteral("Skylark: Orbwell is installed"));
    QCOMPARE(nameOf(row(0).action), QStringLiteral("Uninstall Orbwell: Skylark"));
}

void TestAccessibility::pressesAButtonWithoutWaitingForTheWork()
{
    m_view->setScanResult({mapping(QStringLiteral("Skylark"), m_sandbox.root())}, false, true);
    QSignalSpy install(m_view.get(), &ScannerView::install);
    auto *actions = accessible(row(0).action)->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(install.count(), 0);
    QTRY_COMPARE(install.count(), 1);
    QVERIFY(!row(0).action->hasFocus());
    QApplication::setActiveWindow(m_view.get());
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(row(0).action->hasFocus());
}

void TestAccessibility::pressesNoDisabledButton()
{
    m_view->setScanResult({mapping(QStringLiteral("Skylark"), QString())}, false, true);
    auto *actions = accessible(row(0).action)->actionInterface();
    QVERIFY(!actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    QVERIFY(accessible(row(0).action)->state().disabled);
}

void TestAccessibility::pressesNothingBehindADialog_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("installing") << QStringLiteral("Install Orbwell: Skylark");
    QTest::newRow("choosing a folder") << QStringLiteral("Choose the folder of Skylark");
    QTest::newRow("scanning") << QStringLiteral("Scan & Install");
    QTest::newRow("closing") << QStringLiteral("Close");
}

void TestAccessibility::pressesNothingBehindADialog()
{
    QFETCH(const QString, name);
    m_view->setScanResult({mapping(QStringLiteral("Skylark"), m_sandbox.root())}, false, true);
    const auto buttons = m_view->findChildren<QAbstractButton *>();
    auto *button = *std::find_if(
        buttons.cbegin(), buttons.cend(), [&name](QObject *each) { return nameOf(each) == name; });
    const QSignalSpy install(m_view.get(), &ScannerView::install);
    const QSignalSpy scan(m_view.get(), &ScannerView::scanRequested);
    const Tests::FolderPicker person({});

    QDialog dialog(m_view.get());
    constexpr int leftOpen = 7; // closing the program would end the loop earlier, with status 0
    QTimer::singleShot(0, &dialog, [&dialog, button] {
        const QSignalSpy clicked(button, &QAbstractButton::clicked);
        accessible(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        if (qobject_cast<QPushButton *>(button))
            QTRY_COMPARE(clicked.count(), 1);
        QCoreApplication::processEvents();
        QTimer::singleShot(0, &dialog, [&dialog] { dialog.done(leftOpen); });
    });
    QCOMPARE(dialog.exec(), leftOpen);
    QCOMPARE(install.count() + scan.count() + person.pickers().size(), 0);
}

// A dialog that has opened since the press was requested.
void TestAccessibility::pressesNoButtonBehindADialog()
{
    m_view->setScanResult({mapping(QStringLiteral("Skylark"), m_sandbox.root())}, false, true);
    QSignalSpy install(m_view.get(), &ScannerView::install);
    accessible(row(0).action)
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QSignalSpy scan(m_view.get(), &ScannerView::scanRequested);
    const auto buttons = m_view->findChildren<QPushButton *>();
    for (auto *button : buttons)
        accessible(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QDialog dialog(m_view.get());
    dialog.open();
    // Closing the window would end the loop.
    QEventLoop loop;
    QTimer patience;
    connect(&patience, &QTimer::timeout, &loop, [&] {
        if (std::none_of(
                buttons.cbegin(), buttons.cend(), [](auto *each) { return each->isDown(); }))
            loop.exit(7);
    });
    patience.start(0);
    QCOMPARE(loop.exec(), 7);
    QCOMPARE(buttons.size(), 2);
    QCOMPARE(install.count() + scan.count(), 0);
}

void TestAccessibility::showsAPathInTheToolTipAsItIs_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << QStringLiteral("/simulators/A & B");
    QTest::newRow("with tags") << QStringLiteral("/simulators/<b>bold</b>/<img src='x'>");
    QTest::newRow("long") << QStringLiteral("/very long folder").repeated(40);
    QTest::newRow("just short of wrapping") << QString(119, u'/');
    QTest::newRow("just long enough to wrap") << QString(120, u'/');
    QTest::newRow("repeated spaces") << QStringLiteral("/a   b").repeated(40);
}

void TestAccessibility::showsAPathInTheToolTipAsItIs()
{
    QFETCH(QString, path);
    m_view->setScanResult({mapping(QStringLiteral("Skylark"), path)}, false, true);
    const QString toolTip = row(0).path->toolTip();
    QCOMPARE(Qt::mightBeRichText(toolTip), path.size() >= 120 || Qt::mightBeRichText(path));
    QTextDocument shown;
    if (Qt::mightBeRichText(toolTip))
        shown.setHtml(toolTip);
    else
        shown.setPlainText(toolTip);
    QCOMPARE(shown.toPlainText(), path);
}

void TestAccessibility::translatesItsTexts()
{
    const Tests::TextMarker marker;
    const ScannerView view(nullptr);
    const QString context = QStringLiteral("[Quillmont::Utility::Views::ScannerView] ");
    QCOMPARE(nameOf(view.findChild<QListWidget *>()),
             QString(context + QLatin1String("Simulators")));

    m_view->setScanResult({mapping(QStringLiteral("Skylark"), QString())}, false, true);
    const RowParts parts = row(0);
    for (QWidget *part :
         std::initializer_list<QWidget *>{parts.icon, parts.path, parts.browse, parts.action})
        QVERIFY(nameOf(part).startsWith(
            QLatin1String("[Quillmont::Utility::Widgets::AddonListItem] ")));
}

QTEST_MAIN(TestAccessibility)
#include "tst_Accessibility.moc"
