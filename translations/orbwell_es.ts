<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::Doctor::Advice</name>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Conceda a su usuario permiso para leerlo.</translation>
    </message>
    <message>
        <source>Move it away, or make it smaller by hand.</source>
        <translation>Muévalo a otro sitio o reduzca su tamaño manualmente.</translation>
    </message>
    <message>
        <source>Move it away.</source>
        <translation>Muévalo a otro sitio.</translation>
    </message>
    <message>
        <source>Mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Corrija el archivo manualmente; hasta entonces no se modificará nada en él y es posible que el simulador no cargue ningún complemento.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back, or mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Restaure la copia de seguridad del %1 o corrija el archivo manualmente; hasta entonces no se modificará nada en él y es posible que el simulador no cargue ningún complemento.</translation>
    </message>
    <message>
        <source>Move it away; until then the simulator may load no add-on at all.</source>
        <translation>Muévalo a otro sitio; hasta entonces es posible que el simulador no cargue ningún complemento.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back; until then the simulator may load no add-on at all.</source>
        <translation>Restaure la copia de seguridad del %1; hasta entonces es posible que el simulador no cargue ningún complemento.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::CatalogueCheck</name>
    <message>
        <source>It is no JSON: %1. The program sees no simulator.</source>
        <translation>No es JSON: %1. El programa no ve ningún simulador.</translation>
    </message>
    <message>
        <source>It is no array. The program sees no simulator.</source>
        <translation>No es un array. El programa no ve ningún simulador.</translation>
    </message>
    <message>
        <source>The key is there twice; the last one counts.</source>
        <translation>La clave aparece dos veces; cuenta la última.</translation>
    </message>
    <message>
        <source>Unknown key; it is ignored.</source>
        <translation>Clave desconocida; se ignora.</translation>
    </message>
    <message>
        <source>Its type is %1, not %2; it counts as missing.</source>
        <translation>Su tipo es %1 en lugar de %2; se trata como si faltara.</translation>
    </message>
    <message>
        <source>The simulator has no name.</source>
        <translation>El simulador no tiene nombre.</translation>
    </message>
    <message>
        <source>Line %1 has the same name; both share one record and one chosen folder.</source>
        <translation>En la línea %1 está el mismo nombre; ambas entradas comparten un mismo registro y una misma carpeta elegida.</translation>
    </message>
    <message>
        <source>There are no files; nothing is installed, and it counts as installed.</source>
        <translation>No hay archivos; no se instala nada y la entrada se considera instalada.</translation>
    </message>
    <message>
        <source>The payload has no file %1; it cannot be copied.</source>
        <translation>Falta %1 entre los archivos incluidos; ese archivo no se puede copiar.</translation>
    </message>
    <message>
        <source>There is no destination; it is the simulator&apos;s folder itself.</source>
        <translation>No hay destino; se usa la propia carpeta del simulador.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the simulator&apos;s folder; the file is written there.</source>
        <translation>&quot;..&quot; sale de la carpeta del simulador; el archivo se escribe fuera de ella.</translation>
    </message>
    <message>
        <source>Another file has the same destination; the later one is copied.</source>
        <translation>Otro archivo tiene el mismo destino; se copia el último.</translation>
    </message>
    <message>
        <source>It is only read beside a &quot;config&quot; that is null or not empty; it is ignored.</source>
        <translation>Solo se lee junto a un &quot;config&quot; que sea null o no esté vacío; aquí se ignora.</translation>
    </message>
    <message>
        <source>&quot;type&quot; is not 0, so no configuration file is touched.</source>
        <translation>&quot;type&quot; no es 0, así que no se modifica ningún archivo de configuración.</translation>
    </message>
    <message>
        <source>There is no path; no file can be edited.</source>
        <translation>No hay ruta; no se puede editar ningún archivo.</translation>
    </message>
    <message>
        <source>Without &quot;parent&quot; and &quot;values&quot; no entry is added.</source>
        <translation>Sin &quot;parent&quot; y &quot;values&quot; no se añade ninguna entrada.</translation>
    </message>
    <message>
        <source>This entry installs, but cannot be removed: no pair of &quot;values&quot; is what &quot;remove&quot; looks for.</source>
        <translation>Esta entrada se instala, pero no se puede quitar: ningún par de &quot;values&quot; coincide con lo que busca &quot;remove&quot;.</translation>
    </message>
    <message>
        <source>Only the child element is removed, and the rest of the entry stays: &quot;delete_parent&quot; is not true.</source>
        <translation>Solo se quita el elemento hijo y el resto de la entrada permanece: &quot;delete_parent&quot; no es true.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Todo está bien.</translation>
    </message>
    <message>
        <source>It is no whole number; it counts as 0.</source>
        <translation>No es un número entero; se interpreta como 0.</translation>
    </message>
    <message>
        <source>There is no such location; the entry itself never finds anything.</source>
        <translation>No existe esa &quot;location&quot;; la entrada por sí misma nunca encuentra nada.</translation>
    </message>
    <message>
        <source>It shares its chosen folder with the name in line %1.</source>
        <translation>Comparte la carpeta elegida con el nombre de la línea %1.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the payload.</source>
        <translation>&quot;..&quot; sale de la carpeta de los archivos incluidos.</translation>
    </message>
    <message>
        <source>Without &quot;config&quot; no configuration file is touched.</source>
        <translation>Sin &quot;config&quot; no se modifica ningún archivo de configuración.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the folder of such files.</source>
        <translation>&quot;..&quot; sale de la carpeta de los archivos de configuración.</translation>
    </message>
    <message>
        <source>XML cannot hold this; the entry is never added.</source>
        <translation>Esto no se puede representar en XML; la entrada nunca se añade.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::ConfigurationCheck</name>
    <message>
        <source>The simulator has no Proton prefix, so its configuration file is unknown.</source>
        <translation>El simulador no tiene prefijo de Proton, así que no se conoce su archivo de configuración.</translation>
    </message>
    <message>
        <source>Start the simulator once from Steam, then install again.</source>
        <translation>Inicie el simulador una vez desde Steam y vuelva a instalar.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Conceda a su usuario permiso para escribir allí.</translation>
    </message>
    <message>
        <source>The configuration file %1 is missing.</source>
        <translation>Falta el archivo de configuración %1.</translation>
    </message>
    <message>
        <source>Uninstall and install again; the file is made anew.</source>
        <translation>Desinstale y vuelva a instalar; el archivo se creará de nuevo.</translation>
    </message>
    <message>
        <source>The configuration file %1 cannot be read: %2.</source>
        <translation>No se puede leer el archivo de configuración %1: %2.</translation>
    </message>
    <message>
        <source>The configuration file %1 is damaged. %2</source>
        <translation>El archivo de configuración %1 está dañado. %2</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Desinstale y vuelva a instalar.</translation>
    </message>
    <message>
        <source>The plugin&apos;s files are there, but %1 has no entry for it.</source>
        <translation>Los archivos del plugin están, pero en %1 no hay ninguna entrada para él.</translation>
    </message>
    <message>
        <source>%1 has an entry for the plugin, whose files are not there.</source>
        <translation>En %1 hay una entrada para el plugin, pero sus archivos no están.</translation>
    </message>
    <message>
        <source>Install it, or uninstall it to take the entry out.</source>
        <translation>Instale el plugin o desinstálelo para quitar la entrada.</translation>
    </message>
    <message>
        <source>Our entry is in %1 %2 times.</source>
        <translation>La entrada de Orbwell aparece %2 veces en %1.</translation>
    </message>
    <message>
        <source>Our entry in %1 is disabled.</source>
        <translation>La entrada de Orbwell en %1 está desactivada.</translation>
    </message>
    <message>
        <source>Our entry in %1 names the file %2, which is missing.</source>
        <translation>La entrada de Orbwell en %1 indica el archivo %2, que no existe.</translation>
    </message>
    <message>
        <source>The configuration file %1 is a web page.</source>
        <translation>El archivo de configuración %1 es una página web.</translation>
    </message>
    <message>
        <source>The configuration file cannot be made: %1 is a link that leads nowhere.</source>
        <translation>No se puede crear el archivo de configuración: %1 es un enlace roto.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Elimine el enlace y después instale.</translation>
    </message>
    <message>
        <source>You may not change the configuration file %1, or not write in its folder.</source>
        <translation>No tiene permiso para modificar el archivo de configuración %1 o para escribir en su carpeta.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Doctor</name>
    <message>
        <source>The catalogue %1 is no JSON array; --check-catalogue says more.</source>
        <translation>El catálogo %1 no es un array JSON; --check-catalogue da más detalles.</translation>
    </message>
    <message>
        <source>The catalogue has no simulator %1.</source>
        <translation>En el catálogo no hay ningún simulador llamado %1.</translation>
    </message>
    <message>
        <source>Try &quot;orbwell-doctor --help&quot;.</source>
        <translation>Pruebe &quot;orbwell-doctor --help&quot;.</translation>
    </message>
    <message>
        <source>The answer cannot be written: %1.</source>
        <translation>No se puede escribir la respuesta: %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>No se puede leer el catálogo %1: %2.</translation>
    </message>
    <message>
        <source>The catalogue %1 is empty.</source>
        <translation>El catálogo %1 está vacío.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Examination</name>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>La carpeta %1 ya no existe.</translation>
    </message>
    <message>
        <source>Choose its folder in the window.</source>
        <translation>Elija la carpeta del simulador en la ventana.</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 es un archivo, no una carpeta.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>Libere espacio en el disco de %1.</translation>
    </message>
    <message>
        <source>The disk has room for %1 bytes; what is written there takes %2.</source>
        <translation>El disco tiene %1 bytes libres; lo que se escribe en él ocupa %2.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::FilesCheck</name>
    <message>
        <source>The payload lacks %1, so it cannot be installed.</source>
        <translation>Falta %1 entre los archivos incluidos; ese archivo no se puede instalar.</translation>
    </message>
    <message>
        <source>Install this program again, or complete its &quot;plugins&quot; folder.</source>
        <translation>Vuelva a instalar este programa o complete su carpeta &quot;plugins&quot;.</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Desinstale y vuelva a instalar.</translation>
    </message>
    <message>
        <source>In the place of %1 is a link that leads nowhere.</source>
        <translation>Hay un enlace roto en el lugar de: %1.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Elimine el enlace y después instale.</translation>
    </message>
    <message>
        <source>%1 is no regular file.</source>
        <translation>No es un archivo normal: %1.</translation>
    </message>
    <message>
        <source>Move it away, then install.</source>
        <translation>Mueva lo que hay allí a otro sitio y después instale.</translation>
    </message>
    <message>
        <source>Only a part of the plugin is there; %1 is missing.</source>
        <translation>Solo está instalada una parte del plugin; archivos que faltan: %1.</translation>
    </message>
    <message>
        <source>Install it.</source>
        <translation>Instale el plugin.</translation>
    </message>
    <message>
        <source>%1 differs from the file that comes with this program: another version, or damaged.</source>
        <translation>Archivos distintos de los que acompañan a este programa (otra versión, o dañados): %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>No se puede leer: %1.</translation>
    </message>
    <message>
        <source>You may not write in the folder of %1.</source>
        <translation>No tiene permiso para escribir en la carpeta de %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Conceda a su usuario permiso para escribir allí.</translation>
    </message>
    <message>
        <source>You may not read %1, so it cannot be installed.</source>
        <translation>No tiene permiso para leer %1; ese archivo no se puede instalar.</translation>
    </message>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Conceda a su usuario permiso para leerlo.</translation>
    </message>
    <message>
        <source>In the place of the folder %1 is a link that leads nowhere.</source>
        <translation>En el lugar de la carpeta %1 hay un enlace roto.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder has to be.</source>
        <translation>%1 es un archivo, pero en su lugar tiene que haber una carpeta.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Options</name>
    <message>
        <source>%1: a plan is for &quot;install&quot;, &quot;repair&quot; or &quot;uninstall&quot;.</source>
        <translation>%1: un plan solo puede ser para &quot;install&quot;, &quot;repair&quot; o &quot;uninstall&quot;.</translation>
    </message>
    <message>
        <source>--catalogue needs a file.</source>
        <translation>--catalogue necesita un archivo.</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Opción desconocida: %1.</translation>
    </message>
    <message>
        <source>Unknown option %1. Is %2 meant?</source>
        <translation>Opción desconocida: %1. ¿Quería decir %2?</translation>
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
        <translation>Uso: orbwell-doctor [OPCIÓN...] [NOMBRE...]
Indica qué está mal en los simuladores y en el plugin Orbwell que contienen. No modifica nada.

  --json               el informe, el plan o la comprobación en formato JSON
  --plan[=ACCIÓN]      lo que haría &quot;install&quot; (predeterminado), &quot;repair&quot; o &quot;uninstall&quot;
  --catalogue ARCHIVO  usa otro catálogo, y la carpeta &quot;plugins&quot; junto a él, si la hay
  --check-catalogue    solo lo que está mal en el catálogo
  --help, --version

Con uno o más NOMBRE, el informe o el plan se limita a esos simuladores.
Estado de salida: 0 todo está bien, 1 algo está mal, 2 no se ha podido comprobar.
</translation>
    </message>
    <message>
        <source>--check-catalogue takes no names.</source>
        <translation>--check-catalogue no admite nombres.</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 y %2 se excluyen mutuamente.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Plan</name>
    <message>
        <source>No simulator is found, so nothing would change.</source>
        <translation>No se ha encontrado ningún simulador, así que no cambiaría nada.</translation>
    </message>
    <message>
        <source>Folder made: %1</source>
        <translation>Carpeta creada: %1</translation>
    </message>
    <message>
        <source>Folder removed: %1</source>
        <translation>Carpeta eliminada: %1</translation>
    </message>
    <message>
        <source>Backup made: %1</source>
        <translation>Copia de seguridad creada: %1</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problema: %1</translation>
    </message>
    <message>
        <source>%1: install in %2</source>
        <translation>%1: instalar en %2</translation>
    </message>
    <message>
        <source>%1: repair in %2</source>
        <translation>%1: reparar en %2</translation>
    </message>
    <message>
        <source>%1: uninstall in %2</source>
        <translation>%1: desinstalar de %2</translation>
    </message>
    <message>
        <source>File made: %1</source>
        <translation>Archivo creado: %1</translation>
    </message>
    <message>
        <source>File replaced: %1</source>
        <translation>Archivo sustituido: %1</translation>
    </message>
    <message>
        <source>File unchanged: %1</source>
        <translation>Archivo sin cambios: %1</translation>
    </message>
    <message>
        <source>File removed: %1</source>
        <translation>Archivo eliminado: %1</translation>
    </message>
    <message>
        <source>Configuration made: %1</source>
        <translation>Configuración creada: %1</translation>
    </message>
    <message>
        <source>Configuration changed: %1</source>
        <translation>Configuración modificada: %1</translation>
    </message>
    <message>
        <source>Configuration unchanged: %1</source>
        <translation>Configuración sin cambios: %1</translation>
    </message>
    <message>
        <source>Record made: %1</source>
        <translation>Registro creado: %1</translation>
    </message>
    <message>
        <source>Record changed: %1</source>
        <translation>Registro modificado: %1</translation>
    </message>
    <message>
        <source>Record unchanged: %1</source>
        <translation>Registro sin cambios: %1</translation>
    </message>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>La carpeta %1 ya no existe.</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Install Orbwell&quot;</source>
        <translation>Botón de la ventana: «Instalar Orbwell»</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Uninstall Orbwell&quot;</source>
        <translation>Botón de la ventana: «Desinstalar Orbwell»</translation>
    </message>
    <message>
        <source>Button in the window: disabled</source>
        <translation>Botón de la ventana: desactivado</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Reasons</name>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>línea %1, columna %2: %3</translation>
    </message>
    <message>
        <source>X-Plane&apos;s own list</source>
        <translation>la lista propia de X-Plane</translation>
    </message>
    <message>
        <source>FlightGear&apos;s launcher</source>
        <translation>el lanzador de FlightGear</translation>
    </message>
    <message>
        <source>a well-known folder</source>
        <translation>una carpeta habitual</translation>
    </message>
    <message>
        <source>UserCfg.opt in Steam&apos;s Proton prefix</source>
        <translation>UserCfg.opt en el prefijo de Proton de Steam</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>elección manual</translation>
    </message>
    <message>
        <source>the catalogue&apos;s file</source>
        <translation>el archivo del catálogo</translation>
    </message>
    <message>
        <source>the catalogue&apos;s folder</source>
        <translation>la carpeta del catálogo</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>no existe esa carpeta</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>no es una ruta absoluta</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>no permission to look inside</source>
        <translation>sin permiso para ver su contenido</translation>
    </message>
    <message>
        <source>no file &quot;version&quot; that begins with a version number</source>
        <translation>no hay un archivo &quot;version&quot; que empiece por un número de versión</translation>
    </message>
    <message>
        <source>no defaults.xml or preferences.xml</source>
        <translation>no hay defaults.xml ni preferences.xml</translation>
    </message>
    <message>
        <source>no InstalledPackagesPath in it</source>
        <translation>no contiene InstalledPackagesPath</translation>
    </message>
    <message>
        <source>its InstalledPackagesPath does not begin with a drive</source>
        <translation>su InstalledPackagesPath no empieza por una letra de unidad</translation>
    </message>
    <message>
        <source>no Community, Official/Steam or Official/OneStore</source>
        <translation>no hay Community, Official/Steam ni Official/OneStore</translation>
    </message>
    <message>
        <source>no Community, Official2024 or StreamedPackages</source>
        <translation>no hay Community, Official2024 ni StreamedPackages</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>demasiado grande</translation>
    </message>
    <message>
        <source>too much to read altogether</source>
        <translation>demasiados datos que leer en total</translation>
    </message>
    <message>
        <source>no fsx.exe</source>
        <translation>no hay fsx.exe</translation>
    </message>
    <message>
        <source>no SimObjects</source>
        <translation>no hay SimObjects</translation>
    </message>
    <message>
        <source>no scenery</source>
        <translation>no hay scenery</translation>
    </message>
    <message>
        <source>no aircraft</source>
        <translation>no hay aircraft</translation>
    </message>
    <message>
        <source>no main.mcf or tm.log</source>
        <translation>no hay main.mcf ni tm.log</translation>
    </message>
    <message>
        <source>it has no Proton prefix</source>
        <translation>no tiene prefijo de Proton</translation>
    </message>
    <message>
        <source>no list of libraries</source>
        <translation>no es una lista de bibliotecas</translation>
    </message>
    <message>
        <source>cut off, or not in Steam&apos;s text format</source>
        <translation>truncado, o no está en el formato de texto de Steam</translation>
    </message>
    <message>
        <source>uninstalled (StateFlags %1)</source>
        <translation>desinstalado (StateFlags %1)</translation>
    </message>
    <message>
        <source>not fully installed (StateFlags %1)</source>
        <translation>no instalado por completo (StateFlags %1)</translation>
    </message>
    <message>
        <source>no AppState in it</source>
        <translation>no contiene AppState</translation>
    </message>
    <message>
        <source>it is about another game</source>
        <translation>corresponde a otro juego</translation>
    </message>
    <message>
        <source>installdir is not a plain name</source>
        <translation>installdir no es un nombre simple</translation>
    </message>
    <message>
        <source>no Resources/plugins</source>
        <translation>no hay Resources/plugins</translation>
    </message>
    <message>
        <source>no X-Plane executable</source>
        <translation>no hay ejecutable de X-Plane</translation>
    </message>
    <message>
        <source>it is X-Plane %1</source>
        <translation>es X-Plane %1</translation>
    </message>
    <message>
        <source>it is taken as %1</source>
        <translation>ya está asignada a %1</translation>
    </message>
    <message>
        <source>Second byte-order mark.</source>
        <translation>Segunda marca de orden de bytes.</translation>
    </message>
    <message>
        <source>Invalid entity name.</source>
        <translation>Nombre de entidad no válido.</translation>
    </message>
    <message>
        <source>Invalid processing instruction name.</source>
        <translation>Nombre de instrucción de procesamiento no válido.</translation>
    </message>
    <message>
        <source>Invalid XML declaration.</source>
        <translation>Declaración XML no válida.</translation>
    </message>
    <message>
        <source>Invalid character reference.</source>
        <translation>Referencia de carácter no válida.</translation>
    </message>
    <message>
        <source>Invalid element name.</source>
        <translation>Nombre de elemento no válido.</translation>
    </message>
    <message>
        <source>Invalid attribute name.</source>
        <translation>Nombre de atributo no válido.</translation>
    </message>
    <message>
        <source>Invalid character in the document type declaration.</source>
        <translation>Carácter no válido en la declaración de tipo de documento.</translation>
    </message>
    <message>
        <source>Entities grow to too much text.</source>
        <translation>Las entidades generan demasiado texto.</translation>
    </message>
    <message>
        <source>No XML has this character.</source>
        <translation>XML no permite este carácter.</translation>
    </message>
    <message>
        <source>The root element is not where it should be.</source>
        <translation>El elemento raíz no está donde debería.</translation>
    </message>
    <message>
        <source>The entry to change comes out of an entity.</source>
        <translation>La entrada que hay que cambiar procede de una entidad.</translation>
    </message>
    <message>
        <source>The element to remove comes out of an entity.</source>
        <translation>El elemento que hay que quitar procede de una entidad.</translation>
    </message>
    <message>
        <source>Undecodable bytes would be read otherwise.</source>
        <translation>Los bytes que no se pueden descodificar se leerían de otro modo.</translation>
    </message>
    <message>
        <source>A value is no text that XML can hold.</source>
        <translation>El texto de un valor no se puede representar en XML.</translation>
    </message>
    <message>
        <source>The element to change comes out of an entity.</source>
        <translation>El elemento que hay que cambiar procede de una entidad.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold an end tag.</source>
        <translation>La codificación del archivo no puede representar una etiqueta de cierre.</translation>
    </message>
    <message>
        <source>A name or a value is none that XML can hold.</source>
        <translation>Un nombre o un valor no se puede representar en XML.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold a name.</source>
        <translation>La codificación del archivo no puede representar un nombre.</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>too big</source>
        <translation>demasiado grande</translation>
    </message>
    <message>
        <source>its name is not valid text</source>
        <translation>su nombre no es texto válido</translation>
    </message>
    <message>
        <source>the catalogue&apos;s location</source>
        <translation>la &quot;location&quot; del catálogo</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>no registry on this system</source>
        <translation>este sistema no tiene registro de Windows</translation>
    </message>
    <message>
        <source>looked for on Windows only</source>
        <translation>solo se busca en Windows</translation>
    </message>
    <message>
        <source>no such &quot;location&quot;</source>
        <translation>no existe esa &quot;location&quot;</translation>
    </message>
    <message>
        <source>another one was chosen by hand</source>
        <translation>se eligió otra manualmente</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::RecordCheck</name>
    <message>
        <source>The installation record %1 cannot be read: %2.</source>
        <translation>No se puede leer el registro de instalación %1: %2.</translation>
    </message>
    <message>
        <source>The installation record %1 is damaged; what it said is lost.</source>
        <translation>El registro de instalación %1 está dañado; su contenido se ha perdido.</translation>
    </message>
    <message>
        <source>Install again; a new record is written then.</source>
        <translation>Vuelva a instalar; se escribirá un registro nuevo.</translation>
    </message>
    <message>
        <source>The plugin is there, but not in the installation record.</source>
        <translation>El plugin está instalado, pero no consta en el registro de instalación.</translation>
    </message>
    <message>
        <source>Press &quot;Scan &amp; Install&quot; in the window; it is recorded then.</source>
        <translation>Pulse «Buscar &amp; instalar» en la ventana; así quedará registrado.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, but files are missing there.</source>
        <translation>Según el registro de instalación, el plugin está en %1, pero allí faltan archivos.</translation>
    </message>
    <message>
        <source>Install it again.</source>
        <translation>Vuelva a instalarlo.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, not in %2. Unattended runs work on the first, the window on the second.</source>
        <translation>Según el registro de instalación, el plugin está en %1, no en %2. Las ejecuciones desatendidas usan la primera carpeta; la ventana, la segunda.</translation>
    </message>
    <message>
        <source>Choose the folder in the window, then install or uninstall there.</source>
        <translation>Elija la carpeta en la ventana y después instale o desinstale en ella.</translation>
    </message>
    <message>
        <source>The installation record has %1 in %2, which the catalogue no longer knows.</source>
        <translation>El registro de instalación contiene %1 en %2, pero ese simulador ya no figura en el catálogo.</translation>
    </message>
    <message>
        <source>Remove the plugin there by hand, if it is no longer wanted.</source>
        <translation>Quite el plugin de allí manualmente si ya no lo quiere.</translation>
    </message>
    <message>
        <source>Nothing can be recorded: %1 is a link that leads nowhere.</source>
        <translation>No se puede anotar nada en el registro de instalación: %1 es un enlace roto.</translation>
    </message>
    <message>
        <source>Delete the link.</source>
        <translation>Elimine el enlace.</translation>
    </message>
    <message>
        <source>You may not write the installation record %1.</source>
        <translation>No tiene permiso para escribir en el registro de instalación %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Conceda a su usuario permiso para escribir allí.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Rehearsal</name>
    <message>
        <source>%1 is a folder, and stays.</source>
        <translation>%1 es una carpeta y no se elimina.</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: a folder, or a link that leads nowhere, is in its place.</source>
        <translation>No se puede copiar %1 en %2: ese lugar lo ocupa una carpeta o un enlace roto.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: the payload lacks it. What is in its place goes all the same.</source>
        <translation>No se puede copiar %1: falta entre los archivos incluidos. Lo que hay en el destino se elimina de todos modos.</translation>
    </message>
    <message>
        <source>%1 stays as it is: %2</source>
        <translation>%1 se queda como está: %2</translation>
    </message>
    <message>
        <source>The record %1 stays as it is: %2</source>
        <translation>El registro %1 se queda como está: %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: you may not write there, or the folder is missing.</source>
        <translation>No se puede copiar %1 en %2: no tiene permiso para escribir allí, o falta la carpeta.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: you may not read it. What is in its place goes all the same.</source>
        <translation>No se puede copiar %1: no tiene permiso para leerlo. Lo que hay en el destino se elimina de todos modos.</translation>
    </message>
    <message>
        <source>No backup of %1 can be made: you may not write in its folder.</source>
        <translation>No se puede crear una copia de seguridad de %1: no tiene permiso para escribir en su carpeta.</translation>
    </message>
    <message>
        <source>%1 cannot be made: you may not write there, or the folder is missing.</source>
        <translation>No se puede crear %1: no tiene permiso para escribir allí, o falta la carpeta.</translation>
    </message>
    <message>
        <source>%1 stays as it is: you may not change it, or not write in its folder.</source>
        <translation>%1 se queda como está: no tiene permiso para modificarlo o para escribir en su carpeta.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::TextReport</name>
    <message>
        <source>The catalogue has no simulator.</source>
        <translation>El catálogo no contiene ningún simulador.</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problema: %1</translation>
    </message>
    <message>
        <source>%1: not found on this computer</source>
        <translation>%1: no encontrado en este equipo</translation>
    </message>
    <message>
        <source>%1: the plugin is installed</source>
        <translation>%1: el plugin está instalado</translation>
    </message>
    <message>
        <source>%1: only a part of the plugin is installed</source>
        <translation>%1: solo está instalada una parte del plugin</translation>
    </message>
    <message>
        <source>%1: the plugin is not installed</source>
        <translation>%1: el plugin no está instalado</translation>
    </message>
    <message>
        <source>Folder: %1, known by: %2</source>
        <translation>Carpeta: %1, origen: %2</translation>
    </message>
    <message>
        <source>Gave %1 up to %2, which found the same folder</source>
        <translation>Ha cedido %1 a %2, que encontró la misma carpeta</translation>
    </message>
    <message>
        <source>Turned down: %1 (%2): %3</source>
        <translation>Descartado: %1 (%2): %3</translation>
    </message>
    <message>
        <source>Files installed: %1</source>
        <translation>Archivos instalados: %1</translation>
    </message>
    <message>
        <source>Files missing: %1</source>
        <translation>Archivos que faltan: %1</translation>
    </message>
    <message>
        <source>Files different: %1</source>
        <translation>Archivos distintos: %1</translation>
    </message>
    <message>
        <source>Files unreadable: %1</source>
        <translation>Archivos que no se pueden leer: %1</translation>
    </message>
    <message>
        <source>Dead links in place of files: %1</source>
        <translation>Enlaces rotos en lugar de archivos: %1</translation>
    </message>
    <message>
        <source>Folders or devices in place of files: %1</source>
        <translation>Carpetas o dispositivos en lugar de archivos: %1</translation>
    </message>
    <message>
        <source>Bytes that are not valid in this encoding, from line %1 on</source>
        <translation>Bytes no válidos en esta codificación, desde la línea %1</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Línea %1, columna %2: %3</translation>
    </message>
    <message>
        <source>Another program&apos;s entry %1 names a file that is not there: %2</source>
        <translation>La entrada %1 de otro programa indica un archivo que no existe: %2</translation>
    </message>
    <message>
        <source>Configuration: %1, missing</source>
        <translation>Configuración: %1, falta</translation>
    </message>
    <message>
        <source>Configuration: %1, unreadable</source>
        <translation>Configuración: %1, no se puede leer</translation>
    </message>
    <message>
        <source>Configuration: %1, damaged, encoding %2</source>
        <translation>Configuración: %1, dañada, codificación %2</translation>
    </message>
    <message>
        <source>Configuration: %1, well formed, encoding %2</source>
        <translation>Configuración: %1, bien formada, codificación %2</translation>
    </message>
    <message>
        <source>No entry of ours</source>
        <translation>Ninguna entrada de Orbwell</translation>
    </message>
    <message>
        <source>Our entry: there once, disabled, for %1</source>
        <translation>Entrada de Orbwell: aparece una vez, desactivada, archivo: %1</translation>
    </message>
    <message>
        <source>Our entry: there once, enabled, for %1</source>
        <translation>Entrada de Orbwell: aparece una vez, activada, archivo: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, disabled, for %1</source>
        <translation>Entrada de Orbwell: aparece %2 veces, desactivada, archivo: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, enabled, for %1</source>
        <translation>Entrada de Orbwell: aparece %2 veces, activada, archivo: %1</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, well formed; to put it back:</source>
        <translation>Copia de seguridad del %1, %2 bytes, bien formada; para restaurarla:</translation>
    </message>
    <message>
        <source>Older backups: %1</source>
        <translation>Copias de seguridad anteriores: %1</translation>
    </message>
    <message>
        <source>Record: agrees</source>
        <translation>Registro: coincide</translation>
    </message>
    <message>
        <source>Record: in %1</source>
        <translation>Registro: en %1</translation>
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
        <translation>Todo está bien.</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>Qué hay que hacer:</translation>
    </message>
    <message>
        <source>Configuration: no Proton prefix</source>
        <translation>Configuración: sin prefijo de Proton</translation>
    </message>
    <message>
        <source>In the Proton prefix %1</source>
        <translation>En el prefijo de Proton %1</translation>
    </message>
    <message>
        <source>no named file</source>
        <translation>no indicado</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, damaged</source>
        <translation>Copia de seguridad del %1, %2 bytes, dañada</translation>
    </message>
    <message>
        <source>Configuration: %1, a link that leads nowhere</source>
        <translation>Configuración: %1, un enlace roto</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::XmlDamage</name>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>No es XML bien formado: %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>The file holds nothing but white space.</source>
        <translation>El archivo solo contiene espacios en blanco.</translation>
    </message>
    <message>
        <source>The file holds nothing but zero bytes: the computer stopped while it was written, or its disk is failing.</source>
        <translation>El archivo solo contiene bytes nulos: el equipo se detuvo mientras se escribía, o su disco está fallando.</translation>
    </message>
    <message>
        <source>The file is a web page, not XML.</source>
        <translation>El archivo es una página web, no XML.</translation>
    </message>
    <message>
        <source>The file does not begin with a tag, so it is not XML.</source>
        <translation>El archivo no empieza con una etiqueta, así que no es XML.</translation>
    </message>
    <message>
        <source>Zero bytes begin in line %1: the file was not written to its end.</source>
        <translation>En la línea %1 empiezan bytes nulos: el archivo no se escribió hasta el final.</translation>
    </message>
    <message>
        <source>There are two root elements: somebody appended a second document in line %1.</source>
        <translation>Hay dos elementos raíz: alguien añadió un segundo documento en la línea %1.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed: the file ends in line %3.</source>
        <translation>&lt;%1&gt; en la línea %2 nunca se cierra: el archivo termina en la línea %3.</translation>
    </message>
    <message>
        <source>The file has no element.</source>
        <translation>El archivo no tiene ningún elemento.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a tag, which begins in line %1.</source>
        <translation>El archivo termina en medio de una etiqueta, que empieza en la línea %1.</translation>
    </message>
    <message>
        <source>A tag in line %1 has no &quot;&gt;&quot;.</source>
        <translation>A una etiqueta de la línea %1 le falta &quot;&gt;&quot;.</translation>
    </message>
    <message>
        <source>&lt;?xml ...?&gt; in line %1 has to be the very beginning of the file.</source>
        <translation>&lt;?xml ...?&gt; en la línea %1 tiene que estar al principio del archivo.</translation>
    </message>
    <message>
        <source>A second document begins in line %1: somebody appended it.</source>
        <translation>En la línea %1 empieza un segundo documento: alguien lo añadió.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 ends with &lt;/%3&gt; in line %4: letter case counts.</source>
        <translation>&lt;%1&gt; en la línea %2 termina con &lt;/%3&gt; en la línea %4: se distinguen mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes nothing: no &lt;%1&gt; is open there.</source>
        <translation>&lt;/%1&gt; en la línea %2 no cierra nada: allí no hay ningún &lt;%1&gt; abierto.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed; &lt;/%3&gt; in line %4 came first.</source>
        <translation>&lt;%1&gt; en la línea %2 nunca se cierra; antes aparece &lt;/%3&gt; en la línea %4.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; comes a second time in line %2: behind the document is the rest of an older, longer file.</source>
        <translation>&lt;/%1&gt; aparece por segunda vez en la línea %2: después del documento está el resto de un archivo anterior más largo.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes an element that was never opened: the line with &lt;%1 ...&gt; is lost.</source>
        <translation>&lt;/%1&gt; en la línea %2 cierra un elemento que nunca se abrió: se ha perdido la línea con &lt;%1 ...&gt;.</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in line %1 begins no tag; as text it is written &quot;&amp;lt;&quot;.</source>
        <translation>&quot;&lt;&quot; en la línea %1 no empieza ninguna etiqueta; como texto se escribe &quot;&amp;lt;&quot;.</translation>
    </message>
    <message>
        <source>%1 in line %2 is no tag; what is meant is %3.</source>
        <translation>%1 en la línea %2 no es una etiqueta; debería ser %3.</translation>
    </message>
    <message>
        <source>Behind the end of the document, in line %1, there is more text: the rest of an older, longer file?</source>
        <translation>Después del final del documento, en la línea %1, hay más texto: ¿el resto de un archivo anterior más largo?</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; in line %1 has to be written &quot;&amp;amp;&quot;.</source>
        <translation>&quot;&amp;&quot; en la línea %1 se tiene que escribir &quot;&amp;amp;&quot;.</translation>
    </message>
    <message>
        <source>Line %1 holds a control character, which XML does not allow.</source>
        <translation>La línea %1 contiene un carácter de control, que XML no permite.</translation>
    </message>
    <message>
        <source>A quotation mark is missing in a tag in line %1.</source>
        <translation>Falta una comilla en una etiqueta de la línea %1.</translation>
    </message>
    <message>
        <source>The value of %1 in line %2 has no quotation marks.</source>
        <translation>El valor de %1 en la línea %2 no está entre comillas.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::ViewControllers::ScanController</name>
    <message>
        <source>Quillmont Orbwell have successfully installed Orbwell plugin to %0.</source>
        <translation>Quillmont Orbwell ha instalado correctamente el plugin Orbwell en %0.</translation>
    </message>
    <message>
        <source>Orbwell plugin is installed in all simulators.</source>
        <translation>El plugin Orbwell está instalado en todos los simuladores.</translation>
    </message>
    <message>
        <source>There are no other simulator found for install Orbwell plugin.</source>
        <translation>No se ha encontrado ningún otro simulador en el que instalar el plugin Orbwell.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Configuración de Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Unable to copy &apos;%0&apos; to &apos;%1&apos;. Please check if you have permission to folder &apos;%2&apos;.<byte value="xd"/>
</source>
        <translation>No se puede copiar «%0» en «%1». Compruebe que tiene permisos para la carpeta «%2».<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Instalación completada</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Instalación</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to install your Orbwell plugin to %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Quillmont Orbwell no ha podido instalar el plugin Orbwell en %0.<byte value="xd"/>
<byte value="xd"/>
Consulte los detalles en la siguiente lista:<byte value="xd"/>
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
        <translation>Quillmont Orbwell ha modificado plugins en su equipo (%1).<byte value="xd"/>
<byte value="xd"/>
Consulte los detalles en la siguiente lista:<byte value="xd"/>
<byte value="xd"/>
%0</translation>
    </message>
    <message>
        <source>The file &apos;%0&apos; is empty. Quillmont Orbwell installer was not able to change your configuration.</source>
        <translation>El archivo «%0» está vacío. El instalador de Quillmont Orbwell no ha podido cambiar su configuración.</translation>
    </message>
    <message>
        <source>Unable to write configuration to file &apos;%0&apos;. Please check if you have permission to that file.</source>
        <translation>No se puede escribir la configuración en el archivo «%0». Compruebe que tiene permisos para ese archivo.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalación</translation>
    </message>
    <message>
        <source>Quillmont Orbwell for %0 has been uninstalled successfully.</source>
        <translation>Quillmont Orbwell para %0 se ha desinstalado correctamente.</translation>
    </message>
    <message>
        <source>Unable to remove file &apos;%0&apos; from %1. Please remove the file manually.<byte value="xd"/>
</source>
        <translation>No se puede eliminar el archivo «%0» de %1. Elimine el archivo manualmente.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to uninstall your Orbwell plugin from %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Quillmont Orbwell no ha podido desinstalar el plugin Orbwell de %0.<byte value="xd"/>
<byte value="xd"/>
Consulte los detalles en la siguiente lista:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Views::ScannerView</name>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Configuración de Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Orbwell will automatically detect your simulators and install the plugin in each. Please verify below. To manually scan and install again, press &quot;Scan &amp; Install&quot; below.</source>
        <translation>Orbwell detectará automáticamente sus simuladores e instalará el plugin en cada uno de ellos. Compruebe el resultado a continuación. Para volver a buscar e instalar manualmente, pulse «Buscar &amp; instalar» más abajo.</translation>
    </message>
    <message>
        <source>Simulators</source>
        <translation>Simuladores</translation>
    </message>
    <message>
        <source>There are no simulators to show. The file flightsims.json beside this program is missing, empty or damaged. Please install Quillmont Orbwell again.</source>
        <translation>No hay simuladores que mostrar. El archivo flightsims.json de la carpeta de este programa falta, está vacío o está dañado. Vuelva a instalar Quillmont Orbwell.</translation>
    </message>
    <message>
        <source>Scan &amp;&amp; Install</source>
        <translation>Buscar &amp;&amp; instalar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message numerus="yes">
        <source>Scan found %0 flight simulators installed.</source>
        <translation>
            <numerusform>La búsqueda ha encontrado %0 simulador de vuelo instalado.</numerusform>
            <numerusform>La búsqueda ha encontrado %0 simuladores de vuelo instalados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan found 1 flight simulator installed.</source>
        <translation>La búsqueda ha encontrado 1 simulador de vuelo instalado.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.</source>
        <translation>El instalador de Quillmont Orbwell no encuentra ningún simulador de vuelo. Indique la carpeta manualmente.</translation>
    </message>
    <message>
        <source>Scan completed</source>
        <translation>Búsqueda completada</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Widgets::AddonListItem</name>
    <message>
        <source>Path not set</source>
        <translation>Ruta no definida</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Folder of %0</source>
        <translation>Carpeta de %0</translation>
    </message>
    <message>
        <source>Choose the folder of %0</source>
        <translation>Elegir la carpeta de %0</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Invalid path</source>
        <translation>Ruta no válida</translation>
    </message>
    <message>
        <source>This path is invalid</source>
        <translation>Esta ruta no es válida</translation>
    </message>
    <message>
        <source>This simulator was not found. If you have it, press &quot;...&quot; and choose its folder.</source>
        <translation>No se ha encontrado este simulador. Si lo tiene, pulse «...» y elija su carpeta.</translation>
    </message>
    <message>
        <source>Uninstall Orbwell</source>
        <translation>Desinstalar Orbwell</translation>
    </message>
    <message>
        <source>Install Orbwell</source>
        <translation>Instalar Orbwell</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>Folder not known</source>
        <translation>Carpeta desconocida</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Carpeta no encontrada</translation>
    </message>
    <message>
        <source>Orbwell is installed</source>
        <translation>Orbwell está instalado</translation>
    </message>
    <message>
        <source>Orbwell is not installed</source>
        <translation>Orbwell no está instalado</translation>
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
        <translation>Archivo %0 de %1: %2</translation>
    </message>
    <message>
        <source>Installing Orbwell</source>
        <translation>Instalando Orbwell</translation>
    </message>
    <message>
        <source>Uninstalling Orbwell</source>
        <translation>Desinstalando Orbwell</translation>
    </message>
</context>
</TS>
