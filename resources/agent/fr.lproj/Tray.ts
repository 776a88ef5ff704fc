<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Tray</name>
    <message>
        <source>Lumaroo is on</source>
        <translation>Lumaroo est activé</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Tutoriel</translation>
    </message>
    <message>
        <source>Quit Lumaroo</source>
        <translation>Quitter Lumaroo</translation>
    </message>
    <message>
        <source>Off for now. Its keys are other programs' meanwhile.</source>
        <translation>Désactivé pour l’instant. D’ici là, ses touches reviennent aux autres programmes.</translation>
    </message>
</context>
</TS>
