<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>The system’s updates bring new versions of this copy.</source>
        <translation>Neue Versionen bringt die Aktualisierung des Systems.</translation>
    </message>
    <message>
        <source>Press:</source>
        <translation>Drücken Sie:</translation>
    </message>
    <message>
        <source>Hold %1 and press:</source>
        <translation>Halten Sie %1 und drücken Sie:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 je Sekunde</translation>
    </message>
    <message>
        <source>Lumaroo Enabled</source>
        <translation>Lumaroo ist eingeschaltet</translation>
    </message>
    <message>
        <source>Lumaroo Disabled</source>
        <translation>Lumaroo ist ausgeschaltet</translation>
    </message>
    <message>
        <source>Version %@ (%@)</source>
        <translation>Version %@ (%@)</translation>
    </message>
    <message>
        <source>Quit while key conflicts exist?</source>
        <translation>Trotz mehrfach belegter Tasten beenden?</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Quitting may cause unpredictable Lumaroo behavior.</source>
        <translation>Die markierten Tasten sind mit mehreren Aktionen belegt. Wenn Sie jetzt beenden, kann sich Lumaroo unvorhersehbar verhalten.</translation>
    </message>
    <message>
        <source>This key cannot be used. Press a letter, a digit, a sign, an arrow or a key of the number pad.</source>
        <translation>Diese Taste ist hier nicht verwendbar. Drücken Sie einen Buchstaben, eine Ziffer, ein Zeichen, einen Pfeil oder eine Taste des Ziffernblocks.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%@ is already in use.</source>
        <translation>%@ ist bereits belegt.</translation>
    </message>
    <message>
        <source>Lumaroo already has an action associated with %@. Please choose another key.</source>
        <translation>Lumaroo verwendet %@ schon für eine andere Aktion. Bitte wählen Sie eine andere Taste.</translation>
    </message>
    <message>
        <source>There are conflicts with the marked keys.</source>
        <translation>Die markierten Tasten sind mehrfach belegt.</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.</source>
        <translation>Die markierten Tasten sind mit mehreren Aktionen belegt. Bitte ändern Sie sie, damit jede nur eine Aktion hat.</translation>
    </message>
    <message>
        <source>Please change the marked HotKeys in the programs using them before setting them in Lumaroo.</source>
        <translation>Bitte ändern Sie die markierten Tasten in den Programmen, die sie verwenden, bevor Sie sie in Lumaroo festlegen.</translation>
    </message>
    <message>
        <source>At least one modifier must be set</source>
        <translation>Mindestens eine Zusatztaste muss gewählt sein</translation>
    </message>
    <message>
        <source>At least one modifier must be set to activate Lumaroo. Please select another modifier before unselecting this one.</source>
        <translation>Lumaroo lässt sich nur mit mindestens einer Zusatztaste aktivieren. Bitte wählen Sie eine andere Zusatztaste, bevor Sie diese abwählen.</translation>
    </message>
    <message>
        <source>The web page is unavailable</source>
        <translation>Die Webseite ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Please make sure you are connected to the Internet and try again later.</source>
        <translation>Bitte prüfen Sie Ihre Internetverbindung und versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Hold %1 and press %2</source>
        <translation>Halten Sie %1 und drücken Sie %2</translation>
    </message>
    <message>
        <source>Press %1 twice, then press %2</source>
        <translation>Drücken Sie %1 zweimal, dann %2</translation>
    </message>
    <message>
        <source>Lumaroo is off for now. The menu of its icon in the panel turns it on again.</source>
        <translation>Lumaroo ist vorerst aus. Das Menü seines Symbols in der Leiste schaltet es wieder ein.</translation>
    </message>
    <message>
        <source>Turn &amp;Lumaroo on with this switch.</source>
        <translation>Schalten Sie &amp;Lumaroo mit diesem Schalter ein.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo läuft im Hintergrund. Es bleibt eingeschaltet, wenn Sie dieses Fenster schließen.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this switch.</source>
        <translation>&amp;Lumaroo wurde unerwartet beendet. Schalten Sie es mit diesem Schalter wieder ein.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo could not be started. Install it again, then turn it on with this switch.</source>
        <translation>&amp;Lumaroo ließ sich nicht starten. Installieren Sie es neu und schalten Sie es mit diesem Schalter ein.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo was removed from this computer. Install it again to turn it on.</source>
        <translation>&amp;Lumaroo wurde von diesem Rechner entfernt. Installieren Sie es neu, um es einzuschalten.</translation>
    </message>
    <message>
        <source>All keys work.</source>
        <translation>Alle Tasten wirken.</translation>
    </message>
    <message>
        <source>Some keys do not work, since other programs use them. The page “Keys” names them.</source>
        <translation>Einige Tasten wirken nicht, da andere Programme sie benutzen. Die Seite „Tasten“ nennt sie.</translation>
    </message>
    <message>
        <source>Some keys do not work. The page “Keys” shows all of them.</source>
        <translation>Einige Tasten wirken nicht. Die Seite „Tasten“ zeigt alle.</translation>
    </message>
    <message>
        <source>No key works, since no modifier keys are chosen.</source>
        <translation>Keine Taste wirkt, da keine Zusatztasten gewählt sind.</translation>
    </message>
    <message>
        <source>Lumaroo takes no key from other programs.</source>
        <translation>Lumaroo nimmt anderen Programmen keine Taste weg.</translation>
    </message>
    <message>
        <source>This session has no hot keys for programs. Lumaroo needs an X11 session.</source>
        <translation>Diese Sitzung lässt Programmen keine eigenen Tasten. Lumaroo braucht eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>This session runs on Wayland. There no program may take keys or see the windows of others, so Lumaroo’s keys do nothing here. Your settings are kept. To use Lumaroo, log out and choose “X11” or “Xorg” on the login screen.</source>
        <translation>Diese Sitzung läuft mit Wayland. Dort darf kein Programm Tasten übernehmen oder die Fenster anderer sehen, daher tun Lumaroos Tasten hier nichts. Ihre Einstellungen bleiben erhalten. Um Lumaroo zu benutzen, melden Sie sich ab und wählen auf dem Anmeldebildschirm „X11“ oder „Xorg“.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Lumaroo cannot take it.</source>
        <translation>%1 wird von einem anderen Programm benutzt. Lumaroo erhält diese Taste nicht.</translation>
    </message>
    <message>
        <source>%1 are used by other programs. Lumaroo cannot take them.</source>
        <translation>%1 werden von anderen Programmen benutzt. Lumaroo erhält diese Tasten nicht.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Stattdessen %1 benutzen</translation>
    </message>
    <message>
        <source>Another program uses this key with the modifier keys.</source>
        <translation>Ein anderes Programm benutzt diese Taste mit den Zusatztasten.</translation>
    </message>
    <message>
        <source>The start at login could not be changed.</source>
        <translation>Der Start beim Anmelden ließ sich nicht ändern.</translation>
    </message>
    <message>
        <source>Lumaroo cannot write the file “%1”. Check that you may change it, and try again.</source>
        <translation>Lumaroo kann die Datei „%1“ nicht schreiben. Prüfen Sie, ob Sie sie ändern dürfen, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Some keys do not work, since Shift alone would take the capital letters you type.</source>
        <translation>Einige Tasten wirken nicht, weil die Umschalttaste allein die Großbuchstaben nähme, die Sie tippen.</translation>
    </message>
    <message>
        <source>Choose one at least: without a modifier key, no key works.</source>
        <translation>Wählen Sie mindestens eine: Ohne Zusatztaste wirkt keine Taste.</translation>
    </message>
    <message>
        <source>Shift alone would take the capital letters you type. Choose another modifier key with it.</source>
        <translation>Die Umschalttaste allein nähme die Großbuchstaben, die Sie tippen. Wählen Sie eine weitere Zusatztaste dazu.</translation>
    </message>
    <message>
        <source>Restore this key</source>
        <translation>Diese Taste zurücksetzen</translation>
    </message>
    <message>
        <source>%1 is used for “%2”.</source>
        <translation>%1 ist schon für „%2“ belegt.</translation>
    </message>
    <message>
        <source>%1 is used for “%2”. Change that key first.</source>
        <translation>%1 ist schon für „%2“ belegt. Ändern Sie zuerst diese Taste.</translation>
    </message>
    <message>
        <source>The key for “%1” is restored.</source>
        <translation>Die Taste für „%1“ ist zurückgesetzt.</translation>
    </message>
    <message>
        <source>You pressed %1: %2.</source>
        <translation>Sie haben %1 gedrückt: %2.</translation>
    </message>
    <message>
        <source>All keys are restored.</source>
        <translation>Alle Tasten sind zurückgesetzt.</translation>
    </message>
    <message>
        <source>The keys are as they were before.</source>
        <translation>Die Tasten sind wieder wie zuvor.</translation>
    </message>
</context>
</TS>
