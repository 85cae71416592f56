#include "Widgets/AddonListItem.h"

#include "Controllers/ConfigurationController.h"
#include "Models/FlightSimScan.h"
#include "Widgets/NameItem.h"
#include "tests/Widgets/RowParts.h"
#include "tests/support/Files.h"
#include "tests/support/FolderPicker.h"
#include "tests/support/Json.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MetaObject.h"
#include "tests/support/Sandbox.h"
#include "tests/support/TextMarker.h"

#include <QBoxLayout>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolButton>

using Quillmont::Utility::Controllers::ConfigurationController;
using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Widgets::AddonListItem;
using Quillmont::Utility::Widgets::NameItem;
using Tests::json;
using Tests::RowParts;
using Tests::writeFile;

namespace {

QImage artwork(const QString &name)
{
    return QPixmap(QLatin1String(":/assets/Quillmont Orbwell/") + name).toImage();
}

QImage shownIcon(const AddonListItem &row)
{
    return RowParts(&row).icon->pixmap(Qt::ReturnByValue).toImage();
}

QVariant saved(const QString &key)
{
    return ConfigurationController::instance()->getSettings(key);
}

void save(const QString &key, const QString &value)
{
    ConfigurationController::instance()->saveSettings(key, value);
}

} // namespace

// The settings keep their first path, so all tests share one home.
class TestAddonListItem : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void alignsItsPartsBesideTheIcon();
    void distributesTheWidthAsSpecified();
    void keepsQtsSpacing();
    void givesItsPartsTheirSizes();
    void ownsItsPartsAndNotTheMapping();
    void showsTheNameInBold_data();
    void showsTheNameInBold();
    void showsThePathFromItsStart();
    void neverShowsAPathAsMarkup();
    void showsTheBeginningOfAVeryLongPath();
    void showsAPlaceholderWithoutAPath();
    void usesThePathFromSettingsOrScan_data();
    void usesThePathFromSettingsOrScan();
    void showsTheStateOfTheSavedFolder();
    void storesTheSettingsByName_data();
    void storesTheSettingsByName();
    void showsTheState_data();
    void showsTheState();
    void resolvesARelativePathAgainstTheWorkingFolder();
    void requestsTheActionByTheDisksStateAtEachClick();
    void requestsNothingWithoutAFolder();
    void translatesItsTextsInItsOwnContext();
    void givesItsNameRoomAbove_data();
    void givesItsNameRoomAbove();
    void isBuiltWithoutAWarning();
    void namesItsSignalsAndSlotsInOrder();

private:
    FlightSimScan *entry(const QString &name);
    FlightSimulatorMapping *mapping(const QString &path);

    QString folder() const { return m_folder->path(); }

    Tests::Sandbox m_sandbox;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QObject> m_models;
};

void TestAddonListItem::init()
{
    m_folder = std::make_unique<QTemporaryDir>(m_sandbox.path(QStringLiteral("sim-XXXXXX")));
    QVERIFY(m_folder->isValid());
    m_models = std::make_unique<QObject>();
}

void TestAddonListItem::cleanup()
{
    QDir(m_sandbox.home()).removeRecursively();
    QDir().mkpath(m_sandbox.home());
}

FlightSimScan *TestAddonListItem::entry(const QString &name)
{
    QJsonObject object = json(R"({"files": [{"source": "s", "destination": "orbwell.dll"}]})");
    object.insert(QStringLiteral("name"), name);
    return new FlightSimScan(m_models.get(), object);
}

FlightSimulatorMapping *TestAddonListItem::mapping(const QString &path)
{
    return new FlightSimulatorMapping(entry(QStringLiteral("Example Sim")), path);
}

void TestAddonListItem::alignsItsPartsBesideTheIcon()
{
    const AddonListItem row(nullptr, mapping(folder()), false);
    const RowParts parts(&row);
    QVERIFY(parts.icon && parts.name && parts.path && parts.browse && parts.action);
    QCOMPARE(parts.outer->count(), 2);
    QCOMPARE(parts.column->count(), 2);
    QCOMPARE(parts.line->count(), 3);
}

void TestAddonListItem::distributesTheWidthAsSpecified()
{
    const AddonListItem row(nullptr, mapping(folder()), false);
    const RowParts parts(&row);
    QCOMPARE(parts.outer->stretch(0), 0);
    QCOMPARE(parts.outer->stretch(1), 0);
    QCOMPARE(parts.column->stretch(0), 0);
    QCOMPARE(parts.column->stretch(1), 0);
    QCOMPARE(parts.line->stretch(0), 0);
    QCOMPARE(parts.line->stretch(1), 2);
    QCOMPARE(parts.line->stretch(2), 2);
}

void TestAddonListItem::keepsQtsSpacing()
{
    const AddonListItem row(nullptr, mapping(folder()), false);
    const RowParts parts(&row);
    QWidget plain;
    auto *outer = new QHBoxLayout(&plain);
    auto *column = new QVBoxLayout;
    outer->addLayout(column);
    QCOMPARE(parts.outer->contentsMargins(), outer->contentsMargins());
    QCOMPARE(parts.outer->spacing(), outer->spacing());
    QCOMPARE(parts.column->contentsMargins(), column->contentsMargins());
    QCOMPARE(parts.column->spacing(), column->spacing());
    QCOMPARE(parts.line->contentsMargins(), column->contentsMargins());
}

void TestAddonListItem::givesItsPartsTheirSizes()
{
    const AddonListItem row(nullptr, mapping(folder()), false);
    const RowParts parts(&row);
    QCOMPARE(parts.icon->minimumSize(), QSize(48, 48));
    QCOMPARE(parts.icon->maximumSize(), QSize(48, 48));
    QCOMPARE(parts.path->minimumSize(), QSize(0, 24));
    QCOMPARE(parts.browse->minimumSize(), QSize(24, 24));
    QCOMPARE(parts.action->minimumSize(), QSize(128, 24));
}

void TestAddonListItem::ownsItsPartsAndNotTheMapping()
{
    auto list = std::make_unique<QWidget>();
    const QPointer<FlightSimulatorMapping> shown = mapping(folder());
    const QPointer<AddonListItem> row = new AddonListItem(list.get(), shown, false);
    QCOMPARE(row->parentWidget(), list.get());

    const RowParts parts(row);
    QList<QPointer<QWidget>> children;
    for (QWidget *part : std::initializer_list<QWidget *>{
             parts.icon, parts.name, parts.path, parts.browse, parts.action}) {
        QCOMPARE(part->parentWidget(), row.data());
        children.append(part);
    }

    list.reset();
    QVERIFY(!row);
    for (const QPointer<QWidget> &child : qAsConst(children))
        QVERIFY(!child);
    QVERIFY(shown);
}

void TestAddonListItem::showsTheNameInBold_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("Example Sim");
    QTest::newRow("empty") << QString();
    QTest::newRow("with placeholders") << QStringLiteral("Sim %0 %1 %n");
    QTest::newRow("other scripts") << QStringLiteral("Símulátor 飛行 محاكي 😀");
}

void TestAddonListItem::showsTheNameInBold()
{
    QFETCH(QString, name);
    FlightSimulatorMapping shown(entry(name), folder());
    const AddonListItem row(nullptr, &shown, false);
    const RowParts parts(&row);
    QCOMPARE(parts.name->text(), QString(QLatin1String("<b>") + name + QLatin1String("</b>")));
    QVERIFY(parts.name->textFormat() == Qt::AutoText || parts.name->textFormat() == Qt::RichText);
    QCOMPARE(parts.name->toolTip(), parts.name->text());
}

void TestAddonListItem::showsThePathFromItsStart()
{
    const QString path = folder() + QStringLiteral("/飛行 %1").repeated(60);
    const AddonListItem row(nullptr, mapping(path), false);
    const RowParts parts(&row);
    QCOMPARE(parts.path->text(), path);
    QVERIFY(parts.path->toolTip().contains(path));
    QVERIFY(parts.browse->toolTip().startsWith(QLatin1String("Choose the folder of")));
    QCOMPARE(parts.action->toolTip(), QString());
    QCOMPARE(parts.path->cursorPosition(), 0);
    QVERIFY(parts.path->isReadOnly());
    QVERIFY(parts.path->isEnabled());
}

void TestAddonListItem::neverShowsAPathAsMarkup()
{
    const QString path = QStringLiteral("/sims/<b>bold</b> &lt; <img src=/x>");
    const AddonListItem row(nullptr, mapping(path), false);
    const RowParts parts(&row);
    QCOMPARE(parts.path->text(), path);
    QCOMPARE(QTextDocumentFragment::fromHtml(parts.path->toolTip()).toPlainText(), path);
}

// A tool tip of that length would keep Qt busy for minutes.
void TestAddonListItem::showsTheBeginningOfAVeryLongPath()
{
    const QString path = QStringLiteral("/a").repeated(4 * 1024 * 1024);
    const AddonListItem row(nullptr, mapping(path), false);
    const RowParts parts(&row);
    QVERIFY(path.startsWith(parts.path->text()));
    QCOMPARE(QTextDocumentFragment::fromHtml(parts.path->toolTip()).toPlainText(),
             parts.path->text());
    QVERIFY(parts.path->text().size() < 100000);
    QVERIFY(!parts.action->isEnabled());
}

void TestAddonListItem::showsAPlaceholderWithoutAPath()
{
    const AddonListItem row(nullptr, mapping(QString()), true);
    const RowParts parts(&row);
    QCOMPARE(parts.path->text(), QString());
    QCOMPARE(parts.path->placeholderText(), QStringLiteral("Path not set"));
    QCOMPARE(parts.path->toolTip(), QString());
    QCOMPARE(parts.action->text(), QStringLiteral("Install Orbwell"));
    QVERIFY(!parts.action->isEnabled());
    for (const auto *button : {parts.browse, parts.action})
        QVERIFY(button->toolTip().startsWith(QLatin1String("This simulator was not found.")));
    QCOMPARE(shownIcon(row), artwork(QStringLiteral("icon-minus-grey-44.png")));
}

void TestAddonListItem::usesThePathFromSettingsOrScan_data()
{
    QTest::addColumn<QString>("savedPath");
    QTest::addColumn<QString>("detected");
    QTest::addColumn<bool>("updateDefault");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QVariant>("savedAfterwards");
    const QString none;
    const QString chosen = QStringLiteral("/chosen by hand/ü");
    const QString found = QStringLiteral("/found/by scan");
    QTest::newRow("nothing, start") << none << none << true << none << QVariant();
    QTest::newRow("nothing, rescan") << none << none << false << none << QVariant();
    QTest::newRow("found, start") << none << found << true << found << QVariant();
    QTest::newRow("found, rescan") << none << found << false << found << QVariant();
    QTest::newRow("chosen, start") << chosen << none << true << chosen << QVariant(chosen);
    QTest::newRow("chosen, rescan") << chosen << none << false << none << QVariant();
    QTest::newRow("both, start") << chosen << found << true << chosen << QVariant(chosen);
    QTest::newRow("both, rescan") << chosen << found << false << found << QVariant();
}

void TestAddonListItem::usesThePathFromSettingsOrScan()
{
    QFETCH(QString, savedPath);
    QFETCH(QString, detected);
    QFETCH(bool, updateDefault);
    const QString key = QStringLiteral("flightsim/Example_Sim");
    const QString other = QStringLiteral("flightsim/Other_Sim");
    save(other, QStringLiteral("/other"));
    if (!savedPath.isEmpty())
        save(key, savedPath);

    FlightSimulatorMapping *shown = mapping(detected);
    const AddonListItem row(nullptr, shown, updateDefault);
    QTEST(RowParts(&row).path->text(), "shown");
    QTEST(RowParts(&row).path->toolTip(), "shown");
    QTEST(shown->path, "shown");
    QTEST(saved(key), "savedAfterwards");
    QCOMPARE(saved(other).toString(), QStringLiteral("/other"));
}

void TestAddonListItem::showsTheStateOfTheSavedFolder()
{
    writeFile(folder() + QLatin1String("/orbwell.dll"), "x");
    save(QStringLiteral("flightsim/Example_Sim"), folder());
    const AddonListItem row(nullptr, mapping(QStringLiteral("/gone")), true);
    QCOMPARE(shownIcon(row), artwork(QStringLiteral("icon-check-green-44.png")));
    QCOMPARE(RowParts(&row).action->text(), QStringLiteral("Uninstall Orbwell"));
    QVERIFY(RowParts(&row).action->isEnabled());
}

void TestAddonListItem::storesTheSettingsByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::newRow("spaces") << QStringLiteral("Flight Sim X")
                            << QStringLiteral("flightsim/Flight_Sim_X");
    QTest::newRow("two spaces in a row")
        << QStringLiteral("A B  C") << QStringLiteral("flightsim/A_B__C");
    QTest::newRow("leading and trailing spaces")
        << QStringLiteral(" A ") << QStringLiteral("flightsim/_A_");
    QTest::newRow("no space") << QStringLiteral("Sim") << QStringLiteral("flightsim/Sim");
    QTest::newRow("a tab is kept") << QStringLiteral("A\tB") << QStringLiteral("flightsim/A\tB");
    QTest::newRow("other scripts")
        << QStringLiteral("飛行 Símulátor") << QStringLiteral("flightsim/飛行_Símulátor");
    QTest::newRow("placeholders") << QStringLiteral("A %1") << QStringLiteral("flightsim/A_%1");
}

void TestAddonListItem::storesTheSettingsByName()
{
    QFETCH(QString, name);
    QFETCH(QString, key);
    save(key, QStringLiteral("/chosen"));
    FlightSimulatorMapping shown(entry(name), QString());
    const AddonListItem atStart(nullptr, &shown, true);
    QCOMPARE(shown.path, QStringLiteral("/chosen"));
    const AddonListItem atRescan(nullptr, &shown, false);
    QVERIFY(!saved(key).isValid());
}

void TestAddonListItem::showsTheState_data()
{
    QTest::addColumn<bool>("folderExists");
    QTest::addColumn<bool>("hasFiles");
    QTest::addColumn<bool>("filesExist");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("text");
    const QString green = QStringLiteral("icon-check-green-44.png");
    const QString grey = QStringLiteral("icon-check-grey-44.png");
    const QString minus = QStringLiteral("icon-minus-grey-44.png");
    const QString install = QStringLiteral("Install Orbwell");
    const QString uninstall = QStringLiteral("Uninstall Orbwell");
    QTest::newRow("installed") << true << true << true << green << uninstall;
    QTest::newRow("not installed") << true << true << false << grey << install;
    QTest::newRow("no folder") << false << true << false << minus << install;
    QTest::newRow("no files to install") << true << false << false << green << uninstall;
    QTest::newRow("no files to install, no folder")
        << false << false << false << minus << uninstall;
}

void TestAddonListItem::showsTheState()
{
    QFETCH(bool, folderExists);
    QFETCH(bool, hasFiles);
    QFETCH(bool, filesExist);
    QFETCH(QString, icon);
    if (filesExist)
        writeFile(folder() + QLatin1String("/orbwell.dll"), "x");
    FlightSimulatorMapping *shown
        = mapping(folderExists ? folder() : folder() + QLatin1String("/gone"));
    if (!hasFiles)
        shown->scan->files.clear();

    const AddonListItem row(nullptr, shown, false);
    QVERIFY(!artwork(icon).isNull());
    QCOMPARE(shownIcon(row), artwork(icon));
    QTEST(RowParts(&row).action->text(), "text");
    QTEST(RowParts(&row).action->isEnabled(), "folderExists");
    QVERIFY(RowParts(&row).browse->isEnabled());
}

void TestAddonListItem::resolvesARelativePathAgainstTheWorkingFolder()
{
    const QString before = QDir::currentPath();
    QDir(folder()).mkdir(QStringLiteral("relative"));
    QDir::setCurrent(folder());
    const AddonListItem row(nullptr, mapping(QStringLiteral("relative")), false);
    QDir::setCurrent(before);
    QVERIFY(RowParts(&row).action->isEnabled());
}

void TestAddonListItem::requestsTheActionByTheDisksStateAtEachClick()
{
    const QString file = folder() + QLatin1String("/orbwell.dll");
    FlightSimulatorMapping *shown = mapping(folder());
    const AddonListItem row(nullptr, shown, false);
    QToolButton *action = RowParts(&row).action;
    const Tests::FolderPicker nobody{QString()};
    QSignalSpy install(&row, &AddonListItem::install);
    QSignalSpy uninstall(&row, &AddonListItem::uninstall);

    action->click();
    QCOMPARE(install.count(), 1);
    QCOMPARE(uninstall.count(), 0);
    QCOMPARE(install.first().first().value<FlightSimulatorMapping *>(), shown);

    writeFile(file, "x");
    QCOMPARE(action->text(), QStringLiteral("Install Orbwell"));
    action->click();
    QCOMPARE(install.count(), 1);
    QCOMPARE(uninstall.count(), 1);
    QCOMPARE(uninstall.first().first().value<FlightSimulatorMapping *>(), shown);

    QFile::remove(file);
    action->click();
    QCOMPARE(install.count(), 2);
    QCOMPARE(uninstall.count(), 1);
}

void TestAddonListItem::requestsNothingWithoutAFolder()
{
    const AddonListItem row(nullptr, mapping(QString()), false);
    const Tests::FolderPicker nobody{QString()};
    QSignalSpy install(&row, &AddonListItem::install);
    QSignalSpy uninstall(&row, &AddonListItem::uninstall);
    RowParts(&row).action->click();
    QCOMPARE(install.count() + uninstall.count(), 0);
    QVERIFY(nobody.pickers().isEmpty());
}

void TestAddonListItem::translatesItsTextsInItsOwnContext()
{
    const QString context = QStringLiteral("[Quillmont::Utility::Widgets::AddonListItem] ");
    const Tests::TextMarker marker;
    const AddonListItem row(nullptr, mapping(folder()), false);
    const RowParts parts(&row);
    QCOMPARE(parts.path->placeholderText(), context + QLatin1String("Path not set"));
    QCOMPARE(parts.browse->text(), context + QLatin1String("..."));
    QCOMPARE(parts.action->text(), context + QLatin1String("Install Orbwell"));
    QCOMPARE(parts.name->text(), QStringLiteral("<b>Example Sim</b>"));

    writeFile(folder() + QLatin1String("/orbwell.dll"), "x");
    const AddonListItem installed(nullptr, mapping(folder()), false);
    QCOMPARE(RowParts(&installed).action->text(), context + QLatin1String("Uninstall Orbwell"));
}

void TestAddonListItem::givesItsNameRoomAbove_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("lacking");
    QTest::addColumn<int>("expected");
    QTest::newRow("more room than needed") << 10 << -5 << 10;
    QTest::newRow("enough room") << 10 << 0 << 10;
    QTest::newRow("too little room") << 10 << 3 << 7;
    QTest::newRow("less room than the margin needs") << 2 << 3 << 0;
}

void TestAddonListItem::givesItsNameRoomAbove()
{
    QFETCH(const int, top);
    QFETCH(const int, lacking);
    QFETCH(const int, expected);
    QWidget row;
    QLabel label(QStringLiteral("Name"), &row);
    label.show(); // a layout ignores hidden widgets
    const int height = label.sizeHint().height() - lacking;
    NameItem(&label).setGeometry(QRect(0, top, 200, height));
    QCOMPARE(label.geometry(), QRect(0, expected, 200, top + height - expected));
}

void TestAddonListItem::isBuiltWithoutAWarning()
{
    const Tests::LogCatcher log;
    QWidget window;
    window.resize(640, 480);
    const AddonListItem row(&window, mapping(folder()), true);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(log.warnings() + log.debugLines(), QStringList());
}

void TestAddonListItem::namesItsSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = AddonListItem::staticMetaObject;
    QCOMPARE(meta.className(), "Quillmont::Utility::Widgets::AddonListItem");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    const QString argument
        = QStringLiteral("(Quillmont::Utility::Models::FlightSimulatorMapping*)");
    QCOMPARE(Tests::ownMembers(meta),
             (QStringList{QLatin1String("signal install") + argument,
                          QLatin1String("signal uninstall") + argument,
                          QStringLiteral("slot browsePath()")}));
    for (int i = 0; i < 2; ++i)
        QCOMPARE(meta.method(meta.methodOffset() + i).parameterType(0),
                 qMetaTypeId<FlightSimulatorMapping *>());
}

QTEST_MAIN(TestAddonListItem)
#include "tst_AddonListItem.moc"
