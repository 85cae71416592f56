#include "SimDetect/FlightGear.h"

#include "SimDetect/Candidate.h"
#include "SimDetect/Collector.h"
#include "SimDetect/Environment.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/PlainFile.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QVector>
#include <QVersionNumber>

#include <algorithm>

namespace Quillmont::SimDetect {

namespace {

// The number behind "fgdata_"; both "2020_3" and "2020.3" are seen.
QVersionNumber versionIn(const QString &name)
{
    return QVersionNumber::fromString(name.section(u'_', 1).replace(u'_', u'.'));
}

QString test(const QString &folder)
{
    static const QRegularExpression version(QStringLiteral("^[0-9]+\\."));
    const QByteArray written = PlainFile::beginning(folder + QStringLiteral("/version"), 64);
    if (!version.match(QString::fromLatin1(written)).hasMatch())
        return QStringLiteral("no file \"version\" that begins with one");
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
    if (!chosen.isEmpty())
        offer({chosen});
    QStringList present = packaged() + downloaded();
    present.erase(std::remove_if(present.begin(),
                                 present.end(),
                                 [](const QString &path) { return !QFileInfo(path).isDir(); }),
                  present.end());
    offer(present);
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

QStringList FlightGear::downloaded()
{
    const QString place
        = m_environment.inHome(m_environment.system == Environment::MacOS
                                   ? QStringLiteral("Library/Application Support/FlightGear")
                                   : QStringLiteral(".fgfs"));
    if (place.isEmpty())
        return {};
    QStringList names
        = m_lookup.names(place).filter(QRegularExpression(QStringLiteral("^fgdata_")));
    std::stable_sort(names.begin(), names.end(), [](const QString &left, const QString &right) {
        return versionIn(left) > versionIn(right);
    });
    for (auto &name : names)
        name.prepend(place + u'/');
    return names;
}

void FlightGear::offer(const QStringList &folders)
{
    QVector<Candidate> candidates;
    for (const auto &folder : folders)
        candidates.append({folder, {}});
    m_collector.offer(QStringLiteral("FGFS"), candidates, test);
}

} // namespace Quillmont::SimDetect
