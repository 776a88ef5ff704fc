<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Tutorial</name>
    <message>
        <source>Lumaroo tutorial</source>
        <translation>Samouczek Lumaroo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>&amp;Skip this step</source>
        <translation>&amp;Pomiń ten krok</translation>
    </message>
    <message>
        <source>Go on &amp;without these keys</source>
        <translation>&amp;Kontynuuj bez tych klawiszy</translation>
    </message>
    <message>
        <source>&amp;Leave the tutorial</source>
        <translation>&amp;Opuść samouczek</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>Z&amp;akończ</translation>
    </message>
    <message>
        <source>&amp;Once more</source>
        <translation>&amp;Jeszcze raz</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>&amp;Turn Lumaroo on</source>
        <translation>Włącz &amp;Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>Spró&amp;buj ponownie</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>Zap&amp;ytaj ponownie</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>&amp;Użyj %1</translation>
    </message>
    <message>
        <source>Page Down skips a step, Page Up goes back, Escape leaves the tutorial.</source>
        <translation>Page Down pomija krok, Page Up cofa, Esc opuszcza samouczek.</translation>
    </message>
    <message>
        <source>Escape leaves the tutorial.</source>
        <translation>Esc opuszcza samouczek.</translation>
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
        <translation>Shift</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Koło</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Kwadrat</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Trójkąt</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Gwiazda</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>then</source>
        <translation>potem</translation>
    </message>
    <message>
        <source>twice, then</source>
        <translation>dwa razy, potem</translation>
    </message>
    <message>
        <source>Go to the next window</source>
        <translation>Przejście do następnego okna</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. A frame goes to the next window; let go to be there.</source>
        <translation>Proszę przytrzymać %1 i nacisnąć %2. Ramka przejdzie do następnego okna; puszczenie klawiszy przenosi do niego.</translation>
    </message>
    <message>
        <source>There it is. Now let go of %1.</source>
        <translation>Oto ramka. Teraz proszę puścić %1.</translation>
    </message>
    <message>
        <source>Press %1 twice and let go. Then press %2: a frame goes to the next window. %3 takes you there.</source>
        <translation>Proszę nacisnąć dwukrotnie %1 i puścić. Potem proszę nacisnąć %2: ramka przejdzie do następnego okna. %3 przenosi do niego.</translation>
    </message>
    <message>
        <source>There it is. Now press %3.</source>
        <translation>Oto ramka. Teraz proszę nacisnąć %3.</translation>
    </message>
    <message>
        <source>You are in the next window.</source>
        <translation>Następne okno jest teraz aktywne.</translation>
    </message>
    <message>
        <source>Go round the edge</source>
        <translation>Przejście przez krawędź</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Hold %1 and press %2 once: the frame goes round to the circle. Then let go.</source>
        <translation>Trójkąt jest ostatni w rzędzie. Proszę przytrzymać %1 i nacisnąć raz %2: ramka przejdzie naokoło do koła. Potem proszę puścić.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the circle.</source>
        <translation>Proszę puścić %1, gdy ramka będzie wokół koła.</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Press %1 twice, then %2 once: the frame goes round to the circle. Then press %3.</source>
        <translation>Trójkąt jest ostatni w rzędzie. Proszę nacisnąć dwukrotnie %1, a potem raz %2: ramka przejdzie naokoło do koła. Potem proszę nacisnąć %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the circle.</source>
        <translation>Proszę nacisnąć %3, gdy ramka będzie wokół koła.</translation>
    </message>
    <message>
        <source>Round the edge, and back at the row's beginning.</source>
        <translation>Przez krawędź i z powrotem na początek rzędu.</translation>
    </message>
    <message>
        <source>Reach a window that is covered</source>
        <translation>Dotarcie do zakrytego okna</translation>
    </message>
    <message>
        <source>A star lies under the square. Hold %1 and press %2: the frame goes to what is underneath. Then let go.</source>
        <translation>Pod kwadratem leży gwiazda. Proszę przytrzymać %1 i nacisnąć %2: ramka przejdzie do tego, co jest pod spodem. Potem proszę puścić.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the star.</source>
        <translation>Proszę puścić %1, gdy ramka będzie wokół gwiazdy.</translation>
    </message>
    <message>
        <source>A star lies under the square. Press %1 twice, then %2: the frame goes to what is underneath. Then press %3.</source>
        <translation>Pod kwadratem leży gwiazda. Proszę nacisnąć dwukrotnie %1, a potem %2: ramka przejdzie do tego, co jest pod spodem. Potem proszę nacisnąć %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the star.</source>
        <translation>Proszę nacisnąć %3, gdy ramka będzie wokół gwiazdy.</translation>
    </message>
    <message>
        <source>There is the star.</source>
        <translation>Oto gwiazda.</translation>
    </message>
    <message>
        <source>It may take several presses: your settings go through the windows upwards.</source>
        <translation>Może to wymagać kilku naciśnięć: zgodnie z ustawieniami okna są przechodzone od dołu do góry.</translation>
    </message>
    <message>
        <source>Change your mind</source>
        <translation>Zmiana zdania</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. Before you let go, press %3: nothing will have changed.</source>
        <translation>Proszę przytrzymać %1 i nacisnąć %2. Przed puszczeniem proszę nacisnąć %3: nic się nie zmieni.</translation>
    </message>
    <message>
        <source>Now press %3 while you hold %1.</source>
        <translation>Teraz proszę nacisnąć %3, przytrzymując %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. Now press %3: nothing will have changed.</source>
        <translation>Proszę nacisnąć dwukrotnie %1, a potem %2. Teraz proszę nacisnąć %3: nic się nie zmieni.</translation>
    </message>
    <message>
        <source>Now press %3.</source>
        <translation>Teraz proszę nacisnąć %3.</translation>
    </message>
    <message>
        <source>You are where you were.</source>
        <translation>Wszystko jest tak, jak było.</translation>
    </message>
    <message>
        <source>Go further</source>
        <translation>Dalsza droga</translation>
    </message>
    <message>
        <source>Hold %1 and press %2 until the frame is around the triangle. Then press %3, or just let go.</source>
        <translation>Proszę przytrzymać %1 i naciskać %2, aż ramka będzie wokół trójkąta. Potem proszę nacisnąć %3 lub po prostu puścić.</translation>
    </message>
    <message>
        <source>At the triangle, press %3 or let go.</source>
        <translation>Przy trójkącie proszę nacisnąć %3 lub puścić.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2 until the frame is around the triangle. Then press %3.</source>
        <translation>Proszę nacisnąć dwukrotnie %1, a potem naciskać %2, aż ramka będzie wokół trójkąta. Potem proszę nacisnąć %3.</translation>
    </message>
    <message>
        <source>At the triangle, press %3.</source>
        <translation>Przy trójkącie proszę nacisnąć %3.</translation>
    </message>
    <message>
        <source>You are at the triangle.</source>
        <translation>Trójkąt jest teraz aktywny.</translation>
    </message>
    <message>
        <source>Do something with a window</source>
        <translation>Działanie na oknie</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. That closes the window you are in, here the star.</source>
        <translation>Proszę przytrzymać %1 i nacisnąć %2. Zamyka to aktywne okno, tutaj gwiazdę.</translation>
    </message>
    <message>
        <source>Let go, and press %2 with %1 in the star.</source>
        <translation>Proszę puścić i w oknie gwiazdy nacisnąć %2 z %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. That closes the window you are in, here the star.</source>
        <translation>Proszę nacisnąć dwukrotnie %1, a potem %2. Zamyka to aktywne okno, tutaj gwiazdę.</translation>
    </message>
    <message>
        <source>Now press %2.</source>
        <translation>Teraz proszę nacisnąć %2.</translation>
    </message>
    <message>
        <source>The star is closed.</source>
        <translation>Gwiazda jest zamknięta.</translation>
    </message>
    <message>
        <source>That came too late. Press %3 while the frame is there.</source>
        <translation>To było za późno. Proszę nacisnąć %3, dopóki ramka jest widoczna.</translation>
    </message>
    <message>
        <source>That led somewhere else. Try once more from here.</source>
        <translation>To zaprowadziło gdzie indziej. Proszę spróbować stąd jeszcze raz.</translation>
    </message>
    <message>
        <source>That is all it takes</source>
        <translation>To już wszystko</translation>
    </message>
    <message>
        <source>These keys work in every program. All of them can be changed in Lumaroo's settings, where you find this tutorial again.</source>
        <translation>Te klawisze działają w każdym programie. Wszystkie można zmienić w ustawieniach Lumaroo, gdzie jest też ten samouczek.</translation>
    </message>
    <message>
        <source>One moment</source>
        <translation>Chwileczkę</translation>
    </message>
    <message>
        <source>Lumaroo is asked for its keys.</source>
        <translation>Trwa odpytywanie Lumaroo o klawisze.</translation>
    </message>
    <message>
        <source>The tutorial does not work here</source>
        <translation>Samouczek tutaj nie działa</translation>
    </message>
    <message>
        <source>This session has no message bus, over which programs hear of each other. Start the tutorial from within a desktop session.</source>
        <translation>W tej sesji nie ma magistrali komunikatów, przez którą programy się porozumiewają. Proszę uruchomić samouczek w środowisku graficznym.</translation>
    </message>
    <message>
        <source>Lumaroo is off</source>
        <translation>Lumaroo jest wyłączone</translation>
    </message>
    <message>
        <source>The tutorial shows Lumaroo at work, so it has to be on.</source>
        <translation>Samouczek pokazuje Lumaroo przy pracy, więc musi ono być włączone.</translation>
    </message>
    <message>
        <source>Lumaroo does not start</source>
        <translation>Lumaroo się nie uruchamia</translation>
    </message>
    <message>
        <source>A part of it is missing. Install Lumaroo again.</source>
        <translation>Brakuje jego części. Proszę ponownie zainstalować Lumaroo.</translation>
    </message>
    <message>
        <source>Lumaroo does not answer</source>
        <translation>Lumaroo nie odpowiada</translation>
    </message>
    <message>
        <source>It is running, but it says nothing. Ask again in a moment, or turn it off and on in its settings.</source>
        <translation>Jest uruchomione, ale milczy. Proszę za chwilę zapytać ponownie albo wyłączyć je i włączyć w ustawieniach.</translation>
    </message>
    <message>
        <source>Lumaroo gets no keys here</source>
        <translation>Lumaroo nie otrzymuje tutaj klawiszy</translation>
    </message>
    <message>
        <source>It needs an X11 session. Most desktops offer one where you log in.</source>
        <translation>Potrzebna jest sesja X11. Większość środowisk udostępnia ją na ekranie logowania.</translation>
    </message>
    <message>
        <source>No modifier keys are chosen</source>
        <translation>Nie wybrano klawiszy modyfikujących</translation>
    </message>
    <message>
        <source>Lumaroo's keys are pressed together with modifier keys, and your settings have none.</source>
        <translation>Klawisze Lumaroo naciska się razem z klawiszami modyfikującymi, a w ustawieniach nie wybrano żadnego.</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Inny program zajmuje klawisze Lumaroo</translation>
    </message>
    <message>
        <source>With %1, Lumaroo does not get these keys: %2.</source>
        <translation>Z klawiszami %1 Lumaroo nie otrzymuje tych klawiszy: %2.</translation>
    </message>
    <message>
        <source>Free them in that program, or choose others in Lumaroo's settings; then ask again.</source>
        <translation>Proszę zwolnić je w tamtym programie lub wybrać inne w ustawieniach Lumaroo, a potem zapytać ponownie.</translation>
    </message>
    <message>
        <source>If you hold %1 instead, all of Lumaroo's movement keys are free.</source>
        <translation>Jeśli zamiast tego przytrzyma się %1, wszystkie klawisze ruchu Lumaroo będą wolne.</translation>
    </message>
    <message>
        <source>The keys do not work</source>
        <translation>Klawisze nie działają</translation>
    </message>
    <message>
        <source>Choose other keys on the page “Keys” of Lumaroo's settings, then ask again.</source>
        <translation>Proszę wybrać inne klawisze na stronie „Klawisze” ustawień Lumaroo, a potem zapytać ponownie.</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Nie można zapisać wyboru. Być może dysk jest pełny.</translation>
    </message>
</context>
</TS>
