<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A telepítés megkezdéséhez kattintson a Telepítés gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az imént</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>A Drovia szinkronban tartja a számítógépen lévő fájlokat a kiszolgálóval. Minden, amit a Drovia-mappába helyez, elérhető lesz az összes eszközén.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>március</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Válassza ki, hogy módosítja, javítja vagy eltávolítja a(z) [ProductName] programot.</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Várjon, amíg a telepítővarázsló telepíti a(z) [ProductName] programot.  Ez több percig is eltarthat.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>A telepítés folytatása előtt be kell zárni a következő alkalmazásokat:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Biztosan leválasztja ezt a kapcsolatot? A már szinkronizált fájlok a számítógépen maradnak.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Nem sikerült biztonságos kapcsolatot létesíteni a kiszolgálóval.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nincs proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Szinkronizálási mappa kiválasztása</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>A frissítés nem sikerült. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Olvassa el figyelmesen az alábbi licencszerződést.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Mappák betöltése...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Közvetlen kapcsolat</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Az ilyen nevű vagy kiterjesztésű fájlok nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne jelenjen meg többé ez az üzenet</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Kézi proxykonfiguráció</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Frissítés...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>A kiszolgáló megváltozott. Ellenőrizze a kapcsolatot.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Szinkronizálási kísérlet...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>A mappában lévő fájlok egyesítve lesznek a kiszolgálón lévő mappával.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Dátumtartomány</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>&amp;Alkalmazások automatikus bezárása, majd újraindításuk a telepítés befejezése után.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Helyi hálózat</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>A Drovia indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Ehhez az elemhez nem hozható létre megosztási hivatkozás.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A(z) [ProductName] telepítésének javításához kattintson a Javítás gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Adja meg a felhasználónevet.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>A telepítés megszakadt.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>A kiválasztott mappa nem üres. Válasszon egy üres mappát.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Csatlakozás...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>péntek</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>A telepítővarázslóból való kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 fájl feldolgozása...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Drovia frissítése</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Eltávolítja a(z) [ProductName] programot a számítógépről.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>A Drovia-mappa be van állítva, és készen áll a szinkronizálásra.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>május</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Alaphelyzet</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>kedd</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Ez a mappa nem használható szinkronizálásra. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusztus</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Megosztott mappák</translation>
    </message>
    <message>
        <source>April</source>
        <translation>április</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>A telepítővarázsló készen áll a(z) [ProductName] telepítésének megkezdésére.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Előző %1 oldal</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>A(z) [ProductName] telepítése</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Fájljait bárhonnan elérheti</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Kapcsolat részletei</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>A letöltés megszakadt.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Válasszon másik mappát ezen a számítógépen vagy a kiszolgálón.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Kapcsolati mód</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>A szelektív szinkronizálás használatához frissítse a kiszolgálócsomagot.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>A Drovia egy újabb verziója már telepítve van.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>A letöltés nem sikerült.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Frissítés folyamatban...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Ön a program eltávolítását választotta.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-cím</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Ez a számítógép már csatlakozik ehhez a kiszolgálóhoz.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Speciális beállítás</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>szombat</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Válassza ki a szinkronizálandó mappákat</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Biztosan megszakítja a(z) [ProductName] telepítését?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Értem</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>A kiszolgáló tanúsítványa megváltozott.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Ez a mappa már egy másik kapcsolattal szinkronizálódik.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Kapcsolat felismerése...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Szinkronizálás...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Sikertelen</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Fájljai, mindenhol.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Fájlok ellenőrzése...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Egyetlen beállítás sem változott.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A(z) [ProductName] eltávolításához kattintson az Eltávolítás gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Újra</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>A Drovia ezen verziója túl régi a kiszolgálóhoz. Frissítse a Drovia alkalmazást.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Elfogadom a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>A mappa már szinkronizálva van</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Néhány frissítendő fájl jelenleg használatban van.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Szinkronizálás folytatása</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ez a számítógép</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>A Drovia hiba miatt leállította a szinkronizálást. A részletekért nyissa meg a Drovia alkalmazást.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Szinkronizálási mód</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Az ennél nagyobb fájlok nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>July</source>
        <translation>július</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>A telepítés egy hiba miatt idő előtt befejeződött.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>A saját mappájában lévő Drovia-mappa szinkronizálása a kiszolgálón lévő saját mappájával.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Válassza ki a szinkronizálandó mappát a kiszolgálón és ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Érvénytelen paraméter.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>A helyi szinkronizálási mappa nem található.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Nem sikerült automatikusan elérni a kiszolgálót. Ellenőrizze a hálózati beállításokat.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Megszakadt a kapcsolat a kiszolgálóval.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>A kiszolgáló váratlan választ küldött.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>A kiszolgáló elutasította az automatikus csatlakozást.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>A következő alkalmazások olyan fájlokat használnak, amelyeket ennek a telepítőnek frissítenie kell.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Letöltve</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fájlok</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Adja meg a proxykiszolgáló címét és portját.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>A leválasztással leáll ennek a kapcsolatnak a szinkronizálása. Folytatja?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Számítógépnév</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Ezeket a beállításokat később a Drovia beállításai között módosíthatja.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>A Drovia-mappa megnyitása</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Indítás most</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>A telepítővarázsló készen áll a(z) [ProductName] javítására.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Frissített fájlok</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>A mappa ezen a számítógépen nem üres. A benne lévő fájlok egyesítve lesznek a kiszolgálón lévő mappával.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Fájljait bármely olyan számítógépről megnyithatja, amelyen fut a Drovia, vagy webböngészőből.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Válassza ki a szinkronizálandó fájlokat</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxykiszolgáló</translation>
    </message>
    <message>
        <source>October</source>
        <translation>október</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Kapcsolat szerkesztése</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>hétfő</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>A Drovia indexeli ezt a mappát.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>A Drovia névjegye</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Nem szükséges</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>További részletek</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>A letöltés befejeződött.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>A felhasználónév vagy a jelszó helytelen.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Maximális fájlméret (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Ez a kapcsolat inaktív.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>A Drovia már fut.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Új megosztott mappa</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Verzióeltérés</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktív</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Nem sikerült ellenőrizni a kiszolgáló tanúsítványát.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Ez a megosztott mappa már egy másik mappával szinkronizálódik.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Kihagyás</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Nyomtatás</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Ebben a mappában csak olvashatja a fájlokat.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Kiszolgálók keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Fájlnevek:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Átnevezve</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Minden esemény</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Kijavítja a legutóbbi telepítés hibáit a hiányzó és sérült fájlok, parancsikonok és beállításjegyzék-bejegyzések helyreállításával.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Ellenőrizze a felhasználónevet és a jelszót.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>A telepítővarázsló kijavítja a(z) [ProductName] telepítését.</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Mappa kiválasztása</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>A Drovia-mappába mentett fájlok automatikusan szinkronizálódnak a kiszolgálóval.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>A proxykiszolgáló jelszót kér</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Megtelt a lemez</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ismeretlen hiba történt.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Szűrés</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>A mappa nem található</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Változások észlelése...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappanév</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Nem sikerült engedélyezni a megosztott mappát.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>A fájl mindkét oldalon módosult. Az ütköző fájlról másolat készült.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Szinkronizálás szüneteltetése</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Válassza ki azt a mappát ezen a számítógépen, amelyet a Drovia szinkronban tart.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Következő %1 oldal</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A kapcsolat tesztelése...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>Az új nyelv a Drovia újraindítása után lép életbe.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Folyamat</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>További tippek</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>A telepítővarázsló telepíti a(z) [ProductName] programot a számítógépre. A folytatáshoz kattintson a Tovább gombra, a telepítővarázslóból való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Itt láthatja a kapcsolat részleteit.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Üdvözöljük</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Betelt a tárhelykvótája a kiszolgálón.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Telepítésre kész</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Módosítás</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Ez az elem nem tölthető le.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Szinkronizálási hiba</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Ez a mappa átfedésben van egy már szinkronizált mappával.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Írásvédett</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Válassza ki, mely mappákat és hogyan szeretné szinkronizálni.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Javítás</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>A(z) [ProductName] eltávolításra kész</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>A telepítés folytatásához zárja be az alább felsorolt alkalmazásokat.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Új verzió érhető el. Kattintson ide a frissítéshez.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Fájlkiterjesztések:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Olvassa el a licencszerződést.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Beállítások...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Múlt hét</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>A más eszközökön végzett módosítások itt is megjelennek.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nemrég módosított fájlok</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cél</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>A telepítés befejeződött.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>A(z) [ProductName] javításra kész</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>A szinkronizálási mappák be vannak állítva. A Drovia most megkezdi a szinkronizálást.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Hiányzik a verzióinformáció.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Beállítási mód kiválasztása</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>A kiszolgáló tanúsítványa megváltozott. Megbízik az új tanúsítványban?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Állapotinformáció</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>A(z) [ProductName] telepítővarázslója egy hiba miatt idő előtt befejeződött. A rendszer nem módosult.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Feltöltve</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Lehetőségek</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>A telepítés módosítása, javítása vagy eltávolítása</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Biztonságos kapcsolat használata (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>A gyors beállítás a saját mappáját szinkronizálja. A speciális beállításban Ön választja ki a mappákat.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Telepítés</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Letiltva</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Frissítés</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 napja</translation>
    </message>
    <message>
        <source>September</source>
        <translation>szeptember</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>vasárnap</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Kapcsolat leválasztása</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Mappa módosítása</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>A mappa szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 órája</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Korábbi verziók böngészése</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Kapcsolatok kezelése</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>csütörtök</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Új megosztott mappa érhető el: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>A szinkronizálás szünetel</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>A telepítővarázslóval módosíthatja, hogyan legyenek telepítve a(z) [ProductName] szolgáltatásai a számítógépen, illetve eltávolíthatja a programot a számítógépről. A folytatáshoz kattintson a Tovább gombra, a telepítővarázslóból való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Sikertelen hitelesítés</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, verzió: %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>A Drovia megnyitása</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Szinkronizálási állapotikonok megjelenítése a fájlokon és mappákon</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Elérte a megosztott mappák maximális számát.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Hálózati beállítások</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Feltöltés</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Nem sikerült eltávolítani a megosztott mappát.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>A fájl korábbi verziói nem listázhatók.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>A kiszolgálón lévő mappa nincs csatlakoztatva.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>A Drovia összes felhasználó számára történő telepítéséhez rendszergazdai jogosultság szükséges. Mindenképpen folytatja?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>A módosítások nincsenek mentve. Menti őket?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Adjon meg egy 1 és 65535 közötti portszámot.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Ezt a fájlt egy másik alkalmazás zárolja.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Rendszer alapértelmezése</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>A megosztott mappa szinkronizálása</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lehetővé teszi a szolgáltatások telepítési módjának módosítását.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Nincs elég szabad hely ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>A Drovia szinkronizálja a kiszolgálón lévő saját mappáját a számítógépen lévő Drovia-mappával.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>A megosztott mappa fájljai törlődnek erről a számítógépről. Folytatja?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Automatikus szinkronizálás</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Nem sikerült megnyitni a helyi adatbázist.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Újracsatlakozás</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Válassza ki a végrehajtandó műveletet.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>január</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Karbantartás</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Nincs megjeleníthető esemény.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Csatlakozás új kiszolgálóhoz</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Előzmények</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Hivatkozás megosztása</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>A Drovia bezárása</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>A szinkronizálási mappa egy nem csatlakoztatott meghajtón van.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Üdvözli a Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Hozzáférés megtagadva</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Biztonsági figyelmeztetés</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Szinkronizálja fájljait az összes eszközén.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Szinkronizálási előzmények</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Gyors beállítás</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Több nevet vesszővel válasszon el. A * helyettesítő karakterként használható.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>A(z) [ProductName] telepítője</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Kattintson a jobb gombbal egy fájlra a Drovia-mappában a fájl megosztásához vagy korábbi verzióinak megtekintéséhez.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Első lépések</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Szinkronizálási feladat hozzáadása</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Megosztás</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Kiszolgáló áttekintése</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>A Drovia ezen verziója már telepítve van. Szeretné újra telepíteni?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Írásvédett mappa</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Közvetített kapcsolat</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Ne legyenek szinkronizálva ezek a mappák</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Üdvözli a(z) [ProductName] telepítővarázslója</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Szűrt fájlok</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>A telepítővarázslót később újra futtathatja. A varázslóból való kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>A(z) [ProductName] telepítővarázslója befejeződött</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Megosztás és visszaállítás</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Szinkronizálási állapot megjelenítése</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>A Drovia indul...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Eltávolítja a(z) [ProductName] programot és annak összes fájlját.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Letöltés</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Minden kész!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> megosztott Önnel egy mappát.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Nem sikerült ellenőrizni a felhasználónevet vagy a jelszót.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>A kiszolgáló lemeze megtelt.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Végfelhasználói licencszerződés</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>A kijelölésből kivett mappák törlődnek erről a számítógépről, de a kiszolgálón megmaradnak.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>A Drovia megjelenítése</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>A megosztott mappa nincs csatlakoztatva a kiszolgálón.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Kiszolgálók keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Ne legyenek szinkronizálva ezek a fájlok:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Speciális beállítás varázsló</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Megosztott mappa</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Ikonok megjelenítése a szűrt fájlokon</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Új kiszolgáló csatolása</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>A(z) [ProductName] telepítendő szolgáltatásainak módosítása.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Ez a mappa egy másik kiszolgálóhoz tartozik.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Csatlakoztatási pont hiba</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>A kiszolgáló verziója túl régi a Drovia ezen verziójához. Frissítse a kiszolgálót.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>A hálózati meghajtókon történt változásokat a program rendszeres időközönként ellenőrzi, így a szinkronizálásuk eltarthat egy ideig.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Csatlakozás a Quelmix szolgáltatáson keresztül</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Mindig biztonságos kapcsolat használata</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>A(z) [ProductName] telepítővarázslója idő előtt befejeződött</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Quelmix-kapcsolaton keresztül a fájlmegosztás nem érhető el.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappák</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Ez a mappa csatlakoztatási pont, ezért nem szinkronizálható.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Ehhez a mappához csak olvasási joga van. Az ezen a számítógépen végzett módosítások nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Kezdete</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>A megosztási hivatkozások nem érhetők el, mert a Korvo ki van kapcsolva.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Ezt a mappát egy másik szinkronizáló alkalmazás is szinkronizálja. A kétszeres szinkronizálás ütközéseket okozhat.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>A(z) [ProductName] telepítővarázslója megszakadt</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>A Drovia nem tudott elindulni. Telepítse újra a Drovia alkalmazást.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Minden mappa csak egy kapcsolattal szinkronizálható.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Engedélyezve</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>A(z) [ProductName] telepítése megszakadt. A rendszer nem módosult.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Egyéni</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Múlt hónap</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Fájl megnyitása</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>A Drovia inicializálása...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Nem fogadom el a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Minden készen áll</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Kijavítja a legutóbbi telepítés hibáit.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Folytatás mindenképp</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Leállítja ennek a megosztott mappának a szinkronizálását?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Hálózati hiba. Ellenőrizze a kapcsolatot.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>A Korvo le van tiltva</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>A kiszolgáló azonosítója érvénytelen.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Fekete-fehér menüsorikon használata</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Fájlok egyesítése az első szinkronizáláskor</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Cím</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>A ponttal kezdődő nevű fájlok kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Kulcsszó</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>A(z) [ProductName] telepítése sikeresen befejeződött.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>A varázsló bezárásához kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elem</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Telepítés</translation>
    </message>
    <message>
        <source>February</source>
        <translation>február</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Kiszolgálók keresése a helyi hálózaton...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Fájltípus</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Állapot:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>A(z) [ProductName] nem rendelkezik egyenként kiválasztható szolgáltatásokkal.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>A Korvo ki van kapcsolva a kiszolgálón. Kérje meg a rendszergazdát, hogy kapcsolja be.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Osszon meg egy fájlt hivatkozással, vagy térjen vissza annak egy korábbi verziójához.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Várjon, amíg a telepítővarázsló telepíti a(z) [ProductName] programot.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>A(z) [ProductName] telepítésre kész</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>A(z) [ProductName] indítása</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>szerda</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxybeállítások</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 perce</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Az oktatóanyag ismételt megjelenítése</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>A mappák szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nem</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Válassza ki a kiszolgálóval szinkronizálandó mappát.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Szinkronizálva</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Ne zárja be az alkalmazásokat. Újraindításra lesz szükség.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>A Drovia megnyitásához kattintson duplán az ikonra</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Szinkronizálási mappa módosítása</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>A telepítővarázsló eltávolítja a(z) [ProductName] programot a számítógépről.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vége</translation>
    </message>
    <message>
        <source>June</source>
        <translation>június</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Szinkronizálás: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Helyi szinkronizálási mappa</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Ez a mappa írásvédett. Az itt végzett módosítások nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Megjelenítés mappában</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nemrég frissített fájlok</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Igen</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>A mappa nem üres</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Ne legyen szinkronizálva ez a mappa</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>A csatlakozás sikerült.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>A kapcsolat instabil.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Tárhely</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>A Drovia készen áll.</translation>
    </message>
</context>
</TS>
