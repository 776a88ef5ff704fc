<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QBCrashReporter</name>
    <!-- Asked for by their keys. %%APPNAME, %%LONGUSERNAME and %%EMAILADDRESS stand for what their names say; the address is in English only. -->
    <message>
        <source>WANT_TO_SEND_CRASH_SEND</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_SEND_LATER</source>
        <translation>S&amp;päter erinnern</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_DONT_SEND</source>
        <translation>Nicht s&amp;enden</translation>
    </message>
    <message>
        <source>CRASH_EXPLANATION_TEXT</source>
        <translation>Die Einstellungen wurden unerwartet beendet, während %%APPNAME darin geöffnet war. Mit diesem Bericht können die Entwickler nach dem Fehler suchen.

Gesendet wird, was die beiden Seiten unten zeigen, und sonst nichts: Ändern oder entfernen Sie, was Sie möchten. Nichts wird gesendet, wenn Sie nicht „Senden“ wählen.</translation>
    </message>
    <message>
        <source>FEEDBACK_EXPLANATION_TEXT</source>
        <translation>Schreiben Sie den Entwicklern von %%APPNAME, was Ihnen gefällt, was nicht funktioniert und was Ihnen fehlt.

Gesendet wird, was die beiden Seiten unten zeigen, und sonst nichts: Ändern oder entfernen Sie, was Sie möchten. Nichts wird gesendet, wenn Sie nicht „Senden“ wählen.</translation>
    </message>
    <message>
        <source>CRASH_MESSAGE_TEXT</source>
        <translation>Name: %%LONGUSERNAME
E-Mail: %%EMAILADDRESS

Was ich tat, bevor die Einstellungen beendet wurden:

</translation>
    </message>
    <message>
        <source>FEEDBACK_MESSAGE_TEXT</source>
        <translation>Name: %%LONGUSERNAME
E-Mail: %%EMAILADDRESS

Meine Nachricht:

</translation>
    </message>
    <message>
        <source>MISSING_EMAIL_ADDRESS</source>
        <translation>(tragen Sie Ihre hier ein, wenn Sie eine Antwort möchten)</translation>
    </message>
    <message>
        <source>SYSTEM_INFO_TAB_NAME</source>
        <translation>System&amp;informationen</translation>
    </message>
    <message>
        <source>CRASH_REPORT_CGI_URL</source>
        <translation>https://@LUMAROO_WEB_SITE@/report</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR</source>
        <translation>Der Bericht konnte nicht gesendet werden. Er wird Ihnen wieder angeboten, wenn Sie die Einstellungen das nächste Mal öffnen.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_FEEDBACK_ERROR</source>
        <translation>Ihre Nachricht konnte nicht gesendet werden.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR_OK</source>
        <translation>OK</translation>
    </message>
    <!-- The window’s own. -->
    <message>
        <source>Message to the makers of Lumaroo</source>
        <translation>Nachricht an die Entwickler von Lumaroo</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>Ihre &amp;Nachricht</translation>
    </message>
    <message>
        <source>Your message</source>
        <translation>Ihre Nachricht</translation>
    </message>
    <message>
        <source>Crash &amp;report</source>
        <translation>&amp;Absturzbericht</translation>
    </message>
    <message>
        <source>What is sent along</source>
        <translation>Was mitgesendet wird</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Wird gesendet</translation>
    </message>
</context>
</TS>
