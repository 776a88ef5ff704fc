<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>InfoPlist</name>
    <message>
        <source>NSHumanReadableCopyright</source>
        <translation>Copyright © 2026 Les développeurs de Lumaroo, sous licence MIT</translation>
    </message>
    <message>
        <source>NSPrefPaneIconLabel</source>
        <translation>Lumaroo</translation>
    </message>
    <message>
        <source>NSPrefPaneSearchKeywords</source>
        <translation>fenêtre, changer de fenêtre, sélection de fenêtres, sélection, incrustation, overlay, clavier, raccourci clavier, raccourci, touche de modification, modificateur, touches fléchées, répétition des touches, couleur, mises à jour</translation>
    </message>
</context>
</TS>
