<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Schijfgebruik</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1% beschikbaar</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Geen bestandssysteem geselecteerd</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Prioriteit wijzigen</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioriteit</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Zeer hoge prioriteit</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Hoge prioriteit</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Normale prioriteit</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Lage prioriteit</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Zeer lage prioriteit</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Aankoppelpunt</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Totale ruimte</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Vrije ruimte</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Beschikbare ruimte</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Naam, opdrachtregel, gebruiker of PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Proces zoeken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Geen antwoord</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Systeemmonitor</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Besturingssysteem</translation>
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
        <translation>Architectuur</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Apparaten</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Vrije ruimte</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Vrij geheugen</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processen</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Bestandssystemen</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totaal</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Gebruikt</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Beschikbaar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Masker</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fouten</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Interval wijzigen</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>U kunt het tijdsinterval (in seconden) instellen
 tussen het bijwerken van de pagina </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Het signaal kon niet naar het proces worden gestuurd. Reden: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>De prioriteit kon niet worden gewijzigd. Reden: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>Actief</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Slapend</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Niet te onderbreken</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zombie</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestopt</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Swapt</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Dood</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Overig</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
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
        <translation>Gebruiker</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Virtueel geheugen</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Gedeeld geheugen</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Nice-waarde</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>Ouder-PID</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>CPU-tijd</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Gestart</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Opdrachtregel</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
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
        <translation>Geen proces gevonden</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Proces stoppen</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Wilt u het proces echt stoppen?
U kunt het later weer hervatten.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Proces hervatten</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Wilt u het proces echt hervatten?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Proces beëindigen</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Wilt u het proces echt beëindigen?
Het proces krijgt de kans om normaal af te sluiten.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Proces doden</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Wilt u het proces echt doden?
Het proces krijgt geen kans om normaal af te sluiten.
Alle gegevens van het proces kunnen verloren gaan.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Onbekend signaal</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Boomweergave</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Alles uitklappen</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Alles inklappen</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Alle processen</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Mijn processen</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Proces stoppen</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Proces hervatten</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Proces beëindigen</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Proces doden</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Prioriteit wijzigen...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Proces zoeken...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Volledige boom</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Rij kopiëren</translation>
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
        <translation>of</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Gebruik: zarn-system-monitor [tabblad]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>Als tabblad kunt u opgeven:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - eerste pagina met algemene systeeminformatie</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - tweede pagina met de lijst van processen</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - derde pagina met de lijst van bestandssystemen</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - vierde pagina met netwerkinformatie</translation>
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
        <translation>Annuleren</translation>
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
        <translation>S&amp;orteren op</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Oplopend</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Aflopend</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>De systeemmonitor kan niet starten: %1 kan niet worden gelezen. Hij heeft het volledige bestandssysteem proc nodig, aangekoppeld op /proc.</translation>
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
        <translation>Uit</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Netwerkverkeer</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>In: %1, uit: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Verversingsinterval</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Interval voor ‘Algemeen’</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Interval voor ‘Processen’</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Interval voor ‘Bestandssystemen’</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Interval voor ‘Netwerk’</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Proces</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>‘Algemeen’</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>‘Processen’</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>‘Bestandssystemen’</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>‘Netwerk’</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Zichtbare kolommen</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>CPU-belasting</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Belasting van CPU-kern %1</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Onbekend besturingssysteem</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Met de systeemmonitor bekijkt u algemene systeeminformatie, processen, aankoppelpunten en netwerkstatistieken.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Dit is vrije software onder de GNU General Public License, versie 3 of later (GPL-3.0-or-later). Er wordt geen enkele garantie op gegeven.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Info over Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Info over %1</translation>
    </message>
</context>
</TS>
