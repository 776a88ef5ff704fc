<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>No window was closed</source>
        <translation>Aucune fenêtre n’a été fermée</translation>
    </message>
    <message>
        <source>There is no window to close.</source>
        <translation>Il n’y a aucune fenêtre à fermer.</translation>
    </message>
    <message>
        <source>A window did not close</source>
        <translation>Une fenêtre ne s’est pas fermée</translation>
    </message>
    <message>
        <source>“%1” is still open.</source>
        <translation>La fenêtre « %1 » est toujours ouverte.</translation>
    </message>
    <message>
        <source>“%1” asks something before it closes.</source>
        <translation>La fenêtre « %1 » pose une question avant de se fermer.</translation>
    </message>
    <message>
        <source>A window cannot be asked to close</source>
        <translation>Impossible de demander à une fenêtre de se fermer</translation>
    </message>
    <message>
        <source>“%1” does not answer to being closed. Ending its program loses what it has not stored.</source>
        <translation>La fenêtre « %1 » ne réagit pas à la demande de fermeture. Si son programme est arrêté, ce qu’il n’a pas enregistré sera perdu.</translation>
    </message>
    <message>
        <source>End it</source>
        <translation>Forcer l’arrêt</translation>
    </message>
    <message>
        <source>The settings did not open</source>
        <translation>Les paramètres ne se sont pas ouverts</translation>
    </message>
    <message>
        <source>The settings cannot be opened: %1.</source>
        <translation>Impossible d’ouvrir les paramètres : %1.</translation>
    </message>
    <message>
        <source>the command lumaroo-settings is not installed</source>
        <translation>la commande lumaroo-settings n’est pas installée</translation>
    </message>
    <message>
        <source>%1 cannot be run</source>
        <translation>impossible de lancer %1</translation>
    </message>
    <message>
        <source>No picture was taken</source>
        <translation>Aucune capture n’a été faite</translation>
    </message>
    <message>
        <source>There is no window to take a picture of.</source>
        <translation>Il n’y a aucune fenêtre à capturer.</translation>
    </message>
    <message>
        <source>“%1” is minimised, so it has no picture.</source>
        <translation>La fenêtre « %1 » est réduite et ne peut donc pas être capturée.</translation>
    </message>
    <message>
        <source>“%1” is on another desktop, so it has no picture.</source>
        <translation>La fenêtre « %1 » se trouve sur un autre bureau et ne peut donc pas être capturée.</translation>
    </message>
    <message>
        <source>“%1” was closed before there was a picture of it.</source>
        <translation>La fenêtre « %1 » a été fermée avant d’avoir pu être capturée.</translation>
    </message>
    <message>
        <source>This X server gives no pictures of windows.</source>
        <translation>Ce serveur X ne fournit pas d’images des fenêtres.</translation>
    </message>
    <message>
        <source>The disk is full, so the picture was not stored.</source>
        <translation>Le disque est plein ; la capture n’a pas été enregistrée.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to, so the picture was not stored.</source>
        <translation>Impossible d’écrire dans le dossier %1 ; la capture n’a pas été enregistrée.</translation>
    </message>
    <message>
        <source>The picture was not stored: %1.</source>
        <translation>La capture n’a pas été enregistrée : %1.</translation>
    </message>
    <message>
        <source>what stores it did not end well</source>
        <translation>le programme chargé de l’enregistrer ne s’est pas terminé correctement</translation>
    </message>
    <message>
        <source>Picture of “%1” taken</source>
        <translation>Capture de « %1 » effectuée</translation>
    </message>
    <message>
        <source>It is stored as “%1” in %2.</source>
        <translation>Elle est enregistrée sous le nom « %1 » dans %2.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>No preview is shown</source>
        <translation>Aucun aperçu n’est affiché</translation>
    </message>
    <message>
        <source>Another program has the keyboard and the mouse, as one that locks the screen.</source>
        <translation>Un autre programme occupe le clavier et la souris, par exemple un programme qui verrouille l’écran.</translation>
    </message>
    <message>
        <source>There is no window to show.</source>
        <translation>Il n’y a aucune fenêtre à afficher.</translation>
    </message>
    <message>
        <source>A window may still be open</source>
        <translation>Une fenêtre est peut-être encore ouverte</translation>
    </message>
    <message>
        <source>The windows cannot be seen any more, so it is not known whether “%1” has closed.</source>
        <translation>Lumaroo ne voit plus les fenêtres ; impossible de savoir si la fenêtre « %1 » s’est fermée.</translation>
    </message>
    <message>
        <source>Untitled window</source>
        <translation>Sans titre</translation>
    </message>
</context>
</TS>
