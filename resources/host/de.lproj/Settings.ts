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
</context>
</TS>
