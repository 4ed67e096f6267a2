<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Využití disku</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>Dostupné: %1 %</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Není vybrán žádný systém souborů</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Změnit prioritu</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorita</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Velmi vysoká priorita</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Vysoká priorita</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Normální priorita</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Nízká priorita</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Velmi nízká priorita</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Přípojný bod</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Zařízení</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Celkové místo</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Volné místo</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Dostupné místo</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Soubory</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Název, příkazový řádek, uživatel nebo PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Najít proces</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Žádná odpověď</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Monitor systému</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systém</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Operační systém</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Jádro</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Architektura</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Zařízení</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Paměť</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Volné místo</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Volná paměť</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesy</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Systémy souborů</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Zařízení</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Použito</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Dostupné</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Síť</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maska</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Přijato</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Odesláno</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Chyby</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Změna intervalu</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Zde můžete nastavit časový interval (v sekundách)
 mezi aktualizacemi stránky </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Procesu se nepodařilo poslat signál. Důvod: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Prioritu se nepodařilo změnit. Důvod: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>Běžící</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Spící</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Nepřerušitelný</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zombie</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Pozastavený</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Odkládaný</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Mrtvý</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Jiný</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
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
        <translation>Uživatel</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Paměť</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Virtuální paměť</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Sdílená paměť</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Hodnota nice</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>PID rodiče</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>Čas CPU</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Spuštěno</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Příkazový řádek</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Neznámé</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Procesor</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>Nenalezen žádný proces</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Pozastavení procesu</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Opravdu chcete proces pozastavit?
Později v něm můžete pokračovat.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Pokračování procesu</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Opravdu chcete v procesu pokračovat?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Ukončení procesu</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Opravdu chcete proces ukončit?
Proces bude mít možnost skončit běžným způsobem.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Zabití procesu</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Opravdu chcete proces zabít?
Proces nebude mít možnost skončit běžným způsobem.
Všechna data procesu mohou být ztracena.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Neznámý signál</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Stromové zobrazení</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Rozbalit vše</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Sbalit vše</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Všechny procesy</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Moje procesy</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Pozastavit proces</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Pokračovat v procesu</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Ukončit proces</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Zabít proces</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Změnit prioritu...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Najít proces...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Úplný strom</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Kopírovat řádek</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>Interval</translation>
    </message>
    <message>
        <source>or</source>
        <translation>nebo</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Použití: zarn-system-monitor [karta]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>Kartu lze zadat jako:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - první stránka s obecnými informacemi o systému</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - druhá stránka se seznamem procesů</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - třetí stránka se seznamem systémů souborů</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - čtvrtá stránka s informacemi o síti</translation>
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
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>QProg</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Sort &amp;by</source>
        <translation>Řadit &amp;podle</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Vzestupně</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Sestupně</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>Monitor systému nelze spustit: %1 nelze přečíst. Potřebuje úplný souborový systém proc připojený na /proc.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>Přijato</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Odesláno</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Síťový provoz</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>Přijato: %1, odesláno: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Ú&amp;pravy</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Interval aktualizace</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Interval stránky „Obecné“</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Interval stránky „Procesy“</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Interval stránky „Systémy souborů“</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Interval stránky „Síť“</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Proces</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>„Obecné“</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>„Procesy“</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>„Systémy souborů“</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>„Síť“</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Viditelné sloupce</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>Zatížení procesoru</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Zatížení jádra procesoru %1</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>Procesor </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Neznámý operační systém</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Monitor systému vám umožňuje sledovat obecné informace o systému, procesy, přípojné body a statistiky sítě.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verze %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Toto je svobodný software pod licencí GNU General Public License, verze 3 nebo novější (GPL-3.0-or-later). Je poskytován bez jakékoli záruky.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>O knihovně Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>O aplikaci %1</translation>
    </message>
</context>
</TS>
