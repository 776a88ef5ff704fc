<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Tray</name>
    <message>
        <source>Lumaroo is on</source>
        <translation>Lumaroo jest włączone</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Samouczek</translation>
    </message>
    <message>
        <source>Quit Lumaroo</source>
        <translation>Zakończ Lumaroo</translation>
    </message>
    <message>
        <source>Off for now. Its keys are other programs' meanwhile.</source>
        <translation>Na razie wyłączone. Jego klawisze należą tymczasem do innych programów.</translation>
    </message>
</context>
</TS>
