<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Tray</name>
    <message>
        <source>Lumaroo is on</source>
        <translation>Lumaroo è attivato</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>Quit Lumaroo</source>
        <translation>Esci da Lumaroo</translation>
    </message>
    <message>
        <source>Off for now. Its keys are other programs' meanwhile.</source>
        <translation>Disattivato per ora. Nel frattempo i suoi tasti sono degli altri programmi.</translation>
    </message>
</context>
</TS>
