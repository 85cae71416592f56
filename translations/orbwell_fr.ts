<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::ViewControllers::ScanController</name>
    <message>
        <source>Quillmont Orbwell have successfully installed Orbwell plugin to %0.</source>
        <translation>Quillmont Orbwell a installé avec succès le plugin Orbwell dans %0.</translation>
    </message>
    <message>
        <source>Orbwell plugin is installed in all simulators.</source>
        <translation>Le plugin Orbwell est installé dans tous les simulateurs.</translation>
    </message>
    <message>
        <source>There are no other simulator found for install Orbwell plugin.</source>
        <translation>Aucun autre simulateur où installer le plugin Orbwell n’a été trouvé.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Paramètres de Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Unable to copy &apos;%0&apos; to &apos;%1&apos;. Please check if you have permission to folder &apos;%2&apos;.<byte value="xd"/>
</source>
        <translation>Impossible de copier «&#xa0;%0&#xa0;» vers «&#xa0;%1&#xa0;». Veuillez vérifier que vous disposez des droits d’accès au dossier «&#xa0;%2&#xa0;».<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Installation terminée</translation>
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
        <translation>Quillmont Orbwell n’a pas pu installer le plugin Orbwell dans %0.<byte value="xd"/>
<byte value="xd"/>
Pour plus de détails, consultez la liste ci-dessous&#xa0;:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0&#xa0;: %1</translation>
    </message>
    <message>
        <source>Plugins %0</source>
        <translation>Plugins&#xa0;: %0</translation>
    </message>
    <message>
        <source>Quillmont Orbwell has %1 plugins on your computer.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%0</source>
        <translation>Quillmont Orbwell a modifié des plugins sur votre ordinateur (%1).<byte value="xd"/>
<byte value="xd"/>
Pour plus de détails, consultez la liste ci-dessous&#xa0;:<byte value="xd"/>
<byte value="xd"/>
%0</translation>
    </message>
    <message>
        <source>The file &apos;%0&apos; is empty. Quillmont Orbwell installer was not able to change your configuration.</source>
        <translation>Le fichier «&#xa0;%0&#xa0;» est vide. Le programme d’installation de Quillmont Orbwell n’a pas pu modifier votre configuration.</translation>
    </message>
    <message>
        <source>Unable to write configuration to file &apos;%0&apos;. Please check if you have permission to that file.</source>
        <translation>Impossible d’écrire la configuration dans le fichier «&#xa0;%0&#xa0;». Veuillez vérifier que vous disposez des droits d’accès à ce fichier.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Désinstallation</translation>
    </message>
    <message>
        <source>Quillmont Orbwell for %0 has been uninstalled successfully.</source>
        <translation>Quillmont Orbwell pour %0 a été désinstallé avec succès.</translation>
    </message>
    <message>
        <source>Unable to remove file &apos;%0&apos; from %1. Please remove the file manually.<byte value="xd"/>
</source>
        <translation>Impossible de supprimer le fichier «&#xa0;%0&#xa0;» dans %1. Veuillez supprimer ce fichier manuellement.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to uninstall your Orbwell plugin from %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Quillmont Orbwell n’a pas pu désinstaller le plugin Orbwell du simulateur %0.<byte value="xd"/>
<byte value="xd"/>
Pour plus de détails, consultez la liste ci-dessous&#xa0;:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Views::ScannerView</name>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Paramètres de Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Orbwell will automatically detect your simulators and install the plugin in each. Please verify below. To manually scan and install again, press &quot;Scan &amp; Install&quot; below.</source>
        <translation>Orbwell détecte automatiquement vos simulateurs et installe le plugin dans chacun d’eux. Veuillez vérifier le résultat ci-dessous. Pour relancer manuellement la recherche et l’installation, cliquez sur «&#xa0;Rechercher &amp; installer&#xa0;» ci-dessous.</translation>
    </message>
    <message>
        <source>Simulators</source>
        <translation>Simulateurs</translation>
    </message>
    <message>
        <source>There are no simulators to show. The file flightsims.json beside this program is missing, empty or damaged. Please install Quillmont Orbwell again.</source>
        <translation>Aucun simulateur à afficher. Le fichier flightsims.json du dossier de ce programme est manquant, vide ou endommagé. Veuillez réinstaller Quillmont Orbwell.</translation>
    </message>
    <message>
        <source>Scan &amp;&amp; Install</source>
        <translation>Rechercher &amp;&amp; installer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message numerus="yes">
        <source>Scan found %0 flight simulators installed.</source>
        <translation>
            <numerusform>La recherche a trouvé %0 simulateur de vol installé.</numerusform>
            <numerusform>La recherche a trouvé %0 simulateurs de vol installés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan found 1 flight simulator installed.</source>
        <translation>La recherche a trouvé 1 simulateur de vol installé.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.</source>
        <translation>Le programme d’installation de Quillmont Orbwell ne trouve aucun simulateur de vol. Veuillez indiquer le dossier manuellement.</translation>
    </message>
    <message>
        <source>Scan completed</source>
        <translation>Recherche terminée</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Widgets::AddonListItem</name>
    <message>
        <source>Path not set</source>
        <translation>Chemin non défini</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Folder of %0</source>
        <translation>Dossier du simulateur %0</translation>
    </message>
    <message>
        <source>Choose the folder of %0</source>
        <translation>Choisir le dossier du simulateur %0</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>Invalid path</source>
        <translation>Chemin non valide</translation>
    </message>
    <message>
        <source>This path is invalid</source>
        <translation>Ce chemin n’est pas valide</translation>
    </message>
    <message>
        <source>This simulator was not found. If you have it, press &quot;...&quot; and choose its folder.</source>
        <translation>Ce simulateur n’a pas été trouvé. Si vous le possédez, cliquez sur «&#xa0;...&#xa0;» et choisissez son dossier.</translation>
    </message>
    <message>
        <source>Uninstall Orbwell</source>
        <translation>Désinstaller Orbwell</translation>
    </message>
    <message>
        <source>Install Orbwell</source>
        <translation>Installer Orbwell</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0&#xa0;: %1</translation>
    </message>
    <message>
        <source>Folder not known</source>
        <translation>Dossier inconnu</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Dossier introuvable</translation>
    </message>
    <message>
        <source>Orbwell is installed</source>
        <translation>Orbwell est installé</translation>
    </message>
    <message>
        <source>Orbwell is not installed</source>
        <translation>Orbwell n’est pas installé</translation>
    </message>
</context>
</TS>
