<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Festplattenbelegung</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1 % verfügbar</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Kein Dateisystem ausgewählt</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Priorität ändern</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Sehr hohe Priorität</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Hohe Priorität</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Normale Priorität</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Niedrige Priorität</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Sehr niedrige Priorität</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Einhängepunkt</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Gesamter Platz</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Freier Platz</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Verfügbarer Platz</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Name, Befehlszeile, Benutzer oder PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Prozess suchen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Systemmonitor</translation>
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
        <translation>Betriebssystem</translation>
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
        <translation>Architektur</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Freier Speicherplatz</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Freier Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Dateisysteme</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maske</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Eingehend</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Ausgehend</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Intervall ändern</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Zeitabstand (in Sekunden) zwischen zwei
 Aktualisierungen der Seite </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Dem Prozess konnte kein Signal gesendet werden. Grund: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Die Priorität konnte nicht geändert werden. Grund: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Schläft</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Nicht unterbrechbar</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zombie</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Wird ausgelagert</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
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
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Virtueller Speicher</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Gemeinsamer Speicher</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Nice-Wert</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>Eltern-PID</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>CPU-Zeit</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Gestartet</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>Kein Prozess gefunden</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Prozess anhalten</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Möchten Sie den Prozess wirklich anhalten?
Sie können ihn später fortsetzen.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Prozess fortsetzen</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Möchten Sie den Prozess wirklich fortsetzen?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Prozess beenden</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Möchten Sie den Prozess wirklich beenden?
Er erhält Gelegenheit, sich ordnungsgemäß zu beenden.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Prozess abschießen</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Möchten Sie den Prozess wirklich abschießen?
Er erhält keine Gelegenheit, sich ordnungsgemäß zu beenden.
Alle Daten des Prozesses können verloren gehen.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Unbekanntes Signal</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Baumansicht</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Alle ausklappen</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Alle einklappen</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Alle Prozesse</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Meine Prozesse</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Prozess anhalten</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Prozess fortsetzen</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Prozess beenden</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Prozess abschießen</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Priorität ändern...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Prozess suchen...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Vollständiger Baum</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Zeile kopieren</translation>
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
        <translation>oder</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Aufruf: zarn-system-monitor [Seite]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>Als Seite kann angegeben werden:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - erste Seite mit allgemeinen Systeminformationen</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - zweite Seite mit der Prozessliste</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - dritte Seite mit der Liste der Dateisysteme</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - vierte Seite mit Netzwerkinformationen</translation>
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
        <translation>Abbrechen</translation>
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
        <translation>S&amp;ortieren nach</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Aufsteigend</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Absteigend</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>Der Systemmonitor kann nicht starten: %1 ist nicht lesbar. Er braucht das vollständige Dateisystem proc, eingehängt unter /proc.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>Eingehend</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Ausgehend</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Netzwerkverkehr</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>Eingehend: %1, ausgehend: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Aktualisierungsintervall</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Intervall für „Allgemein“</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Intervall für „Prozesse“</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Intervall für „Dateisysteme“</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Intervall für „Netzwerk“</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Prozess</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>„Allgemein“</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>„Prozesse“</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>„Dateisysteme“</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>„Netzwerk“</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Sichtbare Spalten</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>CPU-Auslastung</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Auslastung von CPU-Kern %1</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Unbekanntes Betriebssystem</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Der Systemmonitor zeigt allgemeine Systeminformationen, Prozesse, Einhängepunkte und Netzwerkstatistiken an.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Dies ist freie Software unter der GNU General Public License, Version 3 oder später (GPL-3.0-or-later). Für sie besteht keinerlei Gewährleistung.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Über Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
</context>
</TS>
