<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
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
</context>
</TS>
