<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QBCrashReporter</name>
    <!-- Asked for by their keys. %%APPNAME, %%LONGUSERNAME and %%EMAILADDRESS stand for what their names say. -->
    <message>
        <source>WANT_TO_SEND_CRASH_SEND</source>
        <translation>&amp;Send</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_SEND_LATER</source>
        <translation>Remind me &amp;later</translation>
    </message>
    <message>
        <source>WANT_TO_SEND_CRASH_DONT_SEND</source>
        <translation>&amp;Don’t send</translation>
    </message>
    <message>
        <source>CRASH_EXPLANATION_TEXT</source>
        <translation>The settings quit unexpectedly while %%APPNAME was open in them. With this report its makers can look for the fault.

What the two pages below show is what is sent, and nothing else: change or remove whatever you like. Nothing is sent unless you choose “Send”.</translation>
    </message>
    <message>
        <source>FEEDBACK_EXPLANATION_TEXT</source>
        <translation>Tell the makers of %%APPNAME what you like, what does not work and what you miss.

What the two pages below show is what is sent, and nothing else: change or remove whatever you like. Nothing is sent unless you choose “Send”.</translation>
    </message>
    <message>
        <source>CRASH_MESSAGE_TEXT</source>
        <translation>Name: %%LONGUSERNAME
E-mail: %%EMAILADDRESS

What I did before the settings quit:

</translation>
    </message>
    <message>
        <source>FEEDBACK_MESSAGE_TEXT</source>
        <translation>Name: %%LONGUSERNAME
E-mail: %%EMAILADDRESS

My message:

</translation>
    </message>
    <message>
        <source>MISSING_EMAIL_ADDRESS</source>
        <translation>(put yours here if you would like an answer)</translation>
    </message>
    <message>
        <source>SYSTEM_INFO_TAB_NAME</source>
        <translation>System &amp;information</translation>
    </message>
    <message>
        <source>CRASH_REPORT_CGI_URL</source>
        <translation>https://@LUMAROO_WEB_SITE@/report</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR</source>
        <translation>The report could not be sent. It will be offered again when you next open the settings.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_FEEDBACK_ERROR</source>
        <translation>Your message could not be sent.</translation>
    </message>
    <message>
        <source>COULDNT_SEND_CRASH_REPORT_ERROR_OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
