// Takes pictures of the window and of every box for visual review, with different screens,
// palettes, fonts, languages and writing directions.

#include "Controllers/Translations.h"
#include "Views/ScannerView.h"
#include "Widgets/ProgressWindow.h"
#include "Widgets/ResultBox.h"
#include "tests/ViewControllers/Workshop.h"
#include "tests/Widgets/RowParts.h"
#include "tests/support/FolderPicker.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>

using Quillmont::Utility::Controllers::installTranslations;
using Quillmont::Utility::Views::ScannerView;
using Quillmont::Utility::Widgets::ProgressWindow;
using Quillmont::Utility::Widgets::showInformation;
using Tests::FlightSimulatorMapping;
using Tests::RowParts;
using Tests::ScanController;
using Tests::Workshop;

using Mappings = QList<FlightSimulatorMapping *>;

namespace {

const char *const files = R"(, "files": [{"source": "Orbwell.so", "destination": "Orbwell.so"},
    {"source": "Orbwell.txt", "destination": "Orbwell.txt"}])";

QPalette darkPalette()
{
    const QColor letters(0xe6, 0xe6, 0xe6);
    QPalette palette(QColor(0x31, 0x36, 0x3b));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, letters);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x22, 0x26));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x2b, 0x30));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x8e, 0xd0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(0x96, 0x96, 0x96));
    palette.setColor(QPalette::ToolTipBase, QColor(0x31, 0x36, 0x3b));
    palette.setColor(QPalette::ToolTipText, letters);
    return palette;
}

/// The pictures' folder and number.
class Album
{
public:
    explicit Album(const QString &folder)
        : m_folder(folder)
    {
        m_folder.mkpath(QStringLiteral("."));
    }

    void add(QWidget *window, const QString &name)
    {
        QApplication::processEvents();
        const QString file
            = QStringLiteral("%1-%2.png").arg(++m_count, 2, 10, QLatin1Char('0')).arg(name);
        if (!window->grab().save(m_folder.filePath(file)))
            qFatal("cannot write %s", qPrintable(m_folder.filePath(file)));
    }

private:
    QDir m_folder;
    int m_count = 0;
};

/// Shows everything that the program can show.
class Photographer
{
public:
    explicit Photographer(const QString &folder)
        : m_album(folder)
    {
        m_workshop.writePayload("Orbwell.so", "plugin");
        m_workshop.writePayload("Orbwell.txt", "about");
        m_workshop.answerer.whileOpen(
            [this] { m_album.add(QApplication::activeModalWidget(), m_name); });
    }

    void photographWindow();
    void photographToolTips();
    void photographBoxes();
    void measureScrolling();

private:
    ScannerView *view() { return m_workshop.controller().view; }

    QListWidget *list() { return view()->findChild<QListWidget *>(); }

    RowParts row(int index) { return RowParts(list()->itemWidget(list()->item(index))); }

    FlightSimulatorMapping *simulator(const QByteArray &name, const QString &folder);
    FlightSimulatorMapping *installed(const QByteArray &name, const QString &folder);
    Mappings simulators();
    Mappings many(int count);
    void show(const Mappings &mappings);
    void photographInstalling();
    void photographUninstalling();
    void photographScanning();
    void photographProgress();
    void photographFolderDialog();

    Workshop m_workshop;
    Album m_album;
    QString m_name;
};

FlightSimulatorMapping *Photographer::simulator(const QByteArray &name, const QString &folder)
{
    return m_workshop.mapping(R"({"type": 1, "name": ")" + name + '"' + files + '}', folder);
}

FlightSimulatorMapping *Photographer::installed(const QByteArray &name, const QString &folder)
{
    for (const char *file : {"/Orbwell.so", "/Orbwell.txt"})
        Tests::writeFile(folder + QLatin1String(file), "x");
    return simulator(name, folder);
}

Mappings Photographer::simulators()
{
    const QString deep
        = m_workshop.folder(QByteArray("Steam/steamapps/common/a folder ").repeated(6));
    return {installed("X-Plane 12 (Ägypten)", m_workshop.folder("X-Plane 12")),
            simulator("Flight Simulator X", m_workshop.folder("Flight Simulator X")),
            simulator("Gone with its drive", m_workshop.path("gone")),
            simulator("Never found", QString()),
            simulator(QByteArray("A simulator with a long name ").repeated(6), deep),
            simulator("Tags", m_workshop.folder("<b>bold<") + QStringLiteral("/b>"))};
}

Mappings Photographer::many(int count)
{
    Mappings mappings;
    const QString folder = m_workshop.folder("many");
    for (int i = 0; i < count; ++i)
        mappings.append(simulator("Simulator " + QByteArray::number(i), folder));
    return mappings;
}

void Photographer::show(const Mappings &mappings)
{
    view()->setScanResult(mappings, false, true);
    view()->resize(view()->minimumSize());
    view()->show();
    view()->activateWindow();
    if (!QTest::qWaitForWindowExposed(view()))
        qFatal("no window");
    QApplication::setActiveWindow(view());
}

void Photographer::photographWindow()
{
    show({});
    m_album.add(view(), QStringLiteral("window-without-rows"));
    show(simulators());
    m_album.add(view(), QStringLiteral("window"));
    QTest::keyClick(list(), Qt::Key_Down);
    m_album.add(view(), QStringLiteral("window-current-row"));
    for (int tabs = 0; tabs < 3; ++tabs) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        m_album.add(view(),
                    QStringLiteral("window-focus-") + QApplication::focusWidget()->objectName());
    }
    view()->findChildren<QPushButton *>().constFirst()->setFocus(Qt::TabFocusReason);
    view()->resize(1000, 560);
    m_album.add(view(), QStringLiteral("window-wide"));
    for (int i = 0; i < 3; ++i)
        m_album.add(list()->itemWidget(list()->item(i)),
                    QStringList{QStringLiteral("row-installed"),
                                QStringLiteral("row-not-installed"),
                                QStringLiteral("row-no-folder")}
                        .at(i));
    show(many(200));
    list()->verticalScrollBar()->setValue(list()->verticalScrollBar()->maximum() / 2);
    m_album.add(view(), QStringLiteral("window-scrolled"));
}

void Photographer::photographToolTips()
{
    show(simulators());
    for (const int index : {0, 4, 5}) {
        QToolTip::showText(view()->pos(), row(index).path->toolTip(), row(index).path);
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window->isVisible() && window->inherits("QTipLabel"))
                m_album.add(window, QStringLiteral("tool-tip"));
        }
    }
    QToolTip::hideText();
}

void Photographer::photographInstalling()
{
    ScanController &controller = m_workshop.controller();
    const QString folder = m_workshop.folder("Flight Simulator X");
    m_name = QStringLiteral("box-installed");
    controller.install(simulator("Flight Simulator X", folder), false, false);

    m_name = QStringLiteral("box-not-installed");
    const QString blocked = m_workshop.path("a folder whose name is long/Flight Simulator X");
    Tests::writeFile(blocked, "a file in the folder's place");
    controller.install(simulator("Flight Simulator X", blocked), false, false);
}

void Photographer::photographUninstalling()
{
    ScanController &controller = m_workshop.controller();
    const QString folder = m_workshop.folder("Flight Simulator X");
    m_name = QStringLiteral("box-uninstalled");
    controller.uninstall(simulator("Flight Simulator X", folder), false, false);

    m_name = QStringLiteral("box-not-uninstalled");
    m_workshop.folder("Flight Simulator X/Orbwell.so/a folder in the file's place");
    m_workshop.folder("Flight Simulator X/Orbwell.txt/a folder in the file's place");
    controller.uninstall(simulator("Flight Simulator X", folder), false, false);

    m_name = QStringLiteral("box-record-unreadable");
    QFile::remove(m_workshop.recordPath());
    QDir().mkpath(m_workshop.recordPath());
    controller.install(simulator("Flight Simulator X", m_workshop.folder("Record")), false, false);
    QDir(m_workshop.recordPath()).removeRecursively();
}

void Photographer::photographScanning()
{
    ScanController &controller = m_workshop.controller();
    const auto automatic = ScanController::ModeNone;
    m_name = QStringLiteral("box-scan-installed");
    controller.autoInstall({simulator("X-Plane 12", m_workshop.folder("first")),
                            simulator("Flight Simulator X", m_workshop.folder("second"))},
                           false,
                           automatic);
    m_name = QStringLiteral("box-scan-all-installed");
    controller.autoInstall({simulator("X-Plane 12", m_workshop.folder("first"))}, false, automatic);
    m_name = QStringLiteral("box-scan-nothing");
    controller.autoInstall({}, false, automatic);

    // Last of all: this run ends the process.
    m_name = QStringLiteral("box-repaired");
    showInformation(QStringLiteral("Plugins updated"),
                    QStringLiteral("Quillmont Orbwell has updated plugins on your computer.\r\n\r\n"
                                   "Please see the list below for details:\r\n\r\n"
                                   "X-Plane 12: Updated\nFlight Simulator X: Not updated"));
    const auto all = many(2);
    for (int count = 0; count <= 2; ++count) {
        m_name = QStringLiteral("box-found-%1").arg(count);
        view()->setScanResult(all.mid(0, count), false, false);
    }
}

void Photographer::photographProgress()
{
    ProgressWindow progress(view(), ProgressWindow::tr("Installing Orbwell"));
    progress.showState(QStringLiteral("Microsoft Flight Simulator X: Steam Edition"),
                       QStringLiteral("Modules/Orbwell/a folder whose name is long/Orbwell.dll"),
                       1234,
                       5678,
                       42);
    progress.show();
    if (!QTest::qWaitForWindowExposed(&progress))
        qFatal("no progress window");
    m_album.add(&progress, QStringLiteral("box-progress"));
}

void Photographer::photographFolderDialog()
{
    QTimer::singleShot(0, view(), [this] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        m_album.add(dialog, QStringLiteral("box-folder"));
        dialog->reject();
    });
    row(0).browse->click();
}

void Photographer::photographBoxes()
{
    photographInstalling();
    photographUninstalling();
    photographScanning();

    show({simulator("Flight Simulator X", QString())});
    photographProgress();
    photographFolderDialog();
    const QString chosen = m_workshop.folder("chosen");
    Tests::FolderPicker person(chosen);
    person.afterPicking([chosen] { QDir().rmdir(chosen); });
    m_name = QStringLiteral("box-invalid-path");
    row(0).browse->click();
}

void Photographer::measureScrolling()
{
    show(many(200));
    QScrollBar *bar = list()->verticalScrollBar();
    QVector<qint64> times;
    for (int value = 0; value <= bar->maximum(); value += bar->singleStep()) {
        QElapsedTimer timer;
        timer.start();
        bar->setValue(value);
        QApplication::processEvents();
        times.append(timer.nsecsElapsed() / 1000);
    }
    std::sort(times.begin(), times.end());
    printf("%d rows: %d steps, %.1f ms each in the middle, %.1f ms at worst\n",
           list()->count(),
           times.size(),
           double(times.at(times.size() / 2)) / 1000,
           double(times.last()) / 1000);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication application(argc, argv);
    installTranslations();
    QCommandLineParser parser;
    const QCommandLineOption dark(QStringLiteral("dark"));
    const QCommandLineOption letters(
        QStringLiteral("letters"), {}, QStringLiteral("factor"), QStringLiteral("1"));
    const QCommandLineOption scrolling(QStringLiteral("scrolling"));
    parser.addOptions({dark, letters, scrolling});
    parser.process(application);

    if (parser.isSet(dark))
        QApplication::setPalette(darkPalette());
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * parser.value(letters).toDouble());
    QApplication::setFont(font);

    const Tests::SettingsHome settings;
    Photographer photographer(parser.positionalArguments().value(0, QStringLiteral(".")));
    if (parser.isSet(scrolling)) {
        photographer.measureScrolling();
        return 0;
    }
    photographer.photographWindow();
    photographer.photographToolTips();
    photographer.photographBoxes();
    return 0;
}
