<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Przeszukaj ustawienia</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Wszystkie ustawienia</translation>
    </message>
    <message>
        <source>&amp;All settings</source>
        <translation>Wszystkie ust&amp;awienia</translation>
    </message>
    <message>
        <source>No settings are installed.</source>
        <translation>Nie zainstalowano żadnych ustawień.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Nic nie pasuje do „%1”.</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>Nie można wyświetlić „%1”</translation>
    </message>
    <message>
        <source>No settings of this name are installed. Install them, then try again.</source>
        <translation>Nie zainstalowano ustawień o tej nazwie. Proszę je zainstalować i spróbować ponownie.</translation>
    </message>
    <message>
        <source>It is not there any more. Install it again.</source>
        <translation>Tego panelu już nie ma. Proszę zainstalować go ponownie.</translation>
    </message>
    <message>
        <source>It is damaged. Install it again.</source>
        <translation>Panel jest uszkodzony. Proszę zainstalować go ponownie.</translation>
    </message>
    <message>
        <source>It was made for another kind of computer. Install the version for this one.</source>
        <translation>Panel jest przeznaczony dla innego rodzaju komputera. Proszę zainstalować wersję dla tego komputera.</translation>
    </message>
    <message>
        <source>It needs a newer version of this application. Update Lumaroo.</source>
        <translation>Panel wymaga nowszej wersji tego programu. Proszę zaktualizować Lumaroo.</translation>
    </message>
    <message>
        <source>It contains no settings. Install it again.</source>
        <translation>Panel nie zawiera żadnych ustawień. Proszę zainstalować go ponownie.</translation>
    </message>
    <message>
        <source>It could not start. The system log may say why.</source>
        <translation>Nie można uruchomić panelu. Przyczyna może być w dzienniku systemowym.</translation>
    </message>
    <message>
        <source>Its window content could not be loaded. Install it again.</source>
        <translation>Nie można wczytać zawartości okna. Proszę zainstalować panel ponownie.</translation>
    </message>
    <message>
        <source>Your changes are not saved</source>
        <translation>Zmiany nie są zapisane</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Nie można odczytać ustawień</translation>
    </message>
    <message>
        <source>Your changes may not last</source>
        <translation>Zmiany mogą zostać utracone</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it, then try again.</source>
        <translation>Dysk jest pełny. Proszę zwolnić na nim miejsce i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” can only be read at the moment.</source>
        <translation>Dysk z katalogiem „%1” jest obecnie tylko do odczytu.</translation>
    </message>
    <message>
        <source>You lack the permission to read the file “%1”.</source>
        <translation>Brak uprawnień do odczytu pliku „%1”.</translation>
    </message>
    <message>
        <source>You lack the permission to write in the folder “%1”.</source>
        <translation>Brak uprawnień do zapisu w katalogu „%1”.</translation>
    </message>
    <message>
        <source>Another program does not let go of the file “%1”.</source>
        <translation>Inny program nie zwalnia pliku „%1”.</translation>
    </message>
    <message>
        <source>The file “%1” would become too large.</source>
        <translation>Plik „%1” stałby się zbyt duży.</translation>
    </message>
    <message>
        <source>The file “%1” makes trouble (%2).</source>
        <translation>Wystąpił problem z plikiem „%1” (%2).</translation>
    </message>
    <message>
        <source>What you see here is not what is stored.</source>
        <translation>To, co tu widać, nie jest tym, co jest zapisane.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>A settings file was damaged</source>
        <translation>Plik ustawień był uszkodzony</translation>
    </message>
    <message>
        <source>It is kept as “%1”. The settings in it began anew with their defaults.</source>
        <translation>Zachowano go jako „%1”. Zawarte w nim ustawienia wróciły do wartości domyślnych.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ukryj</translation>
    </message>
</context>
</TS>
