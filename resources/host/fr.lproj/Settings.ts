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
</context>
</TS>
