<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Quit</source>
        <translation>Quit it</translation>
    </message>
    <message>
        <source>Only in English</source>
        <translation>English only</translation>
    </message>
</context>
</TS>
