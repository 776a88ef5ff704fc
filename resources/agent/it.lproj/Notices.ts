<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Notices</name>
    <message>
        <source>Windows cannot be selected here</source>
        <translation>Qui non è possibile selezionare finestre</translation>
    </message>
    <message>
        <source>Another program keeps the keyboard</source>
        <translation>Un altro programma trattiene la tastiera</translation>
    </message>
    <message>
        <source>Until it lets go, Lumaroo's keys work with the modifier keys held.</source>
        <translation>Finché non la rilascia, i tasti di Lumaroo funzionano tenendo premuti i tasti modificatori.</translation>
    </message>
    <message>
        <source>A window did not come to the front</source>
        <translation>Una finestra non è passata in primo piano</translation>
    </message>
    <message>
        <source>The window manager did not turn to it.</source>
        <translation>Il gestore delle finestre non l’ha attivata.</translation>
    </message>
    <message>
        <source>The window manager did not turn to “%1”.</source>
        <translation>Il gestore delle finestre non ha attivato «%1».</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Un altro programma occupa dei tasti di Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo does not get %1.</source>
        <translation>Lumaroo non riceve %1.</translation>
    </message>
    <message>
        <source>With %1 held instead, all movement keys are free.</source>
        <translation>Tenendo invece premuto %1, tutti i tasti di movimento sono liberi.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Usa %1</translation>
    </message>
    <message>
        <source>The tutorial cannot be started</source>
        <translation>Impossibile avviare il tutorial</translation>
    </message>
    <message>
        <source>A part of Lumaroo is missing. Install it again.</source>
        <translation>Manca una parte di Lumaroo. Installarlo di nuovo.</translation>
    </message>
    <message>
        <source>Hold %1 and press %2</source>
        <translation>Tenere premuto %1 e premere %2</translation>
    </message>
    <message>
        <source>Press %1 twice, then press %2</source>
        <translation>Premere due volte %1, poi %2</translation>
    </message>
    <message>
        <source>Lumaroo is on</source>
        <translation>Lumaroo è attivato</translation>
    </message>
    <message>
        <source>Its keys do not work yet. The settings tell why.</source>
        <translation>I suoi tasti non funzionano ancora. Le impostazioni dicono perché.</translation>
    </message>
    <message>
        <source>Show me</source>
        <translation>Mostra il tutorial</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>There is no X server.</source>
        <translation>Non c’è nessun server X.</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <translation>Il server X non c’è più.</translation>
    </message>
    <message>
        <source>A Wayland session does not let programs see other programs' windows. Lumaroo works in an X11 session.</source>
        <translation>Una sessione Wayland non lascia vedere ai programmi le finestre degli altri. Lumaroo funziona in una sessione X11.</translation>
    </message>
    <message>
        <source>No window manager runs that tells which windows there are.</source>
        <translation>Non è in esecuzione nessun gestore delle finestre che dica quali finestre ci sono.</translation>
    </message>
    <message>
        <source>The window manager does not tell which windows there are.</source>
        <translation>Il gestore delle finestre non dice quali finestre ci sono.</translation>
    </message>
    <message>
        <source>“%1” has been closed.</source>
        <translation>La finestra «%1» è stata chiusa.</translation>
    </message>
    <message>
        <source>It has been closed.</source>
        <translation>È stata chiusa.</translation>
    </message>
    <message>
        <source>The modifier keys stay as they are</source>
        <translation>I tasti modificatori restano invariati</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Impossibile salvare la scelta. Il disco potrebbe essere pieno.</translation>
    </message>
</context>
</TS>
