<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk Installer for å starte installasjonen. Klikk Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Akkurat nå</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia holder filene på denne datamaskinen synkronisert med serveren din. Alt du legger i Drovia-mappen, er tilgjengelig på alle enhetene dine.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Velg om du vil endre, reparere eller fjerne [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Vent mens installasjonsveiviseren installerer [ProductName].  Dette kan ta flere minutter.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Følgende programmer må lukkes før installasjonen kan fortsette:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Er du sikker på at du vil koble fra denne tilkoblingen? Filer som allerede er synkronisert, blir liggende på denne datamaskinen.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Kan ikke opprette en sikker tilkobling til serveren.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Velg en synkroniseringsmappe</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Oppgraderingen mislyktes. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Les lisensavtalen nedenfor nøye.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Laster inn mapper...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte tilkobling</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Filer med disse navnene eller filtypene blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ikke vis denne meldingen igjen</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfigurasjon</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Oppgraderer...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Serveren er endret. Kontroller tilkoblingen.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Prøver å synkronisere...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Filene i denne mappen blir slått sammen med mappen på serveren.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datoområde</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>Lukk programmene &amp;automatisk, og prøv å starte dem på nytt når installasjonen er fullført.</translation>
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
        <translation>Lokalt nettverk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Start Drovia når jeg logger på</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Kan ikke opprette en delingskobling for dette elementet.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk Reparer for å reparere installasjonen av [ProductName]. Klikk Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Skriv inn et brukernavn.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>Installasjonen ble avbrutt.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>Den valgte mappen er ikke tom. Velg en tom mappe.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klikk Fullfør for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Behandler %1 fil(er)...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Oppgrader Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra datamaskinen.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Drovia-mappen din er konfigurert og klar til synkronisering.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tilbakestill</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Denne mappen kan ikke brukes til synkronisering. Velg en annen mappe.</translation>
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
        <translation>Installasjonsveiviseren er klar til å starte installasjonen av [ProductName].</translation>
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
        <translation>Sammendrag</translation>
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
        <translation>Få tilgang til filene dine overalt</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Tilkoblingsdetaljer</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Nedlastingen ble avbrutt.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Velg en annen mappe på denne datamaskinen eller på serveren.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Tilkoblingsmodus</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Oppgrader serverpakken for å bruke selektiv synkronisering.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>En nyere versjon av Drovia er allerede installert.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Nedlastingen mislyktes.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Oppdaterer...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Du har valgt å fjerne programmet fra datamaskinen.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adresse</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Denne datamaskinen er allerede koblet til denne serveren.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avansert oppsett</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Velg mappene som skal synkroniseres</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Er du sikker på at du vil avbryte installasjonen av [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Den er grei</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Serverens sertifikat er endret.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Denne mappen synkroniseres allerede med en annen tilkobling.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Registrerer tilkobling...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislyktes</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Filene dine, overalt.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerer filer...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Ingen innstillinger er endret.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk Fjern for å fjerne [ProductName] fra datamaskinen. Klikk Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igjen</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Denne versjonen av Drovia er for gammel for serveren. Oppgrader Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Jeg &amp;godtar vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Mappen synkroniseres allerede</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Noen av filene som må oppdateres, er i bruk.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Gjenoppta synkroniseringen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne datamaskinen</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia har stoppet synkroniseringen på grunn av en feil. Åpne Drovia for å se detaljer.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsmodus</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Filer som er større enn denne størrelsen, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>Installasjonen ble avsluttet for tidlig på grunn av en feil.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Synkroniser Drovia-mappen i hjemmemappen din med hjemmemappen din på serveren.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Velg mappen på serveren og mappen på denne datamaskinen som skal synkroniseres.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ugyldig parameter.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Finner ikke den lokale synkroniseringsmappen.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Kan ikke koble til serveren automatisk. Kontroller nettverksinnstillingene.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Tilkoblingen til serveren ble brutt.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Serveren sendte et uventet svar.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsvarsler</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Serveren avviste den automatiske tilkoblingen.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Følgende programmer bruker filer som må oppdateres av denne installasjonen.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Lastet ned</translation>
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
        <translation>Skriv inn adressen og porten til proxyserveren.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Når du kobler fra, stopper synkroniseringen av denne tilkoblingen. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datamaskinnavn</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Du kan endre disse innstillingene senere i innstillingene for Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Åpne Drovia-mappen</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>Installasjonsveiviseren er klar til å reparere [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Oppdaterte filer</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>Mappen på denne datamaskinen er ikke tom. Filene i den blir slått sammen med mappen på serveren.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Åpne filene dine fra alle datamaskiner som kjører Drovia, eller fra en nettleser.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Velg filene som skal synkroniseres</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Filer i bruk</translation>
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
        <translation>Rediger tilkobling</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>mandag</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia indekserer denne mappen.</translation>
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
        <translation>Ikke nødvendig</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Flere detaljer</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Nedlastingen er fullført.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Brukernavnet eller passordet er feil.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Maksimal filstørrelse (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Denne tilkoblingen er inaktiv.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia kjører allerede.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versjonene samsvarer ikke</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Kan ikke bekrefte serverens sertifikat.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Denne delte mappen synkroniseres allerede med en annen mappe.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Skriv &amp;ut</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Du kan bare lese filene i denne mappen.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koble fra</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Søk etter servere på det lokale nettverket</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Filnavn:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Gitt nytt navn</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hendelser</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Reparerer feil i den nyeste installasjonen ved å rette opp manglende og skadede filer, snarveier og registeroppføringer.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Kontroller brukernavnet og passordet.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>Installasjonsveiviseren reparerer installasjonen av [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Filer du lagrer i Drovia-mappen, synkroniseres automatisk til serveren.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxyserveren krever passord</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken er full</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Det oppstod en ukjent feil.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Finner ikke mappen</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Registrerer endringer...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Kan ikke aktivere den delte mappen.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Filen ble endret begge steder. En kopi av filen med konflikt ble beholdt.</translation>
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
        <translation>Sett synkroniseringen på pause</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Velg mappen på denne datamaskinen som Drovia skal holde synkronisert.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Neste %1 sider</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester tilkoblingen...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>Det nye språket tas i bruk når Drovia startes på nytt.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internett</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremdrift</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Flere tips</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installasjonsveiviseren installerer [ProductName] på datamaskinen. Klikk Neste for å fortsette eller Avbryt for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Her kan du se detaljene for denne tilkoblingen.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Lagringskvoten din på serveren er brukt opp.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Klar til å installere</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Endre</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Dette elementet kan ikke lastes ned.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synkroniseringsfeil</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Denne mappen overlapper med en mappe som allerede synkroniseres.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Velg hvilke mapper som skal synkroniseres, og hvordan.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Klar til å fjerne [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Lukk programmene som er oppført nedenfor, for å fortsette installasjonen.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>En ny versjon er tilgjengelig. Klikk for å oppgradere.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Filtyper:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Les lisensavtalen.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Innstillinger...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Forrige uke</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Endringer du gjør på andre enheter, vises også her.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nylig endrede filer</translation>
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
        <translation>Installasjonen er fullført.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Klar til å reparere [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Synkroniseringsmappene dine er konfigurert. Drovia begynner å synkronisere nå.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Versjonsinformasjonen mangler.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Velg en oppsettsmodus</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tar i bruk innstillinger...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Serverens sertifikat er endret. Vil du stole på det nye sertifikatet?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformasjon</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Installasjonsveiviseren for [ProductName] ble avsluttet for tidlig på grunn av en feil. Systemet ditt er ikke endret.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Lastet opp</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativer</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Endre, reparer eller fjern installasjonen</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Bruk en sikker tilkobling (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Hurtigoppsett synkroniserer hjemmemappen din. Med avansert oppsett kan du velge mappene selv.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Installerer</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktivert</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Oppgrader</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dager siden</translation>
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
        <translation>Koble fra tilkoblingen</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Bytt mappe</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Gjenoppta synkroniseringen av denne mappen</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 timer siden</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Satt på pause</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Bla gjennom tidligere versjoner</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Administrer tilkoblinger</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>En ny delt mappe er tilgjengelig: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Synkroniseringen er satt på pause</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Med installasjonsveiviseren kan du endre hvordan funksjonene i [ProductName] er installert på datamaskinen, eller fjerne programmet fra datamaskinen. Klikk Neste for å fortsette eller Avbryt for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Godkjenningen mislyktes</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, versjon %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Åpne Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Maksimalt antall delte mapper er nådd.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nettverksinnstillinger</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Laster opp</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Kan ikke fjerne den delte mappen.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Kan ikke vise de tidligere versjonene av denne filen.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>Mappen på serveren er ikke montert.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Du trenger administratorrettigheter for å installere Drovia for alle brukere. Vil du fortsette likevel?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Endringene dine er ikke lagret. Vil du lagre dem?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Skriv inn et portnummer mellom 1 og 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Denne filen er låst av et annet program.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synkroniser denne delte mappen</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lar deg endre hvordan funksjonene er installert.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Det er ikke nok ledig plass på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia synkroniserer hjemmemappen din på serveren med Drovia-mappen på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Filene i denne delte mappen blir fjernet fra denne datamaskinen. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Synkroniser automatisk</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Kan ikke åpne den lokale databasen.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Koble til på nytt</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Velg operasjonen du vil utføre.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januar</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Vedlikehold</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Ingen hendelser å vise.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Koble til en ny server</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historikk</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Del kobling</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Avslutt Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>Synkroniseringsmappen ligger på en stasjon som ikke er tilkoblet.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Velkommen til Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Tilgang nektet</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Sikkerhetsadvarsel</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Synkroniser filene dine på tvers av alle enhetene dine.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synkroniseringshistorikk</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtigoppsett</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Skill flere navn med komma. Du kan bruke * som jokertegn.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installasjon av [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Høyreklikk på en fil i Drovia-mappen for å dele den eller se tidligere versjoner av den.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Kom i gang</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Legg til en synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Deling</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroversikt</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Denne versjonen av Drovia er allerede installert. Vil du installere den på nytt?</translation>
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
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relétilkobling</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Ikke synkroniser disse mappene</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Velkommen til installasjonsveiviseren for [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Filtrerte filer</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Du kan kjøre installasjonsveiviseren på nytt senere. Klikk Fullfør for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Installasjonsveiviseren for [ProductName] er fullført</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Del og gjenopprett</translation>
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
        <translation>Avinstallerer [ProductName] og alle filene til programmet.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Laster ned</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Alt er klart!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> har delt en mappe med deg.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Kan ikke bekrefte brukernavnet eller passordet.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Disken på serveren er full.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Lisensavtale for sluttbrukere</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Mapper du fjerner merket for, blir fjernet fra denne datamaskinen, men blir liggende på serveren.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Vis Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Den delte mappen er ikke montert på serveren.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Bruk proxyinnstillingene for systemet</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Finn servere på det lokale nettverket</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Ikke synkroniser disse filene:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Veiviser for avansert oppsett</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Vis ikoner på filtrerte filer</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Legg til en ny server</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Endre hvilke funksjoner i [ProductName] som er installert.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Denne mappen tilhører en annen server.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Feil med monteringspunkt</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>Serverversjonen er for gammel for denne versjonen av Drovia. Oppgrader serveren.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Endringer på nettverksstasjoner kontrolleres med jevne mellomrom, så det kan ta litt tid før de synkroniseres.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Koble til via Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Bruk alltid en sikker tilkobling</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>Installasjonsveiviseren for [ProductName] ble avsluttet for tidlig</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Fildeling er ikke tilgjengelig via en Quelmix-tilkobling.</translation>
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
        <translation>Denne mappen er et monteringspunkt og kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Du har bare lesetilgang til denne mappen. Endringer på denne datamaskinen blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Delingskoblinger er ikke tilgjengelige fordi Korvo er slått av.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Denne mappen synkroniseres også av et annet synkroniseringsprogram. Dobbel synkronisering kan føre til konflikter.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>Installasjonsveiviseren for [ProductName] ble avbrutt</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia kunne ikke starte. Installer Drovia på nytt.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Hver mappe kan bare synkroniseres med én tilkobling.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktivert</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Installasjonen av [ProductName] ble avbrutt. Systemet ditt er ikke endret.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Egendefinert</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åpne fil</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia initialiseres...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Jeg godtar &amp;ikke vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Da er du klar</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Reparerer feil i den nyeste installasjonen.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsett likevel</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Vil du stoppe synkroniseringen av denne delte mappen?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Nettverksfeil. Kontroller tilkoblingen.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo er deaktivert</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>Server-ID-en er ugyldig.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Bruk et svart-hvitt ikon på menylinjen</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Slå sammen filer ved første synkronisering</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappebane</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Ikke synkroniser filer med navn som begynner med punktum</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søkeord</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] er installert.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>desember</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klikk Fullfør for å lukke veiviseren.</translation>
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
        <translation>Søker etter servere på det lokale nettverket...</translation>
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
        <translation>[ProductName] har ingen funksjoner som kan velges enkeltvis.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo er slått av på serveren. Be administratoren om å slå det på.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Del en fil med en kobling, eller gå tilbake til en tidligere versjon av den.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Vent mens installasjonsveiviseren installerer [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Klar til å installere [ProductName]</translation>
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
        <translation>Proxyinnstillinger</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 minutter siden</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Vis veiledningen på nytt</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Gjenoppta synkroniseringen av disse mappene</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nei</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Velg mappen som skal synkroniseres med serveren.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Synkronisert</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Ikke lukk programmene. Datamaskinen må startes på nytt.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Dobbeltklikk på ikonet for å åpne Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Bytt synkroniseringsmappe</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>Installasjonsveiviseren fjerner [ProductName] fra datamaskinen.</translation>
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
        <translation>Denne mappen er skrivebeskyttet. Endringer du gjør her, blir ikke synkronisert.</translation>
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
        <translation>Nylig oppdaterte filer</translation>
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
        <translation>Ikke synkroniser denne mappen</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Tilkoblingen er opprettet.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>Tilkoblingen er ustabil.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagring</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia er klar.</translation>
    </message>
</context>
</TS>
