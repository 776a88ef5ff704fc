<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>LumarooPref</name>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Generale</translation>
    </message>
    <message>
        <source>Turn Lumaroo on or off</source>
        <translation>Attiva o disattiva Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo funziona in secondo piano. Resta attivato anche chiudendo questa finestra.</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>Come proseguire</translation>
    </message>
    <message>
        <source>Hold the modifier keys and press a movement key. Lumaroo marks a window; each further press moves the mark to the next window.</source>
        <translation>Tenere premuti i tasti modificatori e premere un tasto di movimento. Lumaroo evidenzia una finestra; ogni ulteriore pressione sposta l’evidenziazione alla finestra successiva.</translation>
    </message>
    <message>
        <source>Let go of the modifier keys, and you are in the marked window.</source>
        <translation>Rilasciare i tasti modificatori: si è nella finestra evidenziata.</translation>
    </message>
    <message>
        <source>You see and choose all these keys on the page “Keys”.</source>
        <translation>Tutti questi tasti si vedono e si scelgono nella pagina «Tasti».</translation>
    </message>
    <message>
        <source>New to Lumaroo</source>
        <translation>Primi passi con Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Start the tutorial</source>
        <translation>Avvia &amp;il tutorial</translation>
    </message>
    <message>
        <source>The tutorial shows the keys at work. It turns Lumaroo on if it is off.</source>
        <translation>Il tutorial mostra i tasti all’opera. Attiva Lumaroo se è disattivato.</translation>
    </message>
    <message>
        <source>Help about turning Lumaroo on</source>
        <translation>Aiuto sull’attivazione di Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasti</translation>
    </message>
    <message>
        <source>Modifier keys</source>
        <translation>Tasti modificatori</translation>
    </message>
    <message>
        <source>Sh&amp;ift ⇧</source>
        <translation>&amp;Maiusc ⇧</translation>
    </message>
    <message>
        <source>&amp;Control ⌃</source>
        <translation>Ct&amp;rl ⌃</translation>
    </message>
    <message>
        <source>A&amp;lt ⌥</source>
        <translation>&amp;Alt ⌥</translation>
    </message>
    <message>
        <source>Sup&amp;er ⌘</source>
        <translation>Su&amp;per ⌘</translation>
    </message>
    <message>
        <source>The modifier keys in use</source>
        <translation>I tasti modificatori in uso</translation>
    </message>
    <message>
        <source>Hold these while you press one of the keys below.</source>
        <translation>Tenerli premuti mentre si preme uno dei tasti qui sotto.</translation>
    </message>
    <message>
        <source>Movement keys</source>
        <translation>Tasti di movimento</translation>
    </message>
    <message>
        <source>Help about movement keys</source>
        <translation>Aiuto sui tasti di movimento</translation>
    </message>
    <message>
        <source>This key is used more than once.</source>
        <translation>Questo tasto è usato più di una volta.</translation>
    </message>
    <message>
        <source>Click here, then press the new key</source>
        <translation>Fare clic qui, poi premere il nuovo tasto</translation>
    </message>
    <message>
        <source>Key to move up</source>
        <translation>Tasto per spostarsi in su</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>Premere un tasto</translation>
    </message>
    <message>
        <source>Key to move right</source>
        <translation>Tasto per spostarsi a destra</translation>
    </message>
    <message>
        <source>Key to move down</source>
        <translation>Tasto per spostarsi in giù</translation>
    </message>
    <message>
        <source>Key to move left</source>
        <translation>Tasto per spostarsi a sinistra</translation>
    </message>
    <message>
        <source>Key to move to the window under the marked one</source>
        <translation>Tasto per passare alla finestra sotto quella evidenziata</translation>
    </message>
    <message>
        <source>U&amp;p</source>
        <translation>&amp;Su</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Destra</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>Gi&amp;ù</translation>
    </message>
    <message>
        <source>Le&amp;ft</source>
        <translation>Si&amp;nistra</translation>
    </message>
    <message>
        <source>U&amp;nder</source>
        <translation>S&amp;otto</translation>
    </message>
    <message>
        <source>Action keys</source>
        <translation>Tasti di azione</translation>
    </message>
    <message>
        <source>Help about action keys</source>
        <translation>Aiuto sui tasti di azione</translation>
    </message>
    <message>
        <source>Key to open these settings</source>
        <translation>Tasto per aprire queste impostazioni</translation>
    </message>
    <message>
        <source>Key to make a screenshot</source>
        <translation>Tasto per acquisire una schermata</translation>
    </message>
    <message>
        <source>Key to close the window</source>
        <translation>Tasto per chiudere la finestra</translation>
    </message>
    <message>
        <source>Key to show a preview</source>
        <translation>Tasto per visualizzare un’anteprima</translation>
    </message>
    <message>
        <source>Key to cancel the selection</source>
        <translation>Tasto per annullare la selezione</translation>
    </message>
    <message>
        <source>Key to jump to the selection</source>
        <translation>Tasto per andare subito alla selezione</translation>
    </message>
    <message>
        <source>&amp;Open these settings</source>
        <translation>Apri le &amp;impostazioni</translation>
    </message>
    <message>
        <source>&amp;Make a screenshot</source>
        <translation>Ac&amp;quisisci una schermata</translation>
    </message>
    <message>
        <source>Close the &amp;window</source>
        <translation>C&amp;hiudi la finestra</translation>
    </message>
    <message>
        <source>Show a pre&amp;view</source>
        <translation>&amp;Visualizza un’anteprima</translation>
    </message>
    <message>
        <source>Cancel the &amp;selection</source>
        <translation>Annulla &amp;la selezione</translation>
    </message>
    <message>
        <source>&amp;Jump to the selection</source>
        <translation>Vai su&amp;bito alla selezione</translation>
    </message>
    <message>
        <source>To change a key, click it and press the new one. To try a key, press it with the modifier keys. A warning sign stands beside a key that is used twice.</source>
        <translation>Per cambiare un tasto, fare clic su di esso e premere quello nuovo. Per provare un tasto, premerlo con i tasti modificatori. Un segnale di avviso compare accanto ai tasti usati più di una volta.</translation>
    </message>
    <message>
        <source>&amp;Behavior</source>
        <translation>&amp;Comportamento</translation>
    </message>
    <message>
        <source>Order of windows</source>
        <translation>Ordine delle finestre</translation>
    </message>
    <message>
        <source>&amp;Left and right, go by:</source>
        <translation>I&amp;n orizzontale, in base a:</translation>
    </message>
    <message>
        <source>First selected window</source>
        <translation>Finestra di partenza</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bordo sinistro</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bordo destro</translation>
    </message>
    <message>
        <source>Leading edge</source>
        <translation>Bordo anteriore</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Up and &amp;down, go by:</source>
        <translation>In verticale, in &amp;base a:</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Bordo superiore</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>Bordo inferiore</translation>
    </message>
    <message>
        <source>The key Under &amp;cycles:</source>
        <translation>&amp;Il tasto Sotto scorre:</translation>
    </message>
    <message>
        <source>Up the stack</source>
        <translation>La pila verso l’alto</translation>
    </message>
    <message>
        <source>Down the stack</source>
        <translation>La pila verso il basso</translation>
    </message>
    <message>
        <source>Down the stack goes from a window to the one that it covers, up the stack the other way.</source>
        <translation>Verso il basso si va da una finestra a quella che essa copre, verso l’alto al contrario.</translation>
    </message>
    <message>
        <source>The leading edge is the one that faces the way you move.</source>
        <translation>Il bordo anteriore è quello rivolto nella direzione del movimento.</translation>
    </message>
    <message>
        <source>&amp;Wrap around at the left and right edges of the screen</source>
        <translation>Ricomincia ai bordi sinistro e destro dello sc&amp;hermo</translation>
    </message>
    <message>
        <source>Wrap around at the top and botto&amp;m edges of the screen</source>
        <translation>Ricomincia ai bordi &amp;superiore e inferiore dello schermo</translation>
    </message>
    <message>
        <source>Staying active</source>
        <translation>Restare attivo</translation>
    </message>
    <message>
        <source>Acti&amp;vate only by pressing the modifier keys twice</source>
        <translation>&amp;Attiva solo premendo due volte i tasti modificatori</translation>
    </message>
    <message>
        <source>Lumaroo then takes no combination from other programs, and always stays active.</source>
        <translation>In tal caso Lumaroo non toglie alcuna combinazione agli altri programmi e resta sempre attivo.</translation>
    </message>
    <message>
        <source>Keep Lumaroo active:</source>
        <translation>Mantieni attivo Lumaroo:</translation>
    </message>
    <message>
        <source>Keep Lumaroo active</source>
        <translation>Mantieni attivo Lumaroo</translation>
    </message>
    <message>
        <source>Modi&amp;fier keys pressed twice</source>
        <translation>Tasti &amp;modificatori premuti due volte</translation>
    </message>
    <message>
        <source>M&amp;odifier keys pressed once</source>
        <translation>Tasti mo&amp;dificatori premuti una volta</translation>
    </message>
    <message>
        <source>An active Lumaroo waits until you choose a window or cancel.</source>
        <translation>Quando è attivo, Lumaroo attende che si scelga una finestra o si annulli.</translation>
    </message>
    <message>
        <source>Key repeat</source>
        <translation>Ripetizione dei tasti</translation>
    </message>
    <message>
        <source>Re&amp;peat while a movement key is held</source>
        <translation>Ripeti &amp;quando si tiene premuto un tasto di movimento</translation>
    </message>
    <message>
        <source>D&amp;elay before the first repeat:</source>
        <translation>&amp;Ritardo prima di ripetere:</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Breve</translation>
    </message>
    <message>
        <source>Delay before the first repeat</source>
        <translation>Ritardo prima della prima ripetizione</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 secondi</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Lungo</translation>
    </message>
    <message>
        <source>Repeat &amp;speed:</source>
        <translation>&amp;Velocità:</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lenta</translation>
    </message>
    <message>
        <source>Repeat speed</source>
        <translation>Velocità di ripetizione</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapida</translation>
    </message>
    <message>
        <source>Hold an arrow key here.</source>
        <translation>Tenere premuto qui un tasto freccia.</translation>
    </message>
    <message>
        <source>Try the key repeat</source>
        <translation>Prova la ripetizione dei tasti</translation>
    </message>
    <message>
        <source>Click the windows, then hold an arrow key.</source>
        <translation>Fare clic sulle finestre, poi tenere premuto un tasto freccia.</translation>
    </message>
    <message>
        <source>Try &amp;it:</source>
        <translation>&amp;Prova:</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Sovrapposizione</translation>
    </message>
    <message>
        <source>Colo&amp;r:</source>
        <translation>C&amp;olore:</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Colore della sovrapposizione</translation>
    </message>
    <message>
        <source>Choose the color of the overlay</source>
        <translation>Scegli il colore della sovrapposizione</translation>
    </message>
    <message>
        <source>Use s&amp;ystem color</source>
        <translation>Usa il colore del des&amp;ktop</translation>
    </message>
    <message>
        <source>A&amp;nimate the overlay</source>
        <translation>Anima &amp;la sovrapposizione</translation>
    </message>
    <message>
        <source>The overlay will move and change gradually instead of at once.</source>
        <translation>La sovrapposizione si muove e cambia gradualmente anziché di colpo.</translation>
    </message>
    <message>
        <source>Help about the order of windows</source>
        <translation>Aiuto sull’ordine delle finestre</translation>
    </message>
    <message>
        <source>&amp;Updates</source>
        <translation>Aggiornam&amp;enti</translation>
    </message>
    <message>
        <source>Automatic check</source>
        <translation>Ricerca automatica</translation>
    </message>
    <message>
        <source>&amp;Check for new versions automatically</source>
        <translation>Cerca &amp;automaticamente nuove versioni</translation>
    </message>
    <message>
        <source>Lumaroo looks once a day and asks before it installs anything.</source>
        <translation>Lumaroo cerca una volta al giorno e chiede prima di installare qualcosa.</translation>
    </message>
    <message>
        <source>Check by hand</source>
        <translation>Ricerca manuale</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Cerca &amp;ora</translation>
    </message>
    <message>
        <source>State of updates</source>
        <translation>Stato degli aggiornamenti</translation>
    </message>
    <message>
        <source>Last successful check: %1</source>
        <translation>Ultima ricerca riuscita: %1</translation>
    </message>
    <message>
        <source>Last successful check: never</source>
        <translation>Ultima ricerca riuscita: nessuna</translation>
    </message>
    <message>
        <source>Version %1 is ready. It is installed when you close the settings.</source>
        <translation>La versione %1 è pronta. Verrà installata alla chiusura delle impostazioni.</translation>
    </message>
    <message>
        <source>No new version is waiting to be installed.</source>
        <translation>Nessuna nuova versione è in attesa di installazione.</translation>
    </message>
    <message>
        <source>⚠ For 30 days Lumaroo could not find out about new versions. Check the connection to the Internet, or look on the web site.</source>
        <translation>⚠ Da 30 giorni Lumaroo non riesce a sapere se ci sono nuove versioni. Verificare la connessione a Internet o consultare il sito web.</translation>
    </message>
    <message>
        <source>Help about updates</source>
        <translation>Aiuto sugli aggiornamenti</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;uto</translation>
    </message>
    <message>
        <source>Without a mou&amp;se</source>
        <translation>Se&amp;nza mouse</translation>
    </message>
    <message>
        <source>Al&amp;erts</source>
        <translation>Avv&amp;isi</translation>
    </message>
    <message>
        <source>&amp;Order of windows</source>
        <translation>&amp;Ordine delle finestre</translation>
    </message>
    <message>
        <source>A&amp;ction keys</source>
        <translation>Tasti di &amp;azione</translation>
    </message>
    <message>
        <source>&amp;Movement keys</source>
        <translation>Tasti di &amp;movimento</translation>
    </message>
    <message>
        <source>Turning &amp;Lumaroo on</source>
        <translation>Attivare &amp;Lumaroo</translation>
    </message>
    <message>
        <source>Read in the help</source>
        <translation>Da leggere nell’aiuto</translation>
    </message>
    <message>
        <source>Your keys</source>
        <translation>Tasti in uso</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Visit the &amp;web page</source>
        <translation>&amp;Visita la pagina web</translation>
    </message>
    <message>
        <source>&amp;Feedback on the web</source>
        <translation>Commenti &amp;sul web</translation>
    </message>
    <message>
        <source>Send &amp;feedback…</source>
        <translation>&amp;Invia un commento…</translation>
    </message>
    <message>
        <source>Help about using Lumaroo without a mouse</source>
        <translation>Aiuto sull’uso senza mouse</translation>
    </message>
    <message>
        <source>Abou&amp;t</source>
        <translation>In&amp;formazioni</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Riconoscimenti</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Lumaroo developers</source>
        <translation>Copyright © 2026 Gli sviluppatori di Lumaroo</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>tinta color</translation>
    </message>
    <message>
        <source>More help</source>
        <translation>Altro aiuto</translation>
    </message>
    <message>
        <source>What is new in Lumaroo</source>
        <translation>Novità di Lumaroo</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>&amp;Do not show this again for this version</source>
        <translation>&amp;Non mostrare più per questa versione</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Start Lumaroo at l&amp;ogin</source>
        <translation>&amp;Avvia Lumaroo all’accesso</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Restore all keys</source>
        <translation>Ripristina tutti i tasti</translation>
    </message>
</context>
</TS>
