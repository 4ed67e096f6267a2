<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Utilizzo del disco</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1% disponibile</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Nessun file system selezionato</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Cambia priorità</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorità</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Priorità molto alta</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Priorità alta</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Priorità normale</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Priorità bassa</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Priorità molto bassa</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Punto di montaggio</translation>
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
        <translation>Spazio totale</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Spazio libero</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Spazio disponibile</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Nome, riga di comando, utente o PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Trova processo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Nessuna risposta</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Monitor di sistema</translation>
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
        <translation>Sistema operativo</translation>
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
        <translation>Architettura</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Spazio libero</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Memoria libera</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processi</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>File system</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totale</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usato</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponibile</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maschera</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In entrata</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>In uscita</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errori</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Modifica dell’intervallo</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>È possibile impostare l’intervallo di tempo (in secondi)
 tra gli aggiornamenti della pagina </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Impossibile inviare il segnale al processo. Motivo: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Impossibile cambiare la priorità. Motivo: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>In esecuzione</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Non interrompibile</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zombie</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Fermato</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>In swap</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Morto</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
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
        <translation>Utente</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Memoria virtuale</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Memoria condivisa</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Valore nice</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>PID del padre</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>Tempo di CPU</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Avviato</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Riga di comando</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processore</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>Nessun processo trovato</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Arresto del processo</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Fermare davvero il processo?
Sarà possibile riprenderlo in seguito.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Ripresa del processo</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Riprendere davvero il processo?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Terminazione del processo</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Terminare davvero il processo?
Il processo potrà concludersi normalmente.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Uccisione del processo</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Uccidere davvero il processo?
Il processo non potrà concludersi normalmente.
Tutti i dati del processo potrebbero andare persi.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Segnale sconosciuto</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Vista ad albero</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Espandi tutto</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Comprimi tutto</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Tutti i processi</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>I miei processi</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Ferma il processo</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Riprendi il processo</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Termina il processo</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Uccidi il processo</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Cambia priorità...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Trova processo...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Albero completo</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Copia riga</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>Intervallo</translation>
    </message>
    <message>
        <source>or</source>
        <translation>o</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Uso: zarn-system-monitor [scheda]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>La scheda si può indicare come:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - prima pagina, informazioni generali sul sistema</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - seconda pagina, elenco dei processi</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - terza pagina, elenco dei file system</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - quarta pagina, informazioni sulla rete</translation>
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
        <translation>Annulla</translation>
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
        <translation>&amp;Ordina per</translation>
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
        <translation>Il monitor di sistema non può essere avviato: impossibile leggere %1. Richiede il file system proc completo, montato su /proc.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>In entrata</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>In uscita</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Traffico di rete</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>In entrata: %1, in uscita: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Intervallo di aggiornamento</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Intervallo di «Generale»</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Intervallo di «Processi»</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Intervallo di «File system»</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Intervallo di «Rete»</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processo</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>«Generale»</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>«Processi»</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>«File system»</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>«Rete»</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Colonne visibili</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>Carico della CPU</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Carico del core %1 della CPU</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Sistema operativo sconosciuto</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Il monitor di sistema permette di osservare le informazioni generali sul sistema, i processi, i punti di montaggio e le statistiche di rete.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Questo programma è software libero, distribuito secondo la GNU General Public License, versione 3 o successiva (GPL-3.0-or-later). Viene fornito senza alcuna garanzia.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Informazioni su Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Informazioni su %1</translation>
    </message>
</context>
</TS>
