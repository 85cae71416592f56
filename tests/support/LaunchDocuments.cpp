#include "tests/support/LaunchDocuments.h"

namespace Tests {

QByteArray othersConfiguration()
{
    return "<?xml version=\"1.0\" encoding=\"Windows-1252\"?>\r\n"
           "<SimBase.Document Type=\"Launch\" version=\"1,0\">\r\n"
           "    <Descr>Launch</Descr>\r\n"
           "    <Launch.Addon>\r\n"
           "        <Name>Somebody's \xE9tude</Name>\r\n"
           "        <Disabled>False</Disabled>\r\n"
           "        <Path>Modules\\etude.dll</Path>\r\n"
           "    </Launch.Addon>\r\n"
           "</SimBase.Document>\r\n";
}

QByteArray pluginEntry()
{
    return "    <Launch.Addon>\r\n"
           "        <Name>Quillmont Orbwell</Name>\r\n"
           "        <Disabled>False</Disabled>\r\n"
           "        <Path>GaugesQuillmontOrbwell_64.dll</Path>\r\n"
           "    </Launch.Addon>\r\n";
}

QByteArray ourConfiguration()
{
    const QByteArray others = othersConfiguration();
    return QByteArray(others).insert(others.indexOf("</SimBase.Document>"), pluginEntry());
}

QByteArray launchDocument()
{
    return "<?xml version='1.0' encoding='Windows-1252'?>\r\n"
           "<SimBase.Document version=\"1.0\" Type=\"Launch\">\r\n"
           "    <Descr>Launch</Descr>\r\n"
           "    <Filename>dll.xml</Filename>\r\n"
           "    <Disabled>False</Disabled>\r\n"
           "    <Launch.ManualLoad>False</Launch.ManualLoad>\r\n"
        + pluginEntry() + "</SimBase.Document>\r\n";
}

} // namespace Tests
