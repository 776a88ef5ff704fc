<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>HelpViewer</name>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Réduire le texte</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Agrandir le texte</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Rechercher dans l’aide</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Pages trouvées</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>Pages trouvées : %1</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Aucune page ne contient tous ces mots.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>This help is not available</source>
        <translation>Cette aide n’est pas disponible</translation>
    </message>
    <message>
        <source>Its book is missing or damaged. Installing the program again brings it back.</source>
        <translation>Son livre d’aide est absent ou endommagé. Réinstallez le programme pour le retrouver.</translation>
    </message>
    <message>
        <source>The web page cannot be opened: %1</source>
        <translation>Impossible d’ouvrir la page web : %1</translation>
    </message>
</context>
</TS>
