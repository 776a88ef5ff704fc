<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>InfoPlist</name>
    <message>
        <source>NSHumanReadableCopyright</source>
        <translation>Copyright © 2026 Lumaroo 開発者, MIT ライセンス</translation>
    </message>
    <message>
        <source>NSPrefPaneIconLabel</source>
        <translation>Lumaroo</translation>
    </message>
    <message>
        <source>NSPrefPaneSearchKeywords</source>
        <translation>ウィンドウ, ウィンドウの切り替え, ウィンドウの選択, 選択, オーバーレイ, キーボード, ショートカット, ホットキー, 修飾キー, 矢印キー, キーリピート, 色, アップデート, 更新</translation>
    </message>
</context>
</TS>
