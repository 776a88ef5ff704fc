<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>HelpViewer</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>文字を小さく</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>文字を大きく</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>ヘルプを検索</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>見つかったページ</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>見つかったページ: %1</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>これらの語をすべて含むページはありません。</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>検索しています…</translation>
    </message>
    <message>
        <source>This help is not available</source>
        <translation>このヘルプは利用できません</translation>
    </message>
    <message>
        <source>Its book is missing or damaged. Installing the program again brings it back.</source>
        <translation>ヘルプブックが見つからないか、壊れています。プログラムをインストールし直すと元に戻ります。</translation>
    </message>
    <message>
        <source>The web page cannot be opened: %1</source>
        <translation>Web ページを開けません: %1</translation>
    </message>
</context>
</TS>
