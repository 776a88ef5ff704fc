<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>No window was closed</source>
        <translation>閉じたウィンドウはありません</translation>
    </message>
    <message>
        <source>There is no window to close.</source>
        <translation>閉じるウィンドウがありません。</translation>
    </message>
    <message>
        <source>A window did not close</source>
        <translation>閉じなかったウィンドウがあります</translation>
    </message>
    <message>
        <source>“%1” is still open.</source>
        <translation>「%1」はまだ開いています。</translation>
    </message>
    <message>
        <source>“%1” asks something before it closes.</source>
        <translation>「%1」が閉じる前に確認を求めています。</translation>
    </message>
    <message>
        <source>A window cannot be asked to close</source>
        <translation>ウィンドウに閉じるよう要求できません</translation>
    </message>
    <message>
        <source>“%1” does not answer to being closed. Ending its program loses what it has not stored.</source>
        <translation>「%1」は閉じる要求に応答しません。プログラムを終了すると、保存していない内容は失われます。</translation>
    </message>
    <message>
        <source>End it</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>The settings did not open</source>
        <translation>設定を開けませんでした</translation>
    </message>
    <message>
        <source>The settings cannot be opened: %1.</source>
        <translation>設定を開けません: %1。</translation>
    </message>
    <message>
        <source>the command lumaroo-settings is not installed</source>
        <translation>コマンド lumaroo-settings がインストールされていません</translation>
    </message>
    <message>
        <source>%1 cannot be run</source>
        <translation>%1 を実行できません</translation>
    </message>
    <message>
        <source>No picture was taken</source>
        <translation>画像を撮影できませんでした</translation>
    </message>
    <message>
        <source>There is no window to take a picture of.</source>
        <translation>撮影するウィンドウがありません。</translation>
    </message>
    <message>
        <source>“%1” is minimised, so it has no picture.</source>
        <translation>「%1」は最小化されているため、画像がありません。</translation>
    </message>
    <message>
        <source>“%1” is on another desktop, so it has no picture.</source>
        <translation>「%1」は別のワークスペースにあるため、画像がありません。</translation>
    </message>
    <message>
        <source>“%1” was closed before there was a picture of it.</source>
        <translation>「%1」は画像を取得する前に閉じました。</translation>
    </message>
    <message>
        <source>This X server gives no pictures of windows.</source>
        <translation>この X サーバーはウィンドウの画像を提供しません。</translation>
    </message>
    <message>
        <source>The disk is full, so the picture was not stored.</source>
        <translation>ディスクに空きがないため、画像を保存できませんでした。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to, so the picture was not stored.</source>
        <translation>フォルダー %1 に書き込めないため、画像を保存できませんでした。</translation>
    </message>
    <message>
        <source>The picture was not stored: %1.</source>
        <translation>画像を保存できませんでした: %1。</translation>
    </message>
    <message>
        <source>what stores it did not end well</source>
        <translation>保存するプログラムが正常に終了しませんでした</translation>
    </message>
    <message>
        <source>Picture of “%1” taken</source>
        <translation>「%1」の画像を撮影しました</translation>
    </message>
    <message>
        <source>It is stored as “%1” in %2.</source>
        <translation>%2 に「%1」として保存しました。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>No preview is shown</source>
        <translation>プレビューを表示できません</translation>
    </message>
    <message>
        <source>Another program has the keyboard and the mouse, as one that locks the screen.</source>
        <translation>画面をロックするプログラムなど、ほかのプログラムがキーボードとマウスを占有しています。</translation>
    </message>
    <message>
        <source>There is no window to show.</source>
        <translation>表示するウィンドウがありません。</translation>
    </message>
    <message>
        <source>A window may still be open</source>
        <translation>まだ開いているウィンドウがあるかもしれません</translation>
    </message>
    <message>
        <source>The windows cannot be seen any more, so it is not known whether “%1” has closed.</source>
        <translation>ウィンドウを確認できなくなったため、「%1」が閉じたかどうか分かりません。</translation>
    </message>
    <message>
        <source>Untitled window</source>
        <translation>無題のウィンドウ</translation>
    </message>
</context>
</TS>
