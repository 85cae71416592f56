<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::ViewControllers::ScanController</name>
    <message>
        <source>Quillmont Orbwell have successfully installed Orbwell plugin to %0.</source>
        <translation>Program Quillmont Orbwell pomyślnie zainstalował wtyczkę Orbwell w: %0.</translation>
    </message>
    <message>
        <source>Orbwell plugin is installed in all simulators.</source>
        <translation>Wtyczka Orbwell jest zainstalowana we wszystkich symulatorach.</translation>
    </message>
    <message>
        <source>There are no other simulator found for install Orbwell plugin.</source>
        <translation>Nie znaleziono innych symulatorów, w których można zainstalować wtyczkę Orbwell.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Ustawienia Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Unable to copy &apos;%0&apos; to &apos;%1&apos;. Please check if you have permission to folder &apos;%2&apos;.<byte value="xd"/>
</source>
        <translation>Nie można skopiować pliku „%0” do „%1”. Sprawdź, czy masz uprawnienia do folderu „%2”.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Instalacja zakończona</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Instalacja</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to install your Orbwell plugin to %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Program Quillmont Orbwell nie mógł zainstalować wtyczki Orbwell w symulatorze %0.<byte value="xd"/>
<byte value="xd"/>
Szczegóły znajdują się na poniższej liście:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>Plugins %0</source>
        <translation>Wtyczki: %0</translation>
    </message>
    <message>
        <source>Quillmont Orbwell has %1 plugins on your computer.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%0</source>
        <translation>Program Quillmont Orbwell zmienił wtyczki na tym komputerze (%1).<byte value="xd"/>
<byte value="xd"/>
Szczegóły znajdują się na poniższej liście:<byte value="xd"/>
<byte value="xd"/>
%0</translation>
    </message>
    <message>
        <source>The file &apos;%0&apos; is empty. Quillmont Orbwell installer was not able to change your configuration.</source>
        <translation>Plik „%0” jest pusty. Instalator Quillmont Orbwell nie mógł zmienić konfiguracji.</translation>
    </message>
    <message>
        <source>Unable to write configuration to file &apos;%0&apos;. Please check if you have permission to that file.</source>
        <translation>Nie można zapisać konfiguracji w pliku „%0”. Sprawdź, czy masz uprawnienia do tego pliku.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Odinstalowanie</translation>
    </message>
    <message>
        <source>Quillmont Orbwell for %0 has been uninstalled successfully.</source>
        <translation>Program Quillmont Orbwell dla symulatora %0 został pomyślnie odinstalowany.</translation>
    </message>
    <message>
        <source>Unable to remove file &apos;%0&apos; from %1. Please remove the file manually.<byte value="xd"/>
</source>
        <translation>Nie można usunąć pliku „%0” z symulatora %1. Usuń ten plik ręcznie.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to uninstall your Orbwell plugin from %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Program Quillmont Orbwell nie mógł odinstalować wtyczki Orbwell z symulatora %0.<byte value="xd"/>
<byte value="xd"/>
Szczegóły znajdują się na poniższej liście:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Views::ScannerView</name>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Ustawienia Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Orbwell will automatically detect your simulators and install the plugin in each. Please verify below. To manually scan and install again, press &quot;Scan &amp; Install&quot; below.</source>
        <translation>Orbwell automatycznie wykrywa symulatory i instaluje wtyczkę w każdym z nich. Sprawdź poniższą listę. Aby ręcznie ponowić skanowanie i instalację, naciśnij przycisk „Skanuj &amp; instaluj” poniżej.</translation>
    </message>
    <message>
        <source>Simulators</source>
        <translation>Symulatory</translation>
    </message>
    <message>
        <source>There are no simulators to show. The file flightsims.json beside this program is missing, empty or damaged. Please install Quillmont Orbwell again.</source>
        <translation>Brak symulatorów do wyświetlenia. Plik flightsims.json, który powinien znajdować się w folderze tego programu, nie istnieje, jest pusty lub uszkodzony. Zainstaluj ponownie program Quillmont Orbwell.</translation>
    </message>
    <message>
        <source>Scan &amp;&amp; Install</source>
        <translation>Skanuj &amp;&amp; instaluj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message numerus="yes">
        <source>Scan found %0 flight simulators installed.</source>
        <translation>
            <numerusform>Podczas skanowania znaleziono %0 zainstalowany symulator lotu.</numerusform>
            <numerusform>Podczas skanowania znaleziono %0 zainstalowane symulatory lotu.</numerusform>
            <numerusform>Podczas skanowania znaleziono %0 zainstalowanych symulatorów lotu.</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan found 1 flight simulator installed.</source>
        <translation>Podczas skanowania znaleziono 1 zainstalowany symulator lotu.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.</source>
        <translation>Instalator Quillmont Orbwell nie znalazł żadnego symulatora lotu. Wskaż folder ręcznie.</translation>
    </message>
    <message>
        <source>Scan completed</source>
        <translation>Skanowanie zakończone</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Widgets::AddonListItem</name>
    <message>
        <source>Path not set</source>
        <translation>Nie ustawiono ścieżki</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Folder of %0</source>
        <translation>Folder symulatora %0</translation>
    </message>
    <message>
        <source>Choose the folder of %0</source>
        <translation>Wybierz folder symulatora %0</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Invalid path</source>
        <translation>Nieprawidłowa ścieżka</translation>
    </message>
    <message>
        <source>This path is invalid</source>
        <translation>Ta ścieżka jest nieprawidłowa</translation>
    </message>
    <message>
        <source>This simulator was not found. If you have it, press &quot;...&quot; and choose its folder.</source>
        <translation>Nie znaleziono tego symulatora. Jeśli go masz, naciśnij „...” i wybierz jego folder.</translation>
    </message>
    <message>
        <source>Uninstall Orbwell</source>
        <translation>Odinstaluj Orbwell</translation>
    </message>
    <message>
        <source>Install Orbwell</source>
        <translation>Zainstaluj Orbwell</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>Folder not known</source>
        <translation>Folder nieznany</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Nie znaleziono folderu</translation>
    </message>
    <message>
        <source>Orbwell is installed</source>
        <translation>Orbwell jest zainstalowany</translation>
    </message>
    <message>
        <source>Orbwell is not installed</source>
        <translation>Orbwell nie jest zainstalowany</translation>
    </message>
</context>
</TS>
