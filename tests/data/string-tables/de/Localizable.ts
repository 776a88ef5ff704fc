<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation></translation>
    </message>
    <message>
        <source>Only in German</source>
        <translation>Nur Deutsch</translation>
    </message>
</context>
</TS>
