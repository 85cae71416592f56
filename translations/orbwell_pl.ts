<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::Doctor::Advice</name>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Nadaj sobie uprawnienia do odczytu tego pliku.</translation>
    </message>
    <message>
        <source>Move it away, or make it smaller by hand.</source>
        <translation>Przenieś go w inne miejsce albo zmniejsz ręcznie.</translation>
    </message>
    <message>
        <source>Move it away.</source>
        <translation>Przenieś go w inne miejsce.</translation>
    </message>
    <message>
        <source>Mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Napraw plik ręcznie; do tego czasu nic nie będzie w nim zmieniane, a symulator może nie wczytać żadnego dodatku.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back, or mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Przywróć kopię zapasową z %1 albo napraw plik ręcznie; do tego czasu nic nie będzie w nim zmieniane, a symulator może nie wczytać żadnego dodatku.</translation>
    </message>
    <message>
        <source>Move it away; until then the simulator may load no add-on at all.</source>
        <translation>Przenieś go w inne miejsce; do tego czasu symulator może nie wczytać żadnego dodatku.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back; until then the simulator may load no add-on at all.</source>
        <translation>Przywróć kopię zapasową z %1; do tego czasu symulator może nie wczytać żadnego dodatku.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::CatalogueCheck</name>
    <message>
        <source>It is no JSON: %1. The program sees no simulator.</source>
        <translation>To nie jest JSON: %1. Program nie widzi żadnego symulatora.</translation>
    </message>
    <message>
        <source>It is no array. The program sees no simulator.</source>
        <translation>To nie jest tablica. Program nie widzi żadnego symulatora.</translation>
    </message>
    <message>
        <source>The key is there twice; the last one counts.</source>
        <translation>Klucz występuje dwa razy; liczy się ostatni.</translation>
    </message>
    <message>
        <source>Unknown key; it is ignored.</source>
        <translation>Nieznany klucz; jest pomijany.</translation>
    </message>
    <message>
        <source>Its type is %1, not %2; it counts as missing.</source>
        <translation>Typ to %1, a nie %2; wartość jest traktowana jak brakująca.</translation>
    </message>
    <message>
        <source>The simulator has no name.</source>
        <translation>Symulator nie ma nazwy.</translation>
    </message>
    <message>
        <source>Line %1 has the same name; both share one record and one chosen folder.</source>
        <translation>Wiersz %1 ma tę samą nazwę; oba symulatory mają wspólny wpis w rejestrze instalacji i wspólny wybrany folder.</translation>
    </message>
    <message>
        <source>There are no files; nothing is installed, and it counts as installed.</source>
        <translation>Nie ma plików; nic nie jest instalowane, a wtyczka jest traktowana jak zainstalowana.</translation>
    </message>
    <message>
        <source>The payload has no file %1; it cannot be copied.</source>
        <translation>Wśród dołączonych plików brakuje %1; nie można go skopiować.</translation>
    </message>
    <message>
        <source>There is no destination; it is the simulator&apos;s folder itself.</source>
        <translation>Nie podano miejsca docelowego; jest nim sam folder symulatora.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the simulator&apos;s folder; the file is written there.</source>
        <translation>&quot;..&quot; prowadzi poza folder symulatora i tam zapisywany jest plik.</translation>
    </message>
    <message>
        <source>Another file has the same destination; the later one is copied.</source>
        <translation>Inny plik ma to samo miejsce docelowe; kopiowany jest późniejszy.</translation>
    </message>
    <message>
        <source>It is only read beside a &quot;config&quot; that is null or not empty; it is ignored.</source>
        <translation>Ten klucz jest odczytywany tylko obok &quot;config&quot;, które jest równe null albo niepuste; jest pomijany.</translation>
    </message>
    <message>
        <source>&quot;type&quot; is not 0, so no configuration file is touched.</source>
        <translation>&quot;type&quot; nie jest równe 0, więc żaden plik konfiguracyjny nie jest zmieniany.</translation>
    </message>
    <message>
        <source>There is no path; no file can be edited.</source>
        <translation>Nie podano ścieżki; nie można edytować żadnego pliku.</translation>
    </message>
    <message>
        <source>Without &quot;parent&quot; and &quot;values&quot; no entry is added.</source>
        <translation>Bez &quot;parent&quot; i &quot;values&quot; nie jest dodawany żaden wpis.</translation>
    </message>
    <message>
        <source>This entry installs, but cannot be removed: no pair of &quot;values&quot; is what &quot;remove&quot; looks for.</source>
        <translation>Ten wpis można zainstalować, ale nie można go usunąć: żadna para w &quot;values&quot; nie odpowiada temu, czego szuka &quot;remove&quot;.</translation>
    </message>
    <message>
        <source>Only the child element is removed, and the rest of the entry stays: &quot;delete_parent&quot; is not true.</source>
        <translation>Usuwany jest tylko element podrzędny, a reszta wpisu zostaje: &quot;delete_parent&quot; nie jest równe true.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Wszystko jest w porządku.</translation>
    </message>
    <message>
        <source>It is no whole number; it counts as 0.</source>
        <translation>To nie jest liczba całkowita; wartość jest traktowana jak 0.</translation>
    </message>
    <message>
        <source>There is no such location; the entry itself never finds anything.</source>
        <translation>Nie ma takiej &quot;location&quot;; sam wpis nigdy niczego nie znajduje.</translation>
    </message>
    <message>
        <source>It shares its chosen folder with the name in line %1.</source>
        <translation>Ma wspólny wybrany folder z nazwą z wiersza %1.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the payload.</source>
        <translation>&quot;..&quot; prowadzi poza folder dołączonych plików.</translation>
    </message>
    <message>
        <source>Without &quot;config&quot; no configuration file is touched.</source>
        <translation>Bez &quot;config&quot; żaden plik konfiguracyjny nie jest zmieniany.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the folder of such files.</source>
        <translation>&quot;..&quot; prowadzi poza folder przeznaczony na takie pliki.</translation>
    </message>
    <message>
        <source>XML cannot hold this; the entry is never added.</source>
        <translation>XML nie może tego zawierać; wpis nigdy nie jest dodawany.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::ConfigurationCheck</name>
    <message>
        <source>The simulator has no Proton prefix, so its configuration file is unknown.</source>
        <translation>Symulator nie ma prefiksu Proton, więc jego plik konfiguracyjny jest nieznany.</translation>
    </message>
    <message>
        <source>Start the simulator once from Steam, then install again.</source>
        <translation>Uruchom symulator raz przez Steam, a potem zainstaluj ponownie.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Nadaj sobie uprawnienia do zapisu w tym miejscu.</translation>
    </message>
    <message>
        <source>The configuration file %1 is missing.</source>
        <translation>Brakuje pliku konfiguracyjnego %1.</translation>
    </message>
    <message>
        <source>Uninstall and install again; the file is made anew.</source>
        <translation>Odinstaluj i zainstaluj ponownie; plik zostanie utworzony na nowo.</translation>
    </message>
    <message>
        <source>The configuration file %1 cannot be read: %2.</source>
        <translation>Nie można odczytać pliku konfiguracyjnego %1: %2.</translation>
    </message>
    <message>
        <source>The configuration file %1 is damaged. %2</source>
        <translation>Plik konfiguracyjny %1 jest uszkodzony. %2</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Odinstaluj i zainstaluj ponownie.</translation>
    </message>
    <message>
        <source>The plugin&apos;s files are there, but %1 has no entry for it.</source>
        <translation>Pliki wtyczki są na miejscu, ale w %1 nie ma jej wpisu.</translation>
    </message>
    <message>
        <source>%1 has an entry for the plugin, whose files are not there.</source>
        <translation>W %1 jest wpis wtyczki, ale brakuje jej plików.</translation>
    </message>
    <message>
        <source>Install it, or uninstall it to take the entry out.</source>
        <translation>Zainstaluj wtyczkę albo ją odinstaluj, aby usunąć wpis.</translation>
    </message>
    <message>
        <source>Our entry is in %1 %2 times.</source>
        <translation>Wpis wtyczki występuje w %1 więcej niż raz (liczba wystąpień: %2).</translation>
    </message>
    <message>
        <source>Our entry in %1 is disabled.</source>
        <translation>Wpis wtyczki w %1 jest wyłączony.</translation>
    </message>
    <message>
        <source>Our entry in %1 names the file %2, which is missing.</source>
        <translation>Wpis wtyczki w %1 wskazuje plik %2, którego brakuje.</translation>
    </message>
    <message>
        <source>The configuration file %1 is a web page.</source>
        <translation>Plik konfiguracyjny %1 jest stroną internetową.</translation>
    </message>
    <message>
        <source>The configuration file cannot be made: %1 is a link that leads nowhere.</source>
        <translation>Nie można utworzyć pliku konfiguracyjnego: %1 to dowiązanie, które prowadzi donikąd.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Usuń dowiązanie, a potem zainstaluj.</translation>
    </message>
    <message>
        <source>You may not change the configuration file %1, or not write in its folder.</source>
        <translation>Nie masz uprawnień do zmiany pliku konfiguracyjnego %1 albo do zapisu w jego folderze.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Doctor</name>
    <message>
        <source>The catalogue %1 is no JSON array; --check-catalogue says more.</source>
        <translation>Wykaz symulatorów %1 nie jest tablicą JSON; szczegóły pokaże --check-catalogue.</translation>
    </message>
    <message>
        <source>The catalogue has no simulator %1.</source>
        <translation>W wykazie nie ma symulatora %1.</translation>
    </message>
    <message>
        <source>Try &quot;orbwell-doctor --help&quot;.</source>
        <translation>Spróbuj &quot;orbwell-doctor --help&quot;.</translation>
    </message>
    <message>
        <source>The answer cannot be written: %1.</source>
        <translation>Nie można wypisać wyniku: %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Nie można odczytać wykazu symulatorów %1: %2.</translation>
    </message>
    <message>
        <source>The catalogue %1 is empty.</source>
        <translation>Wykaz symulatorów %1 jest pusty.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Examination</name>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>Folder %1 tego symulatora już nie istnieje.</translation>
    </message>
    <message>
        <source>Choose its folder in the window.</source>
        <translation>Wybierz jego folder w oknie.</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 to plik, a nie folder.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>Zwolnij miejsce na dysku, na którym jest %1.</translation>
    </message>
    <message>
        <source>The disk has room for %1 bytes; what is written there takes %2.</source>
        <translation>Wolne miejsce na dysku w bajtach: %1; potrzebne: %2.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::FilesCheck</name>
    <message>
        <source>The payload lacks %1, so it cannot be installed.</source>
        <translation>Wśród dołączonych plików brakuje %1; nie można go zainstalować.</translation>
    </message>
    <message>
        <source>Install this program again, or complete its &quot;plugins&quot; folder.</source>
        <translation>Zainstaluj ponownie ten program albo uzupełnij jego folder &quot;plugins&quot;.</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Odinstaluj i zainstaluj ponownie.</translation>
    </message>
    <message>
        <source>In the place of %1 is a link that leads nowhere.</source>
        <translation>W miejscu %1 jest dowiązanie, które prowadzi donikąd.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Usuń dowiązanie, a potem zainstaluj.</translation>
    </message>
    <message>
        <source>%1 is no regular file.</source>
        <translation>To nie jest zwykły plik: %1.</translation>
    </message>
    <message>
        <source>Move it away, then install.</source>
        <translation>Przenieś to w inne miejsce, a potem zainstaluj.</translation>
    </message>
    <message>
        <source>Only a part of the plugin is there; %1 is missing.</source>
        <translation>Jest tylko część wtyczki; brakuje: %1.</translation>
    </message>
    <message>
        <source>Install it.</source>
        <translation>Zainstaluj ją.</translation>
    </message>
    <message>
        <source>%1 differs from the file that comes with this program: another version, or damaged.</source>
        <translation>Różnice względem plików dołączonych do tego programu (inna wersja albo uszkodzenie): %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Nie można odczytać: %1.</translation>
    </message>
    <message>
        <source>You may not write in the folder of %1.</source>
        <translation>Nie masz uprawnień do zapisu w folderze przeznaczonym na: %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Nadaj sobie uprawnienia do zapisu w tym miejscu.</translation>
    </message>
    <message>
        <source>You may not read %1, so it cannot be installed.</source>
        <translation>Nie masz uprawnień do odczytu pliku %1, więc nie można go zainstalować.</translation>
    </message>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Nadaj sobie uprawnienia do odczytu tego pliku.</translation>
    </message>
    <message>
        <source>In the place of the folder %1 is a link that leads nowhere.</source>
        <translation>W miejscu folderu %1 jest dowiązanie, które prowadzi donikąd.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder has to be.</source>
        <translation>%1 to plik, a w tym miejscu musi być folder.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Options</name>
    <message>
        <source>%1: a plan is for &quot;install&quot;, &quot;repair&quot; or &quot;uninstall&quot;.</source>
        <translation>%1: plan może dotyczyć &quot;install&quot;, &quot;repair&quot; lub &quot;uninstall&quot;.</translation>
    </message>
    <message>
        <source>--catalogue needs a file.</source>
        <translation>--catalogue wymaga pliku.</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Nieznana opcja %1.</translation>
    </message>
    <message>
        <source>Unknown option %1. Is %2 meant?</source>
        <translation>Nieznana opcja %1. Czy chodzi o %2?</translation>
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
        <translation>Użycie: orbwell-doctor [OPCJA...] [NAZWA...]
Pokazuje, co jest nie tak z symulatorami i wtyczką Orbwell w nich. Niczego nie zmienia.

  --json               raport, plan lub kontrola jako JSON
  --plan[=CO]          co zrobiłoby &quot;install&quot; (domyślnie), &quot;repair&quot; lub &quot;uninstall&quot;
  --catalogue PLIK     inny wykaz symulatorów i folder &quot;plugins&quot; obok, jeśli tam jest
  --check-catalogue    tylko to, co jest nie tak w wykazie symulatorów
  --help, --version

Podane NAZWY ograniczają raport lub plan do tych symulatorów.
Kod wyjścia: 0 wszystko w porządku, 1 coś jest nie tak, 2 nie udało się sprawdzić.
</translation>
    </message>
    <message>
        <source>--check-catalogue takes no names.</source>
        <translation>--check-catalogue nie przyjmuje nazw.</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 i %2 wykluczają się nawzajem.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Plan</name>
    <message>
        <source>No simulator is found, so nothing would change.</source>
        <translation>Nie znaleziono żadnego symulatora, więc nic by się nie zmieniło.</translation>
    </message>
    <message>
        <source>Folder made: %1</source>
        <translation>Folder do utworzenia: %1</translation>
    </message>
    <message>
        <source>Folder removed: %1</source>
        <translation>Folder do usunięcia: %1</translation>
    </message>
    <message>
        <source>Backup made: %1</source>
        <translation>Kopia zapasowa do utworzenia: %1</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problem: %1</translation>
    </message>
    <message>
        <source>%1: install in %2</source>
        <translation>%1: instalacja w %2</translation>
    </message>
    <message>
        <source>%1: repair in %2</source>
        <translation>%1: naprawa w %2</translation>
    </message>
    <message>
        <source>%1: uninstall in %2</source>
        <translation>%1: odinstalowanie z %2</translation>
    </message>
    <message>
        <source>File made: %1</source>
        <translation>Plik do utworzenia: %1</translation>
    </message>
    <message>
        <source>File replaced: %1</source>
        <translation>Plik do zastąpienia: %1</translation>
    </message>
    <message>
        <source>File unchanged: %1</source>
        <translation>Plik bez zmian: %1</translation>
    </message>
    <message>
        <source>File removed: %1</source>
        <translation>Plik do usunięcia: %1</translation>
    </message>
    <message>
        <source>Configuration made: %1</source>
        <translation>Plik konfiguracyjny do utworzenia: %1</translation>
    </message>
    <message>
        <source>Configuration changed: %1</source>
        <translation>Plik konfiguracyjny do zmiany: %1</translation>
    </message>
    <message>
        <source>Configuration unchanged: %1</source>
        <translation>Plik konfiguracyjny bez zmian: %1</translation>
    </message>
    <message>
        <source>Record made: %1</source>
        <translation>Rejestr instalacji do utworzenia: %1</translation>
    </message>
    <message>
        <source>Record changed: %1</source>
        <translation>Rejestr instalacji do zmiany: %1</translation>
    </message>
    <message>
        <source>Record unchanged: %1</source>
        <translation>Rejestr instalacji bez zmian: %1</translation>
    </message>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>Folder %1 tego symulatora już nie istnieje.</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Install Orbwell&quot;</source>
        <translation>Przycisk w oknie: „Zainstaluj Orbwell”</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Uninstall Orbwell&quot;</source>
        <translation>Przycisk w oknie: „Odinstaluj Orbwell”</translation>
    </message>
    <message>
        <source>Button in the window: disabled</source>
        <translation>Przycisk w oknie: nieaktywny</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Reasons</name>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>wiersz %1, kolumna %2: %3</translation>
    </message>
    <message>
        <source>X-Plane&apos;s own list</source>
        <translation>własna lista X-Plane</translation>
    </message>
    <message>
        <source>FlightGear&apos;s launcher</source>
        <translation>launcher FlightGear</translation>
    </message>
    <message>
        <source>a well-known folder</source>
        <translation>typowy folder</translation>
    </message>
    <message>
        <source>UserCfg.opt in Steam&apos;s Proton prefix</source>
        <translation>UserCfg.opt w prefiksie Proton platformy Steam</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>wybrany ręcznie</translation>
    </message>
    <message>
        <source>the catalogue&apos;s file</source>
        <translation>plik z wykazu symulatorów</translation>
    </message>
    <message>
        <source>the catalogue&apos;s folder</source>
        <translation>folder z wykazu symulatorów</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>nie ma takiego folderu</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>to nie jest ścieżka bezwzględna</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>to nie jest folder</translation>
    </message>
    <message>
        <source>no permission to look inside</source>
        <translation>brak uprawnień dostępu do zawartości</translation>
    </message>
    <message>
        <source>no file &quot;version&quot; that begins with a version number</source>
        <translation>nie ma pliku &quot;version&quot;, który zaczyna się od numeru wersji</translation>
    </message>
    <message>
        <source>no defaults.xml or preferences.xml</source>
        <translation>nie ma defaults.xml ani preferences.xml</translation>
    </message>
    <message>
        <source>no InstalledPackagesPath in it</source>
        <translation>nie ma w nim InstalledPackagesPath</translation>
    </message>
    <message>
        <source>its InstalledPackagesPath does not begin with a drive</source>
        <translation>jego InstalledPackagesPath nie zaczyna się od litery dysku</translation>
    </message>
    <message>
        <source>no Community, Official/Steam or Official/OneStore</source>
        <translation>nie ma Community, Official/Steam ani Official/OneStore</translation>
    </message>
    <message>
        <source>no Community, Official2024 or StreamedPackages</source>
        <translation>nie ma Community, Official2024 ani StreamedPackages</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nie można odczytać</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>za duży</translation>
    </message>
    <message>
        <source>too much to read altogether</source>
        <translation>łącznie za dużo do odczytania</translation>
    </message>
    <message>
        <source>no fsx.exe</source>
        <translation>nie ma fsx.exe</translation>
    </message>
    <message>
        <source>no SimObjects</source>
        <translation>nie ma SimObjects</translation>
    </message>
    <message>
        <source>no scenery</source>
        <translation>nie ma scenery</translation>
    </message>
    <message>
        <source>no aircraft</source>
        <translation>nie ma aircraft</translation>
    </message>
    <message>
        <source>no main.mcf or tm.log</source>
        <translation>nie ma main.mcf ani tm.log</translation>
    </message>
    <message>
        <source>it has no Proton prefix</source>
        <translation>nie ma prefiksu Proton</translation>
    </message>
    <message>
        <source>no list of libraries</source>
        <translation>to nie jest lista bibliotek</translation>
    </message>
    <message>
        <source>cut off, or not in Steam&apos;s text format</source>
        <translation>ucięty lub nie w formacie tekstowym Steam</translation>
    </message>
    <message>
        <source>uninstalled (StateFlags %1)</source>
        <translation>odinstalowano (StateFlags %1)</translation>
    </message>
    <message>
        <source>not fully installed (StateFlags %1)</source>
        <translation>nie zainstalowano w pełni (StateFlags %1)</translation>
    </message>
    <message>
        <source>no AppState in it</source>
        <translation>nie ma w nim AppState</translation>
    </message>
    <message>
        <source>it is about another game</source>
        <translation>dotyczy innej gry</translation>
    </message>
    <message>
        <source>installdir is not a plain name</source>
        <translation>installdir nie jest zwykłą nazwą</translation>
    </message>
    <message>
        <source>no Resources/plugins</source>
        <translation>nie ma Resources/plugins</translation>
    </message>
    <message>
        <source>no X-Plane executable</source>
        <translation>nie ma pliku wykonywalnego X-Plane</translation>
    </message>
    <message>
        <source>it is X-Plane %1</source>
        <translation>to jest X-Plane %1</translation>
    </message>
    <message>
        <source>it is taken as %1</source>
        <translation>jest już używany jako %1</translation>
    </message>
    <message>
        <source>Second byte-order mark.</source>
        <translation>Drugi znacznik kolejności bajtów.</translation>
    </message>
    <message>
        <source>Invalid entity name.</source>
        <translation>Nieprawidłowa nazwa encji.</translation>
    </message>
    <message>
        <source>Invalid processing instruction name.</source>
        <translation>Nieprawidłowa nazwa instrukcji przetwarzania.</translation>
    </message>
    <message>
        <source>Invalid XML declaration.</source>
        <translation>Nieprawidłowa deklaracja XML.</translation>
    </message>
    <message>
        <source>Invalid character reference.</source>
        <translation>Nieprawidłowe odwołanie do znaku.</translation>
    </message>
    <message>
        <source>Invalid element name.</source>
        <translation>Nieprawidłowa nazwa elementu.</translation>
    </message>
    <message>
        <source>Invalid attribute name.</source>
        <translation>Nieprawidłowa nazwa atrybutu.</translation>
    </message>
    <message>
        <source>Invalid character in the document type declaration.</source>
        <translation>Nieprawidłowy znak w deklaracji typu dokumentu.</translation>
    </message>
    <message>
        <source>Entities grow to too much text.</source>
        <translation>Po rozwinięciu encji powstaje zbyt długi tekst.</translation>
    </message>
    <message>
        <source>No XML has this character.</source>
        <translation>Ten znak jest niedozwolony w XML.</translation>
    </message>
    <message>
        <source>The root element is not where it should be.</source>
        <translation>Element główny nie jest tam, gdzie powinien.</translation>
    </message>
    <message>
        <source>The entry to change comes out of an entity.</source>
        <translation>Wpis do zmiany pochodzi z encji.</translation>
    </message>
    <message>
        <source>The element to remove comes out of an entity.</source>
        <translation>Element do usunięcia pochodzi z encji.</translation>
    </message>
    <message>
        <source>Undecodable bytes would be read otherwise.</source>
        <translation>Bajty, których nie można zdekodować, byłyby odczytane inaczej.</translation>
    </message>
    <message>
        <source>A value is no text that XML can hold.</source>
        <translation>Wartości nie można zapisać w XML.</translation>
    </message>
    <message>
        <source>The element to change comes out of an entity.</source>
        <translation>Element do zmiany pochodzi z encji.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold an end tag.</source>
        <translation>W kodowaniu pliku nie można zapisać znacznika końcowego.</translation>
    </message>
    <message>
        <source>A name or a value is none that XML can hold.</source>
        <translation>Nazwy lub wartości nie można zapisać w XML.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold a name.</source>
        <translation>W kodowaniu pliku nie można zapisać nazwy.</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>too big</source>
        <translation>za duży</translation>
    </message>
    <message>
        <source>its name is not valid text</source>
        <translation>jego nazwa nie jest poprawnym tekstem</translation>
    </message>
    <message>
        <source>the catalogue&apos;s location</source>
        <translation>&quot;location&quot; z wykazu symulatorów</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>nie ma takiego pliku</translation>
    </message>
    <message>
        <source>no registry on this system</source>
        <translation>w tym systemie nie ma rejestru Windows</translation>
    </message>
    <message>
        <source>looked for on Windows only</source>
        <translation>szukane tylko w systemie Windows</translation>
    </message>
    <message>
        <source>no such &quot;location&quot;</source>
        <translation>nie ma takiej &quot;location&quot;</translation>
    </message>
    <message>
        <source>another one was chosen by hand</source>
        <translation>ręcznie wybrano inny folder</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::RecordCheck</name>
    <message>
        <source>The installation record %1 cannot be read: %2.</source>
        <translation>Nie można odczytać rejestru instalacji %1: %2.</translation>
    </message>
    <message>
        <source>The installation record %1 is damaged; what it said is lost.</source>
        <translation>Rejestr instalacji %1 jest uszkodzony; jego treść przepadła.</translation>
    </message>
    <message>
        <source>Install again; a new record is written then.</source>
        <translation>Zainstaluj ponownie; powstanie wtedy nowy rejestr.</translation>
    </message>
    <message>
        <source>The plugin is there, but not in the installation record.</source>
        <translation>Wtyczka jest na miejscu, ale nie ma jej w rejestrze instalacji.</translation>
    </message>
    <message>
        <source>Press &quot;Scan &amp; Install&quot; in the window; it is recorded then.</source>
        <translation>Naciśnij przycisk „Skanuj &amp; instaluj” w oknie; wtyczka zostanie wtedy wpisana do rejestru.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, but files are missing there.</source>
        <translation>Według rejestru instalacji wtyczka jest w %1, ale brakuje tam plików.</translation>
    </message>
    <message>
        <source>Install it again.</source>
        <translation>Zainstaluj ją ponownie.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, not in %2. Unattended runs work on the first, the window on the second.</source>
        <translation>Według rejestru instalacji wtyczka jest w %1, a nie w %2. Uruchomienia nienadzorowane używają pierwszego folderu, a okno drugiego.</translation>
    </message>
    <message>
        <source>Choose the folder in the window, then install or uninstall there.</source>
        <translation>Wybierz folder w oknie, a potem zainstaluj lub odinstaluj w nim.</translation>
    </message>
    <message>
        <source>The installation record has %1 in %2, which the catalogue no longer knows.</source>
        <translation>W rejestrze instalacji jest %1 w folderze %2, ale w wykazie symulatorów już tego nie ma.</translation>
    </message>
    <message>
        <source>Remove the plugin there by hand, if it is no longer wanted.</source>
        <translation>Usuń stamtąd wtyczkę ręcznie, jeśli nie jest już potrzebna.</translation>
    </message>
    <message>
        <source>Nothing can be recorded: %1 is a link that leads nowhere.</source>
        <translation>Nie można niczego wpisać do rejestru instalacji: %1 to dowiązanie, które prowadzi donikąd.</translation>
    </message>
    <message>
        <source>Delete the link.</source>
        <translation>Usuń dowiązanie.</translation>
    </message>
    <message>
        <source>You may not write the installation record %1.</source>
        <translation>Nie masz uprawnień do zapisu rejestru instalacji %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Nadaj sobie uprawnienia do zapisu w tym miejscu.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Rehearsal</name>
    <message>
        <source>%1 is a folder, and stays.</source>
        <translation>%1 to folder, więc zostaje.</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: a folder, or a link that leads nowhere, is in its place.</source>
        <translation>Nie można skopiować %1 do %2: w tym miejscu jest folder albo dowiązanie, które prowadzi donikąd.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: the payload lacks it. What is in its place goes all the same.</source>
        <translation>Nie można skopiować pliku %1: brakuje go wśród dołączonych plików. To, co jest w jego miejscu, i tak zostanie usunięte.</translation>
    </message>
    <message>
        <source>%1 stays as it is: %2</source>
        <translation>%1 zostaje bez zmian: %2</translation>
    </message>
    <message>
        <source>The record %1 stays as it is: %2</source>
        <translation>Rejestr instalacji %1 zostaje bez zmian: %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: you may not write there, or the folder is missing.</source>
        <translation>Nie można skopiować %1 do %2: nie masz tam uprawnień do zapisu albo brakuje folderu.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: you may not read it. What is in its place goes all the same.</source>
        <translation>Nie można skopiować pliku %1: nie masz uprawnień do odczytu. To, co jest w jego miejscu, i tak zostanie usunięte.</translation>
    </message>
    <message>
        <source>No backup of %1 can be made: you may not write in its folder.</source>
        <translation>Nie można utworzyć kopii zapasowej pliku %1: nie masz uprawnień do zapisu w jego folderze.</translation>
    </message>
    <message>
        <source>%1 cannot be made: you may not write there, or the folder is missing.</source>
        <translation>Nie można utworzyć pliku %1: nie masz tam uprawnień do zapisu albo brakuje folderu.</translation>
    </message>
    <message>
        <source>%1 stays as it is: you may not change it, or not write in its folder.</source>
        <translation>%1 zostaje bez zmian: nie masz uprawnień do zmiany tego pliku albo do zapisu w jego folderze.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::TextReport</name>
    <message>
        <source>The catalogue has no simulator.</source>
        <translation>W wykazie symulatorów nie ma żadnego symulatora.</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problem: %1</translation>
    </message>
    <message>
        <source>%1: not found on this computer</source>
        <translation>%1: nie znaleziono na tym komputerze</translation>
    </message>
    <message>
        <source>%1: the plugin is installed</source>
        <translation>%1: wtyczka jest zainstalowana</translation>
    </message>
    <message>
        <source>%1: only a part of the plugin is installed</source>
        <translation>%1: zainstalowana jest tylko część wtyczki</translation>
    </message>
    <message>
        <source>%1: the plugin is not installed</source>
        <translation>%1: wtyczka nie jest zainstalowana</translation>
    </message>
    <message>
        <source>Folder: %1, known by: %2</source>
        <translation>Folder: %1, źródło: %2</translation>
    </message>
    <message>
        <source>Gave %1 up to %2, which found the same folder</source>
        <translation>Folder %1 przypisano symulatorowi %2, który znalazł ten sam folder</translation>
    </message>
    <message>
        <source>Turned down: %1 (%2): %3</source>
        <translation>Odrzucono: %1 (%2): %3</translation>
    </message>
    <message>
        <source>Files installed: %1</source>
        <translation>Pliki zainstalowane: %1</translation>
    </message>
    <message>
        <source>Files missing: %1</source>
        <translation>Pliki brakujące: %1</translation>
    </message>
    <message>
        <source>Files different: %1</source>
        <translation>Pliki inne niż dołączone: %1</translation>
    </message>
    <message>
        <source>Files unreadable: %1</source>
        <translation>Pliki nieczytelne: %1</translation>
    </message>
    <message>
        <source>Dead links in place of files: %1</source>
        <translation>Dowiązania prowadzące donikąd w miejscu plików: %1</translation>
    </message>
    <message>
        <source>Folders or devices in place of files: %1</source>
        <translation>Foldery lub urządzenia w miejscu plików: %1</translation>
    </message>
    <message>
        <source>Bytes that are not valid in this encoding, from line %1 on</source>
        <translation>Bajty nieprawidłowe w tym kodowaniu, od wiersza %1</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Wiersz %1, kolumna %2: %3</translation>
    </message>
    <message>
        <source>Another program&apos;s entry %1 names a file that is not there: %2</source>
        <translation>Wpis %1 innego programu wskazuje plik, którego nie ma: %2</translation>
    </message>
    <message>
        <source>Configuration: %1, missing</source>
        <translation>Plik konfiguracyjny: %1, brak</translation>
    </message>
    <message>
        <source>Configuration: %1, unreadable</source>
        <translation>Plik konfiguracyjny: %1, nieczytelny</translation>
    </message>
    <message>
        <source>Configuration: %1, damaged, encoding %2</source>
        <translation>Plik konfiguracyjny: %1, uszkodzony, kodowanie %2</translation>
    </message>
    <message>
        <source>Configuration: %1, well formed, encoding %2</source>
        <translation>Plik konfiguracyjny: %1, poprawny, kodowanie %2</translation>
    </message>
    <message>
        <source>No entry of ours</source>
        <translation>Brak wpisu wtyczki</translation>
    </message>
    <message>
        <source>Our entry: there once, disabled, for %1</source>
        <translation>Wpis wtyczki: jeden, wyłączony, plik: %1</translation>
    </message>
    <message>
        <source>Our entry: there once, enabled, for %1</source>
        <translation>Wpis wtyczki: jeden, włączony, plik: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, disabled, for %1</source>
        <translation>Wpisy wtyczki: %2, wyłączone, plik: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, enabled, for %1</source>
        <translation>Wpisy wtyczki: %2, włączone, plik: %1</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, well formed; to put it back:</source>
        <translation>Kopia zapasowa z %1, rozmiar w bajtach: %2, poprawna; aby ją przywrócić:</translation>
    </message>
    <message>
        <source>Older backups: %1</source>
        <translation>Starsze kopie zapasowe: %1</translation>
    </message>
    <message>
        <source>Record: agrees</source>
        <translation>Rejestr instalacji: zgodny</translation>
    </message>
    <message>
        <source>Record: in %1</source>
        <translation>Rejestr instalacji: wtyczka w %1</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Rejestr instalacji</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Wszystko jest w porządku.</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>Co zrobić:</translation>
    </message>
    <message>
        <source>Configuration: no Proton prefix</source>
        <translation>Plik konfiguracyjny: brak prefiksu Proton</translation>
    </message>
    <message>
        <source>In the Proton prefix %1</source>
        <translation>W prefiksie Proton %1</translation>
    </message>
    <message>
        <source>no named file</source>
        <translation>nie podano</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, damaged</source>
        <translation>Kopia zapasowa z %1, rozmiar w bajtach: %2, uszkodzona</translation>
    </message>
    <message>
        <source>Configuration: %1, a link that leads nowhere</source>
        <translation>Plik konfiguracyjny: %1, dowiązanie, które prowadzi donikąd</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::XmlDamage</name>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>To nie jest poprawnie sformułowany XML: %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message>
        <source>The file holds nothing but white space.</source>
        <translation>Plik zawiera tylko białe znaki.</translation>
    </message>
    <message>
        <source>The file holds nothing but zero bytes: the computer stopped while it was written, or its disk is failing.</source>
        <translation>Plik zawiera tylko bajty zerowe: komputer przestał działać podczas zapisu albo jego dysk ulega awarii.</translation>
    </message>
    <message>
        <source>The file is a web page, not XML.</source>
        <translation>Plik jest stroną internetową, a nie plikiem XML.</translation>
    </message>
    <message>
        <source>The file does not begin with a tag, so it is not XML.</source>
        <translation>Plik nie zaczyna się od znacznika, więc nie jest to XML.</translation>
    </message>
    <message>
        <source>Zero bytes begin in line %1: the file was not written to its end.</source>
        <translation>W wierszu %1 zaczynają się bajty zerowe: plik nie został zapisany do końca.</translation>
    </message>
    <message>
        <source>There are two root elements: somebody appended a second document in line %1.</source>
        <translation>Są dwa elementy główne: w wierszu %1 dopisano drugi dokument.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed: the file ends in line %3.</source>
        <translation>Znacznik &lt;%1&gt; w wierszu %2 nie został zamknięty: plik kończy się w wierszu %3.</translation>
    </message>
    <message>
        <source>The file has no element.</source>
        <translation>Plik nie ma żadnego elementu.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a tag, which begins in line %1.</source>
        <translation>Plik kończy się w środku znacznika, który zaczyna się w wierszu %1.</translation>
    </message>
    <message>
        <source>A tag in line %1 has no &quot;&gt;&quot;.</source>
        <translation>Znacznik w wierszu %1 nie ma &quot;&gt;&quot;.</translation>
    </message>
    <message>
        <source>&lt;?xml ...?&gt; in line %1 has to be the very beginning of the file.</source>
        <translation>&lt;?xml ...?&gt; w wierszu %1 musi być na samym początku pliku.</translation>
    </message>
    <message>
        <source>A second document begins in line %1: somebody appended it.</source>
        <translation>W wierszu %1 zaczyna się drugi dokument: został dopisany.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 ends with &lt;/%3&gt; in line %4: letter case counts.</source>
        <translation>Znacznik &lt;%1&gt; w wierszu %2 zamknięto znacznikiem &lt;/%3&gt; w wierszu %4: wielkość liter ma znaczenie.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes nothing: no &lt;%1&gt; is open there.</source>
        <translation>Znacznik &lt;/%1&gt; w wierszu %2 niczego nie zamyka: żaden &lt;%1&gt; nie jest tam otwarty.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed; &lt;/%3&gt; in line %4 came first.</source>
        <translation>Znacznik &lt;%1&gt; w wierszu %2 nie został zamknięty; wcześniej pojawił się &lt;/%3&gt; w wierszu %4.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; comes a second time in line %2: behind the document is the rest of an older, longer file.</source>
        <translation>Znacznik &lt;/%1&gt; pojawia się drugi raz w wierszu %2: za dokumentem jest reszta starszego, dłuższego pliku.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes an element that was never opened: the line with &lt;%1 ...&gt; is lost.</source>
        <translation>Znacznik &lt;/%1&gt; w wierszu %2 zamyka element, który nigdy nie został otwarty: przepadł wiersz z &lt;%1 ...&gt;.</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in line %1 begins no tag; as text it is written &quot;&amp;lt;&quot;.</source>
        <translation>Znak &quot;&lt;&quot; w wierszu %1 nie zaczyna żadnego znacznika; w tekście zapisuje się go jako &quot;&amp;lt;&quot;.</translation>
    </message>
    <message>
        <source>%1 in line %2 is no tag; what is meant is %3.</source>
        <translation>%1 w wierszu %2 nie jest znacznikiem; chodzi o %3.</translation>
    </message>
    <message>
        <source>Behind the end of the document, in line %1, there is more text: the rest of an older, longer file?</source>
        <translation>Za końcem dokumentu, w wierszu %1, jest dalszy tekst: czy to reszta starszego, dłuższego pliku?</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; in line %1 has to be written &quot;&amp;amp;&quot;.</source>
        <translation>Znak &quot;&amp;&quot; w wierszu %1 trzeba zapisać jako &quot;&amp;amp;&quot;.</translation>
    </message>
    <message>
        <source>Line %1 holds a control character, which XML does not allow.</source>
        <translation>Wiersz %1 zawiera znak sterujący, który jest niedozwolony w XML.</translation>
    </message>
    <message>
        <source>A quotation mark is missing in a tag in line %1.</source>
        <translation>W znaczniku w wierszu %1 brakuje cudzysłowu.</translation>
    </message>
    <message>
        <source>The value of %1 in line %2 has no quotation marks.</source>
        <translation>Wartość atrybutu %1 w wierszu %2 nie jest ujęta w cudzysłów.</translation>
    </message>
</context>
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
<context>
    <name>Quillmont::Utility::Widgets::ProgressWindow</name>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>File %0 of %1: %2</source>
        <translation>Plik %0 z %1: %2</translation>
    </message>
    <message>
        <source>Installing Orbwell</source>
        <translation>Instalowanie Orbwell</translation>
    </message>
    <message>
        <source>Uninstalling Orbwell</source>
        <translation>Odinstalowywanie Orbwell</translation>
    </message>
</context>
</TS>
