<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Użycie dysku</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>Dostępne %1%</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Nie wybrano systemu plików</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Zmiana priorytetu</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorytet</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Bardzo wysoki priorytet</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Wysoki priorytet</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Normalny priorytet</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Niski priorytet</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Bardzo niski priorytet</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Punkt montowania</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Całkowite miejsce</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Wolne miejsce</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Dostępne miejsce</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Nazwa, wiersz poleceń, użytkownik lub PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Znajdź proces</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
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
        <translation>Brak odpowiedzi</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Monitor systemu</translation>
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
        <translation>System operacyjny</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Jądro</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Architektura</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Urządzenia</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Wolne miejsce</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Wolna pamięć</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesy</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Systemy plików</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Całość</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Zajęte</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Dostępne</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maska</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Odebrano</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Wysłano</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Błędy</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Zmiana odstępu odświeżania</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Można ustawić odstęp czasu (w sekundach)
 między odświeżeniami strony </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Nie udało się wysłać sygnału do procesu. Przyczyna: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Nie udało się zmienić priorytetu. Przyczyna: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>Działa</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Uśpiony</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Nieprzerywalny</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zombie</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Zatrzymany</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Wymiana</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Martwy</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Inny</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
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
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Pamięć wirtualna</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Pamięć dzielona</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Wartość nice</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>PID rodzica</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>Czas CPU</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Uruchomiono</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Wiersz poleceń</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nieznany</translation>
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
        <translation>Nie znaleziono procesu</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Zatrzymywanie procesu</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Czy na pewno zatrzymać proces?
Będzie można go później wznowić.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Wznawianie procesu</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Czy na pewno wznowić proces?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Kończenie procesu</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Czy na pewno zakończyć proces?
Proces będzie mógł zakończyć się w zwykły sposób.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Zabijanie procesu</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Czy na pewno zabić proces?
Proces nie będzie mógł zakończyć się w zwykły sposób.
Wszystkie dane procesu mogą zostać utracone.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Nieznany sygnał</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Widok drzewa</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Rozwiń wszystko</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Zwiń wszystko</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Wszystkie procesy</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Moje procesy</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Zatrzymaj proces</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Wznów proces</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Zakończ proces</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Zabij proces</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Zmień priorytet...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Znajdź proces...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Pełne drzewo</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Kopiuj wiersz</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>Odstęp</translation>
    </message>
    <message>
        <source>or</source>
        <translation>lub</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Użycie: zarn-system-monitor [karta]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>Kartę można podać jako:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - pierwsza strona, ogólne informacje o systemie</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - druga strona, lista procesów</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - trzecia strona, lista systemów plików</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - czwarta strona, informacje o sieci</translation>
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
        <translation>Anuluj</translation>
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
        <translation>S&amp;ortuj według</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Rosnąco</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Malejąco</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>Nie można uruchomić monitora systemu: nie można odczytać %1. Wymaga on pełnego systemu plików proc zamontowanego w /proc.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>Odebrano</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Wysłano</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Ruch sieciowy</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>Odebrano: %1, wysłano: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Odstęp odświeżania</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Odstęp strony „Ogólne”</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Odstęp strony „Procesy”</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Odstęp strony „Systemy plików”</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Odstęp strony „Sieć”</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Proces</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>„Ogólne”</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>„Procesy”</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>„Systemy plików”</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>„Sieć”</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Widoczne kolumny</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>Obciążenie procesora</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Obciążenie rdzenia %1</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>Procesor </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Nieznany system operacyjny</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Monitor systemu pozwala obserwować ogólne informacje o systemie, procesy, punkty montowania i statystyki sieci.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>To jest wolne oprogramowanie na warunkach Powszechnej Licencji Publicznej GNU (GNU GPL) w wersji 3 lub późniejszej (GPL-3.0-or-later). Jest rozprowadzane bez żadnej gwarancji.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>O Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>O programie %1</translation>
    </message>
</context>
</TS>
