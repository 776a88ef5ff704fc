<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>HelpViewer</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Größere Schrift</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Hilfe durchsuchen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Gefundene Seiten</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>Gefundene Seiten: %1</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Keine Seite enthält alle diese Wörter.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Suche läuft …</translation>
    </message>
    <message>
        <source>This help is not available</source>
        <translation>Diese Hilfe ist nicht verfügbar</translation>
    </message>
    <message>
        <source>Its book is missing or damaged. Installing the program again brings it back.</source>
        <translation>Ihr Hilfebuch fehlt oder ist beschädigt. Wenn Sie das Programm erneut installieren, ist es wieder da.</translation>
    </message>
    <message>
        <source>The web page cannot be opened: %1</source>
        <translation>Die Webseite lässt sich nicht öffnen: %1</translation>
    </message>
</context>
</TS>
