<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Shift+Tab</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spacja</translation>
    </message>
    <message>
        <source>%1, %2 % opaque</source>
        <translation>%1, krycie %2 %</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Do not show this message again</source>
        <translation>&amp;Nie pokazuj ponownie tego komunikatu</translation>
    </message>
    <message>
        <source>The server does not answer. Please try again later.</source>
        <translation>Serwer nie odpowiada. Proszę spróbować ponownie później.</translation>
    </message>
    <message>
        <source>The address of the server cannot be used.</source>
        <translation>Nie można użyć adresu serwera.</translation>
    </message>
    <message>
        <source>The server cannot be found. Please make sure you are connected to the Internet.</source>
        <translation>Nie można znaleźć serwera. Proszę sprawdzić połączenie z Internetem.</translation>
    </message>
    <message>
        <source>The server takes no connection. Please try again later.</source>
        <translation>Serwer nie przyjmuje połączeń. Proszę spróbować ponownie później.</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Please try again.</source>
        <translation>Utracono połączenie z serwerem. Proszę spróbować ponownie.</translation>
    </message>
    <message>
        <source>The server leads from one address to the next without end. Please try again later.</source>
        <translation>Serwer bez końca przekierowuje z jednego adresu na drugi. Proszę spróbować ponownie później.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made, so nothing was sent.</source>
        <translation>Nie można było nawiązać bezpiecznego połączenia z serwerem, więc nic nie zostało wysłane.</translation>
    </message>
    <message>
        <source>The network does not work as it should. Please try again later.</source>
        <translation>Sieć nie działa prawidłowo. Proszę spróbować ponownie później.</translation>
    </message>
</context>
</TS>
