#include "ViewControllers/Payload/LaunchDocument.h"

namespace Quillmont::Utility::ViewControllers {

QString launchDocument()
{
    return QStringLiteral("<?xml version='1.0' encoding='Windows-1252'?>\r\n"
                          "<SimBase.Document version=\"1.0\" Type=\"Launch\">\r\n"
                          "    <Descr>Launch</Descr>\r\n"
                          "    <Filename>dll.xml</Filename>\r\n"
                          "    <Disabled>False</Disabled>\r\n"
                          "    <Launch.ManualLoad>False</Launch.ManualLoad>\r\n"
                          "    <Launch.Addon>\r\n"
                          "        <Name>Quillmont Orbwell</Name>\r\n"
                          "        <Disabled>False</Disabled>\r\n"
                          "        <Path>GaugesQuillmontOrbwell_64.dll</Path>\r\n"
                          "    </Launch.Addon>\r\n"
                          "</SimBase.Document>\r\n");
}

} // namespace Quillmont::Utility::ViewControllers
