<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>InfoPlist</name>
    <message>
        <source>NSHumanReadableCopyright</source>
        <translation>Copyright © 2026 Die Entwickler von Lumaroo, unter der MIT-Lizenz</translation>
    </message>
    <message>
        <source>NSPrefPaneIconLabel</source>
        <translation>Lumaroo</translation>
    </message>
    <message>
        <source>NSPrefPaneSearchKeywords</source>
        <translation>Fenster, Fenster wechseln, Fensterauswahl, Auswahl, Overlay, Tastatur, Tastenkürzel, Kurzbefehl, Sondertaste, Pfeiltasten, Tastenwiederholung, Farbe, Aktualisierung, Updates</translation>
    </message>
</context>
</TS>
