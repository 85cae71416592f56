<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
</TS>
