<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Notices</name>
    <message>
        <source>Windows cannot be selected here</source>
        <translation>Impossible de sélectionner des fenêtres ici</translation>
    </message>
    <message>
        <source>Another program keeps the keyboard</source>
        <translation>Un autre programme garde le clavier pour lui</translation>
    </message>
    <message>
        <source>Until it lets go, Lumaroo's keys work with the modifier keys held.</source>
        <translation>Tant qu’il ne le libère pas, les touches de Lumaroo fonctionnent en maintenant les touches de modification.</translation>
    </message>
    <message>
        <source>A window did not come to the front</source>
        <translation>Une fenêtre n’est pas passée au premier plan</translation>
    </message>
    <message>
        <source>The window manager did not turn to it.</source>
        <translation>Le gestionnaire de fenêtres ne l’a pas activée.</translation>
    </message>
    <message>
        <source>The window manager did not turn to “%1”.</source>
        <translation>Le gestionnaire de fenêtres n’a pas activé « %1 ».</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Un autre programme occupe des touches de Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo does not get %1.</source>
        <translation>Lumaroo ne reçoit pas %1.</translation>
    </message>
    <message>
        <source>With %1 held instead, all movement keys are free.</source>
        <translation>En maintenant plutôt %1, toutes les touches de déplacement sont libres.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Utiliser %1</translation>
    </message>
    <message>
        <source>The tutorial cannot be started</source>
        <translation>Impossible de lancer le tutoriel</translation>
    </message>
    <message>
        <source>A part of Lumaroo is missing. Install it again.</source>
        <translation>Il manque une partie de Lumaroo. Réinstallez-le.</translation>
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
        <source>Lumaroo is on</source>
        <translation>Lumaroo est activé</translation>
    </message>
    <message>
        <source>Its keys do not work yet. The settings tell why.</source>
        <translation>Ses touches ne fonctionnent pas encore. Les paramètres indiquent pourquoi.</translation>
    </message>
    <message>
        <source>Show me</source>
        <translation>Voir le tutoriel</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>There is no X server.</source>
        <translation>Il n’y a pas de serveur X.</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <translation>Le serveur X n’est plus là.</translation>
    </message>
    <message>
        <source>A Wayland session does not let programs see other programs' windows. Lumaroo works in an X11 session.</source>
        <translation>Une session Wayland ne laisse pas les programmes voir les fenêtres des autres. Lumaroo fonctionne dans une session X11.</translation>
    </message>
    <message>
        <source>No window manager runs that tells which windows there are.</source>
        <translation>Aucun gestionnaire de fenêtres capable d’indiquer les fenêtres ouvertes n’est lancé.</translation>
    </message>
    <message>
        <source>The window manager does not tell which windows there are.</source>
        <translation>Le gestionnaire de fenêtres n’indique pas les fenêtres ouvertes.</translation>
    </message>
    <message>
        <source>“%1” has been closed.</source>
        <translation>La fenêtre « %1 » a été fermée.</translation>
    </message>
    <message>
        <source>It has been closed.</source>
        <translation>Elle a été fermée.</translation>
    </message>
    <message>
        <source>The modifier keys stay as they are</source>
        <translation>Les touches de modification restent inchangées</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Votre choix n’a pas pu être enregistré. Le disque est peut-être plein.</translation>
    </message>
</context>
</TS>
