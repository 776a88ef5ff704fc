<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Notices</name>
    <message>
        <source>Windows cannot be selected here</source>
        <translation>Nie można tutaj wybierać okien</translation>
    </message>
    <message>
        <source>Another program keeps the keyboard</source>
        <translation>Inny program zajmuje klawiaturę</translation>
    </message>
    <message>
        <source>Until it lets go, Lumaroo's keys work with the modifier keys held.</source>
        <translation>Dopóki jej nie zwolni, klawisze Lumaroo działają z przytrzymanymi klawiszami modyfikującymi.</translation>
    </message>
    <message>
        <source>A window did not come to the front</source>
        <translation>Okno nie zostało przeniesione na wierzch</translation>
    </message>
    <message>
        <source>The window manager did not turn to it.</source>
        <translation>Menedżer okien nie przeszedł do niego.</translation>
    </message>
    <message>
        <source>The window manager did not turn to “%1”.</source>
        <translation>Menedżer okien nie przeszedł do okna „%1”.</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Inny program zajmuje klawisze Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo does not get %1.</source>
        <translation>Lumaroo nie otrzymuje klawiszy: %1.</translation>
    </message>
    <message>
        <source>With %1 held instead, all movement keys are free.</source>
        <translation>Z klawiszami %1 wszystkie klawisze ruchu są wolne.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Użyj %1</translation>
    </message>
    <message>
        <source>The tutorial cannot be started</source>
        <translation>Nie można uruchomić samouczka</translation>
    </message>
    <message>
        <source>A part of Lumaroo is missing. Install it again.</source>
        <translation>Brakuje części Lumaroo. Proszę zainstalować je ponownie.</translation>
    </message>
    <message>
        <source>Hold %1 and press %2</source>
        <translation>Proszę przytrzymać %1 i nacisnąć %2</translation>
    </message>
    <message>
        <source>Press %1 twice, then press %2</source>
        <translation>Proszę nacisnąć dwukrotnie %1, a potem %2</translation>
    </message>
    <message>
        <source>Lumaroo is on</source>
        <translation>Lumaroo jest włączone</translation>
    </message>
    <message>
        <source>Its keys do not work yet. The settings tell why.</source>
        <translation>Jego klawisze jeszcze nie działają. Przyczynę podają ustawienia.</translation>
    </message>
    <message>
        <source>Show me</source>
        <translation>Pokaż samouczek</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>There is no X server.</source>
        <translation>Nie ma serwera X.</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <translation>Serwera X już nie ma.</translation>
    </message>
    <message>
        <source>A Wayland session does not let programs see other programs' windows. Lumaroo works in an X11 session.</source>
        <translation>Sesja Wayland nie pozwala programom widzieć okien innych programów. Lumaroo działa w sesji X11.</translation>
    </message>
    <message>
        <source>No window manager runs that tells which windows there are.</source>
        <translation>Nie działa żaden menedżer okien, który podawałby, jakie okna są otwarte.</translation>
    </message>
    <message>
        <source>The window manager does not tell which windows there are.</source>
        <translation>Menedżer okien nie podaje, jakie okna są otwarte.</translation>
    </message>
    <message>
        <source>“%1” has been closed.</source>
        <translation>Okno „%1” zostało zamknięte.</translation>
    </message>
    <message>
        <source>It has been closed.</source>
        <translation>Zostało zamknięte.</translation>
    </message>
    <message>
        <source>The modifier keys stay as they are</source>
        <translation>Klawisze modyfikujące pozostają bez zmian</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Nie można zapisać wyboru. Być może dysk jest pełny.</translation>
    </message>
</context>
</TS>
