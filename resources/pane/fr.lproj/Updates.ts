<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Updates</name>
    <message>
        <source>Lumaroo update</source>
        <translation>Mise à jour de Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for updates now</source>
        <translation>Lumaroo ne peut pas rechercher de mises à jour pour le moment</translation>
    </message>
    <message>
        <source>A part of it is missing, or was just replaced by another version. Close the settings, open them again and try once more. If that does not help, install Lumaroo again.</source>
        <translation>Il en manque une partie, ou elle vient d’être remplacée par une autre version. Fermez les paramètres, rouvrez-les et réessayez. Si cela ne suffit pas, réinstallez Lumaroo.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>&amp;Ignorer cette version</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>&amp;Install update</source>
        <translation>In&amp;staller</translation>
    </message>
    <message>
        <source>&amp;Install and restart</source>
        <translation>In&amp;staller et redémarrer</translation>
    </message>
    <message>
        <source>&amp;Open its web page</source>
        <translation>&amp;Ouvrir la page web</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Looking for a new version</source>
        <translation>Recherche d’une nouvelle version</translation>
    </message>
    <message>
        <source>Lumaroo is up to date</source>
        <translation>Lumaroo est à jour</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>La version %1 est la plus récente.</translation>
    </message>
    <message>
        <source>There is an important update: Lumaroo %1</source>
        <translation>Une mise à jour importante est disponible : Lumaroo %1</translation>
    </message>
    <message>
        <source>There is a new version: Lumaroo %1</source>
        <translation>Une nouvelle version est disponible : Lumaroo %1</translation>
    </message>
    <message>
        <source>It mends something that matters: install it soon.</source>
        <translation>Elle corrige un problème important : installez-la sans tarder.</translation>
    </message>
    <message>
        <source>It can be downloaded and installed now.</source>
        <translation>Elle peut être téléchargée et installée dès maintenant.</translation>
    </message>
    <message>
        <source>It is not installed from here. Its web page tells how to get it.</source>
        <translation>Elle ne s’installe pas d’ici. Sa page web indique comment l’obtenir.</translation>
    </message>
    <message>
        <source>Downloading Lumaroo %1</source>
        <translation>Téléchargement de Lumaroo %1</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>En attente du serveur</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Preparing Lumaroo %1</source>
        <translation>Préparation de Lumaroo %1</translation>
    </message>
    <message>
        <source>Checking that it is genuine, and unpacking it</source>
        <translation>Vérification de son authenticité, puis décompression</translation>
    </message>
    <message>
        <source>Lumaroo %1 is ready</source>
        <translation>Lumaroo %1 est prêt</translation>
    </message>
    <message>
        <source>The settings close for a moment and come back with the new version. If you choose Later, it is installed when you close the settings.</source>
        <translation>Les paramètres se ferment un instant et reviennent avec la nouvelle version. Si vous choisissez « Plus tard », elle sera installée à la fermeture des paramètres.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is about to be installed</source>
        <translation>Lumaroo %1 va être installé</translation>
    </message>
    <message>
        <source>It is installed as soon as the settings are closed. Answer what they still ask, or close them yourself.</source>
        <translation>L’installation commence dès que les paramètres sont fermés. Répondez à ce qu’ils demandent encore ou fermez-les vous-même.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is installed</source>
        <translation>Lumaroo %1 est installé</translation>
    </message>
    <message>
        <source>Close the settings and open them again to use it.</source>
        <translation>Fermez les paramètres et rouvrez-les pour l’utiliser.</translation>
    </message>
    <message>
        <source>The release notes cannot be shown now.</source>
        <translation>Les notes de version ne peuvent pas être affichées pour le moment.</translation>
    </message>
    <message>
        <source>New versions cannot be looked for now</source>
        <translation>Impossible de rechercher de nouvelles versions pour le moment</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached, or cannot be read. Check your connection and try again later.</source>
        <translation>La liste des versions est inaccessible ou illisible. Vérifiez votre connexion et réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update cannot be downloaded</source>
        <translation>Impossible de télécharger la mise à jour</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Check your connection and try again.</source>
        <translation>Votre version actuelle est inchangée. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>The update cannot be stored</source>
        <translation>Impossible d’enregistrer la mise à jour</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Most often the disk is full: make some room and try again.</source>
        <translation>Votre version actuelle est inchangée. Le plus souvent, le disque est plein : libérez de la place et réessayez.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself</source>
        <translation>Cette copie de Lumaroo ne peut pas se mettre à jour elle-même</translation>
    </message>
    <message>
        <source>Whoever built it gave it no key to tell genuine updates by. Get new versions from where you got this one.</source>
        <translation>Elle a été construite sans la clé qui permet de reconnaître les mises à jour authentiques. Les nouvelles versions s’obtiennent là où vous avez eu celle-ci.</translation>
    </message>
    <message>
        <source>The update is not genuine</source>
        <translation>La mise à jour n’est pas authentique</translation>
    </message>
    <message>
        <source>What came is not what the makers of Lumaroo have signed. It was removed, and the version that you have is unchanged. Try again later, best through another network.</source>
        <translation>Ce qui a été reçu n’est pas signé par les développeurs de Lumaroo. Le fichier a été supprimé et votre version actuelle est inchangée. Réessayez plus tard, de préférence depuis un autre réseau.</translation>
    </message>
    <message>
        <source>The update is damaged</source>
        <translation>La mise à jour est endommagée</translation>
    </message>
    <message>
        <source>What came cannot be unpacked. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Ce qui a été reçu ne peut pas être décompressé. Le fichier a été supprimé et votre version actuelle est inchangée. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update is not what was announced</source>
        <translation>La mise à jour n’est pas celle qui était annoncée</translation>
    </message>
    <message>
        <source>It does not hold the version that the list of versions tells of. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Elle ne contient pas la version qu’indique la liste des versions. Elle a été supprimée et votre version actuelle est inchangée. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Lumaroo is updated along with your system</source>
        <translation>Lumaroo est mis à jour avec votre système</translation>
    </message>
    <message>
        <source>It was installed for everybody who uses this computer. Look for new versions where your system gets its programs and updates.</source>
        <translation>Il a été installé pour tous les utilisateurs de cet ordinateur. Les nouvelles versions se trouvent là où votre système obtient ses programmes et ses mises à jour.</translation>
    </message>
    <message>
        <source>Updates are not installed as root</source>
        <translation>Les mises à jour ne s’installent pas en tant que root</translation>
    </message>
    <message>
        <source>Open the settings under your own name and try again.</source>
        <translation>Ouvrez les paramètres sous votre propre nom et réessayez.</translation>
    </message>
    <message>
        <source>Lumaroo is being updated already</source>
        <translation>Lumaroo est déjà en cours de mise à jour</translation>
    </message>
    <message>
        <source>Another program is about to do it. Wait a moment and try again.</source>
        <translation>Un autre programme s’en charge. Patientez un instant et réessayez.</translation>
    </message>
    <message>
        <source>The update cannot take the old version's place</source>
        <translation>La mise à jour ne peut pas remplacer l’ancienne version</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Close the settings, open them again and try once more.</source>
        <translation>Votre version actuelle est inchangée. Fermez les paramètres, rouvrez-les et réessayez.</translation>
    </message>
    <message>
        <source>The update was not installed</source>
        <translation>La mise à jour n’a pas été installée</translation>
    </message>
    <message>
        <source>The version that you have is unchanged.</source>
        <translation>Votre version actuelle est inchangée.</translation>
    </message>
    <message>
        <source>⚠ Version %1 was not installed.</source>
        <translation>⚠ La version %1 n’a pas été installée.</translation>
    </message>
    <message>
        <source>Most often the disk is full: make some room. It is tried again when you close the settings and when you open them.</source>
        <translation>Le plus souvent, le disque est plein : libérez de la place. Une nouvelle tentative aura lieu à la fermeture et à l’ouverture des paramètres.</translation>
    </message>
    <message>
        <source>Another program was updating Lumaroo just then. It is tried again when you close the settings and when you open them.</source>
        <translation>Un autre programme était en train de mettre Lumaroo à jour. Une nouvelle tentative aura lieu à la fermeture et à l’ouverture des paramètres.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer. New versions come with the updates of the system.</source>
        <translation>Lumaroo a été installé pour tous les utilisateurs de cet ordinateur. Les nouvelles versions arrivent avec les mises à jour du système.</translation>
    </message>
    <message>
        <source>Updates are not installed as root: open the settings under your own name.</source>
        <translation>Les mises à jour ne s’installent pas en tant que root : ouvrez les paramètres sous votre propre nom.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo has no key to tell genuine updates by, so that the update was removed. Get new versions from where you got this one.</source>
        <translation>Cette copie de Lumaroo n’a pas la clé qui permet de reconnaître les mises à jour authentiques ; la mise à jour a donc été supprimée. Les nouvelles versions s’obtiennent là où vous avez eu celle-ci.</translation>
    </message>
    <message>
        <source>It was not what the makers of Lumaroo have signed, and was removed. Check again, best through another network.</source>
        <translation>Ce qui a été reçu n’était pas signé par les développeurs de Lumaroo et a été supprimé. Relancez la recherche, de préférence depuis un autre réseau.</translation>
    </message>
    <message>
        <source>What had been downloaded was damaged or gone. Check again to have it downloaded once more.</source>
        <translation>Ce qui avait été téléchargé était endommagé ou a disparu. Relancez la recherche pour le télécharger de nouveau.</translation>
    </message>
    <message>
        <source>It did not hold the version that was announced, and was removed. Check again later.</source>
        <translation>Elle ne contenait pas la version annoncée et a été supprimée. Relancez la recherche plus tard.</translation>
    </message>
    <message>
        <source>It could not take the old version's place. It is tried again when you close the settings and when you open them.</source>
        <translation>Elle n’a pas pu prendre la place de l’ancienne version. Une nouvelle tentative aura lieu à la fermeture et à l’ouverture des paramètres.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself. Get new versions from where you got this one.</source>
        <translation>Cette copie de Lumaroo ne peut pas se mettre à jour elle-même. Les nouvelles versions s’obtiennent là où vous avez eu celle-ci.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer: updates come with the system's updates.</source>
        <translation>Lumaroo a été installé pour tous les utilisateurs de cet ordinateur : les nouvelles versions arrivent avec les mises à jour du système.</translation>
    </message>
    <message>
        <source>Nothing is looked for as root: open the settings under your own name.</source>
        <translation>Aucune recherche n’a lieu en tant que root : ouvrez les paramètres sous votre propre nom.</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for new versions.</source>
        <translation>Lumaroo ne peut pas rechercher de nouvelles versions.</translation>
    </message>
    <message>
        <source>It is not installed from here. Get it from where you got the version that you have.</source>
        <translation>Elle ne s’installe pas d’ici. Elle s’obtient là où vous avez eu votre version actuelle.</translation>
    </message>
    <message>
        <source>The web page cannot be opened from here. Its address is: %1</source>
        <translation>La page web ne peut pas être ouverte d’ici. Son adresse : %1</translation>
    </message>
</context>
</TS>
