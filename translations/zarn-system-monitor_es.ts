<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Uso del disco</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1 % disponible</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Ningún sistema de archivos seleccionado</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Cambiar prioridad</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Prioridad muy alta</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Prioridad alta</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Prioridad normal</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Prioridad baja</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Prioridad muy baja</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Punto de montaje</translation>
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
        <translation>Espacio total</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espacio libre</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Espacio disponible</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Nombre, línea de órdenes, usuario o PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Buscar proceso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>Sin respuesta</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Monitor del sistema</translation>
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
        <translation>Núcleo</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Arquitectura</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espacio libre</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Memoria libre</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Sistemas de archivos</translation>
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
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
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
        <translation>Salida</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Cambio del intervalo</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Puede establecer el intervalo de tiempo (en segundos)
 entre las actualizaciones de la página </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>No se ha podido enviar la señal al proceso. Motivo: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>No se ha podido cambiar la prioridad. Motivo: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>En ejecución</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Durmiendo</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Ininterrumpible</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zombi</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Intercambiando</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Muerto</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
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
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Memoria virtual</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Memoria compartida</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Valor nice</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>PID del padre</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>Tiempo de CPU</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Iniciado</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Línea de órdenes</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Procesador</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>No se encontró ningún proceso</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Detener proceso</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>¿Seguro que quiere detener el proceso?
Podrá reanudarlo más tarde.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Reanudar proceso</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>¿Seguro que quiere reanudar el proceso?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Terminar proceso</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>¿Seguro que quiere terminar el proceso?
El proceso podrá finalizar con normalidad.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Matar proceso</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>¿Seguro que quiere matar el proceso?
El proceso no podrá finalizar con normalidad.
Se pueden perder todos los datos del proceso.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Señal desconocida</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Vista en árbol</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Expandir todo</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Contraer todo</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Todos los procesos</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Mis procesos</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Detener proceso</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Reanudar proceso</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Terminar proceso</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Matar proceso</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Cambiar prioridad...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Buscar proceso...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Árbol completo</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Copiar fila</translation>
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
        <translation>o</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Uso: zarn-system-monitor [pestaña]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>La pestaña se puede indicar como:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - primera página, información general del sistema</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - segunda página, lista de procesos</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - tercera página, lista de sistemas de archivos</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - cuarta página, información de la red</translation>
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
        <translation>Aceptar</translation>
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
        <translation>%1 %</translation>
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
        <translation>Ascendente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Descendente</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>El monitor del sistema no se puede iniciar: no se puede leer %1. Necesita el sistema de archivos proc completo, montado en /proc.</translation>
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
        <translation>Salida</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Tráfico de red</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>Entrada: %1, salida: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Intervalo de actualización</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Intervalo de «General»</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Intervalo de «Procesos»</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Intervalo de «Sistemas de archivos»</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Intervalo de «Red»</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Proceso</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>«General»</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>«Procesos»</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>«Sistemas de archivos»</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>«Red»</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Columnas visibles</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>Carga de la CPU</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Carga del núcleo %1</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Sistema operativo desconocido</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>El monitor del sistema le permite observar información general del sistema, los procesos, los puntos de montaje y las estadísticas de la red.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Este programa es software libre bajo la Licencia Pública General de GNU, versión 3 o posterior (GPL-3.0-or-later). Se ofrece sin ninguna garantía.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Acerca de Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
</context>
</TS>
