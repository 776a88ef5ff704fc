<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Tutorial</name>
    <message>
        <source>Lumaroo tutorial</source>
        <translation>Einführung in Lumaroo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Skip this step</source>
        <translation>Schritt ü&amp;berspringen</translation>
    </message>
    <message>
        <source>Go on &amp;without these keys</source>
        <translation>&amp;Ohne diese Tasten weiter</translation>
    </message>
    <message>
        <source>&amp;Leave the tutorial</source>
        <translation>Einführung &amp;verlassen</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>&amp;Once more</source>
        <translation>&amp;Noch einmal</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Turn Lumaroo on</source>
        <translation>Lumaroo &amp;einschalten</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>E&amp;rneut fragen</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>%1 ver&amp;wenden</translation>
    </message>
    <message>
        <source>Page Down skips a step, Page Up goes back, Escape leaves the tutorial.</source>
        <translation>Bild ab überspringt einen Schritt, Bild auf geht zurück, Esc verlässt die Einführung.</translation>
    </message>
    <message>
        <source>Escape leaves the tutorial.</source>
        <translation>Esc verlässt die Einführung.</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Dreieck</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>then</source>
        <translation>dann</translation>
    </message>
    <message>
        <source>twice, then</source>
        <translation>zweimal, dann</translation>
    </message>
    <message>
        <source>Go to the next window</source>
        <translation>Zum nächsten Fenster</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. A frame goes to the next window; let go to be there.</source>
        <translation>Halten Sie %1 und drücken Sie %2. Ein Rahmen geht zum nächsten Fenster; lassen Sie los, um dort zu sein.</translation>
    </message>
    <message>
        <source>There it is. Now let go of %1.</source>
        <translation>Da ist er. Lassen Sie %1 jetzt los.</translation>
    </message>
    <message>
        <source>Press %1 twice and let go. Then press %2: a frame goes to the next window. %3 takes you there.</source>
        <translation>Drücken Sie %1 zweimal und lassen Sie los. Drücken Sie dann %2: Ein Rahmen geht zum nächsten Fenster. %3 bringt Sie dorthin.</translation>
    </message>
    <message>
        <source>There it is. Now press %3.</source>
        <translation>Da ist er. Drücken Sie jetzt %3.</translation>
    </message>
    <message>
        <source>You are in the next window.</source>
        <translation>Sie sind im nächsten Fenster.</translation>
    </message>
    <message>
        <source>Go round the edge</source>
        <translation>Über den Rand hinaus</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Hold %1 and press %2 once: the frame goes round to the circle. Then let go.</source>
        <translation>Das Dreieck ist das letzte in seiner Reihe. Halten Sie %1 und drücken Sie %2 einmal: Der Rahmen geht außen herum zum Kreis. Lassen Sie dann los.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the circle.</source>
        <translation>Lassen Sie %1 los, wenn der Rahmen um den Kreis liegt.</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Press %1 twice, then %2 once: the frame goes round to the circle. Then press %3.</source>
        <translation>Das Dreieck ist das letzte in seiner Reihe. Drücken Sie %1 zweimal, dann %2 einmal: Der Rahmen geht außen herum zum Kreis. Drücken Sie dann %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the circle.</source>
        <translation>Drücken Sie %3, wenn der Rahmen um den Kreis liegt.</translation>
    </message>
    <message>
        <source>Round the edge, and back at the row's beginning.</source>
        <translation>Über den Rand und wieder am Anfang der Reihe.</translation>
    </message>
    <message>
        <source>Reach a window that is covered</source>
        <translation>Ein verdecktes Fenster erreichen</translation>
    </message>
    <message>
        <source>A star lies under the square. Hold %1 and press %2: the frame goes to what is underneath. Then let go.</source>
        <translation>Unter dem Quadrat liegt ein Stern. Halten Sie %1 und drücken Sie %2: Der Rahmen geht zu dem, was darunter liegt. Lassen Sie dann los.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the star.</source>
        <translation>Lassen Sie %1 los, wenn der Rahmen um den Stern liegt.</translation>
    </message>
    <message>
        <source>A star lies under the square. Press %1 twice, then %2: the frame goes to what is underneath. Then press %3.</source>
        <translation>Unter dem Quadrat liegt ein Stern. Drücken Sie %1 zweimal, dann %2: Der Rahmen geht zu dem, was darunter liegt. Drücken Sie dann %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the star.</source>
        <translation>Drücken Sie %3, wenn der Rahmen um den Stern liegt.</translation>
    </message>
    <message>
        <source>There is the star.</source>
        <translation>Da ist der Stern.</translation>
    </message>
    <message>
        <source>It may take several presses: your settings go through the windows upwards.</source>
        <translation>Es kann mehrmaliges Drücken brauchen: Nach Ihren Einstellungen geht es von unten nach oben durch die Fenster.</translation>
    </message>
    <message>
        <source>Change your mind</source>
        <translation>Es sich anders überlegen</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. Before you let go, press %3: nothing will have changed.</source>
        <translation>Halten Sie %1 und drücken Sie %2. Drücken Sie %3, bevor Sie loslassen: Es bleibt alles, wie es war.</translation>
    </message>
    <message>
        <source>Now press %3 while you hold %1.</source>
        <translation>Drücken Sie jetzt %3 und halten Sie dabei %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. Now press %3: nothing will have changed.</source>
        <translation>Drücken Sie %1 zweimal, dann %2. Drücken Sie nun %3: Es bleibt alles, wie es war.</translation>
    </message>
    <message>
        <source>Now press %3.</source>
        <translation>Drücken Sie jetzt %3.</translation>
    </message>
    <message>
        <source>You are where you were.</source>
        <translation>Sie sind, wo Sie waren.</translation>
    </message>
    <message>
        <source>Go further</source>
        <translation>Weiter gehen</translation>
    </message>
    <message>
        <source>Hold %1 and press %2 until the frame is around the triangle. Then press %3, or just let go.</source>
        <translation>Halten Sie %1 und drücken Sie %2, bis der Rahmen um das Dreieck liegt. Drücken Sie dann %3 oder lassen Sie einfach los.</translation>
    </message>
    <message>
        <source>At the triangle, press %3 or let go.</source>
        <translation>Drücken Sie beim Dreieck %3 oder lassen Sie los.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2 until the frame is around the triangle. Then press %3.</source>
        <translation>Drücken Sie %1 zweimal, dann %2, bis der Rahmen um das Dreieck liegt. Drücken Sie dann %3.</translation>
    </message>
    <message>
        <source>At the triangle, press %3.</source>
        <translation>Drücken Sie beim Dreieck %3.</translation>
    </message>
    <message>
        <source>You are at the triangle.</source>
        <translation>Sie sind beim Dreieck.</translation>
    </message>
    <message>
        <source>Do something with a window</source>
        <translation>Etwas mit einem Fenster tun</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. That closes the window you are in, here the star.</source>
        <translation>Halten Sie %1 und drücken Sie %2. Das schließt das Fenster, in dem Sie sind, hier den Stern.</translation>
    </message>
    <message>
        <source>Let go, and press %2 with %1 in the star.</source>
        <translation>Lassen Sie los und drücken Sie im Stern %2 mit %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. That closes the window you are in, here the star.</source>
        <translation>Drücken Sie %1 zweimal, dann %2. Das schließt das Fenster, in dem Sie sind, hier den Stern.</translation>
    </message>
    <message>
        <source>Now press %2.</source>
        <translation>Drücken Sie jetzt %2.</translation>
    </message>
    <message>
        <source>The star is closed.</source>
        <translation>Der Stern ist geschlossen.</translation>
    </message>
    <message>
        <source>That came too late. Press %3 while the frame is there.</source>
        <translation>Das kam zu spät. Drücken Sie %3, solange der Rahmen da ist.</translation>
    </message>
    <message>
        <source>That led somewhere else. Try once more from here.</source>
        <translation>Das führte woandershin. Versuchen Sie es von hier aus noch einmal.</translation>
    </message>
    <message>
        <source>That is all it takes</source>
        <translation>Mehr braucht es nicht</translation>
    </message>
    <message>
        <source>These keys work in every program. All of them can be changed in Lumaroo's settings, where you find this tutorial again.</source>
        <translation>Diese Tasten wirken in jedem Programm. Alle lassen sich in den Einstellungen von Lumaroo ändern, wo Sie auch diese Einführung wiederfinden.</translation>
    </message>
    <message>
        <source>One moment</source>
        <translation>Einen Augenblick</translation>
    </message>
    <message>
        <source>Lumaroo is asked for its keys.</source>
        <translation>Lumaroo wird nach seinen Tasten gefragt.</translation>
    </message>
    <message>
        <source>The tutorial does not work here</source>
        <translation>Die Einführung geht hier nicht</translation>
    </message>
    <message>
        <source>This session has no message bus, over which programs hear of each other. Start the tutorial from within a desktop session.</source>
        <translation>Diese Sitzung hat keinen Nachrichtenbus, über den Programme voneinander hören. Starten Sie die Einführung in einer Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Lumaroo is off</source>
        <translation>Lumaroo ist ausgeschaltet</translation>
    </message>
    <message>
        <source>The tutorial shows Lumaroo at work, so it has to be on.</source>
        <translation>Die Einführung zeigt Lumaroo bei der Arbeit; dafür muss es eingeschaltet sein.</translation>
    </message>
    <message>
        <source>Lumaroo does not start</source>
        <translation>Lumaroo startet nicht</translation>
    </message>
    <message>
        <source>A part of it is missing. Install Lumaroo again.</source>
        <translation>Ein Teil davon fehlt. Installieren Sie Lumaroo neu.</translation>
    </message>
    <message>
        <source>Lumaroo does not answer</source>
        <translation>Lumaroo antwortet nicht</translation>
    </message>
    <message>
        <source>It is running, but it says nothing. Ask again in a moment, or turn it off and on in its settings.</source>
        <translation>Es läuft, sagt aber nichts. Fragen Sie gleich noch einmal oder schalten Sie es in seinen Einstellungen aus und wieder ein.</translation>
    </message>
    <message>
        <source>Lumaroo gets no keys here</source>
        <translation>Lumaroo bekommt hier keine Tasten</translation>
    </message>
    <message>
        <source>It needs an X11 session. Most desktops offer one where you log in.</source>
        <translation>Es braucht eine X11-Sitzung. Die meisten Arbeitsumgebungen bieten bei der Anmeldung eine an.</translation>
    </message>
    <message>
        <source>No modifier keys are chosen</source>
        <translation>Es sind keine Zusatztasten gewählt</translation>
    </message>
    <message>
        <source>Lumaroo's keys are pressed together with modifier keys, and your settings have none.</source>
        <translation>Die Tasten von Lumaroo werden mit Zusatztasten gedrückt, und in Ihren Einstellungen ist keine gewählt.</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Ein anderes Programm hält Tasten von Lumaroo</translation>
    </message>
    <message>
        <source>With %1, Lumaroo does not get these keys: %2.</source>
        <translation>Mit %1 bekommt Lumaroo diese Tasten nicht: %2.</translation>
    </message>
    <message>
        <source>Free them in that program, or choose others in Lumaroo's settings; then ask again.</source>
        <translation>Geben Sie sie in jenem Programm frei oder wählen Sie in den Einstellungen von Lumaroo andere; fragen Sie dann erneut.</translation>
    </message>
    <message>
        <source>If you hold %1 instead, all of Lumaroo's movement keys are free.</source>
        <translation>Wenn Sie stattdessen %1 halten, sind alle Bewegungstasten von Lumaroo frei.</translation>
    </message>
    <message>
        <source>The keys do not work</source>
        <translation>Die Tasten wirken nicht</translation>
    </message>
    <message>
        <source>Choose other keys on the page “Keys” of Lumaroo's settings, then ask again.</source>
        <translation>Wählen Sie in den Einstellungen von Lumaroo auf der Seite „Tasten“ andere und fragen Sie dann erneut.</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Ihre Wahl ließ sich nicht speichern. Vielleicht ist der Datenträger voll.</translation>
    </message>
</context>
</TS>
