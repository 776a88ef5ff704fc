<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>HelpViewer</name>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Mniejszy tekst</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Większy tekst</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Przeszukaj pomoc</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Spis treści</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Znalezione strony</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>Znalezione strony: %1</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Żadna strona nie zawiera wszystkich tych słów.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Wyszukiwanie…</translation>
    </message>
    <message>
        <source>This help is not available</source>
        <translation>Ta pomoc nie jest dostępna</translation>
    </message>
    <message>
        <source>Its book is missing or damaged. Installing the program again brings it back.</source>
        <translation>Brakuje podręcznika pomocy lub jest on uszkodzony. Ponowna instalacja programu go przywróci.</translation>
    </message>
    <message>
        <source>The web page cannot be opened: %1</source>
        <translation>Nie można otworzyć strony WWW: %1</translation>
    </message>
</context>
</TS>
