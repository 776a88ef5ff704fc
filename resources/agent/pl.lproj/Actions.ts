<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>No window was closed</source>
        <translation>Nie zamknięto żadnego okna</translation>
    </message>
    <message>
        <source>There is no window to close.</source>
        <translation>Nie ma okna do zamknięcia.</translation>
    </message>
    <message>
        <source>A window did not close</source>
        <translation>Okno nie zostało zamknięte</translation>
    </message>
    <message>
        <source>“%1” is still open.</source>
        <translation>Okno „%1” jest nadal otwarte.</translation>
    </message>
    <message>
        <source>“%1” asks something before it closes.</source>
        <translation>Okno „%1” o coś pyta przed zamknięciem.</translation>
    </message>
    <message>
        <source>A window cannot be asked to close</source>
        <translation>Nie można poprosić okna o zamknięcie</translation>
    </message>
    <message>
        <source>“%1” does not answer to being closed. Ending its program loses what it has not stored.</source>
        <translation>Okno „%1” nie reaguje na zamykanie. Zakończenie jego programu spowoduje utratę tego, czego nie zapisał.</translation>
    </message>
    <message>
        <source>End it</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>The settings did not open</source>
        <translation>Ustawienia nie zostały otwarte</translation>
    </message>
    <message>
        <source>The settings cannot be opened: %1.</source>
        <translation>Nie można otworzyć ustawień: %1.</translation>
    </message>
    <message>
        <source>the command lumaroo-settings is not installed</source>
        <translation>polecenie lumaroo-settings nie jest zainstalowane</translation>
    </message>
    <message>
        <source>%1 cannot be run</source>
        <translation>nie można uruchomić %1</translation>
    </message>
    <message>
        <source>No picture was taken</source>
        <translation>Nie zrobiono zrzutu</translation>
    </message>
    <message>
        <source>There is no window to take a picture of.</source>
        <translation>Nie ma okna, którego zrzut można by zrobić.</translation>
    </message>
    <message>
        <source>“%1” is minimised, so it has no picture.</source>
        <translation>Okno „%1” jest zminimalizowane i dlatego nie ma obrazu.</translation>
    </message>
    <message>
        <source>“%1” is on another desktop, so it has no picture.</source>
        <translation>Okno „%1” jest w innym obszarze roboczym i dlatego nie ma obrazu.</translation>
    </message>
    <message>
        <source>“%1” was closed before there was a picture of it.</source>
        <translation>Okno „%1” zostało zamknięte, zanim powstał jego obraz.</translation>
    </message>
    <message>
        <source>This X server gives no pictures of windows.</source>
        <translation>Ten serwer X nie udostępnia obrazów okien.</translation>
    </message>
    <message>
        <source>The disk is full, so the picture was not stored.</source>
        <translation>Dysk jest pełny, więc obraz nie został zapisany.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to, so the picture was not stored.</source>
        <translation>Nie można zapisywać w katalogu %1, więc obraz nie został zapisany.</translation>
    </message>
    <message>
        <source>The picture was not stored: %1.</source>
        <translation>Obraz nie został zapisany: %1.</translation>
    </message>
    <message>
        <source>what stores it did not end well</source>
        <translation>program zapisujący nie zakończył się poprawnie</translation>
    </message>
    <message>
        <source>Picture of “%1” taken</source>
        <translation>Zrobiono zrzut okna „%1”</translation>
    </message>
    <message>
        <source>It is stored as “%1” in %2.</source>
        <translation>Zapisano go jako „%1” w katalogu %2.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>No preview is shown</source>
        <translation>Nie wyświetlono podglądu</translation>
    </message>
    <message>
        <source>Another program has the keyboard and the mouse, as one that locks the screen.</source>
        <translation>Inny program zajmuje klawiaturę i mysz, na przykład taki, który blokuje ekran.</translation>
    </message>
    <message>
        <source>There is no window to show.</source>
        <translation>Nie ma okna do pokazania.</translation>
    </message>
    <message>
        <source>A window may still be open</source>
        <translation>Okno może być nadal otwarte</translation>
    </message>
    <message>
        <source>The windows cannot be seen any more, so it is not known whether “%1” has closed.</source>
        <translation>Lumaroo nie widzi już okien, więc nie wiadomo, czy okno „%1” zostało zamknięte.</translation>
    </message>
    <message>
        <source>Untitled window</source>
        <translation>Bez tytułu</translation>
    </message>
</context>
</TS>
