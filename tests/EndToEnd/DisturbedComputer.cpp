#include "tests/EndToEnd/DisturbedComputer.h"

#include "tests/support/LaunchDocuments.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <unistd.h>

namespace Tests {

static QString kept()
{
    return QStringLiteral("Kept");
}

static QString bare()
{
    return QStringLiteral("Bare");
}

static const char *const oldPlugin = "old";

static QString relative(const QString &simulator, const QString &file)
{
    return QStringLiteral("sims/%1/%2").arg(simulator, file);
}

// Larger than a buffer, so that writing it can be interrupted at several points.
static QByteArray manyConfigured()
{
    const QByteArray others = othersConfiguration();
    const int begin = others.indexOf("    <Launch.Addon>");
    const int end = others.indexOf("</SimBase.Document>");
    return QByteArray(others).insert(end, others.mid(begin, end - begin).repeated(200));
}

static QByteArray without(QByteArray configuration)
{
    return configuration.replace(pluginEntry(), "");
}

static QByteArray with(const QByteArray &configuration)
{
    QByteArray text = without(configuration);
    return text.insert(text.indexOf("</SimBase.Document>"), pluginEntry());
}

static QJsonObject file(const char *source, const char *destination)
{
    return {{QStringLiteral("source"), QLatin1String(source)},
            {QStringLiteral("destination"), QLatin1String(destination)}};
}

// The record of a simulator that is not in the catalogue.
static QJsonObject othersRecord()
{
    return {{QStringLiteral("name"), QStringLiteral("Elsewhere")},
            {QStringLiteral("path"), QStringLiteral("/else/where")},
            {QStringLiteral("files"), QJsonArray{QStringLiteral("/else/where/lin.xpl")}}};
}

static void giveSecondName(const QString &file, const QString &name)
{
    QFile::remove(name);
    if (::link(QFile::encodeName(file).constData(), QFile::encodeName(name).constData()) != 0)
        qFatal("no second name for %s", qPrintable(file));
}

static bool isBackup(const QString &path)
{
    return path.contains(QLatin1String("_quillmont_orbwell_before_"));
}

QStringList DisturbedComputer::simulators()
{
    return {kept(), bare()};
}

DisturbedComputer::DisturbedComputer(Beginning beginning)
    : m_beginning(beginning)
{
    const QStringList names = simulators();
    for (const QString &simulator : names)
        m_catalogue.append(entry(simulator));
    m_computer.setCatalogue(m_catalogue);
    const auto sources = pluginFiles(entry(kept()));
    for (const QString &source : sources)
        m_computer.write(QStringLiteral("program/plugins/") + source,
                         source.toUtf8().repeated(1000));
    reset();
    m_before = m_computer.disk();

    const QByteArray before = m_before.value(m_computer.configuration(kept()));
    for (const QByteArray &text : {before, launchDocument()}) {
        const QString name = text == before ? kept() : bare();
        m_allowed.insert(m_computer.configuration(name), {text, with(text), without(text)});
    }
    Disk installed;
    for (const auto &each : qAsConst(m_catalogue))
        m_computer.putPlugin(&installed, each.toObject());
    m_computer.finish(&installed, {});
    takeOut(&installed, recordPath());
    for (auto it = installed.cbegin(); it != installed.cend(); ++it) {
        if (!it.key().endsWith(u'/'))
            m_allowed.insert(it.key(), {it.value(), oldPlugin});
    }
}

QJsonObject DisturbedComputer::entry(const QString &simulator) const
{
    const bool hidden = m_beginning == OnlyRecorded;
    QJsonObject entry
        = hidden ? m_computer.hiddenEntry(simulator, 0) : m_computer.entry(simulator, 0);
    entry.insert(
        QStringLiteral("files"),
        QJsonArray{file(R"(FSX\QuillmontOrbwell_64.dll)", R"(Gauges\QuillmontOrbwell_64.dll)"),
                   file(R"(X-Plane\64\lin.xpl)", R"(Orbwell\64\module.bin)"),
                   file(R"(X-Plane\about.txt)", R"(Orbwell\about.txt)")});
    return entry;
}

void DisturbedComputer::reset()
{
    QDir(m_computer.absolute(QStringLiteral("sims"))).removeRecursively();
    QDir(m_computer.absolute(m_computer.data({}))).removeRecursively();
    const QStringList names = simulators();
    for (const QString &simulator : names) {
        m_computer.addSimulator(simulator);
        m_computer.write(relative(simulator, QStringLiteral(".hidden")), "hidden");
        m_computer.write(relative(simulator, QStringLiteral("Gauges/deep/down.gau")), "gauge");
        m_computer.write(m_computer.configuration(simulator) + QStringLiteral(".other"), "other");
    }
    QByteArray configuration = manyConfigured();
    const QStringList files = pluginFiles(entry(kept())).keys();
    QJsonArray records{othersRecord()};
    if (m_beginning == PartlyInstalled) {
        m_computer.write(relative(kept(), files.constLast()), oldPlugin);
    } else {
        for (const QString &simulator : names) {
            for (const QString &each : files)
                m_computer.write(relative(simulator, each), oldPlugin);
            records.append(m_computer.recordFor(entry(simulator)));
        }
        // Before the other entries, so that removing and adding it again moves it.
        configuration.insert(configuration.indexOf("    <Launch.Addon>"), pluginEntry());
    }
    m_computer.write(m_computer.configuration(kept()), configuration);
    m_computer.setRecords(records);
    if (m_beginning == RecordedTwice)
        giveSecondName(m_computer.absolute(recordPath()),
                       m_computer.absolute(QStringLiteral("second")));
}

// Has the other simulator's record, and each of ours at most once.
bool DisturbedComputer::isWholeRecord(const QByteArray &text) const
{
    QJsonArray expected{othersRecord()};
    const QJsonArray records = QJsonDocument::fromJson(text).array();
    const QStringList names = simulators();
    for (const QString &simulator : names) {
        const QJsonObject record = m_computer.recordFor(entry(simulator));
        if (records.contains(record))
            expected.append(record);
    }
    return records.contains(othersRecord()) && records.size() == expected.size();
}

/// The configuration file that the one at @p path is a backup of, or itself.
QString DisturbedComputer::configurationOf(const QString &path) const
{
    return isBackup(path) ? path.left(path.indexOf(QLatin1String("_quillmont_"))) : path;
}

QStringList DisturbedComputer::harm() const
{
    QStringList lines;
    const Disk left = m_computer.disk();
    for (auto it = m_before.cbegin(); it != m_before.cend(); ++it) {
        const QString &path = it.key();
        const bool mayGo = path.endsWith(u'/')
            ? m_allowed.lowerBound(path) != m_allowed.cend()
                && m_allowed.lowerBound(path).key().startsWith(path)
            : m_allowed.contains(path) && !path.endsWith(QLatin1String(".xml"));
        if (!left.contains(path) && !mayGo)
            lines.append(QStringLiteral("lost ") + path);
    }
    for (auto it = left.cbegin(); it != left.cend(); ++it) {
        const QString path = configurationOf(it.key());
        const bool isRecord = path == recordPath();
        const bool ours = m_allowed.contains(path);
        if (isRecord && !isWholeRecord(it.value()))
            lines.append(QStringLiteral("torn record: ") + QString::fromUtf8(it.value()));
        else if (ours && !m_allowed.value(path).contains(it.value()))
            lines.append(QStringLiteral("torn ") + it.key());
        else if (!ours && !isRecord && m_before.contains(path)
                 && m_before.value(path) != it.value())
            lines.append(QStringLiteral("changed ") + it.key());
    }
    return lines;
}

QStringList DisturbedComputer::leftovers() const
{
    QStringList lines;
    const Disk left = m_computer.disk();
    for (auto it = left.keyBegin(); it != left.keyEnd(); ++it) {
        if (!it->endsWith(u'/') && !m_before.contains(*it)
            && !m_allowed.contains(configurationOf(*it)))
            lines.append(QStringLiteral("left ") + *it);
    }
    return lines;
}

QString DisturbedComputer::recordPath() const
{
    return m_computer.data(QStringLiteral("Quillmont/Orbwell/.mapping"));
}

QMap<QString, QJsonObject> DisturbedComputer::recordsOn(const Disk &disk) const
{
    QMap<QString, QJsonObject> records;
    const QJsonArray all = QJsonDocument::fromJson(disk.value(recordPath())).array();
    for (const auto &record : all)
        records.insert(record.toObject().value(QLatin1String("name")).toString(),
                       record.toObject());
    return records;
}

void DisturbedComputer::putRecords(Disk *disk, const QMap<QString, QJsonObject> &records) const
{
    QJsonArray sorted;
    for (const QJsonObject &record : records)
        sorted.append(record);
    put(disk, recordPath(), QJsonDocument(sorted).toJson());
}

Disk DisturbedComputer::outcome() const
{
    Disk disk = m_computer.disk();
    const QStringList paths = disk.keys();
    for (const QString &path : paths) {
        if (isBackup(path))
            takeOut(&disk, path);
    }
    putRecords(&disk, recordsOn(disk));
    return disk;
}

bool DisturbedComputer::isKnown(const QString &simulator, const Disk &disk) const
{
    if (m_beginning != OnlyRecorded)
        return true;
    bool known = recordsOn(disk).contains(simulator);
    const QStringList all = pluginFilesOf(simulator);
    for (const QString &path : all)
        known = known && disk.contains(path);
    return known;
}

Disk DisturbedComputer::expectedAfter(const Disk &start, const Disk &usual) const
{
    Disk expected = usual;
    auto records = recordsOn(usual);
    const QStringList names = simulators();
    for (const QString &simulator : names) {
        if (isKnown(simulator, start))
            continue;
        const QString folder = relative(simulator, {});
        takeOut(&expected, folder);
        for (auto it = start.cbegin(); it != start.cend(); ++it) {
            if (it.key().startsWith(folder) || it.key() == m_computer.configuration(simulator))
                expected.insert(it.key(), it.value());
        }
        if (recordsOn(start).contains(simulator))
            records.insert(simulator, recordsOn(start).value(simulator));
    }
    putRecords(&expected, records);
    return expected;
}

QStringList DisturbedComputer::pluginFilesOf(const QString &simulator) const
{
    QStringList paths = pluginFiles(entry(simulator)).keys();
    for (QString &path : paths)
        path = relative(simulator, path);
    return paths;
}

QStringList DisturbedComputer::remaining(const QString &simulator) const
{
    const Disk disk = m_computer.disk();
    QStringList paths;
    const QStringList all = pluginFilesOf(simulator);
    for (const QString &path : all) {
        if (disk.contains(path))
            paths.append(path);
    }
    return paths;
}

bool DisturbedComputer::isWhole(const QString &simulator) const
{
    const Disk disk = m_computer.disk();
    bool whole = true;
    const QStringList all = pluginFilesOf(simulator);
    for (const QString &path : all)
        whole = whole && disk.value(path) == m_allowed.value(path).constFirst();
    return whole;
}

} // namespace Tests
