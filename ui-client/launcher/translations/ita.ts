<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fare clic su Installa per avviare l&apos;installazione. Fare clic su Indietro per rivedere o modificare le impostazioni di installazione. Fare clic su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Proprio ora</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia mantiene i file di questo computer sincronizzati con il server. Tutto ciò che viene salvato nella cartella Drovia è disponibile su tutti i dispositivi.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Scegliere se modificare, riparare o rimuovere [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Attendere mentre l&apos;Installazione guidata installa [ProductName]. L&apos;operazione potrebbe richiedere alcuni minuti.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Prima di continuare l&apos;installazione, è necessario chiudere le seguenti applicazioni:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Si è sicuri di voler scollegare questa connessione? I file già sincronizzati resteranno su questo computer.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Impossibile stabilire una connessione protetta con il server.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nessun proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Scegliere una cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Aggiornamento non riuscito. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leggere attentamente il seguente contratto di licenza.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Caricamento delle cartelle...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Data di creazione</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>I file corrispondenti a questi nomi o estensioni non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Non visualizzare più questo messaggio</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configurazione manuale del proxy</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Aggiornamento in corso...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Il server è cambiato. Verificare la connessione.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Tentativo di sincronizzazione...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>I file di questa cartella verranno uniti con la cartella sul server.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervallo di date</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>&amp;Chiudi automaticamente le applicazioni e tenta di riavviarle al termine dell&apos;installazione.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Avvia Drovia all&apos;accesso</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Impossibile creare un link di condivisione per questo elemento.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fare clic su Ripara per riparare l&apos;installazione di [ProductName]. Fare clic su Indietro per rivedere o modificare le impostazioni di installazione. Fare clic su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Immettere un nome utente.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>L&apos;installazione è stata interrotta.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>La cartella selezionata non è vuota. Scegliere una cartella vuota.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione in corso...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>venerdì</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Fare clic sul pulsante Fine per uscire dall&apos;Installazione guidata.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Elaborazione di %1 file in corso...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Aggiorna Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Rimuove [ProductName] dal computer.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>La cartella Drovia è configurata e pronta per la sincronizzazione.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maggio</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martedì</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Questa cartella non può essere utilizzata per la sincronizzazione. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Cartelle condivise</translation>
    </message>
    <message>
        <source>April</source>
        <translation>aprile</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>L&apos;Installazione guidata è pronta per avviare l&apos;installazione di [ProductName].</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pagine precedenti</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Accesso ai file ovunque</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Dettagli connessione</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Il download è stato annullato.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Scegliere una cartella diversa su questo computer o sul server.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modalità di connessione</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Per utilizzare la sincronizzazione selettiva, aggiornare il pacchetto del server.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Una versione più recente di Drovia è già installata.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Download non riuscito.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aggiornamento in corso...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>È stato scelto di rimuovere il programma dal computer.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Indirizzo IP</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Questo computer è già connesso a questo server.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configurazione avanzata</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sabato</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Scegliere le cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Si è sicuri di voler annullare l&apos;installazione di [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Il certificato del server è cambiato.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Questa cartella è già sincronizzata con un&apos;altra connessione.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Rilevamento della connessione...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizzazione in corso...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Tutti i file, ovunque.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Verifica dei file in corso...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Nessuna impostazione modificata.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fare clic su Rimuovi per rimuovere [ProductName] dal computer. Fare clic su Indietro per rivedere o modificare le impostazioni di installazione. Fare clic su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Questa versione di Drovia è troppo vecchia per il server. Aggiornare Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Cartella già sincronizzata</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alcuni file da aggiornare sono attualmente in uso.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Riprendi sincronizzazione</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia ha interrotto la sincronizzazione a causa di un errore. Aprire Drovia per i dettagli.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>I file più grandi di questa dimensione non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>July</source>
        <translation>luglio</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>L&apos;installazione è terminata prematuramente a causa di un errore.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Sincronizza la cartella Drovia nella cartella home con la cartella home sul server.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Scegliere la cartella sul server e la cartella su questo computer da sincronizzare.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parametro non valido.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Impossibile trovare la cartella di sincronizzazione locale.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Impossibile raggiungere automaticamente il server. Verificare le impostazioni di rete.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>La connessione al server è stata persa.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Il server ha inviato una risposta imprevista.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra notifiche sul desktop</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Il server ha rifiutato la connessione automatica.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Le seguenti applicazioni stanno utilizzando file che devono essere aggiornati dall&apos;installazione.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Scaricato</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Immettere l&apos;indirizzo e la porta del server proxy.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Scollegando la connessione se ne interrompe la sincronizzazione. Continuare?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome computer</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>È possibile modificare queste impostazioni in seguito nelle impostazioni di Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Apri cartella Drovia</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Avvia ora</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>L&apos;Installazione guidata è pronta per riparare [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>File aggiornati</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>La cartella su questo computer non è vuota. I file contenuti verranno uniti con la cartella sul server.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>È possibile aprire i file da qualsiasi computer su cui è in esecuzione Drovia o da un browser web.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Scegliere i file da sincronizzare</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>File in uso</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Server proxy</translation>
    </message>
    <message>
        <source>October</source>
        <translation>ottobre</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunedì</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia sta indicizzando questa cartella.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Informazioni su Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Non necessario</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Altri dettagli</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Download completato.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Il nome utente o la password non sono corretti.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Dimensione massima file (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Questa connessione non è attiva.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia è già in esecuzione.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nuova cartella condivisa</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versioni non compatibili</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inattivo</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Impossibile verificare il certificato del server.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Questa cartella condivisa è già sincronizzata con un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignora</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>S&amp;tampa</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>È possibile solo leggere i file in questa cartella.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Cerca server sulla rete locale</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nomi file:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Rinominato</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Ripara gli errori nell&apos;installazione più recente correggendo i file mancanti o danneggiati, i collegamenti e le voci del Registro di sistema.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Verificare nome utente e password.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>L&apos;Installazione guidata riparerà l&apos;installazione di [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Seleziona una cartella</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>I file salvati nella cartella Drovia vengono sincronizzati automaticamente con il server.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Il server proxy richiede una password</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco pieno</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Si è verificato un errore sconosciuto.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Cartella non trovata</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Rilevamento delle modifiche...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome cartella</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Impossibile attivare la cartella condivisa.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Il file è stato modificato su entrambi i lati. È stata conservata una copia del file in conflitto.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Sospendi sincronizzazione</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Scegliere la cartella su questo computer che Drovia deve mantenere sincronizzata.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pagine successive</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verifica della connessione...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>La nuova lingua verrà applicata al riavvio di Drovia.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Connessione Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Altri suggerimenti</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L&apos;Installazione guidata installerà [ProductName] nel computer. Fare clic su Avanti per continuare o su Annulla per uscire dall&apos;Installazione guidata.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Qui sono riportati i dettagli di questa connessione.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Benvenuti</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>La quota di spazio di archiviazione sul server è esaurita.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Pronto per l&apos;installazione</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Impossibile scaricare questo elemento.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Errore di sincronizzazione</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Questa cartella si sovrappone a una cartella già sincronizzata.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Scegliere quali cartelle sincronizzare e come.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Ri&amp;para</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Pronto per la rimozione di [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Chiudere le applicazioni elencate di seguito per continuare l&apos;installazione.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>È disponibile una nuova versione. Fare clic per aggiornare.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Estensioni file:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Leggere il contratto di licenza.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Impostazioni...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Settimana scorsa</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Scegli un&apos;altra cartella</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Anche le modifiche apportate su altri dispositivi vengono visualizzate qui.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>File modificati di recente</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Installazione completata.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Pronto per la riparazione di [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Le cartelle di sincronizzazione sono configurate. Drovia avvia ora la sincronizzazione.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Le informazioni sulla versione sono mancanti.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Scegliere una modalità di configurazione</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applicazione delle impostazioni...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Il certificato del server è cambiato. Considerare attendibile il nuovo certificato?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informazioni sullo stato</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>L&apos;Installazione guidata di [ProductName] è terminata prematuramente a causa di un errore. Il sistema non è stato modificato.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Caricato</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Modifica, riparazione o rimozione dell&apos;installazione</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usa una connessione protetta (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>La configurazione rapida sincronizza la cartella home. La configurazione avanzata consente di scegliere le cartelle.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Installazione in corso</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 giorni fa</translation>
    </message>
    <message>
        <source>September</source>
        <translation>settembre</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domenica</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Scollega connessione</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Riprendi la sincronizzazione di questa cartella</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ore fa</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Sfoglia versioni precedenti</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gestisci connessioni</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>giovedì</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>È disponibile una nuova cartella condivisa: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>La sincronizzazione è in pausa</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L&apos;Installazione guidata consente di modificare le funzionalità di [ProductName] installate nel computer o di rimuovere il programma dal computer. Fare clic su Avanti per continuare o su Annulla per uscire dall&apos;Installazione guidata.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autenticazione non riuscita</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, versione %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Apri Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostra le icone dello stato di sincronizzazione su file e cartelle</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>È stato raggiunto il numero massimo di cartelle condivise.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Impostazioni di rete</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Caricamento</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Impossibile rimuovere la cartella condivisa.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Impossibile elencare le versioni precedenti di questo file.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>La cartella sul server non è montata.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Per installare Drovia per tutti gli utenti sono necessari i diritti di amministratore. Continuare comunque?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Le modifiche non sono state salvate. Salvarle?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Immettere un numero di porta compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Questo file è bloccato da un&apos;altra applicazione.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinita di sistema</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sincronizza questa cartella condivisa</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Consente di modificare la modalità di installazione delle funzionalità.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Spazio libero insufficiente su questo computer.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia sincronizza la cartella home sul server con la cartella Drovia su questo computer.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>I file di questa cartella condivisa verranno rimossi da questo computer. Continuare?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Sincronizzazione automatica</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Impossibile aprire il database locale.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Riconnetti</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Selezionare l&apos;operazione da eseguire.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>gennaio</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Manutenzione</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Nessun evento da visualizzare.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Connetti a un nuovo server</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Condividi tramite link</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Esci da Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>La cartella di sincronizzazione si trova su un&apos;unità non connessa.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Benvenuti in Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorizzazione negata</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Avviso di sicurezza</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Sincronizza i file su tutti i dispositivi.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Cronologia di sincronizzazione</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configurazione rapida</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Separare più nomi con virgole. È possibile usare * come carattere jolly.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Fare clic con il pulsante destro del mouse su un file nella cartella Drovia per condividerlo o visualizzarne le versioni precedenti.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Introduzione</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Aggiungi attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Condivisione</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Panoramica del server</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Questa versione di Drovia è già installata. Installarla di nuovo?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Cartella di sola lettura</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Connessione tramite inoltro</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Non sincronizzare queste cartelle</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Benvenuti nell&apos;Installazione guidata di [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>File filtrati</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>È possibile eseguire di nuovo l&apos;Installazione guidata in seguito. Fare clic su Fine per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Completamento dell&apos;Installazione guidata di [ProductName]</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Condividi e ripristina</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostra stato di sincronizzazione</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Avvio di Drovia...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Disinstalla [ProductName] e tutti i relativi file.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Download in corso</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Operazione completata!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> ha condiviso una cartella.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Impossibile verificare il nome utente o la password.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Il disco sul server è pieno.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contratto di licenza con l&apos;utente finale</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Le cartelle deselezionate verranno rimosse da questo computer ma resteranno sul server.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Mostra Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>La cartella condivisa non è montata sul server.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usa le impostazioni proxy di sistema</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Trova server sulla rete locale</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Non sincronizzare questi file:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Configurazione guidata avanzata</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Cartella condivisa</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Mostra icone sui file filtrati</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Collega un nuovo server</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Modifica le funzionalità di [ProductName] installate.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Questa cartella appartiene a un server diverso.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Errore del punto di montaggio</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>La versione del server è troppo vecchia per questa versione di Drovia. Aggiornare il server.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Le modifiche sulle unità di rete vengono controllate a intervalli regolari e la loro sincronizzazione potrebbe richiedere un po&apos; di tempo.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Connetti tramite Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Usa sempre una connessione protetta</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>Installazione guidata di [ProductName] terminata prematuramente</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>La condivisione dei file non è disponibile tramite una connessione Quelmix.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Questa cartella è un punto di montaggio e non può essere sincronizzata.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Si dispone solo dell&apos;accesso in lettura a questa cartella. Le modifiche apportate su questo computer non verranno sincronizzate.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>I link di condivisione non sono disponibili perché Korvo è disattivato.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Questa cartella è sincronizzata anche da un&apos;altra applicazione di sincronizzazione. Sincronizzarla due volte può causare conflitti.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>Installazione guidata di [ProductName] interrotta</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Impossibile avviare Drovia. Reinstallare Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Ogni cartella può essere sincronizzata con una sola connessione.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>L&apos;installazione di [ProductName] è stata interrotta. Il sistema non è stato modificato.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mese scorso</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Inizializzazione di Drovia...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Non accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Configurazione completata</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Ripara gli errori nell&apos;installazione più recente.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continua comunque</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Interrompere la sincronizzazione di questa cartella condivisa?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Errore di rete. Verificare la connessione.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo disattivato</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>L&apos;ID del server non è valido.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Usa un&apos;icona in bianco e nero nella barra dei menu</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Unisci i file alla prima sincronizzazione</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Percorso cartella</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Non sincronizzare i file il cui nome inizia con un punto</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>Installazione di [ProductName] completata.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dicembre</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Fare clic su Fine per chiudere la procedura guidata.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementi</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installa</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febbraio</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Ricerca di server sulla rete locale in corso...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] non include funzionalità selezionabili singolarmente.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo è disattivato sul server. Chiedere all&apos;amministratore di attivarlo.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>È possibile condividere un file tramite un link o tornare a una sua versione precedente.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Attendere mentre l&apos;Installazione guidata installa [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Pronto per l&apos;installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Avvia [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercoledì</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Impostazioni proxy</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuti fa</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Mostra di nuovo il tutorial</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Riprendi la sincronizzazione di queste cartelle</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Scegliere la cartella da sincronizzare con il server.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Sincronizzato</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Non chiudere le applicazioni. Sarà necessario riavviare il sistema.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Fare doppio clic sull&apos;icona per aprire Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambia cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>L&apos;Installazione guidata rimuoverà [ProductName] dal computer.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>June</source>
        <translation>giugno</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Sincronizzazione: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Cartella di sincronizzazione locale</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Questa cartella è di sola lettura. Le modifiche apportate qui non verranno sincronizzate.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>File aggiornati di recente</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Cartella non vuota</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Non sincronizzare questa cartella</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connessione riuscita.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>La connessione è instabile.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Spazio di archiviazione</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia è pronto.</translation>
    </message>
</context>
</TS>
