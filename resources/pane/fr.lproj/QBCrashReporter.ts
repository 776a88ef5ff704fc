<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QBCrashReporter</name>
    <!-- Asked for by their keys. %%APPNAME, %%LONGUSERNAME and %%EMAILADDRESS stand for what their names say; the address is in English only. -->
    <message>
        <source>WANT_TO_SEND_CRASH_SEND</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_SEND_LATER</source>
        <translation>Me le rappeler &amp;plus tard</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_DONT_SEND</source>
        <translation>&amp;Ne pas envoyer</translation>
    </message>
    <message>
        <source>CRASH_EXPLANATION_TEXT</source>
        <translation>Les paramètres se sont fermés inopinément alors que %%APPNAME y était ouvert. Avec ce rapport, ses développeurs pourront rechercher l’erreur.

Seul est envoyé ce que montrent les deux pages ci-dessous : modifiez ou supprimez ce que vous voulez. Rien n’est envoyé si vous ne choisissez pas « Envoyer ».</translation>
    </message>
    <message>
        <source>FEEDBACK_EXPLANATION_TEXT</source>
        <translation>Dites aux développeurs de %%APPNAME ce qui vous plaît, ce qui ne fonctionne pas et ce qui vous manque.

Seul est envoyé ce que montrent les deux pages ci-dessous : modifiez ou supprimez ce que vous voulez. Rien n’est envoyé si vous ne choisissez pas « Envoyer ».</translation>
    </message>
    <message>
        <source>CRASH_MESSAGE_TEXT</source>
        <translation>Nom : %%LONGUSERNAME
Adresse électronique : %%EMAILADDRESS

Ce que je faisais avant que les paramètres ne se ferment :

</translation>
    </message>
    <message>
        <source>FEEDBACK_MESSAGE_TEXT</source>
        <translation>Nom : %%LONGUSERNAME
Adresse électronique : %%EMAILADDRESS

Mon message :

</translation>
    </message>
    <message>
        <source>MISSING_EMAIL_ADDRESS</source>
        <translation>(indiquez ici la vôtre si vous souhaitez une réponse)</translation>
    </message>
    <message>
        <source>SYSTEM_INFO_TAB_NAME</source>
        <translation>&amp;Informations système</translation>
    </message>
    <message>
        <source>CRASH_REPORT_CGI_URL</source>
        <translation>https://@LUMAROO_WEB_SITE@/report</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR</source>
        <translation>Le rapport n’a pas pu être envoyé. Il vous sera de nouveau proposé à la prochaine ouverture des paramètres.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_FEEDBACK_ERROR</source>
        <translation>Votre message n’a pas pu être envoyé.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR_OK</source>
        <translation>OK</translation>
    </message>
    <!-- The window’s own. -->
    <message>
        <source>Message to the makers of Lumaroo</source>
        <translation>Message aux développeurs de Lumaroo</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>Votre &amp;message</translation>
    </message>
    <message>
        <source>Your message</source>
        <translation>Votre message</translation>
    </message>
    <message>
        <source>Crash &amp;report</source>
        <translation>&amp;Rapport de plantage</translation>
    </message>
    <message>
        <source>What is sent along</source>
        <translation>Ce qui est joint à l’envoi</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envoi en cours</translation>
    </message>
</context>
</TS>
