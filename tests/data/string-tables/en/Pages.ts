<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Pages</name>
    <message>
        <source>Quit</source>
        <translation>Quit pages</translation>
    </message>
</context>
</TS>
