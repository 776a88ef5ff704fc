<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Updates</name>
    <message>
        <source>Lumaroo update</source>
        <translation>Aggiornamento di Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for updates now</source>
        <translation>Lumaroo non può cercare aggiornamenti adesso</translation>
    </message>
    <message>
        <source>A part of it is missing, or was just replaced by another version. Close the settings, open them again and try once more. If that does not help, install Lumaroo again.</source>
        <translation>Ne manca una parte, oppure è appena stata sostituita da un’altra versione. Chiudere le impostazioni, riaprirle e riprovare. Se non basta, installare di nuovo Lumaroo.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>&amp;Salta questa versione</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Più tardi</translation>
    </message>
    <message>
        <source>&amp;Install update</source>
        <translation>&amp;Installa</translation>
    </message>
    <message>
        <source>&amp;Install and restart</source>
        <translation>&amp;Installa e riavvia</translation>
    </message>
    <message>
        <source>&amp;Open its web page</source>
        <translation>Apri la pagina &amp;web</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Looking for a new version</source>
        <translation>Ricerca di una nuova versione</translation>
    </message>
    <message>
        <source>Lumaroo is up to date</source>
        <translation>Lumaroo è aggiornato</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>La versione %1 è la più recente.</translation>
    </message>
    <message>
        <source>There is an important update: Lumaroo %1</source>
        <translation>È disponibile un aggiornamento importante: Lumaroo %1</translation>
    </message>
    <message>
        <source>There is a new version: Lumaroo %1</source>
        <translation>È disponibile una nuova versione: Lumaroo %1</translation>
    </message>
    <message>
        <source>It mends something that matters: install it soon.</source>
        <translation>Corregge qualcosa di importante: è bene installarla presto.</translation>
    </message>
    <message>
        <source>It can be downloaded and installed now.</source>
        <translation>Può essere scaricata e installata subito.</translation>
    </message>
    <message>
        <source>It is not installed from here. Its web page tells how to get it.</source>
        <translation>Non si installa da qui. La sua pagina web indica come ottenerla.</translation>
    </message>
    <message>
        <source>Downloading Lumaroo %1</source>
        <translation>Scaricamento di Lumaroo %1</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>In attesa del server</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Preparing Lumaroo %1</source>
        <translation>Preparazione di Lumaroo %1</translation>
    </message>
    <message>
        <source>Checking that it is genuine, and unpacking it</source>
        <translation>Verifica dell’autenticità, poi estrazione</translation>
    </message>
    <message>
        <source>Lumaroo %1 is ready</source>
        <translation>Lumaroo %1 è pronto</translation>
    </message>
    <message>
        <source>The settings close for a moment and come back with the new version. If you choose Later, it is installed when you close the settings.</source>
        <translation>Le impostazioni si chiudono per un momento e tornano con la nuova versione. Scegliendo «Più tardi», verrà installata alla chiusura delle impostazioni.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is about to be installed</source>
        <translation>Lumaroo %1 sta per essere installato</translation>
    </message>
    <message>
        <source>It is installed as soon as the settings are closed. Answer what they still ask, or close them yourself.</source>
        <translation>Verrà installato non appena le impostazioni saranno chiuse. Rispondere a ciò che ancora chiedono, oppure chiuderle.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is installed</source>
        <translation>Lumaroo %1 è installato</translation>
    </message>
    <message>
        <source>Close the settings and open them again to use it.</source>
        <translation>Chiudere le impostazioni e riaprirle per usarlo.</translation>
    </message>
    <message>
        <source>The release notes cannot be shown now.</source>
        <translation>Le note di versione non possono essere mostrate adesso.</translation>
    </message>
    <message>
        <source>New versions cannot be looked for now</source>
        <translation>Impossibile cercare nuove versioni adesso</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached, or cannot be read. Check your connection and try again later.</source>
        <translation>L’elenco delle versioni non è raggiungibile o non è leggibile. Verificare la connessione e riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update cannot be downloaded</source>
        <translation>Impossibile scaricare l’aggiornamento</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Check your connection and try again.</source>
        <translation>La versione attuale è rimasta invariata. Verificare la connessione e riprovare.</translation>
    </message>
    <message>
        <source>The update cannot be stored</source>
        <translation>Impossibile salvare l’aggiornamento</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Most often the disk is full: make some room and try again.</source>
        <translation>La versione attuale è rimasta invariata. Di solito il disco è pieno: liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself</source>
        <translation>Questa copia di Lumaroo non può aggiornarsi da sola</translation>
    </message>
    <message>
        <source>Whoever built it gave it no key to tell genuine updates by. Get new versions from where you got this one.</source>
        <translation>È stata compilata senza la chiave che permette di riconoscere gli aggiornamenti autentici. Le nuove versioni si ottengono da dove proviene questa.</translation>
    </message>
    <message>
        <source>The update is not genuine</source>
        <translation>L’aggiornamento non è autentico</translation>
    </message>
    <message>
        <source>What came is not what the makers of Lumaroo have signed. It was removed, and the version that you have is unchanged. Try again later, best through another network.</source>
        <translation>Ciò che è arrivato non è firmato dagli sviluppatori di Lumaroo. È stato rimosso e la versione attuale è rimasta invariata. Riprovare più tardi, preferibilmente da un’altra rete.</translation>
    </message>
    <message>
        <source>The update is damaged</source>
        <translation>L’aggiornamento è danneggiato</translation>
    </message>
    <message>
        <source>What came cannot be unpacked. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Ciò che è arrivato non può essere estratto. È stato rimosso e la versione attuale è rimasta invariata. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update is not what was announced</source>
        <translation>L’aggiornamento non è quello annunciato</translation>
    </message>
    <message>
        <source>It does not hold the version that the list of versions tells of. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Non contiene la versione indicata nell’elenco delle versioni. È stato rimosso e la versione attuale è rimasta invariata. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Lumaroo is updated along with your system</source>
        <translation>Lumaroo si aggiorna insieme al sistema</translation>
    </message>
    <message>
        <source>It was installed for everybody who uses this computer. Look for new versions where your system gets its programs and updates.</source>
        <translation>È stato installato per tutti gli utenti di questo computer. Le nuove versioni si trovano dove il sistema ottiene i programmi e gli aggiornamenti.</translation>
    </message>
    <message>
        <source>Updates are not installed as root</source>
        <translation>Gli aggiornamenti non si installano come root</translation>
    </message>
    <message>
        <source>Open the settings under your own name and try again.</source>
        <translation>Aprire le impostazioni con il proprio utente e riprovare.</translation>
    </message>
    <message>
        <source>Lumaroo is being updated already</source>
        <translation>Lumaroo è già in corso di aggiornamento</translation>
    </message>
    <message>
        <source>Another program is about to do it. Wait a moment and try again.</source>
        <translation>Se ne sta occupando un altro programma. Attendere un momento e riprovare.</translation>
    </message>
    <message>
        <source>The update cannot take the old version's place</source>
        <translation>L’aggiornamento non può prendere il posto della vecchia versione</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Close the settings, open them again and try once more.</source>
        <translation>La versione attuale è rimasta invariata. Chiudere le impostazioni, riaprirle e riprovare.</translation>
    </message>
    <message>
        <source>The update was not installed</source>
        <translation>L’aggiornamento non è stato installato</translation>
    </message>
    <message>
        <source>The version that you have is unchanged.</source>
        <translation>La versione attuale è rimasta invariata.</translation>
    </message>
    <message>
        <source>⚠ Version %1 was not installed.</source>
        <translation>⚠ La versione %1 non è stata installata.</translation>
    </message>
    <message>
        <source>Most often the disk is full: make some room. It is tried again when you close the settings and when you open them.</source>
        <translation>Di solito il disco è pieno: liberare spazio. Il tentativo viene ripetuto alla chiusura e all’apertura delle impostazioni.</translation>
    </message>
    <message>
        <source>Another program was updating Lumaroo just then. It is tried again when you close the settings and when you open them.</source>
        <translation>Un altro programma stava aggiornando Lumaroo in quel momento. Il tentativo viene ripetuto alla chiusura e all’apertura delle impostazioni.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer. New versions come with the updates of the system.</source>
        <translation>Lumaroo è stato installato per tutti gli utenti di questo computer. Le nuove versioni arrivano con gli aggiornamenti del sistema.</translation>
    </message>
    <message>
        <source>Updates are not installed as root: open the settings under your own name.</source>
        <translation>Gli aggiornamenti non si installano come root: aprire le impostazioni con il proprio utente.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo has no key to tell genuine updates by, so that the update was removed. Get new versions from where you got this one.</source>
        <translation>Questa copia di Lumaroo non ha la chiave che permette di riconoscere gli aggiornamenti autentici, quindi l’aggiornamento è stato rimosso. Le nuove versioni si ottengono da dove proviene questa.</translation>
    </message>
    <message>
        <source>It was not what the makers of Lumaroo have signed, and was removed. Check again, best through another network.</source>
        <translation>Ciò che è arrivato non era firmato dagli sviluppatori di Lumaroo ed è stato rimosso. Cercare di nuovo, preferibilmente da un’altra rete.</translation>
    </message>
    <message>
        <source>What had been downloaded was damaged or gone. Check again to have it downloaded once more.</source>
        <translation>Ciò che era stato scaricato era danneggiato o non c’era più. Cercare di nuovo per scaricarlo un’altra volta.</translation>
    </message>
    <message>
        <source>It did not hold the version that was announced, and was removed. Check again later.</source>
        <translation>Non conteneva la versione annunciata ed è stato rimosso. Cercare di nuovo più tardi.</translation>
    </message>
    <message>
        <source>It could not take the old version's place. It is tried again when you close the settings and when you open them.</source>
        <translation>Non è stato possibile sostituire la vecchia versione. Il tentativo viene ripetuto alla chiusura e all’apertura delle impostazioni.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself. Get new versions from where you got this one.</source>
        <translation>Questa copia di Lumaroo non può aggiornarsi da sola. Le nuove versioni si ottengono da dove proviene questa.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer: updates come with the system's updates.</source>
        <translation>Lumaroo è stato installato per tutti gli utenti di questo computer: le nuove versioni arrivano con gli aggiornamenti del sistema.</translation>
    </message>
    <message>
        <source>Nothing is looked for as root: open the settings under your own name.</source>
        <translation>Come root non viene cercato nulla: aprire le impostazioni con il proprio utente.</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for new versions.</source>
        <translation>Lumaroo non può cercare nuove versioni.</translation>
    </message>
    <message>
        <source>It is not installed from here. Get it from where you got the version that you have.</source>
        <translation>Non si installa da qui. Si ottiene da dove proviene la versione attuale.</translation>
    </message>
    <message>
        <source>The web page cannot be opened from here. Its address is: %1</source>
        <translation>La pagina web non può essere aperta da qui. Il suo indirizzo è: %1</translation>
    </message>
</context>
</TS>
