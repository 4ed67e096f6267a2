<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Diskanvändning</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1 % tillgängligt</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Inget filsystem valt</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Ändra prioritet</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioritet</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Mycket hög prioritet</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Hög prioritet</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Normal prioritet</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Låg prioritet</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Mycket låg prioritet</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Monteringspunkt</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Totalt utrymme</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Ledigt utrymme</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Tillgängligt utrymme</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Namn, kommandorad, användare eller PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Sök process</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Inget svar</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Systemövervakare</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Operativsystem</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kärna</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Arkitektur</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Minne</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Tillstånd</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Ledigt utrymme</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Ledigt minne</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processer</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Filsystem</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totalt</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Använt</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Tillgängligt</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Nätverk</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adress</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Mask</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Ut</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fel</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Ändra intervall</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Du kan ange tidsintervallet (i sekunder)
 mellan uppdateringarna av sidan </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Det gick inte att skicka signalen till processen. Orsak: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Det gick inte att ändra prioriteten. Orsak: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>Körs</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Sover</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Kan inte avbrytas</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zombie</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stoppad</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Växlar minne</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Död</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Annat</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
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
        <translation>Användare</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Minne</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Tillstånd</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Virtuellt minne</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Delat minne</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Nice-värde</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>Föräldra-PID</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>CPU-tid</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Startad</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Kommandorad</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Okänt</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processor</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>Ingen process hittades</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Stoppa process</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Vill du verkligen stoppa processen?
Du kan återuppta den senare.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Återuppta process</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Vill du verkligen återuppta processen?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Avsluta process</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Vill du verkligen avsluta processen?
Processen får möjlighet att avslutas normalt.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Döda process</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Vill du verkligen döda processen?
Processen får ingen möjlighet att avslutas normalt.
Alla processens data kan gå förlorade.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Okänd signal</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Trädvy</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Expandera alla</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Fäll ihop alla</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Alla processer</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Mina processer</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Stoppa processen</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Återuppta processen</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Avsluta processen</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Döda processen</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Ändra prioritet...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Sök process...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Fullständigt träd</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Kopiera rad</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>or</source>
        <translation>eller</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Användning: zarn-system-monitor [flik]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>Fliken kan anges som:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - första sidan med allmän systeminformation</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - andra sidan med processlistan</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - tredje sidan med listan över filsystem</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - fjärde sidan med nätverksinformation</translation>
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
        <translation>Avbryt</translation>
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
        <translation>S&amp;ortera efter</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Stigande</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Fallande</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>Systemövervakaren kan inte starta: %1 kan inte läsas. Den behöver hela filsystemet proc, monterat på /proc.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Ut</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Nätverkstrafik</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>In: %1, ut: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arkiv</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Redigera</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Uppdateringsintervall</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Intervall för ”Allmänt”</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Intervall för ”Processer”</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Intervall för ”Filsystem”</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Intervall för ”Nätverk”</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Process</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>”Allmänt”</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>”Processer”</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>”Filsystem”</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>”Nätverk”</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Synliga kolumner</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>CPU-belastning</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Belastning på CPU-kärna %1</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Okänt operativsystem</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Systemövervakaren visar allmän systeminformation, processer, monteringspunkter och nätverksstatistik.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Detta är fri programvara under GNU General Public License, version 3 eller senare (GPL-3.0-or-later). Den levereras helt utan garanti.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjälp</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Om Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Om %1</translation>
    </message>
</context>
</TS>
