#include "tests/EndToEnd/Computer.h"

#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Display.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QtTest>

namespace Tests {

QMap<QString, QString> pluginFiles(const QJsonObject &entry)
{
    QMap<QString, QString> files;
    for (const QJsonValue file : entry.value(QLatin1String("files")).toArray()) {
        const auto slashed = [&file](const char *key) {
            return file.toObject().value(QLatin1String(key)).toString().replace(u'\\', u'/');
        };
        files.insert(slashed("destination"), slashed("source"));
    }
    return files;
}

static QString nameOf(const QJsonObject &entry)
{
    return entry.value(QLatin1String("name")).toString();
}

Computer::Computer(const Display *display)
    : m_display(display)
    , m_program(m_sandbox, display)
{ }

QString Computer::data(const QString &path) const
{
    return QDir(m_sandbox.root()).relativeFilePath(m_sandbox.dataRoot()) + u'/' + path;
}

QString Computer::folder(const QString &simulator) const
{
    return absolute(QLatin1String("sims/") + simulator);
}

QString Computer::configuration(const QString &simulator) const
{
    return data(QStringLiteral("Maker/%1/dll.xml").arg(simulator));
}

QJsonObject Computer::entry(const QString &simulator, int type) const
{
    return type == 0 ? launcherEntry(
               simulator, folder(simulator), QStringLiteral("Maker\\%1\\dll.xml").arg(simulator))
                     : pluginFolderEntry(simulator, folder(simulator));
}

QJsonObject Computer::hiddenEntry(const QString &simulator, int type) const
{
    QJsonObject hidden = entry(simulator, type);
    hidden.insert(QStringLiteral("path"), absolute(QStringLiteral("nowhere")));
    return hidden;
}

void Computer::setCatalogue(const QJsonArray &entries)
{
    place(m_program, entries);
}

void Computer::addSimulator(const QString &simulator) const
{
    writeFile(folder(simulator) + QLatin1String("/Gauges/other.dll"), "other");
}

void Computer::addPlugin(const QString &simulator, int type) const
{
    const auto files = pluginFiles(entry(simulator, type));
    for (auto it = files.keyBegin(); it != files.keyEnd(); ++it)
        writeFile(folder(simulator) + u'/' + *it, "old");
}

void Computer::write(const QString &path, const QByteArray &content) const
{
    writeFile(absolute(path), content);
}

QJsonObject Computer::recordFor(const QJsonObject &entry) const
{
    const QString path = folder(nameOf(entry));
    const auto installed = pluginFiles(entry);
    QJsonArray files;
    for (auto it = installed.keyBegin(); it != installed.keyEnd(); ++it)
        files.append(path + u'/' + *it);
    return {{QStringLiteral("name"), nameOf(entry)},
            {QStringLiteral("path"), path},
            {QStringLiteral("files"), files}};
}

void Computer::setRecords(const QJsonArray &records) const
{
    write(data(QStringLiteral("Quillmont/Orbwell/.mapping")), QJsonDocument(records).toJson());
}

QJsonArray Computer::records() const
{
    const QString path = absolute(data(QStringLiteral("Quillmont/Orbwell/.mapping")));
    return QJsonDocument::fromJson(readFile(path)).array();
}

int Computer::run(const QStringList &arguments)
{
    m_boxes.clear();
    m_showedTheWindow = false;
    m_program.start(arguments);
    int answered = 0;
    SeenWindow window;
    const auto isNewOrHasEnded = [&] {
        window = m_program.windows().value(0);
        return window.number > answered || !m_program.isRunning();
    };
    while (m_program.isRunning() && !QTest::currentTestFailed()
           && m_program.waitFor(isNewOrHasEnded, "another window or the end of the program")) {
        if (window.number <= answered)
            continue;
        answered = window.number;
        answer(window);
    }
    return m_program.exitStatus();
}

void Computer::answer(const SeenWindow &window)
{
    if (window.className == QLatin1String("Quillmont::Utility::Widgets::ProgressWindow"))
        return;
    if (window.className != QLatin1String("QMessageBox")) {
        m_showedTheWindow = true;
        m_program.press(QStringLiteral("Close"));
        return;
    }
    m_boxes.append(window);
    if (m_display)
        click(window);
    else
        m_program.press(QStringLiteral("OK"));
}

// A window may be known to this process before the server shows it.
void Computer::click(const SeenWindow &window)
{
    QElapsedTimer sinceClicked;
    const auto isGone = [&] {
        if (!sinceClicked.isValid() || sinceClicked.hasExpired(1000)) {
            m_display->click(window.buttons.value(0).rectangle.center());
            sinceClicked.start();
        }
        return m_program.windows().value(0).number != window.number;
    };
    m_program.waitFor(isGone, "the end of the box");
}

QStringList Computer::said() const
{
    QStringList lines;
    for (const SeenWindow &box : m_boxes)
        lines.append(box.title + QLatin1String(": ") + box.text);
    return lines;
}

Disk Computer::disk() const
{
    Disk disk;
    for (const QString &top : {QStringLiteral("sims"), data({})}) {
        const Disk tree = treeOf(absolute(top));
        for (auto it = tree.cbegin(); it != tree.cend(); ++it)
            put(&disk, QDir::cleanPath(top) + u'/' + it.key(), it.value());
    }
    return withFirstBackups(disk);
}

void Computer::putPlugin(Disk *disk, const QJsonObject &entry) const
{
    const auto files = pluginFiles(entry);
    for (auto it = files.cbegin(); it != files.cend(); ++it)
        put(disk,
            QStringLiteral("sims/%1/%2").arg(nameOf(entry), it.key()),
            readFile(m_program.folder() + QLatin1String("/plugins/") + it.value()));
}

void Computer::finish(Disk *disk, const QJsonArray &records) const
{
    put(disk, data(QStringLiteral("Quillmont/Orbwell/.mapping")), QJsonDocument(records).toJson());
    put(disk,
        data(QStringLiteral("Quillmont/Orbwell/.path")),
        m_program.folder().toUtf8() + "/QuillmontOrbwell.exe");
}

} // namespace Tests
