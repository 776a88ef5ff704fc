<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>The system’s updates bring new versions of this copy.</source>
        <translation>Nowe wersje tej kopii pojawiają się wraz z aktualizacjami systemu.</translation>
    </message>
    <message>
        <source>Press:</source>
        <translation>Proszę nacisnąć:</translation>
    </message>
    <message>
        <source>Hold %1 and press:</source>
        <translation>Proszę przytrzymać %1 i nacisnąć:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 na sekundę</translation>
    </message>
    <message>
        <source>Lumaroo Enabled</source>
        <translation>Lumaroo jest włączone</translation>
    </message>
    <message>
        <source>Lumaroo Disabled</source>
        <translation>Lumaroo jest wyłączone</translation>
    </message>
    <message>
        <source>Version %@ (%@)</source>
        <translation>Wersja %@ (%@)</translation>
    </message>
    <message>
        <source>Quit while key conflicts exist?</source>
        <translation>Zakończyć mimo konfliktów klawiszy?</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Quitting may cause unpredictable Lumaroo behavior.</source>
        <translation>Zaznaczone klawisze mają przypisanych kilka działań. Po zakończeniu Lumaroo może zachowywać się w sposób nieprzewidywalny.</translation>
    </message>
    <message>
        <source>This key cannot be used. Press a letter, a digit, a sign, an arrow or a key of the number pad.</source>
        <translation>Tego klawisza nie można tu użyć. Proszę nacisnąć literę, cyfrę, znak, strzałkę lub klawisz klawiatury numerycznej.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>%@ is already in use.</source>
        <translation>%@ jest już w użyciu.</translation>
    </message>
    <message>
        <source>Lumaroo already has an action associated with %@. Please choose another key.</source>
        <translation>Lumaroo ma już działanie przypisane do %@. Proszę wybrać inny klawisz.</translation>
    </message>
    <message>
        <source>There are conflicts with the marked keys.</source>
        <translation>Zaznaczone klawisze są w konflikcie.</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.</source>
        <translation>Zaznaczone klawisze mają przypisanych kilka działań. Proszę je zmienić, aby usunąć konflikty.</translation>
    </message>
    <message>
        <source>Please change the marked HotKeys in the programs using them before setting them in Lumaroo.</source>
        <translation>Proszę zmienić zaznaczone klawisze w programach, które ich używają, przed ustawieniem ich w Lumaroo.</translation>
    </message>
    <message>
        <source>At least one modifier must be set</source>
        <translation>Musi być wybrany co najmniej jeden klawisz modyfikujący</translation>
    </message>
    <message>
        <source>At least one modifier must be set to activate Lumaroo. Please select another modifier before unselecting this one.</source>
        <translation>Lumaroo można aktywować tylko z co najmniej jednym klawiszem modyfikującym. Przed odznaczeniem tego klawisza proszę wybrać inny.</translation>
    </message>
    <message>
        <source>The web page is unavailable</source>
        <translation>Strona WWW jest niedostępna</translation>
    </message>
    <message>
        <source>Please make sure you are connected to the Internet and try again later.</source>
        <translation>Proszę sprawdzić połączenie z Internetem i spróbować ponownie później.</translation>
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
        <source>Lumaroo is off for now. The menu of its icon in the panel turns it on again.</source>
        <translation>Lumaroo jest na razie wyłączone. Menu jego ikony na panelu włącza je z powrotem.</translation>
    </message>
    <message>
        <source>Turn &amp;Lumaroo on with this switch.</source>
        <translation>Tym przełącznikiem włącza się &amp;Lumaroo.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo działa w tle. Pozostaje włączone po zamknięciu tego okna.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this switch.</source>
        <translation>&amp;Lumaroo niespodziewanie zakończyło pracę. Ten przełącznik włącza je ponownie.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo could not be started. Install it again, then turn it on with this switch.</source>
        <translation>Nie można uruchomić &amp;Lumaroo. Proszę zainstalować je ponownie i włączyć tym przełącznikiem.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo was removed from this computer. Install it again to turn it on.</source>
        <translation>&amp;Lumaroo usunięto z tego komputera. Aby je włączyć, należy zainstalować je ponownie.</translation>
    </message>
    <message>
        <source>All keys work.</source>
        <translation>Wszystkie klawisze działają.</translation>
    </message>
    <message>
        <source>Some keys do not work, since other programs use them. The page “Keys” names them.</source>
        <translation>Niektóre klawisze nie działają, ponieważ używają ich inne programy. Wymienia je strona „Klawisze”.</translation>
    </message>
    <message>
        <source>Some keys do not work. The page “Keys” shows all of them.</source>
        <translation>Niektóre klawisze nie działają. Wszystkie pokazuje strona „Klawisze”.</translation>
    </message>
    <message>
        <source>No key works, since no modifier keys are chosen.</source>
        <translation>Żaden klawisz nie działa, ponieważ nie wybrano klawiszy modyfikujących.</translation>
    </message>
    <message>
        <source>Lumaroo takes no key from other programs.</source>
        <translation>Lumaroo nie odbiera klawiszy innym programom.</translation>
    </message>
    <message>
        <source>This session has no hot keys for programs. Lumaroo needs an X11 session.</source>
        <translation>Ta sesja nie udostępnia programom klawiszy skrótu. Lumaroo wymaga sesji X11.</translation>
    </message>
    <message>
        <source>This session runs on Wayland. There no program may take keys or see the windows of others, so Lumaroo’s keys do nothing here. Your settings are kept. To use Lumaroo, log out and choose “X11” or “Xorg” on the login screen.</source>
        <translation>Ta sesja korzysta z Waylanda. Żaden program nie może w niej przejmować klawiszy ani widzieć okien innych programów, dlatego klawisze Lumaroo nic tu nie robią. Ustawienia zostają zachowane. Aby używać Lumaroo, proszę się wylogować i wybrać „X11” lub „Xorg” na ekranie logowania.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Lumaroo cannot take it.</source>
        <translation>%1 jest w użyciu przez inny program. Lumaroo nie otrzymuje tego klawisza.</translation>
    </message>
    <message>
        <source>%1 are used by other programs. Lumaroo cannot take them.</source>
        <translation>%1 są w użyciu przez inne programy. Lumaroo nie otrzymuje tych klawiszy.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Użyj zamiast tego %1</translation>
    </message>
    <message>
        <source>Another program uses this key with the modifier keys.</source>
        <translation>Inny program używa tego klawisza z klawiszami modyfikującymi.</translation>
    </message>
    <message>
        <source>The start at login could not be changed.</source>
        <translation>Nie można zmienić uruchamiania przy logowaniu.</translation>
    </message>
    <message>
        <source>Lumaroo cannot write the file “%1”. Check that you may change it, and try again.</source>
        <translation>Lumaroo nie może zapisać pliku „%1”. Proszę sprawdzić, czy wolno go zmieniać, i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Some keys do not work, since Shift alone would take the capital letters you type.</source>
        <translation>Niektóre klawisze nie działają, ponieważ sam Shift zabierałby wpisywane wielkie litery.</translation>
    </message>
    <message>
        <source>Choose one at least: without a modifier key, no key works.</source>
        <translation>Proszę wybrać co najmniej jeden: bez klawisza modyfikującego nie działa żaden klawisz.</translation>
    </message>
    <message>
        <source>Shift alone would take the capital letters you type. Choose another modifier key with it.</source>
        <translation>Sam Shift zabierałby wpisywane wielkie litery. Proszę wybrać do niego jeszcze jeden klawisz modyfikujący.</translation>
    </message>
    <message>
        <source>Restore this key</source>
        <translation>Przywróć ten klawisz</translation>
    </message>
    <message>
        <source>%1 is used for “%2”.</source>
        <translation>%1 jest już używany przez „%2”.</translation>
    </message>
    <message>
        <source>%1 is used for “%2”. Change that key first.</source>
        <translation>%1 jest już używany przez „%2”. Najpierw należy zmienić tamten klawisz.</translation>
    </message>
    <message>
        <source>The key for “%1” is restored.</source>
        <translation>Klawisz działania „%1” został przywrócony.</translation>
    </message>
    <message>
        <source>You pressed %1: %2.</source>
        <translation>Naciśnięto %1: %2.</translation>
    </message>
    <message>
        <source>All keys are restored.</source>
        <translation>Przywrócono wszystkie klawisze.</translation>
    </message>
    <message>
        <source>The keys are as they were before.</source>
        <translation>Klawisze są znów takie jak wcześniej.</translation>
    </message>
</context>
</TS>
