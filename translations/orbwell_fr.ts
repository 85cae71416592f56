<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::Doctor::Advice</name>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Accordez-vous le droit de lecture sur ce fichier.</translation>
    </message>
    <message>
        <source>Move it away, or make it smaller by hand.</source>
        <translation>Déplacez-le ailleurs, ou réduisez sa taille à la main.</translation>
    </message>
    <message>
        <source>Move it away.</source>
        <translation>Déplacez-le ailleurs.</translation>
    </message>
    <message>
        <source>Mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Réparez le fichier à la main&#xa0;; d’ici là, rien n’y est modifié, et le simulateur risque de ne charger aucun add-on.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back, or mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Restaurez la sauvegarde du %1, ou réparez le fichier à la main&#xa0;; d’ici là, rien n’y est modifié, et le simulateur risque de ne charger aucun add-on.</translation>
    </message>
    <message>
        <source>Move it away; until then the simulator may load no add-on at all.</source>
        <translation>Déplacez-le ailleurs&#xa0;; d’ici là, le simulateur risque de ne charger aucun add-on.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back; until then the simulator may load no add-on at all.</source>
        <translation>Restaurez la sauvegarde du %1&#xa0;; d’ici là, le simulateur risque de ne charger aucun add-on.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::CatalogueCheck</name>
    <message>
        <source>It is no JSON: %1. The program sees no simulator.</source>
        <translation>Ce n’est pas du JSON valide&#xa0;: %1. Le programme ne reconnaît aucun simulateur.</translation>
    </message>
    <message>
        <source>It is no array. The program sees no simulator.</source>
        <translation>Ce n’est pas un tableau JSON. Le programme ne reconnaît aucun simulateur.</translation>
    </message>
    <message>
        <source>The key is there twice; the last one counts.</source>
        <translation>La clé est présente deux fois&#xa0;; la dernière compte.</translation>
    </message>
    <message>
        <source>Unknown key; it is ignored.</source>
        <translation>Clé inconnue&#xa0;; elle est ignorée.</translation>
    </message>
    <message>
        <source>Its type is %1, not %2; it counts as missing.</source>
        <translation>Le type est %1, et non %2&#xa0;; la valeur est considérée comme absente.</translation>
    </message>
    <message>
        <source>The simulator has no name.</source>
        <translation>Le simulateur n’a pas de nom.</translation>
    </message>
    <message>
        <source>Line %1 has the same name; both share one record and one chosen folder.</source>
        <translation>La ligne %1 a le même nom&#xa0;; les deux partagent un même enregistrement dans le registre d’installation et un même dossier choisi.</translation>
    </message>
    <message>
        <source>There are no files; nothing is installed, and it counts as installed.</source>
        <translation>Aucun fichier n’est indiqué&#xa0;; rien n’est installé, et le plugin est considéré comme installé.</translation>
    </message>
    <message>
        <source>The payload has no file %1; it cannot be copied.</source>
        <translation>Il manque %1 parmi les fichiers fournis&#xa0;; ce fichier ne peut pas être copié.</translation>
    </message>
    <message>
        <source>There is no destination; it is the simulator&apos;s folder itself.</source>
        <translation>Aucune destination n’est indiquée&#xa0;; c’est alors le dossier du simulateur lui-même.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the simulator&apos;s folder; the file is written there.</source>
        <translation>&quot;..&quot; mène hors du dossier du simulateur&#xa0;; le fichier est écrit à l’extérieur.</translation>
    </message>
    <message>
        <source>Another file has the same destination; the later one is copied.</source>
        <translation>Un autre fichier a la même destination&#xa0;; c’est le dernier qui est copié.</translation>
    </message>
    <message>
        <source>It is only read beside a &quot;config&quot; that is null or not empty; it is ignored.</source>
        <translation>Cette clé n’est lue qu’à côté d’un &quot;config&quot; qui est null ou non vide&#xa0;; ici, elle est ignorée.</translation>
    </message>
    <message>
        <source>&quot;type&quot; is not 0, so no configuration file is touched.</source>
        <translation>&quot;type&quot; n’est pas 0&#xa0;; aucun fichier de configuration n’est donc modifié.</translation>
    </message>
    <message>
        <source>There is no path; no file can be edited.</source>
        <translation>Aucun chemin n’est indiqué&#xa0;; aucun fichier ne peut être modifié.</translation>
    </message>
    <message>
        <source>Without &quot;parent&quot; and &quot;values&quot; no entry is added.</source>
        <translation>Sans &quot;parent&quot; ni &quot;values&quot;, aucune entrée n’est ajoutée.</translation>
    </message>
    <message>
        <source>This entry installs, but cannot be removed: no pair of &quot;values&quot; is what &quot;remove&quot; looks for.</source>
        <translation>Cette entrée s’installe, mais ne peut pas être supprimée&#xa0;: aucune paire de &quot;values&quot; ne correspond à ce que &quot;remove&quot; recherche.</translation>
    </message>
    <message>
        <source>Only the child element is removed, and the rest of the entry stays: &quot;delete_parent&quot; is not true.</source>
        <translation>Seul l’élément enfant est supprimé, et le reste de l’entrée est conservé&#xa0;: &quot;delete_parent&quot; n’est pas true.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Tout va bien.</translation>
    </message>
    <message>
        <source>It is no whole number; it counts as 0.</source>
        <translation>Ce n’est pas un nombre entier&#xa0;; la valeur compte pour 0.</translation>
    </message>
    <message>
        <source>There is no such location; the entry itself never finds anything.</source>
        <translation>Cette &quot;location&quot; n’existe pas&#xa0;; à elle seule, l’entrée ne trouve jamais rien.</translation>
    </message>
    <message>
        <source>It shares its chosen folder with the name in line %1.</source>
        <translation>Ce nom partage son dossier choisi avec celui de la ligne %1.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the payload.</source>
        <translation>&quot;..&quot; mène hors du dossier des fichiers fournis.</translation>
    </message>
    <message>
        <source>Without &quot;config&quot; no configuration file is touched.</source>
        <translation>Sans &quot;config&quot;, aucun fichier de configuration n’est modifié.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the folder of such files.</source>
        <translation>&quot;..&quot; mène hors du dossier des fichiers de configuration.</translation>
    </message>
    <message>
        <source>XML cannot hold this; the entry is never added.</source>
        <translation>XML ne peut pas contenir cela&#xa0;; l’entrée n’est jamais ajoutée.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::ConfigurationCheck</name>
    <message>
        <source>The simulator has no Proton prefix, so its configuration file is unknown.</source>
        <translation>Le simulateur n’a pas de préfixe Proton&#xa0;; son fichier de configuration est donc inconnu.</translation>
    </message>
    <message>
        <source>Start the simulator once from Steam, then install again.</source>
        <translation>Lancez une fois le simulateur depuis Steam, puis réinstallez le plugin.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Accordez-vous le droit d’écriture à cet endroit.</translation>
    </message>
    <message>
        <source>The configuration file %1 is missing.</source>
        <translation>Le fichier de configuration %1 est manquant.</translation>
    </message>
    <message>
        <source>Uninstall and install again; the file is made anew.</source>
        <translation>Désinstallez le plugin, puis réinstallez-le&#xa0;; le fichier sera recréé.</translation>
    </message>
    <message>
        <source>The configuration file %1 cannot be read: %2.</source>
        <translation>Le fichier de configuration %1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The configuration file %1 is damaged. %2</source>
        <translation>Le fichier de configuration %1 est endommagé. %2</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Désinstallez le plugin, puis réinstallez-le.</translation>
    </message>
    <message>
        <source>The plugin&apos;s files are there, but %1 has no entry for it.</source>
        <translation>Les fichiers du plugin sont présents, mais %1 ne contient aucune entrée pour ce plugin.</translation>
    </message>
    <message>
        <source>%1 has an entry for the plugin, whose files are not there.</source>
        <translation>%1 contient une entrée pour le plugin, mais les fichiers de celui-ci sont absents.</translation>
    </message>
    <message>
        <source>Install it, or uninstall it to take the entry out.</source>
        <translation>Installez le plugin, ou désinstallez-le pour supprimer l’entrée.</translation>
    </message>
    <message>
        <source>Our entry is in %1 %2 times.</source>
        <translation>Notre entrée figure %2 fois dans %1.</translation>
    </message>
    <message>
        <source>Our entry in %1 is disabled.</source>
        <translation>Notre entrée dans %1 est désactivée.</translation>
    </message>
    <message>
        <source>Our entry in %1 names the file %2, which is missing.</source>
        <translation>Notre entrée dans %1 désigne le fichier %2, qui est manquant.</translation>
    </message>
    <message>
        <source>The configuration file %1 is a web page.</source>
        <translation>Le fichier de configuration %1 est une page web.</translation>
    </message>
    <message>
        <source>The configuration file cannot be made: %1 is a link that leads nowhere.</source>
        <translation>Le fichier de configuration ne peut pas être créé&#xa0;: %1 est un lien qui ne mène nulle part.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Supprimez le lien, puis installez le plugin.</translation>
    </message>
    <message>
        <source>You may not change the configuration file %1, or not write in its folder.</source>
        <translation>Vous n’avez pas le droit de modifier le fichier de configuration %1 ou d’écrire dans son dossier.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Doctor</name>
    <message>
        <source>The catalogue %1 is no JSON array; --check-catalogue says more.</source>
        <translation>Le catalogue %1 n’est pas un tableau JSON&#xa0;; --check-catalogue en dit plus.</translation>
    </message>
    <message>
        <source>The catalogue has no simulator %1.</source>
        <translation>Le catalogue ne contient pas de simulateur %1.</translation>
    </message>
    <message>
        <source>Try &quot;orbwell-doctor --help&quot;.</source>
        <translation>Essayez &quot;orbwell-doctor --help&quot;.</translation>
    </message>
    <message>
        <source>The answer cannot be written: %1.</source>
        <translation>Le résultat ne peut pas être écrit&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Le catalogue %1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The catalogue %1 is empty.</source>
        <translation>Le catalogue %1 est vide.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Examination</name>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>Son dossier %1 n’existe plus.</translation>
    </message>
    <message>
        <source>Choose its folder in the window.</source>
        <translation>Choisissez son dossier dans la fenêtre.</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 est un fichier, pas un dossier.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>Libérez de l’espace sur le disque où se trouve %1.</translation>
    </message>
    <message>
        <source>The disk has room for %1 bytes; what is written there takes %2.</source>
        <translation>Espace libre sur le disque&#xa0;: %1 octets&#xa0;; il en faut %2 pour ce qui y est écrit.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::FilesCheck</name>
    <message>
        <source>The payload lacks %1, so it cannot be installed.</source>
        <translation>Il manque %1 parmi les fichiers fournis&#xa0;; ce fichier ne peut pas être installé.</translation>
    </message>
    <message>
        <source>Install this program again, or complete its &quot;plugins&quot; folder.</source>
        <translation>Réinstallez ce programme, ou complétez son dossier &quot;plugins&quot;.</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Désinstallez le plugin, puis réinstallez-le.</translation>
    </message>
    <message>
        <source>In the place of %1 is a link that leads nowhere.</source>
        <translation>À la place de %1 se trouve un lien qui ne mène nulle part.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Supprimez le lien, puis installez le plugin.</translation>
    </message>
    <message>
        <source>%1 is no regular file.</source>
        <translation>Ce n’est pas un fichier ordinaire&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Move it away, then install.</source>
        <translation>Déplacez ailleurs ce qui s’y trouve, puis installez le plugin.</translation>
    </message>
    <message>
        <source>Only a part of the plugin is there; %1 is missing.</source>
        <translation>Seule une partie du plugin est présente&#xa0;; il manque&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Install it.</source>
        <translation>Installez le plugin.</translation>
    </message>
    <message>
        <source>%1 differs from the file that comes with this program: another version, or damaged.</source>
        <translation>Différent du fichier fourni avec ce programme&#xa0;: %1 (autre version ou fichier endommagé).</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Lecture impossible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>You may not write in the folder of %1.</source>
        <translation>Vous n’avez pas le droit d’écrire dans le dossier de %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Accordez-vous le droit d’écriture à cet endroit.</translation>
    </message>
    <message>
        <source>You may not read %1, so it cannot be installed.</source>
        <translation>Vous n’avez pas le droit de lire %1&#xa0;; ce fichier ne peut pas être installé.</translation>
    </message>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Accordez-vous le droit de lecture sur ce fichier.</translation>
    </message>
    <message>
        <source>In the place of the folder %1 is a link that leads nowhere.</source>
        <translation>À la place du dossier %1 se trouve un lien qui ne mène nulle part.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder has to be.</source>
        <translation>%1 est un fichier&#xa0;; il faut un dossier à cet endroit.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Options</name>
    <message>
        <source>%1: a plan is for &quot;install&quot;, &quot;repair&quot; or &quot;uninstall&quot;.</source>
        <translation>%1&#xa0;: il n’y a de plan que pour &quot;install&quot;, &quot;repair&quot; ou &quot;uninstall&quot;.</translation>
    </message>
    <message>
        <source>--catalogue needs a file.</source>
        <translation>--catalogue nécessite un fichier.</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Option inconnue&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Unknown option %1. Is %2 meant?</source>
        <translation>Option inconnue&#xa0;: %1. Vouliez-vous dire %2&#xa0;?</translation>
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
        <translation>Usage&#xa0;: orbwell-doctor [OPTION...] [NOM...]
Indique ce qui ne va pas dans les simulateurs et leur plugin Orbwell. Ne modifie rien.

  --json               le rapport, le plan ou le contrôle en JSON
  --plan[=ACTION]      ce que ferait &quot;install&quot; (par défaut), &quot;repair&quot; ou &quot;uninstall&quot;
  --catalogue FICHIER  un autre catalogue, avec le dossier &quot;plugins&quot; à côté, s’il y en a un
  --check-catalogue    seulement ce qui ne va pas dans le catalogue
  --help, --version

Avec NOM, le rapport et le plan se limitent à ces simulateurs.
Code de retour&#xa0;: 0 tout va bien, 1 quelque chose ne va pas, 2 examen impossible.
</translation>
    </message>
    <message>
        <source>--check-catalogue takes no names.</source>
        <translation>--check-catalogue n’accepte pas de noms.</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 et %2 s’excluent mutuellement.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Plan</name>
    <message>
        <source>No simulator is found, so nothing would change.</source>
        <translation>Aucun simulateur n’a été trouvé&#xa0;; rien ne changerait donc.</translation>
    </message>
    <message>
        <source>Folder made: %1</source>
        <translation>Dossier à créer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Folder removed: %1</source>
        <translation>Dossier à supprimer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Backup made: %1</source>
        <translation>Sauvegarde à créer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problème&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: install in %2</source>
        <translation>%1&#xa0;: installer dans %2</translation>
    </message>
    <message>
        <source>%1: repair in %2</source>
        <translation>%1&#xa0;: réparer dans %2</translation>
    </message>
    <message>
        <source>%1: uninstall in %2</source>
        <translation>%1&#xa0;: désinstaller de %2</translation>
    </message>
    <message>
        <source>File made: %1</source>
        <translation>Fichier à créer&#xa0;: %1</translation>
    </message>
    <message>
        <source>File replaced: %1</source>
        <translation>Fichier à remplacer&#xa0;: %1</translation>
    </message>
    <message>
        <source>File unchanged: %1</source>
        <translation>Fichier inchangé&#xa0;: %1</translation>
    </message>
    <message>
        <source>File removed: %1</source>
        <translation>Fichier à supprimer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Configuration made: %1</source>
        <translation>Configuration à créer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Configuration changed: %1</source>
        <translation>Configuration à modifier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Configuration unchanged: %1</source>
        <translation>Configuration inchangée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Record made: %1</source>
        <translation>Registre d’installation à créer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Record changed: %1</source>
        <translation>Registre d’installation à modifier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Record unchanged: %1</source>
        <translation>Registre d’installation inchangé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>Son dossier %1 n’existe plus.</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Install Orbwell&quot;</source>
        <translation>Bouton de la fenêtre&#xa0;: «&#xa0;Installer Orbwell&#xa0;»</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Uninstall Orbwell&quot;</source>
        <translation>Bouton de la fenêtre&#xa0;: «&#xa0;Désinstaller Orbwell&#xa0;»</translation>
    </message>
    <message>
        <source>Button in the window: disabled</source>
        <translation>Bouton de la fenêtre&#xa0;: désactivé</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Reasons</name>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>ligne %1, colonne %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>X-Plane&apos;s own list</source>
        <translation>la liste de X-Plane</translation>
    </message>
    <message>
        <source>FlightGear&apos;s launcher</source>
        <translation>le lanceur de FlightGear</translation>
    </message>
    <message>
        <source>a well-known folder</source>
        <translation>un dossier habituel</translation>
    </message>
    <message>
        <source>UserCfg.opt in Steam&apos;s Proton prefix</source>
        <translation>UserCfg.opt dans le préfixe Proton de Steam</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>choisi à la main</translation>
    </message>
    <message>
        <source>the catalogue&apos;s file</source>
        <translation>le fichier indiqué dans le catalogue</translation>
    </message>
    <message>
        <source>the catalogue&apos;s folder</source>
        <translation>le dossier indiqué dans le catalogue</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>dossier inexistant</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>pas un chemin absolu</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>pas un dossier</translation>
    </message>
    <message>
        <source>no permission to look inside</source>
        <translation>pas le droit d’en lire le contenu</translation>
    </message>
    <message>
        <source>no file &quot;version&quot; that begins with a version number</source>
        <translation>pas de fichier &quot;version&quot; qui commence par un numéro de version</translation>
    </message>
    <message>
        <source>no defaults.xml or preferences.xml</source>
        <translation>ni defaults.xml ni preferences.xml</translation>
    </message>
    <message>
        <source>no InstalledPackagesPath in it</source>
        <translation>sans InstalledPackagesPath</translation>
    </message>
    <message>
        <source>its InstalledPackagesPath does not begin with a drive</source>
        <translation>son InstalledPackagesPath ne commence pas par une lettre de lecteur</translation>
    </message>
    <message>
        <source>no Community, Official/Steam or Official/OneStore</source>
        <translation>pas de dossier Community, Official/Steam ou Official/OneStore</translation>
    </message>
    <message>
        <source>no Community, Official2024 or StreamedPackages</source>
        <translation>pas de dossier Community, Official2024 ou StreamedPackages</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>trop volumineux</translation>
    </message>
    <message>
        <source>too much to read altogether</source>
        <translation>trop de données à lire au total</translation>
    </message>
    <message>
        <source>no fsx.exe</source>
        <translation>pas de fsx.exe</translation>
    </message>
    <message>
        <source>no SimObjects</source>
        <translation>pas de dossier SimObjects</translation>
    </message>
    <message>
        <source>no scenery</source>
        <translation>pas de dossier scenery</translation>
    </message>
    <message>
        <source>no aircraft</source>
        <translation>pas de dossier aircraft</translation>
    </message>
    <message>
        <source>no main.mcf or tm.log</source>
        <translation>ni main.mcf ni tm.log</translation>
    </message>
    <message>
        <source>it has no Proton prefix</source>
        <translation>pas de préfixe Proton</translation>
    </message>
    <message>
        <source>no list of libraries</source>
        <translation>pas de liste de bibliothèques</translation>
    </message>
    <message>
        <source>cut off, or not in Steam&apos;s text format</source>
        <translation>tronqué, ou pas au format texte de Steam</translation>
    </message>
    <message>
        <source>uninstalled (StateFlags %1)</source>
        <translation>désinstallé (StateFlags %1)</translation>
    </message>
    <message>
        <source>not fully installed (StateFlags %1)</source>
        <translation>pas complètement installé (StateFlags %1)</translation>
    </message>
    <message>
        <source>no AppState in it</source>
        <translation>sans AppState</translation>
    </message>
    <message>
        <source>it is about another game</source>
        <translation>concerne un autre jeu</translation>
    </message>
    <message>
        <source>installdir is not a plain name</source>
        <translation>installdir n’est pas un simple nom</translation>
    </message>
    <message>
        <source>no Resources/plugins</source>
        <translation>pas de dossier Resources/plugins</translation>
    </message>
    <message>
        <source>no X-Plane executable</source>
        <translation>pas d’exécutable X-Plane</translation>
    </message>
    <message>
        <source>it is X-Plane %1</source>
        <translation>c’est X-Plane %1</translation>
    </message>
    <message>
        <source>it is taken as %1</source>
        <translation>déjà reconnu comme %1</translation>
    </message>
    <message>
        <source>Second byte-order mark.</source>
        <translation>Deuxième indicateur d’ordre des octets.</translation>
    </message>
    <message>
        <source>Invalid entity name.</source>
        <translation>Nom d’entité non valide.</translation>
    </message>
    <message>
        <source>Invalid processing instruction name.</source>
        <translation>Nom d’instruction de traitement non valide.</translation>
    </message>
    <message>
        <source>Invalid XML declaration.</source>
        <translation>Déclaration XML non valide.</translation>
    </message>
    <message>
        <source>Invalid character reference.</source>
        <translation>Référence de caractère non valide.</translation>
    </message>
    <message>
        <source>Invalid element name.</source>
        <translation>Nom d’élément non valide.</translation>
    </message>
    <message>
        <source>Invalid attribute name.</source>
        <translation>Nom d’attribut non valide.</translation>
    </message>
    <message>
        <source>Invalid character in the document type declaration.</source>
        <translation>Caractère non valide dans la déclaration de type de document.</translation>
    </message>
    <message>
        <source>Entities grow to too much text.</source>
        <translation>Les entités produisent trop de texte.</translation>
    </message>
    <message>
        <source>No XML has this character.</source>
        <translation>Ce caractère n’est pas admis en XML.</translation>
    </message>
    <message>
        <source>The root element is not where it should be.</source>
        <translation>L’élément racine n’est pas là où il devrait être.</translation>
    </message>
    <message>
        <source>The entry to change comes out of an entity.</source>
        <translation>L’entrée à modifier provient d’une entité.</translation>
    </message>
    <message>
        <source>The element to remove comes out of an entity.</source>
        <translation>L’élément à supprimer provient d’une entité.</translation>
    </message>
    <message>
        <source>Undecodable bytes would be read otherwise.</source>
        <translation>Des octets indécodables seraient ensuite lus autrement.</translation>
    </message>
    <message>
        <source>A value is no text that XML can hold.</source>
        <translation>Une valeur contient du texte qui n’est pas admis en XML.</translation>
    </message>
    <message>
        <source>The element to change comes out of an entity.</source>
        <translation>L’élément à modifier provient d’une entité.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold an end tag.</source>
        <translation>L’encodage du fichier ne peut pas représenter une balise fermante.</translation>
    </message>
    <message>
        <source>A name or a value is none that XML can hold.</source>
        <translation>Un nom ou une valeur n’est pas admis en XML.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold a name.</source>
        <translation>L’encodage du fichier ne peut pas représenter un nom.</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>too big</source>
        <translation>trop volumineux</translation>
    </message>
    <message>
        <source>its name is not valid text</source>
        <translation>le nom n’est pas un texte valide</translation>
    </message>
    <message>
        <source>the catalogue&apos;s location</source>
        <translation>la &quot;location&quot; indiquée dans le catalogue</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>fichier inexistant</translation>
    </message>
    <message>
        <source>no registry on this system</source>
        <translation>pas de base de registre Windows sur ce système</translation>
    </message>
    <message>
        <source>looked for on Windows only</source>
        <translation>recherché sous Windows seulement</translation>
    </message>
    <message>
        <source>no such &quot;location&quot;</source>
        <translation>cette &quot;location&quot; n’existe pas</translation>
    </message>
    <message>
        <source>another one was chosen by hand</source>
        <translation>un autre a été choisi à la main</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::RecordCheck</name>
    <message>
        <source>The installation record %1 cannot be read: %2.</source>
        <translation>Le registre d’installation %1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The installation record %1 is damaged; what it said is lost.</source>
        <translation>Le registre d’installation %1 est endommagé&#xa0;; son contenu est perdu.</translation>
    </message>
    <message>
        <source>Install again; a new record is written then.</source>
        <translation>Réinstallez le plugin&#xa0;; un nouveau registre d’installation sera alors écrit.</translation>
    </message>
    <message>
        <source>The plugin is there, but not in the installation record.</source>
        <translation>Le plugin est présent, mais absent du registre d’installation.</translation>
    </message>
    <message>
        <source>Press &quot;Scan &amp; Install&quot; in the window; it is recorded then.</source>
        <translation>Cliquez sur «&#xa0;Rechercher &amp; installer&#xa0;» dans la fenêtre&#xa0;; le plugin sera alors inscrit au registre d’installation.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, but files are missing there.</source>
        <translation>Selon le registre d’installation, le plugin est installé dans %1, mais il y manque des fichiers.</translation>
    </message>
    <message>
        <source>Install it again.</source>
        <translation>Réinstallez le plugin.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, not in %2. Unattended runs work on the first, the window on the second.</source>
        <translation>Selon le registre d’installation, le plugin est installé dans %1, et non dans %2. Les exécutions sans assistance agissent sur le premier dossier, la fenêtre sur le second.</translation>
    </message>
    <message>
        <source>Choose the folder in the window, then install or uninstall there.</source>
        <translation>Choisissez le dossier dans la fenêtre, puis installez ou désinstallez le plugin à cet endroit.</translation>
    </message>
    <message>
        <source>The installation record has %1 in %2, which the catalogue no longer knows.</source>
        <translation>Le registre d’installation mentionne %1 dans %2&#xa0;; ce simulateur ne figure plus dans le catalogue.</translation>
    </message>
    <message>
        <source>Remove the plugin there by hand, if it is no longer wanted.</source>
        <translation>Supprimez-y le plugin à la main, si vous n’en voulez plus.</translation>
    </message>
    <message>
        <source>Nothing can be recorded: %1 is a link that leads nowhere.</source>
        <translation>Rien ne peut être inscrit au registre d’installation&#xa0;: %1 est un lien qui ne mène nulle part.</translation>
    </message>
    <message>
        <source>Delete the link.</source>
        <translation>Supprimez le lien.</translation>
    </message>
    <message>
        <source>You may not write the installation record %1.</source>
        <translation>Vous n’avez pas le droit d’écrire dans le registre d’installation %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Accordez-vous le droit d’écriture à cet endroit.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Rehearsal</name>
    <message>
        <source>%1 is a folder, and stays.</source>
        <translation>%1 est un dossier et reste en place.</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: a folder, or a link that leads nowhere, is in its place.</source>
        <translation>%1 ne peut pas être copié vers %2&#xa0;: sa place est occupée par un dossier ou par un lien qui ne mène nulle part.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: the payload lacks it. What is in its place goes all the same.</source>
        <translation>Le fichier %1 ne peut pas être copié&#xa0;: il ne figure pas parmi les fichiers fournis. Ce qui se trouve à la destination est tout de même supprimé.</translation>
    </message>
    <message>
        <source>%1 stays as it is: %2</source>
        <translation>%1 reste inchangé&#xa0;: %2</translation>
    </message>
    <message>
        <source>The record %1 stays as it is: %2</source>
        <translation>Le registre d’installation %1 reste inchangé&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: you may not write there, or the folder is missing.</source>
        <translation>%1 ne peut pas être copié vers %2&#xa0;: vous n’avez pas le droit d’y écrire, ou le dossier manque.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: you may not read it. What is in its place goes all the same.</source>
        <translation>Le fichier %1 ne peut pas être copié&#xa0;: vous n’avez pas le droit de le lire. Ce qui se trouve à la destination est tout de même supprimé.</translation>
    </message>
    <message>
        <source>No backup of %1 can be made: you may not write in its folder.</source>
        <translation>Aucune sauvegarde de %1 ne peut être créée&#xa0;: vous n’avez pas le droit d’écrire dans son dossier.</translation>
    </message>
    <message>
        <source>%1 cannot be made: you may not write there, or the folder is missing.</source>
        <translation>%1 ne peut pas être créé&#xa0;: vous n’avez pas le droit d’y écrire, ou le dossier manque.</translation>
    </message>
    <message>
        <source>%1 stays as it is: you may not change it, or not write in its folder.</source>
        <translation>%1 reste inchangé&#xa0;: vous n’avez pas le droit de le modifier ou d’écrire dans son dossier.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::TextReport</name>
    <message>
        <source>The catalogue has no simulator.</source>
        <translation>Le catalogue ne contient aucun simulateur.</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problème&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: not found on this computer</source>
        <translation>%1&#xa0;: introuvable sur cet ordinateur</translation>
    </message>
    <message>
        <source>%1: the plugin is installed</source>
        <translation>%1&#xa0;: le plugin est installé</translation>
    </message>
    <message>
        <source>%1: only a part of the plugin is installed</source>
        <translation>%1&#xa0;: seule une partie du plugin est installée</translation>
    </message>
    <message>
        <source>%1: the plugin is not installed</source>
        <translation>%1&#xa0;: le plugin n’est pas installé</translation>
    </message>
    <message>
        <source>Folder: %1, known by: %2</source>
        <translation>Dossier&#xa0;: %1, source&#xa0;: %2</translation>
    </message>
    <message>
        <source>Gave %1 up to %2, which found the same folder</source>
        <translation>A cédé %1 à %2, qui a trouvé le même dossier</translation>
    </message>
    <message>
        <source>Turned down: %1 (%2): %3</source>
        <translation>Écarté&#xa0;: %1 (%2)&#xa0;: %3</translation>
    </message>
    <message>
        <source>Files installed: %1</source>
        <translation>Fichiers installés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Files missing: %1</source>
        <translation>Fichiers manquants&#xa0;: %1</translation>
    </message>
    <message>
        <source>Files different: %1</source>
        <translation>Fichiers différents&#xa0;: %1</translation>
    </message>
    <message>
        <source>Files unreadable: %1</source>
        <translation>Fichiers illisibles&#xa0;: %1</translation>
    </message>
    <message>
        <source>Dead links in place of files: %1</source>
        <translation>Liens morts à la place de fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Folders or devices in place of files: %1</source>
        <translation>Dossiers ou fichiers de périphérique à la place de fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Bytes that are not valid in this encoding, from line %1 on</source>
        <translation>Octets non valides dans cet encodage, à partir de la ligne %1</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Ligne %1, colonne %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Another program&apos;s entry %1 names a file that is not there: %2</source>
        <translation>L’entrée %1 d’un autre programme désigne un fichier absent&#xa0;: %2</translation>
    </message>
    <message>
        <source>Configuration: %1, missing</source>
        <translation>Configuration&#xa0;: %1, manquante</translation>
    </message>
    <message>
        <source>Configuration: %1, unreadable</source>
        <translation>Configuration&#xa0;: %1, illisible</translation>
    </message>
    <message>
        <source>Configuration: %1, damaged, encoding %2</source>
        <translation>Configuration&#xa0;: %1, endommagée, encodage %2</translation>
    </message>
    <message>
        <source>Configuration: %1, well formed, encoding %2</source>
        <translation>Configuration&#xa0;: %1, bien formée, encodage %2</translation>
    </message>
    <message>
        <source>No entry of ours</source>
        <translation>Notre entrée&#xa0;: absente</translation>
    </message>
    <message>
        <source>Our entry: there once, disabled, for %1</source>
        <translation>Notre entrée&#xa0;: présente une fois, désactivée, pour %1</translation>
    </message>
    <message>
        <source>Our entry: there once, enabled, for %1</source>
        <translation>Notre entrée&#xa0;: présente une fois, activée, pour %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, disabled, for %1</source>
        <translation>Notre entrée&#xa0;: présente %2 fois, désactivée, pour %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, enabled, for %1</source>
        <translation>Notre entrée&#xa0;: présente %2 fois, activée, pour %1</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, well formed; to put it back:</source>
        <translation>Sauvegarde du %1, %2 octets, bien formée&#xa0;; pour la restaurer&#xa0;:</translation>
    </message>
    <message>
        <source>Older backups: %1</source>
        <translation>Sauvegardes plus anciennes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Record: agrees</source>
        <translation>Registre d’installation&#xa0;: concordant</translation>
    </message>
    <message>
        <source>Record: in %1</source>
        <translation>Selon le registre d’installation&#xa0;: dans %1</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1&#xa0;: %2 %3</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registre d’installation</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Tout va bien.</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>Que faire&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration: no Proton prefix</source>
        <translation>Configuration&#xa0;: pas de préfixe Proton</translation>
    </message>
    <message>
        <source>In the Proton prefix %1</source>
        <translation>Dans le préfixe Proton %1</translation>
    </message>
    <message>
        <source>no named file</source>
        <translation>aucun fichier précis</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, damaged</source>
        <translation>Sauvegarde du %1, %2 octets, endommagée</translation>
    </message>
    <message>
        <source>Configuration: %1, a link that leads nowhere</source>
        <translation>Configuration&#xa0;: %1, un lien qui ne mène nulle part</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::XmlDamage</name>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>Ce n’est pas du XML bien formé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The file holds nothing but white space.</source>
        <translation>Le fichier ne contient que des espaces.</translation>
    </message>
    <message>
        <source>The file holds nothing but zero bytes: the computer stopped while it was written, or its disk is failing.</source>
        <translation>Le fichier ne contient que des octets nuls&#xa0;: l’ordinateur s’est arrêté pendant l’écriture, ou son disque est défaillant.</translation>
    </message>
    <message>
        <source>The file is a web page, not XML.</source>
        <translation>Le fichier est une page web, pas du XML.</translation>
    </message>
    <message>
        <source>The file does not begin with a tag, so it is not XML.</source>
        <translation>Le fichier ne commence pas par une balise&#xa0;; ce n’est donc pas du XML.</translation>
    </message>
    <message>
        <source>Zero bytes begin in line %1: the file was not written to its end.</source>
        <translation>Des octets nuls commencent à la ligne %1&#xa0;: le fichier n’a pas été écrit jusqu’au bout.</translation>
    </message>
    <message>
        <source>There are two root elements: somebody appended a second document in line %1.</source>
        <translation>Il y a deux éléments racines&#xa0;: quelqu’un a ajouté un second document à la ligne %1.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed: the file ends in line %3.</source>
        <translation>&lt;%1&gt; à la ligne %2 n’est jamais fermé&#xa0;: le fichier se termine à la ligne %3.</translation>
    </message>
    <message>
        <source>The file has no element.</source>
        <translation>Le fichier n’a aucun élément.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a tag, which begins in line %1.</source>
        <translation>Le fichier se termine au milieu d’une balise, qui commence à la ligne %1.</translation>
    </message>
    <message>
        <source>A tag in line %1 has no &quot;&gt;&quot;.</source>
        <translation>Une balise de la ligne %1 n’a pas de &quot;&gt;&quot;.</translation>
    </message>
    <message>
        <source>&lt;?xml ...?&gt; in line %1 has to be the very beginning of the file.</source>
        <translation>&lt;?xml ...?&gt; à la ligne %1 doit être au tout début du fichier.</translation>
    </message>
    <message>
        <source>A second document begins in line %1: somebody appended it.</source>
        <translation>Un second document commence à la ligne %1&#xa0;: quelqu’un l’a ajouté.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 ends with &lt;/%3&gt; in line %4: letter case counts.</source>
        <translation>&lt;%1&gt; à la ligne %2 se termine par &lt;/%3&gt; à la ligne %4&#xa0;: la casse compte.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes nothing: no &lt;%1&gt; is open there.</source>
        <translation>&lt;/%1&gt; à la ligne %2 ne ferme rien&#xa0;: aucun &lt;%1&gt; n’y est ouvert.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed; &lt;/%3&gt; in line %4 came first.</source>
        <translation>&lt;%1&gt; à la ligne %2 n’est jamais fermé&#xa0;; &lt;/%3&gt; à la ligne %4 apparaît avant.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; comes a second time in line %2: behind the document is the rest of an older, longer file.</source>
        <translation>&lt;/%1&gt; apparaît une seconde fois à la ligne %2&#xa0;: après le document se trouve la fin d’un fichier plus ancien et plus long.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes an element that was never opened: the line with &lt;%1 ...&gt; is lost.</source>
        <translation>&lt;/%1&gt; à la ligne %2 ferme un élément qui n’a jamais été ouvert&#xa0;: la ligne avec &lt;%1 ...&gt; est perdue.</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in line %1 begins no tag; as text it is written &quot;&amp;lt;&quot;.</source>
        <translation>&quot;&lt;&quot; à la ligne %1 ne commence aucune balise&#xa0;; dans du texte, on l’écrit &quot;&amp;lt;&quot;.</translation>
    </message>
    <message>
        <source>%1 in line %2 is no tag; what is meant is %3.</source>
        <translation>%1 à la ligne %2 n’est pas une balise&#xa0;; il faut lire %3.</translation>
    </message>
    <message>
        <source>Behind the end of the document, in line %1, there is more text: the rest of an older, longer file?</source>
        <translation>Après la fin du document, à la ligne %1, il y a encore du texte&#xa0;: la fin d’un fichier plus ancien et plus long&#xa0;?</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; in line %1 has to be written &quot;&amp;amp;&quot;.</source>
        <translation>&quot;&amp;&quot; à la ligne %1 doit s’écrire &quot;&amp;amp;&quot;.</translation>
    </message>
    <message>
        <source>Line %1 holds a control character, which XML does not allow.</source>
        <translation>La ligne %1 contient un caractère de contrôle, que XML n’admet pas.</translation>
    </message>
    <message>
        <source>A quotation mark is missing in a tag in line %1.</source>
        <translation>Il manque un guillemet dans une balise de la ligne %1.</translation>
    </message>
    <message>
        <source>The value of %1 in line %2 has no quotation marks.</source>
        <translation>La valeur de %1 à la ligne %2 n’est pas entre guillemets.</translation>
    </message>
</context>
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
<context>
    <name>Quillmont::Utility::Widgets::ProgressWindow</name>
    <message>
        <source>%0: %1</source>
        <translation>%0&#xa0;: %1</translation>
    </message>
    <message>
        <source>File %0 of %1: %2</source>
        <translation>Fichier %0 sur %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Installing Orbwell</source>
        <translation>Installation d’Orbwell</translation>
    </message>
    <message>
        <source>Uninstalling Orbwell</source>
        <translation>Désinstallation d’Orbwell</translation>
    </message>
</context>
</TS>
