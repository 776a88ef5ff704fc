<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>LumarooPref</name>
    <message>
        <source>&amp;General</source>
        <translation>O&amp;gólne</translation>
    </message>
    <message>
        <source>Turn Lumaroo on or off</source>
        <translation>Włączanie lub wyłączanie Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo działa w tle. Pozostaje włączone po zamknięciu tego okna.</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>Co dalej</translation>
    </message>
    <message>
        <source>Hold the modifier keys and press a movement key. Lumaroo marks a window; each further press moves the mark to the next window.</source>
        <translation>Proszę przytrzymać klawisze modyfikujące i nacisnąć klawisz ruchu. Lumaroo zaznaczy okno; każde kolejne naciśnięcie przenosi zaznaczenie do następnego okna.</translation>
    </message>
    <message>
        <source>Let go of the modifier keys, and you are in the marked window.</source>
        <translation>Puszczenie klawiszy modyfikujących przenosi do zaznaczonego okna.</translation>
    </message>
    <message>
        <source>You see and choose all these keys on the page “Keys”.</source>
        <translation>Wszystkie te klawisze można zobaczyć i wybrać na stronie „Klawisze”.</translation>
    </message>
    <message>
        <source>New to Lumaroo</source>
        <translation>Pierwsze kroki z Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Start the tutorial</source>
        <translation>Uruchom &amp;samouczek</translation>
    </message>
    <message>
        <source>The tutorial shows the keys at work. It turns Lumaroo on if it is off.</source>
        <translation>Samouczek pokazuje klawisze w działaniu. Włącza Lumaroo, jeśli jest wyłączone.</translation>
    </message>
    <message>
        <source>Help about turning Lumaroo on</source>
        <translation>Pomoc o włączaniu Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Klawisze</translation>
    </message>
    <message>
        <source>Modifier keys</source>
        <translation>Klawisze modyfikujące</translation>
    </message>
    <message>
        <source>Sh&amp;ift ⇧</source>
        <translation>S&amp;hift ⇧</translation>
    </message>
    <message>
        <source>&amp;Control ⌃</source>
        <translation>C&amp;trl ⌃</translation>
    </message>
    <message>
        <source>A&amp;lt ⌥</source>
        <translation>A&amp;lt ⌥</translation>
    </message>
    <message>
        <source>Sup&amp;er ⌘</source>
        <translation>Sup&amp;er ⌘</translation>
    </message>
    <message>
        <source>The modifier keys in use</source>
        <translation>Używane klawisze modyfikujące</translation>
    </message>
    <message>
        <source>Hold these while you press one of the keys below.</source>
        <translation>Należy je przytrzymywać, naciskając jeden z klawiszy poniżej.</translation>
    </message>
    <message>
        <source>Movement keys</source>
        <translation>Klawisze ruchu</translation>
    </message>
    <message>
        <source>Help about movement keys</source>
        <translation>Pomoc o klawiszach ruchu</translation>
    </message>
    <message>
        <source>This key is used more than once.</source>
        <translation>Ten klawisz jest używany więcej niż raz.</translation>
    </message>
    <message>
        <source>Click here, then press the new key</source>
        <translation>Proszę tu kliknąć i nacisnąć nowy klawisz</translation>
    </message>
    <message>
        <source>Key to move up</source>
        <translation>Klawisz ruchu w górę</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>Proszę nacisnąć klawisz</translation>
    </message>
    <message>
        <source>Key to move right</source>
        <translation>Klawisz ruchu w prawo</translation>
    </message>
    <message>
        <source>Key to move down</source>
        <translation>Klawisz ruchu w dół</translation>
    </message>
    <message>
        <source>Key to move left</source>
        <translation>Klawisz ruchu w lewo</translation>
    </message>
    <message>
        <source>Key to move to the window under the marked one</source>
        <translation>Klawisz ruchu do okna pod zaznaczonym</translation>
    </message>
    <message>
        <source>U&amp;p</source>
        <translation>&amp;W górę</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>W &amp;prawo</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>W &amp;dół</translation>
    </message>
    <message>
        <source>Le&amp;ft</source>
        <translation>W lew&amp;o</translation>
    </message>
    <message>
        <source>U&amp;nder</source>
        <translation>Pod &amp;spód</translation>
    </message>
    <message>
        <source>Action keys</source>
        <translation>Klawisze działań</translation>
    </message>
    <message>
        <source>Help about action keys</source>
        <translation>Pomoc o klawiszach działań</translation>
    </message>
    <message>
        <source>Key to open these settings</source>
        <translation>Klawisz otwierający te ustawienia</translation>
    </message>
    <message>
        <source>Key to make a screenshot</source>
        <translation>Klawisz robiący zrzut ekranu</translation>
    </message>
    <message>
        <source>Key to close the window</source>
        <translation>Klawisz zamykający okno</translation>
    </message>
    <message>
        <source>Key to show a preview</source>
        <translation>Klawisz wyświetlający podgląd</translation>
    </message>
    <message>
        <source>Key to cancel the selection</source>
        <translation>Klawisz anulujący wybór</translation>
    </message>
    <message>
        <source>Key to jump to the selection</source>
        <translation>Klawisz przechodzący do wyboru</translation>
    </message>
    <message>
        <source>&amp;Open these settings</source>
        <translation>Otwórz te ustaw&amp;ienia</translation>
    </message>
    <message>
        <source>&amp;Make a screenshot</source>
        <translation>Zró&amp;b zrzut ekranu</translation>
    </message>
    <message>
        <source>Close the &amp;window</source>
        <translation>Za&amp;mknij okno</translation>
    </message>
    <message>
        <source>Show a pre&amp;view</source>
        <translation>W&amp;yświetl podgląd</translation>
    </message>
    <message>
        <source>Cancel the &amp;selection</source>
        <translation>A&amp;nuluj wybór</translation>
    </message>
    <message>
        <source>&amp;Jump to the selection</source>
        <translation>Prze&amp;jdź do wyboru</translation>
    </message>
    <message>
        <source>To change a key, click it and press the new one. To try a key, press it with the modifier keys. A warning sign stands beside a key that is used twice.</source>
        <translation>Aby zmienić klawisz, należy go kliknąć i nacisnąć nowy. Aby wypróbować klawisz, należy nacisnąć go z klawiszami modyfikującymi. Obok klawisza użytego więcej niż raz widać znak ostrzegawczy.</translation>
    </message>
    <message>
        <source>&amp;Behavior</source>
        <translation>&amp;Zachowanie</translation>
    </message>
    <message>
        <source>Order of windows</source>
        <translation>Kolejność okien</translation>
    </message>
    <message>
        <source>&amp;Left and right, go by:</source>
        <translation>W &amp;lewo i w prawo liczy się:</translation>
    </message>
    <message>
        <source>First selected window</source>
        <translation>Okno początkowe</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Lewa krawędź</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Prawa krawędź</translation>
    </message>
    <message>
        <source>Leading edge</source>
        <translation>Krawędź wiodąca</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Środek</translation>
    </message>
    <message>
        <source>Up and &amp;down, go by:</source>
        <translation>W górę i w &amp;dół liczy się:</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Górna krawędź</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>Dolna krawędź</translation>
    </message>
    <message>
        <source>The key Under &amp;cycles:</source>
        <translation>Klawi&amp;sz „Pod spód”:</translation>
    </message>
    <message>
        <source>Up the stack</source>
        <translation>W górę stosu</translation>
    </message>
    <message>
        <source>Down the stack</source>
        <translation>W dół stosu</translation>
    </message>
    <message>
        <source>Down the stack goes from a window to the one that it covers, up the stack the other way.</source>
        <translation>W dół stosu prowadzi od okna do tego, które ono zakrywa; w górę stosu – odwrotnie.</translation>
    </message>
    <message>
        <source>The leading edge is the one that faces the way you move.</source>
        <translation>Krawędź wiodąca to ta, która jest zwrócona w kierunku ruchu.</translation>
    </message>
    <message>
        <source>&amp;Wrap around at the left and right edges of the screen</source>
        <translation>Za&amp;wijanie przy lewej i prawej krawędzi ekranu</translation>
    </message>
    <message>
        <source>Wrap around at the top and botto&amp;m edges of the screen</source>
        <translation>Zawijanie przy górnej i dolne&amp;j krawędzi ekranu</translation>
    </message>
    <message>
        <source>Staying active</source>
        <translation>Utrzymywanie aktywności</translation>
    </message>
    <message>
        <source>Acti&amp;vate only by pressing the modifier keys twice</source>
        <translation>Akt&amp;ywacja tylko dwukrotnym naciśnięciem klawiszy modyfikujących</translation>
    </message>
    <message>
        <source>Lumaroo then takes no combination from other programs, and always stays active.</source>
        <translation>Lumaroo nie odbiera wtedy żadnych kombinacji innym programom i zawsze pozostaje aktywne.</translation>
    </message>
    <message>
        <source>Keep Lumaroo active:</source>
        <translation>Lumaroo pozostaje aktywne:</translation>
    </message>
    <message>
        <source>Keep Lumaroo active</source>
        <translation>Lumaroo pozostaje aktywne</translation>
    </message>
    <message>
        <source>Modi&amp;fier keys pressed twice</source>
        <translation>Po dwóc&amp;h naciśnięciach modyfikatorów</translation>
    </message>
    <message>
        <source>M&amp;odifier keys pressed once</source>
        <translation>Po jednym naciśnięciu &amp;modyfikatorów</translation>
    </message>
    <message>
        <source>An active Lumaroo waits until you choose a window or cancel.</source>
        <translation>Aktywne Lumaroo czeka na wybranie okna lub anulowanie.</translation>
    </message>
    <message>
        <source>Key repeat</source>
        <translation>Powtarzanie klawiszy</translation>
    </message>
    <message>
        <source>Re&amp;peat while a movement key is held</source>
        <translation>Powtarzani&amp;e ruchu, gdy klawisz jest przytrzymany</translation>
    </message>
    <message>
        <source>D&amp;elay before the first repeat:</source>
        <translation>O&amp;późnienie początkowe:</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Krótkie</translation>
    </message>
    <message>
        <source>Delay before the first repeat</source>
        <translation>Opóźnienie przed pierwszym powtórzeniem</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Długie</translation>
    </message>
    <message>
        <source>Repeat &amp;speed:</source>
        <translation>Szy&amp;bkość powtarzania:</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Mała</translation>
    </message>
    <message>
        <source>Repeat speed</source>
        <translation>Szybkość powtarzania</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Duża</translation>
    </message>
    <message>
        <source>Hold an arrow key here.</source>
        <translation>Proszę przytrzymać tu klawisz strzałki.</translation>
    </message>
    <message>
        <source>Try the key repeat</source>
        <translation>Wypróbowanie powtarzania klawiszy</translation>
    </message>
    <message>
        <source>Click the windows, then hold an arrow key.</source>
        <translation>Proszę kliknąć okna i przytrzymać klawisz strzałki.</translation>
    </message>
    <message>
        <source>Try &amp;it:</source>
        <translation>Wypróbowa&amp;nie:</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Nakładka</translation>
    </message>
    <message>
        <source>Colo&amp;r:</source>
        <translation>K&amp;olor:</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Kolor nakładki</translation>
    </message>
    <message>
        <source>Choose the color of the overlay</source>
        <translation>Wybór koloru nakładki</translation>
    </message>
    <message>
        <source>Use s&amp;ystem color</source>
        <translation>Użyj koloru sys&amp;temowego</translation>
    </message>
    <message>
        <source>A&amp;nimate the overlay</source>
        <translation>An&amp;imowanie nakładki</translation>
    </message>
    <message>
        <source>The overlay will move and change gradually instead of at once.</source>
        <translation>Nakładka porusza się i zmienia stopniowo, a nie od razu.</translation>
    </message>
    <message>
        <source>Help about the order of windows</source>
        <translation>Pomoc o kolejności okien</translation>
    </message>
    <message>
        <source>&amp;Updates</source>
        <translation>Akt&amp;ualizacje</translation>
    </message>
    <message>
        <source>Automatic check</source>
        <translation>Automatyczne sprawdzanie</translation>
    </message>
    <message>
        <source>&amp;Check for new versions automatically</source>
        <translation>Automatyczne sprawdza&amp;nie nowych wersji</translation>
    </message>
    <message>
        <source>Lumaroo looks once a day and asks before it installs anything.</source>
        <translation>Lumaroo sprawdza raz dziennie i pyta, zanim cokolwiek zainstaluje.</translation>
    </message>
    <message>
        <source>Check by hand</source>
        <translation>Sprawdzanie ręczne</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>&amp;Sprawdź teraz</translation>
    </message>
    <message>
        <source>State of updates</source>
        <translation>Stan aktualizacji</translation>
    </message>
    <message>
        <source>Last successful check: %1</source>
        <translation>Ostatnie udane sprawdzenie: %1</translation>
    </message>
    <message>
        <source>Last successful check: never</source>
        <translation>Ostatnie udane sprawdzenie: nigdy</translation>
    </message>
    <message>
        <source>Version %1 is ready. It is installed when you close the settings.</source>
        <translation>Wersja %1 jest gotowa. Zostanie zainstalowana po zamknięciu ustawień.</translation>
    </message>
    <message>
        <source>No new version is waiting to be installed.</source>
        <translation>Żadna nowa wersja nie czeka na instalację.</translation>
    </message>
    <message>
        <source>⚠ For 30 days Lumaroo could not find out about new versions. Check the connection to the Internet, or look on the web site.</source>
        <translation>⚠ Od 30 dni Lumaroo nie może sprawdzić, czy są nowe wersje. Proszę sprawdzić połączenie z Internetem lub zajrzeć na stronę WWW.</translation>
    </message>
    <message>
        <source>Help about updates</source>
        <translation>Pomoc o aktualizacjach</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>Without a mou&amp;se</source>
        <translation>&amp;Bez myszy</translation>
    </message>
    <message>
        <source>Al&amp;erts</source>
        <translation>Ostrzeż&amp;enia</translation>
    </message>
    <message>
        <source>&amp;Order of windows</source>
        <translation>K&amp;olejność okien</translation>
    </message>
    <message>
        <source>A&amp;ction keys</source>
        <translation>Klawisze &amp;działań</translation>
    </message>
    <message>
        <source>&amp;Movement keys</source>
        <translation>Klawisze ruc&amp;hu</translation>
    </message>
    <message>
        <source>Turning &amp;Lumaroo on</source>
        <translation>Włączanie &amp;Lumaroo</translation>
    </message>
    <message>
        <source>Read in the help</source>
        <translation>Do przeczytania w pomocy</translation>
    </message>
    <message>
        <source>Your keys</source>
        <translation>Używane klawisze</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Visit the &amp;web page</source>
        <translation>Odwiedź stronę &amp;WWW</translation>
    </message>
    <message>
        <source>&amp;Feedback on the web</source>
        <translation>Op&amp;inia przez WWW</translation>
    </message>
    <message>
        <source>Send &amp;feedback…</source>
        <translation>Wyślij op&amp;inię…</translation>
    </message>
    <message>
        <source>Help about using Lumaroo without a mouse</source>
        <translation>Pomoc o używaniu Lumaroo bez myszy</translation>
    </message>
    <message>
        <source>Abou&amp;t</source>
        <translation>O p&amp;rogramie</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Twórcy</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Lumaroo developers</source>
        <translation>Copyright © 2026 Twórcy Lumaroo</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>kolor kolory barwa</translation>
    </message>
    <message>
        <source>More help</source>
        <translation>Więcej pomocy</translation>
    </message>
    <message>
        <source>What is new in Lumaroo</source>
        <translation>Nowości w Lumaroo</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Nowości</translation>
    </message>
    <message>
        <source>&amp;Do not show this again for this version</source>
        <translation>&amp;Nie pokazuj ponownie dla tej wersji</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Start Lumaroo at l&amp;ogin</source>
        <translation>Uruchamianie Lumaroo przy l&amp;ogowaniu</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Restore all keys</source>
        <translation>Przywróć wszystkie klawisze</translation>
    </message>
</context>
</TS>
