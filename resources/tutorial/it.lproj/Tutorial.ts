<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Tutorial</name>
    <message>
        <source>Lumaroo tutorial</source>
        <translation>Tutorial di Lumaroo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>&amp;Skip this step</source>
        <translation>&amp;Salta questo passo</translation>
    </message>
    <message>
        <source>Go on &amp;without these keys</source>
        <translation>&amp;Continua senza questi tasti</translation>
    </message>
    <message>
        <source>&amp;Leave the tutorial</source>
        <translation>&amp;Esci dal tutorial</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>&amp;Once more</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;hiudi</translation>
    </message>
    <message>
        <source>&amp;Turn Lumaroo on</source>
        <translation>&amp;Attiva Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>Ri&amp;prova</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>Chiedi di &amp;nuovo</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>&amp;Usa %1</translation>
    </message>
    <message>
        <source>Page Down skips a step, Page Up goes back, Escape leaves the tutorial.</source>
        <translation>Pag giù salta un passo, Pag su torna indietro, Esc esce dal tutorial.</translation>
    </message>
    <message>
        <source>Escape leaves the tutorial.</source>
        <translation>Esc esce dal tutorial.</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cerchio</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrato</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Triangolo</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Stella</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>then</source>
        <translation>poi</translation>
    </message>
    <message>
        <source>twice, then</source>
        <translation>due volte, poi</translation>
    </message>
    <message>
        <source>Go to the next window</source>
        <translation>Andare alla finestra successiva</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. A frame goes to the next window; let go to be there.</source>
        <translation>Tenere premuto %1 e premere %2. Una cornice passa alla finestra successiva; rilasciare per andarci.</translation>
    </message>
    <message>
        <source>There it is. Now let go of %1.</source>
        <translation>Eccola. Ora rilasciare %1.</translation>
    </message>
    <message>
        <source>Press %1 twice and let go. Then press %2: a frame goes to the next window. %3 takes you there.</source>
        <translation>Premere due volte %1 e rilasciare. Poi premere %2: una cornice passa alla finestra successiva. %3 porta lì.</translation>
    </message>
    <message>
        <source>There it is. Now press %3.</source>
        <translation>Eccola. Ora premere %3.</translation>
    </message>
    <message>
        <source>You are in the next window.</source>
        <translation>Questa è la finestra successiva.</translation>
    </message>
    <message>
        <source>Go round the edge</source>
        <translation>Oltre il bordo</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Hold %1 and press %2 once: the frame goes round to the circle. Then let go.</source>
        <translation>Il triangolo è l’ultimo della fila. Tenere premuto %1 e premere %2 una volta: la cornice gira fino al cerchio. Poi rilasciare.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the circle.</source>
        <translation>Rilasciare %1 quando la cornice è attorno al cerchio.</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Press %1 twice, then %2 once: the frame goes round to the circle. Then press %3.</source>
        <translation>Il triangolo è l’ultimo della fila. Premere due volte %1, poi una volta %2: la cornice gira fino al cerchio. Poi premere %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the circle.</source>
        <translation>Premere %3 quando la cornice è attorno al cerchio.</translation>
    </message>
    <message>
        <source>Round the edge, and back at the row's beginning.</source>
        <translation>Oltre il bordo, e di nuovo all’inizio della fila.</translation>
    </message>
    <message>
        <source>Reach a window that is covered</source>
        <translation>Raggiungere una finestra coperta</translation>
    </message>
    <message>
        <source>A star lies under the square. Hold %1 and press %2: the frame goes to what is underneath. Then let go.</source>
        <translation>Sotto il quadrato c’è una stella. Tenere premuto %1 e premere %2: la cornice passa a ciò che sta sotto. Poi rilasciare.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the star.</source>
        <translation>Rilasciare %1 quando la cornice è attorno alla stella.</translation>
    </message>
    <message>
        <source>A star lies under the square. Press %1 twice, then %2: the frame goes to what is underneath. Then press %3.</source>
        <translation>Sotto il quadrato c’è una stella. Premere due volte %1, poi %2: la cornice passa a ciò che sta sotto. Poi premere %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the star.</source>
        <translation>Premere %3 quando la cornice è attorno alla stella.</translation>
    </message>
    <message>
        <source>There is the star.</source>
        <translation>Ecco la stella.</translation>
    </message>
    <message>
        <source>It may take several presses: your settings go through the windows upwards.</source>
        <translation>Può essere necessario premere più volte: le impostazioni scorrono le finestre dal basso verso l’alto.</translation>
    </message>
    <message>
        <source>Change your mind</source>
        <translation>Cambiare idea</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. Before you let go, press %3: nothing will have changed.</source>
        <translation>Tenere premuto %1 e premere %2. Prima di rilasciare, premere %3: non sarà cambiato nulla.</translation>
    </message>
    <message>
        <source>Now press %3 while you hold %1.</source>
        <translation>Ora premere %3 tenendo premuto %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. Now press %3: nothing will have changed.</source>
        <translation>Premere due volte %1, poi %2. Ora premere %3: non sarà cambiato nulla.</translation>
    </message>
    <message>
        <source>Now press %3.</source>
        <translation>Ora premere %3.</translation>
    </message>
    <message>
        <source>You are where you were.</source>
        <translation>Tutto è rimasto com’era.</translation>
    </message>
    <message>
        <source>Go further</source>
        <translation>Andare più in là</translation>
    </message>
    <message>
        <source>Hold %1 and press %2 until the frame is around the triangle. Then press %3, or just let go.</source>
        <translation>Tenere premuto %1 e premere %2 finché la cornice non è attorno al triangolo. Poi premere %3 o semplicemente rilasciare.</translation>
    </message>
    <message>
        <source>At the triangle, press %3 or let go.</source>
        <translation>Al triangolo, premere %3 o rilasciare.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2 until the frame is around the triangle. Then press %3.</source>
        <translation>Premere due volte %1, poi %2 finché la cornice non è attorno al triangolo. Poi premere %3.</translation>
    </message>
    <message>
        <source>At the triangle, press %3.</source>
        <translation>Al triangolo, premere %3.</translation>
    </message>
    <message>
        <source>You are at the triangle.</source>
        <translation>Triangolo raggiunto.</translation>
    </message>
    <message>
        <source>Do something with a window</source>
        <translation>Agire su una finestra</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. That closes the window you are in, here the star.</source>
        <translation>Tenere premuto %1 e premere %2. Così si chiude la finestra in cui ci si trova, qui la stella.</translation>
    </message>
    <message>
        <source>Let go, and press %2 with %1 in the star.</source>
        <translation>Rilasciare e, nella stella, premere %2 con %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. That closes the window you are in, here the star.</source>
        <translation>Premere due volte %1, poi %2. Così si chiude la finestra in cui ci si trova, qui la stella.</translation>
    </message>
    <message>
        <source>Now press %2.</source>
        <translation>Ora premere %2.</translation>
    </message>
    <message>
        <source>The star is closed.</source>
        <translation>La stella è chiusa.</translation>
    </message>
    <message>
        <source>That came too late. Press %3 while the frame is there.</source>
        <translation>Troppo tardi. Premere %3 mentre c’è la cornice.</translation>
    </message>
    <message>
        <source>That led somewhere else. Try once more from here.</source>
        <translation>Così si è arrivati altrove. Riprovare da qui.</translation>
    </message>
    <message>
        <source>That is all it takes</source>
        <translation>Non serve altro</translation>
    </message>
    <message>
        <source>These keys work in every program. All of them can be changed in Lumaroo's settings, where you find this tutorial again.</source>
        <translation>Questi tasti funzionano in tutti i programmi. Si possono cambiare tutti nelle impostazioni di Lumaroo, dove si ritrova anche questo tutorial.</translation>
    </message>
    <message>
        <source>One moment</source>
        <translation>Un momento</translation>
    </message>
    <message>
        <source>Lumaroo is asked for its keys.</source>
        <translation>Lettura dei tasti di Lumaroo in corso.</translation>
    </message>
    <message>
        <source>The tutorial does not work here</source>
        <translation>Il tutorial non funziona qui</translation>
    </message>
    <message>
        <source>This session has no message bus, over which programs hear of each other. Start the tutorial from within a desktop session.</source>
        <translation>Questa sessione non ha un bus di messaggi con cui i programmi comunicano. Avviare il tutorial da una sessione desktop.</translation>
    </message>
    <message>
        <source>Lumaroo is off</source>
        <translation>Lumaroo è disattivato</translation>
    </message>
    <message>
        <source>The tutorial shows Lumaroo at work, so it has to be on.</source>
        <translation>Il tutorial mostra Lumaroo all’opera, quindi deve essere attivato.</translation>
    </message>
    <message>
        <source>Lumaroo does not start</source>
        <translation>Lumaroo non si avvia</translation>
    </message>
    <message>
        <source>A part of it is missing. Install Lumaroo again.</source>
        <translation>Ne manca una parte. Installare di nuovo Lumaroo.</translation>
    </message>
    <message>
        <source>Lumaroo does not answer</source>
        <translation>Lumaroo non risponde</translation>
    </message>
    <message>
        <source>It is running, but it says nothing. Ask again in a moment, or turn it off and on in its settings.</source>
        <translation>È in esecuzione, ma non dice nulla. Chiedere di nuovo tra un momento, oppure disattivarlo e riattivarlo nelle sue impostazioni.</translation>
    </message>
    <message>
        <source>Lumaroo gets no keys here</source>
        <translation>Qui Lumaroo non riceve tasti</translation>
    </message>
    <message>
        <source>It needs an X11 session. Most desktops offer one where you log in.</source>
        <translation>Richiede una sessione X11. La maggior parte dei desktop ne offre una all’accesso.</translation>
    </message>
    <message>
        <source>No modifier keys are chosen</source>
        <translation>Nessun tasto modificatore è scelto</translation>
    </message>
    <message>
        <source>Lumaroo's keys are pressed together with modifier keys, and your settings have none.</source>
        <translation>I tasti di Lumaroo si premono insieme a tasti modificatori, e nelle impostazioni non ce n’è nessuno.</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Un altro programma occupa dei tasti di Lumaroo</translation>
    </message>
    <message>
        <source>With %1, Lumaroo does not get these keys: %2.</source>
        <translation>Con %1, Lumaroo non riceve questi tasti: %2.</translation>
    </message>
    <message>
        <source>Free them in that program, or choose others in Lumaroo's settings; then ask again.</source>
        <translation>Liberarli in quel programma o sceglierne altri nelle impostazioni di Lumaroo, poi chiedere di nuovo.</translation>
    </message>
    <message>
        <source>If you hold %1 instead, all of Lumaroo's movement keys are free.</source>
        <translation>Tenendo invece premuto %1, tutti i tasti di movimento di Lumaroo sono liberi.</translation>
    </message>
    <message>
        <source>The keys do not work</source>
        <translation>I tasti non funzionano</translation>
    </message>
    <message>
        <source>Choose other keys on the page “Keys” of Lumaroo's settings, then ask again.</source>
        <translation>Scegliere altri tasti nella pagina «Tasti» delle impostazioni di Lumaroo, poi chiedere di nuovo.</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Non è stato possibile salvare la scelta. Forse il disco è pieno.</translation>
    </message>
</context>
</TS>
