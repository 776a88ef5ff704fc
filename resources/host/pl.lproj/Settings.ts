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
</context>
</TS>
