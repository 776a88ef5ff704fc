<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Einstellungen durchsuchen</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Alle Einstellungen</translation>
    </message>
    <message>
        <source>&amp;All settings</source>
        <translation>&amp;Alle Einstellungen</translation>
    </message>
    <message>
        <source>No settings are installed.</source>
        <translation>Es sind keine Einstellungen installiert.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Nichts passt zu „%1“.</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>„%1“ kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>No settings of this name are installed. Install them, then try again.</source>
        <translation>Einstellungen dieses Namens sind nicht installiert. Installieren Sie sie und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>It is not there any more. Install it again.</source>
        <translation>Der Bereich ist nicht mehr vorhanden. Installieren Sie ihn neu.</translation>
    </message>
    <message>
        <source>It is damaged. Install it again.</source>
        <translation>Der Bereich ist beschädigt. Installieren Sie ihn neu.</translation>
    </message>
    <message>
        <source>It was made for another kind of computer. Install the version for this one.</source>
        <translation>Der Bereich wurde für eine andere Art von Rechner gemacht. Installieren Sie die Fassung für diesen.</translation>
    </message>
    <message>
        <source>It needs a newer version of this application. Update Lumaroo.</source>
        <translation>Der Bereich braucht eine neuere Fassung dieses Programms. Aktualisieren Sie Lumaroo.</translation>
    </message>
    <message>
        <source>It contains no settings. Install it again.</source>
        <translation>Der Bereich enthält keine Einstellungen. Installieren Sie ihn neu.</translation>
    </message>
    <message>
        <source>It could not start. The system log may say why.</source>
        <translation>Der Bereich konnte nicht starten. Der Grund steht womöglich im Systemprotokoll.</translation>
    </message>
    <message>
        <source>Its window content could not be loaded. Install it again.</source>
        <translation>Der Fensterinhalt konnte nicht geladen werden. Installieren Sie den Bereich neu.</translation>
    </message>
    <message>
        <source>Your changes are not saved</source>
        <translation>Ihre Änderungen sind nicht gespeichert</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Ihre Einstellungen lassen sich nicht lesen</translation>
    </message>
    <message>
        <source>Your changes may not last</source>
        <translation>Ihre Änderungen sind womöglich nicht von Dauer</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it, then try again.</source>
        <translation>Der Datenträger ist voll. Schaffen Sie Platz und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” can only be read at the moment.</source>
        <translation>Der Datenträger mit dem Ordner „%1“ lässt sich zurzeit nur lesen.</translation>
    </message>
    <message>
        <source>You lack the permission to read the file “%1”.</source>
        <translation>Ihnen fehlt das Recht, die Datei „%1“ zu lesen.</translation>
    </message>
    <message>
        <source>You lack the permission to write in the folder “%1”.</source>
        <translation>Ihnen fehlt das Recht, im Ordner „%1“ zu schreiben.</translation>
    </message>
    <message>
        <source>Another program does not let go of the file “%1”.</source>
        <translation>Ein anderes Programm gibt die Datei „%1“ nicht frei.</translation>
    </message>
    <message>
        <source>The file “%1” would become too large.</source>
        <translation>Die Datei „%1“ würde zu groß.</translation>
    </message>
    <message>
        <source>The file “%1” makes trouble (%2).</source>
        <translation>Mit der Datei „%1“ gibt es Schwierigkeiten (%2).</translation>
    </message>
    <message>
        <source>What you see here is not what is stored.</source>
        <translation>Was Sie hier sehen, ist nicht das, was gespeichert ist.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>A settings file was damaged</source>
        <translation>Eine Einstellungsdatei war beschädigt</translation>
    </message>
    <message>
        <source>It is kept as “%1”. The settings in it began anew with their defaults.</source>
        <translation>Sie ist als „%1“ aufbewahrt. Die Einstellungen darin begannen neu mit ihren Standardwerten.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
</context>
</TS>
