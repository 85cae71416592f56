#include "tests/EndToEnd/PilotsHome.h"

#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QFileInfo>

namespace Tests {

namespace {

QByteArray manifest(const char *id, const QByteArray &folder)
{
    return QByteArray("\"AppState\"\n{\n\t\"appid\"\t\t\"") + id
        + "\"\n\t\"StateFlags\"\t\t\"4\"\n\t\"installdir\"\t\t\"" + folder + "\"\n}\n";
}

// Six other add-ons, as their installers leave it: Windows-1252, tabs and spaces, comments.
QByteArray wellFilledDllXml()
{
    QByteArray xml("<?xml version=\"1.0\" encoding=\"Windows-1252\"?>\r\n\r\n"
                   "<SimBase.Document Type=\"Launch\" version=\"1,0\">\r\n"
                   "  <Descr>Launch</Descr>\r\n"
                   "  <Filename>dll.xml</Filename>\r\n"
                   "  <Disabled>False</Disabled>\r\n"
                   "  <Launch.ManualLoad>False</Launch.ManualLoad>\r\n");
    for (const char *name : {"Object Placement Tool",
                             "Traffic Toolbox",
                             "Visual Effects Tool",
                             "Somebody's M\xE9t\xE9o & Cie",
                             "Somebody's sound",
                             "Somebody's camera"}) {
        xml += "  <Launch.Addon>\r\n    <Name>" + QByteArray(name).replace('&', "&amp;")
            + "</Name>\r\n    <Disabled>True</Disabled>\r\n\t<ManualLoad>False</ManualLoad>\r\n"
              "    <Path>..\\somebody.dll</Path>\r\n  </Launch.Addon>\r\n";
    }
    return xml
        + "  <!-- <Launch.Addon><Name>Quillmont Orbwell</Name></Launch.Addon> -->\r\n"
          "</SimBase.Document>";
}

void addTree(QMap<QString, QByteArray> &trees, const QString &folder)
{
    const auto tree = treeOf(folder);
    for (auto it = tree.begin(); it != tree.end(); ++it) {
        if (!it.key().endsWith(QLatin1String(".bak")))
            trees.insert(folder + u'/' + it.key(), it.value());
    }
}

} // namespace

PilotsHome::PilotsHome(const Sandbox &sandbox, const QString &flightGear, const PilotsSteam &steam)
    : m_home(sandbox.home())
    , m_drives(sandbox.path(QStringLiteral("media")))
    , m_flightGear(flightGear)
    , m_steam(sandbox.path(steam.root))
    , m_games(sandbox.path(steam.games))
    , m_prefixes(steam.prefixes.isEmpty() ? QString() : sandbox.path(steam.prefixes))
{
    makeXPlane(xplane12(), 12);
    writeFile(
        m_home + QStringLiteral("/.x-plane/x-plane_install_12.txt"),
        (m_drives + QStringLiteral("/gone/X-Plane 12/\n") + xplane12() + QStringLiteral("/\n"))
            .toUtf8());
    makeXPlane(xplane11(), 11);
    makeSteam();
    makeFsx();
    makeFlightGear();
}

QString PilotsHome::xplane12() const
{
    return m_drives + QStringLiteral("/Fliegen \u2013 \u98DB\u884C/X-Plane 12");
}

QString PilotsHome::xplane11() const
{
    return second() + QStringLiteral("/steamapps/common/X-Plane 11");
}

QString PilotsHome::fsx() const
{
    return m_games + QStringLiteral("/steamapps/common/FSX");
}

QString PilotsHome::dllXml() const
{
    return user("314160") + QStringLiteral("/AppData/Roaming/Microsoft/FSX/dll.xml");
}

QString PilotsHome::aerofly() const
{
    return user("1995890") + QStringLiteral("/Documents/Aerofly FS 4");
}

QString PilotsHome::packages() const
{
    return m_drives + QStringLiteral("/MSFS/Packages");
}

// A library on another drive.
QString PilotsHome::second() const
{
    return m_drives + QStringLiteral("/SteamLibrary");
}

// The folder of the user in the game's prefix.
QString PilotsHome::user(const char *id) const
{
    return m_prefixes + QStringLiteral("/steamapps/compatdata/") + QLatin1String(id)
        + QStringLiteral("/pfx/drive_c/users/steamuser");
}

QMap<QString, QByteArray> PilotsHome::trees() const
{
    QMap<QString, QByteArray> trees;
    for (const QString &folder : {m_drives, m_steam, m_flightGear})
        addTree(trees, folder);
    return trees;
}

void PilotsHome::makeXPlane(const QString &folder, int version)
{
    writeFile(folder + QStringLiteral("/X-Plane-x86_64"), "");
    writeFile(folder + QStringLiteral("/Log.txt"),
              "Log.txt for X-Plane " + QByteArray::number(version) + ".0\n");
    writeFile(folder + QStringLiteral("/Resources/plugins/Somebody/64/lin.xpl"), "other plugin");
}

void PilotsHome::makeSteam() const
{
    // Flatpak's Steam sees its root under another path.
    const QString flatpak = m_home + QStringLiteral("/.var/app/com.valvesoftware.Steam");
    const QString seen = QString(m_steam).replace(flatpak, m_home);
    QByteArray list = "\"libraryfolders\"\n{\n";
    int number = 0;
    for (const QString &library : {seen, second(), m_games, m_prefixes}) {
        list += "\t\"" + QByteArray::number(number) + "\"\n\t{\n\t\t\"path\"\t\t\""
            + library.toUtf8() + "\"\n\t}\n";
        ++number;
    }
    writeFile(m_steam + QStringLiteral("/config/libraryfolders.vdf"), list + "}\n");
    writeFile(second() + QStringLiteral("/steamapps/appmanifest_269950.acf"),
              manifest("269950", "X-Plane 11"));
}

void PilotsHome::makeGame(const char *id, const QString &name) const
{
    writeFile(m_games + QStringLiteral("/steamapps/appmanifest_%1.acf").arg(QLatin1String(id)),
              manifest(id, name.toUtf8()));
}

void PilotsHome::makeFsx() const
{
    makeGame("314160", QStringLiteral("FSX"));
    writeFile(fsx() + QStringLiteral("/fsx.exe"), "");
    writeFile(fsx() + QStringLiteral("/SimObjects/Airplanes/Somebody/aircraft.cfg"), "");
    writeFile(fsx() + QStringLiteral("/Modules/Somebody.dll"), "other module");
    if (m_prefixes.isEmpty())
        return;
    writeFile(dllXml(), wellFilledDllXml());
    writeFile(QFileInfo(dllXml()).path() + QStringLiteral("/fsx.CFG"), "[Main]\r\n");
}

void PilotsHome::addNewerSimulators() const
{
    makeGame("1995890", QStringLiteral("Aerofly FS 4"));
    for (const char *folder : {"scenery", "aircraft"})
        QDir().mkpath(m_games + QStringLiteral("/steamapps/common/Aerofly FS 4/")
                      + QLatin1String(folder));
    for (const char *folder : {"Community", "Community2024"})
        writeFile(packages() + u'/' + QLatin1String(folder)
                      + QStringLiteral("/somebody-scenery/layout.json"),
                  "{}");
    if (m_prefixes.isEmpty())
        return;
    writeFile(aerofly() + QStringLiteral("/main.mcf"), "");
    makeUserCfg("1250410", QStringLiteral("Microsoft Flight Simulator"));
    makeUserCfg("2537590", QStringLiteral("Microsoft Flight Simulator 2024"));
}

void PilotsHome::makeUserCfg(const char *id, const QString &name) const
{
    const QString file = user(id) + QStringLiteral("/AppData/Roaming/%1/UserCfg.opt").arg(name);
    const QString windows = QStringLiteral("Z:") + packages().replace(u'/', u'\\');
    writeFile(file, "InstalledPackagesPath \"" + windows.toUtf8() + "\"\r\n");
    const QString drives = user(id) + QStringLiteral("/../../../dosdevices");
    QDir().mkpath(drives);
    QFile::link(QStringLiteral("/"), drives + QStringLiteral("/z:"));
}

void PilotsHome::makeFlightGear() const
{
    writeFile(m_flightGear + QStringLiteral("/version"), "2020.3.16\n");
    writeFile(m_flightGear + QStringLiteral("/defaults.xml"), "<PropertyList/>\n");
    writeFile(m_flightGear + QStringLiteral("/Protocol/atlas.xml"), "<PropertyList/>\n");
}

} // namespace Tests
