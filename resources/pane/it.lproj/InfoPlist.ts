<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>InfoPlist</name>
    <message>
        <source>NSHumanReadableCopyright</source>
        <translation>Copyright © 2026 Gli sviluppatori di Lumaroo, con licenza MIT</translation>
    </message>
    <message>
        <source>NSPrefPaneIconLabel</source>
        <translation>Lumaroo</translation>
    </message>
    <message>
        <source>NSPrefPaneSearchKeywords</source>
        <translation>finestra, cambiare finestra, selezione di finestre, selezione, sovrapposizione, overlay, tastiera, scorciatoia da tastiera, scorciatoia, tasto modificatore, tasti freccia, ripetizione dei tasti, colore, aggiornamenti</translation>
    </message>
</context>
</TS>
