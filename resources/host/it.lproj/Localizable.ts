<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Pag su</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Pag giù</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Maiusc+Tab</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Canc</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>%1, %2 % opaque</source>
        <translation>%1, opaco al %2%</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Do not show this message again</source>
        <translation>&amp;Non mostrare più questo messaggio</translation>
    </message>
    <message>
        <source>The server does not answer. Please try again later.</source>
        <translation>Il server non risponde. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The address of the server cannot be used.</source>
        <translation>L’indirizzo del server non può essere usato.</translation>
    </message>
    <message>
        <source>The server cannot be found. Please make sure you are connected to the Internet.</source>
        <translation>Impossibile trovare il server. Verificare di essere connessi a Internet.</translation>
    </message>
    <message>
        <source>The server takes no connection. Please try again later.</source>
        <translation>Il server non accetta connessioni. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Please try again.</source>
        <translation>La connessione al server è stata persa. Riprovare.</translation>
    </message>
    <message>
        <source>The server leads from one address to the next without end. Please try again later.</source>
        <translation>Il server rimanda senza fine da un indirizzo all’altro. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made, so nothing was sent.</source>
        <translation>Non è stato possibile stabilire una connessione sicura con il server, quindi non è stato inviato nulla.</translation>
    </message>
    <message>
        <source>The network does not work as it should. Please try again later.</source>
        <translation>La rete non funziona come dovrebbe. Riprovare più tardi.</translation>
    </message>
</context>
</TS>
