<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>LumarooPref</name>
    <message>
        <source>&amp;General</source>
        <translation>All&amp;gemein</translation>
    </message>
    <message>
        <source>Turn Lumaroo on or off</source>
        <translation>Lumaroo ein- oder ausschalten</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo läuft im Hintergrund. Es bleibt eingeschaltet, wenn Sie dieses Fenster schließen.</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>So geht es weiter</translation>
    </message>
    <message>
        <source>Hold the modifier keys and press a movement key. Lumaroo marks a window; each further press moves the mark to the next window.</source>
        <translation>Halten Sie die Zusatztasten und drücken Sie eine Bewegungstaste. Lumaroo markiert ein Fenster; jeder weitere Druck bewegt die Markierung zum nächsten Fenster.</translation>
    </message>
    <message>
        <source>Let go of the modifier keys, and you are in the marked window.</source>
        <translation>Lassen Sie die Zusatztasten los, und Sie sind im markierten Fenster.</translation>
    </message>
    <message>
        <source>You see and choose all these keys on the page “Keys”.</source>
        <translation>Alle diese Tasten sehen und wählen Sie auf der Seite „Tasten“.</translation>
    </message>
    <message>
        <source>New to Lumaroo</source>
        <translation>Neu bei Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Start the tutorial</source>
        <translation>&amp;Einführung starten</translation>
    </message>
    <message>
        <source>The tutorial shows the keys at work. It turns Lumaroo on if it is off.</source>
        <translation>Die Einführung zeigt die Tasten im Einsatz. Sie schaltet Lumaroo ein, wenn es ausgeschaltet ist.</translation>
    </message>
    <message>
        <source>Help about turning Lumaroo on</source>
        <translation>Hilfe zum Einschalten von Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>Modifier keys</source>
        <translation>Zusatztasten</translation>
    </message>
    <message>
        <source>Sh&amp;ift ⇧</source>
        <translation>U&amp;mschalt ⇧</translation>
    </message>
    <message>
        <source>&amp;Control ⌃</source>
        <translation>&amp;Strg ⌃</translation>
    </message>
    <message>
        <source>A&amp;lt ⌥</source>
        <translation>A&amp;lt ⌥</translation>
    </message>
    <message>
        <source>Sup&amp;er ⌘</source>
        <translation>Su&amp;per ⌘</translation>
    </message>
    <message>
        <source>The modifier keys in use</source>
        <translation>Die verwendeten Zusatztasten</translation>
    </message>
    <message>
        <source>Hold these while you press one of the keys below.</source>
        <translation>Halten Sie diese gedrückt, während Sie eine der Tasten unten drücken.</translation>
    </message>
    <message>
        <source>Movement keys</source>
        <translation>Bewegungstasten</translation>
    </message>
    <message>
        <source>Help about movement keys</source>
        <translation>Hilfe zu den Bewegungstasten</translation>
    </message>
    <message>
        <source>This key is used more than once.</source>
        <translation>Diese Taste ist mehrfach belegt.</translation>
    </message>
    <message>
        <source>Click here, then press the new key</source>
        <translation>Hier klicken, dann die neue Taste drücken</translation>
    </message>
    <message>
        <source>Key to move up</source>
        <translation>Taste für die Bewegung nach oben</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>Drücken Sie eine Taste</translation>
    </message>
    <message>
        <source>Key to move right</source>
        <translation>Taste für die Bewegung nach rechts</translation>
    </message>
    <message>
        <source>Key to move down</source>
        <translation>Taste für die Bewegung nach unten</translation>
    </message>
    <message>
        <source>Key to move left</source>
        <translation>Taste für die Bewegung nach links</translation>
    </message>
    <message>
        <source>Key to move to the window under the marked one</source>
        <translation>Taste für die Bewegung zum Fenster unter dem markierten</translation>
    </message>
    <message>
        <source>U&amp;p</source>
        <translation>&amp;Oben</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>U&amp;nten</translation>
    </message>
    <message>
        <source>Le&amp;ft</source>
        <translation>Lin&amp;ks</translation>
    </message>
    <message>
        <source>U&amp;nder</source>
        <translation>&amp;Darunter</translation>
    </message>
    <message>
        <source>Action keys</source>
        <translation>Aktionstasten</translation>
    </message>
    <message>
        <source>Help about action keys</source>
        <translation>Hilfe zu den Aktionstasten</translation>
    </message>
    <message>
        <source>Key to open these settings</source>
        <translation>Taste zum Öffnen dieser Einstellungen</translation>
    </message>
    <message>
        <source>Key to make a screenshot</source>
        <translation>Taste für ein Bildschirmfoto</translation>
    </message>
    <message>
        <source>Key to close the window</source>
        <translation>Taste zum Schließen des Fensters</translation>
    </message>
    <message>
        <source>Key to show a preview</source>
        <translation>Taste zum Zeigen einer Vorschau</translation>
    </message>
    <message>
        <source>Key to cancel the selection</source>
        <translation>Taste zum Abbrechen der Auswahl</translation>
    </message>
    <message>
        <source>Key to jump to the selection</source>
        <translation>Taste zum Springen zur Auswahl</translation>
    </message>
    <message>
        <source>&amp;Open these settings</source>
        <translation>&amp;Einstellungen öffnen</translation>
    </message>
    <message>
        <source>&amp;Make a screenshot</source>
        <translation>B&amp;ildschirmfoto machen</translation>
    </message>
    <message>
        <source>Close the &amp;window</source>
        <translation>&amp;Fenster schließen</translation>
    </message>
    <message>
        <source>Show a pre&amp;view</source>
        <translation>Vors&amp;chau zeigen</translation>
    </message>
    <message>
        <source>Cancel the &amp;selection</source>
        <translation>Aus&amp;wahl abbrechen</translation>
    </message>
    <message>
        <source>&amp;Jump to the selection</source>
        <translation>&amp;Zur Auswahl springen</translation>
    </message>
    <message>
        <source>To change a key, click it and press the new one. To try a key, press it with the modifier keys. A warning sign stands beside a key that is used twice.</source>
        <translation>Zum Ändern eine Taste anklicken und die neue drücken. Zum Ausprobieren eine Taste mit den Zusatztasten drücken. Ein Warnzeichen steht neben mehrfach belegten Tasten.</translation>
    </message>
    <message>
        <source>&amp;Behavior</source>
        <translation>&amp;Verhalten</translation>
    </message>
    <message>
        <source>Order of windows</source>
        <translation>Reihenfolge der Fenster</translation>
    </message>
    <message>
        <source>&amp;Left and right, go by:</source>
        <translation>&amp;Links und rechts geht es nach:</translation>
    </message>
    <message>
        <source>First selected window</source>
        <translation>Ausgangsfenster</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linke Kante</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechte Kante</translation>
    </message>
    <message>
        <source>Leading edge</source>
        <translation>Vorderkante</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Up and &amp;down, go by:</source>
        <translation>&amp;Oben und unten geht es nach:</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Obere Kante</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>Untere Kante</translation>
    </message>
    <message>
        <source>The key Under &amp;cycles:</source>
        <translation>Die Taste Da&amp;runter führt:</translation>
    </message>
    <message>
        <source>Up the stack</source>
        <translation>Im Stapel nach oben</translation>
    </message>
    <message>
        <source>Down the stack</source>
        <translation>Im Stapel nach unten</translation>
    </message>
    <message>
        <source>Down the stack goes from a window to the one that it covers, up the stack the other way.</source>
        <translation>Nach unten geht es von einem Fenster zu dem, das es verdeckt, nach oben umgekehrt.</translation>
    </message>
    <message>
        <source>The leading edge is the one that faces the way you move.</source>
        <translation>Die Vorderkante ist die, die in die Richtung der Bewegung zeigt.</translation>
    </message>
    <message>
        <source>&amp;Wrap around at the left and right edges of the screen</source>
        <translation>A&amp;m linken und rechten Bildschirmrand auf der anderen Seite weitergehen</translation>
    </message>
    <message>
        <source>Wrap around at the top and botto&amp;m edges of the screen</source>
        <translation>Am oberen und u&amp;nteren Bildschirmrand auf der anderen Seite weitergehen</translation>
    </message>
    <message>
        <source>Staying active</source>
        <translation>Aktiv bleiben</translation>
    </message>
    <message>
        <source>Acti&amp;vate only by pressing the modifier keys twice</source>
        <translation>Nur durch zweimaliges &amp;Drücken der Zusatztasten einschalten</translation>
    </message>
    <message>
        <source>Lumaroo then takes no combination from other programs, and always stays active.</source>
        <translation>Lumaroo nimmt dann anderen Programmen keine Kombination weg und bleibt immer aktiv.</translation>
    </message>
    <message>
        <source>Keep Lumaroo active:</source>
        <translation>Lumaroo aktiv halten:</translation>
    </message>
    <message>
        <source>Keep Lumaroo active</source>
        <translation>Lumaroo aktiv halten</translation>
    </message>
    <message>
        <source>Modi&amp;fier keys pressed twice</source>
        <translation>Zusatztasten zweimal gedrü&amp;ckt</translation>
    </message>
    <message>
        <source>M&amp;odifier keys pressed once</source>
        <translation>Zusatztasten einmal gedrüc&amp;kt</translation>
    </message>
    <message>
        <source>An active Lumaroo waits until you choose a window or cancel.</source>
        <translation>Ist Lumaroo aktiv, wartet es, bis Sie ein Fenster wählen oder abbrechen.</translation>
    </message>
    <message>
        <source>Key repeat</source>
        <translation>Tastenwiederholung</translation>
    </message>
    <message>
        <source>Re&amp;peat while a movement key is held</source>
        <translation>Bew&amp;egung wiederholen, solange die Taste gehalten wird</translation>
    </message>
    <message>
        <source>D&amp;elay before the first repeat:</source>
        <translation>Bis &amp;zur ersten Wiederholung:</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Kurz</translation>
    </message>
    <message>
        <source>Delay before the first repeat</source>
        <translation>Zeit bis zur ersten Wiederholung</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Lang</translation>
    </message>
    <message>
        <source>Repeat &amp;speed:</source>
        <translation>Ge&amp;schwindigkeit danach:</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Repeat speed</source>
        <translation>Geschwindigkeit der Wiederholung</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Hold an arrow key here.</source>
        <translation>Halten Sie hier eine Pfeiltaste.</translation>
    </message>
    <message>
        <source>Try the key repeat</source>
        <translation>Tastenwiederholung ausprobieren</translation>
    </message>
    <message>
        <source>Click the windows, then hold an arrow key.</source>
        <translation>Klicken Sie die Fenster an und halten Sie eine Pfeiltaste.</translation>
    </message>
    <message>
        <source>Try &amp;it:</source>
        <translation>Aus&amp;probieren:</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Overlay</translation>
    </message>
    <message>
        <source>Colo&amp;r:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Farbe des Overlays</translation>
    </message>
    <message>
        <source>Choose the color of the overlay</source>
        <translation>Farbe des Overlays wählen</translation>
    </message>
    <message>
        <source>Use s&amp;ystem color</source>
        <translation>S&amp;ystemfarbe verwenden</translation>
    </message>
    <message>
        <source>A&amp;nimate the overlay</source>
        <translation>Overlay an&amp;imieren</translation>
    </message>
    <message>
        <source>The overlay will move and change gradually instead of at once.</source>
        <translation>Das Overlay bewegt und ändert sich dann allmählich statt auf einmal.</translation>
    </message>
    <message>
        <source>Help about the order of windows</source>
        <translation>Hilfe zur Reihenfolge der Fenster</translation>
    </message>
    <message>
        <source>&amp;Updates</source>
        <translation>Akt&amp;ualisierung</translation>
    </message>
    <message>
        <source>Automatic check</source>
        <translation>Automatische Suche</translation>
    </message>
    <message>
        <source>&amp;Check for new versions automatically</source>
        <translation>Automatisch nach &amp;neuen Versionen suchen</translation>
    </message>
    <message>
        <source>Lumaroo looks once a day and asks before it installs anything.</source>
        <translation>Lumaroo sucht einmal am Tag und fragt, bevor es etwas installiert.</translation>
    </message>
    <message>
        <source>Check by hand</source>
        <translation>Suche von Hand</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>&amp;Jetzt suchen</translation>
    </message>
    <message>
        <source>State of updates</source>
        <translation>Stand der Aktualisierung</translation>
    </message>
    <message>
        <source>Last successful check: %1</source>
        <translation>Letzte erfolgreiche Suche: %1</translation>
    </message>
    <message>
        <source>Last successful check: never</source>
        <translation>Letzte erfolgreiche Suche: noch keine</translation>
    </message>
    <message>
        <source>Version %1 is ready. It is installed when you close the settings.</source>
        <translation>Version %1 liegt bereit. Sie wird installiert, wenn Sie die Einstellungen schließen.</translation>
    </message>
    <message>
        <source>No new version is waiting to be installed.</source>
        <translation>Es wartet keine neue Version auf ihre Installation.</translation>
    </message>
    <message>
        <source>⚠ For 30 days Lumaroo could not find out about new versions. Check the connection to the Internet, or look on the web site.</source>
        <translation>⚠ Seit 30 Tagen konnte Lumaroo nicht erfahren, ob es neue Versionen gibt. Prüfen Sie die Verbindung zum Internet, oder sehen Sie auf der Webseite nach.</translation>
    </message>
    <message>
        <source>Help about updates</source>
        <translation>Hilfe zur Aktualisierung</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Without a mou&amp;se</source>
        <translation>Ohne Mau&amp;s</translation>
    </message>
    <message>
        <source>Al&amp;erts</source>
        <translation>Wa&amp;rnungen</translation>
    </message>
    <message>
        <source>&amp;Order of windows</source>
        <translation>Reihenf&amp;olge der Fenster</translation>
    </message>
    <message>
        <source>A&amp;ction keys</source>
        <translation>Aktio&amp;nstasten</translation>
    </message>
    <message>
        <source>&amp;Movement keys</source>
        <translation>B&amp;ewegungstasten</translation>
    </message>
    <message>
        <source>Turning &amp;Lumaroo on</source>
        <translation>&amp;Lumaroo einschalten</translation>
    </message>
    <message>
        <source>Read in the help</source>
        <translation>In der Hilfe lesen</translation>
    </message>
    <message>
        <source>Your keys</source>
        <translation>Ihre Tasten</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Visit the &amp;web page</source>
        <translation>&amp;Webseite besuchen</translation>
    </message>
    <message>
        <source>&amp;Feedback on the web</source>
        <translation>Rück&amp;meldung im Web</translation>
    </message>
    <message>
        <source>Send &amp;feedback…</source>
        <translation>&amp;Rückmeldung senden…</translation>
    </message>
    <message>
        <source>Help about using Lumaroo without a mouse</source>
        <translation>Hilfe zur Bedienung ohne Maus</translation>
    </message>
    <message>
        <source>Abou&amp;t</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Mitwirkende</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Lumaroo developers</source>
        <translation>Copyright © 2026 Die Entwickler von Lumaroo</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>Farbe color</translation>
    </message>
    <message>
        <source>More help</source>
        <translation>Weitere Hilfe</translation>
    </message>
    <message>
        <source>What is new in Lumaroo</source>
        <translation>Neues in Lumaroo</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Neues</translation>
    </message>
    <message>
        <source>&amp;Do not show this again for this version</source>
        <translation>Für diese Version &amp;nicht mehr zeigen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Start Lumaroo at l&amp;ogin</source>
        <translation>Lumaroo beim Anmelden &amp;starten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Restore all keys</source>
        <translation>Alle Tasten zurücksetzen</translation>
    </message>
</context>
</TS>
