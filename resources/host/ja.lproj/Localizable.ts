<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Shift+Tab</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>%1, %2 % opaque</source>
        <translation>%1、不透明度 %2 %</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Do not show this message again</source>
        <translation>今後このメッセージを表示しない(&amp;D)</translation>
    </message>
    <message>
        <source>The server does not answer. Please try again later.</source>
        <translation>サーバーが応答しません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The address of the server cannot be used.</source>
        <translation>サーバーのアドレスを使用できません。</translation>
    </message>
    <message>
        <source>The server cannot be found. Please make sure you are connected to the Internet.</source>
        <translation>サーバーが見つかりません。インターネットに接続されていることを確認してください。</translation>
    </message>
    <message>
        <source>The server takes no connection. Please try again later.</source>
        <translation>サーバーが接続を受け付けません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Please try again.</source>
        <translation>サーバーへの接続が失われました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The server leads from one address to the next without end. Please try again later.</source>
        <translation>サーバーのアドレスが際限なく転送されます。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made, so nothing was sent.</source>
        <translation>サーバーへの安全な接続を確立できなかったため、何も送信しませんでした。</translation>
    </message>
    <message>
        <source>The network does not work as it should. Please try again later.</source>
        <translation>ネットワークが正常に動作していません。後でもう一度お試しください。</translation>
    </message>
</context>
</TS>
