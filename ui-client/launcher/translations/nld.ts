<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Installeren om de installatie te starten. Klik op Vorige om de installatie-instellingen te controleren of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Zojuist</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia houdt de bestanden op deze computer gesynchroniseerd met uw server. Alles wat u in uw Drovia-map plaatst, is beschikbaar op al uw apparaten.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>maart</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Kies of u [ProductName] wilt wijzigen, herstellen of verwijderen.</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Een ogenblik geduld. De installatiewizard installeert [ProductName]. Dit kan enkele minuten duren.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>De volgende toepassingen moeten worden gesloten voordat de installatie kan worden voortgezet:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Weet u zeker dat u deze verbinding wilt ontkoppelen? Bestanden die al zijn gesynchroniseerd, blijven op deze computer staan.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Er kan geen beveiligde verbinding met de server tot stand worden gebracht.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Geen proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Kies een synchronisatiemap</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Het bijwerken is mislukt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lees de volgende licentieovereenkomst aandachtig door.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Mappen laden...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Directe verbinding</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Bestanden die overeenkomen met deze namen of extensies, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Dit bericht niet meer weergeven</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Handmatige proxyconfiguratie</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Bijwerken...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>De server is gewijzigd. Controleer de verbinding.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Poging tot synchroniseren...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>De bestanden in deze map worden samengevoegd met de map op de server.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>Toepassingen automatisch &amp;sluiten en proberen ze opnieuw te starten nadat de installatie is voltooid.</translation>
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
        <translation>Lokaal netwerk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Bijgewerkt</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Drovia starten wanneer ik me aanmeld</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Er kan geen deellink voor dit item worden gemaakt.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Herstellen om de installatie van [ProductName] te herstellen. Klik op Vorige om de installatie-instellingen te controleren of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Voer een gebruikersnaam in.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>De installatie is onderbroken.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>De geselecteerde map is niet leeg. Kies een lege map.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinding maken...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vrijdag</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik op Voltooien om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 bestand(en) verwerken...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Drovia bijwerken</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Verwijdert [ProductName] van de computer.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Uw Drovia-map is ingesteld en klaar om te synchroniseren.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Opnieuw instellen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>dinsdag</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Deze map kan niet worden gebruikt voor synchronisatie. Kies een andere map.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augustus</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Gedeelde mappen</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>De installatiewizard is gereed om met de installatie van [ProductName] te beginnen.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorige %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>[ProductName] installeren</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Overal toegang tot uw bestanden</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Verbindingsgegevens</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Het downloaden is geannuleerd.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Kies een andere map op deze computer of op de server.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Verbindingsmodus</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Werk het serverpakket bij om selectieve synchronisatie te gebruiken.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Er is al een nieuwere versie van Drovia geïnstalleerd.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Het downloaden is mislukt.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Bijwerken...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>U hebt ervoor gekozen het programma van de computer te verwijderen.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adres</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Deze computer is al met deze server verbonden.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Geavanceerde configuratie</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>zaterdag</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Kies de mappen die u wilt synchroniseren</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Weet u zeker dat u de installatie van [ProductName] wilt annuleren?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Begrepen</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Het certificaat van de server is gewijzigd.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Deze map wordt al gesynchroniseerd met een andere verbinding.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Verbinding detecteren...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchroniseren...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Uw bestanden, overal.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Bestanden controleren...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Er zijn geen instellingen gewijzigd.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Verwijderen om [ProductName] van de computer te verwijderen. Klik op Vorige om de installatie-instellingen te controleren of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opnieuw proberen</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Deze versie van Drovia is te oud voor de server. Werk Drovia bij.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Ik &amp;ga akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Map wordt al gesynchroniseerd</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Sommige bestanden die moeten worden bijgewerkt, zijn momenteel in gebruik.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Synchronisatie hervatten</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Deze computer</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia is gestopt met synchroniseren vanwege een fout. Open Drovia voor meer informatie.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisatiemodus</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Bestanden die groter zijn dan deze grootte, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>De installatie is voortijdig beëindigd vanwege een fout.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Synchroniseert de Drovia-map in uw thuismap met uw thuismap op de server.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Kies de map op de server en de map op deze computer die u wilt synchroniseren.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ongeldige parameter.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>De lokale synchronisatiemap kan niet worden gevonden.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>De server kan niet automatisch worden bereikt. Controleer uw netwerkinstellingen.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>De verbinding met de server is verbroken.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>De server heeft een onverwacht antwoord verzonden.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Bureaubladmeldingen weergeven</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>De server heeft de automatische verbinding geweigerd.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>De volgende toepassingen gebruiken bestanden die door deze installatie moeten worden bijgewerkt.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Gedownload</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Voer het adres en de poort van de proxyserver in.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Door te ontkoppelen wordt de synchronisatie van deze verbinding gestopt. Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernaam</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>U kunt deze instellingen later wijzigen in de instellingen van Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Drovia-map openen</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Nu starten</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>De installatiewizard is gereed om [ProductName] te herstellen.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Bijgewerkte bestanden</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>De map op deze computer is niet leeg. De bestanden worden samengevoegd met de map op de server.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Open uw bestanden op elke computer waarop Drovia wordt uitgevoerd, of in een webbrowser.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Kies de bestanden die u wilt synchroniseren</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Bestanden in gebruik</translation>
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
        <translation>Verbinding bewerken</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>maandag</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia indexeert deze map.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Over Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Niet nodig</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Meer details</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Het downloaden is voltooid.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Maximale bestandsgrootte (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Deze verbinding is inactief.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia wordt al uitgevoerd.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nieuwe gedeelde map</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versies komen niet overeen</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactief</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Het certificaat van de server kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Deze gedeelde map wordt al met een andere map gesynchroniseerd.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Negeren</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>U kunt de bestanden in deze map alleen lezen.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Servers zoeken in het lokale netwerk</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Bestandsnamen:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Naam gewijzigd</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle gebeurtenissen</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Herstelt fouten in de meest recente installatie door ontbrekende en beschadigde bestanden, snelkoppelingen en registervermeldingen te herstellen.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Controleer uw gebruikersnaam en wachtwoord.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>De installatiewizard herstelt de installatie van [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecteer een map</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Bestanden die u in uw Drovia-map opslaat, worden automatisch met de server gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>De proxyserver vereist een wachtwoord</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Schijf vol</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Geavanceerde instellingen</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Er is een onbekende fout opgetreden.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filteren</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Map niet gevonden</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Wijzigingen detecteren...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>De gedeelde map kan niet worden ingeschakeld.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Het bestand is aan beide kanten gewijzigd. Er is een kopie van het conflicterende bestand bewaard.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Synchronisatie pauzeren</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Kies de map op deze computer die Drovia gesynchroniseerd moet houden.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Volgende %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbinding testen...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>De nieuwe taal wordt actief nadat Drovia opnieuw is gestart.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internetverbinding</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Meer tips</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Met de installatiewizard wordt [ProductName] op de computer geïnstalleerd. Klik op Volgende om door te gaan of op Annuleren om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Hier ziet u de details van deze verbinding.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Uw opslagquotum op de server is vol.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Gereed om te installeren</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Wijzigen</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Dit item kan niet worden gedownload.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synchronisatiefout</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Deze map overlapt met een map die al wordt gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Kies welke mappen u wilt synchroniseren en hoe.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Gereed om [ProductName] te verwijderen</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Sluit de onderstaande toepassingen om door te gaan met de installatie.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Er is een nieuwe versie beschikbaar. Klik om bij te werken.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Bestandsextensies:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Lees de licentieovereenkomst.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Instellingen...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Vorige week</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Een andere map kiezen</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Wijzigingen die u op andere apparaten aanbrengt, worden hier ook weergegeven.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Recent gewijzigde bestanden</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>De installatie is voltooid.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Gereed om [ProductName] te herstellen</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Uw synchronisatiemappen zijn ingesteld. Drovia begint nu met synchroniseren.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>De versie-informatie ontbreekt.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Kies een configuratiemodus</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Instellingen toepassen...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Het certificaat van de server is gewijzigd. Wilt u het nieuwe certificaat vertrouwen?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformatie</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>De installatiewizard van [ProductName] is voortijdig beëindigd vanwege een fout. Uw systeem is niet gewijzigd.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Geüpload</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Installatie wijzigen, herstellen of verwijderen</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Een beveiligde verbinding gebruiken (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Bij snelle configuratie wordt uw thuismap gesynchroniseerd. Bij geavanceerde configuratie kiest u zelf de mappen.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Bezig met installeren</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Bijwerken</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dagen geleden</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>zondag</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Verbinding ontkoppelen</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Map wijzigen</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Synchronisatie van deze map hervatten</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 uur geleden</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Vorige versies bekijken</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Verbindingen beheren</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>donderdag</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Er is een nieuwe gedeelde map beschikbaar: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Synchronisatie is gepauzeerd</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Met de installatiewizard kunt u wijzigen hoe de onderdelen van [ProductName] op de computer worden geïnstalleerd, of het programma van de computer verwijderen. Klik op Volgende om door te gaan of op Annuleren om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Verificatie mislukt</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, versie %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Drovia openen</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Pictogrammen voor de synchronisatiestatus op bestanden en mappen weergeven</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Het maximale aantal gedeelde mappen is bereikt.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netwerkinstellingen</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploaden</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>De gedeelde map kan niet worden verwijderd.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>De vorige versies van dit bestand kunnen niet worden weergegeven.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>De map op de server is niet gekoppeld.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>U hebt beheerdersrechten nodig om Drovia voor alle gebruikers te installeren. Toch doorgaan?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Uw wijzigingen zijn niet opgeslagen. Wilt u ze opslaan?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Voer een poortnummer tussen 1 en 65535 in.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Dit bestand is vergrendeld door een andere toepassing.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systeemstandaard</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Deze gedeelde map synchroniseren</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Hiermee kunt u wijzigen hoe onderdelen worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Er is onvoldoende vrije ruimte op deze computer.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia synchroniseert uw thuismap op de server met de Drovia-map op deze computer.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>De bestanden van deze gedeelde map worden van deze computer verwijderd. Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Automatisch synchroniseren</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>De lokale database kan niet worden geopend.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opnieuw verbinden</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Selecteer de bewerking die u wilt uitvoeren.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Onderhoud</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Geen gebeurtenissen om weer te geven.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Verbinding maken met een nieuwe server</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Delen via link</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Drovia afsluiten</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>De synchronisatiemap bevindt zich op een station dat niet is aangesloten.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Welkom bij Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Beveiligingswaarschuwing</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Synchroniseer uw bestanden op al uw apparaten.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synchronisatiegeschiedenis</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snelle configuratie</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Scheid meerdere namen met komma&apos;s. U kunt * als jokerteken gebruiken.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installatie van [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Klik met de rechtermuisknop op een bestand in uw Drovia-map om het te delen of eerdere versies ervan te bekijken.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Aan de slag</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Synchronisatietaak toevoegen</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroverzicht</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Deze versie van Drovia is al geïnstalleerd. Wilt u deze opnieuw installeren?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Alleen-lezen map</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloaden...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relayverbinding</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Deze mappen niet synchroniseren</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Welkom bij de installatiewizard van [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Gefilterde bestanden</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>U kunt de installatiewizard later opnieuw uitvoeren. Klik op Voltooien om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>De installatiewizard van [ProductName] is voltooid</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Delen en herstellen</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Synchronisatiestatus weergeven</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia wordt gestart...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Verwijdert [ProductName] en alle bijbehorende bestanden.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Downloaden</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Klaar!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> heeft een map met u gedeeld.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>De gebruikersnaam of het wachtwoord kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>De schijf op de server is vol.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Licentieovereenkomst voor eindgebruikers</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Mappen die u deselecteert, worden van deze computer verwijderd maar blijven op de server staan.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Drovia weergeven</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>De gedeelde map is niet gekoppeld op de server.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Proxy-instellingen van het systeem gebruiken</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Servers zoeken in uw lokale netwerk</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Deze bestanden niet synchroniseren:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Wizard voor geavanceerde configuratie</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Gedeelde map</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Pictogrammen op gefilterde bestanden weergeven</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Een nieuwe server koppelen</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Alleen downloaden</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Wijzigt welke onderdelen van [ProductName] worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Deze map hoort bij een andere server.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Fout met koppelpunt</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>De serverversie is te oud voor deze versie van Drovia. Werk de server bij.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Wijzigingen op netwerkstations worden met regelmatige tussenpozen gecontroleerd, waardoor het synchroniseren ervan enige tijd kan duren.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Verbinden via Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Altijd een beveiligde verbinding gebruiken</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>De installatiewizard van [ProductName] is voortijdig beëindigd</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Bestanden delen is niet beschikbaar via een Quelmix-verbinding.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Deze map is een koppelpunt en kan niet worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>U hebt alleen leestoegang tot deze map. Wijzigingen op deze computer worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Deellinks zijn niet beschikbaar omdat Korvo is uitgeschakeld.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Deze map wordt ook door een andere synchronisatietoepassing gesynchroniseerd. Dubbel synchroniseren kan conflicten veroorzaken.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>De installatiewizard van [ProductName] is onderbroken</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia kan niet worden gestart. Installeer Drovia opnieuw.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Elke map kan met slechts één verbinding worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Beheren</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>De installatie van [ProductName] is onderbroken. Uw systeem is niet gewijzigd.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Aangepast</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Bestand openen</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia wordt geïnitialiseerd...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Ik ga &amp;niet akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Alles is klaar</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Herstelt fouten in de meest recente installatie.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Toch doorgaan</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Wilt u stoppen met het synchroniseren van deze gedeelde map?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Netwerkfout. Controleer uw verbinding.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo uitgeschakeld</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>De server-ID is ongeldig.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Een zwart-wit pictogram in de menubalk gebruiken</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Bestanden samenvoegen bij de eerste synchronisatie</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Bestanden waarvan de naam met een punt begint, niet synchroniseren</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Trefwoord</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] is geïnstalleerd.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klik op Voltooien om de wizard te sluiten.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installeren</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Servers zoeken in uw lokale netwerk...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] heeft geen onderdelen die afzonderlijk kunnen worden geselecteerd.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo is uitgeschakeld op de server. Vraag uw beheerder om het in te schakelen.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Deel een bestand via een link of ga terug naar een eerdere versie ervan.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Een ogenblik geduld. De installatiewizard installeert [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Gereed om [ProductName] te installeren</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] starten</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>woensdag</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy-instellingen</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuten geleden</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>De rondleiding opnieuw weergeven</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Synchronisatie van deze mappen hervatten</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Kies de map die u met de server wilt synchroniseren.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Gesynchroniseerd</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>Toepassingen &amp;niet sluiten. De computer moet opnieuw worden opgestart.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Dubbelklik op het pictogram om Drovia te openen</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisatiemap wijzigen</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>De installatiewizard verwijdert [ProductName] van de computer.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchroniseren: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokale synchronisatiemap</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Deze map is alleen-lezen. Wijzigingen die u hier aanbrengt, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Weergeven in map</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Recent bijgewerkte bestanden</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Map is niet leeg</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Deze map niet synchroniseren</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Verbinding gemaakt.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>De verbinding is instabiel.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Opslag</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia is gereed.</translation>
    </message>
</context>
</TS>
