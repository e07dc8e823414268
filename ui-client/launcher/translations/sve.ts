<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Installera för att starta installationen. Klicka på Tillbaka om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Alldeles nyss</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia håller filerna på den här datorn synkroniserade med din server. Allt du lägger i Drovia-mappen är tillgängligt på alla dina enheter.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Välj om du vill ändra, reparera eller ta bort [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Vänta medan installationsguiden installerar [ProductName].  Det kan ta flera minuter.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Följande program bör stängas innan installationen fortsätter:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Vill du verkligen koppla från den här anslutningen? Filer som redan har synkroniserats finns kvar på den här datorn.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Det gick inte att upprätta en säker anslutning till servern.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Välj en synkroniseringsmapp</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Uppgraderingen misslyckades. Försök igen senare.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Läs följande licensavtal noggrant.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Läser in mappar...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktanslutning</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Filer vars namn eller filnamnstillägg matchar dessa synkroniseras inte.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Visa inte det här meddelandet igen</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfiguration</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Uppgraderar...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Servern har ändrats. Kontrollera anslutningen.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Försöker synkronisera...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Filerna i den här mappen sammanfogas med mappen på servern.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumintervall</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>Stäng program &amp;automatiskt och försök starta om dem när installationen är klar.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nätverk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Uppdaterad</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Starta Drovia när jag loggar in</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Det går inte att skapa en delningslänk för det här objektet.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Reparera för att reparera installationen av [ProductName]. Klicka på Tillbaka om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Ange ett användarnamn.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>Installationen avbröts.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>Den valda mappen är inte tom. Välj en tom mapp.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicka på Slutför för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Bearbetar %1 fil(er)...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Uppgradera Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Tar bort [ProductName] från datorn.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Drovia-mappen är konfigurerad och klar att synkronisera.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tisdag</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Den här mappen kan inte användas för synkronisering. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusti</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Delade mappar</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Installationsguiden är redo att påbörja installationen av [ProductName].</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Föregående %1 sidor</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installerar [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Kom åt dina filer var som helst</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Anslutningsinformation</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Hämtningen avbröts.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Välj en annan mapp på den här datorn eller på servern.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Anslutningsläge</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Uppgradera serverpaketet för att använda selektiv synkronisering.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>En nyare version av Drovia är redan installerad.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Hämtningen misslyckades.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Uppdaterar...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Du har valt att ta bort programmet från datorn.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adress</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Den här datorn är redan ansluten till den här servern.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avancerad konfiguration</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lördag</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Välj de mappar som ska synkroniseras</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Vill du verkligen avbryta installationen av [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Uppfattat</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Serverns certifikat har ändrats.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Den här mappen synkroniseras redan med en annan anslutning.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Identifierar anslutning...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserar...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Misslyckades</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Dina filer, överallt.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerar filer...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Inga inställningar har ändrats.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Ta bort för att ta bort [ProductName] från datorn. Klicka på Tillbaka om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Försök igen</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Den här versionen av Drovia är för gammal för servern. Uppgradera Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Jag &amp;accepterar villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Mappen synkroniseras redan</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Vissa filer som behöver uppdateras används för närvarande.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Återuppta synkroniseringen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia har slutat synkronisera på grund av ett fel. Öppna Drovia för mer information.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsläge</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Filer som är större än den här storleken synkroniseras inte.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>Installationen avslutades i förtid på grund av ett fel.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Synkronisera Drovia-mappen i din hemmapp med din hemmapp på servern.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Välj den mapp på servern och den mapp på den här datorn som ska synkroniseras.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ogiltig parameter.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Det går inte att hitta den lokala synkroniseringsmappen.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Det gick inte att ansluta till servern automatiskt. Kontrollera nätverksinställningarna.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Anslutningen till servern bröts.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Servern skickade ett oväntat svar.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa skrivbordsaviseringar</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Servern nekade den automatiska anslutningen.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Följande program använder filer som måste uppdateras av installationsprogrammet.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Hämtad</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Ange proxyserverns adress och port.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>När du kopplar från slutar den här anslutningen att synkroniseras. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Radera</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datornamn</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Du kan ändra de här inställningarna senare i inställningarna för Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Öppna Drovia-mappen</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>Installationsguiden är redo att reparera [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Uppdaterade filer</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>Mappen på den här datorn är inte tom. Filerna i den sammanfogas med mappen på servern.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Öppna dina filer från valfri dator som kör Drovia, eller från en webbläsare.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Välj de filer som ska synkroniseras</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Filer som används</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxyserver</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Redigera anslutning</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>måndag</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia indexerar den här mappen.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Om Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Behövs inte</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mer information</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Hämtningen är klar.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Maximal filstorlek (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Den här anslutningen är inaktiv.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia körs redan.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delad mapp</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerna matchar inte</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Det gick inte att verifiera serverns certifikat.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Den här delade mappen synkroniseras redan med en annan mapp.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorera</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Skriv &amp;ut</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Du kan bara läsa filerna i den här mappen.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Sök efter servrar i det lokala nätverket</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Filnamn:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Namnbytt</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alla händelser</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Reparerar fel i den senaste installationen genom att åtgärda saknade och skadade filer, genvägar och registerposter.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Kontrollera ditt användarnamn och lösenord.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>Installationsguiden reparerar installationen av [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Filer som du sparar i Drovia-mappen synkroniseras automatiskt till servern.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxyservern kräver ett lösenord</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken är full</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ett okänt fel uppstod.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrera</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Mappen hittades inte</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Identifierar ändringar...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Det gick inte att aktivera den delade mappen.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Filen ändrades på båda sidor. En kopia av den konfliktande filen har sparats.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausa synkroniseringen</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Välj den mapp på den här datorn som Drovia ska hålla synkroniserad.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nästa %1 sidor</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>Det nya språket börjar gälla när Drovia har startats om.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Fler tips</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerar [ProductName] på datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Här ser du information om den här anslutningen.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsuppgifter</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Din lagringskvot på servern är full.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Klar att installera</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Ändra</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Det här objektet kan inte hämtas.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synkroniseringsfel</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Den här mappen överlappar en mapp som redan synkroniseras.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Välj vilka mappar som ska synkroniseras och hur.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparera</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Klar att ta bort [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Stäng programmen i listan nedan för att fortsätta installationen.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>En ny version är tillgänglig. Klicka för att uppgradera.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Filnamnstillägg:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Läs licensavtalet.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Inställningar...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Förra veckan</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Ändringar som du gör på andra enheter visas också här.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nyligen ändrade filer</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Installationen är klar.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Klar att reparera [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Dina synkroniseringsmappar är konfigurerade. Drovia börjar synkronisera nu.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Versionsinformationen saknas.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Välj konfigurationsläge</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tillämpar inställningar...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Serverns certifikat har ändrats. Vill du lita på det nya certifikatet?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformation</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Installationsguiden för [ProductName] avslutades i förtid på grund av ett fel. Systemet har inte ändrats.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uppladdad</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Ändra, reparera eller ta bort installationen</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Använd en säker anslutning (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Snabbkonfiguration synkroniserar din hemmapp. Med avancerad konfiguration väljer du mapparna själv.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Installerar</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Uppgradera</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>För %1 dagar sedan</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>söndag</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Koppla från anslutning</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Byt mapp</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Återuppta synkroniseringen av den här mappen</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>För %1 timmar sedan</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Bläddra bland tidigare versioner</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Hantera anslutningar</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>En ny delad mapp är tillgänglig: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Synkroniseringen är pausad</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Med installationsguiden kan du ändra hur funktionerna i [ProductName] installeras på datorn eller ta bort programmet från datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autentiseringen misslyckades</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, version %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Öppna Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Visa synkroniseringsstatus som ikoner på filer och mappar</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Det högsta antalet delade mappar har uppnåtts.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nätverksinställningar</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Laddar upp</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Det gick inte att ta bort den delade mappen.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Det går inte att visa tidigare versioner av den här filen.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>Mappen på servern är inte monterad.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Du behöver administratörsbehörighet för att installera Drovia för alla användare. Vill du fortsätta ändå?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Ändringarna har inte sparats. Vill du spara dem?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Ange ett portnummer mellan 1 och 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Den här filen är låst av ett annat program.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synkronisera den här delade mappen</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Här kan du ändra hur funktionerna installeras.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på den här datorn.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia synkroniserar din hemmapp på servern med Drovia-mappen på den här datorn.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Filerna i den här delade mappen tas bort från den här datorn. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Synkronisera automatiskt</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Det gick inte att öppna den lokala databasen.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Återanslut</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Välj den åtgärd som du vill utföra.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Underhåll</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Det finns inga händelser att visa.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Anslut till en ny server</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Dela länk</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sammanfoga</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Avsluta Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>Synkroniseringsmappen finns på en enhet som inte är ansluten.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Välkommen till Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Åtkomst nekad</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Säkerhetsvarning</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Synkronisera dina filer mellan alla dina enheter.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synkroniseringshistorik</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snabbkonfiguration</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Avgränsa flera namn med kommatecken. Du kan använda * som jokertecken.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation av [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Högerklicka på en fil i Drovia-mappen om du vill dela den eller se tidigare versioner av den.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Kom igång</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Lägg till en synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Delning</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveröversikt</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Den här versionen av Drovia är redan installerad. Vill du installera den igen?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivskyddad mapp</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Hämtar...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Reläanslutning</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Synkronisera inte de här mapparna</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Välkommen till installationsguiden för [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Filtrerade filer</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Du kan köra installationsguiden igen senare. Klicka på Slutför för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Installationsguiden för [ProductName] är klar</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Dela och återställ</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Visa synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia startar...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Avinstallerar [ProductName] och alla dess filer.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Hämtar</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Allt klart!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> har delat en mapp med dig.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Det gick inte att verifiera användarnamnet eller lösenordet.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Disken på servern är full.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Licensavtal för slutanvändare</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Mappar som du avmarkerar tas bort från den här datorn men finns kvar på servern.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Visa Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Den delade mappen är inte monterad på servern.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Hitta servrar i ditt lokala nätverk</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Synkronisera inte de här filerna:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Guide för avancerad konfiguration</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delad mapp</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Visa ikoner på filtrerade filer</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Länka en ny server</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Endast hämtning</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Ändra vilka funktioner i [ProductName] som installeras.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Den här mappen tillhör en annan server.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Fel på monteringspunkt</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>Serverversionen är för gammal för den här versionen av Drovia. Uppgradera servern.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Ändringar på nätverksenheter kontrolleras med jämna mellanrum och det kan ta en stund innan de synkroniseras.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Anslut via Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Använd alltid en säker anslutning</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>Installationsguiden för [ProductName] avslutades i förtid</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Fildelning är inte tillgänglig via en Quelmix-anslutning.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Den här mappen är en monteringspunkt och kan inte synkroniseras.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Du har bara läsbehörighet till den här mappen. Ändringar på den här datorn synkroniseras inte.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Delningslänkar är inte tillgängliga eftersom Korvo är avstängt.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Den här mappen synkroniseras även av ett annat synkroniseringsprogram. Att synkronisera den två gånger kan orsaka konflikter.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>Installationsguiden för [ProductName] avbröts</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia kunde inte starta. Installera om Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Varje mapp kan bara synkroniseras med en anslutning.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverad</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Installationen av [ProductName] avbröts. Systemet har inte ändrats.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Anpassat</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Förra månaden</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Öppna fil</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia initieras...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Jag accepterar &amp;inte villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Nu är allt klart</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Reparerar fel i den senaste installationen.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsätt ändå</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Vill du sluta synkronisera den här delade mappen?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Nätverksfel. Kontrollera anslutningen.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo är inaktiverat</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>Server-ID:t är ogiltigt.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Använd en svartvit ikon i menyraden</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Sammanfoga filer vid första synkroniseringen</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adress</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappsökväg</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Synkronisera inte filer vars namn börjar med en punkt</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Nyckelord</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] har installerats.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klicka på Slutför för att stänga guiden.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 objekt</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installera</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Söker efter servrar i ditt lokala nätverk...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtyp</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] har inga funktioner som kan väljas separat.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo är avstängt på servern. Be administratören att aktivera det.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Dela en fil med en länk eller gå tillbaka till en tidigare version av den.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Vänta medan installationsguiden installerar [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Klar att installera [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Starta [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinställningar</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>För %1 minuter sedan</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Visa introduktionen igen</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Återuppta synkroniseringen av de här mapparna</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Välj den mapp som ska synkroniseras med servern.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Synkroniserad</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Stäng inte program. Datorn måste startas om.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Dubbelklicka på ikonen för att öppna Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Byt synkroniseringsmapp</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>Installationsguiden tar bort [ProductName] från datorn.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synkroniserar: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmapp</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Den här mappen är skrivskyddad. Ändringar som du gör här synkroniseras inte.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Visa i mapp</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nyligen uppdaterade filer</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Synkronisera inte den här mappen</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Anslutningen upprättades.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>Anslutningen är instabil.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagring</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia är redo.</translation>
    </message>
</context>
</TS>
