<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Uso do disco</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1% disponível</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Nenhum sistema de arquivos selecionado</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Alterar prioridade</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridade</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Prioridade muito alta</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Prioridade alta</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Prioridade normal</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Prioridade baixa</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Prioridade muito baixa</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Ponto de montagem</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Espaço total</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espaço livre</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Espaço disponível</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Nome, linha de comando, usuário ou PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Localizar processo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Sem resposta</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Monitor do sistema</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Sistema operacional</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Arquitetura</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espaço livre</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Memória livre</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processos</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Sistemas de arquivos</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponível</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Máscara</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erros</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Alteração do intervalo</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Você pode definir o intervalo de tempo (em segundos)
 entre as atualizações da página </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Não foi possível enviar o sinal ao processo. Motivo: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Não foi possível alterar a prioridade. Motivo: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>Em execução</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Dormindo</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Ininterrompível</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zumbi</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Em swap</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Morto</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuário</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Memória virtual</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Memória compartilhada</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Valor nice</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>PID do pai</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>Tempo de CPU</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Iniciado</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Linha de comando</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processador</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>Nenhum processo encontrado</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Parar processo</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Deseja realmente parar o processo?
Você poderá retomá-lo mais tarde.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Retomar processo</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Deseja realmente retomar o processo?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Finalizar processo</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Deseja realmente finalizar o processo?
O processo poderá terminar normalmente.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Matar processo</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Deseja realmente matar o processo?
O processo não poderá terminar normalmente.
Todos os dados do processo podem ser perdidos.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Sinal desconhecido</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Visão em árvore</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Expandir tudo</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Recolher tudo</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Todos os processos</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Meus processos</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Parar processo</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Retomar processo</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Finalizar processo</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Matar processo</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Alterar prioridade...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Localizar processo...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Árvore completa</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Copiar linha</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>or</source>
        <translation>ou</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Uso: zarn-system-monitor [aba]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>A aba pode ser indicada como:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - primeira página, com informações gerais do sistema</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - segunda página, com a lista de processos</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - terceira página, com a lista de sistemas de arquivos</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - quarta página, com informações da rede</translation>
    </message>
    <message>
        <source> B</source>
        <translation> B</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QProg</name>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Sort &amp;by</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Crescente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Decrescente</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>O monitor do sistema não pode iniciar: não é possível ler %1. Ele precisa do sistema de arquivos proc completo, montado em /proc.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Tráfego de rede</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>Entrada: %1, saída: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Intervalo de atualização</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Intervalo de “Geral”</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Intervalo de “Processos”</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Intervalo de “Sistemas de arquivos”</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Intervalo de “Rede”</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processo</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>“Geral”</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>“Processos”</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>“Sistemas de arquivos”</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>“Rede”</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Colunas visíveis</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>Carga da CPU</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Carga do núcleo %1 da CPU</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Sistema operacional desconhecido</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>O monitor do sistema permite acompanhar informações gerais do sistema, processos, pontos de montagem e estatísticas de rede.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Este programa é software livre sob a Licença Pública Geral GNU (GNU GPL), versão 3 ou posterior (GPL-3.0-or-later). Ele é fornecido sem nenhuma garantia.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Sobre o Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Sobre %1</translation>
    </message>
</context>
</TS>
