<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Notices</name>
    <message>
        <source>Windows cannot be selected here</source>
        <translation>ここではウィンドウを選択できません</translation>
    </message>
    <message>
        <source>Another program keeps the keyboard</source>
        <translation>ほかのプログラムがキーボードを占有しています</translation>
    </message>
    <message>
        <source>Until it lets go, Lumaroo's keys work with the modifier keys held.</source>
        <translation>解放されるまで、Lumaroo のキーは修飾キーを押したまま使えます。</translation>
    </message>
    <message>
        <source>A window did not come to the front</source>
        <translation>前面に出せないウィンドウがあります</translation>
    </message>
    <message>
        <source>The window manager did not turn to it.</source>
        <translation>ウィンドウマネージャーがそのウィンドウに切り替えませんでした。</translation>
    </message>
    <message>
        <source>The window manager did not turn to “%1”.</source>
        <translation>ウィンドウマネージャーが「%1」に切り替えませんでした。</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>ほかのプログラムが Lumaroo のキーを使っています</translation>
    </message>
    <message>
        <source>Lumaroo does not get %1.</source>
        <translation>Lumaroo は %1 を受け取れません。</translation>
    </message>
    <message>
        <source>With %1 held instead, all movement keys are free.</source>
        <translation>代わりに %1 を使うと、すべての移動キーが空いています。</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>%1 を使う</translation>
    </message>
    <message>
        <source>The tutorial cannot be started</source>
        <translation>チュートリアルを開始できません</translation>
    </message>
    <message>
        <source>A part of Lumaroo is missing. Install it again.</source>
        <translation>Lumaroo の一部が見つかりません。インストールし直してください。</translation>
    </message>
    <message>
        <source>Hold %1 and press %2</source>
        <translation>%1 を押したまま %2 を押します</translation>
    </message>
    <message>
        <source>Press %1 twice, then press %2</source>
        <translation>%1 を 2 回押してから %2 を押します</translation>
    </message>
    <message>
        <source>Lumaroo is on</source>
        <translation>Lumaroo はオンです</translation>
    </message>
    <message>
        <source>Its keys do not work yet. The settings tell why.</source>
        <translation>キーはまだ使えません。理由は設定で確認できます。</translation>
    </message>
    <message>
        <source>Show me</source>
        <translation>チュートリアルを見る</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>There is no X server.</source>
        <translation>X サーバーがありません。</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <translation>X サーバーがなくなりました。</translation>
    </message>
    <message>
        <source>A Wayland session does not let programs see other programs' windows. Lumaroo works in an X11 session.</source>
        <translation>Wayland セッションでは、プログラムがほかのプログラムのウィンドウを見ることができません。Lumaroo は X11 セッションで動作します。</translation>
    </message>
    <message>
        <source>No window manager runs that tells which windows there are.</source>
        <translation>どのウィンドウがあるかを知らせるウィンドウマネージャーが動いていません。</translation>
    </message>
    <message>
        <source>The window manager does not tell which windows there are.</source>
        <translation>ウィンドウマネージャーが、どのウィンドウがあるかを知らせません。</translation>
    </message>
    <message>
        <source>“%1” has been closed.</source>
        <translation>「%1」は閉じられました。</translation>
    </message>
    <message>
        <source>It has been closed.</source>
        <translation>すでに閉じられました。</translation>
    </message>
    <message>
        <source>The modifier keys stay as they are</source>
        <translation>修飾キーは元のままです</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>選択を保存できませんでした。ディスクに空きがない可能性があります。</translation>
    </message>
</context>
</TS>
