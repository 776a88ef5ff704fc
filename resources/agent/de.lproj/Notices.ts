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
    <message>
        <source>There is no X server.</source>
        <translation>Es gibt keinen X-Server.</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <translation>Der X-Server ist nicht mehr da.</translation>
    </message>
    <message>
        <source>A Wayland session does not let programs see other programs' windows. Lumaroo works in an X11 session.</source>
        <translation>Eine Wayland-Sitzung lässt Programme die Fenster anderer Programme nicht sehen. Lumaroo arbeitet in einer X11-Sitzung.</translation>
    </message>
    <message>
        <source>No window manager runs that tells which windows there are.</source>
        <translation>Es läuft keine Fensterverwaltung, die sagt, welche Fenster es gibt.</translation>
    </message>
    <message>
        <source>The window manager does not tell which windows there are.</source>
        <translation>Die Fensterverwaltung sagt nicht, welche Fenster es gibt.</translation>
    </message>
    <message>
        <source>“%1” has been closed.</source>
        <translation>„%1“ wurde geschlossen.</translation>
    </message>
    <message>
        <source>It has been closed.</source>
        <translation>Es wurde geschlossen.</translation>
    </message>
    <message>
        <source>The modifier keys stay as they are</source>
        <translation>Die Zusatztasten bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Ihre Wahl ließ sich nicht speichern. Vielleicht ist der Datenträger voll.</translation>
    </message>
</context>
</TS>
