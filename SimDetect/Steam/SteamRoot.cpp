#include "SimDetect/Steam/SteamRoot.h"

#include "SimDetect/Environment.h"

#include <QDir>
#include <QFileInfo>

namespace Quillmont::SimDetect {

namespace {

constexpr auto usualRoot = ".local/share/Steam";

QString nativeRoot(const Environment &environment)
{
    const QString data = environment.variables.value(QStringLiteral("XDG_DATA_HOME"));
    if (data.startsWith(u'/'))
        return QDir::cleanPath(data + QStringLiteral("/Steam"));
    return environment.inHome(QLatin1String(usualRoot));
}

// Flatpak's Steam sees the folder under the path of a native Steam; the home folder may also be a
// link that Steam has resolved.
QStringList flatpakNames(const Environment &environment)
{
    const QString home = QFileInfo(environment.inHome(QString())).canonicalFilePath();
    return {environment.inHome(QLatin1String(usualRoot)), home + u'/' + QLatin1String(usualRoot)};
}

QVector<SteamRoot> linuxRoots(const Environment &environment)
{
    const QStringList inSandbox = flatpakNames(environment);
    const auto inHome = [&environment](const char *place) {
        return environment.inHome(QLatin1String(place));
    };
    return {{nativeRoot(environment), {}},
            {inHome(".steam/steam"), {}},
            {inHome(".steam/root"), {}},
            {inHome(".steam/debian-installation"), {}},
            {inHome(".var/app/com.valvesoftware.Steam/.local/share/Steam"), inSandbox},
            {inHome(".var/app/com.valvesoftware.Steam/data/Steam"), inSandbox},
            {inHome("snap/steam/common/.local/share/Steam"), {}},
            {inHome(".snap/data/steam/common/.local/share/Steam"), {}}};
}

} // namespace

QString SteamRoot::outside(const QString &folder) const
{
    const QString cleaned = QDir::cleanPath(folder);
    for (const auto &name : inSandbox)
        if (cleaned == name || cleaned.startsWith(name + u'/'))
            return path + cleaned.mid(name.size());
    return folder;
}

QVector<SteamRoot> SteamRoot::all(const Environment &environment)
{
    if (environment.system == Environment::MacOS)
        return {{environment.inHome(QStringLiteral("Library/Application Support/Steam")), {}}};
    return linuxRoots(environment);
}

} // namespace Quillmont::SimDetect
