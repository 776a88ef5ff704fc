<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Rechercher dans les paramètres</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Tous les paramètres</translation>
    </message>
    <message>
        <source>&amp;All settings</source>
        <translation>T&amp;ous les paramètres</translation>
    </message>
    <message>
        <source>No settings are installed.</source>
        <translation>Aucun paramètre n’est installé.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Aucun résultat pour « %1 ».</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>Impossible d’afficher « %1 »</translation>
    </message>
    <message>
        <source>No settings of this name are installed. Install them, then try again.</source>
        <translation>Aucun paramètre de ce nom n’est installé. Installez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>It is not there any more. Install it again.</source>
        <translation>Ce module a disparu. Réinstallez-le.</translation>
    </message>
    <message>
        <source>It is damaged. Install it again.</source>
        <translation>Ce module est endommagé. Réinstallez-le.</translation>
    </message>
    <message>
        <source>It was made for another kind of computer. Install the version for this one.</source>
        <translation>Ce module a été conçu pour un autre type d’ordinateur. Installez la version adaptée à celui-ci.</translation>
    </message>
    <message>
        <source>It needs a newer version of this application. Update Lumaroo.</source>
        <translation>Ce module nécessite une version plus récente de cette application. Mettez Lumaroo à jour.</translation>
    </message>
    <message>
        <source>It contains no settings. Install it again.</source>
        <translation>Ce module ne contient aucun paramètre. Réinstallez-le.</translation>
    </message>
    <message>
        <source>It could not start. The system log may say why.</source>
        <translation>Ce module n’a pas pu démarrer. Le journal du système en donne peut-être la raison.</translation>
    </message>
    <message>
        <source>Its window content could not be loaded. Install it again.</source>
        <translation>Le contenu de la fenêtre n’a pas pu être chargé. Réinstallez ce module.</translation>
    </message>
    <message>
        <source>Your changes are not saved</source>
        <translation>Vos modifications ne sont pas enregistrées</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Impossible de lire vos paramètres</translation>
    </message>
    <message>
        <source>Your changes may not last</source>
        <translation>Vos modifications risquent d’être perdues</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it, then try again.</source>
        <translation>Le disque est plein. Libérez de l’espace, puis réessayez.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” can only be read at the moment.</source>
        <translation>Le disque qui contient le dossier « %1 » est actuellement en lecture seule.</translation>
    </message>
    <message>
        <source>You lack the permission to read the file “%1”.</source>
        <translation>Vous n’avez pas le droit de lire le fichier « %1 ».</translation>
    </message>
    <message>
        <source>You lack the permission to write in the folder “%1”.</source>
        <translation>Vous n’avez pas le droit d’écrire dans le dossier « %1 ».</translation>
    </message>
    <message>
        <source>Another program does not let go of the file “%1”.</source>
        <translation>Un autre programme ne libère pas le fichier « %1 ».</translation>
    </message>
    <message>
        <source>The file “%1” would become too large.</source>
        <translation>Le fichier « %1 » deviendrait trop volumineux.</translation>
    </message>
    <message>
        <source>The file “%1” makes trouble (%2).</source>
        <translation>Le fichier « %1 » pose problème (%2).</translation>
    </message>
    <message>
        <source>What you see here is not what is stored.</source>
        <translation>Ce que vous voyez ici n’est pas ce qui est enregistré.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>A settings file was damaged</source>
        <translation>Un fichier de paramètres était endommagé</translation>
    </message>
    <message>
        <source>It is kept as “%1”. The settings in it began anew with their defaults.</source>
        <translation>Il est conservé sous le nom « %1 ». Les paramètres qu’il contenait sont revenus à leurs valeurs par défaut.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
    </message>
</context>
</TS>
