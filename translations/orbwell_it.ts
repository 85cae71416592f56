<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::Doctor::Advice</name>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Assegnare al proprio utente l’autorizzazione a leggerlo.</translation>
    </message>
    <message>
        <source>Move it away, or make it smaller by hand.</source>
        <translation>Spostarlo altrove o ridurne manualmente le dimensioni.</translation>
    </message>
    <message>
        <source>Move it away.</source>
        <translation>Spostarlo altrove.</translation>
    </message>
    <message>
        <source>Mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Correggere il file manualmente; fino ad allora non vi verrà modificato nulla e il simulatore potrebbe non caricare alcun add-on.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back, or mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Ripristinare il backup del %1 o correggere il file manualmente; fino ad allora non vi verrà modificato nulla e il simulatore potrebbe non caricare alcun add-on.</translation>
    </message>
    <message>
        <source>Move it away; until then the simulator may load no add-on at all.</source>
        <translation>Spostarlo altrove; fino ad allora il simulatore potrebbe non caricare alcun add-on.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back; until then the simulator may load no add-on at all.</source>
        <translation>Ripristinare il backup del %1; fino ad allora il simulatore potrebbe non caricare alcun add-on.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::CatalogueCheck</name>
    <message>
        <source>It is no JSON: %1. The program sees no simulator.</source>
        <translation>Non è JSON: %1. Il programma non vede alcun simulatore.</translation>
    </message>
    <message>
        <source>It is no array. The program sees no simulator.</source>
        <translation>Non è un array. Il programma non vede alcun simulatore.</translation>
    </message>
    <message>
        <source>The key is there twice; the last one counts.</source>
        <translation>La chiave è presente due volte; vale l’ultima.</translation>
    </message>
    <message>
        <source>Unknown key; it is ignored.</source>
        <translation>Chiave sconosciuta; viene ignorata.</translation>
    </message>
    <message>
        <source>Its type is %1, not %2; it counts as missing.</source>
        <translation>Il suo tipo è %1, non %2; viene considerato mancante.</translation>
    </message>
    <message>
        <source>The simulator has no name.</source>
        <translation>Il simulatore non ha un nome.</translation>
    </message>
    <message>
        <source>Line %1 has the same name; both share one record and one chosen folder.</source>
        <translation>Alla riga %1 c’è lo stesso nome; le due voci condividono un unico registro e un’unica cartella scelta.</translation>
    </message>
    <message>
        <source>There are no files; nothing is installed, and it counts as installed.</source>
        <translation>Non ci sono file; non viene installato nulla e la voce è considerata installata.</translation>
    </message>
    <message>
        <source>The payload has no file %1; it cannot be copied.</source>
        <translation>Tra i file forniti manca %1; questo file non può essere copiato.</translation>
    </message>
    <message>
        <source>There is no destination; it is the simulator&apos;s folder itself.</source>
        <translation>Non c’è una destinazione; viene usata la cartella stessa del simulatore.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the simulator&apos;s folder; the file is written there.</source>
        <translation>&quot;..&quot; porta fuori dalla cartella del simulatore; il file viene scritto al di fuori di essa.</translation>
    </message>
    <message>
        <source>Another file has the same destination; the later one is copied.</source>
        <translation>Un altro file ha la stessa destinazione; viene copiato l’ultimo.</translation>
    </message>
    <message>
        <source>It is only read beside a &quot;config&quot; that is null or not empty; it is ignored.</source>
        <translation>Viene letto solo accanto a un &quot;config&quot; che sia null o non vuoto; qui viene ignorato.</translation>
    </message>
    <message>
        <source>&quot;type&quot; is not 0, so no configuration file is touched.</source>
        <translation>&quot;type&quot; non è 0, quindi non viene modificato alcun file di configurazione.</translation>
    </message>
    <message>
        <source>There is no path; no file can be edited.</source>
        <translation>Non c’è un percorso; nessun file può essere modificato.</translation>
    </message>
    <message>
        <source>Without &quot;parent&quot; and &quot;values&quot; no entry is added.</source>
        <translation>Senza &quot;parent&quot; e &quot;values&quot; non viene aggiunta alcuna voce.</translation>
    </message>
    <message>
        <source>This entry installs, but cannot be removed: no pair of &quot;values&quot; is what &quot;remove&quot; looks for.</source>
        <translation>Questa voce viene installata, ma non può essere rimossa: nessuna coppia di &quot;values&quot; corrisponde a ciò che cerca &quot;remove&quot;.</translation>
    </message>
    <message>
        <source>Only the child element is removed, and the rest of the entry stays: &quot;delete_parent&quot; is not true.</source>
        <translation>Viene rimosso solo l’elemento figlio e il resto della voce rimane: &quot;delete_parent&quot; non è true.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>È tutto a posto.</translation>
    </message>
    <message>
        <source>It is no whole number; it counts as 0.</source>
        <translation>Non è un numero intero; viene interpretato come 0.</translation>
    </message>
    <message>
        <source>There is no such location; the entry itself never finds anything.</source>
        <translation>Questa &quot;location&quot; non esiste; la voce da sola non trova mai nulla.</translation>
    </message>
    <message>
        <source>It shares its chosen folder with the name in line %1.</source>
        <translation>Condivide la cartella scelta con il nome della riga %1.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the payload.</source>
        <translation>&quot;..&quot; porta fuori dalla cartella dei file forniti.</translation>
    </message>
    <message>
        <source>Without &quot;config&quot; no configuration file is touched.</source>
        <translation>Senza &quot;config&quot; non viene modificato alcun file di configurazione.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the folder of such files.</source>
        <translation>&quot;..&quot; porta fuori dalla cartella dei file di configurazione.</translation>
    </message>
    <message>
        <source>XML cannot hold this; the entry is never added.</source>
        <translation>Questo non può essere rappresentato in XML; la voce non viene mai aggiunta.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::ConfigurationCheck</name>
    <message>
        <source>The simulator has no Proton prefix, so its configuration file is unknown.</source>
        <translation>Il simulatore non ha un prefisso Proton, quindi il suo file di configurazione non è noto.</translation>
    </message>
    <message>
        <source>Start the simulator once from Steam, then install again.</source>
        <translation>Avviare una volta il simulatore da Steam, poi installare di nuovo.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Assegnare al proprio utente l’autorizzazione a scrivere in quel percorso.</translation>
    </message>
    <message>
        <source>The configuration file %1 is missing.</source>
        <translation>Manca il file di configurazione %1.</translation>
    </message>
    <message>
        <source>Uninstall and install again; the file is made anew.</source>
        <translation>Disinstallare e installare di nuovo; il file verrà ricreato.</translation>
    </message>
    <message>
        <source>The configuration file %1 cannot be read: %2.</source>
        <translation>Impossibile leggere il file di configurazione %1: %2.</translation>
    </message>
    <message>
        <source>The configuration file %1 is damaged. %2</source>
        <translation>Il file di configurazione %1 è danneggiato. %2</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Disinstallare e installare di nuovo.</translation>
    </message>
    <message>
        <source>The plugin&apos;s files are there, but %1 has no entry for it.</source>
        <translation>I file del plugin ci sono, ma in %1 non c’è una voce per il plugin.</translation>
    </message>
    <message>
        <source>%1 has an entry for the plugin, whose files are not there.</source>
        <translation>In %1 c’è una voce per il plugin, ma i suoi file non ci sono.</translation>
    </message>
    <message>
        <source>Install it, or uninstall it to take the entry out.</source>
        <translation>Installare il plugin, oppure disinstallarlo per rimuovere la voce.</translation>
    </message>
    <message>
        <source>Our entry is in %1 %2 times.</source>
        <translation>La voce di Orbwell compare %2 volte in %1.</translation>
    </message>
    <message>
        <source>Our entry in %1 is disabled.</source>
        <translation>La voce di Orbwell in %1 è disattivata.</translation>
    </message>
    <message>
        <source>Our entry in %1 names the file %2, which is missing.</source>
        <translation>La voce di Orbwell in %1 indica il file %2, che non esiste.</translation>
    </message>
    <message>
        <source>The configuration file %1 is a web page.</source>
        <translation>Il file di configurazione %1 è una pagina web.</translation>
    </message>
    <message>
        <source>The configuration file cannot be made: %1 is a link that leads nowhere.</source>
        <translation>Impossibile creare il file di configurazione: %1 è un collegamento interrotto.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Eliminare il collegamento, poi installare.</translation>
    </message>
    <message>
        <source>You may not change the configuration file %1, or not write in its folder.</source>
        <translation>Non si dispone dell’autorizzazione a modificare il file di configurazione %1 o a scrivere nella sua cartella.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Doctor</name>
    <message>
        <source>The catalogue %1 is no JSON array; --check-catalogue says more.</source>
        <translation>Il catalogo %1 non è un array JSON; --check-catalogue fornisce maggiori dettagli.</translation>
    </message>
    <message>
        <source>The catalogue has no simulator %1.</source>
        <translation>Nel catalogo non c’è alcun simulatore chiamato %1.</translation>
    </message>
    <message>
        <source>Try &quot;orbwell-doctor --help&quot;.</source>
        <translation>Provare &quot;orbwell-doctor --help&quot;.</translation>
    </message>
    <message>
        <source>The answer cannot be written: %1.</source>
        <translation>Impossibile scrivere la risposta: %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Impossibile leggere il catalogo %1: %2.</translation>
    </message>
    <message>
        <source>The catalogue %1 is empty.</source>
        <translation>Il catalogo %1 è vuoto.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Examination</name>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>La cartella %1 non esiste più.</translation>
    </message>
    <message>
        <source>Choose its folder in the window.</source>
        <translation>Scegliere la cartella del simulatore nella finestra.</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 è un file, non una cartella.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>Liberare spazio sul disco di %1.</translation>
    </message>
    <message>
        <source>The disk has room for %1 bytes; what is written there takes %2.</source>
        <translation>Il disco ha %1 byte liberi; ciò che vi viene scritto ne richiede %2.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::FilesCheck</name>
    <message>
        <source>The payload lacks %1, so it cannot be installed.</source>
        <translation>Tra i file forniti manca %1; questo file non può essere installato.</translation>
    </message>
    <message>
        <source>Install this program again, or complete its &quot;plugins&quot; folder.</source>
        <translation>Installare di nuovo questo programma, o completare la sua cartella &quot;plugins&quot;.</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Disinstallare e installare di nuovo.</translation>
    </message>
    <message>
        <source>In the place of %1 is a link that leads nowhere.</source>
        <translation>C’è un collegamento interrotto al posto di: %1.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Eliminare il collegamento, poi installare.</translation>
    </message>
    <message>
        <source>%1 is no regular file.</source>
        <translation>Non è un file normale: %1.</translation>
    </message>
    <message>
        <source>Move it away, then install.</source>
        <translation>Spostare altrove ciò che c’è, poi installare.</translation>
    </message>
    <message>
        <source>Only a part of the plugin is there; %1 is missing.</source>
        <translation>È installata solo una parte del plugin; file mancanti: %1.</translation>
    </message>
    <message>
        <source>Install it.</source>
        <translation>Installare il plugin.</translation>
    </message>
    <message>
        <source>%1 differs from the file that comes with this program: another version, or damaged.</source>
        <translation>File diversi da quelli forniti con questo programma (un’altra versione, oppure danneggiati): %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Impossibile leggere: %1.</translation>
    </message>
    <message>
        <source>You may not write in the folder of %1.</source>
        <translation>Non si dispone dell’autorizzazione a scrivere nella cartella di %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Assegnare al proprio utente l’autorizzazione a scrivere in quel percorso.</translation>
    </message>
    <message>
        <source>You may not read %1, so it cannot be installed.</source>
        <translation>Non si dispone dell’autorizzazione a leggere %1; questo file non può essere installato.</translation>
    </message>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Assegnare al proprio utente l’autorizzazione a leggerlo.</translation>
    </message>
    <message>
        <source>In the place of the folder %1 is a link that leads nowhere.</source>
        <translation>Al posto della cartella %1 c’è un collegamento interrotto.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder has to be.</source>
        <translation>%1 è un file, ma al suo posto deve esserci una cartella.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Options</name>
    <message>
        <source>%1: a plan is for &quot;install&quot;, &quot;repair&quot; or &quot;uninstall&quot;.</source>
        <translation>%1: un piano può essere solo per &quot;install&quot;, &quot;repair&quot; o &quot;uninstall&quot;.</translation>
    </message>
    <message>
        <source>--catalogue needs a file.</source>
        <translation>--catalogue richiede un file.</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Opzione sconosciuta: %1.</translation>
    </message>
    <message>
        <source>Unknown option %1. Is %2 meant?</source>
        <translation>Opzione sconosciuta: %1. Si intendeva %2?</translation>
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
        <translation>Uso: orbwell-doctor [OPZIONE...] [NOME...]
Indica che cosa non va nei simulatori e nel plugin Orbwell al loro interno. Non modifica nulla.

  --json               il rapporto, il piano o il controllo in formato JSON
  --plan[=AZIONE]      che cosa farebbe &quot;install&quot; (predefinito), &quot;repair&quot; o &quot;uninstall&quot;
  --catalogue FILE     usa un altro catalogo, e la cartella &quot;plugins&quot; accanto, se c’è
  --check-catalogue    solo ciò che non va nel catalogo
  --help, --version

Con uno o più NOME il rapporto o il piano si limita a quei simulatori.
Stato di uscita: 0 tutto a posto, 1 qualcosa non va, 2 impossibile eseguire il controllo.
</translation>
    </message>
    <message>
        <source>--check-catalogue takes no names.</source>
        <translation>--check-catalogue non accetta nomi.</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 e %2 si escludono a vicenda.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Plan</name>
    <message>
        <source>No simulator is found, so nothing would change.</source>
        <translation>Non è stato trovato alcun simulatore, quindi non cambierebbe nulla.</translation>
    </message>
    <message>
        <source>Folder made: %1</source>
        <translation>Cartella creata: %1</translation>
    </message>
    <message>
        <source>Folder removed: %1</source>
        <translation>Cartella rimossa: %1</translation>
    </message>
    <message>
        <source>Backup made: %1</source>
        <translation>Backup creato: %1</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problema: %1</translation>
    </message>
    <message>
        <source>%1: install in %2</source>
        <translation>%1: installare in %2</translation>
    </message>
    <message>
        <source>%1: repair in %2</source>
        <translation>%1: riparare in %2</translation>
    </message>
    <message>
        <source>%1: uninstall in %2</source>
        <translation>%1: disinstallare da %2</translation>
    </message>
    <message>
        <source>File made: %1</source>
        <translation>File creato: %1</translation>
    </message>
    <message>
        <source>File replaced: %1</source>
        <translation>File sostituito: %1</translation>
    </message>
    <message>
        <source>File unchanged: %1</source>
        <translation>File invariato: %1</translation>
    </message>
    <message>
        <source>File removed: %1</source>
        <translation>File rimosso: %1</translation>
    </message>
    <message>
        <source>Configuration made: %1</source>
        <translation>Configurazione creata: %1</translation>
    </message>
    <message>
        <source>Configuration changed: %1</source>
        <translation>Configurazione modificata: %1</translation>
    </message>
    <message>
        <source>Configuration unchanged: %1</source>
        <translation>Configurazione invariata: %1</translation>
    </message>
    <message>
        <source>Record made: %1</source>
        <translation>Registro creato: %1</translation>
    </message>
    <message>
        <source>Record changed: %1</source>
        <translation>Registro modificato: %1</translation>
    </message>
    <message>
        <source>Record unchanged: %1</source>
        <translation>Registro invariato: %1</translation>
    </message>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>La cartella %1 non esiste più.</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Install Orbwell&quot;</source>
        <translation>Pulsante nella finestra: «Installa Orbwell»</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Uninstall Orbwell&quot;</source>
        <translation>Pulsante nella finestra: «Disinstalla Orbwell»</translation>
    </message>
    <message>
        <source>Button in the window: disabled</source>
        <translation>Pulsante nella finestra: disattivato</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Reasons</name>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>riga %1, colonna %2: %3</translation>
    </message>
    <message>
        <source>X-Plane&apos;s own list</source>
        <translation>l’elenco di X-Plane</translation>
    </message>
    <message>
        <source>FlightGear&apos;s launcher</source>
        <translation>il launcher di FlightGear</translation>
    </message>
    <message>
        <source>a well-known folder</source>
        <translation>una cartella consueta</translation>
    </message>
    <message>
        <source>UserCfg.opt in Steam&apos;s Proton prefix</source>
        <translation>UserCfg.opt nel prefisso Proton di Steam</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>scelta manuale</translation>
    </message>
    <message>
        <source>the catalogue&apos;s file</source>
        <translation>il file del catalogo</translation>
    </message>
    <message>
        <source>the catalogue&apos;s folder</source>
        <translation>la cartella del catalogo</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>cartella inesistente</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>non è un percorso assoluto</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>no permission to look inside</source>
        <translation>nessuna autorizzazione a vederne il contenuto</translation>
    </message>
    <message>
        <source>no file &quot;version&quot; that begins with a version number</source>
        <translation>nessun file &quot;version&quot; che inizi con un numero di versione</translation>
    </message>
    <message>
        <source>no defaults.xml or preferences.xml</source>
        <translation>non ci sono né defaults.xml né preferences.xml</translation>
    </message>
    <message>
        <source>no InstalledPackagesPath in it</source>
        <translation>non contiene InstalledPackagesPath</translation>
    </message>
    <message>
        <source>its InstalledPackagesPath does not begin with a drive</source>
        <translation>il suo InstalledPackagesPath non inizia con una lettera di unità</translation>
    </message>
    <message>
        <source>no Community, Official/Steam or Official/OneStore</source>
        <translation>non ci sono né Community né Official/Steam né Official/OneStore</translation>
    </message>
    <message>
        <source>no Community, Official2024 or StreamedPackages</source>
        <translation>non ci sono né Community né Official2024 né StreamedPackages</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>non può essere letto</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>troppo grande</translation>
    </message>
    <message>
        <source>too much to read altogether</source>
        <translation>troppi dati da leggere in totale</translation>
    </message>
    <message>
        <source>no fsx.exe</source>
        <translation>manca fsx.exe</translation>
    </message>
    <message>
        <source>no SimObjects</source>
        <translation>manca SimObjects</translation>
    </message>
    <message>
        <source>no scenery</source>
        <translation>manca scenery</translation>
    </message>
    <message>
        <source>no aircraft</source>
        <translation>manca aircraft</translation>
    </message>
    <message>
        <source>no main.mcf or tm.log</source>
        <translation>non ci sono né main.mcf né tm.log</translation>
    </message>
    <message>
        <source>it has no Proton prefix</source>
        <translation>non ha un prefisso Proton</translation>
    </message>
    <message>
        <source>no list of libraries</source>
        <translation>non è un elenco di librerie</translation>
    </message>
    <message>
        <source>cut off, or not in Steam&apos;s text format</source>
        <translation>troncato, o non nel formato di testo di Steam</translation>
    </message>
    <message>
        <source>uninstalled (StateFlags %1)</source>
        <translation>disinstallato (StateFlags %1)</translation>
    </message>
    <message>
        <source>not fully installed (StateFlags %1)</source>
        <translation>non completamente installato (StateFlags %1)</translation>
    </message>
    <message>
        <source>no AppState in it</source>
        <translation>non contiene AppState</translation>
    </message>
    <message>
        <source>it is about another game</source>
        <translation>riguarda un altro gioco</translation>
    </message>
    <message>
        <source>installdir is not a plain name</source>
        <translation>installdir non è un nome semplice</translation>
    </message>
    <message>
        <source>no Resources/plugins</source>
        <translation>manca Resources/plugins</translation>
    </message>
    <message>
        <source>no X-Plane executable</source>
        <translation>manca l’eseguibile di X-Plane</translation>
    </message>
    <message>
        <source>it is X-Plane %1</source>
        <translation>è X-Plane %1</translation>
    </message>
    <message>
        <source>it is taken as %1</source>
        <translation>è già assegnata a %1</translation>
    </message>
    <message>
        <source>Second byte-order mark.</source>
        <translation>Secondo byte order mark.</translation>
    </message>
    <message>
        <source>Invalid entity name.</source>
        <translation>Nome di entità non valido.</translation>
    </message>
    <message>
        <source>Invalid processing instruction name.</source>
        <translation>Nome di istruzione di elaborazione non valido.</translation>
    </message>
    <message>
        <source>Invalid XML declaration.</source>
        <translation>Dichiarazione XML non valida.</translation>
    </message>
    <message>
        <source>Invalid character reference.</source>
        <translation>Riferimento a carattere non valido.</translation>
    </message>
    <message>
        <source>Invalid element name.</source>
        <translation>Nome di elemento non valido.</translation>
    </message>
    <message>
        <source>Invalid attribute name.</source>
        <translation>Nome di attributo non valido.</translation>
    </message>
    <message>
        <source>Invalid character in the document type declaration.</source>
        <translation>Carattere non valido nella dichiarazione del tipo di documento.</translation>
    </message>
    <message>
        <source>Entities grow to too much text.</source>
        <translation>Le entità generano troppo testo.</translation>
    </message>
    <message>
        <source>No XML has this character.</source>
        <translation>XML non ammette questo carattere.</translation>
    </message>
    <message>
        <source>The root element is not where it should be.</source>
        <translation>L’elemento radice non è dove dovrebbe essere.</translation>
    </message>
    <message>
        <source>The entry to change comes out of an entity.</source>
        <translation>La voce da modificare proviene da un’entità.</translation>
    </message>
    <message>
        <source>The element to remove comes out of an entity.</source>
        <translation>L’elemento da rimuovere proviene da un’entità.</translation>
    </message>
    <message>
        <source>Undecodable bytes would be read otherwise.</source>
        <translation>I byte non decodificabili verrebbero letti in altro modo.</translation>
    </message>
    <message>
        <source>A value is no text that XML can hold.</source>
        <translation>Il testo di un valore non può essere rappresentato in XML.</translation>
    </message>
    <message>
        <source>The element to change comes out of an entity.</source>
        <translation>L’elemento da modificare proviene da un’entità.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold an end tag.</source>
        <translation>La codifica del file non può rappresentare un tag di chiusura.</translation>
    </message>
    <message>
        <source>A name or a value is none that XML can hold.</source>
        <translation>Un nome o un valore non può essere rappresentato in XML.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold a name.</source>
        <translation>La codifica del file non può rappresentare un nome.</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>too big</source>
        <translation>troppo grande</translation>
    </message>
    <message>
        <source>its name is not valid text</source>
        <translation>il suo nome non è un testo valido</translation>
    </message>
    <message>
        <source>the catalogue&apos;s location</source>
        <translation>la &quot;location&quot; del catalogo</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>file inesistente</translation>
    </message>
    <message>
        <source>no registry on this system</source>
        <translation>nessun registro di sistema su questo computer</translation>
    </message>
    <message>
        <source>looked for on Windows only</source>
        <translation>cercato solo su Windows</translation>
    </message>
    <message>
        <source>no such &quot;location&quot;</source>
        <translation>questa &quot;location&quot; non esiste</translation>
    </message>
    <message>
        <source>another one was chosen by hand</source>
        <translation>ne è stata scelta un’altra manualmente</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::RecordCheck</name>
    <message>
        <source>The installation record %1 cannot be read: %2.</source>
        <translation>Impossibile leggere il registro di installazione %1: %2.</translation>
    </message>
    <message>
        <source>The installation record %1 is damaged; what it said is lost.</source>
        <translation>Il registro di installazione %1 è danneggiato; il suo contenuto è andato perso.</translation>
    </message>
    <message>
        <source>Install again; a new record is written then.</source>
        <translation>Installare di nuovo; verrà scritto un nuovo registro.</translation>
    </message>
    <message>
        <source>The plugin is there, but not in the installation record.</source>
        <translation>Il plugin è installato, ma non risulta nel registro di installazione.</translation>
    </message>
    <message>
        <source>Press &quot;Scan &amp; Install&quot; in the window; it is recorded then.</source>
        <translation>Premere «Cerca &amp; installa» nella finestra; così verrà registrato.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, but files are missing there.</source>
        <translation>Secondo il registro di installazione il plugin è in %1, ma lì mancano dei file.</translation>
    </message>
    <message>
        <source>Install it again.</source>
        <translation>Installarlo di nuovo.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, not in %2. Unattended runs work on the first, the window on the second.</source>
        <translation>Secondo il registro di installazione il plugin è in %1, non in %2. Le esecuzioni automatiche usano la prima cartella, la finestra la seconda.</translation>
    </message>
    <message>
        <source>Choose the folder in the window, then install or uninstall there.</source>
        <translation>Scegliere la cartella nella finestra, poi installare o disinstallare lì.</translation>
    </message>
    <message>
        <source>The installation record has %1 in %2, which the catalogue no longer knows.</source>
        <translation>Il registro di installazione contiene %1 in %2, ma questo simulatore non è più nel catalogo.</translation>
    </message>
    <message>
        <source>Remove the plugin there by hand, if it is no longer wanted.</source>
        <translation>Rimuovere manualmente il plugin da lì, se non serve più.</translation>
    </message>
    <message>
        <source>Nothing can be recorded: %1 is a link that leads nowhere.</source>
        <translation>Impossibile annotare qualcosa nel registro di installazione: %1 è un collegamento interrotto.</translation>
    </message>
    <message>
        <source>Delete the link.</source>
        <translation>Eliminare il collegamento.</translation>
    </message>
    <message>
        <source>You may not write the installation record %1.</source>
        <translation>Non si dispone dell’autorizzazione a scrivere nel registro di installazione %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Assegnare al proprio utente l’autorizzazione a scrivere in quel percorso.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Rehearsal</name>
    <message>
        <source>%1 is a folder, and stays.</source>
        <translation>%1 è una cartella e non viene rimossa.</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: a folder, or a link that leads nowhere, is in its place.</source>
        <translation>Impossibile copiare %1 in %2: quel posto è occupato da una cartella o da un collegamento interrotto.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: the payload lacks it. What is in its place goes all the same.</source>
        <translation>Impossibile copiare %1: manca tra i file forniti. Ciò che si trova nella destinazione viene rimosso comunque.</translation>
    </message>
    <message>
        <source>%1 stays as it is: %2</source>
        <translation>%1 rimane com’è: %2</translation>
    </message>
    <message>
        <source>The record %1 stays as it is: %2</source>
        <translation>Il registro %1 rimane com’è: %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: you may not write there, or the folder is missing.</source>
        <translation>Impossibile copiare %1 in %2: non si dispone dell’autorizzazione a scrivere lì, o manca la cartella.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: you may not read it. What is in its place goes all the same.</source>
        <translation>Impossibile copiare %1: non si dispone dell’autorizzazione a leggerlo. Ciò che si trova nella destinazione viene rimosso comunque.</translation>
    </message>
    <message>
        <source>No backup of %1 can be made: you may not write in its folder.</source>
        <translation>Impossibile creare un backup di %1: non si dispone dell’autorizzazione a scrivere nella sua cartella.</translation>
    </message>
    <message>
        <source>%1 cannot be made: you may not write there, or the folder is missing.</source>
        <translation>Impossibile creare %1: non si dispone dell’autorizzazione a scrivere lì, o manca la cartella.</translation>
    </message>
    <message>
        <source>%1 stays as it is: you may not change it, or not write in its folder.</source>
        <translation>%1 rimane com’è: non si dispone dell’autorizzazione a modificarlo o a scrivere nella sua cartella.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::TextReport</name>
    <message>
        <source>The catalogue has no simulator.</source>
        <translation>Il catalogo non contiene alcun simulatore.</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problema: %1</translation>
    </message>
    <message>
        <source>%1: not found on this computer</source>
        <translation>%1: non trovato su questo computer</translation>
    </message>
    <message>
        <source>%1: the plugin is installed</source>
        <translation>%1: il plugin è installato</translation>
    </message>
    <message>
        <source>%1: only a part of the plugin is installed</source>
        <translation>%1: è installata solo una parte del plugin</translation>
    </message>
    <message>
        <source>%1: the plugin is not installed</source>
        <translation>%1: il plugin non è installato</translation>
    </message>
    <message>
        <source>Folder: %1, known by: %2</source>
        <translation>Cartella: %1, origine: %2</translation>
    </message>
    <message>
        <source>Gave %1 up to %2, which found the same folder</source>
        <translation>Ha ceduto %1 a %2, che ha trovato la stessa cartella</translation>
    </message>
    <message>
        <source>Turned down: %1 (%2): %3</source>
        <translation>Scartato: %1 (%2): %3</translation>
    </message>
    <message>
        <source>Files installed: %1</source>
        <translation>File installati: %1</translation>
    </message>
    <message>
        <source>Files missing: %1</source>
        <translation>File mancanti: %1</translation>
    </message>
    <message>
        <source>Files different: %1</source>
        <translation>File diversi: %1</translation>
    </message>
    <message>
        <source>Files unreadable: %1</source>
        <translation>File illeggibili: %1</translation>
    </message>
    <message>
        <source>Dead links in place of files: %1</source>
        <translation>Collegamenti interrotti al posto di file: %1</translation>
    </message>
    <message>
        <source>Folders or devices in place of files: %1</source>
        <translation>Cartelle o dispositivi al posto di file: %1</translation>
    </message>
    <message>
        <source>Bytes that are not valid in this encoding, from line %1 on</source>
        <translation>Byte non validi in questa codifica, dalla riga %1</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Riga %1, colonna %2: %3</translation>
    </message>
    <message>
        <source>Another program&apos;s entry %1 names a file that is not there: %2</source>
        <translation>La voce %1 di un altro programma indica un file che non esiste: %2</translation>
    </message>
    <message>
        <source>Configuration: %1, missing</source>
        <translation>Configurazione: %1, manca</translation>
    </message>
    <message>
        <source>Configuration: %1, unreadable</source>
        <translation>Configurazione: %1, illeggibile</translation>
    </message>
    <message>
        <source>Configuration: %1, damaged, encoding %2</source>
        <translation>Configurazione: %1, danneggiata, codifica %2</translation>
    </message>
    <message>
        <source>Configuration: %1, well formed, encoding %2</source>
        <translation>Configurazione: %1, ben formata, codifica %2</translation>
    </message>
    <message>
        <source>No entry of ours</source>
        <translation>Nessuna voce di Orbwell</translation>
    </message>
    <message>
        <source>Our entry: there once, disabled, for %1</source>
        <translation>Voce di Orbwell: presente una volta, disattivata, file: %1</translation>
    </message>
    <message>
        <source>Our entry: there once, enabled, for %1</source>
        <translation>Voce di Orbwell: presente una volta, attivata, file: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, disabled, for %1</source>
        <translation>Voce di Orbwell: presente %2 volte, disattivata, file: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, enabled, for %1</source>
        <translation>Voce di Orbwell: presente %2 volte, attivata, file: %1</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, well formed; to put it back:</source>
        <translation>Backup del %1, %2 byte, ben formato; per ripristinarlo:</translation>
    </message>
    <message>
        <source>Older backups: %1</source>
        <translation>Backup precedenti: %1</translation>
    </message>
    <message>
        <source>Record: agrees</source>
        <translation>Registro: concorda</translation>
    </message>
    <message>
        <source>Record: in %1</source>
        <translation>Registro: in %1</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>È tutto a posto.</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>Che cosa fare:</translation>
    </message>
    <message>
        <source>Configuration: no Proton prefix</source>
        <translation>Configurazione: nessun prefisso Proton</translation>
    </message>
    <message>
        <source>In the Proton prefix %1</source>
        <translation>Nel prefisso Proton %1</translation>
    </message>
    <message>
        <source>no named file</source>
        <translation>non indicato</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, damaged</source>
        <translation>Backup del %1, %2 byte, danneggiato</translation>
    </message>
    <message>
        <source>Configuration: %1, a link that leads nowhere</source>
        <translation>Configurazione: %1, un collegamento interrotto</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::XmlDamage</name>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>Non è XML ben formato: %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message>
        <source>The file holds nothing but white space.</source>
        <translation>Il file contiene soltanto spazi vuoti.</translation>
    </message>
    <message>
        <source>The file holds nothing but zero bytes: the computer stopped while it was written, or its disk is failing.</source>
        <translation>Il file contiene soltanto byte nulli: il computer si è fermato durante la scrittura, o il suo disco si sta guastando.</translation>
    </message>
    <message>
        <source>The file is a web page, not XML.</source>
        <translation>Il file è una pagina web, non XML.</translation>
    </message>
    <message>
        <source>The file does not begin with a tag, so it is not XML.</source>
        <translation>Il file non inizia con un tag, quindi non è XML.</translation>
    </message>
    <message>
        <source>Zero bytes begin in line %1: the file was not written to its end.</source>
        <translation>Alla riga %1 iniziano byte nulli: il file non è stato scritto fino in fondo.</translation>
    </message>
    <message>
        <source>There are two root elements: somebody appended a second document in line %1.</source>
        <translation>Ci sono due elementi radice: qualcuno ha aggiunto un secondo documento alla riga %1.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed: the file ends in line %3.</source>
        <translation>&lt;%1&gt; alla riga %2 non viene mai chiuso: il file finisce alla riga %3.</translation>
    </message>
    <message>
        <source>The file has no element.</source>
        <translation>Il file non ha alcun elemento.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a tag, which begins in line %1.</source>
        <translation>Il file finisce nel mezzo di un tag, che inizia alla riga %1.</translation>
    </message>
    <message>
        <source>A tag in line %1 has no &quot;&gt;&quot;.</source>
        <translation>A un tag della riga %1 manca &quot;&gt;&quot;.</translation>
    </message>
    <message>
        <source>&lt;?xml ...?&gt; in line %1 has to be the very beginning of the file.</source>
        <translation>&lt;?xml ...?&gt; alla riga %1 deve trovarsi proprio all’inizio del file.</translation>
    </message>
    <message>
        <source>A second document begins in line %1: somebody appended it.</source>
        <translation>Alla riga %1 inizia un secondo documento: qualcuno lo ha aggiunto.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 ends with &lt;/%3&gt; in line %4: letter case counts.</source>
        <translation>&lt;%1&gt; alla riga %2 finisce con &lt;/%3&gt; alla riga %4: si distingue tra maiuscole e minuscole.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes nothing: no &lt;%1&gt; is open there.</source>
        <translation>&lt;/%1&gt; alla riga %2 non chiude nulla: lì non è aperto alcun &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed; &lt;/%3&gt; in line %4 came first.</source>
        <translation>&lt;%1&gt; alla riga %2 non viene mai chiuso; prima compare &lt;/%3&gt; alla riga %4.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; comes a second time in line %2: behind the document is the rest of an older, longer file.</source>
        <translation>&lt;/%1&gt; compare una seconda volta alla riga %2: dopo il documento c’è il resto di un file precedente più lungo.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes an element that was never opened: the line with &lt;%1 ...&gt; is lost.</source>
        <translation>&lt;/%1&gt; alla riga %2 chiude un elemento mai aperto: la riga con &lt;%1 ...&gt; è andata perduta.</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in line %1 begins no tag; as text it is written &quot;&amp;lt;&quot;.</source>
        <translation>&quot;&lt;&quot; alla riga %1 non inizia alcun tag; come testo si scrive &quot;&amp;lt;&quot;.</translation>
    </message>
    <message>
        <source>%1 in line %2 is no tag; what is meant is %3.</source>
        <translation>%1 alla riga %2 non è un tag; dovrebbe essere %3.</translation>
    </message>
    <message>
        <source>Behind the end of the document, in line %1, there is more text: the rest of an older, longer file?</source>
        <translation>Dopo la fine del documento, alla riga %1, c’è altro testo: il resto di un file precedente più lungo?</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; in line %1 has to be written &quot;&amp;amp;&quot;.</source>
        <translation>&quot;&amp;&quot; alla riga %1 si deve scrivere &quot;&amp;amp;&quot;.</translation>
    </message>
    <message>
        <source>Line %1 holds a control character, which XML does not allow.</source>
        <translation>La riga %1 contiene un carattere di controllo, che XML non ammette.</translation>
    </message>
    <message>
        <source>A quotation mark is missing in a tag in line %1.</source>
        <translation>In un tag della riga %1 manca una virgoletta.</translation>
    </message>
    <message>
        <source>The value of %1 in line %2 has no quotation marks.</source>
        <translation>Il valore di %1 alla riga %2 non è tra virgolette.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::ViewControllers::ScanController</name>
    <message>
        <source>Quillmont Orbwell have successfully installed Orbwell plugin to %0.</source>
        <translation>Quillmont Orbwell ha installato correttamente il plugin Orbwell in %0.</translation>
    </message>
    <message>
        <source>Orbwell plugin is installed in all simulators.</source>
        <translation>Il plugin Orbwell è installato in tutti i simulatori.</translation>
    </message>
    <message>
        <source>There are no other simulator found for install Orbwell plugin.</source>
        <translation>Non è stato trovato nessun altro simulatore in cui installare il plugin Orbwell.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Impostazioni di Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Unable to copy &apos;%0&apos; to &apos;%1&apos;. Please check if you have permission to folder &apos;%2&apos;.<byte value="xd"/>
</source>
        <translation>Impossibile copiare «%0» in «%1». Verificare di disporre delle autorizzazioni per la cartella «%2».<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Installazione completata</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Installazione</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to install your Orbwell plugin to %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Quillmont Orbwell non è riuscito a installare il plugin Orbwell in %0.<byte value="xd"/>
<byte value="xd"/>
Per i dettagli, vedere l’elenco seguente:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>Plugins %0</source>
        <translation>Plugin: %0</translation>
    </message>
    <message>
        <source>Quillmont Orbwell has %1 plugins on your computer.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%0</source>
        <translation>Quillmont Orbwell ha modificato dei plugin sul computer (%1).<byte value="xd"/>
<byte value="xd"/>
Per i dettagli, vedere l’elenco seguente:<byte value="xd"/>
<byte value="xd"/>
%0</translation>
    </message>
    <message>
        <source>The file &apos;%0&apos; is empty. Quillmont Orbwell installer was not able to change your configuration.</source>
        <translation>Il file «%0» è vuoto. Il programma di installazione di Quillmont Orbwell non è riuscito a modificare la configurazione.</translation>
    </message>
    <message>
        <source>Unable to write configuration to file &apos;%0&apos;. Please check if you have permission to that file.</source>
        <translation>Impossibile scrivere la configurazione nel file «%0». Verificare di disporre delle autorizzazioni per tale file.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Disinstallazione</translation>
    </message>
    <message>
        <source>Quillmont Orbwell for %0 has been uninstalled successfully.</source>
        <translation>Quillmont Orbwell per %0 è stato disinstallato correttamente.</translation>
    </message>
    <message>
        <source>Unable to remove file &apos;%0&apos; from %1. Please remove the file manually.<byte value="xd"/>
</source>
        <translation>Impossibile rimuovere il file «%0» da %1. Rimuovere il file manualmente.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to uninstall your Orbwell plugin from %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Quillmont Orbwell non è riuscito a disinstallare il plugin Orbwell da %0.<byte value="xd"/>
<byte value="xd"/>
Per i dettagli, vedere l’elenco seguente:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Views::ScannerView</name>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Impostazioni di Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Orbwell will automatically detect your simulators and install the plugin in each. Please verify below. To manually scan and install again, press &quot;Scan &amp; Install&quot; below.</source>
        <translation>Orbwell rileva automaticamente i simulatori e installa il plugin in ciascuno di essi. Verificare il risultato qui sotto. Per ripetere manualmente la ricerca e l’installazione, premere «Cerca &amp; installa» qui sotto.</translation>
    </message>
    <message>
        <source>Simulators</source>
        <translation>Simulatori</translation>
    </message>
    <message>
        <source>There are no simulators to show. The file flightsims.json beside this program is missing, empty or damaged. Please install Quillmont Orbwell again.</source>
        <translation>Nessun simulatore da visualizzare. Il file flightsims.json nella cartella di questo programma manca, è vuoto o è danneggiato. Installare di nuovo Quillmont Orbwell.</translation>
    </message>
    <message>
        <source>Scan &amp;&amp; Install</source>
        <translation>Cerca &amp;&amp; installa</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message numerus="yes">
        <source>Scan found %0 flight simulators installed.</source>
        <translation>
            <numerusform>La ricerca ha trovato %0 simulatore di volo installato.</numerusform>
            <numerusform>La ricerca ha trovato %0 simulatori di volo installati.</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan found 1 flight simulator installed.</source>
        <translation>La ricerca ha trovato 1 simulatore di volo installato.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.</source>
        <translation>Il programma di installazione di Quillmont Orbwell non trova alcun simulatore di volo. Indicare la cartella manualmente.</translation>
    </message>
    <message>
        <source>Scan completed</source>
        <translation>Ricerca completata</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Widgets::AddonListItem</name>
    <message>
        <source>Path not set</source>
        <translation>Percorso non impostato</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Folder of %0</source>
        <translation>Cartella di %0</translation>
    </message>
    <message>
        <source>Choose the folder of %0</source>
        <translation>Scegli la cartella di %0</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Invalid path</source>
        <translation>Percorso non valido</translation>
    </message>
    <message>
        <source>This path is invalid</source>
        <translation>Questo percorso non è valido</translation>
    </message>
    <message>
        <source>This simulator was not found. If you have it, press &quot;...&quot; and choose its folder.</source>
        <translation>Questo simulatore non è stato trovato. Se è presente sul computer, premere «...» e scegliere la sua cartella.</translation>
    </message>
    <message>
        <source>Uninstall Orbwell</source>
        <translation>Disinstalla Orbwell</translation>
    </message>
    <message>
        <source>Install Orbwell</source>
        <translation>Installa Orbwell</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>Folder not known</source>
        <translation>Cartella sconosciuta</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Cartella non trovata</translation>
    </message>
    <message>
        <source>Orbwell is installed</source>
        <translation>Orbwell è installato</translation>
    </message>
    <message>
        <source>Orbwell is not installed</source>
        <translation>Orbwell non è installato</translation>
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
        <translation>File %0 di %1: %2</translation>
    </message>
    <message>
        <source>Installing Orbwell</source>
        <translation>Installazione di Orbwell</translation>
    </message>
    <message>
        <source>Uninstalling Orbwell</source>
        <translation>Disinstallazione di Orbwell</translation>
    </message>
</context>
</TS>
