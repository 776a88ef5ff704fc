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
    <message>
        <source>Your changes are not saved</source>
        <translation>Le modifiche non sono salvate</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Impossibile leggere le impostazioni</translation>
    </message>
    <message>
        <source>Your changes may not last</source>
        <translation>Le modifiche potrebbero andare perse</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it, then try again.</source>
        <translation>Il disco è pieno. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” can only be read at the moment.</source>
        <translation>Il disco che contiene la cartella «%1» è al momento di sola lettura.</translation>
    </message>
    <message>
        <source>You lack the permission to read the file “%1”.</source>
        <translation>Manca il permesso di leggere il file «%1».</translation>
    </message>
    <message>
        <source>You lack the permission to write in the folder “%1”.</source>
        <translation>Manca il permesso di scrivere nella cartella «%1».</translation>
    </message>
    <message>
        <source>Another program does not let go of the file “%1”.</source>
        <translation>Un altro programma non rilascia il file «%1».</translation>
    </message>
    <message>
        <source>The file “%1” would become too large.</source>
        <translation>Il file «%1» diventerebbe troppo grande.</translation>
    </message>
    <message>
        <source>The file “%1” makes trouble (%2).</source>
        <translation>C’è un problema con il file «%1» (%2).</translation>
    </message>
    <message>
        <source>What you see here is not what is stored.</source>
        <translation>Ciò che si vede qui non è ciò che è salvato.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>A settings file was damaged</source>
        <translation>Un file delle impostazioni era danneggiato</translation>
    </message>
    <message>
        <source>It is kept as “%1”. The settings in it began anew with their defaults.</source>
        <translation>È conservato come «%1». Le impostazioni che conteneva sono tornate ai valori predefiniti.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Nascondi</translation>
    </message>
</context>
</TS>
