<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Updates</name>
    <message>
        <source>Lumaroo update</source>
        <translation>Aktualizacja Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for updates now</source>
        <translation>Lumaroo nie może teraz szukać aktualizacji</translation>
    </message>
    <message>
        <source>A part of it is missing, or was just replaced by another version. Close the settings, open them again and try once more. If that does not help, install Lumaroo again.</source>
        <translation>Brakuje jego części lub właśnie zastąpiła ją inna wersja. Proszę zamknąć ustawienia, otworzyć je i spróbować ponownie. Jeśli to nie pomoże, proszę ponownie zainstalować Lumaroo.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>&amp;Pomiń tę wersję</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Póź&amp;niej</translation>
    </message>
    <message>
        <source>&amp;Install update</source>
        <translation>Za&amp;instaluj</translation>
    </message>
    <message>
        <source>&amp;Install and restart</source>
        <translation>Za&amp;instaluj i uruchom ponownie</translation>
    </message>
    <message>
        <source>&amp;Open its web page</source>
        <translation>&amp;Otwórz stronę WWW</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Looking for a new version</source>
        <translation>Szukanie nowej wersji</translation>
    </message>
    <message>
        <source>Lumaroo is up to date</source>
        <translation>Lumaroo jest aktualne</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>Wersja %1 jest najnowsza.</translation>
    </message>
    <message>
        <source>There is an important update: Lumaroo %1</source>
        <translation>Jest ważna aktualizacja: Lumaroo %1</translation>
    </message>
    <message>
        <source>There is a new version: Lumaroo %1</source>
        <translation>Jest nowa wersja: Lumaroo %1</translation>
    </message>
    <message>
        <source>It mends something that matters: install it soon.</source>
        <translation>Naprawia coś ważnego: warto zainstalować ją jak najszybciej.</translation>
    </message>
    <message>
        <source>It can be downloaded and installed now.</source>
        <translation>Można ją teraz pobrać i zainstalować.</translation>
    </message>
    <message>
        <source>It is not installed from here. Its web page tells how to get it.</source>
        <translation>Nie można jej zainstalować stąd. Jej strona WWW podaje, skąd ją wziąć.</translation>
    </message>
    <message>
        <source>Downloading Lumaroo %1</source>
        <translation>Pobieranie Lumaroo %1</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>Oczekiwanie na serwer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Preparing Lumaroo %1</source>
        <translation>Przygotowywanie Lumaroo %1</translation>
    </message>
    <message>
        <source>Checking that it is genuine, and unpacking it</source>
        <translation>Sprawdzanie autentyczności i rozpakowywanie</translation>
    </message>
    <message>
        <source>Lumaroo %1 is ready</source>
        <translation>Lumaroo %1 jest gotowe</translation>
    </message>
    <message>
        <source>The settings close for a moment and come back with the new version. If you choose Later, it is installed when you close the settings.</source>
        <translation>Ustawienia zamkną się na chwilę i powrócą z nową wersją. Po wybraniu „Później” zostanie ona zainstalowana przy zamknięciu ustawień.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is about to be installed</source>
        <translation>Lumaroo %1 zostanie za chwilę zainstalowane</translation>
    </message>
    <message>
        <source>It is installed as soon as the settings are closed. Answer what they still ask, or close them yourself.</source>
        <translation>Instalacja nastąpi po zamknięciu ustawień. Proszę odpowiedzieć na ich pytania lub zamknąć je samodzielnie.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is installed</source>
        <translation>Lumaroo %1 jest zainstalowane</translation>
    </message>
    <message>
        <source>Close the settings and open them again to use it.</source>
        <translation>Aby go użyć, należy zamknąć ustawienia i otworzyć je ponownie.</translation>
    </message>
    <message>
        <source>The release notes cannot be shown now.</source>
        <translation>Nie można teraz wyświetlić informacji o wydaniu.</translation>
    </message>
    <message>
        <source>New versions cannot be looked for now</source>
        <translation>Nie można teraz szukać nowych wersji</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached, or cannot be read. Check your connection and try again later.</source>
        <translation>Lista wersji jest niedostępna lub nie można jej odczytać. Proszę sprawdzić połączenie i spróbować ponownie później.</translation>
    </message>
    <message>
        <source>The update cannot be downloaded</source>
        <translation>Nie można pobrać aktualizacji</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Check your connection and try again.</source>
        <translation>Zainstalowana wersja pozostała bez zmian. Proszę sprawdzić połączenie i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The update cannot be stored</source>
        <translation>Nie można zapisać aktualizacji</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Most often the disk is full: make some room and try again.</source>
        <translation>Zainstalowana wersja pozostała bez zmian. Najczęściej przyczyną jest pełny dysk: proszę zwolnić miejsce i spróbować ponownie.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself</source>
        <translation>Ta kopia Lumaroo nie może się sama aktualizować</translation>
    </message>
    <message>
        <source>Whoever built it gave it no key to tell genuine updates by. Get new versions from where you got this one.</source>
        <translation>Zbudowano ją bez klucza, który pozwala rozpoznać autentyczne aktualizacje. Nowe wersje są dostępne tam, skąd pochodzi ta kopia.</translation>
    </message>
    <message>
        <source>The update is not genuine</source>
        <translation>Aktualizacja nie jest autentyczna</translation>
    </message>
    <message>
        <source>What came is not what the makers of Lumaroo have signed. It was removed, and the version that you have is unchanged. Try again later, best through another network.</source>
        <translation>Tego, co pobrano, nie podpisali twórcy Lumaroo. Zostało to usunięte, a zainstalowana wersja pozostała bez zmian. Proszę spróbować ponownie później, najlepiej przez inną sieć.</translation>
    </message>
    <message>
        <source>The update is damaged</source>
        <translation>Aktualizacja jest uszkodzona</translation>
    </message>
    <message>
        <source>What came cannot be unpacked. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Tego, co pobrano, nie można rozpakować. Zostało to usunięte, a zainstalowana wersja pozostała bez zmian. Proszę spróbować ponownie później.</translation>
    </message>
    <message>
        <source>The update is not what was announced</source>
        <translation>Aktualizacja nie jest tą, którą zapowiedziano</translation>
    </message>
    <message>
        <source>It does not hold the version that the list of versions tells of. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Nie zawiera wersji podanej na liście wersji. Została usunięta, a zainstalowana wersja pozostała bez zmian. Proszę spróbować ponownie później.</translation>
    </message>
    <message>
        <source>Lumaroo is updated along with your system</source>
        <translation>Lumaroo jest aktualizowane razem z systemem</translation>
    </message>
    <message>
        <source>It was installed for everybody who uses this computer. Look for new versions where your system gets its programs and updates.</source>
        <translation>Zainstalowano je dla wszystkich użytkowników tego komputera. Nowych wersji należy szukać tam, skąd system bierze programy i aktualizacje.</translation>
    </message>
    <message>
        <source>Updates are not installed as root</source>
        <translation>Aktualizacji nie instaluje się jako root</translation>
    </message>
    <message>
        <source>Open the settings under your own name and try again.</source>
        <translation>Proszę otworzyć ustawienia z własnego konta i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Lumaroo is being updated already</source>
        <translation>Lumaroo jest już aktualizowane</translation>
    </message>
    <message>
        <source>Another program is about to do it. Wait a moment and try again.</source>
        <translation>Zajmuje się tym inny program. Proszę chwilę poczekać i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The update cannot take the old version's place</source>
        <translation>Aktualizacja nie może zastąpić starej wersji</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Close the settings, open them again and try once more.</source>
        <translation>Zainstalowana wersja pozostała bez zmian. Proszę zamknąć ustawienia, otworzyć je i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The update was not installed</source>
        <translation>Aktualizacja nie została zainstalowana</translation>
    </message>
    <message>
        <source>The version that you have is unchanged.</source>
        <translation>Zainstalowana wersja pozostała bez zmian.</translation>
    </message>
    <message>
        <source>⚠ Version %1 was not installed.</source>
        <translation>⚠ Wersja %1 nie została zainstalowana.</translation>
    </message>
    <message>
        <source>Most often the disk is full: make some room. It is tried again when you close the settings and when you open them.</source>
        <translation>Najczęściej przyczyną jest pełny dysk: proszę zwolnić miejsce. Kolejne próby następują przy zamknięciu i przy otwarciu ustawień.</translation>
    </message>
    <message>
        <source>Another program was updating Lumaroo just then. It is tried again when you close the settings and when you open them.</source>
        <translation>Inny program właśnie aktualizował Lumaroo. Kolejne próby następują przy zamknięciu i przy otwarciu ustawień.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer. New versions come with the updates of the system.</source>
        <translation>Lumaroo zainstalowano dla wszystkich użytkowników tego komputera. Nowe wersje przychodzą z aktualizacjami systemu.</translation>
    </message>
    <message>
        <source>Updates are not installed as root: open the settings under your own name.</source>
        <translation>Aktualizacji nie instaluje się jako root: proszę otworzyć ustawienia z własnego konta.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo has no key to tell genuine updates by, so that the update was removed. Get new versions from where you got this one.</source>
        <translation>Ta kopia Lumaroo nie ma klucza, który pozwala rozpoznać autentyczne aktualizacje, więc aktualizacja została usunięta. Nowe wersje są dostępne tam, skąd pochodzi ta kopia.</translation>
    </message>
    <message>
        <source>It was not what the makers of Lumaroo have signed, and was removed. Check again, best through another network.</source>
        <translation>Tego, co pobrano, nie podpisali twórcy Lumaroo; zostało to usunięte. Proszę sprawdzić ponownie, najlepiej przez inną sieć.</translation>
    </message>
    <message>
        <source>What had been downloaded was damaged or gone. Check again to have it downloaded once more.</source>
        <translation>To, co pobrano, było uszkodzone lub zniknęło. Proszę sprawdzić ponownie, aby pobrać to jeszcze raz.</translation>
    </message>
    <message>
        <source>It did not hold the version that was announced, and was removed. Check again later.</source>
        <translation>Nie zawierała zapowiedzianej wersji i została usunięta. Proszę sprawdzić ponownie później.</translation>
    </message>
    <message>
        <source>It could not take the old version's place. It is tried again when you close the settings and when you open them.</source>
        <translation>Nie mogła zastąpić starej wersji. Kolejne próby następują przy zamknięciu i przy otwarciu ustawień.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself. Get new versions from where you got this one.</source>
        <translation>Ta kopia Lumaroo nie może się sama aktualizować. Nowe wersje są dostępne tam, skąd pochodzi ta kopia.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer: updates come with the system's updates.</source>
        <translation>Lumaroo zainstalowano dla wszystkich użytkowników tego komputera: nowe wersje przychodzą z aktualizacjami systemu.</translation>
    </message>
    <message>
        <source>Nothing is looked for as root: open the settings under your own name.</source>
        <translation>Jako root niczego się nie szuka: proszę otworzyć ustawienia z własnego konta.</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for new versions.</source>
        <translation>Lumaroo nie może szukać nowych wersji.</translation>
    </message>
    <message>
        <source>It is not installed from here. Get it from where you got the version that you have.</source>
        <translation>Nie można jej zainstalować stąd. Jest dostępna tam, skąd pochodzi obecna wersja.</translation>
    </message>
    <message>
        <source>The web page cannot be opened from here. Its address is: %1</source>
        <translation>Nie można stąd otworzyć strony WWW. Jej adres to: %1</translation>
    </message>
</context>
</TS>
