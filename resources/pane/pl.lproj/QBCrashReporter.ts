<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>QBCrashReporter</name>
    <!-- Asked for by their keys. %%APPNAME, %%LONGUSERNAME and %%EMAILADDRESS stand for what their names say; the address is in English only. -->
    <message>
        <source>WANT_TO_SEND_CRASH_SEND</source>
        <translation>&amp;Wyślij</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_SEND_LATER</source>
        <translation>Przypomnij &amp;później</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_DONT_SEND</source>
        <translation>&amp;Nie wysyłaj</translation>
    </message>
    <message>
        <source>CRASH_EXPLANATION_TEXT</source>
        <translation>Ustawienia niespodziewanie zakończyły pracę, gdy otwarty był w nich program %%APPNAME. Ten raport pozwoli jego twórcom poszukać błędu.

Wysłane zostanie to, co widać na dwóch stronach poniżej, i nic więcej: można zmienić lub usunąć, co się chce. Nic nie zostanie wysłane bez wybrania „Wyślij”.</translation>
    </message>
    <message>
        <source>FEEDBACK_EXPLANATION_TEXT</source>
        <translation>Tu można napisać twórcom programu %%APPNAME, co się podoba, co nie działa i czego brakuje.

Wysłane zostanie to, co widać na dwóch stronach poniżej, i nic więcej: można zmienić lub usunąć, co się chce. Nic nie zostanie wysłane bez wybrania „Wyślij”.</translation>
    </message>
    <message>
        <source>CRASH_MESSAGE_TEXT</source>
        <translation>Imię i nazwisko: %%LONGUSERNAME
E-mail: %%EMAILADDRESS

Co się działo, zanim ustawienia zakończyły pracę:

</translation>
    </message>
    <message>
        <source>FEEDBACK_MESSAGE_TEXT</source>
        <translation>Imię i nazwisko: %%LONGUSERNAME
E-mail: %%EMAILADDRESS

Wiadomość:

</translation>
    </message>
    <message>
        <source>MISSING_EMAIL_ADDRESS</source>
        <translation>(tu można podać adres, aby otrzymać odpowiedź)</translation>
    </message>
    <message>
        <source>SYSTEM_INFO_TAB_NAME</source>
        <translation>Informacje o &amp;systemie</translation>
    </message>
    <message>
        <source>CRASH_REPORT_CGI_URL</source>
        <translation>https://@LUMAROO_WEB_SITE@/report</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR</source>
        <translation>Nie można wysłać raportu. Przy następnym otwarciu ustawień pojawi się ponownie.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_FEEDBACK_ERROR</source>
        <translation>Nie można wysłać wiadomości.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR_OK</source>
        <translation>OK</translation>
    </message>
    <!-- The window’s own. -->
    <message>
        <source>Message to the makers of Lumaroo</source>
        <translation>Wiadomość do twórców Lumaroo</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>Wia&amp;domość</translation>
    </message>
    <message>
        <source>Your message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>Crash &amp;report</source>
        <translation>&amp;Raport o awarii</translation>
    </message>
    <message>
        <source>What is sent along</source>
        <translation>Co jest dołączane</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Wysyłanie</translation>
    </message>
</context>
</TS>
