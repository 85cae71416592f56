#include "tests/EndToEnd/PilotsHome.h"

#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

namespace Tests {

namespace {

QByteArray manifest(const char *id, const QByteArray &folder)
{
    return QByteArray("\"AppState\"\n{\n\t\"appid\"\t\t\"") + id
        + "\"\n\t\"StateFlags\"\t\t\"4\"\n\t\"installdir\"\t\t\"" + folder + "\"\n}\n";
}

// Six other add-ons, as their installers leave it: Windows-1252, tabs beside blanks, comments.
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

PilotsHome::PilotsHome(const Sandbox &sandbox, const QString &flightGear)
    : m_home(sandbox.home())
    , m_drives(sandbox.path(QStringLiteral("media")))
    , m_flightGear(flightGear)
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
    return m_drives + QStringLiteral("/SteamLibrary/steamapps/common/X-Plane 11");
}

QString PilotsHome::fsx() const
{
    return steam() + QStringLiteral("/steamapps/common/FSX");
}

QString PilotsHome::dllXml() const
{
    return prefix() + QStringLiteral("/AppData/Roaming/Microsoft/FSX/dll.xml");
}

QString PilotsHome::steam() const
{
    return m_home + QStringLiteral("/.local/share/Steam");
}

QString PilotsHome::prefix() const
{
    return steam() + QStringLiteral("/steamapps/compatdata/314160/pfx/drive_c/users/steamuser");
}

QMap<QString, QByteArray> PilotsHome::trees() const
{
    QMap<QString, QByteArray> trees;
    for (const QString &folder : {m_drives, steam(), m_flightGear})
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
    const QString second = m_drives + QStringLiteral("/SteamLibrary");
    writeFile(steam() + QStringLiteral("/config/libraryfolders.vdf"),
              "\"libraryfolders\"\n{\n\t\"0\"\n\t{\n\t\t\"path\"\t\t\"" + steam().toUtf8()
                  + "\"\n\t}\n\t\"1\"\n\t{\n\t\t\"path\"\t\t\"" + second.toUtf8() + "\"\n\t}\n}\n");
    writeFile(second + QStringLiteral("/steamapps/appmanifest_269950.acf"),
              manifest("269950", "X-Plane 11"));
    writeFile(steam() + QStringLiteral("/steamapps/appmanifest_314160.acf"),
              manifest("314160", "FSX"));
}

void PilotsHome::makeFsx() const
{
    writeFile(fsx() + QStringLiteral("/fsx.exe"), "");
    writeFile(fsx() + QStringLiteral("/SimObjects/Airplanes/Somebody/aircraft.cfg"), "");
    writeFile(fsx() + QStringLiteral("/Modules/Somebody.dll"), "other module");
    writeFile(dllXml(), wellFilledDllXml());
    writeFile(prefix() + QStringLiteral("/AppData/Roaming/Microsoft/FSX/fsx.CFG"), "[Main]\r\n");
}

void PilotsHome::makeFlightGear() const
{
    writeFile(m_flightGear + QStringLiteral("/version"), "2020.3.16\n");
    writeFile(m_flightGear + QStringLiteral("/defaults.xml"), "<PropertyList/>\n");
    writeFile(m_flightGear + QStringLiteral("/Protocol/atlas.xml"), "<PropertyList/>\n");
}

} // namespace Tests
