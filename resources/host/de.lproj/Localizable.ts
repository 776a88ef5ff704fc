<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Bild ab</translation>
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
        <translation>Umschalt+Tab</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>%1, %2 % opaque</source>
        <translation>%1, zu %2 % deckend</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Do not show this message again</source>
        <translation>&amp;Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>The server does not answer. Please try again later.</source>
        <translation>Der Server antwortet nicht. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The address of the server cannot be used.</source>
        <translation>Die Adresse des Servers ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>The server cannot be found. Please make sure you are connected to the Internet.</source>
        <translation>Der Server ist nicht zu finden. Bitte prüfen Sie, ob Sie mit dem Internet verbunden sind.</translation>
    </message>
    <message>
        <source>The server takes no connection. Please try again later.</source>
        <translation>Der Server nimmt keine Verbindung an. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Please try again.</source>
        <translation>Die Verbindung zum Server ist abgebrochen. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The server leads from one address to the next without end. Please try again later.</source>
        <translation>Der Server leitet ohne Ende von einer Adresse zur nächsten. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made, so nothing was sent.</source>
        <translation>Es kam keine sichere Verbindung zum Server zustande, daher wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The network does not work as it should. Please try again later.</source>
        <translation>Das Netzwerk funktioniert nicht wie vorgesehen. Bitte versuchen Sie es später erneut.</translation>
    </message>
</context>
</TS>
