<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Tray</name>
    <message>
        <source>Lumaroo is on</source>
        <translation>O Lumaroo está ligado</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>Quit Lumaroo</source>
        <translation>Encerrar o Lumaroo</translation>
    </message>
    <message>
        <source>Off for now. Its keys are other programs' meanwhile.</source>
        <translation>Desligado por enquanto. Enquanto isso, suas teclas ficam para outros programas.</translation>
    </message>
</context>
</TS>
