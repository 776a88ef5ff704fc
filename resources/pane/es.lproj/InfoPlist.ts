<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>InfoPlist</name>
    <message>
        <source>NSHumanReadableCopyright</source>
        <translation>Copyright © 2026 Los desarrolladores de Lumaroo, bajo la licencia MIT</translation>
    </message>
    <message>
        <source>NSPrefPaneIconLabel</source>
        <translation>Lumaroo</translation>
    </message>
    <message>
        <source>NSPrefPaneSearchKeywords</source>
        <translation>ventana, cambiar de ventana, selección de ventanas, selección, superposición, overlay, teclado, atajo de teclado, combinación de teclas, tecla modificadora, teclas de flecha, repetición de teclas, color, actualizaciones</translation>
    </message>
</context>
</TS>
