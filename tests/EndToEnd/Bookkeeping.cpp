#include "tests/EndToEnd/Bookkeeping.h"

#include "tests/EndToEnd/Computer.h"
#include "tests/support/LaunchDocuments.h"

#include <QJsonDocument>

namespace Tests {

Bookkeeping::Bookkeeping(const Computer &computer, const QJsonArray &catalogue)
    : m_computer(computer)
    , m_catalogue(catalogue)
    , m_disk(computer.disk())
{
    for (const QJsonValue entry : catalogue)
        m_names.append(entry.toObject().value(QLatin1String("name")).toString());
}

QJsonObject Bookkeeping::entry(const QString &simulator) const
{
    return m_catalogue.at(m_names.indexOf(simulator)).toObject();
}

QStringList Bookkeeping::pluginFilesOf(const QString &simulator) const
{
    QStringList paths = pluginFiles(entry(simulator)).keys();
    for (QString &path : paths)
        path.prepend(QStringLiteral("sims/%1/").arg(simulator));
    return paths;
}

QString Bookkeeping::configurationOf(const QString &simulator) const
{
    const QJsonObject config = entry(simulator).value(QLatin1String("config")).toObject();
    const QString path = config.value(QLatin1String("path")).toString().replace(u'\\', u'/');
    return path.isEmpty() ? path : m_computer.data(path);
}

bool Bookkeeping::isInstalled(const QString &simulator) const
{
    bool installed = true;
    for (const QString &path : pluginFilesOf(simulator))
        installed = installed && has(path);
    return installed;
}

void Bookkeeping::install(const QString &simulator)
{
    for (int i = 0; i < pluginFilesOf(simulator).size(); ++i)
        addEntry(simulator);
    m_computer.putPlugin(&m_disk, entry(simulator));
    record(simulator, true);
}

void Bookkeeping::uninstall(const QString &simulator)
{
    for (const QString &path : pluginFilesOf(simulator)) {
        takeOut(&m_disk, path);
        removeIfEmpty(path.left(path.lastIndexOf(u'/') + 1));
        removeEntry(simulator);
    }
    record(simulator, false);
}

// Later entries come first. A complete installation is only recorded again.
QStringList Bookkeeping::installEverywhere()
{
    QStringList done;
    for (auto it = m_names.crbegin(); it != m_names.crend(); ++it) {
        if (!isInstalled(*it)) {
            uninstall(*it);
            install(*it);
            done.append(*it);
        }
        record(*it, true);
    }
    put(&m_disk,
        m_computer.data(QStringLiteral("Quillmont/Orbwell/.path")),
        m_computer.program().folder().toUtf8() + "/QuillmontOrbwell.exe");
    return done;
}

void Bookkeeping::change(const QString &path, const QByteArray &content)
{
    put(&m_disk, path, content);
}

void Bookkeeping::lose(const QString &path)
{
    takeOut(&m_disk, path);
}

void Bookkeeping::backUp(const QString &file, const char *occasion)
{
    const QString backup = backupOf(file, occasion);
    m_backups[backup].append(content(file));
    if (!has(backup))
        put(&m_disk, backup, content(file));
}

void Bookkeeping::addEntry(const QString &simulator)
{
    const QString file = configurationOf(simulator);
    if (file.isEmpty() || entry(simulator).contains(QLatin1String("root")))
        return;
    if (!has(file)) {
        put(&m_disk, file, launchDocument());
        return;
    }
    backUp(file, "installation");
    QByteArray text = content(file);
    if (!text.contains(pluginEntry()))
        put(&m_disk, file, text.insert(text.indexOf("</SimBase.Document>"), pluginEntry()));
}

void Bookkeeping::removeEntry(const QString &simulator)
{
    const QString file = configurationOf(simulator);
    if (file.isEmpty())
        return;
    if (has(file)) {
        backUp(file, "uninstallation");
        put(&m_disk, file, content(file).replace(pluginEntry(), ""));
    }
    takeOut(&m_disk, QStringLiteral("sims/%1\\x.cfg").arg(simulator));
}

// Only visible content counts.
void Bookkeeping::removeIfEmpty(const QString &folder)
{
    for (auto it = m_disk.keyBegin(); it != m_disk.keyEnd(); ++it) {
        const QString rest = it->mid(folder.size());
        if (it->startsWith(folder) && !rest.isEmpty() && !rest.startsWith(u'.'))
            return;
    }
    takeOut(&m_disk, folder);
}

void Bookkeeping::record(const QString &simulator, bool installed)
{
    const QString file = m_computer.data(QStringLiteral("Quillmont/Orbwell/.mapping"));
    QJsonArray records = QJsonDocument::fromJson(content(file)).array();
    for (int i = records.size() - 1; i >= 0; --i) {
        if (records.at(i).toObject().value(QLatin1String("name")) == simulator) {
            records.removeAt(i);
            break;
        }
    }
    if (installed)
        records.append(m_computer.recordFor(entry(simulator)));
    put(&m_disk, file, QJsonDocument(records).toJson());
}

} // namespace Tests
