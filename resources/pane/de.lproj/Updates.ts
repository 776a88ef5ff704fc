<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Updates</name>
    <message>
        <source>Lumaroo update</source>
        <translation>Lumaroo-Aktualisierung</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for updates now</source>
        <translation>Lumaroo kann jetzt nicht nach neuen Versionen suchen</translation>
    </message>
    <message>
        <source>A part of it is missing, or was just replaced by another version. Close the settings, open them again and try once more. If that does not help, install Lumaroo again.</source>
        <translation>Ein Teil fehlt oder wurde gerade durch eine andere Version ersetzt. Schließen Sie die Einstellungen, öffnen Sie sie wieder und versuchen Sie es noch einmal. Hilft das nicht, installieren Sie Lumaroo neu.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>Diese Version ü&amp;berspringen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>&amp;Install update</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>&amp;Install and restart</source>
        <translation>&amp;Installieren und neu starten</translation>
    </message>
    <message>
        <source>&amp;Open its web page</source>
        <translation>&amp;Webseite öffnen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Looking for a new version</source>
        <translation>Es wird nach einer neuen Version gesucht</translation>
    </message>
    <message>
        <source>Lumaroo is up to date</source>
        <translation>Lumaroo ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>Version %1 ist die neueste.</translation>
    </message>
    <message>
        <source>There is an important update: Lumaroo %1</source>
        <translation>Es gibt eine wichtige Aktualisierung: Lumaroo %1</translation>
    </message>
    <message>
        <source>There is a new version: Lumaroo %1</source>
        <translation>Es gibt eine neue Version: Lumaroo %1</translation>
    </message>
    <message>
        <source>It mends something that matters: install it soon.</source>
        <translation>Sie behebt etwas Wichtiges: Installieren Sie sie bald.</translation>
    </message>
    <message>
        <source>It can be downloaded and installed now.</source>
        <translation>Sie kann jetzt geladen und installiert werden.</translation>
    </message>
    <message>
        <source>It is not installed from here. Its web page tells how to get it.</source>
        <translation>Sie wird nicht von hier aus installiert. Auf ihrer Webseite steht, woher Sie sie bekommen.</translation>
    </message>
    <message>
        <source>Downloading Lumaroo %1</source>
        <translation>Lumaroo %1 wird geladen</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>Warten auf den Server</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Preparing Lumaroo %1</source>
        <translation>Lumaroo %1 wird vorbereitet</translation>
    </message>
    <message>
        <source>Checking that it is genuine, and unpacking it</source>
        <translation>Die Echtheit wird geprüft, danach wird ausgepackt</translation>
    </message>
    <message>
        <source>Lumaroo %1 is ready</source>
        <translation>Lumaroo %1 ist bereit</translation>
    </message>
    <message>
        <source>The settings close for a moment and come back with the new version. If you choose Later, it is installed when you close the settings.</source>
        <translation>Die Einstellungen schließen sich kurz und kommen mit der neuen Version wieder. Wählen Sie „Später“, wird sie installiert, wenn Sie die Einstellungen schließen.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is about to be installed</source>
        <translation>Lumaroo %1 wird gleich installiert</translation>
    </message>
    <message>
        <source>It is installed as soon as the settings are closed. Answer what they still ask, or close them yourself.</source>
        <translation>Sie wird installiert, sobald die Einstellungen geschlossen sind. Beantworten Sie, was sie noch fragen, oder schließen Sie sie selbst.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is installed</source>
        <translation>Lumaroo %1 ist installiert</translation>
    </message>
    <message>
        <source>Close the settings and open them again to use it.</source>
        <translation>Schließen Sie die Einstellungen und öffnen Sie sie wieder, um sie zu verwenden.</translation>
    </message>
    <message>
        <source>The release notes cannot be shown now.</source>
        <translation>Die Versionshinweise können jetzt nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>New versions cannot be looked for now</source>
        <translation>Nach neuen Versionen kann jetzt nicht gesucht werden</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached, or cannot be read. Check your connection and try again later.</source>
        <translation>Die Liste der Versionen ist nicht erreichbar oder nicht lesbar. Prüfen Sie Ihre Internetverbindung und versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update cannot be downloaded</source>
        <translation>Die Aktualisierung kann nicht geladen werden</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Check your connection and try again.</source>
        <translation>Ihre jetzige Version ist unverändert. Prüfen Sie Ihre Internetverbindung und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update cannot be stored</source>
        <translation>Die Aktualisierung kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Most often the disk is full: make some room and try again.</source>
        <translation>Ihre jetzige Version ist unverändert. Meist ist der Datenträger voll: Schaffen Sie Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself</source>
        <translation>Dieses Lumaroo kann sich nicht selbst aktualisieren</translation>
    </message>
    <message>
        <source>Whoever built it gave it no key to tell genuine updates by. Get new versions from where you got this one.</source>
        <translation>Es wurde ohne den Schlüssel gebaut, an dem echte Aktualisierungen zu erkennen sind. Neue Versionen bekommen Sie dort, woher Sie diese haben.</translation>
    </message>
    <message>
        <source>The update is not genuine</source>
        <translation>Die Aktualisierung ist nicht echt</translation>
    </message>
    <message>
        <source>What came is not what the makers of Lumaroo have signed. It was removed, and the version that you have is unchanged. Try again later, best through another network.</source>
        <translation>Was geladen wurde, haben nicht die Entwickler von Lumaroo signiert. Es wurde entfernt, und Ihre jetzige Version ist unverändert. Versuchen Sie es später noch einmal, am besten über ein anderes Netz.</translation>
    </message>
    <message>
        <source>The update is damaged</source>
        <translation>Die Aktualisierung ist beschädigt</translation>
    </message>
    <message>
        <source>What came cannot be unpacked. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Was geladen wurde, lässt sich nicht auspacken. Es wurde entfernt, und Ihre jetzige Version ist unverändert. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update is not what was announced</source>
        <translation>Die Aktualisierung ist nicht die angekündigte</translation>
    </message>
    <message>
        <source>It does not hold the version that the list of versions tells of. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Sie enthält nicht die Version, die in der Liste der Versionen steht. Sie wurde entfernt, und Ihre jetzige Version ist unverändert. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Lumaroo is updated along with your system</source>
        <translation>Lumaroo wird zusammen mit dem System aktualisiert</translation>
    </message>
    <message>
        <source>It was installed for everybody who uses this computer. Look for new versions where your system gets its programs and updates.</source>
        <translation>Es wurde für alle installiert, die diesen Rechner verwenden. Neue Versionen finden Sie dort, woher Ihr System Programme und Aktualisierungen bekommt.</translation>
    </message>
    <message>
        <source>Updates are not installed as root</source>
        <translation>Als root wird nichts aktualisiert</translation>
    </message>
    <message>
        <source>Open the settings under your own name and try again.</source>
        <translation>Öffnen Sie die Einstellungen unter Ihrem eigenen Namen und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Lumaroo is being updated already</source>
        <translation>Lumaroo wird schon aktualisiert</translation>
    </message>
    <message>
        <source>Another program is about to do it. Wait a moment and try again.</source>
        <translation>Ein anderes Programm ist gerade dabei. Warten Sie einen Augenblick und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update cannot take the old version's place</source>
        <translation>Die Aktualisierung kann die alte Version nicht ablösen</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Close the settings, open them again and try once more.</source>
        <translation>Ihre jetzige Version ist unverändert. Schließen Sie die Einstellungen, öffnen Sie sie wieder und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update was not installed</source>
        <translation>Die Aktualisierung wurde nicht installiert</translation>
    </message>
    <message>
        <source>The version that you have is unchanged.</source>
        <translation>Ihre jetzige Version ist unverändert.</translation>
    </message>
    <message>
        <source>⚠ Version %1 was not installed.</source>
        <translation>⚠ Version %1 wurde nicht installiert.</translation>
    </message>
    <message>
        <source>Most often the disk is full: make some room. It is tried again when you close the settings and when you open them.</source>
        <translation>Meist ist der Datenträger voll: Schaffen Sie Platz. Es wird noch einmal versucht, wenn Sie die Einstellungen schließen und wenn Sie sie öffnen.</translation>
    </message>
    <message>
        <source>Another program was updating Lumaroo just then. It is tried again when you close the settings and when you open them.</source>
        <translation>Ein anderes Programm war gerade dabei, Lumaroo zu aktualisieren. Es wird noch einmal versucht, wenn Sie die Einstellungen schließen und wenn Sie sie öffnen.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer. New versions come with the updates of the system.</source>
        <translation>Lumaroo wurde für alle installiert, die diesen Computer benutzen. Neue Versionen kommen mit den Aktualisierungen des Systems.</translation>
    </message>
    <message>
        <source>Updates are not installed as root: open the settings under your own name.</source>
        <translation>Als root wird nichts aktualisiert: Öffnen Sie die Einstellungen unter Ihrem eigenen Namen.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo has no key to tell genuine updates by, so that the update was removed. Get new versions from where you got this one.</source>
        <translation>Diese Ausgabe von Lumaroo hat keinen Schlüssel, um echte Aktualisierungen zu erkennen; deshalb wurde diese entfernt. Beziehen Sie neue Versionen von dort, woher Sie diese haben.</translation>
    </message>
    <message>
        <source>It was not what the makers of Lumaroo have signed, and was removed. Check again, best through another network.</source>
        <translation>Was geladen wurde, haben nicht die Entwickler von Lumaroo signiert; es wurde entfernt. Suchen Sie noch einmal, am besten über ein anderes Netz.</translation>
    </message>
    <message>
        <source>What had been downloaded was damaged or gone. Check again to have it downloaded once more.</source>
        <translation>Was geladen worden war, war beschädigt oder nicht mehr da. Suchen Sie noch einmal, um es erneut zu laden.</translation>
    </message>
    <message>
        <source>It did not hold the version that was announced, and was removed. Check again later.</source>
        <translation>Sie enthielt nicht die angekündigte Version und wurde entfernt. Suchen Sie später noch einmal.</translation>
    </message>
    <message>
        <source>It could not take the old version's place. It is tried again when you close the settings and when you open them.</source>
        <translation>Sie konnte nicht an die Stelle der alten Version treten. Es wird noch einmal versucht, wenn Sie die Einstellungen schließen und wenn Sie sie öffnen.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself. Get new versions from where you got this one.</source>
        <translation>Diese Ausgabe von Lumaroo kann sich nicht selbst aktualisieren. Beziehen Sie neue Versionen von dort, woher Sie diese haben.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer: updates come with the system's updates.</source>
        <translation>Lumaroo wurde für alle installiert, die diesen Computer benutzen: Neue Versionen kommen mit den Aktualisierungen des Systems.</translation>
    </message>
    <message>
        <source>Nothing is looked for as root: open the settings under your own name.</source>
        <translation>Als root wird nichts gesucht: Öffnen Sie die Einstellungen unter Ihrem eigenen Namen.</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for new versions.</source>
        <translation>Lumaroo kann nicht nach neuen Versionen suchen.</translation>
    </message>
    <message>
        <source>It is not installed from here. Get it from where you got the version that you have.</source>
        <translation>Sie wird nicht von hier aus installiert. Beziehen Sie sie von dort, woher Sie Ihre jetzige Version haben.</translation>
    </message>
    <message>
        <source>The web page cannot be opened from here. Its address is: %1</source>
        <translation>Die Webseite kann von hier aus nicht geöffnet werden. Ihre Adresse ist: %1</translation>
    </message>
</context>
</TS>
