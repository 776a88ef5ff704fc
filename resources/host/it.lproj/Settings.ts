<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Cerca nelle impostazioni</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Tutte le impostazioni</translation>
    </message>
    <message>
        <source>&amp;All settings</source>
        <translation>Tutte le imposta&amp;zioni</translation>
    </message>
    <message>
        <source>No settings are installed.</source>
        <translation>Nessuna impostazione installata.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Nessun risultato per «%1».</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>Impossibile mostrare «%1»</translation>
    </message>
    <message>
        <source>No settings of this name are installed. Install them, then try again.</source>
        <translation>Non sono installate impostazioni con questo nome. Installarle e riprovare.</translation>
    </message>
    <message>
        <source>It is not there any more. Install it again.</source>
        <translation>Il modulo non è più presente. Installarlo di nuovo.</translation>
    </message>
    <message>
        <source>It is damaged. Install it again.</source>
        <translation>Il modulo è danneggiato. Installarlo di nuovo.</translation>
    </message>
    <message>
        <source>It was made for another kind of computer. Install the version for this one.</source>
        <translation>Il modulo è stato creato per un altro tipo di computer. Installare la versione per questo.</translation>
    </message>
    <message>
        <source>It needs a newer version of this application. Update Lumaroo.</source>
        <translation>Il modulo richiede una versione più recente di questa applicazione. Aggiornare Lumaroo.</translation>
    </message>
    <message>
        <source>It contains no settings. Install it again.</source>
        <translation>Il modulo non contiene impostazioni. Installarlo di nuovo.</translation>
    </message>
    <message>
        <source>It could not start. The system log may say why.</source>
        <translation>Il modulo non è stato avviato. Il registro di sistema potrebbe indicarne il motivo.</translation>
    </message>
    <message>
        <source>Its window content could not be loaded. Install it again.</source>
        <translation>Impossibile caricare il contenuto della finestra. Installare di nuovo il modulo.</translation>
    </message>
</context>
</TS>
