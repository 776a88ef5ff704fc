<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Tray</name>
    <message>
        <source>Lumaroo is on</source>
        <translation>Lumaroo ist an</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Einführung</translation>
    </message>
    <message>
        <source>Quit Lumaroo</source>
        <translation>Lumaroo beenden</translation>
    </message>
    <message>
        <source>Off for now. Its keys are other programs' meanwhile.</source>
        <translation>Vorerst aus. Seine Tasten gehören so lange anderen Programmen.</translation>
    </message>
</context>
</TS>
