<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>The system’s updates bring new versions of this copy.</source>
        <translation>Le nuove versioni di questa copia arrivano con gli aggiornamenti del sistema.</translation>
    </message>
    <message>
        <source>Press:</source>
        <translation>Premere:</translation>
    </message>
    <message>
        <source>Hold %1 and press:</source>
        <translation>Tenere premuto %1 e premere:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 al secondo</translation>
    </message>
    <message>
        <source>Lumaroo Enabled</source>
        <translation>Lumaroo è attivato</translation>
    </message>
    <message>
        <source>Lumaroo Disabled</source>
        <translation>Lumaroo è disattivato</translation>
    </message>
    <message>
        <source>Version %@ (%@)</source>
        <translation>Versione %@ (%@)</translation>
    </message>
    <message>
        <source>Quit while key conflicts exist?</source>
        <translation>Uscire nonostante i conflitti tra tasti?</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Quitting may cause unpredictable Lumaroo behavior.</source>
        <translation>Ai tasti segnalati sono assegnate più azioni. Uscendo ora, Lumaroo può comportarsi in modo imprevedibile.</translation>
    </message>
    <message>
        <source>This key cannot be used. Press a letter, a digit, a sign, an arrow or a key of the number pad.</source>
        <translation>Questo tasto non può essere usato. Premere una lettera, una cifra, un segno, una freccia o un tasto del tastierino numerico.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>%@ is already in use.</source>
        <translation>%@ è già in uso.</translation>
    </message>
    <message>
        <source>Lumaroo already has an action associated with %@. Please choose another key.</source>
        <translation>Lumaroo ha già un’azione associata a %@. Scegliere un altro tasto.</translation>
    </message>
    <message>
        <source>There are conflicts with the marked keys.</source>
        <translation>I tasti segnalati sono in conflitto.</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.</source>
        <translation>Ai tasti segnalati sono assegnate più azioni. Modificarli per eliminare i conflitti.</translation>
    </message>
    <message>
        <source>Please change the marked HotKeys in the programs using them before setting them in Lumaroo.</source>
        <translation>Modificare i tasti segnalati nei programmi che li usano prima di impostarli in Lumaroo.</translation>
    </message>
    <message>
        <source>At least one modifier must be set</source>
        <translation>Deve essere scelto almeno un tasto modificatore</translation>
    </message>
    <message>
        <source>At least one modifier must be set to activate Lumaroo. Please select another modifier before unselecting this one.</source>
        <translation>Lumaroo si attiva solo con almeno un tasto modificatore. Scegliere un altro tasto modificatore prima di deselezionare questo.</translation>
    </message>
    <message>
        <source>The web page is unavailable</source>
        <translation>La pagina web non è disponibile</translation>
    </message>
    <message>
        <source>Please make sure you are connected to the Internet and try again later.</source>
        <translation>Verificare di essere connessi a Internet e riprovare più tardi.</translation>
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
        <source>Lumaroo is off for now. The menu of its icon in the panel turns it on again.</source>
        <translation>Lumaroo è disattivato per ora. Il menu della sua icona nel pannello lo riattiva.</translation>
    </message>
    <message>
        <source>Turn &amp;Lumaroo on with this switch.</source>
        <translation>Attivare &amp;Lumaroo con questo interruttore.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo funziona in secondo piano. Resta attivato anche chiudendo questa finestra.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this switch.</source>
        <translation>&amp;Lumaroo è terminato da solo: si è arrestato in modo anomalo o è stato fermato. Riattivarlo con questo interruttore.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo could not be started. Install it again, then turn it on with this switch.</source>
        <translation>&amp;Lumaroo non si è avviato. Installarlo di nuovo, poi attivarlo con questo interruttore.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo was removed from this computer. Install it again to turn it on.</source>
        <translation>&amp;Lumaroo è stato rimosso da questo computer. Installarlo di nuovo per attivarlo.</translation>
    </message>
    <message>
        <source>All keys work.</source>
        <translation>Tutti i tasti funzionano.</translation>
    </message>
    <message>
        <source>Some keys do not work, since other programs use them. The page “Keys” names them.</source>
        <translation>Alcuni tasti non funzionano perché sono usati da altri programmi. La pagina «Tasti» li elenca.</translation>
    </message>
    <message>
        <source>Some keys do not work. The page “Keys” shows all of them.</source>
        <translation>Alcuni tasti non funzionano. La pagina «Tasti» li mostra tutti.</translation>
    </message>
    <message>
        <source>No key works, since no modifier keys are chosen.</source>
        <translation>Nessun tasto funziona perché non è scelto alcun tasto modificatore.</translation>
    </message>
    <message>
        <source>Lumaroo takes no key from other programs.</source>
        <translation>Lumaroo non toglie alcun tasto agli altri programmi.</translation>
    </message>
    <message>
        <source>This session has no hot keys for programs. Lumaroo needs an X11 session.</source>
        <translation>Questa sessione non consente ai programmi di avere tasti propri. Lumaroo richiede una sessione X11.</translation>
    </message>
    <message>
        <source>This session runs on Wayland. There no program may take keys or see the windows of others, so Lumaroo’s keys do nothing here. Your settings are kept. To use Lumaroo, log out and choose “X11” or “Xorg” on the login screen.</source>
        <translation>Questa sessione usa Wayland. Qui nessun programma può prendere tasti o vedere le finestre degli altri, perciò i tasti di Lumaroo non hanno effetto. Le impostazioni vengono conservate. Per usare Lumaroo, terminare la sessione e scegliere «X11» o «Xorg» nella schermata di accesso.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Lumaroo cannot take it.</source>
        <translation>%1 è usato da un altro programma. Lumaroo non può ottenerlo.</translation>
    </message>
    <message>
        <source>%1 are used by other programs. Lumaroo cannot take them.</source>
        <translation>%1 sono usati da altri programmi. Lumaroo non può ottenerli.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Usa invece %1</translation>
    </message>
    <message>
        <source>Another program uses this key with the modifier keys.</source>
        <translation>Un altro programma usa questo tasto con i tasti modificatori.</translation>
    </message>
    <message>
        <source>The start at login could not be changed.</source>
        <translation>Non è stato possibile modificare l’avvio all’accesso.</translation>
    </message>
    <message>
        <source>Lumaroo cannot write the file “%1”. Check that you may change it, and try again.</source>
        <translation>Lumaroo non può scrivere il file «%1». Verificare di avere il permesso di modificarlo e riprovare.</translation>
    </message>
    <message>
        <source>Some keys do not work, since Shift alone would take the capital letters you type.</source>
        <translation>Alcuni tasti non funzionano perché Maiusc da solo prenderebbe le maiuscole che si digitano.</translation>
    </message>
    <message>
        <source>Choose one at least: without a modifier key, no key works.</source>
        <translation>Sceglierne almeno uno: senza tasto modificatore non funziona nessun tasto.</translation>
    </message>
    <message>
        <source>Shift alone would take the capital letters you type. Choose another modifier key with it.</source>
        <translation>Maiusc da solo prenderebbe le maiuscole che si digitano. Scegliere in più un altro tasto modificatore.</translation>
    </message>
    <message>
        <source>Restore this key</source>
        <translation>Ripristina questo tasto</translation>
    </message>
    <message>
        <source>%1 is used for “%2”.</source>
        <translation>%1 è già usato per «%2».</translation>
    </message>
    <message>
        <source>%1 is used for “%2”. Change that key first.</source>
        <translation>%1 è già usato per «%2». Cambiare prima quel tasto.</translation>
    </message>
    <message>
        <source>The key for “%1” is restored.</source>
        <translation>Il tasto di «%1» è ripristinato.</translation>
    </message>
    <message>
        <source>You pressed %1: %2.</source>
        <translation>È stato premuto %1: %2.</translation>
    </message>
    <message>
        <source>All keys are restored.</source>
        <translation>Tutti i tasti sono ripristinati.</translation>
    </message>
    <message>
        <source>The keys are as they were before.</source>
        <translation>I tasti sono di nuovo come prima.</translation>
    </message>
</context>
</TS>
