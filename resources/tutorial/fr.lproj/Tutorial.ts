<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Tutorial</name>
    <message>
        <source>Lumaroo tutorial</source>
        <translation>Tutoriel de Lumaroo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>&amp;Skip this step</source>
        <translation>&amp;Passer cette étape</translation>
    </message>
    <message>
        <source>Go on &amp;without these keys</source>
        <translation>&amp;Continuer sans ces touches</translation>
    </message>
    <message>
        <source>&amp;Leave the tutorial</source>
        <translation>&amp;Quitter le tutoriel</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>&amp;Once more</source>
        <translation>Re&amp;commencer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Turn Lumaroo on</source>
        <translation>&amp;Activer Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>&amp;Redemander</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>&amp;Utiliser %1</translation>
    </message>
    <message>
        <source>Page Down skips a step, Page Up goes back, Escape leaves the tutorial.</source>
        <translation>Page suiv. passe une étape, Page préc. revient en arrière, Échap quitte le tutoriel.</translation>
    </message>
    <message>
        <source>Escape leaves the tutorial.</source>
        <translation>Échap quitte le tutoriel.</translation>
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
        <translation>Maj</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Triangle</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Étoile</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>then</source>
        <translation>puis</translation>
    </message>
    <message>
        <source>twice, then</source>
        <translation>deux fois, puis</translation>
    </message>
    <message>
        <source>Go to the next window</source>
        <translation>Aller à la fenêtre suivante</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. A frame goes to the next window; let go to be there.</source>
        <translation>Maintenez %1 et appuyez sur %2. Un cadre passe à la fenêtre suivante ; relâchez pour y être.</translation>
    </message>
    <message>
        <source>There it is. Now let go of %1.</source>
        <translation>Le voilà. Relâchez maintenant %1.</translation>
    </message>
    <message>
        <source>Press %1 twice and let go. Then press %2: a frame goes to the next window. %3 takes you there.</source>
        <translation>Appuyez deux fois sur %1 et relâchez. Appuyez ensuite sur %2 : un cadre passe à la fenêtre suivante. %3 vous y amène.</translation>
    </message>
    <message>
        <source>There it is. Now press %3.</source>
        <translation>Le voilà. Appuyez maintenant sur %3.</translation>
    </message>
    <message>
        <source>You are in the next window.</source>
        <translation>Vous êtes dans la fenêtre suivante.</translation>
    </message>
    <message>
        <source>Go round the edge</source>
        <translation>Franchir le bord</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Hold %1 and press %2 once: the frame goes round to the circle. Then let go.</source>
        <translation>Le triangle est le dernier de sa rangée. Maintenez %1 et appuyez une fois sur %2 : le cadre fait le tour jusqu’au cercle. Relâchez ensuite.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the circle.</source>
        <translation>Relâchez %1 quand le cadre entoure le cercle.</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Press %1 twice, then %2 once: the frame goes round to the circle. Then press %3.</source>
        <translation>Le triangle est le dernier de sa rangée. Appuyez deux fois sur %1, puis une fois sur %2 : le cadre fait le tour jusqu’au cercle. Appuyez ensuite sur %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the circle.</source>
        <translation>Appuyez sur %3 quand le cadre entoure le cercle.</translation>
    </message>
    <message>
        <source>Round the edge, and back at the row's beginning.</source>
        <translation>Vous avez franchi le bord et vous revoilà au début de la rangée.</translation>
    </message>
    <message>
        <source>Reach a window that is covered</source>
        <translation>Atteindre une fenêtre recouverte</translation>
    </message>
    <message>
        <source>A star lies under the square. Hold %1 and press %2: the frame goes to what is underneath. Then let go.</source>
        <translation>Une étoile se trouve sous le carré. Maintenez %1 et appuyez sur %2 : le cadre passe à ce qui est en dessous. Relâchez ensuite.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the star.</source>
        <translation>Relâchez %1 quand le cadre entoure l’étoile.</translation>
    </message>
    <message>
        <source>A star lies under the square. Press %1 twice, then %2: the frame goes to what is underneath. Then press %3.</source>
        <translation>Une étoile se trouve sous le carré. Appuyez deux fois sur %1, puis sur %2 : le cadre passe à ce qui est en dessous. Appuyez ensuite sur %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the star.</source>
        <translation>Appuyez sur %3 quand le cadre entoure l’étoile.</translation>
    </message>
    <message>
        <source>There is the star.</source>
        <translation>Voilà l’étoile.</translation>
    </message>
    <message>
        <source>It may take several presses: your settings go through the windows upwards.</source>
        <translation>Il faut parfois appuyer plusieurs fois : vos paramètres parcourent les fenêtres de bas en haut.</translation>
    </message>
    <message>
        <source>Change your mind</source>
        <translation>Changer d’avis</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. Before you let go, press %3: nothing will have changed.</source>
        <translation>Maintenez %1 et appuyez sur %2. Avant de relâcher, appuyez sur %3 : rien n’aura changé.</translation>
    </message>
    <message>
        <source>Now press %3 while you hold %1.</source>
        <translation>Appuyez maintenant sur %3 tout en maintenant %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. Now press %3: nothing will have changed.</source>
        <translation>Appuyez deux fois sur %1, puis sur %2. Appuyez maintenant sur %3 : rien n’aura changé.</translation>
    </message>
    <message>
        <source>Now press %3.</source>
        <translation>Appuyez maintenant sur %3.</translation>
    </message>
    <message>
        <source>You are where you were.</source>
        <translation>Vous êtes là où vous étiez.</translation>
    </message>
    <message>
        <source>Go further</source>
        <translation>Aller plus loin</translation>
    </message>
    <message>
        <source>Hold %1 and press %2 until the frame is around the triangle. Then press %3, or just let go.</source>
        <translation>Maintenez %1 et appuyez sur %2 jusqu’à ce que le cadre entoure le triangle. Appuyez ensuite sur %3, ou relâchez simplement.</translation>
    </message>
    <message>
        <source>At the triangle, press %3 or let go.</source>
        <translation>Arrivé au triangle, appuyez sur %3 ou relâchez.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2 until the frame is around the triangle. Then press %3.</source>
        <translation>Appuyez deux fois sur %1, puis sur %2 jusqu’à ce que le cadre entoure le triangle. Appuyez ensuite sur %3.</translation>
    </message>
    <message>
        <source>At the triangle, press %3.</source>
        <translation>Arrivé au triangle, appuyez sur %3.</translation>
    </message>
    <message>
        <source>You are at the triangle.</source>
        <translation>Vous êtes au triangle.</translation>
    </message>
    <message>
        <source>Do something with a window</source>
        <translation>Agir sur une fenêtre</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. That closes the window you are in, here the star.</source>
        <translation>Maintenez %1 et appuyez sur %2. Cela ferme la fenêtre où vous êtes, ici l’étoile.</translation>
    </message>
    <message>
        <source>Let go, and press %2 with %1 in the star.</source>
        <translation>Relâchez, puis appuyez dans l’étoile sur %2 avec %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. That closes the window you are in, here the star.</source>
        <translation>Appuyez deux fois sur %1, puis sur %2. Cela ferme la fenêtre où vous êtes, ici l’étoile.</translation>
    </message>
    <message>
        <source>Now press %2.</source>
        <translation>Appuyez maintenant sur %2.</translation>
    </message>
    <message>
        <source>The star is closed.</source>
        <translation>L’étoile est fermée.</translation>
    </message>
    <message>
        <source>That came too late. Press %3 while the frame is there.</source>
        <translation>C’était trop tard. Appuyez sur %3 tant que le cadre est là.</translation>
    </message>
    <message>
        <source>That led somewhere else. Try once more from here.</source>
        <translation>Vous êtes arrivé ailleurs. Réessayez à partir d’ici.</translation>
    </message>
    <message>
        <source>That is all it takes</source>
        <translation>Il n’en faut pas plus</translation>
    </message>
    <message>
        <source>These keys work in every program. All of them can be changed in Lumaroo's settings, where you find this tutorial again.</source>
        <translation>Ces touches fonctionnent dans tous les programmes. Elles peuvent toutes être changées dans les paramètres de Lumaroo, où vous retrouverez ce tutoriel.</translation>
    </message>
    <message>
        <source>One moment</source>
        <translation>Un instant</translation>
    </message>
    <message>
        <source>Lumaroo is asked for its keys.</source>
        <translation>Lumaroo est interrogé sur ses touches.</translation>
    </message>
    <message>
        <source>The tutorial does not work here</source>
        <translation>Le tutoriel ne fonctionne pas ici</translation>
    </message>
    <message>
        <source>This session has no message bus, over which programs hear of each other. Start the tutorial from within a desktop session.</source>
        <translation>Cette session n’a pas de bus de messages par lequel les programmes communiquent. Lancez le tutoriel depuis une session de bureau.</translation>
    </message>
    <message>
        <source>Lumaroo is off</source>
        <translation>Lumaroo est désactivé</translation>
    </message>
    <message>
        <source>The tutorial shows Lumaroo at work, so it has to be on.</source>
        <translation>Le tutoriel montre Lumaroo à l’œuvre ; il doit donc être activé.</translation>
    </message>
    <message>
        <source>Lumaroo does not start</source>
        <translation>Lumaroo ne démarre pas</translation>
    </message>
    <message>
        <source>A part of it is missing. Install Lumaroo again.</source>
        <translation>Il en manque une partie. Réinstallez Lumaroo.</translation>
    </message>
    <message>
        <source>Lumaroo does not answer</source>
        <translation>Lumaroo ne répond pas</translation>
    </message>
    <message>
        <source>It is running, but it says nothing. Ask again in a moment, or turn it off and on in its settings.</source>
        <translation>Il est en cours d’exécution, mais ne dit rien. Redemandez dans un instant, ou désactivez-le puis réactivez-le dans ses paramètres.</translation>
    </message>
    <message>
        <source>Lumaroo gets no keys here</source>
        <translation>Lumaroo ne reçoit aucune touche ici</translation>
    </message>
    <message>
        <source>It needs an X11 session. Most desktops offer one where you log in.</source>
        <translation>Il nécessite une session X11. La plupart des bureaux en proposent une au moment de la connexion.</translation>
    </message>
    <message>
        <source>No modifier keys are chosen</source>
        <translation>Aucune touche de modification n’est choisie</translation>
    </message>
    <message>
        <source>Lumaroo's keys are pressed together with modifier keys, and your settings have none.</source>
        <translation>Les touches de Lumaroo se pressent avec des touches de modification, et vos paramètres n’en comportent aucune.</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Un autre programme occupe des touches de Lumaroo</translation>
    </message>
    <message>
        <source>With %1, Lumaroo does not get these keys: %2.</source>
        <translation>Avec %1, Lumaroo ne reçoit pas ces touches : %2.</translation>
    </message>
    <message>
        <source>Free them in that program, or choose others in Lumaroo's settings; then ask again.</source>
        <translation>Libérez-les dans ce programme ou choisissez-en d’autres dans les paramètres de Lumaroo, puis redemandez.</translation>
    </message>
    <message>
        <source>If you hold %1 instead, all of Lumaroo's movement keys are free.</source>
        <translation>Si vous maintenez plutôt %1, toutes les touches de déplacement de Lumaroo sont libres.</translation>
    </message>
    <message>
        <source>The keys do not work</source>
        <translation>Les touches ne fonctionnent pas</translation>
    </message>
    <message>
        <source>Choose other keys on the page “Keys” of Lumaroo's settings, then ask again.</source>
        <translation>Choisissez d’autres touches sur la page « Touches » des paramètres de Lumaroo, puis redemandez.</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Votre choix n’a pas pu être enregistré. Le disque est peut-être plein.</translation>
    </message>
</context>
</TS>
