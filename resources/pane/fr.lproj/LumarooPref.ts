<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>LumarooPref</name>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Général</translation>
    </message>
    <message>
        <source>Turn Lumaroo on or off</source>
        <translation>Activer ou désactiver Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo fonctionne en arrière-plan. Il reste activé lorsque vous fermez cette fenêtre.</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>Que faire ensuite</translation>
    </message>
    <message>
        <source>Hold the modifier keys and press a movement key. Lumaroo marks a window; each further press moves the mark to the next window.</source>
        <translation>Maintenez les touches de modification et appuyez sur une touche de déplacement. Lumaroo marque une fenêtre ; chaque nouvel appui déplace la marque vers la fenêtre suivante.</translation>
    </message>
    <message>
        <source>Let go of the modifier keys, and you are in the marked window.</source>
        <translation>Relâchez les touches de modification : vous êtes dans la fenêtre marquée.</translation>
    </message>
    <message>
        <source>You see and choose all these keys on the page “Keys”.</source>
        <translation>Toutes ces touches se consultent et se choisissent sur la page « Touches ».</translation>
    </message>
    <message>
        <source>New to Lumaroo</source>
        <translation>Premiers pas avec Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Start the tutorial</source>
        <translation>L&amp;ancer le tutoriel</translation>
    </message>
    <message>
        <source>The tutorial shows the keys at work. It turns Lumaroo on if it is off.</source>
        <translation>Le tutoriel montre les touches à l’œuvre. Il active Lumaroo s’il est désactivé.</translation>
    </message>
    <message>
        <source>Help about turning Lumaroo on</source>
        <translation>Aide sur l’activation de Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Touches</translation>
    </message>
    <message>
        <source>Modifier keys</source>
        <translation>Touches de modification</translation>
    </message>
    <message>
        <source>Sh&amp;ift ⇧</source>
        <translation>&amp;Maj ⇧</translation>
    </message>
    <message>
        <source>&amp;Control ⌃</source>
        <translation>&amp;Ctrl ⌃</translation>
    </message>
    <message>
        <source>A&amp;lt ⌥</source>
        <translation>&amp;Alt ⌥</translation>
    </message>
    <message>
        <source>Sup&amp;er ⌘</source>
        <translation>&amp;Super ⌘</translation>
    </message>
    <message>
        <source>The modifier keys in use</source>
        <translation>Les touches de modification utilisées</translation>
    </message>
    <message>
        <source>Hold these while you press one of the keys below.</source>
        <translation>Maintenez-les tout en appuyant sur l’une des touches ci-dessous.</translation>
    </message>
    <message>
        <source>Movement keys</source>
        <translation>Touches de déplacement</translation>
    </message>
    <message>
        <source>Help about movement keys</source>
        <translation>Aide sur les touches de déplacement</translation>
    </message>
    <message>
        <source>This key is used more than once.</source>
        <translation>Cette touche est utilisée plusieurs fois.</translation>
    </message>
    <message>
        <source>Click here, then press the new key</source>
        <translation>Cliquez ici, puis appuyez sur la nouvelle touche</translation>
    </message>
    <message>
        <source>Key to move up</source>
        <translation>Touche pour aller vers le haut</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>Appuyez sur une touche</translation>
    </message>
    <message>
        <source>Key to move right</source>
        <translation>Touche pour aller vers la droite</translation>
    </message>
    <message>
        <source>Key to move down</source>
        <translation>Touche pour aller vers le bas</translation>
    </message>
    <message>
        <source>Key to move left</source>
        <translation>Touche pour aller vers la gauche</translation>
    </message>
    <message>
        <source>Key to move to the window under the marked one</source>
        <translation>Touche pour aller à la fenêtre sous la fenêtre marquée</translation>
    </message>
    <message>
        <source>U&amp;p</source>
        <translation>&amp;Haut</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>D&amp;roite</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>&amp;Bas</translation>
    </message>
    <message>
        <source>Le&amp;ft</source>
        <translation>Gauch&amp;e</translation>
    </message>
    <message>
        <source>U&amp;nder</source>
        <translation>&amp;Dessous</translation>
    </message>
    <message>
        <source>Action keys</source>
        <translation>Touches d’action</translation>
    </message>
    <message>
        <source>Help about action keys</source>
        <translation>Aide sur les touches d’action</translation>
    </message>
    <message>
        <source>Key to open these settings</source>
        <translation>Touche pour ouvrir ces paramètres</translation>
    </message>
    <message>
        <source>Key to make a screenshot</source>
        <translation>Touche pour faire une capture d’écran</translation>
    </message>
    <message>
        <source>Key to close the window</source>
        <translation>Touche pour fermer la fenêtre</translation>
    </message>
    <message>
        <source>Key to show a preview</source>
        <translation>Touche pour afficher un aperçu</translation>
    </message>
    <message>
        <source>Key to cancel the selection</source>
        <translation>Touche pour annuler le choix</translation>
    </message>
    <message>
        <source>Key to jump to the selection</source>
        <translation>Touche pour aller à la fenêtre marquée</translation>
    </message>
    <message>
        <source>&amp;Open these settings</source>
        <translation>Ou&amp;vrir ces paramètres</translation>
    </message>
    <message>
        <source>&amp;Make a screenshot</source>
        <translation>&amp;Faire une capture d’écran</translation>
    </message>
    <message>
        <source>Close the &amp;window</source>
        <translation>Fermer &amp;la fenêtre</translation>
    </message>
    <message>
        <source>Show a pre&amp;view</source>
        <translation>Afficher &amp;un aperçu</translation>
    </message>
    <message>
        <source>Cancel the &amp;selection</source>
        <translation>Annuler le choi&amp;x</translation>
    </message>
    <message>
        <source>&amp;Jump to the selection</source>
        <translation>Aller à la fenêtre mar&amp;quée</translation>
    </message>
    <message>
        <source>To change a key, click it and press the new one. To try a key, press it with the modifier keys. A warning sign stands beside a key that is used twice.</source>
        <translation>Pour changer une touche, cliquez dessus et appuyez sur la nouvelle. Pour essayer une touche, appuyez dessus avec les touches de modification. Un signe d’avertissement figure à côté d’une touche utilisée plusieurs fois.</translation>
    </message>
    <message>
        <source>&amp;Behavior</source>
        <translation>Comporteme&amp;nt</translation>
    </message>
    <message>
        <source>Order of windows</source>
        <translation>Ordre des fenêtres</translation>
    </message>
    <message>
        <source>&amp;Left and right, go by:</source>
        <translation>À gauche et à droite, &amp;selon :</translation>
    </message>
    <message>
        <source>First selected window</source>
        <translation>Fenêtre de départ</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bord gauche</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bord droit</translation>
    </message>
    <message>
        <source>Leading edge</source>
        <translation>Bord avant</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Up and &amp;down, go by:</source>
        <translation>En &amp;haut et en bas, selon :</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Bord supérieur</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>Bord inférieur</translation>
    </message>
    <message>
        <source>The key Under &amp;cycles:</source>
        <translation>&amp;La touche Dessous parcourt :</translation>
    </message>
    <message>
        <source>Up the stack</source>
        <translation>La pile vers le haut</translation>
    </message>
    <message>
        <source>Down the stack</source>
        <translation>La pile vers le bas</translation>
    </message>
    <message>
        <source>Down the stack goes from a window to the one that it covers, up the stack the other way.</source>
        <translation>Vers le bas, on va d’une fenêtre à celle qu’elle recouvre ; vers le haut, c’est l’inverse.</translation>
    </message>
    <message>
        <source>The leading edge is the one that faces the way you move.</source>
        <translation>Le bord avant est celui qui est tourné dans le sens du déplacement.</translation>
    </message>
    <message>
        <source>&amp;Wrap around at the left and right edges of the screen</source>
        <translation>&amp;Boucler aux bords gauche et droit de l’écran</translation>
    </message>
    <message>
        <source>Wrap around at the top and botto&amp;m edges of the screen</source>
        <translation>Boucler aux bords supérieur &amp;et inférieur de l’écran</translation>
    </message>
    <message>
        <source>Staying active</source>
        <translation>Rester actif</translation>
    </message>
    <message>
        <source>Acti&amp;vate only by pressing the modifier keys twice</source>
        <translation>N’activer &amp;que par double appui des touches de modification</translation>
    </message>
    <message>
        <source>Lumaroo then takes no combination from other programs, and always stays active.</source>
        <translation>Lumaroo ne prend alors aucune combinaison aux autres programmes et reste toujours actif.</translation>
    </message>
    <message>
        <source>Keep Lumaroo active:</source>
        <translation>Garder Lumaroo actif :</translation>
    </message>
    <message>
        <source>Keep Lumaroo active</source>
        <translation>Garder Lumaroo actif</translation>
    </message>
    <message>
        <source>Modi&amp;fier keys pressed twice</source>
        <translation>Double appui sur les touches de &amp;modification</translation>
    </message>
    <message>
        <source>M&amp;odifier keys pressed once</source>
        <translation>Appui simple sur les touches de modi&amp;fication</translation>
    </message>
    <message>
        <source>An active Lumaroo waits until you choose a window or cancel.</source>
        <translation>Tant qu’il est actif, Lumaroo attend que vous choisissiez une fenêtre ou que vous annuliez.</translation>
    </message>
    <message>
        <source>Key repeat</source>
        <translation>Répétition des touches</translation>
    </message>
    <message>
        <source>Re&amp;peat while a movement key is held</source>
        <translation>&amp;Répéter tant qu’une touche de déplacement est maintenue</translation>
    </message>
    <message>
        <source>D&amp;elay before the first repeat:</source>
        <translation>&amp;Délai avant la répétition :</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Court</translation>
    </message>
    <message>
        <source>Delay before the first repeat</source>
        <translation>Délai avant la première répétition</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 secondes</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Long</translation>
    </message>
    <message>
        <source>Repeat &amp;speed:</source>
        <translation>&amp;Vitesse :</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>Repeat speed</source>
        <translation>Vitesse de répétition</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Hold an arrow key here.</source>
        <translation>Maintenez ici une touche fléchée.</translation>
    </message>
    <message>
        <source>Try the key repeat</source>
        <translation>Essayer la répétition des touches</translation>
    </message>
    <message>
        <source>Click the windows, then hold an arrow key.</source>
        <translation>Cliquez sur les fenêtres, puis maintenez une touche fléchée.</translation>
    </message>
    <message>
        <source>Try &amp;it:</source>
        <translation>Essa&amp;yer :</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Incrustation</translation>
    </message>
    <message>
        <source>Colo&amp;r:</source>
        <translation>&amp;Couleur :</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Couleur de l’incrustation</translation>
    </message>
    <message>
        <source>Choose the color of the overlay</source>
        <translation>Choisir la couleur de l’incrustation</translation>
    </message>
    <message>
        <source>Use s&amp;ystem color</source>
        <translation>&amp;Utiliser la couleur système</translation>
    </message>
    <message>
        <source>A&amp;nimate the overlay</source>
        <translation>&amp;Animer l’incrustation</translation>
    </message>
    <message>
        <source>The overlay will move and change gradually instead of at once.</source>
        <translation>L’incrustation se déplace et change alors progressivement et non d’un coup.</translation>
    </message>
    <message>
        <source>Help about the order of windows</source>
        <translation>Aide sur l’ordre des fenêtres</translation>
    </message>
    <message>
        <source>&amp;Updates</source>
        <translation>Mises à &amp;jour</translation>
    </message>
    <message>
        <source>Automatic check</source>
        <translation>Recherche automatique</translation>
    </message>
    <message>
        <source>&amp;Check for new versions automatically</source>
        <translation>Rechercher &amp;automatiquement les nouvelles versions</translation>
    </message>
    <message>
        <source>Lumaroo looks once a day and asks before it installs anything.</source>
        <translation>Lumaroo recherche une fois par jour et demande avant d’installer quoi que ce soit.</translation>
    </message>
    <message>
        <source>Check by hand</source>
        <translation>Recherche manuelle</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>State of updates</source>
        <translation>État des mises à jour</translation>
    </message>
    <message>
        <source>Last successful check: %1</source>
        <translation>Dernière recherche réussie : %1</translation>
    </message>
    <message>
        <source>Last successful check: never</source>
        <translation>Dernière recherche réussie : aucune</translation>
    </message>
    <message>
        <source>Version %1 is ready. It is installed when you close the settings.</source>
        <translation>La version %1 est prête. Elle sera installée à la fermeture des paramètres.</translation>
    </message>
    <message>
        <source>No new version is waiting to be installed.</source>
        <translation>Aucune nouvelle version n’attend d’être installée.</translation>
    </message>
    <message>
        <source>⚠ For 30 days Lumaroo could not find out about new versions. Check the connection to the Internet, or look on the web site.</source>
        <translation>⚠ Depuis 30 jours, Lumaroo n’a pas pu savoir s’il existe de nouvelles versions. Vérifiez la connexion à Internet ou consultez le site web.</translation>
    </message>
    <message>
        <source>Help about updates</source>
        <translation>Aide sur les mises à jour</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Without a mou&amp;se</source>
        <translation>&amp;Sans souris</translation>
    </message>
    <message>
        <source>Al&amp;erts</source>
        <translation>Av&amp;ertissements</translation>
    </message>
    <message>
        <source>&amp;Order of windows</source>
        <translation>O&amp;rdre des fenêtres</translation>
    </message>
    <message>
        <source>A&amp;ction keys</source>
        <translation>Touches d’&amp;action</translation>
    </message>
    <message>
        <source>&amp;Movement keys</source>
        <translation>Touches de déplace&amp;ment</translation>
    </message>
    <message>
        <source>Turning &amp;Lumaroo on</source>
        <translation>Activer &amp;Lumaroo</translation>
    </message>
    <message>
        <source>Read in the help</source>
        <translation>À lire dans l’aide</translation>
    </message>
    <message>
        <source>Your keys</source>
        <translation>Vos touches</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Visit the &amp;web page</source>
        <translation>&amp;Visiter la page web</translation>
    </message>
    <message>
        <source>&amp;Feedback on the web</source>
        <translation>&amp;Commentaires en ligne</translation>
    </message>
    <message>
        <source>Send &amp;feedback…</source>
        <translation>&amp;Envoyer un commentaire…</translation>
    </message>
    <message>
        <source>Help about using Lumaroo without a mouse</source>
        <translation>Aide sur l’utilisation sans souris</translation>
    </message>
    <message>
        <source>Abou&amp;t</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Crédits</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Lumaroo developers</source>
        <translation>Copyright © 2026 Les développeurs de Lumaroo</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>teinte color</translation>
    </message>
    <message>
        <source>More help</source>
        <translation>Aide supplémentaire</translation>
    </message>
    <message>
        <source>What is new in Lumaroo</source>
        <translation>Nouveautés de Lumaroo</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>&amp;Do not show this again for this version</source>
        <translation>&amp;Ne plus afficher pour cette version</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Start Lumaroo at l&amp;ogin</source>
        <translation>Lancer Lumaroo à l’ouverture &amp;de session</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Restore all keys</source>
        <translation>Rétablir toutes les touches</translation>
    </message>
</context>
</TS>
