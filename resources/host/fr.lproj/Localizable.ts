<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Maj+Tab</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Ret. arr.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>%1, %2 % opaque</source>
        <translation>%1, opaque à %2 %</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Do not show this message again</source>
        <translation>&amp;Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>The server does not answer. Please try again later.</source>
        <translation>Le serveur ne répond pas. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The address of the server cannot be used.</source>
        <translation>L’adresse du serveur n’est pas utilisable.</translation>
    </message>
    <message>
        <source>The server cannot be found. Please make sure you are connected to the Internet.</source>
        <translation>Serveur introuvable. Vérifiez que vous êtes connecté à Internet.</translation>
    </message>
    <message>
        <source>The server takes no connection. Please try again later.</source>
        <translation>Le serveur n’accepte pas la connexion. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Please try again.</source>
        <translation>La connexion au serveur a été interrompue. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The server leads from one address to the next without end. Please try again later.</source>
        <translation>Le serveur redirige sans fin d’une adresse à l’autre. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made, so nothing was sent.</source>
        <translation>Aucune connexion sécurisée au serveur n’a pu être établie ; rien n’a donc été envoyé.</translation>
    </message>
    <message>
        <source>The network does not work as it should. Please try again later.</source>
        <translation>Le réseau ne fonctionne pas normalement. Veuillez réessayer plus tard.</translation>
    </message>
</context>
</TS>
