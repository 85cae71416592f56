#include "tests/ViewControllers/Workshop.h"

#include "Controllers/ConfigurationController.h"
#include "Views/ScannerView.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTextCodec>

namespace Tests {

Workshop::Workshop()
{
    // As the program does at its start.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    clearFolder();
}

Workshop::~Workshop()
{
    dropController();
    clearFolder();
}

void Workshop::clearFolder()
{
    for (const char *left : {"flightsims.json", "plugins"}) {
        const QString path = beside(left);
        if (!QFile::remove(path))
            QDir(path).removeRecursively();
    }
}

ScanController &Workshop::controller()
{
    if (!m_controller)
        m_controller = std::make_unique<ScanController>(nullptr, nullptr);
    return *m_controller;
}

void Workshop::dropController()
{
    if (!m_controller)
        return;
    const std::unique_ptr<QWidget> window(m_controller->view);
    m_controller.reset();
}

QString Workshop::path(const QByteArray &relative) const
{
    return sandbox.path(QString::fromUtf8(relative));
}

QString Workshop::dataPath(const QByteArray &relative) const
{
    return sandbox.dataRoot() + QString::fromUtf8(relative);
}

QString Workshop::beside(const QByteArray &relative)
{
    return QCoreApplication::applicationDirPath() + u'/' + QString::fromUtf8(relative);
}

QString Workshop::folder(const QByteArray &relative) const
{
    QString path = this->path(relative);
    QDir().mkpath(path);
    return path;
}

void Workshop::writePayload(const QByteArray &relative, const QByteArray &content) const
{
    writeFile(beside("plugins/" + relative), content);
}

void Workshop::writeCatalogue(const QByteArray &json) const
{
    writeFile(beside("flightsims.json"), expanded(json));
}

QString Workshop::makeDetectedSimulator(const QByteArray &relative) const
{
    QString simulator = folder(relative);
    folder(relative + "/Resources/plugins");
    writeFile(simulator + QStringLiteral("/X-Plane-x86_64"), "the simulator");
#ifdef Q_OS_MACOS
    const QString list = QStringLiteral("/Library/Preferences/x-plane_install_12.txt");
#else
    const QString list = QStringLiteral("/.x-plane/x-plane_install_12.txt");
#endif
    writeFile(sandbox.home() + list, simulator.toUtf8() + '\n');
    return simulator;
}

QByteArray Workshop::simulator(const QByteArray &name)
{
    return QByteArray(R"({"name": "Sim NAME", "type": 1, "location": 1, "path": "$ROOT/NAME",
        "files": [{"source": "x", "destination": "p/x"}]})")
        .replace("NAME", name);
}

QByteArray Workshop::expanded(const QByteArray &json) const
{
    return QByteArray(json).replace("$ROOT", sandbox.root().toUtf8());
}

FlightSimScan *Workshop::entry(const QByteArray &json)
{
    const auto document = QJsonDocument::fromJson(expanded(json));
    if (!document.isObject())
        qFatal("not a catalogue entry: %s", json.constData());
    return new FlightSimScan(&controller(), document.object());
}

FlightSimulatorMapping *Workshop::mapping(const QByteArray &json, const QString &path)
{
    return new FlightSimulatorMapping(entry(json), path);
}

QString Workshop::recordPath() const
{
    return dataPath("Quillmont/Orbwell/.mapping");
}

QJsonArray Workshop::record() const
{
    return QJsonDocument::fromJson(readFile(recordPath())).array();
}

void Workshop::writeRecord(const QByteArray &json) const
{
    writeFile(recordPath(), expanded(json));
}

QMap<QString, QByteArray> Workshop::disk() const
{
    static const QRegularExpression time(QStringLiteral("\\d{8}_\\d{6}(?=\\.bak$)"));
    QMap<QString, QByteArray> disk;
    const auto tree = treeOf(sandbox.root());
    for (auto it = tree.cbegin(); it != tree.cend(); ++it) {
        if (!it.key().startsWith(QLatin1String("home/.cache/")))
            disk.insert(QString(it.key()).replace(time, QStringLiteral("TIME")), it.value());
    }
    return disk;
}

QStringList Workshop::backups() const
{
    QStringList found;
    QDirIterator it(sandbox.root(),
                    {QStringLiteral("*.bak")},
                    QDir::Files | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        found.append(it.next());
    return found;
}

QStringList Workshop::rowNames()
{
    QStringList names;
    const auto *list = controller().view->findChild<QListWidget *>();
    for (int row = 0; row < list->count(); ++row) {
        const auto labels = list->itemWidget(list->item(row))->findChildren<QLabel *>();
        for (const auto *label : labels) {
            if (label->text().startsWith(QLatin1String("<b>")))
                names.append(label->text().mid(3).chopped(4));
        }
    }
    return names;
}

QStringList Workshop::rowPaths()
{
    QStringList paths;
    const auto *list = controller().view->findChild<QListWidget *>();
    for (int row = 0; row < list->count(); ++row)
        paths.append(list->itemWidget(list->item(row))->findChild<QLineEdit *>()->text());
    return paths;
}

int Workshop::entryCount()
{
    return controller().findChildren<FlightSimScan *>().size();
}

int Workshop::countOfLine(const QString &line) const
{
    return log.debugLines().count(line);
}

QString Workshop::warnings() const
{
    QStringList warnings = log.warnings();
    warnings.removeAll(QStringLiteral("This plugin does not support propagateSizeHints()"));
    return warnings.join(u'\n');
}

QStringList Workshop::boxes() const
{
    QStringList texts;
    for (const SeenBox &seen : answerer.boxes()) {
        const bool odd = seen.icon != QMessageBox::Information
            || seen.buttons != QMessageBox::StandardButtons(QMessageBox::Ok) || seen.parent
            || seen.busyPointer;
        texts.append((odd ? QStringLiteral("odd ") : QString()) + box(seen.title, seen.text));
    }
    return texts;
}

SettingsHome::SettingsHome()
{
    Quillmont::Utility::Controllers::ConfigurationController::instance();
}

} // namespace Tests
