<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>InfoPlist</name>
    <message>
        <source>NSHumanReadableCopyright</source>
        <translation>Urheberrecht, die Entwickler</translation>
    </message>
</context>
</TS>
