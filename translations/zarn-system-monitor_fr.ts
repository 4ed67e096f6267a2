<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Occupation du disque</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1 % disponibles</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Aucun système de fichiers sélectionné</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Changer la priorité</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Priorité très haute</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Priorité haute</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Priorité normale</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Priorité basse</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Priorité très basse</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Point de montage</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Espace total</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espace libre</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Espace disponible</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Nom, ligne de commande, utilisateur ou PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Rechercher un processus</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Moniteur système</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Système d’exploitation</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Noyau</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Architecture</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espace libre</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Mémoire libre</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Systèmes de fichiers</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Masque</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrant</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Sortant</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Changement d’intervalle</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Vous pouvez définir l’intervalle (en secondes)
 entre les actualisations de la page </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Impossible d’envoyer le signal au processus. Raison&#xa0;: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Impossible de changer la priorité. Raison&#xa0;: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>En veille</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Non interruptible</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zombie</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Échange mémoire</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Mort</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
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
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Mémoire virtuelle</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Mémoire partagée</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Valeur nice</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>PID parent</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>Temps CPU</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Démarré</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Ligne de commande</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processeur</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>Aucun processus trouvé</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Arrêt du processus</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Voulez-vous vraiment arrêter le processus&#xa0;?
Vous pourrez le reprendre plus tard.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Reprise du processus</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Voulez-vous vraiment reprendre le processus&#xa0;?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Fin du processus</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Voulez-vous vraiment terminer le processus&#xa0;?
Il aura la possibilité de se terminer normalement.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Destruction du processus</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Voulez-vous vraiment tuer le processus&#xa0;?
Il n’aura pas la possibilité de se terminer normalement.
Toutes les données du processus peuvent être perdues.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Signal inconnu</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Vue arborescente</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Tout développer</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Tout réduire</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Tous les processus</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Mes processus</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Arrêter le processus</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Reprendre le processus</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Terminer le processus</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Tuer le processus</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Changer la priorité...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Rechercher un processus...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Arbre complet</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Copier la ligne</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>or</source>
        <translation>ou</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Utilisation&#xa0;: zarn-system-monitor [onglet]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>L’onglet peut être indiqué ainsi&#xa0;:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - première page, informations générales sur le système</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - deuxième page, liste des processus</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - troisième page, liste des systèmes de fichiers</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - quatrième page, informations sur le réseau</translation>
    </message>
    <message>
        <source> B</source>
        <translation> o</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> Ko</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> Go</translation>
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
        <translation>Annuler</translation>
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
        <translation>T&amp;rier par</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Croissant</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Décroissant</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>Le moniteur système ne peut pas démarrer : impossible de lire %1. Il a besoin du système de fichiers proc complet, monté sur /proc.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>Entrant</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Sortant</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Trafic réseau</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>Entrant&#xa0;: %1, sortant&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Édi&amp;tion</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Intervalle d’actualisation</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>Intervalle de «&#xa0;Général&#xa0;»</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>Intervalle de «&#xa0;Processus&#xa0;»</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>Intervalle de «&#xa0;Systèmes de fichiers&#xa0;»</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>Intervalle de «&#xa0;Réseau&#xa0;»</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>«&#xa0;Général&#xa0;»</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>«&#xa0;Processus&#xa0;»</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>«&#xa0;Systèmes de fichiers&#xa0;»</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>«&#xa0;Réseau&#xa0;»</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Colonnes visibles</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>Charge du processeur</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>Charge du cœur %1</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>Processeur </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Système d’exploitation inconnu</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Le moniteur système vous permet de surveiller les informations générales du système, les processus, les points de montage et les statistiques du réseau.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Ceci est un logiciel libre sous licence publique générale GNU (GNU GPL), version 3 ou ultérieure (GPL-3.0-or-later). Il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>À propos de Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
</context>
</TS>
