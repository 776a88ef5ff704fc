<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Notices</name>
    <message>
        <source>Windows cannot be selected here</source>
        <translation>Fenster lassen sich hier nicht auswählen</translation>
    </message>
    <message>
        <source>Another program keeps the keyboard</source>
        <translation>Ein anderes Programm behält die Tastatur</translation>
    </message>
    <message>
        <source>Until it lets go, Lumaroo's keys work with the modifier keys held.</source>
        <translation>Bis es sie loslässt, wirken die Tasten von Lumaroo mit gehaltenen Zusatztasten.</translation>
    </message>
    <message>
        <source>A window did not come to the front</source>
        <translation>Ein Fenster kam nicht nach vorn</translation>
    </message>
    <message>
        <source>The window manager did not turn to it.</source>
        <translation>Die Fensterverwaltung hat sich ihm nicht zugewandt.</translation>
    </message>
    <message>
        <source>The window manager did not turn to “%1”.</source>
        <translation>Die Fensterverwaltung hat sich „%1“ nicht zugewandt.</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Ein anderes Programm hält Tasten von Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo does not get %1.</source>
        <translation>Lumaroo bekommt %1 nicht.</translation>
    </message>
    <message>
        <source>With %1 held instead, all movement keys are free.</source>
        <translation>Mit %1 sind alle Bewegungstasten frei.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>%1 verwenden</translation>
    </message>
    <message>
        <source>The tutorial cannot be started</source>
        <translation>Die Einführung lässt sich nicht starten</translation>
    </message>
    <message>
        <source>A part of Lumaroo is missing. Install it again.</source>
        <translation>Ein Teil von Lumaroo fehlt. Installieren Sie es neu.</translation>
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
        <source>Lumaroo is on</source>
        <translation>Lumaroo ist an</translation>
    </message>
    <message>
        <source>Its keys do not work yet. The settings tell why.</source>
        <translation>Seine Tasten wirken noch nicht. Die Einstellungen sagen, warum.</translation>
    </message>
    <message>
        <source>Show me</source>
        <translation>Einführung zeigen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
</TS>
