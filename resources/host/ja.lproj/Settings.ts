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
    <message>
        <source>Your changes are not saved</source>
        <translation>変更が保存されていません</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>設定を読み込めません</translation>
    </message>
    <message>
        <source>Your changes may not last</source>
        <translation>変更が失われる可能性があります</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it, then try again.</source>
        <translation>ディスクに空きがありません。空きを作ってから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” can only be read at the moment.</source>
        <translation>フォルダー「%1」のあるディスクは、現在読み取り専用です。</translation>
    </message>
    <message>
        <source>You lack the permission to read the file “%1”.</source>
        <translation>ファイル「%1」を読み込む権限がありません。</translation>
    </message>
    <message>
        <source>You lack the permission to write in the folder “%1”.</source>
        <translation>フォルダー「%1」に書き込む権限がありません。</translation>
    </message>
    <message>
        <source>Another program does not let go of the file “%1”.</source>
        <translation>ほかのプログラムがファイル「%1」を使い続けています。</translation>
    </message>
    <message>
        <source>The file “%1” would become too large.</source>
        <translation>ファイル「%1」が大きくなりすぎます。</translation>
    </message>
    <message>
        <source>The file “%1” makes trouble (%2).</source>
        <translation>ファイル「%1」に問題があります (%2)。</translation>
    </message>
    <message>
        <source>What you see here is not what is stored.</source>
        <translation>ここに表示されている内容は、保存されている内容とは異なります。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>A settings file was damaged</source>
        <translation>設定ファイルが壊れていました</translation>
    </message>
    <message>
        <source>It is kept as “%1”. The settings in it began anew with their defaults.</source>
        <translation>「%1」として残してあります。その中の設定は初期値に戻りました。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
</context>
</TS>
