<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
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
</TS>
