<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::ViewControllers::ScanController</name>
    <message>
        <source>Quillmont Orbwell have successfully installed Orbwell plugin to %0.</source>
        <translation>O Quillmont Orbwell instalou o plugin Orbwell com êxito em: %0.</translation>
    </message>
    <message>
        <source>Orbwell plugin is installed in all simulators.</source>
        <translation>O plugin Orbwell está instalado em todos os simuladores.</translation>
    </message>
    <message>
        <source>There are no other simulator found for install Orbwell plugin.</source>
        <translation>Não foi encontrado nenhum outro simulador no qual instalar o plugin Orbwell.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Configurações do Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Unable to copy &apos;%0&apos; to &apos;%1&apos;. Please check if you have permission to folder &apos;%2&apos;.<byte value="xd"/>
</source>
        <translation>Não foi possível copiar “%0” para “%1”. Verifique se você tem permissão para acessar a pasta “%2”.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>Instalação concluída</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Instalação</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to install your Orbwell plugin to %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>O Quillmont Orbwell não conseguiu instalar o plugin Orbwell no %0.<byte value="xd"/>
<byte value="xd"/>
Veja os detalhes na lista abaixo:<byte value="xd"/>
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
        <translation>O Quillmont Orbwell alterou plugins no seu computador (%1).<byte value="xd"/>
<byte value="xd"/>
Veja os detalhes na lista abaixo:<byte value="xd"/>
<byte value="xd"/>
%0</translation>
    </message>
    <message>
        <source>The file &apos;%0&apos; is empty. Quillmont Orbwell installer was not able to change your configuration.</source>
        <translation>O arquivo “%0” está vazio. O instalador do Quillmont Orbwell não conseguiu alterar a configuração.</translation>
    </message>
    <message>
        <source>Unable to write configuration to file &apos;%0&apos;. Please check if you have permission to that file.</source>
        <translation>Não foi possível gravar a configuração no arquivo “%0”. Verifique se você tem permissão para acessar esse arquivo.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalação</translation>
    </message>
    <message>
        <source>Quillmont Orbwell for %0 has been uninstalled successfully.</source>
        <translation>O Quillmont Orbwell para o %0 foi desinstalado com êxito.</translation>
    </message>
    <message>
        <source>Unable to remove file &apos;%0&apos; from %1. Please remove the file manually.<byte value="xd"/>
</source>
        <translation>Não foi possível remover o arquivo “%0” do %1. Remova o arquivo manualmente.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to uninstall your Orbwell plugin from %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>O Quillmont Orbwell não conseguiu desinstalar o plugin Orbwell do %0.<byte value="xd"/>
<byte value="xd"/>
Veja os detalhes na lista abaixo:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Views::ScannerView</name>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Configurações do Quillmont Orbwell</translation>
    </message>
    <message>
        <source>Orbwell will automatically detect your simulators and install the plugin in each. Please verify below. To manually scan and install again, press &quot;Scan &amp; Install&quot; below.</source>
        <translation>O Orbwell detecta automaticamente os seus simuladores e instala o plugin em cada um deles. Confira a lista abaixo. Para buscar e instalar de novo manualmente, clique em “Buscar &amp; instalar” abaixo.</translation>
    </message>
    <message>
        <source>Simulators</source>
        <translation>Simuladores</translation>
    </message>
    <message>
        <source>There are no simulators to show. The file flightsims.json beside this program is missing, empty or damaged. Please install Quillmont Orbwell again.</source>
        <translation>Não há simuladores para mostrar. O arquivo flightsims.json, que deveria estar na pasta deste programa, não existe, está vazio ou está danificado. Instale o Quillmont Orbwell novamente.</translation>
    </message>
    <message>
        <source>Scan &amp;&amp; Install</source>
        <translation>Buscar &amp;&amp; instalar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message numerus="yes">
        <source>Scan found %0 flight simulators installed.</source>
        <translation>
            <numerusform>A busca encontrou %0 simulador de voo instalado.</numerusform>
            <numerusform>A busca encontrou %0 simuladores de voo instalados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan found 1 flight simulator installed.</source>
        <translation>A busca encontrou 1 simulador de voo instalado.</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.</source>
        <translation>O instalador do Quillmont Orbwell não encontrou nenhum simulador de voo. Indique a pasta manualmente.</translation>
    </message>
    <message>
        <source>Scan completed</source>
        <translation>Busca concluída</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Widgets::AddonListItem</name>
    <message>
        <source>Path not set</source>
        <translation>Caminho não definido</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Folder of %0</source>
        <translation>Pasta do %0</translation>
    </message>
    <message>
        <source>Choose the folder of %0</source>
        <translation>Escolher a pasta do %0</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Invalid path</source>
        <translation>Caminho inválido</translation>
    </message>
    <message>
        <source>This path is invalid</source>
        <translation>Este caminho é inválido</translation>
    </message>
    <message>
        <source>This simulator was not found. If you have it, press &quot;...&quot; and choose its folder.</source>
        <translation>Este simulador não foi encontrado. Se você o tiver, clique em “...” e escolha a pasta dele.</translation>
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
        <translation>Pasta desconhecida</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Pasta não encontrada</translation>
    </message>
    <message>
        <source>Orbwell is installed</source>
        <translation>O Orbwell está instalado</translation>
    </message>
    <message>
        <source>Orbwell is not installed</source>
        <translation>O Orbwell não está instalado</translation>
    </message>
</context>
</TS>
