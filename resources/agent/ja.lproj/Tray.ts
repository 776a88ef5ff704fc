<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Tray</name>
    <message>
        <source>Lumaroo is on</source>
        <translation>Lumaroo はオンです</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>チュートリアル</translation>
    </message>
    <message>
        <source>Quit Lumaroo</source>
        <translation>Lumaroo を終了</translation>
    </message>
    <message>
        <source>Off for now. Its keys are other programs' meanwhile.</source>
        <translation>一時的にオフです。その間、キーはほかのプログラムで使えます。</translation>
    </message>
</context>
</TS>
