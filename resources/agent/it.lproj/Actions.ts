<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>No window was closed</source>
        <translation>Nessuna finestra è stata chiusa</translation>
    </message>
    <message>
        <source>There is no window to close.</source>
        <translation>Non c’è nessuna finestra da chiudere.</translation>
    </message>
    <message>
        <source>A window did not close</source>
        <translation>Una finestra non si è chiusa</translation>
    </message>
    <message>
        <source>“%1” is still open.</source>
        <translation>La finestra «%1» è ancora aperta.</translation>
    </message>
    <message>
        <source>“%1” asks something before it closes.</source>
        <translation>La finestra «%1» chiede qualcosa prima di chiudersi.</translation>
    </message>
    <message>
        <source>A window cannot be asked to close</source>
        <translation>Impossibile chiedere a una finestra di chiudersi</translation>
    </message>
    <message>
        <source>“%1” does not answer to being closed. Ending its program loses what it has not stored.</source>
        <translation>La finestra «%1» non risponde alla richiesta di chiusura. Terminando il suo programma si perde ciò che non ha salvato.</translation>
    </message>
    <message>
        <source>End it</source>
        <translation>Termina</translation>
    </message>
    <message>
        <source>The settings did not open</source>
        <translation>Le impostazioni non si sono aperte</translation>
    </message>
    <message>
        <source>The settings cannot be opened: %1.</source>
        <translation>Impossibile aprire le impostazioni: %1.</translation>
    </message>
    <message>
        <source>the command lumaroo-settings is not installed</source>
        <translation>il comando lumaroo-settings non è installato</translation>
    </message>
    <message>
        <source>%1 cannot be run</source>
        <translation>impossibile eseguire %1</translation>
    </message>
    <message>
        <source>No picture was taken</source>
        <translation>Nessuna schermata acquisita</translation>
    </message>
    <message>
        <source>There is no window to take a picture of.</source>
        <translation>Non c’è nessuna finestra da acquisire.</translation>
    </message>
    <message>
        <source>“%1” is minimised, so it has no picture.</source>
        <translation>La finestra «%1» è minimizzata e quindi non può essere acquisita.</translation>
    </message>
    <message>
        <source>“%1” is on another desktop, so it has no picture.</source>
        <translation>La finestra «%1» è su un altro desktop e quindi non può essere acquisita.</translation>
    </message>
    <message>
        <source>“%1” was closed before there was a picture of it.</source>
        <translation>La finestra «%1» è stata chiusa prima di poter essere acquisita.</translation>
    </message>
    <message>
        <source>This X server gives no pictures of windows.</source>
        <translation>Questo server X non fornisce immagini delle finestre.</translation>
    </message>
    <message>
        <source>The disk is full, so the picture was not stored.</source>
        <translation>Il disco è pieno: la schermata non è stata salvata.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to, so the picture was not stored.</source>
        <translation>Impossibile scrivere nella cartella %1: la schermata non è stata salvata.</translation>
    </message>
    <message>
        <source>The picture was not stored: %1.</source>
        <translation>La schermata non è stata salvata: %1.</translation>
    </message>
    <message>
        <source>what stores it did not end well</source>
        <translation>il programma che la salva non è terminato correttamente</translation>
    </message>
    <message>
        <source>Picture of “%1” taken</source>
        <translation>Schermata di «%1» acquisita</translation>
    </message>
    <message>
        <source>It is stored as “%1” in %2.</source>
        <translation>È stata salvata come «%1» in %2.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>No preview is shown</source>
        <translation>Nessuna anteprima visualizzata</translation>
    </message>
    <message>
        <source>Another program has the keyboard and the mouse, as one that locks the screen.</source>
        <translation>Un altro programma occupa la tastiera e il mouse, per esempio uno che blocca lo schermo.</translation>
    </message>
    <message>
        <source>There is no window to show.</source>
        <translation>Non c’è nessuna finestra da mostrare.</translation>
    </message>
    <message>
        <source>A window may still be open</source>
        <translation>Una finestra potrebbe essere ancora aperta</translation>
    </message>
    <message>
        <source>The windows cannot be seen any more, so it is not known whether “%1” has closed.</source>
        <translation>Lumaroo non vede più le finestre, quindi non si sa se la finestra «%1» si è chiusa.</translation>
    </message>
    <message>
        <source>Untitled window</source>
        <translation>Senza titolo</translation>
    </message>
</context>
</TS>
