<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk_UA" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Використання диска</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>Доступно %1 %</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Файлову систему не вибрано</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Зміна пріоритету</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Пріоритет</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Дуже високий пріоритет</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Високий пріоритет</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Звичайний пріоритет</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Низький пріоритет</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Дуже низький пріоритет</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Точка монтування</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Пристрій</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Загальний обсяг</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Вільно</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Доступно</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файли</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Назва, командний рядок, користувач або PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Знайти процес</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 з %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Немає відповіді</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Системний монітор</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Операційна система</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Ядро</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Архітектура</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Пристрої</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Пам’ять</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Вільно на дисках</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Вільно пам’яті</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Процеси</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Файлові системи</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Пристрій</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Усього</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Зайнято</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Доступно</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Мережа</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адреса</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Маска</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Отримано</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Надіслано</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Помилки</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Зміна інтервалу</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Тут можна встановити інтервал часу (у секундах)
 між оновленнями сторінки </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Помилка</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Не вдалося надіслати сигнал процесу. Причина: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Не вдалося змінити пріоритет. Причина: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>Виконується</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Спить</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Не переривається</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Зомбі</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Зупинено</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Підкачування</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Мертвий</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Інше</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>ЦП</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Користувач</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Пам’ять</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Віртуальна пам’ять</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Спільна пам’ять</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Значення nice</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>Батьківський PID</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>Час ЦП</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Запущено</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Командний рядок</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Невідомо</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Процесор</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>Процесів не знайдено</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Зупинення процесу</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Ви справді хочете зупинити процес?
Пізніше його можна буде продовжити.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Продовження процесу</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Ви справді хочете продовжити процес?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Завершення процесу</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Ви справді хочете завершити процес?
Процес зможе завершитися звичайним чином.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Знищення процесу</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Ви справді хочете вбити процес?
Процес не зможе завершитися звичайним чином.
Усі дані процесу може бути втрачено.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Невідомий сигнал</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Дерево процесів</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Розгорнути все</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Згорнути все</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Усі процеси</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Мої процеси</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Зупинити процес</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Продовжити процес</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Завершити процес</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Вбити процес</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Змінити пріоритет...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Знайти процес...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Повне дерево</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Копіювати рядок</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>Інтервал</translation>
    </message>
    <message>
        <source>or</source>
        <translation>або</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Використання: zarn-system-monitor [вкладка]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>Вкладку можна вказати так:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - перша сторінка, загальні відомості про систему</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - друга сторінка, список процесів</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - третя сторінка, список файлових систем</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - четверта сторінка, відомості про мережу</translation>
    </message>
    <message>
        <source> B</source>
        <translation> Б</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> КБ</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> МБ</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> ГБ</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
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
        <translation>&amp;Сортувати за</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>За зростанням</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>За спаданням</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>Не вдається запустити системний монітор: неможливо прочитати %1. Потрібна повна файлова система proc, змонтована в /proc.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>Отримано</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Надіслано</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Мережевий трафік</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>Отримано: %1, надіслано: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Вийти</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Інтервал оновлення</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Інтервал сторінки «Загальні відомості»</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Інтервал сторінки «Процеси»</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Інтервал сторінки «Файлові системи»</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Інтервал сторінки «Мережа»</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Процес</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>«Загальні відомості»</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>«Процеси»</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>«Файлові системи»</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>«Мережа»</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Видимі стовпці</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>Завантаження ЦП</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Завантаження ядра ЦП %1</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>ЦП </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Невідома ОС</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Системний монітор показує загальні відомості про систему, процеси, точки монтування та статистику мережі.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версія %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Це вільне програмне забезпечення на умовах GNU General Public License версії 3 або новішої (GPL-3.0-or-later). Воно надається без жодних гарантій.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Довідка</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Про Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Про програму %1</translation>
    </message>
</context>
</TS>
