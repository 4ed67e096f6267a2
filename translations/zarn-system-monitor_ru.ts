<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Использование диска</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>Доступно %1 %</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Файловая система не выбрана</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Изменение приоритета</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Приоритет</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Очень высокий приоритет</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Высокий приоритет</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Обычный приоритет</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Низкий приоритет</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Очень низкий приоритет</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Точка монтирования</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Общий объём</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Свободно</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Доступно</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Имя, командная строка, пользователь или PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Найти процесс</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Нет ответа</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Системный монитор</translation>
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
        <translation>Операционная система</translation>
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
        <translation>Архитектура</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Устройства</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Свободно на дисках</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Свободно памяти</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Процессы</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Файловые системы</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Занято</translation>
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
        <translation>Сеть</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Маска</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Принято</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Передано</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Ошибки</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Изменение интервала</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Здесь можно задать интервал времени (в секундах)
 между обновлениями страницы </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Не удалось отправить сигнал процессу. Причина: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Не удалось изменить приоритет. Причина: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>Выполняется</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Спит</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Непрерываемый</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Зомби</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлен</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Подкачка</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Мёртв</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Другое</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
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
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Виртуальная память</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Разделяемая память</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Значение nice</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>Родительский PID</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>Время ЦП</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Запущен</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Командная строка</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Процессор</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>Процессы не найдены</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Остановка процесса</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Вы действительно хотите остановить процесс?
Позже его можно будет продолжить.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Продолжение процесса</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Вы действительно хотите продолжить процесс?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Завершение процесса</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Вы действительно хотите завершить процесс?
Процесс сможет завершиться обычным образом.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Уничтожение процесса</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Вы действительно хотите убить процесс?
Процесс не сможет завершиться обычным образом.
Все данные процесса могут быть потеряны.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Неизвестный сигнал</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Дерево процессов</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Развернуть всё</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Свернуть всё</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Все процессы</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Мои процессы</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Остановить процесс</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Продолжить процесс</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Завершить процесс</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Убить процесс</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Изменить приоритет...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Найти процесс...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Полное дерево</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Копировать строку</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>Интервал</translation>
    </message>
    <message>
        <source>or</source>
        <translation>или</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Использование: zarn-system-monitor [вкладка]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>Вкладку можно указать так:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - первая страница, общие сведения о системе</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - вторая страница, список процессов</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - третья страница, список файловых систем</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - четвёртая страница, сведения о сети</translation>
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
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
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
        <translation>&amp;Сортировать по</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>По возрастанию</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>По убыванию</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>Не удаётся запустить системный монитор: невозможно прочитать %1. Нужна полная файловая система proc, смонтированная в /proc.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>Принято</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Передано</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Сетевой трафик</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>Принято: %1, передано: %2</translation>
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
        <translation>Выход</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Интервал обновления</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Интервал страницы «Общие сведения»</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Интервал страницы «Процессы»</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Интервал страницы «Файловые системы»</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Интервал страницы «Сеть»</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Процесс</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>«Общие сведения»</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>«Процессы»</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>«Файловые системы»</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>«Сеть»</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Видимые столбцы</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>Загрузка ЦП</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Загрузка ядра ЦП %1</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>ЦП </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Неизвестная ОС</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Системный монитор показывает общие сведения о системе, процессы, точки монтирования и статистику сети.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Это свободное программное обеспечение на условиях GNU General Public License версии 3 или более поздней (GPL-3.0-or-later). Оно предоставляется без каких-либо гарантий.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>О Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>О программе %1</translation>
    </message>
</context>
</TS>
