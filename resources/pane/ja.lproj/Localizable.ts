<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>The system’s updates bring new versions of this copy.</source>
        <translation>この Lumaroo の新しいバージョンは、システムのアップデートで届きます。</translation>
    </message>
    <message>
        <source>Press:</source>
        <translation>次のキーを押します:</translation>
    </message>
    <message>
        <source>Hold %1 and press:</source>
        <translation>%1 を押したまま次のキーを押します:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>毎秒 %1 回</translation>
    </message>
    <message>
        <source>Lumaroo Enabled</source>
        <translation>Lumaroo はオンです</translation>
    </message>
    <message>
        <source>Lumaroo Disabled</source>
        <translation>Lumaroo はオフです</translation>
    </message>
    <message>
        <source>Version %@ (%@)</source>
        <translation>バージョン %@ (%@)</translation>
    </message>
    <message>
        <source>Quit while key conflicts exist?</source>
        <translation>キーの重複を残したまま終了しますか?</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Quitting may cause unpredictable Lumaroo behavior.</source>
        <translation>印の付いたキーには複数の操作が割り当てられています。このまま終了すると、Lumaroo が予期しない動作をする可能性があります。</translation>
    </message>
    <message>
        <source>This key cannot be used. Press a letter, a digit, a sign, an arrow or a key of the number pad.</source>
        <translation>このキーは使えません。文字、数字、記号、矢印、またはテンキーのキーを押してください。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>%@ is already in use.</source>
        <translation>%@ はすでに使われています。</translation>
    </message>
    <message>
        <source>Lumaroo already has an action associated with %@. Please choose another key.</source>
        <translation>Lumaroo では、すでに %@ に操作が割り当てられています。別のキーを選んでください。</translation>
    </message>
    <message>
        <source>There are conflicts with the marked keys.</source>
        <translation>印の付いたキーが重複しています。</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.</source>
        <translation>印の付いたキーには複数の操作が割り当てられています。重複しないように変更してください。</translation>
    </message>
    <message>
        <source>Please change the marked HotKeys in the programs using them before setting them in Lumaroo.</source>
        <translation>印の付いたキーは、Lumaroo で設定する前に、それを使っているプログラムで変更してください。</translation>
    </message>
    <message>
        <source>At least one modifier must be set</source>
        <translation>修飾キーを 1 つ以上選択してください</translation>
    </message>
    <message>
        <source>At least one modifier must be set to activate Lumaroo. Please select another modifier before unselecting this one.</source>
        <translation>Lumaroo を使うには、修飾キーが 1 つ以上必要です。この修飾キーの選択を解除する前に、別の修飾キーを選択してください。</translation>
    </message>
    <message>
        <source>The web page is unavailable</source>
        <translation>Web ページを表示できません</translation>
    </message>
    <message>
        <source>Please make sure you are connected to the Internet and try again later.</source>
        <translation>インターネットに接続されていることを確認し、後でもう一度お試しください。</translation>
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
        <source>Lumaroo is off for now. The menu of its icon in the panel turns it on again.</source>
        <translation>Lumaroo は一時的にオフです。パネルのアイコンのメニューで再びオンにできます。</translation>
    </message>
    <message>
        <source>Turn &amp;Lumaroo on with this switch.</source>
        <translation>このスイッチで &amp;Lumaroo をオンにします。</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo はバックグラウンドで動作します。このウィンドウを閉じてもオンのままです。</translation>
    </message>
    <message>
        <source>&amp;Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this switch.</source>
        <translation>&amp;Lumaroo が予期せず終了しました。このスイッチで再びオンにしてください。</translation>
    </message>
    <message>
        <source>&amp;Lumaroo could not be started. Install it again, then turn it on with this switch.</source>
        <translation>&amp;Lumaroo を起動できませんでした。インストールし直してから、このスイッチでオンにしてください。</translation>
    </message>
    <message>
        <source>&amp;Lumaroo was removed from this computer. Install it again to turn it on.</source>
        <translation>&amp;Lumaroo はこのコンピューターから削除されました。オンにするにはインストールし直してください。</translation>
    </message>
    <message>
        <source>All keys work.</source>
        <translation>すべてのキーが使えます。</translation>
    </message>
    <message>
        <source>Some keys do not work, since other programs use them. The page “Keys” names them.</source>
        <translation>ほかのプログラムが使っているため、一部のキーが使えません。どのキーかは「キー」ページに表示されます。</translation>
    </message>
    <message>
        <source>Some keys do not work. The page “Keys” shows all of them.</source>
        <translation>一部のキーが使えません。「キー」ページにすべて表示されます。</translation>
    </message>
    <message>
        <source>No key works, since no modifier keys are chosen.</source>
        <translation>修飾キーが選択されていないため、どのキーも使えません。</translation>
    </message>
    <message>
        <source>Lumaroo takes no key from other programs.</source>
        <translation>Lumaroo はほかのプログラムのキーを奪いません。</translation>
    </message>
    <message>
        <source>This session has no hot keys for programs. Lumaroo needs an X11 session.</source>
        <translation>このセッションでは、プログラムがホットキーを使えません。Lumaroo には X11 セッションが必要です。</translation>
    </message>
    <message>
        <source>This session runs on Wayland. There no program may take keys or see the windows of others, so Lumaroo’s keys do nothing here. Your settings are kept. To use Lumaroo, log out and choose “X11” or “Xorg” on the login screen.</source>
        <translation>このセッションは Wayland で動作しています。Wayland では、どのプログラムもキーを受け取ったり、ほかのプログラムのウィンドウを見たりできないため、ここでは Lumaroo のキーは機能しません。設定はそのまま残ります。Lumaroo を使うには、ログアウトし、ログイン画面で「X11」または「Xorg」を選んでください。</translation>
    </message>
    <message>
        <source>%1 is used by another program. Lumaroo cannot take it.</source>
        <translation>%1 はほかのプログラムが使っています。Lumaroo はこのキーを使えません。</translation>
    </message>
    <message>
        <source>%1 are used by other programs. Lumaroo cannot take them.</source>
        <translation>%1 はほかのプログラムが使っています。Lumaroo はこれらのキーを使えません。</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>代わりに %1 を使う</translation>
    </message>
    <message>
        <source>Another program uses this key with the modifier keys.</source>
        <translation>ほかのプログラムがこのキーを修飾キーと組み合わせて使っています。</translation>
    </message>
    <message>
        <source>The start at login could not be changed.</source>
        <translation>ログイン時の起動を変更できませんでした。</translation>
    </message>
    <message>
        <source>Lumaroo cannot write the file “%1”. Check that you may change it, and try again.</source>
        <translation>Lumaroo はファイル「%1」に書き込めません。変更する権限があるか確認し、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Some keys do not work, since Shift alone would take the capital letters you type.</source>
        <translation>Shift だけでは入力する大文字を奪ってしまうため、一部のキーが使えません。</translation>
    </message>
    <message>
        <source>Choose one at least: without a modifier key, no key works.</source>
        <translation>1 つ以上選んでください。修飾キーがないと、どのキーも使えません。</translation>
    </message>
    <message>
        <source>Shift alone would take the capital letters you type. Choose another modifier key with it.</source>
        <translation>Shift だけでは入力する大文字を奪ってしまいます。ほかの修飾キーも選んでください。</translation>
    </message>
    <message>
        <source>Restore this key</source>
        <translation>このキーを元に戻す</translation>
    </message>
    <message>
        <source>%1 is used for “%2”.</source>
        <translation>%1 は「%2」に使われています。</translation>
    </message>
    <message>
        <source>%1 is used for “%2”. Change that key first.</source>
        <translation>%1 は「%2」に使われています。先にそのキーを変更してください。</translation>
    </message>
    <message>
        <source>The key for “%1” is restored.</source>
        <translation>「%1」のキーを元に戻しました。</translation>
    </message>
    <message>
        <source>You pressed %1: %2.</source>
        <translation>%1 を押しました: %2。</translation>
    </message>
    <message>
        <source>All keys are restored.</source>
        <translation>すべてのキーを元に戻しました。</translation>
    </message>
    <message>
        <source>The keys are as they were before.</source>
        <translation>キーは前の状態に戻りました。</translation>
    </message>
</context>
</TS>
