<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>InfoPlist</name>
    <message>
        <source>NSHumanReadableCopyright</source>
        <translation>Copyright © 2026 Twórcy Lumaroo, na licencji MIT</translation>
    </message>
    <message>
        <source>NSPrefPaneIconLabel</source>
        <translation>Lumaroo</translation>
    </message>
    <message>
        <source>NSPrefPaneSearchKeywords</source>
        <translation>okno, przełączanie okien, wybór okna, wybór, nakładka, klawiatura, skrót, skrót klawiszowy, klawisz modyfikujący, klawisze strzałek, powtarzanie klawiszy, kolor, aktualizacja, aktualizacje</translation>
    </message>
</context>
</TS>
