<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>QBCrashReporter</name>
    <!-- Asked for by their keys. %%APPNAME, %%LONGUSERNAME and %%EMAILADDRESS stand for what their names say; the address is in English only. -->
    <message>
        <source>WANT_TO_SEND_CRASH_SEND</source>
        <translation>&amp;Invia</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_SEND_LATER</source>
        <translation>&amp;Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_DONT_SEND</source>
        <translation>&amp;Non inviare</translation>
    </message>
    <message>
        <source>CRASH_EXPLANATION_TEXT</source>
        <translation>Le impostazioni si sono chiuse inaspettatamente mentre vi era aperto %%APPNAME. Con questa segnalazione gli sviluppatori possono cercare l’errore.

Viene inviato ciò che mostrano le due pagine qui sotto e nient’altro: si può modificare o rimuovere ciò che si vuole. Non viene inviato nulla se non si sceglie «Invia».</translation>
    </message>
    <message>
        <source>FEEDBACK_EXPLANATION_TEXT</source>
        <translation>Qui si può dire agli sviluppatori di %%APPNAME che cosa piace, che cosa non funziona e che cosa manca.

Viene inviato ciò che mostrano le due pagine qui sotto e nient’altro: si può modificare o rimuovere ciò che si vuole. Non viene inviato nulla se non si sceglie «Invia».</translation>
    </message>
    <message>
        <source>CRASH_MESSAGE_TEXT</source>
        <translation>Nome: %%LONGUSERNAME
Email: %%EMAILADDRESS

Che cosa stavo facendo prima che le impostazioni si chiudessero:

</translation>
    </message>
    <message>
        <source>FEEDBACK_MESSAGE_TEXT</source>
        <translation>Nome: %%LONGUSERNAME
Email: %%EMAILADDRESS

Il mio messaggio:

</translation>
    </message>
    <message>
        <source>MISSING_EMAIL_ADDRESS</source>
        <translation>(inserire qui il proprio indirizzo se si desidera una risposta)</translation>
    </message>
    <message>
        <source>SYSTEM_INFO_TAB_NAME</source>
        <translation>In&amp;formazioni di sistema</translation>
    </message>
    <message>
        <source>CRASH_REPORT_CGI_URL</source>
        <translation>https://@LUMAROO_WEB_SITE@/report</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR</source>
        <translation>Non è stato possibile inviare la segnalazione. Verrà proposta di nuovo alla prossima apertura delle impostazioni.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_FEEDBACK_ERROR</source>
        <translation>Non è stato possibile inviare il messaggio.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR_OK</source>
        <translation>OK</translation>
    </message>
    <!-- The window’s own. -->
    <message>
        <source>Message to the makers of Lumaroo</source>
        <translation>Messaggio agli sviluppatori di Lumaroo</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>&amp;Messaggio</translation>
    </message>
    <message>
        <source>Your message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Crash &amp;report</source>
        <translation>&amp;Arresto anomalo</translation>
    </message>
    <message>
        <source>What is sent along</source>
        <translation>Che cosa viene allegato</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Invio in corso</translation>
    </message>
</context>
</TS>
