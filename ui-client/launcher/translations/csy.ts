<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Instalovat zahájíte instalaci. Kliknutím na tlačítko Zpět můžete zkontrolovat nebo změnit nastavení instalace. Kliknutím na tlačítko Storno ukončíte průvodce.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Právě teď</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Aplikace Drovia udržuje soubory v tomto počítači synchronizované s vaším serverem. Vše, co uložíte do složky Drovia, je k dispozici na všech vašich zařízeních.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Březen</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Zvolte, zda chcete produkt [ProductName] změnit, opravit nebo odebrat.</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektivní synchronizace</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Počkejte, než průvodce instalací nainstaluje produkt [ProductName]. Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Před pokračováním v instalaci by měly být zavřeny následující aplikace:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Opravdu chcete zrušit toto připojení? Již synchronizované soubory zůstanou v tomto počítači.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Nelze navázat zabezpečené připojení k serveru.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez proxy serveru</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Zvolte synchronizační složku</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Aktualizace se nezdařila. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Pečlivě si přečtěte následující licenční smlouvu.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Načítání složek...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Přímé připojení</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Soubory odpovídající těmto názvům nebo příponám nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Tuto zprávu již nezobrazovat</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ruční konfigurace proxy serveru</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Probíhá aktualizace...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Server se změnil. Zkontrolujte připojení.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Pokus o synchronizaci...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Soubory v této složce budou sloučeny se složkou na serveru.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Časové období</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>&amp;Automaticky zavřít aplikace a po dokončení instalace se je pokusit znovu spustit.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Místní síť</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Spouštět aplikaci Drovia po přihlášení</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Pro tuto položku nelze vytvořit odkaz pro sdílení.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Opravit opravíte instalaci produktu [ProductName]. Kliknutím na tlačítko Zpět můžete zkontrolovat nebo změnit nastavení instalace. Kliknutím na tlačítko Storno ukončíte průvodce.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Zadejte uživatelské jméno.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>Instalace byla přerušena.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>Vybraná složka není prázdná. Zvolte prázdnou složku.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Pátek</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknutím na tlačítko Dokončit ukončíte průvodce instalací.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Zpracování souborů: %1...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Storno</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Aktualizovat aplikaci Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Odebere produkt [ProductName] z počítače.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Vaše složka Drovia je nastavena a připravena k synchronizaci.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Květen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetovat</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Úterý</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Tuto složku nelze použít k synchronizaci. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Srpen</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Duben</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Průvodce instalací je připraven zahájit instalaci produktu [ProductName].</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Předchozí stránky (%1)</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Instalace produktu [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Přístup k souborům odkudkoli</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Podrobnosti připojení</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Stahování bylo zrušeno.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Zvolte jinou složku v tomto počítači nebo na serveru.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Režim připojení</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Chcete-li používat selektivní synchronizaci, aktualizujte balíček na serveru.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Je již nainstalována novější verze aplikace Drovia.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Stahování se nezdařilo.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizace...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Zvolili jste odebrání programu z počítače.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresa IP</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Tento počítač je k tomuto serveru již připojen.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Pokročilé nastavení</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Zvolte složky k synchronizaci</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Opravdu chcete zrušit instalaci produktu [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumím</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Certifikát serveru se změnil.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Tato složka je již synchronizována v rámci jiného připojení.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Zjišťování připojení...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizace...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Nezdařilo se</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Vaše soubory všude.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrola souborů...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Žádné nastavení nebylo změněno.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Odebrat odeberete produkt [ProductName] z počítače. Kliknutím na tlačítko Zpět můžete zkontrolovat nebo změnit nastavení instalace. Kliknutím na tlačítko Storno ukončíte průvodce.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opakovat</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Tato verze aplikace Drovia je pro server příliš stará. Aktualizujte aplikaci Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Souhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Složka je již synchronizována</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Některé soubory, které je třeba aktualizovat, se právě používají.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Pokračovat v synchronizaci</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Tento počítač</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Aplikace Drovia zastavila synchronizaci kvůli chybě. Podrobnosti zobrazíte otevřením aplikace Drovia.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Režim synchronizace</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Soubory větší než tato velikost nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Červenec</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>Instalace byla předčasně ukončena kvůli chybě.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Synchronizuje složku Drovia ve vaší domovské složce s vaší domovskou složkou na serveru.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Zvolte složku na serveru a složku v tomto počítači, které se mají synchronizovat.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Neplatný parametr.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Místní synchronizační složku nelze najít.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>K serveru se nepodařilo automaticky připojit. Zkontrolujte nastavení sítě.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Připojení k serveru bylo ztraceno.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Server odeslal neočekávanou odpověď.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Server odmítl automatické připojení.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Následující aplikace používají soubory, které musí tato instalace aktualizovat.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Staženo</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Soubory</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Zadejte adresu a port proxy serveru.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Zrušením propojení se synchronizace tohoto připojení zastaví. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Název počítače</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Tato nastavení můžete později změnit v nastavení aplikace Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Otevřít složku Drovia</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Začít</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>Průvodce instalací je připraven opravit produkt [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Aktualizované soubory</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>Složka v tomto počítači není prázdná. Její soubory budou sloučeny se složkou na serveru.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Otevírejte soubory z libovolného počítače s aplikací Drovia nebo z webového prohlížeče.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Zvolte soubory k synchronizaci</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Používané soubory</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy server</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Říjen</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Upravit připojení</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pondělí</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Aplikace Drovia indexuje tuto složku.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>O aplikaci Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Není potřeba</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Další podrobnosti</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Stahování bylo dokončeno.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Uživatelské jméno nebo heslo je nesprávné.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Maximální velikost souboru (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Toto připojení je neaktivní.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Aplikace Drovia je již spuštěna.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nová sdílená složka</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Nekompatibilní verze</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Neaktivní</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Certifikát serveru nelze ověřit.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Tato sdílená složka je již synchronizována s jinou složkou.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorovat</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Tisk</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Soubory v této složce můžete pouze číst.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Zrušit propojení</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Hledat servery v místní síti</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Názvy souborů:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Přejmenováno</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Všechny události</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Opraví chyby poslední instalace opravou chybějících a poškozených souborů, zástupců a položek registru.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Zkontrolujte uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>Průvodce instalací opraví instalaci produktu [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vyberte složku</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Soubory uložené do složky Drovia se automaticky synchronizují se serverem.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxy server vyžaduje heslo</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Plný disk</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Pokročilá nastavení</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Došlo k neznámé chybě.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Složka nenalezena</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Zjišťování změn...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Sdílenou složku nelze povolit.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Soubor byl změněn na obou stranách. Kopie konfliktního souboru byla zachována.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ode&amp;brat</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Pohotovost</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pozastavit synchronizaci</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Zvolte složku v tomto počítači, kterou bude aplikace Drovia synchronizovat.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Další stránky (%1)</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>Nový jazyk se projeví po restartování aplikace Drovia.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Další tipy</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Průvodce instalací nainstaluje produkt [ProductName] do počítače. Pokračujte kliknutím na tlačítko Další, nebo průvodce instalací ukončete kliknutím na tlačítko Storno.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Zde můžete zobrazit podrobnosti tohoto připojení.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronizační úlohy</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Vaše kvóta úložiště na serveru je vyčerpána.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Připraveno k instalaci</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Změnit</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Tuto položku nelze stáhnout.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Chyba synchronizace</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Tato složka se překrývá se složkou, která je již synchronizována.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Zvolte, které složky a jakým způsobem se mají synchronizovat.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Opravit</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Připraveno k odebrání produktu [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Chcete-li pokračovat v instalaci, zavřete níže uvedené aplikace.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Je k dispozici nová verze. Kliknutím ji nainstalujete.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Přípony souborů:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Přečtěte si licenční smlouvu.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Nastavení...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minulý týden</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Zvolit jinou složku</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Změny provedené v jiných zařízeních se zobrazí také zde.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nedávno změněné soubory</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Instalace byla dokončena.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Připraveno k opravě produktu [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Synchronizační složky jsou nastaveny. Aplikace Drovia nyní zahájí synchronizaci.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Chybí informace o verzi.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Zvolte režim nastavení</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Použití nastavení...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Certifikát serveru se změnil. Chcete novému certifikátu důvěřovat?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informace o stavu</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Průvodce instalací produktu [ProductName] byl kvůli chybě předčasně ukončen. Systém nebyl změněn.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Nahráno</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Změnit, opravit nebo odebrat instalaci</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Použít zabezpečené připojení (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Rychlé nastavení synchronizuje vaši domovskou složku. Pokročilé nastavení umožňuje zvolit složky.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Instalace</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Zakázáno</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aktualizace</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Před %1 dny</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Září</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Neděle</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Zrušit propojení se serverem</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Změnit složku</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Pokračovat v synchronizaci této složky</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Před %1 h</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Procházet předchozí verze</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Spravovat připojení</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Čtvrtek</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Je k dispozici nová sdílená složka: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Synchronizace je pozastavena</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Průvodce instalací umožňuje změnit způsob instalace funkcí produktu [ProductName] v počítači nebo produkt z počítače odebrat. Pokračujte kliknutím na tlačítko Další, nebo průvodce instalací ukončete kliknutím na tlačítko Storno.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Ověření se nezdařilo</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, verze %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Otevřít aplikaci Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Zobrazovat ikony stavu synchronizace u souborů a složek</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Bylo dosaženo maximálního počtu sdílených složek.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nastavení sítě</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Nahrávání</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Sdílenou složku nelze odebrat.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Předchozí verze tohoto souboru nelze zobrazit.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>Složka na serveru není připojena.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>K instalaci aplikace Drovia pro všechny uživatele potřebujete oprávnění správce. Chcete přesto pokračovat?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Změny nebyly uloženy. Chcete je uložit?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Zadejte číslo portu od 1 do 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Tento soubor je uzamčen jinou aplikací.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Podle systému</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synchronizovat tuto sdílenou složku</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Umožňuje změnit způsob instalace funkcí.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>V tomto počítači není dostatek volného místa.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Aplikace Drovia synchronizuje vaši domovskou složku na serveru se složkou Drovia v tomto počítači.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Soubory této sdílené složky budou z tohoto počítače odebrány. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Automatická synchronizace</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Místní databázi nelze otevřít.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Znovu připojit</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Vyberte operaci, kterou chcete provést.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Leden</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Údržba</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Žádné události k zobrazení.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Připojit k novému serveru</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historie</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Sdílet odkaz</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Ukončit aplikaci Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>Synchronizační složka je na jednotce, která není připojena.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Vítá vás aplikace Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Přístup odepřen</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Upozornění zabezpečení</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Synchronizujte soubory na všech svých zařízeních.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historie synchronizace</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Rychlé nastavení</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Více názvů oddělte čárkami. Jako zástupný znak můžete použít *.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalace produktu [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Kliknutím pravým tlačítkem na soubor ve složce Drovia jej můžete sdílet nebo zobrazit jeho dřívější verze.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Začínáme</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Přidat synchronizační úlohu</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Sdílení</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Přehled serveru</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Tato verze aplikace Drovia je již nainstalována. Chcete ji nainstalovat znovu?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Složka jen pro čtení</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Připojení přes přenosový server</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Nesynchronizovat tyto složky</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Vítá vás průvodce instalací produktu [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Filtrované soubory</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Průvodce instalací můžete spustit znovu později. Kliknutím na tlačítko Dokončit průvodce ukončíte.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Průvodce instalací produktu [ProductName] byl dokončen</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Sdílení a obnovení</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Zobrazit stav synchronizace</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Spouštění aplikace Drovia...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Odinstaluje produkt [ProductName] a všechny jeho soubory.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Stahování</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Hotovo!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> s vámi sdílí složku.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Uživatelské jméno nebo heslo nelze ověřit.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Disk na serveru je plný.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Licenční smlouva s koncovým uživatelem</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Složky, u kterých zrušíte zaškrtnutí, budou odebrány z tohoto počítače, ale zůstanou na serveru.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Zobrazit aplikaci Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Sdílená složka není na serveru připojena.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Použít systémové nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Vyhledat servery v místní síti</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Nesynchronizovat tyto soubory:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Průvodce pokročilým nastavením</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Sdílená složka</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Zobrazovat ikony u filtrovaných souborů</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Propojit nový server</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Pouze stahování</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Změní, které funkce produktu [ProductName] jsou nainstalovány.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Tato složka patří jinému serveru.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Chyba přípojného bodu</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>Verze serveru je pro tuto verzi aplikace Drovia příliš stará. Aktualizujte server.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Změny na síťových jednotkách se kontrolují v pravidelných intervalech, a jejich synchronizace proto může chvíli trvat.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Připojit přes Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Vždy používat zabezpečené připojení</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>Průvodce instalací produktu [ProductName] byl předčasně ukončen</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Sdílení souborů není přes připojení Quelmix k dispozici.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Složky</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Tato složka je přípojný bod a nelze ji synchronizovat.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>K této složce máte přístup jen pro čtení. Změny v tomto počítači nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Odkazy pro sdílení nejsou k dispozici, protože služba Korvo je vypnutá.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Tuto složku synchronizuje také jiná synchronizační aplikace. Dvojí synchronizace může způsobit konflikty.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>Průvodce instalací produktu [ProductName] byl přerušen</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Aplikaci Drovia nelze spustit. Přeinstalujte aplikaci Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Každou složku lze synchronizovat pouze v rámci jednoho připojení.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Povoleno</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Instalace produktu [ProductName] byla přerušena. Systém nebyl změněn.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Vlastní</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Minulý měsíc</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otevřít soubor</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Inicializace aplikace Drovia...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Nesouhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Vše je připraveno</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Opraví chyby poslední instalace.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Přesto pokračovat</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Chcete zastavit synchronizaci této sdílené složky?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Chyba sítě. Zkontrolujte připojení.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Služba Korvo vypnuta</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>ID serveru není platné.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Použít černobílou ikonu na panelu nabídek</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Sloučit soubory při první synchronizaci</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Nesynchronizovat soubory, jejichž názvy začínají tečkou</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Klíčové slovo</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>Produkt [ProductName] byl úspěšně nainstalován.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Prosinec</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Kliknutím na tlačítko Dokončit zavřete průvodce.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Položky: %1</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalovat</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Únor</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Vyhledávání serverů v místní síti...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ souboru</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>Produkt [ProductName] nemá žádné samostatně volitelné funkce.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Služba Korvo je na serveru vypnutá. Požádejte správce o její zapnutí.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Sdílejte soubor pomocí odkazu nebo se vraťte k jeho dřívější verzi.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Počkejte, než průvodce instalací nainstaluje produkt [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Připraveno k instalaci produktu [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Spustit produkt [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Středa</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Nastavení proxy serveru</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Před %1 min</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Znovu zobrazit výukový program</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Pokračovat v synchronizaci těchto složek</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Zvolte složku, která se má synchronizovat se serverem.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Synchronizováno</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Nezavírat aplikace. Bude nutný restart.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Poklikáním na ikonu otevřete aplikaci Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Změnit synchronizační složku</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>Průvodce instalací odebere produkt [ProductName] z počítače.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Červen</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronizace: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Místní synchronizační složka</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Tato složka je jen pro čtení. Změny, které zde provedete, nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Zobrazit ve složce</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nedávno aktualizované soubory</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Složka není prázdná</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Nesynchronizovat tuto složku</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Připojení bylo úspěšně navázáno.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>Připojení je nestabilní.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Úložiště</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Aplikace Drovia je připravena.</translation>
    </message>
</context>
</TS>
