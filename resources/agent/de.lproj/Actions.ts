<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>No window was closed</source>
        <translation>Kein Fenster wurde geschlossen</translation>
    </message>
    <message>
        <source>There is no window to close.</source>
        <translation>Es gibt kein Fenster, das sich schließen lässt.</translation>
    </message>
    <message>
        <source>A window did not close</source>
        <translation>Ein Fenster blieb offen</translation>
    </message>
    <message>
        <source>“%1” is still open.</source>
        <translation>„%1“ ist noch offen.</translation>
    </message>
    <message>
        <source>“%1” asks something before it closes.</source>
        <translation>„%1“ fragt etwas, bevor es sich schließt.</translation>
    </message>
    <message>
        <source>A window cannot be asked to close</source>
        <translation>Ein Fenster lässt sich nicht zum Schließen auffordern</translation>
    </message>
    <message>
        <source>“%1” does not answer to being closed. Ending its program loses what it has not stored.</source>
        <translation>„%1“ reagiert nicht auf das Schließen. Wird sein Programm beendet, geht verloren, was es nicht gesichert hat.</translation>
    </message>
    <message>
        <source>End it</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>The settings did not open</source>
        <translation>Die Einstellungen öffneten sich nicht</translation>
    </message>
    <message>
        <source>The settings cannot be opened: %1.</source>
        <translation>Die Einstellungen lassen sich nicht öffnen: %1.</translation>
    </message>
    <message>
        <source>the command lumaroo-settings is not installed</source>
        <translation>der Befehl lumaroo-settings ist nicht installiert</translation>
    </message>
    <message>
        <source>%1 cannot be run</source>
        <translation>%1 lässt sich nicht starten</translation>
    </message>
    <message>
        <source>No picture was taken</source>
        <translation>Kein Bild wurde aufgenommen</translation>
    </message>
    <message>
        <source>There is no window to take a picture of.</source>
        <translation>Es gibt kein Fenster, von dem sich ein Bild aufnehmen lässt.</translation>
    </message>
    <message>
        <source>“%1” is minimised, so it has no picture.</source>
        <translation>„%1“ ist minimiert und hat daher kein Bild.</translation>
    </message>
    <message>
        <source>“%1” is on another desktop, so it has no picture.</source>
        <translation>„%1“ ist auf einer anderen Arbeitsfläche und hat daher kein Bild.</translation>
    </message>
    <message>
        <source>“%1” was closed before there was a picture of it.</source>
        <translation>„%1“ wurde geschlossen, bevor es ein Bild davon gab.</translation>
    </message>
    <message>
        <source>This X server gives no pictures of windows.</source>
        <translation>Dieser X-Server gibt keine Bilder von Fenstern.</translation>
    </message>
    <message>
        <source>The disk is full, so the picture was not stored.</source>
        <translation>Der Datenträger ist voll; das Bild wurde nicht gesichert.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to, so the picture was not stored.</source>
        <translation>In den Ordner %1 lässt sich nicht schreiben; das Bild wurde nicht gesichert.</translation>
    </message>
    <message>
        <source>The picture was not stored: %1.</source>
        <translation>Das Bild wurde nicht gesichert: %1.</translation>
    </message>
    <message>
        <source>what stores it did not end well</source>
        <translation>was es sichert, endete nicht ordentlich</translation>
    </message>
    <message>
        <source>Picture of “%1” taken</source>
        <translation>Bild von „%1“ aufgenommen</translation>
    </message>
    <message>
        <source>It is stored as “%1” in %2.</source>
        <translation>Es ist als „%1“ in %2 gesichert.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>No preview is shown</source>
        <translation>Keine Vorschau wird gezeigt</translation>
    </message>
    <message>
        <source>Another program has the keyboard and the mouse, as one that locks the screen.</source>
        <translation>Ein anderes Programm hat Tastatur und Maus, etwa eines, das den Bildschirm sperrt.</translation>
    </message>
    <message>
        <source>There is no window to show.</source>
        <translation>Es gibt kein Fenster, das sich zeigen lässt.</translation>
    </message>
    <message>
        <source>A window may still be open</source>
        <translation>Ein Fenster ist vielleicht noch offen</translation>
    </message>
    <message>
        <source>The windows cannot be seen any more, so it is not known whether “%1” has closed.</source>
        <translation>Die Fenster sind nicht mehr zu sehen, daher ist nicht bekannt, ob „%1“ geschlossen wurde.</translation>
    </message>
    <message>
        <source>Untitled window</source>
        <translation>Fenster ohne Titel</translation>
    </message>
</context>
</TS>
