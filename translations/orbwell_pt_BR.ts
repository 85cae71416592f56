<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::Doctor::Advice</name>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Conceda ao seu usuário permissão para lê-lo.</translation>
    </message>
    <message>
        <source>Move it away, or make it smaller by hand.</source>
        <translation>Mova-o para outro lugar ou reduza o tamanho dele manualmente.</translation>
    </message>
    <message>
        <source>Move it away.</source>
        <translation>Mova-o para outro lugar.</translation>
    </message>
    <message>
        <source>Mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Corrija o arquivo manualmente; até lá, nada será alterado nele e o simulador talvez não carregue nenhum complemento.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back, or mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>Restaure o backup de %1 ou corrija o arquivo manualmente; até lá, nada será alterado nele e o simulador talvez não carregue nenhum complemento.</translation>
    </message>
    <message>
        <source>Move it away; until then the simulator may load no add-on at all.</source>
        <translation>Mova-o para outro lugar; até lá, o simulador talvez não carregue nenhum complemento.</translation>
    </message>
    <message>
        <source>Put the backup of %1 back; until then the simulator may load no add-on at all.</source>
        <translation>Restaure o backup de %1; até lá, o simulador talvez não carregue nenhum complemento.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::CatalogueCheck</name>
    <message>
        <source>It is no JSON: %1. The program sees no simulator.</source>
        <translation>Não é JSON: %1. O programa não vê nenhum simulador.</translation>
    </message>
    <message>
        <source>It is no array. The program sees no simulator.</source>
        <translation>Não é um array. O programa não vê nenhum simulador.</translation>
    </message>
    <message>
        <source>The key is there twice; the last one counts.</source>
        <translation>A chave aparece duas vezes; vale a última.</translation>
    </message>
    <message>
        <source>Unknown key; it is ignored.</source>
        <translation>Chave desconhecida; é ignorada.</translation>
    </message>
    <message>
        <source>Its type is %1, not %2; it counts as missing.</source>
        <translation>O tipo é %1, não %2; o valor é tratado como ausente.</translation>
    </message>
    <message>
        <source>The simulator has no name.</source>
        <translation>O simulador não tem nome.</translation>
    </message>
    <message>
        <source>Line %1 has the same name; both share one record and one chosen folder.</source>
        <translation>Na linha %1 está o mesmo nome; as duas entradas compartilham um mesmo registro e uma mesma pasta escolhida.</translation>
    </message>
    <message>
        <source>There are no files; nothing is installed, and it counts as installed.</source>
        <translation>Não há arquivos; nada é instalado e a entrada é considerada instalada.</translation>
    </message>
    <message>
        <source>The payload has no file %1; it cannot be copied.</source>
        <translation>Falta %1 entre os arquivos fornecidos; esse arquivo não pode ser copiado.</translation>
    </message>
    <message>
        <source>There is no destination; it is the simulator&apos;s folder itself.</source>
        <translation>Não há destino; é usada a própria pasta do simulador.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the simulator&apos;s folder; the file is written there.</source>
        <translation>&quot;..&quot; sai da pasta do simulador; o arquivo é gravado fora dela.</translation>
    </message>
    <message>
        <source>Another file has the same destination; the later one is copied.</source>
        <translation>Outro arquivo tem o mesmo destino; o último é copiado.</translation>
    </message>
    <message>
        <source>It is only read beside a &quot;config&quot; that is null or not empty; it is ignored.</source>
        <translation>Só é lido junto de um &quot;config&quot; que seja null ou não esteja vazio; aqui é ignorado.</translation>
    </message>
    <message>
        <source>&quot;type&quot; is not 0, so no configuration file is touched.</source>
        <translation>&quot;type&quot; não é 0, então nenhum arquivo de configuração é alterado.</translation>
    </message>
    <message>
        <source>There is no path; no file can be edited.</source>
        <translation>Não há caminho; nenhum arquivo pode ser editado.</translation>
    </message>
    <message>
        <source>Without &quot;parent&quot; and &quot;values&quot; no entry is added.</source>
        <translation>Sem &quot;parent&quot; e &quot;values&quot; nenhuma entrada é adicionada.</translation>
    </message>
    <message>
        <source>This entry installs, but cannot be removed: no pair of &quot;values&quot; is what &quot;remove&quot; looks for.</source>
        <translation>Esta entrada é instalada, mas não pode ser removida: nenhum par de &quot;values&quot; corresponde ao que &quot;remove&quot; procura.</translation>
    </message>
    <message>
        <source>Only the child element is removed, and the rest of the entry stays: &quot;delete_parent&quot; is not true.</source>
        <translation>Só o elemento filho é removido e o resto da entrada permanece: &quot;delete_parent&quot; não é true.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Está tudo certo.</translation>
    </message>
    <message>
        <source>It is no whole number; it counts as 0.</source>
        <translation>Não é um número inteiro; é interpretado como 0.</translation>
    </message>
    <message>
        <source>There is no such location; the entry itself never finds anything.</source>
        <translation>Essa &quot;location&quot; não existe; a entrada por si só nunca encontra nada.</translation>
    </message>
    <message>
        <source>It shares its chosen folder with the name in line %1.</source>
        <translation>Compartilha a pasta escolhida com o nome da linha %1.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the payload.</source>
        <translation>&quot;..&quot; sai da pasta dos arquivos fornecidos.</translation>
    </message>
    <message>
        <source>Without &quot;config&quot; no configuration file is touched.</source>
        <translation>Sem &quot;config&quot; nenhum arquivo de configuração é alterado.</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the folder of such files.</source>
        <translation>&quot;..&quot; sai da pasta dos arquivos de configuração.</translation>
    </message>
    <message>
        <source>XML cannot hold this; the entry is never added.</source>
        <translation>Isto não pode ser representado em XML; a entrada nunca é adicionada.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::ConfigurationCheck</name>
    <message>
        <source>The simulator has no Proton prefix, so its configuration file is unknown.</source>
        <translation>O simulador não tem prefixo do Proton, então o arquivo de configuração dele é desconhecido.</translation>
    </message>
    <message>
        <source>Start the simulator once from Steam, then install again.</source>
        <translation>Inicie o simulador uma vez pelo Steam e depois instale de novo.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Conceda ao seu usuário permissão para gravar lá.</translation>
    </message>
    <message>
        <source>The configuration file %1 is missing.</source>
        <translation>Falta o arquivo de configuração %1.</translation>
    </message>
    <message>
        <source>Uninstall and install again; the file is made anew.</source>
        <translation>Desinstale e instale de novo; o arquivo será criado novamente.</translation>
    </message>
    <message>
        <source>The configuration file %1 cannot be read: %2.</source>
        <translation>Não é possível ler o arquivo de configuração %1: %2.</translation>
    </message>
    <message>
        <source>The configuration file %1 is damaged. %2</source>
        <translation>O arquivo de configuração %1 está danificado. %2</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Desinstale e instale de novo.</translation>
    </message>
    <message>
        <source>The plugin&apos;s files are there, but %1 has no entry for it.</source>
        <translation>Os arquivos do plugin estão lá, mas em %1 não há entrada para ele.</translation>
    </message>
    <message>
        <source>%1 has an entry for the plugin, whose files are not there.</source>
        <translation>Em %1 há uma entrada para o plugin, mas os arquivos dele não estão lá.</translation>
    </message>
    <message>
        <source>Install it, or uninstall it to take the entry out.</source>
        <translation>Instale o plugin ou desinstale-o para remover a entrada.</translation>
    </message>
    <message>
        <source>Our entry is in %1 %2 times.</source>
        <translation>A entrada do Orbwell aparece %2 vezes em %1.</translation>
    </message>
    <message>
        <source>Our entry in %1 is disabled.</source>
        <translation>A entrada do Orbwell em %1 está desativada.</translation>
    </message>
    <message>
        <source>Our entry in %1 names the file %2, which is missing.</source>
        <translation>A entrada do Orbwell em %1 indica o arquivo %2, que não existe.</translation>
    </message>
    <message>
        <source>The configuration file %1 is a web page.</source>
        <translation>O arquivo de configuração %1 é uma página da web.</translation>
    </message>
    <message>
        <source>The configuration file cannot be made: %1 is a link that leads nowhere.</source>
        <translation>Não é possível criar o arquivo de configuração: %1 é um link quebrado.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Exclua o link e depois instale.</translation>
    </message>
    <message>
        <source>You may not change the configuration file %1, or not write in its folder.</source>
        <translation>Você não tem permissão para alterar o arquivo de configuração %1 ou para gravar na pasta dele.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Doctor</name>
    <message>
        <source>The catalogue %1 is no JSON array; --check-catalogue says more.</source>
        <translation>O catálogo %1 não é um array JSON; --check-catalogue dá mais detalhes.</translation>
    </message>
    <message>
        <source>The catalogue has no simulator %1.</source>
        <translation>Não há no catálogo nenhum simulador chamado %1.</translation>
    </message>
    <message>
        <source>Try &quot;orbwell-doctor --help&quot;.</source>
        <translation>Tente &quot;orbwell-doctor --help&quot;.</translation>
    </message>
    <message>
        <source>The answer cannot be written: %1.</source>
        <translation>Não é possível gravar a resposta: %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Não é possível ler o catálogo %1: %2.</translation>
    </message>
    <message>
        <source>The catalogue %1 is empty.</source>
        <translation>O catálogo %1 está vazio.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Examination</name>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>A pasta %1 não existe mais.</translation>
    </message>
    <message>
        <source>Choose its folder in the window.</source>
        <translation>Escolha a pasta do simulador na janela.</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 é um arquivo, não uma pasta.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>Libere espaço no disco de %1.</translation>
    </message>
    <message>
        <source>The disk has room for %1 bytes; what is written there takes %2.</source>
        <translation>O disco tem %1 bytes livres; o que é gravado nele precisa de %2.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::FilesCheck</name>
    <message>
        <source>The payload lacks %1, so it cannot be installed.</source>
        <translation>Falta %1 entre os arquivos fornecidos; esse arquivo não pode ser instalado.</translation>
    </message>
    <message>
        <source>Install this program again, or complete its &quot;plugins&quot; folder.</source>
        <translation>Instale este programa de novo ou complete a pasta &quot;plugins&quot; dele.</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>Desinstale e instale de novo.</translation>
    </message>
    <message>
        <source>In the place of %1 is a link that leads nowhere.</source>
        <translation>Há um link quebrado no lugar de: %1.</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>Exclua o link e depois instale.</translation>
    </message>
    <message>
        <source>%1 is no regular file.</source>
        <translation>Não é um arquivo comum: %1.</translation>
    </message>
    <message>
        <source>Move it away, then install.</source>
        <translation>Mova o que está lá para outro lugar e depois instale.</translation>
    </message>
    <message>
        <source>Only a part of the plugin is there; %1 is missing.</source>
        <translation>Só uma parte do plugin está instalada; arquivos faltando: %1.</translation>
    </message>
    <message>
        <source>Install it.</source>
        <translation>Instale o plugin.</translation>
    </message>
    <message>
        <source>%1 differs from the file that comes with this program: another version, or damaged.</source>
        <translation>Arquivos diferentes dos fornecidos com este programa (outra versão, ou danificados): %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Não é possível ler: %1.</translation>
    </message>
    <message>
        <source>You may not write in the folder of %1.</source>
        <translation>Você não tem permissão para gravar na pasta de %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Conceda ao seu usuário permissão para gravar lá.</translation>
    </message>
    <message>
        <source>You may not read %1, so it cannot be installed.</source>
        <translation>Você não tem permissão para ler %1; esse arquivo não pode ser instalado.</translation>
    </message>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>Conceda ao seu usuário permissão para lê-lo.</translation>
    </message>
    <message>
        <source>In the place of the folder %1 is a link that leads nowhere.</source>
        <translation>No lugar da pasta %1 há um link quebrado.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder has to be.</source>
        <translation>%1 é um arquivo, mas no lugar dele tem de haver uma pasta.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Options</name>
    <message>
        <source>%1: a plan is for &quot;install&quot;, &quot;repair&quot; or &quot;uninstall&quot;.</source>
        <translation>%1: um plano só pode ser para &quot;install&quot;, &quot;repair&quot; ou &quot;uninstall&quot;.</translation>
    </message>
    <message>
        <source>--catalogue needs a file.</source>
        <translation>--catalogue precisa de um arquivo.</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Opção desconhecida: %1.</translation>
    </message>
    <message>
        <source>Unknown option %1. Is %2 meant?</source>
        <translation>Opção desconhecida: %1. Você quis dizer %2?</translation>
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
        <translation>Uso: orbwell-doctor [OPÇÃO...] [NOME...]
Indica o que há de errado com os simuladores e com o plugin Orbwell neles. Não altera nada.

  --json               o relatório, o plano ou a verificação em formato JSON
  --plan[=AÇÃO]        o que &quot;install&quot; (padrão), &quot;repair&quot; ou &quot;uninstall&quot; faria
  --catalogue ARQUIVO  usa outro catálogo, e a pasta &quot;plugins&quot; ao lado dele, se houver
  --check-catalogue    só o que há de errado no catálogo
  --help, --version

Com um ou mais NOME, o relatório ou o plano se limita a esses simuladores.
Status de saída: 0 tudo certo, 1 algo errado, 2 não foi possível verificar.
</translation>
    </message>
    <message>
        <source>--check-catalogue takes no names.</source>
        <translation>--check-catalogue não aceita nomes.</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 e %2 se excluem mutuamente.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Plan</name>
    <message>
        <source>No simulator is found, so nothing would change.</source>
        <translation>Nenhum simulador foi encontrado, então nada mudaria.</translation>
    </message>
    <message>
        <source>Folder made: %1</source>
        <translation>Pasta criada: %1</translation>
    </message>
    <message>
        <source>Folder removed: %1</source>
        <translation>Pasta removida: %1</translation>
    </message>
    <message>
        <source>Backup made: %1</source>
        <translation>Backup criado: %1</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problema: %1</translation>
    </message>
    <message>
        <source>%1: install in %2</source>
        <translation>%1: instalar em %2</translation>
    </message>
    <message>
        <source>%1: repair in %2</source>
        <translation>%1: reparar em %2</translation>
    </message>
    <message>
        <source>%1: uninstall in %2</source>
        <translation>%1: desinstalar de %2</translation>
    </message>
    <message>
        <source>File made: %1</source>
        <translation>Arquivo criado: %1</translation>
    </message>
    <message>
        <source>File replaced: %1</source>
        <translation>Arquivo substituído: %1</translation>
    </message>
    <message>
        <source>File unchanged: %1</source>
        <translation>Arquivo inalterado: %1</translation>
    </message>
    <message>
        <source>File removed: %1</source>
        <translation>Arquivo removido: %1</translation>
    </message>
    <message>
        <source>Configuration made: %1</source>
        <translation>Configuração criada: %1</translation>
    </message>
    <message>
        <source>Configuration changed: %1</source>
        <translation>Configuração alterada: %1</translation>
    </message>
    <message>
        <source>Configuration unchanged: %1</source>
        <translation>Configuração inalterada: %1</translation>
    </message>
    <message>
        <source>Record made: %1</source>
        <translation>Registro criado: %1</translation>
    </message>
    <message>
        <source>Record changed: %1</source>
        <translation>Registro alterado: %1</translation>
    </message>
    <message>
        <source>Record unchanged: %1</source>
        <translation>Registro inalterado: %1</translation>
    </message>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>A pasta %1 não existe mais.</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Install Orbwell&quot;</source>
        <translation>Botão na janela: “Instalar Orbwell”</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Uninstall Orbwell&quot;</source>
        <translation>Botão na janela: “Desinstalar Orbwell”</translation>
    </message>
    <message>
        <source>Button in the window: disabled</source>
        <translation>Botão na janela: desativado</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Reasons</name>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>linha %1, coluna %2: %3</translation>
    </message>
    <message>
        <source>X-Plane&apos;s own list</source>
        <translation>a lista do próprio X-Plane</translation>
    </message>
    <message>
        <source>FlightGear&apos;s launcher</source>
        <translation>o inicializador do FlightGear</translation>
    </message>
    <message>
        <source>a well-known folder</source>
        <translation>uma pasta habitual</translation>
    </message>
    <message>
        <source>UserCfg.opt in Steam&apos;s Proton prefix</source>
        <translation>UserCfg.opt no prefixo do Proton do Steam</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>escolha manual</translation>
    </message>
    <message>
        <source>the catalogue&apos;s file</source>
        <translation>o arquivo do catálogo</translation>
    </message>
    <message>
        <source>the catalogue&apos;s folder</source>
        <translation>a pasta do catálogo</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>a pasta não existe</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>não é um caminho absoluto</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>não é uma pasta</translation>
    </message>
    <message>
        <source>no permission to look inside</source>
        <translation>sem permissão para ver o conteúdo</translation>
    </message>
    <message>
        <source>no file &quot;version&quot; that begins with a version number</source>
        <translation>não há arquivo &quot;version&quot; que comece com um número de versão</translation>
    </message>
    <message>
        <source>no defaults.xml or preferences.xml</source>
        <translation>não há defaults.xml nem preferences.xml</translation>
    </message>
    <message>
        <source>no InstalledPackagesPath in it</source>
        <translation>não contém InstalledPackagesPath</translation>
    </message>
    <message>
        <source>its InstalledPackagesPath does not begin with a drive</source>
        <translation>o InstalledPackagesPath dele não começa com uma letra de unidade</translation>
    </message>
    <message>
        <source>no Community, Official/Steam or Official/OneStore</source>
        <translation>não há Community, Official/Steam nem Official/OneStore</translation>
    </message>
    <message>
        <source>no Community, Official2024 or StreamedPackages</source>
        <translation>não há Community, Official2024 nem StreamedPackages</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>não pode ser lido</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>grande demais</translation>
    </message>
    <message>
        <source>too much to read altogether</source>
        <translation>dados demais para ler no total</translation>
    </message>
    <message>
        <source>no fsx.exe</source>
        <translation>não há fsx.exe</translation>
    </message>
    <message>
        <source>no SimObjects</source>
        <translation>não há SimObjects</translation>
    </message>
    <message>
        <source>no scenery</source>
        <translation>não há scenery</translation>
    </message>
    <message>
        <source>no aircraft</source>
        <translation>não há aircraft</translation>
    </message>
    <message>
        <source>no main.mcf or tm.log</source>
        <translation>não há main.mcf nem tm.log</translation>
    </message>
    <message>
        <source>it has no Proton prefix</source>
        <translation>não tem prefixo do Proton</translation>
    </message>
    <message>
        <source>no list of libraries</source>
        <translation>não é uma lista de bibliotecas</translation>
    </message>
    <message>
        <source>cut off, or not in Steam&apos;s text format</source>
        <translation>truncado, ou não está no formato de texto do Steam</translation>
    </message>
    <message>
        <source>uninstalled (StateFlags %1)</source>
        <translation>desinstalado (StateFlags %1)</translation>
    </message>
    <message>
        <source>not fully installed (StateFlags %1)</source>
        <translation>não instalado por completo (StateFlags %1)</translation>
    </message>
    <message>
        <source>no AppState in it</source>
        <translation>não contém AppState</translation>
    </message>
    <message>
        <source>it is about another game</source>
        <translation>refere-se a outro jogo</translation>
    </message>
    <message>
        <source>installdir is not a plain name</source>
        <translation>installdir não é um nome simples</translation>
    </message>
    <message>
        <source>no Resources/plugins</source>
        <translation>não há Resources/plugins</translation>
    </message>
    <message>
        <source>no X-Plane executable</source>
        <translation>não há executável do X-Plane</translation>
    </message>
    <message>
        <source>it is X-Plane %1</source>
        <translation>é o X-Plane %1</translation>
    </message>
    <message>
        <source>it is taken as %1</source>
        <translation>já está atribuída a %1</translation>
    </message>
    <message>
        <source>Second byte-order mark.</source>
        <translation>Segunda marca de ordem de bytes.</translation>
    </message>
    <message>
        <source>Invalid entity name.</source>
        <translation>Nome de entidade inválido.</translation>
    </message>
    <message>
        <source>Invalid processing instruction name.</source>
        <translation>Nome de instrução de processamento inválido.</translation>
    </message>
    <message>
        <source>Invalid XML declaration.</source>
        <translation>Declaração XML inválida.</translation>
    </message>
    <message>
        <source>Invalid character reference.</source>
        <translation>Referência de caractere inválida.</translation>
    </message>
    <message>
        <source>Invalid element name.</source>
        <translation>Nome de elemento inválido.</translation>
    </message>
    <message>
        <source>Invalid attribute name.</source>
        <translation>Nome de atributo inválido.</translation>
    </message>
    <message>
        <source>Invalid character in the document type declaration.</source>
        <translation>Caractere inválido na declaração de tipo de documento.</translation>
    </message>
    <message>
        <source>Entities grow to too much text.</source>
        <translation>As entidades geram texto demais.</translation>
    </message>
    <message>
        <source>No XML has this character.</source>
        <translation>O XML não permite este caractere.</translation>
    </message>
    <message>
        <source>The root element is not where it should be.</source>
        <translation>O elemento raiz não está onde deveria estar.</translation>
    </message>
    <message>
        <source>The entry to change comes out of an entity.</source>
        <translation>A entrada a alterar vem de uma entidade.</translation>
    </message>
    <message>
        <source>The element to remove comes out of an entity.</source>
        <translation>O elemento a remover vem de uma entidade.</translation>
    </message>
    <message>
        <source>Undecodable bytes would be read otherwise.</source>
        <translation>Bytes que não podem ser decodificados seriam lidos de outra forma.</translation>
    </message>
    <message>
        <source>A value is no text that XML can hold.</source>
        <translation>O texto de um valor não pode ser representado em XML.</translation>
    </message>
    <message>
        <source>The element to change comes out of an entity.</source>
        <translation>O elemento a alterar vem de uma entidade.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold an end tag.</source>
        <translation>A codificação do arquivo não pode representar uma tag de fechamento.</translation>
    </message>
    <message>
        <source>A name or a value is none that XML can hold.</source>
        <translation>Um nome ou um valor não pode ser representado em XML.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold a name.</source>
        <translation>A codificação do arquivo não pode representar um nome.</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>too big</source>
        <translation>grande demais</translation>
    </message>
    <message>
        <source>its name is not valid text</source>
        <translation>o nome dele não é um texto válido</translation>
    </message>
    <message>
        <source>the catalogue&apos;s location</source>
        <translation>a &quot;location&quot; do catálogo</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>o arquivo não existe</translation>
    </message>
    <message>
        <source>no registry on this system</source>
        <translation>este sistema não tem registro do Windows</translation>
    </message>
    <message>
        <source>looked for on Windows only</source>
        <translation>procurado apenas no Windows</translation>
    </message>
    <message>
        <source>no such &quot;location&quot;</source>
        <translation>essa &quot;location&quot; não existe</translation>
    </message>
    <message>
        <source>another one was chosen by hand</source>
        <translation>outra foi escolhida manualmente</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::RecordCheck</name>
    <message>
        <source>The installation record %1 cannot be read: %2.</source>
        <translation>Não é possível ler o registro de instalação %1: %2.</translation>
    </message>
    <message>
        <source>The installation record %1 is damaged; what it said is lost.</source>
        <translation>O registro de instalação %1 está danificado; o conteúdo dele se perdeu.</translation>
    </message>
    <message>
        <source>Install again; a new record is written then.</source>
        <translation>Instale de novo; um novo registro será gravado.</translation>
    </message>
    <message>
        <source>The plugin is there, but not in the installation record.</source>
        <translation>O plugin está instalado, mas não consta no registro de instalação.</translation>
    </message>
    <message>
        <source>Press &quot;Scan &amp; Install&quot; in the window; it is recorded then.</source>
        <translation>Clique em “Buscar &amp; instalar” na janela; assim ele será registrado.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, but files are missing there.</source>
        <translation>Segundo o registro de instalação, o plugin está em %1, mas faltam arquivos lá.</translation>
    </message>
    <message>
        <source>Install it again.</source>
        <translation>Instale-o de novo.</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, not in %2. Unattended runs work on the first, the window on the second.</source>
        <translation>Segundo o registro de instalação, o plugin está em %1, não em %2. As execuções não assistidas usam a primeira pasta; a janela, a segunda.</translation>
    </message>
    <message>
        <source>Choose the folder in the window, then install or uninstall there.</source>
        <translation>Escolha a pasta na janela e depois instale ou desinstale lá.</translation>
    </message>
    <message>
        <source>The installation record has %1 in %2, which the catalogue no longer knows.</source>
        <translation>O registro de instalação contém %1 em %2, mas esse simulador não está mais no catálogo.</translation>
    </message>
    <message>
        <source>Remove the plugin there by hand, if it is no longer wanted.</source>
        <translation>Remova o plugin de lá manualmente, se não o quiser mais.</translation>
    </message>
    <message>
        <source>Nothing can be recorded: %1 is a link that leads nowhere.</source>
        <translation>Não é possível anotar nada no registro de instalação: %1 é um link quebrado.</translation>
    </message>
    <message>
        <source>Delete the link.</source>
        <translation>Exclua o link.</translation>
    </message>
    <message>
        <source>You may not write the installation record %1.</source>
        <translation>Você não tem permissão para gravar o registro de instalação %1.</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>Conceda ao seu usuário permissão para gravar lá.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Rehearsal</name>
    <message>
        <source>%1 is a folder, and stays.</source>
        <translation>%1 é uma pasta e não é removida.</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: a folder, or a link that leads nowhere, is in its place.</source>
        <translation>Não é possível copiar %1 para %2: esse lugar está ocupado por uma pasta ou por um link quebrado.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: the payload lacks it. What is in its place goes all the same.</source>
        <translation>Não é possível copiar %1: falta entre os arquivos fornecidos. O que está no destino é removido mesmo assim.</translation>
    </message>
    <message>
        <source>%1 stays as it is: %2</source>
        <translation>%1 fica como está: %2</translation>
    </message>
    <message>
        <source>The record %1 stays as it is: %2</source>
        <translation>O registro %1 fica como está: %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: you may not write there, or the folder is missing.</source>
        <translation>Não é possível copiar %1 para %2: você não tem permissão para gravar lá, ou falta a pasta.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: you may not read it. What is in its place goes all the same.</source>
        <translation>Não é possível copiar %1: você não tem permissão para lê-lo. O que está no destino é removido mesmo assim.</translation>
    </message>
    <message>
        <source>No backup of %1 can be made: you may not write in its folder.</source>
        <translation>Não é possível criar um backup de %1: você não tem permissão para gravar na pasta dele.</translation>
    </message>
    <message>
        <source>%1 cannot be made: you may not write there, or the folder is missing.</source>
        <translation>Não é possível criar %1: você não tem permissão para gravar lá, ou falta a pasta.</translation>
    </message>
    <message>
        <source>%1 stays as it is: you may not change it, or not write in its folder.</source>
        <translation>%1 fica como está: você não tem permissão para alterá-lo ou para gravar na pasta dele.</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::TextReport</name>
    <message>
        <source>The catalogue has no simulator.</source>
        <translation>O catálogo não contém nenhum simulador.</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problema: %1</translation>
    </message>
    <message>
        <source>%1: not found on this computer</source>
        <translation>%1: não encontrado neste computador</translation>
    </message>
    <message>
        <source>%1: the plugin is installed</source>
        <translation>%1: o plugin está instalado</translation>
    </message>
    <message>
        <source>%1: only a part of the plugin is installed</source>
        <translation>%1: só uma parte do plugin está instalada</translation>
    </message>
    <message>
        <source>%1: the plugin is not installed</source>
        <translation>%1: o plugin não está instalado</translation>
    </message>
    <message>
        <source>Folder: %1, known by: %2</source>
        <translation>Pasta: %1, origem: %2</translation>
    </message>
    <message>
        <source>Gave %1 up to %2, which found the same folder</source>
        <translation>Cedeu %1 a %2, que encontrou a mesma pasta</translation>
    </message>
    <message>
        <source>Turned down: %1 (%2): %3</source>
        <translation>Descartado: %1 (%2): %3</translation>
    </message>
    <message>
        <source>Files installed: %1</source>
        <translation>Arquivos instalados: %1</translation>
    </message>
    <message>
        <source>Files missing: %1</source>
        <translation>Arquivos faltando: %1</translation>
    </message>
    <message>
        <source>Files different: %1</source>
        <translation>Arquivos diferentes: %1</translation>
    </message>
    <message>
        <source>Files unreadable: %1</source>
        <translation>Arquivos ilegíveis: %1</translation>
    </message>
    <message>
        <source>Dead links in place of files: %1</source>
        <translation>Links quebrados no lugar de arquivos: %1</translation>
    </message>
    <message>
        <source>Folders or devices in place of files: %1</source>
        <translation>Pastas ou dispositivos no lugar de arquivos: %1</translation>
    </message>
    <message>
        <source>Bytes that are not valid in this encoding, from line %1 on</source>
        <translation>Bytes inválidos nesta codificação, a partir da linha %1</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Linha %1, coluna %2: %3</translation>
    </message>
    <message>
        <source>Another program&apos;s entry %1 names a file that is not there: %2</source>
        <translation>A entrada %1 de outro programa indica um arquivo que não existe: %2</translation>
    </message>
    <message>
        <source>Configuration: %1, missing</source>
        <translation>Configuração: %1, faltando</translation>
    </message>
    <message>
        <source>Configuration: %1, unreadable</source>
        <translation>Configuração: %1, ilegível</translation>
    </message>
    <message>
        <source>Configuration: %1, damaged, encoding %2</source>
        <translation>Configuração: %1, danificada, codificação %2</translation>
    </message>
    <message>
        <source>Configuration: %1, well formed, encoding %2</source>
        <translation>Configuração: %1, bem formada, codificação %2</translation>
    </message>
    <message>
        <source>No entry of ours</source>
        <translation>Nenhuma entrada do Orbwell</translation>
    </message>
    <message>
        <source>Our entry: there once, disabled, for %1</source>
        <translation>Entrada do Orbwell: presente uma vez, desativada, arquivo: %1</translation>
    </message>
    <message>
        <source>Our entry: there once, enabled, for %1</source>
        <translation>Entrada do Orbwell: presente uma vez, ativada, arquivo: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, disabled, for %1</source>
        <translation>Entrada do Orbwell: presente %2 vezes, desativada, arquivo: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, enabled, for %1</source>
        <translation>Entrada do Orbwell: presente %2 vezes, ativada, arquivo: %1</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, well formed; to put it back:</source>
        <translation>Backup de %1, %2 bytes, bem formado; para restaurá-lo:</translation>
    </message>
    <message>
        <source>Older backups: %1</source>
        <translation>Backups mais antigos: %1</translation>
    </message>
    <message>
        <source>Record: agrees</source>
        <translation>Registro: confere</translation>
    </message>
    <message>
        <source>Record: in %1</source>
        <translation>Registro: em %1</translation>
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
        <translation>Está tudo certo.</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>O que fazer:</translation>
    </message>
    <message>
        <source>Configuration: no Proton prefix</source>
        <translation>Configuração: sem prefixo do Proton</translation>
    </message>
    <message>
        <source>In the Proton prefix %1</source>
        <translation>No prefixo do Proton %1</translation>
    </message>
    <message>
        <source>no named file</source>
        <translation>não indicado</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, damaged</source>
        <translation>Backup de %1, %2 bytes, danificado</translation>
    </message>
    <message>
        <source>Configuration: %1, a link that leads nowhere</source>
        <translation>Configuração: %1, um link quebrado</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::XmlDamage</name>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>Não é XML bem formado: %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>The file holds nothing but white space.</source>
        <translation>O arquivo só contém espaços em branco.</translation>
    </message>
    <message>
        <source>The file holds nothing but zero bytes: the computer stopped while it was written, or its disk is failing.</source>
        <translation>O arquivo só contém bytes nulos: o computador parou enquanto ele era gravado, ou o disco está falhando.</translation>
    </message>
    <message>
        <source>The file is a web page, not XML.</source>
        <translation>O arquivo é uma página da web, não XML.</translation>
    </message>
    <message>
        <source>The file does not begin with a tag, so it is not XML.</source>
        <translation>O arquivo não começa com uma tag, então não é XML.</translation>
    </message>
    <message>
        <source>Zero bytes begin in line %1: the file was not written to its end.</source>
        <translation>Bytes nulos começam na linha %1: o arquivo não foi gravado até o fim.</translation>
    </message>
    <message>
        <source>There are two root elements: somebody appended a second document in line %1.</source>
        <translation>Há dois elementos raiz: alguém acrescentou um segundo documento na linha %1.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed: the file ends in line %3.</source>
        <translation>&lt;%1&gt; na linha %2 nunca é fechado: o arquivo termina na linha %3.</translation>
    </message>
    <message>
        <source>The file has no element.</source>
        <translation>O arquivo não tem nenhum elemento.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a tag, which begins in line %1.</source>
        <translation>O arquivo termina no meio de uma tag, que começa na linha %1.</translation>
    </message>
    <message>
        <source>A tag in line %1 has no &quot;&gt;&quot;.</source>
        <translation>Uma tag na linha %1 não tem &quot;&gt;&quot;.</translation>
    </message>
    <message>
        <source>&lt;?xml ...?&gt; in line %1 has to be the very beginning of the file.</source>
        <translation>&lt;?xml ...?&gt; na linha %1 precisa estar bem no início do arquivo.</translation>
    </message>
    <message>
        <source>A second document begins in line %1: somebody appended it.</source>
        <translation>Um segundo documento começa na linha %1: alguém o acrescentou.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 ends with &lt;/%3&gt; in line %4: letter case counts.</source>
        <translation>&lt;%1&gt; na linha %2 termina com &lt;/%3&gt; na linha %4: maiúsculas e minúsculas são diferenciadas.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes nothing: no &lt;%1&gt; is open there.</source>
        <translation>&lt;/%1&gt; na linha %2 não fecha nada: não há &lt;%1&gt; aberto ali.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed; &lt;/%3&gt; in line %4 came first.</source>
        <translation>&lt;%1&gt; na linha %2 nunca é fechado; &lt;/%3&gt; na linha %4 aparece antes.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; comes a second time in line %2: behind the document is the rest of an older, longer file.</source>
        <translation>&lt;/%1&gt; aparece uma segunda vez na linha %2: depois do documento está o resto de um arquivo anterior mais longo.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes an element that was never opened: the line with &lt;%1 ...&gt; is lost.</source>
        <translation>&lt;/%1&gt; na linha %2 fecha um elemento que nunca foi aberto: a linha com &lt;%1 ...&gt; se perdeu.</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in line %1 begins no tag; as text it is written &quot;&amp;lt;&quot;.</source>
        <translation>&quot;&lt;&quot; na linha %1 não começa nenhuma tag; como texto escreve-se &quot;&amp;lt;&quot;.</translation>
    </message>
    <message>
        <source>%1 in line %2 is no tag; what is meant is %3.</source>
        <translation>%1 na linha %2 não é uma tag; deveria ser %3.</translation>
    </message>
    <message>
        <source>Behind the end of the document, in line %1, there is more text: the rest of an older, longer file?</source>
        <translation>Depois do fim do documento, na linha %1, há mais texto: o resto de um arquivo anterior mais longo?</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; in line %1 has to be written &quot;&amp;amp;&quot;.</source>
        <translation>&quot;&amp;&quot; na linha %1 precisa ser escrito &quot;&amp;amp;&quot;.</translation>
    </message>
    <message>
        <source>Line %1 holds a control character, which XML does not allow.</source>
        <translation>A linha %1 contém um caractere de controle, que o XML não permite.</translation>
    </message>
    <message>
        <source>A quotation mark is missing in a tag in line %1.</source>
        <translation>Falta uma aspa em uma tag na linha %1.</translation>
    </message>
    <message>
        <source>The value of %1 in line %2 has no quotation marks.</source>
        <translation>O valor de %1 na linha %2 não está entre aspas.</translation>
    </message>
</context>
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
<context>
    <name>Quillmont::Utility::Widgets::ProgressWindow</name>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>File %0 of %1: %2</source>
        <translation>Arquivo %0 de %1: %2</translation>
    </message>
    <message>
        <source>Installing Orbwell</source>
        <translation>Instalando o Orbwell</translation>
    </message>
    <message>
        <source>Uninstalling Orbwell</source>
        <translation>Desinstalando o Orbwell</translation>
    </message>
</context>
</TS>
