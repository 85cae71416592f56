<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::ViewControllers::ScanController</name>
    <message>
        <source>Quillmont Orbwell have successfully installed Orbwell plugin to %0.</source>
        <translation>Quillmont Orbwell hat das Orbwell-Plugin erfolgreich installiert in: %0.</translation>
    </message>
    <message>
        <source>Orbwell plugin is installed in all simulators.</source>
        <translation>Das Orbwell-Plugin ist in allen Simulatoren installiert.</translation>
    </message>
    <message>
        <source>There are no other simulator found for install Orbwell plugin.</source>
        <translation>Es wurde kein weiterer Simulator gefunden, in dem das Orbwell-Plugin installiert werden kann.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Quillmont Orbwell – Einstellungen</translation>
    </message>
    <message>
        <source>Unable to copy &apos;%0&apos; to &apos;%1&apos;. Please check if you have permission to folder &apos;%2&apos;.<byte value="xd"/>
</source>
        <translation>„%0“ konnte nicht nach „%1“ kopiert werden. Bitte prüfen Sie, ob Sie die nötigen Zugriffsrechte für den Ordner „%2“ haben.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Installation abgeschlossen</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to install your Orbwell plugin to %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Quillmont Orbwell konnte das Orbwell-Plugin nicht in %0 installieren.<byte value="xd"/>
<byte value="xd"/>
Einzelheiten finden Sie in der folgenden Liste:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>Plugins %0</source>
        <translation>Plugins: %0</translation>
    </message>
    <message>
        <source>Quillmont Orbwell has %1 plugins on your computer.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%0</source>
        <translation>Quillmont Orbwell hat Plugins auf Ihrem Computer geändert (%1).<byte value="xd"/>
<byte value="xd"/>
Einzelheiten finden Sie in der folgenden Liste:<byte value="xd"/>
<byte value="xd"/>
%0</translation>
    </message>
    <message>
        <source>The file &apos;%0&apos; is empty. Quillmont Orbwell installer was not able to change your configuration.</source>
        <translation>Die Datei „%0“ ist leer. Das Installationsprogramm von Quillmont Orbwell konnte Ihre Konfiguration nicht ändern.</translation>
    </message>
    <message>
        <source>Unable to write configuration to file &apos;%0&apos;. Please check if you have permission to that file.</source>
        <translation>Die Konfiguration konnte nicht in die Datei „%0“ geschrieben werden. Bitte prüfen Sie, ob Sie die nötigen Zugriffsrechte für diese Datei haben.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallation</translation>
    </message>
    <message>
        <source>Quillmont Orbwell for %0 has been uninstalled successfully.</source>
        <translation>Quillmont Orbwell für %0 wurde erfolgreich deinstalliert.</translation>
    </message>
    <message>
        <source>Unable to remove file &apos;%0&apos; from %1. Please remove the file manually.<byte value="xd"/>
</source>
        <translation>Die Datei „%0“ konnte nicht aus %1 entfernt werden. Bitte entfernen Sie die Datei manuell.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to uninstall your Orbwell plugin from %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Quillmont Orbwell konnte das Orbwell-Plugin nicht aus %0 deinstallieren.<byte value="xd"/>
<byte value="xd"/>
Einzelheiten finden Sie in der folgenden Liste:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Views::ScannerView</name>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Quillmont Orbwell – Einstellungen</translation>
    </message>
    <message>
        <source>Orbwell will automatically detect your simulators and install the plugin in each. Please verify below. To manually scan and install again, press &quot;Scan &amp; Install&quot; below.</source>
        <translation>Orbwell erkennt Ihre Simulatoren automatisch und installiert das Plugin in jedem von ihnen. Bitte prüfen Sie die Angaben unten. Um Suche und Installation manuell zu wiederholen, klicken Sie unten auf „Suchen &amp; installieren“.</translation>
    </message>
    <message>
        <source>Simulators</source>
        <translation>Simulatoren</translation>
    </message>
    <message>
        <source>There are no simulators to show. The file flightsims.json beside this program is missing, empty or damaged. Please install Quillmont Orbwell again.</source>
        <translation>Es können keine Simulatoren angezeigt werden. Die Datei flightsims.json im Ordner dieses Programms fehlt, ist leer oder beschädigt. Bitte installieren Sie Quillmont Orbwell erneut.</translation>
    </message>
    <message>
        <source>Scan &amp;&amp; Install</source>
        <translation>Suchen &amp;&amp; installieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message numerus="yes">
        <source>Scan found %0 flight simulators installed.</source>
        <translation>
            <numerusform>Bei der Suche wurde %0 installierter Flugsimulator gefunden.</numerusform>
            <numerusform>Bei der Suche wurden %0 installierte Flugsimulatoren gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan found 1 flight simulator installed.</source>
        <translation>Bei der Suche wurde 1 installierter Flugsimulator gefunden.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.</source>
        <translation>Das Setup von Quillmont Orbwell kann keinen Flugsimulator finden. Bitte wählen Sie den Ordner manuell aus.</translation>
    </message>
    <message>
        <source>Scan completed</source>
        <translation>Suche abgeschlossen</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Widgets::AddonListItem</name>
    <message>
        <source>Path not set</source>
        <translation>Kein Pfad festgelegt</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Folder of %0</source>
        <translation>Ordner von %0</translation>
    </message>
    <message>
        <source>Choose the folder of %0</source>
        <translation>Ordner von %0 auswählen</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Invalid path</source>
        <translation>Ungültiger Pfad</translation>
    </message>
    <message>
        <source>This path is invalid</source>
        <translation>Dieser Pfad ist ungültig</translation>
    </message>
    <message>
        <source>This simulator was not found. If you have it, press &quot;...&quot; and choose its folder.</source>
        <translation>Dieser Simulator wurde nicht gefunden. Wenn Sie ihn besitzen, klicken Sie auf „...“ und wählen Sie seinen Ordner aus.</translation>
    </message>
    <message>
        <source>Uninstall Orbwell</source>
        <translation>Orbwell deinstallieren</translation>
    </message>
    <message>
        <source>Install Orbwell</source>
        <translation>Orbwell installieren</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>Folder not known</source>
        <translation>Ordner nicht bekannt</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Orbwell is installed</source>
        <translation>Orbwell ist installiert</translation>
    </message>
    <message>
        <source>Orbwell is not installed</source>
        <translation>Orbwell ist nicht installiert</translation>
    </message>
</context>
</TS>
