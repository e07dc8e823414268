<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk Zainstaluj, aby rozpocząć instalację. Kliknij przycisk Wstecz, aby przejrzeć lub zmienić dowolne ustawienia instalacji. Kliknij przycisk Anuluj, aby zakończyć działanie kreatora.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia synchronizuje pliki na tym komputerze z Twoim serwerem. Wszystko, co umieścisz w folderze Drovia, jest dostępne na wszystkich Twoich urządzeniach.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzec</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Wybierz, czy chcesz zmienić, naprawić czy usunąć produkt [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Poczekaj, aż Kreator instalacji zainstaluje produkt [ProductName]. Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Przed kontynuowaniem instalacji należy zamknąć następujące aplikacje:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Czy na pewno chcesz odłączyć to połączenie? Już zsynchronizowane pliki pozostaną na tym komputerze.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Nie można nawiązać bezpiecznego połączenia z serwerem.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez serwera proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Wybierz folder synchronizacji</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Uaktualnienie nie powiodło się. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Uważnie przeczytaj poniższą umowę licencyjną.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Ładowanie folderów...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Pliki pasujące do tych nazw lub rozszerzeń nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Nie pokazuj ponownie tego komunikatu</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ręczna konfiguracja serwera proxy</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Uaktualnianie...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Serwer został zmieniony. Sprawdź połączenie.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Próba synchronizacji...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Pliki w tym folderze zostaną scalone z folderem na serwerze.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zakres dat</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>&amp;Automatycznie zamknij aplikacje i spróbuj uruchomić je ponownie po zakończeniu instalacji.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktualne</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Uruchamiaj program Drovia po zalogowaniu</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Nie można utworzyć linku udostępniania dla tego elementu.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk Napraw, aby naprawić instalację produktu [ProductName]. Kliknij przycisk Wstecz, aby przejrzeć lub zmienić dowolne ustawienia instalacji. Kliknij przycisk Anuluj, aby zakończyć działanie kreatora.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akcja</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Wprowadź nazwę użytkownika.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>Instalacja została przerwana.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>Wybrany folder nie jest pusty. Wybierz pusty folder.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknij przycisk Zakończ, aby zakończyć działanie Kreatora instalacji.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Przetwarzanie plików: %1...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Uaktualnij program Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Usuwa produkt [ProductName] z komputera.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Twój folder Drovia jest skonfigurowany i gotowy do synchronizacji.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Tego folderu nie można używać do synchronizacji. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Sierpień</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Foldery udostępnione</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Kwiecień</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Kreator instalacji jest gotowy do rozpoczęcia instalacji produktu [ProductName].</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Poprzednie strony (%1)</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Instalowanie produktu [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Dostęp do plików z dowolnego miejsca</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Szczegóły połączenia</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Pobieranie zostało anulowane.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Wybierz inny folder na tym komputerze lub na serwerze.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Tryb połączenia</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Aby korzystać z synchronizacji selektywnej, uaktualnij pakiet serwera.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Zainstalowano już nowszą wersję programu Drovia.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Pobieranie nie powiodło się.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizowanie...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Wybrano usunięcie programu z komputera.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adres IP</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Ten komputer jest już połączony z tym serwerem.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Konfiguracja zaawansowana</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Wybierz foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Czy na pewno chcesz anulować instalację produktu [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumiem</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Certyfikat serwera został zmieniony.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Ten folder jest już synchronizowany w ramach innego połączenia.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Wykrywanie połączenia...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizowanie...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Twoje pliki, wszędzie.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Sprawdzanie plików...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Nie zmieniono żadnych ustawień.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk Usuń, aby usunąć produkt [ProductName] z komputera. Kliknij przycisk Wstecz, aby przejrzeć lub zmienić dowolne ustawienia instalacji. Kliknij przycisk Anuluj, aby zakończyć działanie kreatora.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Ponów próbę</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Ta wersja programu Drovia jest zbyt stara dla serwera. Uaktualnij program Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Akceptuję warunki umowy licencyjnej</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Folder jest już synchronizowany</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Niektóre pliki, które trzeba zaktualizować, są obecnie używane.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Wznów synchronizację</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Program Drovia zatrzymał synchronizację z powodu błędu. Otwórz program Drovia, aby wyświetlić szczegóły.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Pliki większe niż ten rozmiar nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Lipiec</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>Instalacja została przedwcześnie zakończona z powodu błędu.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Synchronizuje folder Drovia w Twoim folderze domowym z Twoim folderem domowym na serwerze.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Wybierz folder na serwerze i folder na tym komputerze do synchronizacji.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Nieprawidłowy parametr.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Nie można odnaleźć lokalnego folderu synchronizacji.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Nie można automatycznie połączyć się z serwerem. Sprawdź ustawienia sieci.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Utracono połączenie z serwerem.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Serwer wysłał nieoczekiwaną odpowiedź.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Serwer odrzucił połączenie automatyczne.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Następujące aplikacje używają plików, które muszą zostać zaktualizowane przez ten instalator.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Pobrano</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Wprowadź adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Odłączenie zatrzymuje synchronizację tego połączenia. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nazwa komputera</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Te ustawienia możesz zmienić później w ustawieniach programu Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Otwórz folder Drovia</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Rozpocznij teraz</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>Kreator instalacji jest gotowy do naprawy produktu [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Zaktualizowane pliki</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>Folder na tym komputerze nie jest pusty. Jego pliki zostaną scalone z folderem na serwerze.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Otwieraj swoje pliki na dowolnym komputerze z programem Drovia lub w przeglądarce internetowej.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Wybierz pliki do synchronizacji</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Pliki w użyciu</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Październik</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edytuj połączenie</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Program Drovia indeksuje ten folder.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Informacje o programie Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Niepotrzebne</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Więcej szczegółów</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Pobieranie zostało zakończone.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Maksymalny rozmiar pliku (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>To połączenie jest nieaktywne.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Program Drovia jest już uruchomiony.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nowy folder udostępniony</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Niezgodność wersji</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Nieaktywne</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Nie można zweryfikować certyfikatu serwera.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Ten folder udostępniony jest już synchronizowany z innym folderem.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignoruj</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drukuj</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Pliki w tym folderze możesz tylko odczytywać.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Wyszukaj serwery w sieci lokalnej</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nazwy plików:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Zmieniono nazwę</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Naprawia błędy w ostatniej instalacji, usuwając problemy z brakującymi i uszkodzonymi plikami, skrótami oraz wpisami rejestru.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Sprawdź nazwę użytkownika i hasło.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>Kreator instalacji naprawi instalację produktu [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Pliki zapisane w folderze Drovia są automatycznie synchronizowane z serwerem.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Serwer proxy wymaga hasła</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Dysk pełny</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Wystąpił nieznany błąd.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Nie znaleziono folderu</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Wykrywanie zmian...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Nie można włączyć folderu udostępnionego.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Plik został zmieniony po obu stronach. Zachowano kopię pliku powodującego konflikt.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Wstrzymaj synchronizację</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Wybierz folder na tym komputerze, który program Drovia ma synchronizować.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Następne strony (%1)</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>Nowy język zacznie obowiązywać po ponownym uruchomieniu programu Drovia.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Więcej wskazówek</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kreator instalacji zainstaluje produkt [ProductName] na komputerze. Kliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zakończyć działanie Kreatora instalacji.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Tutaj możesz zobaczyć szczegóły tego połączenia.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Twój limit miejsca na serwerze został wyczerpany.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Gotowy do instalacji</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Zmień</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Nie można pobrać tego elementu.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Błąd synchronizacji</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Ten folder pokrywa się z folderem, który jest już synchronizowany.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Wybierz, które foldery synchronizować i w jaki sposób.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Napraw</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Gotowy do usunięcia produktu [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Zamknij aplikacje wymienione poniżej, aby kontynuować instalację.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Dostępna jest nowa wersja. Kliknij, aby uaktualnić.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Rozszerzenia plików:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Przeczytaj umowę licencyjną.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ustawienia...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Ostatni tydzień</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Zmiany wprowadzone na innych urządzeniach też pojawiają się tutaj.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Ostatnio zmienione pliki</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Instalacja została ukończona.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Gotowy do naprawy produktu [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Foldery synchronizacji są skonfigurowane. Program Drovia rozpoczyna teraz synchronizację.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Brak informacji o wersji.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Wybierz tryb konfiguracji</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Certyfikat serwera został zmieniony. Czy chcesz zaufać nowemu certyfikatowi?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informacje o stanie</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Działanie Kreatora instalacji produktu [ProductName] zostało przedwcześnie zakończone z powodu błędu. System nie został zmodyfikowany.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Wysłano</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Zmień, napraw lub usuń instalację</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Użyj bezpiecznego połączenia (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Szybka konfiguracja synchronizuje Twój folder domowy. Konfiguracja zaawansowana pozwala wybrać foldery.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Instalowanie</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Uaktualnienie</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dni temu</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Wrzesień</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Odłącz połączenie</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Wznów synchronizację tego folderu</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Przeglądaj poprzednie wersje</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Zarządzaj połączeniami</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Dostępny jest nowy folder udostępniony: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Synchronizacja jest wstrzymana</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kreator instalacji umożliwia zmianę sposobu instalacji funkcji produktu [ProductName] na komputerze lub usunięcie go z komputera. Kliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zakończyć działanie Kreatora instalacji.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Uwierzytelnianie nie powiodło się</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, wersja %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Otwórz program Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Pokazuj ikony stanu synchronizacji na plikach i folderach</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Osiągnięto maksymalną liczbę folderów udostępnionych.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ustawienia sieci</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Wysyłanie</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Nie można usunąć folderu udostępnionego.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Nie można wyświetlić listy poprzednich wersji tego pliku.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>Folder na serwerze nie jest zamontowany.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Aby zainstalować program Drovia dla wszystkich użytkowników, potrzebujesz uprawnień administratora. Czy mimo to chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Zmiany nie zostały zapisane. Czy chcesz je zapisać?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Wprowadź numer portu z zakresu od 1 do 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Ten plik jest zablokowany przez inną aplikację.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Język systemu</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synchronizuj ten folder udostępniony</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Umożliwia zmianę sposobu instalacji funkcji.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Na tym komputerze brakuje wolnego miejsca.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Program Drovia synchronizuje Twój folder domowy na serwerze z folderem Drovia na tym komputerze.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Pliki tego folderu udostępnionego zostaną usunięte z tego komputera. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Automatyczna synchronizacja</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Nie można otworzyć lokalnej bazy danych.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Połącz ponownie</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Wybierz operację, którą chcesz wykonać.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Styczeń</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Konserwacja</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Brak zdarzeń do wyświetlenia.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Połącz z nowym serwerem</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Udostępnij link</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Zamknij program Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>Folder synchronizacji znajduje się na dysku, który nie jest podłączony.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Witamy w programie Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Odmowa dostępu</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Ostrzeżenie o zabezpieczeniach</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Synchronizuj pliki na wszystkich swoich urządzeniach.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historia synchronizacji</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Szybka konfiguracja</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Rozdziel kolejne nazwy przecinkami. Możesz użyć znaku * jako symbolu wieloznacznego.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalator produktu [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Kliknij prawym przyciskiem myszy plik w folderze Drovia, aby go udostępnić lub wyświetlić jego wcześniejsze wersje.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Wprowadzenie</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Dodaj zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Udostępnianie</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Przegląd serwera</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Ta wersja programu Drovia jest już zainstalowana. Czy chcesz zainstalować ją ponownie?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Folder tylko do odczytu</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Połączenie przez przekaźnik</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Nie synchronizuj tych folderów</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Zapraszamy do Kreatora instalacji produktu [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Filtrowane pliki</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Kreatora instalacji możesz uruchomić ponownie później. Kliknij przycisk Zakończ, aby zakończyć działanie kreatora.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Ukończono działanie Kreatora instalacji produktu [ProductName]</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Udostępnianie i przywracanie</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Pokaż stan synchronizacji</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Uruchamianie programu Drovia...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Odinstalowuje produkt [ProductName] i wszystkie jego pliki.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Pobieranie</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Wszystko gotowe!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> udostępnia Ci folder.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Nie można zweryfikować nazwy użytkownika lub hasła.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Dysk na serwerze jest pełny.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Umowa licencyjna użytkownika oprogramowania</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Foldery, których zaznaczenie wyczyścisz, zostaną usunięte z tego komputera, ale pozostaną na serwerze.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Pokaż program Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Folder udostępniony nie jest zamontowany na serwerze.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Użyj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Znajdź serwery w sieci lokalnej</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Nie synchronizuj tych plików:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Kreator konfiguracji zaawansowanej</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Folder udostępniony</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Pokazuj ikony na filtrowanych plikach</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Powiąż nowy serwer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Zmienia zestaw zainstalowanych funkcji produktu [ProductName].</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Ten folder należy do innego serwera.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Ładowanie...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Błąd punktu montowania</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>Wersja serwera jest zbyt stara dla tej wersji programu Drovia. Uaktualnij serwer.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Zmiany na dyskach sieciowych są sprawdzane w regularnych odstępach czasu, więc ich synchronizacja może chwilę potrwać.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Połącz przez Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Zawsze używaj bezpiecznego połączenia</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>Działanie Kreatora instalacji produktu [ProductName] zostało przedwcześnie zakończone</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Udostępnianie plików nie jest dostępne przez połączenie Quelmix.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Ten folder jest punktem montowania i nie można go synchronizować.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Masz tylko uprawnienia do odczytu tego folderu. Zmiany na tym komputerze nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Linki udostępniania są niedostępne, ponieważ usługa Korvo jest wyłączona.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Ten folder jest także synchronizowany przez inną aplikację do synchronizacji. Podwójna synchronizacja może powodować konflikty.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>Działanie Kreatora instalacji produktu [ProductName] zostało przerwane</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Nie można uruchomić programu Drovia. Zainstaluj ponownie program Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Każdy folder może być synchronizowany tylko w ramach jednego połączenia.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Instalacja produktu [ProductName] została przerwana. System nie został zmodyfikowany.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Niestandardowy</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Ostatni miesiąc</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Inicjowanie programu Drovia...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Nie akceptuję warunków umowy licencyjnej</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Wszystko skonfigurowane</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Naprawia błędy w ostatniej instalacji.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Mimo to kontynuuj</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Czy chcesz zatrzymać synchronizację tego folderu udostępnionego?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Błąd sieci. Sprawdź połączenie.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Usługa Korvo wyłączona</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>Identyfikator serwera jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Użyj czarno-białej ikony na pasku menu</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Scalaj pliki przy pierwszej synchronizacji</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Nie synchronizuj plików, których nazwy zaczynają się od kropki</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Słowo kluczowe</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>Produkt [ProductName] został pomyślnie zainstalowany.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Grudzień</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Kliknij przycisk Zakończ, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementy: %1</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Zainstaluj</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Luty</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Wyszukiwanie serwerów w sieci lokalnej...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>Produkt [ProductName] nie ma funkcji, które można wybierać niezależnie.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Usługa Korvo jest wyłączona na serwerze. Poproś administratora o jej włączenie.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Udostępnij plik za pomocą linku lub przywróć jego wcześniejszą wersję.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Poczekaj, aż Kreator instalacji zainstaluje produkt [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Gotowy do instalacji produktu [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Uruchom produkt [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ustawienia serwera proxy</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Pokaż ponownie samouczek</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Wznów synchronizację tych folderów</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Wybierz folder do synchronizacji z serwerem.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Synchronizowany</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Nie zamykaj aplikacji. Będzie wymagany ponowny rozruch.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Kliknij dwukrotnie ikonę, aby otworzyć program Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Zmień folder synchronizacji</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>Kreator instalacji usunie produkt [ProductName] z komputera.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Czerwiec</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronizowanie: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokalny folder synchronizacji</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Ten folder jest tylko do odczytu. Wprowadzone tu zmiany nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Pokaż w folderze</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Ostatnio zaktualizowane pliki</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Folder nie jest pusty</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Nie synchronizuj tego folderu</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Połączono pomyślnie.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>Połączenie jest niestabilne.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Miejsce na dane</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Program Drovia jest gotowy.</translation>
    </message>
</context>
</TS>
