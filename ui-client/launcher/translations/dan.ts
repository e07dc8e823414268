<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Installer for at starte installationen. Klik på Tilbage for at gennemse eller ændre dine installationsindstillinger. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Lige nu</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia holder filerne på denne computer synkroniseret med din server. Alt, hvad du lægger i din Drovia-mappe, er tilgængeligt på alle dine enheder.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marts</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Vælg, om du vil ændre, reparere eller fjerne [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Vent, mens installationsguiden installerer [ProductName].  Dette kan tage flere minutter.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Følgende programmer skal lukkes, før installationen kan fortsætte:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Er du sikker på, at du vil frakoble denne forbindelse? Filer, der allerede er synkroniseret, bliver på denne computer.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Der kunne ikke oprettes en sikker forbindelse til serveren.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Vælg en synkroniseringsmappe</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Opgraderingen mislykkedes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Læs følgende licensaftale omhyggeligt.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Indlæser mapper...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oprettet</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Filer, hvis navne eller filtypenavne matcher disse, bliver ikke synkroniseret.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Vis ikke denne meddelelse igen</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuel proxykonfiguration</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Opgraderer...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Serveren er ændret. Kontrollér forbindelsen.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Forsøger at synkronisere...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Filerne i denne mappe flettes med mappen på serveren.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointerval</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>Luk &amp;automatisk programmerne, og forsøg at genstarte dem, når installationen er fuldført.</translation>
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
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Start Drovia, når jeg logger på</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Der kan ikke oprettes et delingslink til dette element.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Reparer for at reparere installationen af [ProductName]. Klik på Tilbage for at gennemse eller ændre dine installationsindstillinger. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Angiv et brugernavn.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>Installationen blev afbrudt.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>Den valgte mappe er ikke tom. Vælg en tom mappe.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik på knappen Udfør for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Behandler %1 fil(er)...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Opgrader Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra computeren.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Din Drovia-mappe er konfigureret og klar til synkronisering.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Denne mappe kan ikke bruges til synkronisering. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>august</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Installationsguiden er klar til at starte installationen af [ProductName].</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installerer [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Få adgang til dine filer overalt</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Forbindelsesoplysninger</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Downloaden blev annulleret.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Vælg en anden mappe på denne computer eller på serveren.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Forbindelsestilstand</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Opgrader serverpakken for at bruge selektiv synkronisering.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>En nyere version af Drovia er allerede installeret.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Downloaden mislykkedes.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Opdaterer...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Du har valgt at fjerne programmet fra computeren.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adresse</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Denne computer har allerede forbindelse til denne server.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avanceret opsætning</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Vælg de mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Er du sikker på, at du vil annullere installationen af [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Forstået</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Serverens certifikat er ændret.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Denne mappe synkroniseres allerede med en anden forbindelse.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Registrerer forbindelse...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislykkedes</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Dine filer, overalt.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerer filer...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Ingen indstillinger er ændret.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Fjern for at fjerne [ProductName] fra computeren. Klik på Tilbage for at gennemse eller ændre dine installationsindstillinger. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igen</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Denne version af Drovia er for gammel til serveren. Opgrader Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Jeg &amp;accepterer betingelserne i licensaftalen</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Mappen synkroniseres allerede</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Nogle af de filer, der skal opdateres, er i brug.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Genoptag synkronisering</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne computer</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia har stoppet synkroniseringen på grund af en fejl. Åbn Drovia for at se detaljer.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringstilstand</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Filer, der er større end denne størrelse, bliver ikke synkroniseret.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>Installationen blev afsluttet for tidligt på grund af en fejl.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Synkroniser Drovia-mappen i din hjemmemappe med din hjemmemappe på serveren.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Vælg den mappe på serveren og den mappe på denne computer, der skal synkroniseres.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ugyldig parameter.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Den lokale synkroniseringsmappe blev ikke fundet.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Der kunne ikke automatisk oprettes forbindelse til serveren. Kontrollér dine netværksindstillinger.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Forbindelsen til serveren blev afbrudt.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Serveren sendte et uventet svar.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsmeddelelser</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Serveren afviste den automatiske forbindelse.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Følgende programmer bruger filer, der skal opdateres af denne installation.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloadet</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Angiv proxyserverens adresse og port.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Når du frakobler, stopper synkroniseringen af denne forbindelse. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Du kan ændre disse indstillinger senere under indstillingerne for Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Åbn Drovia-mappen</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>Installationsguiden er klar til at reparere [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Opdaterede filer</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>Mappen på denne computer er ikke tom. Dens filer flettes med mappen på serveren.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Åbn dine filer fra en hvilken som helst computer, der kører Drovia, eller fra en webbrowser.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Vælg de filer, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Filer i brug</translation>
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
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>mandag</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia indekserer denne mappe.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Om Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Ikke nødvendigt</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Flere detaljer</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Downloaden er fuldført.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Brugernavnet eller adgangskoden er forkert.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Maksimal filstørrelse (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Denne forbindelse er inaktiv.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia kører allerede.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerne passer ikke sammen</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Serverens certifikat kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Denne delte mappe synkroniseres allerede med en anden mappe.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Udskriv</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Du kan kun læse filerne i denne mappe.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Frakobl</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Søg efter servere på det lokale netværk</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Filnavne:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøbt</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hændelser</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Reparerer fejl i den seneste installation ved at rette manglende og beskadigede filer, genveje og poster i registreringsdatabasen.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Kontrollér dit brugernavn og din adgangskode.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>Installationsguiden reparerer installationen af [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vælg en mappe</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Filer, du gemmer i din Drovia-mappe, synkroniseres automatisk med serveren.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxyserveren kræver en adgangskode</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken er fuld</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Der opstod en ukendt fejl.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrér</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Mappen blev ikke fundet</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Registrerer ændringer...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Den delte mappe kunne ikke aktiveres.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Filen blev ændret begge steder. Der er gemt en kopi af filen med konflikten.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Sæt synkronisering på pause</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Vælg den mappe på denne computer, som Drovia skal holde synkroniseret.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Næste %1 sider</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>Det nye sprog træder i kraft, når Drovia genstartes.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremskridt</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Flere tips</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerer [ProductName] på computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Her kan du se detaljerne for denne forbindelse.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Din lagerkvote på serveren er opbrugt.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Klar til installation</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Ændr</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Dette element kan ikke downloades.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synkroniseringsfejl</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Denne mappe overlapper en mappe, der allerede synkroniseres.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Vælg, hvilke mapper der skal synkroniseres, og hvordan.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Klar til at fjerne [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Luk de programmer, der er vist nedenfor, for at fortsætte installationen.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>En ny version er tilgængelig. Klik for at opgradere.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Filtypenavne:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Læs licensaftalen.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Indstillinger...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Sidste uge</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Ændringer, du foretager på andre enheder, vises også her.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Senest ændrede filer</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Installationen er fuldført.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Klar til at reparere [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Dine synkroniseringsmapper er konfigureret. Drovia begynder at synkronisere nu.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Versionsoplysningerne mangler.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Vælg en opsætningstype</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Anvender indstillinger...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Serverens certifikat er ændret. Vil du have tillid til det nye certifikat?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusoplysninger</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Installationsguiden til [ProductName] blev afsluttet for tidligt på grund af en fejl. Systemet er ikke blevet ændret.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploadet</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valgmuligheder</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Ændr, reparer eller fjern installationen</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Brug en sikker forbindelse (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Hurtig opsætning synkroniserer din hjemmemappe. Med avanceret opsætning vælger du selv mapperne.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Installerer</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiveret</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Opgrader</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dage siden</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>søndag</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Frakobl forbindelse</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Genoptag synkronisering af denne mappe</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 timer siden</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sat på pause</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Administrer forbindelser</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>En ny delt mappe er tilgængelig: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Synkroniseringen er sat på pause</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Med installationsguiden kan du ændre, hvordan funktionerne i [ProductName] installeres på computeren, eller fjerne programmet fra computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Godkendelsen mislykkedes</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, version %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Åbn Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Det maksimale antal delte mapper er nået.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netværksindstillinger</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploader</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Den delte mappe kunne ikke fjernes.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>De tidligere versioner af denne fil kan ikke vises.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>Mappen på serveren er ikke monteret.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Du skal have administratorrettigheder for at installere Drovia for alle brugere. Vil du fortsætte alligevel?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Dine ændringer er ikke gemt. Vil du gemme dem?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Angiv et portnummer mellem 1 og 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Denne fil er låst af et andet program.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synkroniser denne delte mappe</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Giver dig mulighed for at ændre, hvordan funktionerne installeres.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Der er ikke nok ledig plads på denne computer.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia synkroniserer din hjemmemappe på serveren med Drovia-mappen på denne computer.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Filerne i denne delte mappe fjernes fra denne computer. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Synkroniser automatisk</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Den lokale database kunne ikke åbnes.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Genopret forbindelse</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Vælg den handling, du vil udføre.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januar</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Vedligeholdelse</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Der er ingen hændelser at vise.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Opret forbindelse til en ny server</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Del link</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Afslut Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>Synkroniseringsmappen ligger på et drev, der ikke er tilsluttet.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Velkommen til Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Adgang nægtet</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Sikkerhedsadvarsel</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Synkroniser dine filer på tværs af alle dine enheder.</translation>
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
        <translation>Hurtig opsætning</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Adskil flere navne med kommaer. Du kan bruge * som jokertegn.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation af [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Højreklik på en fil i din Drovia-mappe for at dele den eller se dens tidligere versioner.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Kom godt i gang</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Tilføj en synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Deling</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroversigt</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Denne version af Drovia er allerede installeret. Vil du installere den igen?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relæforbindelse</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Synkroniser ikke disse mapper</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Velkommen til installationsguiden til [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Filtrerede filer</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Du kan køre installationsguiden igen senere. Klik på Udfør for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Installationsguiden til [ProductName] er fuldført</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Del og gendan</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Vis synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia starter...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Afinstallerer [ProductName] og alle programmets filer.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Downloader</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Alt er på plads!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> har delt en mappe med dig.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Brugernavnet eller adgangskoden kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Disken på serveren er fuld.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Slutbrugerlicensaftale</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Mapper, du fravælger, fjernes fra denne computer, men bliver på serveren.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Vis Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Den delte mappe er ikke monteret på serveren.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Find servere på dit lokale netværk</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Synkroniser ikke disse filer:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Guide til avanceret opsætning</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Vis ikoner på filtrerede filer</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Tilknyt en ny server</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Ændr, hvilke funktioner i [ProductName] der er installeret.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Denne mappe tilhører en anden server.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Fejl i monteringspunkt</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>Serverversionen er for gammel til denne version af Drovia. Opgrader serveren.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Ændringer på netværksdrev kontrolleres med jævne mellemrum, så det kan tage et stykke tid, før de synkroniseres.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Opret forbindelse via Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Brug altid en sikker forbindelse</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>Installationsguiden til [ProductName] blev afsluttet for tidligt</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Fildeling er ikke tilgængelig via en Quelmix-forbindelse.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Denne mappe er et monteringspunkt og kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Du har kun læseadgang til denne mappe. Ændringer på denne computer bliver ikke synkroniseret.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Delingslinks er ikke tilgængelige, fordi Korvo er slået fra.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Denne mappe synkroniseres også af et andet synkroniseringsprogram. Hvis den synkroniseres to gange, kan der opstå konflikter.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>Installationsguiden til [ProductName] blev afbrudt</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia kunne ikke starte. Geninstaller Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Hver mappe kan kun synkroniseres med én forbindelse.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Installationen af [ProductName] blev afbrudt. Systemet er ikke blevet ændret.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Tilpasset</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Sidste måned</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åbn fil</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia initialiseres...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Jeg accepterer &amp;ikke betingelserne i licensaftalen</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Så er du klar</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Reparerer fejl i den seneste installation.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsæt alligevel</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Vil du stoppe synkroniseringen af denne delte mappe?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Netværksfejl. Kontrollér din forbindelse.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo er deaktiveret</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>Server-id'et er ugyldigt.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Brug et sort-hvidt ikon på menulinjen</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Flet filer ved første synkronisering</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Synkroniser ikke filer, hvis navne begynder med et punktum</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søgeord</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] er installeret.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klik på Udfør for at lukke guiden.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementer</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februar</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Søger efter servere på dit lokale netværk...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] har ingen funktioner, der kan vælges enkeltvis.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo er slået fra på serveren. Bed din administrator om at slå det til.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Del en fil med et link, eller gå tilbage til en tidligere version af den.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Vent, mens installationsguiden installerer [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Klar til at installere [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Start [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 minutter siden</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Vis introduktionen igen</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Genoptag synkronisering af disse mapper</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Vælg den mappe, der skal synkroniseres med serveren.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Synkroniseret</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Luk ikke programmerne. Det bliver nødvendigt at genstarte.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Dobbeltklik på ikonet for at åbne Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Skift synkroniseringsmappe</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>Installationsguiden fjerner [ProductName] fra computeren.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synkroniserer: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmappe</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Denne mappe er skrivebeskyttet. Ændringer, du foretager her, bliver ikke synkroniseret.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Vis i mappe</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Senest opdaterede filer</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Synkroniser ikke denne mappe</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Forbindelsen er oprettet.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>Forbindelsen er ustabil.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagerplads</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia er klar.</translation>
    </message>
</context>
</TS>
