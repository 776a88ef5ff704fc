<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>InfoPlist</name>
    <message>
        <source>NSHumanReadableCopyright</source>
        <translation>Copyright © 2026 Os desenvolvedores do Lumaroo, sob a licença MIT</translation>
    </message>
    <message>
        <source>NSPrefPaneIconLabel</source>
        <translation>Lumaroo</translation>
    </message>
    <message>
        <source>NSPrefPaneSearchKeywords</source>
        <translation>janela, alternar janelas, seleção de janelas, seleção, sobreposição, teclado, atalho, atalho de teclado, tecla modificadora, setas, repetição de teclas, cor, atualização, atualizações</translation>
    </message>
</context>
</TS>
