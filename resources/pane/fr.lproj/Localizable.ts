<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>The system’s updates bring new versions of this copy.</source>
        <translation>Les nouvelles versions de cette copie arrivent avec les mises à jour du système.</translation>
    </message>
    <message>
        <source>Press:</source>
        <translation>Appuyez sur :</translation>
    </message>
    <message>
        <source>Hold %1 and press:</source>
        <translation>Maintenez %1 et appuyez sur :</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 par seconde</translation>
    </message>
    <message>
        <source>Lumaroo Enabled</source>
        <translation>Lumaroo est activé</translation>
    </message>
    <message>
        <source>Lumaroo Disabled</source>
        <translation>Lumaroo est désactivé</translation>
    </message>
    <message>
        <source>Version %@ (%@)</source>
        <translation>Version %@ (%@)</translation>
    </message>
    <message>
        <source>Quit while key conflicts exist?</source>
        <translation>Quitter malgré des conflits de touches ?</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Quitting may cause unpredictable Lumaroo behavior.</source>
        <translation>Plusieurs actions sont attribuées aux touches signalées. Si vous quittez maintenant, Lumaroo peut se comporter de façon imprévisible.</translation>
    </message>
    <message>
        <source>This key cannot be used. Press a letter, a digit, a sign, an arrow or a key of the number pad.</source>
        <translation>Cette touche n’est pas utilisable. Appuyez sur une lettre, un chiffre, un signe, une flèche ou une touche du pavé numérique.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%@ is already in use.</source>
        <translation>%@ est déjà utilisée.</translation>
    </message>
    <message>
        <source>Lumaroo already has an action associated with %@. Please choose another key.</source>
        <translation>Lumaroo a déjà une action associée à %@. Veuillez choisir une autre touche.</translation>
    </message>
    <message>
        <source>There are conflicts with the marked keys.</source>
        <translation>Les touches signalées sont en conflit.</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.</source>
        <translation>Plusieurs actions sont attribuées aux touches signalées. Veuillez les modifier pour supprimer les conflits.</translation>
    </message>
    <message>
        <source>Please change the marked HotKeys in the programs using them before setting them in Lumaroo.</source>
        <translation>Veuillez modifier les touches signalées dans les programmes qui les utilisent avant de les définir dans Lumaroo.</translation>
    </message>
    <message>
        <source>At least one modifier must be set</source>
        <translation>Au moins une touche de modification doit être choisie</translation>
    </message>
    <message>
        <source>At least one modifier must be set to activate Lumaroo. Please select another modifier before unselecting this one.</source>
        <translation>Lumaroo ne s’active qu’avec au moins une touche de modification. Veuillez en choisir une autre avant de décocher celle-ci.</translation>
    </message>
    <message>
        <source>The web page is unavailable</source>
        <translation>La page web n’est pas accessible</translation>
    </message>
    <message>
        <source>Please make sure you are connected to the Internet and try again later.</source>
        <translation>Vérifiez que vous êtes connecté à Internet et réessayez plus tard.</translation>
    </message>
    <message>
        <source>Hold %1 and press %2</source>
        <translation>Maintenez %1 et appuyez sur %2</translation>
    </message>
    <message>
        <source>Press %1 twice, then press %2</source>
        <translation>Appuyez deux fois sur %1, puis sur %2</translation>
    </message>
    <message>
        <source>Lumaroo is off for now. The menu of its icon in the panel turns it on again.</source>
        <translation>Lumaroo est désactivé pour l’instant. Le menu de son icône dans le tableau de bord le réactive.</translation>
    </message>
    <message>
        <source>Turn &amp;Lumaroo on with this switch.</source>
        <translation>Activez &amp;Lumaroo avec cet interrupteur.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo fonctionne en arrière-plan. Il reste activé lorsque vous fermez cette fenêtre.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this switch.</source>
        <translation>&amp;Lumaroo s’est arrêté de lui-même : il a planté ou a été interrompu. Réactivez-le avec cet interrupteur.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo could not be started. Install it again, then turn it on with this switch.</source>
        <translation>&amp;Lumaroo n’a pas pu démarrer. Réinstallez-le, puis activez-le avec cet interrupteur.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo was removed from this computer. Install it again to turn it on.</source>
        <translation>&amp;Lumaroo a été supprimé de cet ordinateur. Réinstallez-le pour l’activer.</translation>
    </message>
    <message>
        <source>All keys work.</source>
        <translation>Toutes les touches fonctionnent.</translation>
    </message>
    <message>
        <source>Some keys do not work, since other programs use them. The page “Keys” names them.</source>
        <translation>Certaines touches ne fonctionnent pas, car d’autres programmes les utilisent. La page « Touches » les indique.</translation>
    </message>
    <message>
        <source>Some keys do not work. The page “Keys” shows all of them.</source>
        <translation>Certaines touches ne fonctionnent pas. La page « Touches » les montre toutes.</translation>
    </message>
    <message>
        <source>No key works, since no modifier keys are chosen.</source>
        <translation>Aucune touche ne fonctionne, car aucune touche de modification n’est choisie.</translation>
    </message>
    <message>
        <source>Lumaroo takes no key from other programs.</source>
        <translation>Lumaroo ne prend aucune touche aux autres programmes.</translation>
    </message>
    <message>
        <source>This session has no hot keys for programs. Lumaroo needs an X11 session.</source>
        <translation>Cette session ne permet pas aux programmes d’avoir leurs propres touches. Lumaroo nécessite une session X11.</translation>
    </message>
    <message>
        <source>This session runs on Wayland. There no program may take keys or see the windows of others, so Lumaroo’s keys do nothing here. Your settings are kept. To use Lumaroo, log out and choose “X11” or “Xorg” on the login screen.</source>
        <translation>Cette session fonctionne avec Wayland. Aucun programme ne peut y prendre de touches ni voir les fenêtres des autres ; les touches de Lumaroo n’y ont donc aucun effet. Vos paramètres sont conservés. Pour utiliser Lumaroo, fermez la session et choisissez « X11 » ou « Xorg » sur l’écran de connexion.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Lumaroo cannot take it.</source>
        <translation>%1 est utilisée par un autre programme. Lumaroo ne peut pas l’obtenir.</translation>
    </message>
    <message>
        <source>%1 are used by other programs. Lumaroo cannot take them.</source>
        <translation>%1 sont utilisées par d’autres programmes. Lumaroo ne peut pas les obtenir.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Utiliser plutôt %1</translation>
    </message>
    <message>
        <source>Another program uses this key with the modifier keys.</source>
        <translation>Un autre programme utilise cette touche avec les touches de modification.</translation>
    </message>
    <message>
        <source>The start at login could not be changed.</source>
        <translation>Le lancement à l’ouverture de session n’a pas pu être modifié.</translation>
    </message>
    <message>
        <source>Lumaroo cannot write the file “%1”. Check that you may change it, and try again.</source>
        <translation>Lumaroo ne peut pas écrire le fichier « %1 ». Vérifiez que vous avez le droit de le modifier, puis réessayez.</translation>
    </message>
    <message>
        <source>Some keys do not work, since Shift alone would take the capital letters you type.</source>
        <translation>Certaines touches ne fonctionnent pas, car Maj seule prendrait les majuscules que vous tapez.</translation>
    </message>
    <message>
        <source>Choose one at least: without a modifier key, no key works.</source>
        <translation>Choisissez-en au moins une : sans touche de modification, aucune touche ne fonctionne.</translation>
    </message>
    <message>
        <source>Shift alone would take the capital letters you type. Choose another modifier key with it.</source>
        <translation>Maj seule prendrait les majuscules que vous tapez. Choisissez une autre touche de modification en plus.</translation>
    </message>
    <message>
        <source>Restore this key</source>
        <translation>Rétablir cette touche</translation>
    </message>
    <message>
        <source>%1 is used for “%2”.</source>
        <translation>%1 sert déjà pour « %2 ».</translation>
    </message>
    <message>
        <source>%1 is used for “%2”. Change that key first.</source>
        <translation>%1 sert déjà pour « %2 ». Changez d’abord cette touche.</translation>
    </message>
    <message>
        <source>The key for “%1” is restored.</source>
        <translation>La touche de « %1 » est rétablie.</translation>
    </message>
    <message>
        <source>You pressed %1: %2.</source>
        <translation>Vous avez appuyé sur %1 : %2.</translation>
    </message>
    <message>
        <source>All keys are restored.</source>
        <translation>Toutes les touches sont rétablies.</translation>
    </message>
    <message>
        <source>The keys are as they were before.</source>
        <translation>Les touches sont à nouveau comme avant.</translation>
    </message>
</context>
</TS>
