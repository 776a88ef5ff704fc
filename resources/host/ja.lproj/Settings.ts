<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>すべての設定</translation>
    </message>
    <message>
        <source>&amp;All settings</source>
        <translation>すべての設定(&amp;A)</translation>
    </message>
    <message>
        <source>No settings are installed.</source>
        <translation>設定がインストールされていません。</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>「%1」に一致するものはありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>「%1」を表示できません</translation>
    </message>
    <message>
        <source>No settings of this name are installed. Install them, then try again.</source>
        <translation>この名前の設定はインストールされていません。インストールしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>It is not there any more. Install it again.</source>
        <translation>設定パネルが見つかりません。インストールし直してください。</translation>
    </message>
    <message>
        <source>It is damaged. Install it again.</source>
        <translation>設定パネルが壊れています。インストールし直してください。</translation>
    </message>
    <message>
        <source>It was made for another kind of computer. Install the version for this one.</source>
        <translation>設定パネルは別の種類のコンピューター用です。このコンピューター用のものをインストールしてください。</translation>
    </message>
    <message>
        <source>It needs a newer version of this application. Update Lumaroo.</source>
        <translation>設定パネルにはこのアプリケーションの新しいバージョンが必要です。Lumaroo をアップデートしてください。</translation>
    </message>
    <message>
        <source>It contains no settings. Install it again.</source>
        <translation>設定パネルに設定が含まれていません。インストールし直してください。</translation>
    </message>
    <message>
        <source>It could not start. The system log may say why.</source>
        <translation>設定パネルを開始できませんでした。理由はシステムログに記録されている可能性があります。</translation>
    </message>
    <message>
        <source>Its window content could not be loaded. Install it again.</source>
        <translation>ウィンドウの内容を読み込めませんでした。設定パネルをインストールし直してください。</translation>
    </message>
</context>
</TS>
