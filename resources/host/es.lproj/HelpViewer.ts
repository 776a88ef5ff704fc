<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>HelpViewer</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Reducir el texto</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Ampliar el texto</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Buscar en la ayuda</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Páginas encontradas</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>Páginas encontradas: %1</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Ninguna página contiene todas estas palabras.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>This help is not available</source>
        <translation>Esta ayuda no está disponible</translation>
    </message>
    <message>
        <source>Its book is missing or damaged. Installing the program again brings it back.</source>
        <translation>Su libro de ayuda falta o está dañado. Al volver a instalar el programa se recupera.</translation>
    </message>
    <message>
        <source>The web page cannot be opened: %1</source>
        <translation>No se puede abrir la página web: %1</translation>
    </message>
</context>
</TS>
