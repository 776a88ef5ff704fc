<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>QBCrashReporter</name>
    <!-- Asked for by their keys. %%APPNAME, %%LONGUSERNAME and %%EMAILADDRESS stand for what their names say; the address is in English only. -->
    <message>
        <source>WANT_TO_SEND_CRASH_SEND</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_SEND_LATER</source>
        <translation>&amp;Lembrar depois</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_DONT_SEND</source>
        <translation>&amp;Não enviar</translation>
    </message>
    <message>
        <source>CRASH_EXPLANATION_TEXT</source>
        <translation>As configurações foram encerradas inesperadamente enquanto %%APPNAME estava aberto nelas. Com este relatório, os desenvolvedores podem procurar a falha.

É enviado o que as duas páginas abaixo mostram e nada mais: altere ou remova o que quiser. Nada será enviado se você não escolher “Enviar”.</translation>
    </message>
    <message>
        <source>FEEDBACK_EXPLANATION_TEXT</source>
        <translation>Conte aos desenvolvedores do %%APPNAME do que você gosta, o que não funciona e do que sente falta.

É enviado o que as duas páginas abaixo mostram e nada mais: altere ou remova o que quiser. Nada será enviado se você não escolher “Enviar”.</translation>
    </message>
    <message>
        <source>CRASH_MESSAGE_TEXT</source>
        <translation>Nome: %%LONGUSERNAME
E-mail: %%EMAILADDRESS

O que eu fiz antes de as configurações serem encerradas:

</translation>
    </message>
    <message>
        <source>FEEDBACK_MESSAGE_TEXT</source>
        <translation>Nome: %%LONGUSERNAME
E-mail: %%EMAILADDRESS

Minha mensagem:

</translation>
    </message>
    <message>
        <source>MISSING_EMAIL_ADDRESS</source>
        <translation>(informe o seu aqui se quiser uma resposta)</translation>
    </message>
    <message>
        <source>SYSTEM_INFO_TAB_NAME</source>
        <translation>Informações do &amp;sistema</translation>
    </message>
    <message>
        <source>CRASH_REPORT_CGI_URL</source>
        <translation>https://@LUMAROO_WEB_SITE@/report</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR</source>
        <translation>Não foi possível enviar o relatório. Ele será oferecido novamente quando você abrir as configurações.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_FEEDBACK_ERROR</source>
        <translation>Não foi possível enviar sua mensagem.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR_OK</source>
        <translation>OK</translation>
    </message>
    <!-- The window’s own. -->
    <message>
        <source>Message to the makers of Lumaroo</source>
        <translation>Mensagem aos desenvolvedores do Lumaroo</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>Sua &amp;mensagem</translation>
    </message>
    <message>
        <source>Your message</source>
        <translation>Sua mensagem</translation>
    </message>
    <message>
        <source>Crash &amp;report</source>
        <translation>&amp;Relatório de falha</translation>
    </message>
    <message>
        <source>What is sent along</source>
        <translation>O que é enviado junto</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Enviando</translation>
    </message>
</context>
</TS>
