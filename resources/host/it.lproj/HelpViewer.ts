<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>HelpViewer</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Testo più piccolo</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Testo più grande</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Cerca nella guida</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Pagine trovate</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>Pagine trovate: %1</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Nessuna pagina contiene tutte queste parole.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Ricerca…</translation>
    </message>
    <message>
        <source>This help is not available</source>
        <translation>Questa guida non è disponibile</translation>
    </message>
    <message>
        <source>Its book is missing or damaged. Installing the program again brings it back.</source>
        <translation>Il suo libro della guida manca o è danneggiato. Installando di nuovo il programma viene ripristinato.</translation>
    </message>
    <message>
        <source>The web page cannot be opened: %1</source>
        <translation>Impossibile aprire la pagina web: %1</translation>
    </message>
</context>
</TS>
