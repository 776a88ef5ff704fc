<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>QBCrashReporter</name>
    <!-- Asked for by their keys. %%APPNAME, %%LONGUSERNAME and %%EMAILADDRESS stand for what their names say; the address is in English only. -->
    <message>
        <source>WANT_TO_SEND_CRASH_SEND</source>
        <translation>送信(&amp;S)</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_SEND_LATER</source>
        <translation>後で知らせる(&amp;L)</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_DONT_SEND</source>
        <translation>送信しない(&amp;D)</translation>
    </message>
    <message>
        <source>CRASH_EXPLANATION_TEXT</source>
        <translation>%%APPNAME を開いている間に、設定が予期せず終了しました。このレポートがあれば、開発者が不具合を調べられます。

送信されるのは下の 2 つのページに表示されている内容だけです。自由に変更したり削除したりできます。「送信」を選ばない限り、何も送信されません。</translation>
    </message>
    <message>
        <source>FEEDBACK_EXPLANATION_TEXT</source>
        <translation>%%APPNAME の気に入っている点、うまく動かない点、足りない点を開発者にお知らせください。

送信されるのは下の 2 つのページに表示されている内容だけです。自由に変更したり削除したりできます。「送信」を選ばない限り、何も送信されません。</translation>
    </message>
    <message>
        <source>CRASH_MESSAGE_TEXT</source>
        <translation>名前: %%LONGUSERNAME
メール: %%EMAILADDRESS

設定が終了する前にしたこと:

</translation>
    </message>
    <message>
        <source>FEEDBACK_MESSAGE_TEXT</source>
        <translation>名前: %%LONGUSERNAME
メール: %%EMAILADDRESS

メッセージ:

</translation>
    </message>
    <message>
        <source>MISSING_EMAIL_ADDRESS</source>
        <translation>(返信をご希望の場合はここにメールアドレスを入力してください)</translation>
    </message>
    <message>
        <source>SYSTEM_INFO_TAB_NAME</source>
        <translation>システム情報(&amp;I)</translation>
    </message>
    <message>
        <source>CRASH_REPORT_CGI_URL</source>
        <translation>https://@LUMAROO_WEB_SITE@/report</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR</source>
        <translation>レポートを送信できませんでした。次に設定を開いたときに、もう一度お尋ねします。</translation>
    </message>
    <message>
        <source>COULDNT_SEND_FEEDBACK_ERROR</source>
        <translation>メッセージを送信できませんでした。</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR_OK</source>
        <translation>OK</translation>
    </message>
    <!-- The window’s own. -->
    <message>
        <source>Message to the makers of Lumaroo</source>
        <translation>Lumaroo 開発者へのメッセージ</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>メッセージ(&amp;M)</translation>
    </message>
    <message>
        <source>Your message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Crash &amp;report</source>
        <translation>クラッシュレポート(&amp;R)</translation>
    </message>
    <message>
        <source>What is sent along</source>
        <translation>一緒に送信される内容</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>送信しています</translation>
    </message>
</context>
</TS>
