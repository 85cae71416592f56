#include "Widgets/AddonListItem.h"

#include "Models/FlightSimScan.h"
#include "tests/Widgets/RowParts.h"
#include "tests/support/BoxAnswerer.h"
#include "tests/support/Files.h"
#include "tests/support/FolderPicker.h"
#include "tests/support/Json.h"
#include "tests/support/Sandbox.h"
#include "tests/support/TextMarker.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Widgets::AddonListItem;
using Tests::BoxAnswerer;
using Tests::FolderPicker;
using Tests::json;
using Tests::readFile;
using Tests::RowParts;
using Tests::writeFile;

// The settings keep their first path, so all tests share one home.
class TestAddonListItemBrowsing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opensAFolderChooserAtTheFolder();
    void opensAFolderChooserWithoutAFolder();
    void usesTheChosenFolder();
    void keepsALinkAsItWasChosen();
    void showsTheStateOfTheChosenFolder();
    void remembersTheChoiceForTheNextStart();
    void changesNothingWhenCancelled();
    void changesNothingForAFolderThatTheChooserRefuses();
    void rejectsADeletedFolder_data();
    void rejectsADeletedFolder();
    void storesAnEmptyPathAfterADeletedFolder();
    void checksTheDiskAfterADeletedFolder();
    void translatesItsTextsInItsOwnContext();

private:
    QString folder(const QString &name) const;
    QByteArray settings() const;

    bool isSaved() const { return QFile::exists(settingsFile()); }

    QString settingsFile() const
    {
        return m_sandbox.dataRoot() + QLatin1String("Quillmont/Vellum/.settings");
    }

    Tests::Sandbox m_sandbox;
    std::unique_ptr<FlightSimScan> m_scan;
};

void TestAddonListItemBrowsing::init()
{
    m_scan = std::make_unique<FlightSimScan>(
        nullptr, json(R"({"name": "Example Sim", "files": [{"destination": "orbwell.dll"}]})"));
}

void TestAddonListItemBrowsing::cleanup()
{
    QDir(m_sandbox.home()).removeRecursively();
    QDir(m_sandbox.path(QStringLiteral("games"))).removeRecursively();
}

QString TestAddonListItemBrowsing::folder(const QString &name) const
{
    QString path = m_sandbox.path(QLatin1String("games/") + name);
    QDir().mkpath(path);
    return path;
}

QByteArray TestAddonListItemBrowsing::settings() const
{
    return readFile(settingsFile());
}

void TestAddonListItemBrowsing::opensAFolderChooserAtTheFolder()
{
    FlightSimulatorMapping mapping(m_scan.get(), folder(QStringLiteral("old")));
    const AddonListItem row(nullptr, &mapping, false);
    const FolderPicker person{QString()};
    RowParts(&row).browse->click();

    QCOMPARE(person.pickers().size(), 1);
    const Tests::SeenPicker &picker = person.pickers().first();
    QCOMPARE(picker.title, QStringLiteral("Open Directory"));
    QCOMPARE(picker.directory, mapping.path);
    QCOMPARE(picker.options, QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    QCOMPARE(picker.parent, &row);
}

void TestAddonListItemBrowsing::opensAFolderChooserWithoutAFolder()
{
    const QString chosen = folder(QStringLiteral("new"));
    FlightSimulatorMapping mapping(m_scan.get(), QString());
    AddonListItem row(nullptr, &mapping, false);
    const FolderPicker person(chosen);
    row.browsePath();
    QCOMPARE(person.pickers().size(), 1);
    QCOMPARE(mapping.path, chosen);
}

void TestAddonListItemBrowsing::usesTheChosenFolder()
{
    const QString chosen = folder(QStringLiteral("new"));
    FlightSimulatorMapping mapping(m_scan.get(), folder(QStringLiteral("old")));
    AddonListItem row(nullptr, &mapping, false);
    QSignalSpy install(&row, &AddonListItem::install);
    const BoxAnswerer boxes;
    const FolderPicker person(chosen);
    row.browsePath();

    QCOMPARE(mapping.path, chosen);
    QCOMPARE(RowParts(&row).path->text(), chosen);
    QCOMPARE(RowParts(&row).path->toolTip(), chosen);
    QCOMPARE(settings(), "[flightsim]\nExample_Sim=" + chosen.toUtf8() + '\n');
    QVERIFY(boxes.boxes().isEmpty());
    QCOMPARE(install.count(), 0);
}

void TestAddonListItemBrowsing::keepsALinkAsItWasChosen()
{
    const QString link = folder(QString()) + QLatin1String("link");
    QVERIFY(QFile::link(folder(QStringLiteral("target")), link));
    FlightSimulatorMapping mapping(m_scan.get(), QString());
    AddonListItem row(nullptr, &mapping, false);
    const FolderPicker person(link);
    row.browsePath();
    QCOMPARE(mapping.path, link);
}

void TestAddonListItemBrowsing::showsTheStateOfTheChosenFolder()
{
    const QString chosen = folder(QStringLiteral("new"));
    writeFile(chosen + QLatin1String("/orbwell.dll"), "x");
    FlightSimulatorMapping mapping(m_scan.get(), QString());
    AddonListItem row(nullptr, &mapping, false);
    const RowParts parts(&row);
    QVERIFY(!parts.action->isEnabled());

    const FolderPicker person(chosen);
    row.browsePath();
    QVERIFY(parts.action->isEnabled());
    QCOMPARE(parts.action->text(), QStringLiteral("Uninstall Orbwell"));
    const QPixmap green(QStringLiteral(":/assets/Quillmont Orbwell/icon-check-green-44.png"));
    QCOMPARE(parts.icon->pixmap(Qt::ReturnByValue).toImage(), green.toImage());
}

void TestAddonListItemBrowsing::remembersTheChoiceForTheNextStart()
{
    const QString chosen = folder(QStringLiteral("Símulátor 飛行 %1, x;y"));
    FlightSimulatorMapping mapping(m_scan.get(), QString());
    AddonListItem row(nullptr, &mapping, false);
    const FolderPicker person(chosen);
    row.browsePath();

    FlightSimulatorMapping next(m_scan.get(), folder(QStringLiteral("detected")));
    const AddonListItem nextRow(nullptr, &next, true);
    QCOMPARE(next.path, chosen);
    QCOMPARE(RowParts(&nextRow).path->text(), chosen);
}

void TestAddonListItemBrowsing::changesNothingWhenCancelled()
{
    const QString old = folder(QStringLiteral("old"));
    FlightSimulatorMapping mapping(m_scan.get(), old);
    AddonListItem row(nullptr, &mapping, false);
    writeFile(old + QLatin1String("/orbwell.dll"), "x");
    const BoxAnswerer boxes;
    const FolderPicker person{QString()};
    row.browsePath();

    QCOMPARE(mapping.path, old);
    QCOMPARE(RowParts(&row).path->text(), old);
    QCOMPARE(RowParts(&row).action->text(), QStringLiteral("Install Orbwell"));
    QVERIFY(boxes.boxes().isEmpty());
    QVERIFY(!isSaved());
}

void TestAddonListItemBrowsing::changesNothingForAFolderThatTheChooserRefuses()
{
    const QString old = folder(QStringLiteral("old"));
    FlightSimulatorMapping mapping(m_scan.get(), old);
    AddonListItem row(nullptr, &mapping, false);
    const BoxAnswerer boxes;
    const FolderPicker person(m_sandbox.path(QStringLiteral("games/never/was")));
    row.browsePath();

    QVERIFY(!person.wasAccepted());
    QCOMPARE(mapping.path, old);
    QVERIFY(!isSaved());
}

void TestAddonListItemBrowsing::rejectsADeletedFolder_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::newRow("a deleted folder") << false;
    QTest::newRow("a file in place of the folder") << true;
}

void TestAddonListItemBrowsing::rejectsADeletedFolder()
{
    QFETCH(const bool, isFile);
    const QString old = folder(QStringLiteral("old"));
    const QString chosen = folder(QStringLiteral("new"));
    FlightSimulatorMapping mapping(m_scan.get(), old);
    AddonListItem row(nullptr, &mapping, false);
    const BoxAnswerer boxes;
    FolderPicker person(chosen);
    person.afterPicking([chosen, isFile] {
        QDir().rmdir(chosen);
        if (isFile)
            Tests::writeFile(chosen, "a file");
    });
    row.browsePath();

    QVERIFY(person.wasAccepted());
    QCOMPARE(boxes.boxes().size(), 1);
    const Tests::SeenBox &box = boxes.boxes().first();
    QCOMPARE(box.title, QStringLiteral("Invalid path"));
    QCOMPARE(box.text, QStringLiteral("This path is invalid"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(!box.parent);

    QCOMPARE(mapping.path, old);
    QCOMPARE(RowParts(&row).path->text(), old);
    QCOMPARE(settings(), "[flightsim]\nExample_Sim=" + old.toUtf8() + '\n');
}

void TestAddonListItemBrowsing::storesAnEmptyPathAfterADeletedFolder()
{
    const QString chosen = folder(QStringLiteral("new"));
    FlightSimulatorMapping mapping(m_scan.get(), QString());
    AddonListItem row(nullptr, &mapping, false);
    const BoxAnswerer boxes;
    FolderPicker person(chosen);
    person.afterPicking([chosen] { QDir().rmdir(chosen); });
    row.browsePath();
    QCOMPARE(mapping.path, QString());
    QCOMPARE(settings(), QByteArray("[flightsim]\nExample_Sim=\n"));
}

void TestAddonListItemBrowsing::checksTheDiskAfterADeletedFolder()
{
    const QString old = folder(QStringLiteral("old"));
    const QString chosen = folder(QStringLiteral("new"));
    FlightSimulatorMapping mapping(m_scan.get(), old);
    AddonListItem row(nullptr, &mapping, false);
    QCOMPARE(RowParts(&row).action->text(), QStringLiteral("Install Orbwell"));
    BoxAnswerer boxes;
    // The row checks the disk and saves only when the box is closed.
    boxes.whileOpen([this, old] {
        QVERIFY(!isSaved());
        writeFile(old + QLatin1String("/orbwell.dll"), "x");
    });
    FolderPicker person(chosen);
    person.afterPicking([chosen] { QDir().rmdir(chosen); });
    row.browsePath();
    QCOMPARE(RowParts(&row).action->text(), QStringLiteral("Uninstall Orbwell"));
}

void TestAddonListItemBrowsing::translatesItsTextsInItsOwnContext()
{
    const QString context = QStringLiteral("[Quillmont::Utility::Widgets::AddonListItem] ");
    const QString chosen = folder(QStringLiteral("new"));
    FlightSimulatorMapping mapping(m_scan.get(), QString());
    AddonListItem row(nullptr, &mapping, false);
    const Tests::TextMarker marker;
    const BoxAnswerer boxes;
    FolderPicker person(chosen);
    person.afterPicking([chosen] { QDir().rmdir(chosen); });
    row.browsePath();
    QCOMPARE(person.pickers().first().title, context + QLatin1String("Open Directory"));
    QCOMPARE(boxes.boxes().first().title, context + QLatin1String("Invalid path"));
    QCOMPARE(boxes.boxes().first().text, context + QLatin1String("This path is invalid"));
}

QTEST_MAIN(TestAddonListItemBrowsing)
#include "tst_AddonListItemBrowsing.moc"
