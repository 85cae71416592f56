<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::Doctor::Advice</name>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Verschaffen Sie sich Leserechte für die Datei.</translation>
    </message>
    <message>
        <source>Move it away, or make it smaller by hand.</source>
        <translation>Verschieben Sie sie an einen anderen Ort, oder kürzen Sie sie von Hand.</translation>
    </message>
    <message>
        <source>Move it away.</source>
        <translation>Verschieben Sie sie an einen anderen Ort.</translation>
    </message>
    <message>
        <source>Mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Reparieren Sie die Datei von Hand; bis dahin wird an ihr nichts geändert, und der Simulator lädt möglicherweise gar kein Add-on.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back, or mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Spielen Sie die Sicherung vom %1 zurück, oder reparieren Sie die Datei von Hand; bis dahin wird an ihr nichts geändert, und der Simulator lädt möglicherweise gar kein Add-on.</translation>
    </message>
    <message>
        <source>Move it away; until then the simulator may load no add-on at all.</source>
        <translation>Verschieben Sie sie an einen anderen Ort; bis dahin lädt der Simulator möglicherweise gar kein Add-on.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back; until then the simulator may load no add-on at all.</source>
        <translation>Spielen Sie die Sicherung vom %1 zurück; bis dahin lädt der Simulator möglicherweise gar kein Add-on.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::CatalogueCheck</name>
    <message>
        <source>It is no JSON: %1. The program sees no simulator.</source>
        <translation>Das ist kein gültiges JSON: %1. Das Programm erkennt keinen Simulator.</translation>
    </message>
    <message>
        <source>It is no array. The program sees no simulator.</source>
        <translation>Das ist kein JSON-Array. Das Programm erkennt keinen Simulator.</translation>
    </message>
    <message>
        <source>The key is there twice; the last one counts.</source>
        <translation>Der Schlüssel ist zweimal vorhanden; der letzte gilt.</translation>
    </message>
    <message>
        <source>Unknown key; it is ignored.</source>
        <translation>Unbekannter Schlüssel; er wird ignoriert.</translation>
    </message>
    <message>
        <source>Its type is %1, not %2; it counts as missing.</source>
        <translation>Der Typ ist %1, nicht %2; der Wert gilt als nicht vorhanden.</translation>
    </message>
    <message>
        <source>The simulator has no name.</source>
        <translation>Der Simulator hat keinen Namen.</translation>
    </message>
    <message>
        <source>Line %1 has the same name; both share one record and one chosen folder.</source>
        <translation>Zeile %1 hat denselben Namen; beide teilen sich einen Eintrag in der Installationsliste und einen gewählten Ordner.</translation>
    </message>
    <message>
        <source>There are no files; nothing is installed, and it counts as installed.</source>
        <translation>Es sind keine Dateien angegeben; nichts wird installiert, und das Plugin gilt als installiert.</translation>
    </message>
    <message>
        <source>The payload has no file %1; it cannot be copied.</source>
        <translation>Bei den mitgelieferten Dateien fehlt %1; die Datei kann nicht kopiert werden.</translation>
    </message>
    <message>
        <source>There is no destination; it is the simulator&apos;s folder itself.</source>
        <translation>Es ist kein Ziel angegeben; Ziel ist dann der Ordner des Simulators selbst.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the simulator&apos;s folder; the file is written there.</source>
        <translation>&quot;..&quot; führt aus dem Ordner des Simulators hinaus; die Datei wird außerhalb geschrieben.</translation>
    </message>
    <message>
        <source>Another file has the same destination; the later one is copied.</source>
        <translation>Eine andere Datei hat dasselbe Ziel; kopiert wird die spätere.</translation>
    </message>
    <message>
        <source>It is only read beside a &quot;config&quot; that is null or not empty; it is ignored.</source>
        <translation>Dieser Schlüssel wird nur neben einem &quot;config&quot; gelesen, das null oder nicht leer ist; hier wird er ignoriert.</translation>
    </message>
    <message>
        <source>&quot;type&quot; is not 0, so no configuration file is touched.</source>
        <translation>&quot;type&quot; ist nicht 0, daher wird keine Konfigurationsdatei geändert.</translation>
    </message>
    <message>
        <source>There is no path; no file can be edited.</source>
        <translation>Es ist kein Pfad angegeben; es kann keine Datei bearbeitet werden.</translation>
    </message>
    <message>
        <source>Without &quot;parent&quot; and &quot;values&quot; no entry is added.</source>
        <translation>Ohne &quot;parent&quot; und &quot;values&quot; wird kein Eintrag hinzugefügt.</translation>
    </message>
    <message>
        <source>This entry installs, but cannot be removed: no pair of &quot;values&quot; is what &quot;remove&quot; looks for.</source>
        <translation>Dieser Eintrag wird installiert, kann aber nicht entfernt werden: Kein Paar in &quot;values&quot; entspricht dem, wonach &quot;remove&quot; sucht.</translation>
    </message>
    <message>
        <source>Only the child element is removed, and the rest of the entry stays: &quot;delete_parent&quot; is not true.</source>
        <translation>Nur das untergeordnete Element wird entfernt, der Rest des Eintrags bleibt: &quot;delete_parent&quot; ist nicht true.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Alles ist in Ordnung.</translation>
    </message>
    <message>
        <source>It is no whole number; it counts as 0.</source>
        <translation>Das ist keine ganze Zahl; der Wert gilt als 0.</translation>
    </message>
    <message>
        <source>There is no such location; the entry itself never finds anything.</source>
        <translation>Diese &quot;location&quot; gibt es nicht; der Eintrag findet von sich aus nie etwas.</translation>
    </message>
    <message>
        <source>It shares its chosen folder with the name in line %1.</source>
        <translation>Dieser Name teilt sich den gewählten Ordner mit dem in Zeile %1.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the payload.</source>
        <translation>&quot;..&quot; führt aus dem Ordner der mitgelieferten Dateien hinaus.</translation>
    </message>
    <message>
        <source>Without &quot;config&quot; no configuration file is touched.</source>
        <translation>Ohne &quot;config&quot; wird keine Konfigurationsdatei geändert.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the folder of such files.</source>
        <translation>&quot;..&quot; führt aus dem Ordner der Konfigurationsdateien hinaus.</translation>
    </message>
    <message>
        <source>XML cannot hold this; the entry is never added.</source>
        <translation>XML kann das nicht enthalten; der Eintrag wird nie hinzugefügt.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::ConfigurationCheck</name>
    <message>
        <source>The simulator has no Proton prefix, so its configuration file is unknown.</source>
        <translation>Der Simulator hat kein Proton-Präfix, daher ist seine Konfigurationsdatei unbekannt.</translation>
    </message>
    <message>
        <source>Start the simulator once from Steam, then install again.</source>
        <translation>Starten Sie den Simulator einmal über Steam, und installieren Sie das Plugin dann erneut.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Verschaffen Sie sich dort Schreibrechte.</translation>
    </message>
    <message>
        <source>The configuration file %1 is missing.</source>
        <translation>Die Konfigurationsdatei %1 fehlt.</translation>
    </message>
    <message>
        <source>Uninstall and install again; the file is made anew.</source>
        <translation>Deinstallieren Sie das Plugin, und installieren Sie es dann erneut; die Datei wird dabei neu angelegt.</translation>
    </message>
    <message>
        <source>The configuration file %1 cannot be read: %2.</source>
        <translation>Die Konfigurationsdatei %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The configuration file %1 is damaged. %2</source>
        <translation>Die Konfigurationsdatei %1 ist beschädigt. %2</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Deinstallieren Sie das Plugin, und installieren Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The plugin&apos;s files are there, but %1 has no entry for it.</source>
        <translation>Die Dateien des Plugins sind vorhanden, aber %1 enthält keinen Eintrag dafür.</translation>
    </message>
    <message>
        <source>%1 has an entry for the plugin, whose files are not there.</source>
        <translation>%1 enthält einen Eintrag für das Plugin, aber dessen Dateien fehlen.</translation>
    </message>
    <message>
        <source>Install it, or uninstall it to take the entry out.</source>
        <translation>Installieren Sie das Plugin, oder deinstallieren Sie es, um den Eintrag zu entfernen.</translation>
    </message>
    <message>
        <source>Our entry is in %1 %2 times.</source>
        <translation>Unser Eintrag steht %2-mal in %1.</translation>
    </message>
    <message>
        <source>Our entry in %1 is disabled.</source>
        <translation>Unser Eintrag in %1 ist deaktiviert.</translation>
    </message>
    <message>
        <source>Our entry in %1 names the file %2, which is missing.</source>
        <translation>Unser Eintrag in %1 verweist auf die Datei %2, die fehlt.</translation>
    </message>
    <message>
        <source>The configuration file %1 is a web page.</source>
        <translation>Die Konfigurationsdatei %1 ist eine Webseite.</translation>
    </message>
    <message>
        <source>The configuration file cannot be made: %1 is a link that leads nowhere.</source>
        <translation>Die Konfigurationsdatei kann nicht angelegt werden: %1 ist ein Link, der ins Leere führt.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Löschen Sie den Link, und installieren Sie dann das Plugin.</translation>
    </message>
    <message>
        <source>You may not change the configuration file %1, or not write in its folder.</source>
        <translation>Sie dürfen die Konfigurationsdatei %1 nicht ändern oder in ihrem Ordner nicht schreiben.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Doctor</name>
    <message>
        <source>The catalogue %1 is no JSON array; --check-catalogue says more.</source>
        <translation>Der Katalog %1 ist kein JSON-Array; Näheres zeigt --check-catalogue.</translation>
    </message>
    <message>
        <source>The catalogue has no simulator %1.</source>
        <translation>Der Katalog enthält keinen Simulator %1.</translation>
    </message>
    <message>
        <source>Try &quot;orbwell-doctor --help&quot;.</source>
        <translation>Hilfe erhalten Sie mit &quot;orbwell-doctor --help&quot;.</translation>
    </message>
    <message>
        <source>The answer cannot be written: %1.</source>
        <translation>Die Ausgabe kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Der Katalog %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The catalogue %1 is empty.</source>
        <translation>Der Katalog %1 ist leer.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Examination</name>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>Sein Ordner %1 ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>Choose its folder in the window.</source>
        <translation>Wählen Sie seinen Ordner im Fenster aus.</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 ist eine Datei, kein Ordner.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>Schaffen Sie Platz auf dem Datenträger, auf dem %1 liegt.</translation>
    </message>
    <message>
        <source>The disk has room for %1 bytes; what is written there takes %2.</source>
        <translation>Auf dem Datenträger sind %1 Bytes frei; was dort geschrieben wird, benötigt %2.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::FilesCheck</name>
    <message>
        <source>The payload lacks %1, so it cannot be installed.</source>
        <translation>Bei den mitgelieferten Dateien fehlt %1; die Datei kann nicht installiert werden.</translation>
    </message>
    <message>
        <source>Install this program again, or complete its &quot;plugins&quot; folder.</source>
        <translation>Installieren Sie dieses Programm erneut, oder vervollständigen Sie seinen Ordner &quot;plugins&quot;.</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Deinstallieren Sie das Plugin, und installieren Sie es dann erneut.</translation>
    </message>
    <message>
        <source>In the place of %1 is a link that leads nowhere.</source>
        <translation>An der Stelle von %1 ist ein Link, der ins Leere führt.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Löschen Sie den Link, und installieren Sie dann das Plugin.</translation>
    </message>
    <message>
        <source>%1 is no regular file.</source>
        <translation>Keine normale Datei: %1.</translation>
    </message>
    <message>
        <source>Move it away, then install.</source>
        <translation>Verschieben Sie, was dort liegt, an einen anderen Ort, und installieren Sie dann das Plugin.</translation>
    </message>
    <message>
        <source>Only a part of the plugin is there; %1 is missing.</source>
        <translation>Nur ein Teil des Plugins ist vorhanden; es fehlt: %1.</translation>
    </message>
    <message>
        <source>Install it.</source>
        <translation>Installieren Sie das Plugin.</translation>
    </message>
    <message>
        <source>%1 differs from the file that comes with this program: another version, or damaged.</source>
        <translation>Abweichend von der mitgelieferten Datei: %1 (andere Version oder beschädigt).</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Nicht lesbar: %1.</translation>
    </message>
    <message>
        <source>You may not write in the folder of %1.</source>
        <translation>Sie dürfen im Ordner von %1 nicht schreiben.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Verschaffen Sie sich dort Schreibrechte.</translation>
    </message>
    <message>
        <source>You may not read %1, so it cannot be installed.</source>
        <translation>Sie dürfen %1 nicht lesen; die Datei kann nicht installiert werden.</translation>
    </message>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Verschaffen Sie sich Leserechte für die Datei.</translation>
    </message>
    <message>
        <source>In the place of the folder %1 is a link that leads nowhere.</source>
        <translation>An der Stelle des Ordners %1 ist ein Link, der ins Leere führt.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder has to be.</source>
        <translation>%1 ist eine Datei; dort muss ein Ordner sein.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Options</name>
    <message>
        <source>%1: a plan is for &quot;install&quot;, &quot;repair&quot; or &quot;uninstall&quot;.</source>
        <translation>%1: Einen Plan gibt es nur für &quot;install&quot;, &quot;repair&quot; oder &quot;uninstall&quot;.</translation>
    </message>
    <message>
        <source>--catalogue needs a file.</source>
        <translation>--catalogue erfordert eine Datei.</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Unbekannte Option: %1.</translation>
    </message>
    <message>
        <source>Unknown option %1. Is %2 meant?</source>
        <translation>Unbekannte Option: %1. Meinten Sie %2?</translation>
    </message>
    <message>
        <source>Usage: orbwell-doctor [OPTION...] [NAME...]
Says what is wrong with the simulators and the Orbwell plugin in them. Changes nothing.

  --json               the report, plan or check as JSON
  --plan[=WHAT]        what an &quot;install&quot; (the default), &quot;repair&quot; or &quot;uninstall&quot; would do
  --catalogue FILE     use another catalogue, and the folder &quot;plugins&quot; beside it, if any
  --check-catalogue    only what is wrong in the catalogue
  --help, --version

NAMEs limit the report or the plan to those simulators.
Status: 0 nothing wrong, 1 something wrong, 2 it could not look.
</source>
        <translation>Aufruf: orbwell-doctor [OPTION...] [NAME...]
Zeigt, was mit den Simulatoren und dem Orbwell-Plugin darin nicht stimmt. Ändert nichts.

  --json               Bericht, Plan oder Prüfung als JSON
  --plan[=WAS]         was &quot;install&quot; (Vorgabe), &quot;repair&quot; oder &quot;uninstall&quot; tun würde
  --catalogue DATEI    ein anderer Katalog, gegebenenfalls mit dem Ordner &quot;plugins&quot; daneben
  --check-catalogue    nur, was am Katalog nicht stimmt
  --help, --version

Mit NAME gelten Bericht und Plan nur für diese Simulatoren.
Rückgabewert: 0 alles in Ordnung, 1 etwas stimmt nicht, 2 Prüfung nicht möglich.
</translation>
    </message>
    <message>
        <source>--check-catalogue takes no names.</source>
        <translation>--check-catalogue akzeptiert keine Namen.</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 und %2 schließen einander aus.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Plan</name>
    <message>
        <source>No simulator is found, so nothing would change.</source>
        <translation>Es wurde kein Simulator gefunden, daher würde sich nichts ändern.</translation>
    </message>
    <message>
        <source>Folder made: %1</source>
        <translation>Ordner anlegen: %1</translation>
    </message>
    <message>
        <source>Folder removed: %1</source>
        <translation>Ordner entfernen: %1</translation>
    </message>
    <message>
        <source>Backup made: %1</source>
        <translation>Sicherung anlegen: %1</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problem: %1</translation>
    </message>
    <message>
        <source>%1: install in %2</source>
        <translation>%1: installieren in %2</translation>
    </message>
    <message>
        <source>%1: repair in %2</source>
        <translation>%1: reparieren in %2</translation>
    </message>
    <message>
        <source>%1: uninstall in %2</source>
        <translation>%1: deinstallieren aus %2</translation>
    </message>
    <message>
        <source>File made: %1</source>
        <translation>Datei anlegen: %1</translation>
    </message>
    <message>
        <source>File replaced: %1</source>
        <translation>Datei ersetzen: %1</translation>
    </message>
    <message>
        <source>File unchanged: %1</source>
        <translation>Datei unverändert: %1</translation>
    </message>
    <message>
        <source>File removed: %1</source>
        <translation>Datei entfernen: %1</translation>
    </message>
    <message>
        <source>Configuration made: %1</source>
        <translation>Konfiguration anlegen: %1</translation>
    </message>
    <message>
        <source>Configuration changed: %1</source>
        <translation>Konfiguration ändern: %1</translation>
    </message>
    <message>
        <source>Configuration unchanged: %1</source>
        <translation>Konfiguration unverändert: %1</translation>
    </message>
    <message>
        <source>Record made: %1</source>
        <translation>Installationsliste anlegen: %1</translation>
    </message>
    <message>
        <source>Record changed: %1</source>
        <translation>Installationsliste ändern: %1</translation>
    </message>
    <message>
        <source>Record unchanged: %1</source>
        <translation>Installationsliste unverändert: %1</translation>
    </message>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>Sein Ordner %1 ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Install Orbwell&quot;</source>
        <translation>Schaltfläche im Fenster: „Orbwell installieren“</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Uninstall Orbwell&quot;</source>
        <translation>Schaltfläche im Fenster: „Orbwell deinstallieren“</translation>
    </message>
    <message>
        <source>Button in the window: disabled</source>
        <translation>Schaltfläche im Fenster: deaktiviert</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Reasons</name>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>X-Plane&apos;s own list</source>
        <translation>die eigene Liste von X-Plane</translation>
    </message>
    <message>
        <source>FlightGear&apos;s launcher</source>
        <translation>der Launcher von FlightGear</translation>
    </message>
    <message>
        <source>a well-known folder</source>
        <translation>ein üblicher Ordner</translation>
    </message>
    <message>
        <source>UserCfg.opt in Steam&apos;s Proton prefix</source>
        <translation>UserCfg.opt im Proton-Präfix von Steam</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>von Hand gewählt</translation>
    </message>
    <message>
        <source>the catalogue&apos;s file</source>
        <translation>die im Katalog genannte Datei</translation>
    </message>
    <message>
        <source>the catalogue&apos;s folder</source>
        <translation>der im Katalog genannte Ordner</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>Ordner nicht vorhanden</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>kein absoluter Pfad</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>kein Ordner</translation>
    </message>
    <message>
        <source>no permission to look inside</source>
        <translation>keine Berechtigung, den Inhalt zu lesen</translation>
    </message>
    <message>
        <source>no file &quot;version&quot; that begins with a version number</source>
        <translation>keine Datei &quot;version&quot;, die mit einer Versionsnummer beginnt</translation>
    </message>
    <message>
        <source>no defaults.xml or preferences.xml</source>
        <translation>weder defaults.xml noch preferences.xml vorhanden</translation>
    </message>
    <message>
        <source>no InstalledPackagesPath in it</source>
        <translation>kein InstalledPackagesPath darin</translation>
    </message>
    <message>
        <source>its InstalledPackagesPath does not begin with a drive</source>
        <translation>sein InstalledPackagesPath beginnt nicht mit einem Laufwerksbuchstaben</translation>
    </message>
    <message>
        <source>no Community, Official/Steam or Official/OneStore</source>
        <translation>kein Ordner Community, Official/Steam oder Official/OneStore</translation>
    </message>
    <message>
        <source>no Community, Official2024 or StreamedPackages</source>
        <translation>kein Ordner Community, Official2024 oder StreamedPackages</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>zu groß</translation>
    </message>
    <message>
        <source>too much to read altogether</source>
        <translation>insgesamt zu viele Daten</translation>
    </message>
    <message>
        <source>no fsx.exe</source>
        <translation>keine fsx.exe</translation>
    </message>
    <message>
        <source>no SimObjects</source>
        <translation>kein Ordner SimObjects</translation>
    </message>
    <message>
        <source>no scenery</source>
        <translation>kein Ordner scenery</translation>
    </message>
    <message>
        <source>no aircraft</source>
        <translation>kein Ordner aircraft</translation>
    </message>
    <message>
        <source>no main.mcf or tm.log</source>
        <translation>weder main.mcf noch tm.log vorhanden</translation>
    </message>
    <message>
        <source>it has no Proton prefix</source>
        <translation>kein Proton-Präfix vorhanden</translation>
    </message>
    <message>
        <source>no list of libraries</source>
        <translation>keine Liste von Bibliotheken</translation>
    </message>
    <message>
        <source>cut off, or not in Steam&apos;s text format</source>
        <translation>abgeschnitten oder nicht im Textformat von Steam</translation>
    </message>
    <message>
        <source>uninstalled (StateFlags %1)</source>
        <translation>deinstalliert (StateFlags %1)</translation>
    </message>
    <message>
        <source>not fully installed (StateFlags %1)</source>
        <translation>nicht vollständig installiert (StateFlags %1)</translation>
    </message>
    <message>
        <source>no AppState in it</source>
        <translation>kein AppState darin</translation>
    </message>
    <message>
        <source>it is about another game</source>
        <translation>betrifft ein anderes Spiel</translation>
    </message>
    <message>
        <source>installdir is not a plain name</source>
        <translation>installdir ist kein einfacher Name</translation>
    </message>
    <message>
        <source>no Resources/plugins</source>
        <translation>kein Ordner Resources/plugins</translation>
    </message>
    <message>
        <source>no X-Plane executable</source>
        <translation>keine X-Plane-Programmdatei</translation>
    </message>
    <message>
        <source>it is X-Plane %1</source>
        <translation>es ist X-Plane %1</translation>
    </message>
    <message>
        <source>it is taken as %1</source>
        <translation>bereits als %1 erkannt</translation>
    </message>
    <message>
        <source>Second byte-order mark.</source>
        <translation>Zweite Byte-Order-Mark.</translation>
    </message>
    <message>
        <source>Invalid entity name.</source>
        <translation>Ungültiger Entitätsname.</translation>
    </message>
    <message>
        <source>Invalid processing instruction name.</source>
        <translation>Ungültiger Name einer Verarbeitungsanweisung.</translation>
    </message>
    <message>
        <source>Invalid XML declaration.</source>
        <translation>Ungültige XML-Deklaration.</translation>
    </message>
    <message>
        <source>Invalid character reference.</source>
        <translation>Ungültige Zeichenreferenz.</translation>
    </message>
    <message>
        <source>Invalid element name.</source>
        <translation>Ungültiger Elementname.</translation>
    </message>
    <message>
        <source>Invalid attribute name.</source>
        <translation>Ungültiger Attributname.</translation>
    </message>
    <message>
        <source>Invalid character in the document type declaration.</source>
        <translation>Ungültiges Zeichen in der Dokumenttyp-Deklaration.</translation>
    </message>
    <message>
        <source>Entities grow to too much text.</source>
        <translation>Die Entitäten ergeben zu viel Text.</translation>
    </message>
    <message>
        <source>No XML has this character.</source>
        <translation>Dieses Zeichen ist in XML nicht erlaubt.</translation>
    </message>
    <message>
        <source>The root element is not where it should be.</source>
        <translation>Das Wurzelelement ist nicht da, wo es sein sollte.</translation>
    </message>
    <message>
        <source>The entry to change comes out of an entity.</source>
        <translation>Der zu ändernde Eintrag stammt aus einer Entität.</translation>
    </message>
    <message>
        <source>The element to remove comes out of an entity.</source>
        <translation>Das zu entfernende Element stammt aus einer Entität.</translation>
    </message>
    <message>
        <source>Undecodable bytes would be read otherwise.</source>
        <translation>Nicht dekodierbare Bytes würden danach anders gelesen.</translation>
    </message>
    <message>
        <source>A value is no text that XML can hold.</source>
        <translation>Ein Wert enthält Text, der in XML nicht erlaubt ist.</translation>
    </message>
    <message>
        <source>The element to change comes out of an entity.</source>
        <translation>Das zu ändernde Element stammt aus einer Entität.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold an end tag.</source>
        <translation>Die Kodierung der Datei kann kein End-Tag darstellen.</translation>
    </message>
    <message>
        <source>A name or a value is none that XML can hold.</source>
        <translation>Ein Name oder ein Wert ist in XML nicht erlaubt.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold a name.</source>
        <translation>Die Kodierung der Datei kann einen Namen nicht darstellen.</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine normale Datei</translation>
    </message>
    <message>
        <source>too big</source>
        <translation>zu groß</translation>
    </message>
    <message>
        <source>its name is not valid text</source>
        <translation>der Name ist kein gültiger Text</translation>
    </message>
    <message>
        <source>the catalogue&apos;s location</source>
        <translation>die &quot;location&quot; im Katalog</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>Datei nicht vorhanden</translation>
    </message>
    <message>
        <source>no registry on this system</source>
        <translation>keine Registry auf diesem System</translation>
    </message>
    <message>
        <source>looked for on Windows only</source>
        <translation>wird nur unter Windows gesucht</translation>
    </message>
    <message>
        <source>no such &quot;location&quot;</source>
        <translation>diese &quot;location&quot; gibt es nicht</translation>
    </message>
    <message>
        <source>another one was chosen by hand</source>
        <translation>ein anderer wurde von Hand gewählt</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::RecordCheck</name>
    <message>
        <source>The installation record %1 cannot be read: %2.</source>
        <translation>Die Installationsliste %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The installation record %1 is damaged; what it said is lost.</source>
        <translation>Die Installationsliste %1 ist beschädigt; ihr Inhalt ist verloren.</translation>
    </message>
    <message>
        <source>Install again; a new record is written then.</source>
        <translation>Installieren Sie das Plugin erneut; dabei wird eine neue Installationsliste geschrieben.</translation>
    </message>
    <message>
        <source>The plugin is there, but not in the installation record.</source>
        <translation>Das Plugin ist vorhanden, fehlt aber in der Installationsliste.</translation>
    </message>
    <message>
        <source>Press &quot;Scan &amp; Install&quot; in the window; it is recorded then.</source>
        <translation>Klicken Sie im Fenster auf „Suchen &amp; installieren“; dann wird es eingetragen.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, but files are missing there.</source>
        <translation>Laut Installationsliste ist das Plugin in %1 installiert, aber dort fehlen Dateien.</translation>
    </message>
    <message>
        <source>Install it again.</source>
        <translation>Installieren Sie das Plugin erneut.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, not in %2. Unattended runs work on the first, the window on the second.</source>
        <translation>Laut Installationsliste ist das Plugin in %1 installiert, nicht in %2. Unbeaufsichtigte Läufe arbeiten mit dem ersten Ordner, das Fenster mit dem zweiten.</translation>
    </message>
    <message>
        <source>Choose the folder in the window, then install or uninstall there.</source>
        <translation>Wählen Sie den Ordner im Fenster aus, und installieren oder deinstallieren Sie das Plugin dann dort.</translation>
    </message>
    <message>
        <source>The installation record has %1 in %2, which the catalogue no longer knows.</source>
        <translation>In der Installationsliste steht %1 in %2; im Katalog gibt es diesen Simulator nicht mehr.</translation>
    </message>
    <message>
        <source>Remove the plugin there by hand, if it is no longer wanted.</source>
        <translation>Entfernen Sie das Plugin dort von Hand, falls es nicht mehr gewünscht ist.</translation>
    </message>
    <message>
        <source>Nothing can be recorded: %1 is a link that leads nowhere.</source>
        <translation>In die Installationsliste kann nichts eingetragen werden: %1 ist ein Link, der ins Leere führt.</translation>
    </message>
    <message>
        <source>Delete the link.</source>
        <translation>Löschen Sie den Link.</translation>
    </message>
    <message>
        <source>You may not write the installation record %1.</source>
        <translation>Sie dürfen die Installationsliste %1 nicht schreiben.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Verschaffen Sie sich dort Schreibrechte.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Rehearsal</name>
    <message>
        <source>%1 is a folder, and stays.</source>
        <translation>%1 ist ein Ordner und bleibt erhalten.</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: a folder, or a link that leads nowhere, is in its place.</source>
        <translation>%1 kann nicht nach %2 kopiert werden: Dort befindet sich ein Ordner oder ein Link, der ins Leere führt.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: the payload lacks it. What is in its place goes all the same.</source>
        <translation>Die Datei %1 kann nicht kopiert werden: Sie fehlt bei den mitgelieferten Dateien. Was sich am Ziel befindet, wird trotzdem entfernt.</translation>
    </message>
    <message>
        <source>%1 stays as it is: %2</source>
        <translation>%1 bleibt unverändert: %2</translation>
    </message>
    <message>
        <source>The record %1 stays as it is: %2</source>
        <translation>Die Installationsliste %1 bleibt unverändert: %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: you may not write there, or the folder is missing.</source>
        <translation>%1 kann nicht nach %2 kopiert werden: Sie dürfen dort nicht schreiben, oder der Ordner fehlt.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: you may not read it. What is in its place goes all the same.</source>
        <translation>Die Datei %1 kann nicht kopiert werden: Sie dürfen sie nicht lesen. Was sich am Ziel befindet, wird trotzdem entfernt.</translation>
    </message>
    <message>
        <source>No backup of %1 can be made: you may not write in its folder.</source>
        <translation>Von %1 kann keine Sicherung angelegt werden: Sie dürfen im Ordner der Datei nicht schreiben.</translation>
    </message>
    <message>
        <source>%1 cannot be made: you may not write there, or the folder is missing.</source>
        <translation>%1 kann nicht angelegt werden: Sie dürfen dort nicht schreiben, oder der Ordner fehlt.</translation>
    </message>
    <message>
        <source>%1 stays as it is: you may not change it, or not write in its folder.</source>
        <translation>%1 bleibt unverändert: Sie dürfen die Datei nicht ändern oder in ihrem Ordner nicht schreiben.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::TextReport</name>
    <message>
        <source>The catalogue has no simulator.</source>
        <translation>Der Katalog enthält keinen Simulator.</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problem: %1</translation>
    </message>
    <message>
        <source>%1: not found on this computer</source>
        <translation>%1: auf diesem Computer nicht gefunden</translation>
    </message>
    <message>
        <source>%1: the plugin is installed</source>
        <translation>%1: das Plugin ist installiert</translation>
    </message>
    <message>
        <source>%1: only a part of the plugin is installed</source>
        <translation>%1: nur ein Teil des Plugins ist installiert</translation>
    </message>
    <message>
        <source>%1: the plugin is not installed</source>
        <translation>%1: das Plugin ist nicht installiert</translation>
    </message>
    <message>
        <source>Folder: %1, known by: %2</source>
        <translation>Ordner: %1, Quelle: %2</translation>
    </message>
    <message>
        <source>Gave %1 up to %2, which found the same folder</source>
        <translation>Hat %1 an %2 abgegeben; beide haben denselben Ordner gefunden</translation>
    </message>
    <message>
        <source>Turned down: %1 (%2): %3</source>
        <translation>Verworfen: %1 (%2): %3</translation>
    </message>
    <message>
        <source>Files installed: %1</source>
        <translation>Installierte Dateien: %1</translation>
    </message>
    <message>
        <source>Files missing: %1</source>
        <translation>Fehlende Dateien: %1</translation>
    </message>
    <message>
        <source>Files different: %1</source>
        <translation>Abweichende Dateien: %1</translation>
    </message>
    <message>
        <source>Files unreadable: %1</source>
        <translation>Nicht lesbare Dateien: %1</translation>
    </message>
    <message>
        <source>Dead links in place of files: %1</source>
        <translation>Tote Links anstelle von Dateien: %1</translation>
    </message>
    <message>
        <source>Folders or devices in place of files: %1</source>
        <translation>Ordner oder Gerätedateien anstelle von Dateien: %1</translation>
    </message>
    <message>
        <source>Bytes that are not valid in this encoding, from line %1 on</source>
        <translation>In dieser Kodierung ungültige Bytes, ab Zeile %1</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>Another program&apos;s entry %1 names a file that is not there: %2</source>
        <translation>Der Eintrag %1 eines anderen Programms verweist auf eine Datei, die nicht vorhanden ist: %2</translation>
    </message>
    <message>
        <source>Configuration: %1, missing</source>
        <translation>Konfiguration: %1, fehlt</translation>
    </message>
    <message>
        <source>Configuration: %1, unreadable</source>
        <translation>Konfiguration: %1, nicht lesbar</translation>
    </message>
    <message>
        <source>Configuration: %1, damaged, encoding %2</source>
        <translation>Konfiguration: %1, beschädigt, Kodierung %2</translation>
    </message>
    <message>
        <source>Configuration: %1, well formed, encoding %2</source>
        <translation>Konfiguration: %1, wohlgeformt, Kodierung %2</translation>
    </message>
    <message>
        <source>No entry of ours</source>
        <translation>Unser Eintrag: nicht vorhanden</translation>
    </message>
    <message>
        <source>Our entry: there once, disabled, for %1</source>
        <translation>Unser Eintrag: einmal vorhanden, deaktiviert, für %1</translation>
    </message>
    <message>
        <source>Our entry: there once, enabled, for %1</source>
        <translation>Unser Eintrag: einmal vorhanden, aktiviert, für %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, disabled, for %1</source>
        <translation>Unser Eintrag: %2-mal vorhanden, deaktiviert, für %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, enabled, for %1</source>
        <translation>Unser Eintrag: %2-mal vorhanden, aktiviert, für %1</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, well formed; to put it back:</source>
        <translation>Sicherung vom %1, %2 Bytes, wohlgeformt; zurückspielen mit:</translation>
    </message>
    <message>
        <source>Older backups: %1</source>
        <translation>Ältere Sicherungen: %1</translation>
    </message>
    <message>
        <source>Record: agrees</source>
        <translation>Installationsliste: stimmt überein</translation>
    </message>
    <message>
        <source>Record: in %1</source>
        <translation>Laut Installationsliste: in %1</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Installationsliste</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Alles ist in Ordnung.</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>Was zu tun ist:</translation>
    </message>
    <message>
        <source>Configuration: no Proton prefix</source>
        <translation>Konfiguration: kein Proton-Präfix</translation>
    </message>
    <message>
        <source>In the Proton prefix %1</source>
        <translation>Im Proton-Präfix %1</translation>
    </message>
    <message>
        <source>no named file</source>
        <translation>keine bestimmte Datei</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, damaged</source>
        <translation>Sicherung vom %1, %2 Bytes, beschädigt</translation>
    </message>
    <message>
        <source>Configuration: %1, a link that leads nowhere</source>
        <translation>Konfiguration: %1, ein Link, der ins Leere führt</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::XmlDamage</name>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>Die Datei ist kein wohlgeformtes XML: %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file holds nothing but white space.</source>
        <translation>Die Datei enthält nichts als Leerraum.</translation>
    </message>
    <message>
        <source>The file holds nothing but zero bytes: the computer stopped while it was written, or its disk is failing.</source>
        <translation>Die Datei enthält nichts als Nullbytes: Der Computer ist beim Schreiben ausgefallen, oder sein Datenträger ist defekt.</translation>
    </message>
    <message>
        <source>The file is a web page, not XML.</source>
        <translation>Die Datei ist eine Webseite, kein XML.</translation>
    </message>
    <message>
        <source>The file does not begin with a tag, so it is not XML.</source>
        <translation>Die Datei beginnt nicht mit einem Tag, also ist sie kein XML.</translation>
    </message>
    <message>
        <source>Zero bytes begin in line %1: the file was not written to its end.</source>
        <translation>In Zeile %1 beginnen Nullbytes: Die Datei wurde nicht zu Ende geschrieben.</translation>
    </message>
    <message>
        <source>There are two root elements: somebody appended a second document in line %1.</source>
        <translation>Es gibt zwei Wurzelelemente: Jemand hat in Zeile %1 ein zweites Dokument angehängt.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed: the file ends in line %3.</source>
        <translation>&lt;%1&gt; in Zeile %2 wird nie geschlossen: Die Datei endet in Zeile %3.</translation>
    </message>
    <message>
        <source>The file has no element.</source>
        <translation>Die Datei hat kein Element.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a tag, which begins in line %1.</source>
        <translation>Die Datei endet mitten in einem Tag, das in Zeile %1 beginnt.</translation>
    </message>
    <message>
        <source>A tag in line %1 has no &quot;&gt;&quot;.</source>
        <translation>Einem Tag in Zeile %1 fehlt das &quot;&gt;&quot;.</translation>
    </message>
    <message>
        <source>&lt;?xml ...?&gt; in line %1 has to be the very beginning of the file.</source>
        <translation>&lt;?xml ...?&gt; in Zeile %1 muss ganz am Anfang der Datei stehen.</translation>
    </message>
    <message>
        <source>A second document begins in line %1: somebody appended it.</source>
        <translation>In Zeile %1 beginnt ein zweites Dokument: Jemand hat es angehängt.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 ends with &lt;/%3&gt; in line %4: letter case counts.</source>
        <translation>&lt;%1&gt; in Zeile %2 endet mit &lt;/%3&gt; in Zeile %4: Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes nothing: no &lt;%1&gt; is open there.</source>
        <translation>&lt;/%1&gt; in Zeile %2 schließt nichts: Dort ist kein &lt;%1&gt; offen.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed; &lt;/%3&gt; in line %4 came first.</source>
        <translation>&lt;%1&gt; in Zeile %2 wird nie geschlossen; vorher kam &lt;/%3&gt; in Zeile %4.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; comes a second time in line %2: behind the document is the rest of an older, longer file.</source>
        <translation>&lt;/%1&gt; kommt in Zeile %2 ein zweites Mal: Hinter dem Dokument steht der Rest einer älteren, längeren Datei.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes an element that was never opened: the line with &lt;%1 ...&gt; is lost.</source>
        <translation>&lt;/%1&gt; in Zeile %2 schließt ein Element, das nie geöffnet wurde: Die Zeile mit &lt;%1 ...&gt; ist verloren gegangen.</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in line %1 begins no tag; as text it is written &quot;&amp;lt;&quot;.</source>
        <translation>&quot;&lt;&quot; in Zeile %1 leitet kein Tag ein; als Text schreibt man es &quot;&amp;lt;&quot;.</translation>
    </message>
    <message>
        <source>%1 in line %2 is no tag; what is meant is %3.</source>
        <translation>%1 in Zeile %2 ist kein Tag; gemeint ist %3.</translation>
    </message>
    <message>
        <source>Behind the end of the document, in line %1, there is more text: the rest of an older, longer file?</source>
        <translation>Hinter dem Ende des Dokuments, in Zeile %1, steht weiterer Text: der Rest einer älteren, längeren Datei?</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; in line %1 has to be written &quot;&amp;amp;&quot;.</source>
        <translation>&quot;&amp;&quot; in Zeile %1 muss als &quot;&amp;amp;&quot; geschrieben werden.</translation>
    </message>
    <message>
        <source>Line %1 holds a control character, which XML does not allow.</source>
        <translation>Zeile %1 enthält ein Steuerzeichen, das XML nicht erlaubt.</translation>
    </message>
    <message>
        <source>A quotation mark is missing in a tag in line %1.</source>
        <translation>In einem Tag in Zeile %1 fehlt ein Anführungszeichen.</translation>
    </message>
    <message>
        <source>The value of %1 in line %2 has no quotation marks.</source>
        <translation>Der Wert von %1 in Zeile %2 steht nicht in Anführungszeichen.</translation>
    </message>
</context>
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
<context>
    <name>Quillmont::Utility::Widgets::ProgressWindow</name>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>File %0 of %1: %2</source>
        <translation>Datei %0 von %1: %2</translation>
    </message>
    <message>
        <source>Installing Orbwell</source>
        <translation>Orbwell wird installiert</translation>
    </message>
    <message>
        <source>Uninstalling Orbwell</source>
        <translation>Orbwell wird deinstalliert</translation>
    </message>
</context>
</TS>
