#include "SimDetect/FlightGear.h"

#include "SimDetect/Candidate.h"
#include "SimDetect/Collector.h"
#include "SimDetect/Environment.h"
#include "SimDetect/FlightGearLauncher.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/RegularFile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QVector>
#include <QVersionNumber>

#include <algorithm>

namespace Quillmont::SimDetect {

namespace {

// The number after "fgdata_"; both "2020_3" and "2020.3" occur.
QVersionNumber versionIn(const QString &path)
{
    const QString number = path.section(u'/', -1).section(u'_', 1);
    return QVersionNumber::fromString(QString(number).replace(u'_', u'.'));
}

QString objectionTo(const QString &folder)
{
    static const QRegularExpression version(QStringLiteral("^[0-9]+\\."));
    const QByteArray written = RegularFile::beginning(folder + QStringLiteral("/version"), 64);
    if (!version.match(QString::fromLatin1(written)).hasMatch())
        return QStringLiteral("no file \"version\" that begins with a version number");
    const auto has = [&folder](const char *name) {
        return QFileInfo(folder + u'/' + QLatin1String(name)).isFile();
    };
    return has("defaults.xml") || has("preferences.xml")
        ? QString()
        : QStringLiteral("no defaults.xml or preferences.xml");
}

} // namespace

FlightGear::FlightGear(Collector &collector, FolderLookup &lookup, const Environment &environment)
    : m_collector(collector)
    , m_lookup(lookup)
    , m_environment(environment)
{ }

void FlightGear::find()
{
    const QString chosen = m_environment.variables.value(QStringLiteral("FG_ROOT"));
    m_collector.setOrigin(QStringLiteral("FG_ROOT"));
    if (!chosen.isEmpty())
        offer({{chosen, {}}});
    m_collector.setOrigin(QStringLiteral("FlightGear's launcher"));
    const FlightGearLauncher launcher(home(), m_lookup);
    offer(launcher.roots());
    m_collector.setOrigin(QStringLiteral("a well-known folder"));
    QVector<Candidate> present;
    const QStringList folders = packaged() + downloaded(launcher.downloadFolders());
    for (const auto &folder : folders)
        if (QFileInfo(folder).isDir())
            present.append({folder, {}});
    offer(present);
}

// The folder of its per-user data; empty without a home folder.
QString FlightGear::home() const
{
    const QString chosen = m_environment.variables.value(QStringLiteral("FG_HOME"));
    if (chosen.startsWith(u'/'))
        return QDir::cleanPath(chosen);
    return m_environment.inHome(m_environment.system == Environment::MacOS
                                    ? QStringLiteral("Library/Application Support/FlightGear")
                                    : QStringLiteral(".fgfs"));
}

QStringList FlightGear::packaged() const
{
    if (m_environment.system == Environment::MacOS) {
        const QString data = QStringLiteral("/Applications/FlightGear.app/Contents/Resources/data");
        return {m_environment.inRoot(data), m_environment.inHome(data)};
    }
    QStringList folders;
    for (const char *place : {"/usr/share/games/flightgear",
                              "/usr/share/flightgear",
                              "/usr/local/share/flightgear",
                              "/usr/share/games/FlightGear"}) {
        const QString folder = m_environment.inRoot(QLatin1String(place));
        folders << folder << folder + QStringLiteral("/data");
    }
    return folders;
}

// The highest version first; of equal ones, that in FlightGear's home first.
QStringList FlightGear::downloaded(const QStringList &chosen)
{
    static const QRegularExpression data(QStringLiteral("^fgdata_"));
    QStringList folders;
    const QStringList places = QStringList(home()) + chosen;
    for (const auto &place : places) {
        if (!place.startsWith(u'/'))
            continue;
        const QStringList names = m_lookup.names(place).filter(data);
        for (const auto &name : names)
            folders.append(place + u'/' + name);
    }
    std::stable_sort(folders.begin(), folders.end(), [](const QString &left, const QString &right) {
        return versionIn(left) > versionIn(right);
    });
    return folders;
}

void FlightGear::offer(const QVector<Candidate> &folders)
{
    m_collector.offer(QStringLiteral("FGFS"), folders, objectionTo);
}

} // namespace Quillmont::SimDetect
