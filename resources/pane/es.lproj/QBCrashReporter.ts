<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QBCrashReporter</name>
    <!-- Asked for by their keys. %%APPNAME, %%LONGUSERNAME and %%EMAILADDRESS stand for what their names say; the address is in English only. -->
    <message>
        <source>WANT_TO_SEND_CRASH_SEND</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_SEND_LATER</source>
        <translation>&amp;Recordármelo más tarde</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_DONT_SEND</source>
        <translation>&amp;No enviar</translation>
    </message>
    <message>
        <source>CRASH_EXPLANATION_TEXT</source>
        <translation>La configuración se cerró inesperadamente mientras %%APPNAME estaba abierto en ella. Con este informe, sus desarrolladores pueden buscar el error.

Se envía lo que muestran las dos páginas de abajo y nada más: cambie o quite lo que quiera. No se envía nada si no elige «Enviar».</translation>
    </message>
    <message>
        <source>FEEDBACK_EXPLANATION_TEXT</source>
        <translation>Cuente a los desarrolladores de %%APPNAME qué le gusta, qué no funciona y qué echa en falta.

Se envía lo que muestran las dos páginas de abajo y nada más: cambie o quite lo que quiera. No se envía nada si no elige «Enviar».</translation>
    </message>
    <message>
        <source>CRASH_MESSAGE_TEXT</source>
        <translation>Nombre: %%LONGUSERNAME
Correo electrónico: %%EMAILADDRESS

Lo que estaba haciendo antes de que se cerrara la configuración:

</translation>
    </message>
    <message>
        <source>FEEDBACK_MESSAGE_TEXT</source>
        <translation>Nombre: %%LONGUSERNAME
Correo electrónico: %%EMAILADDRESS

Mi mensaje:

</translation>
    </message>
    <message>
        <source>MISSING_EMAIL_ADDRESS</source>
        <translation>(escriba aquí el suyo si desea una respuesta)</translation>
    </message>
    <message>
        <source>SYSTEM_INFO_TAB_NAME</source>
        <translation>&amp;Información del sistema</translation>
    </message>
    <message>
        <source>CRASH_REPORT_CGI_URL</source>
        <translation>https://@LUMAROO_WEB_SITE@/report</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR</source>
        <translation>No se ha podido enviar el informe. Se ofrecerá de nuevo la próxima vez que abra la configuración.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_FEEDBACK_ERROR</source>
        <translation>No se ha podido enviar el mensaje.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR_OK</source>
        <translation>Aceptar</translation>
    </message>
    <!-- The window’s own. -->
    <message>
        <source>Message to the makers of Lumaroo</source>
        <translation>Mensaje a los desarrolladores de Lumaroo</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>Su &amp;mensaje</translation>
    </message>
    <message>
        <source>Your message</source>
        <translation>Su mensaje</translation>
    </message>
    <message>
        <source>Crash &amp;report</source>
        <translation>Informe de &amp;fallo</translation>
    </message>
    <message>
        <source>What is sent along</source>
        <translation>Lo que se envía junto al mensaje</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Enviando</translation>
    </message>
</context>
</TS>
