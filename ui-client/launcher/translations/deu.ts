<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Installieren“, um die Installation zu starten. Klicken Sie auf „Zurück“, um die Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia hält die Dateien auf diesem Computer mit Ihrem Server synchron. Alles, was Sie in Ihrem Drovia-Ordner ablegen, ist auf allen Ihren Geräten verfügbar.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Wählen Sie, ob Sie [ProductName] ändern, reparieren oder entfernen möchten.</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Bitte warten Sie, während der Setup-Assistent [ProductName] installiert. Dies kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Die folgenden Anwendungen sollten geschlossen werden, bevor die Installation fortgesetzt wird:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Möchten Sie diese Verbindung wirklich trennen? Bereits synchronisierte Dateien bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Es konnte keine sichere Verbindung zum Server hergestellt werden.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Kein Proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Synchronisierungsordner auswählen</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Die Aktualisierung ist fehlgeschlagen. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Bitte lesen Sie den folgenden Lizenzvertrag sorgfältig durch.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Ordner werden geladen...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte Verbindung</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Dateien, die diesen Namen oder Erweiterungen entsprechen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuelle Proxy-Konfiguration</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Wird aktualisiert...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Der Server hat sich geändert. Bitte überprüfen Sie die Verbindung.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Synchronisierung wird versucht...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Die Dateien in diesem Ordner werden mit dem Ordner auf dem Server zusammengeführt.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>Anwendungen automatisch &amp;schließen und nach Abschluss der Installation neu starten.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Drovia bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Für dieses Element kann kein Freigabelink erstellt werden.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Reparieren“, um die Installation von [ProductName] zu reparieren. Klicken Sie auf „Zurück“, um die Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Bitte geben Sie einen Benutzernamen ein.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>Die Installation wurde unterbrochen.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>Der ausgewählte Ordner ist nicht leer. Bitte wählen Sie einen leeren Ordner aus.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicken Sie auf „Fertig stellen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 Datei(en) werden verarbeitet...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Drovia aktualisieren</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Entfernt [ProductName] von Ihrem Computer.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Ihr Drovia-Ordner ist eingerichtet und bereit zur Synchronisierung.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Dieser Ordner kann nicht für die Synchronisierung verwendet werden. Bitte wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Freigegebene Ordner</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Der Setup-Assistent ist bereit, mit der Installation von [ProductName] zu beginnen.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorherige %1 Seiten</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>[ProductName] wird installiert</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Überall auf Ihre Dateien zugreifen</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Verbindungsdetails</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Der Download wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Bitte wählen Sie einen anderen Ordner auf diesem Computer oder auf dem Server aus.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Verbindungsmodus</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Bitte aktualisieren Sie das Serverpaket, um die selektive Synchronisierung zu verwenden.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Eine neuere Version von Drovia ist bereits installiert.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Der Download ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Wird aktualisiert...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Sie haben sich entschieden, das Programm von Ihrem Computer zu entfernen.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Dieser Computer ist bereits mit diesem Server verbunden.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Erweiterte Einrichtung</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertig stellen</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Zu synchronisierende Ordner auswählen</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Möchten Sie die Installation von [ProductName] wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Das Zertifikat des Servers hat sich geändert.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Dieser Ordner wird bereits über eine andere Verbindung synchronisiert.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Verbindung wird erkannt...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Wird synchronisiert...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Ihre Dateien, überall.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dateien werden überprüft...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Es wurden keine Einstellungen geändert.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Entfernen“, um [ProductName] von Ihrem Computer zu entfernen. Klicken Sie auf „Zurück“, um die Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Diese Version von Drovia ist zu alt für den Server. Bitte aktualisieren Sie Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Ich &amp;akzeptiere die Bedingungen des Lizenzvertrags</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Ordner wird bereits synchronisiert</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Einige Dateien, die aktualisiert werden müssen, werden zurzeit verwendet.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Synchronisierung fortsetzen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia hat die Synchronisierung wegen eines Fehlers gestoppt. Öffnen Sie Drovia, um Details anzuzeigen.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisierungsmodus</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Dateien über dieser Größe werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>Die Installation wurde wegen eines Fehlers vorzeitig beendet.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Synchronisiert den Drovia-Ordner in Ihrem Home-Ordner mit Ihrem Home-Ordner auf dem Server.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Wählen Sie den Ordner auf dem Server und den Ordner auf diesem Computer aus, die synchronisiert werden sollen.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ungültiger Parameter.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Der lokale Synchronisierungsordner wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Der Server konnte nicht automatisch erreicht werden. Bitte überprüfen Sie Ihre Netzwerkeinstellungen.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Die Verbindung zum Server wurde unterbrochen.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Der Server hat eine unerwartete Antwort gesendet.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Desktop-Benachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Der Server hat die automatische Verbindung abgelehnt.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die von diesem Setup aktualisiert werden müssen.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Heruntergeladen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Bitte geben Sie die Adresse und den Port des Proxy-Servers ein.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Durch das Trennen wird die Synchronisierung dieser Verbindung beendet. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Sie können diese Einstellungen später in den Drovia-Einstellungen ändern.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Drovia-Ordner öffnen</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>Der Setup-Assistent ist bereit, [ProductName] zu reparieren.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Aktualisierte Dateien</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>Der Ordner auf diesem Computer ist nicht leer. Seine Dateien werden mit dem Ordner auf dem Server zusammengeführt.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Öffnen Sie Ihre Dateien auf jedem Computer, auf dem Drovia läuft, oder in einem Webbrowser.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Zu synchronisierende Dateien auswählen</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Dateien in Verwendung</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy-Server</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia indiziert diesen Ordner.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Über Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Nicht erforderlich</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Weitere Details</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Der Download ist abgeschlossen.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Der Benutzername oder das Kennwort ist falsch.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Maximale Dateigröße (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Diese Verbindung ist inaktiv.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia wird bereits ausgeführt.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Neuer freigegebener Ordner</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionskonflikt</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Das Zertifikat des Servers konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Dieser freigegebene Ordner wird bereits mit einem anderen Ordner synchronisiert.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorieren</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Sie können die Dateien in diesem Ordner nur lesen.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Im lokalen Netzwerk nach Servern suchen</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Dateinamen:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle Ereignisse</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Behebt Fehler der letzten Installation, indem fehlende und beschädigte Dateien, Verknüpfungen und Registrierungseinträge repariert werden.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Bitte überprüfen Sie Ihren Benutzernamen und Ihr Kennwort.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>Der Setup-Assistent repariert die Installation von [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Dateien, die Sie in Ihrem Drovia-Ordner speichern, werden automatisch mit dem Server synchronisiert.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Der Proxy-Server erfordert ein Kennwort</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ein unbekannter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Änderungen werden erkannt...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Der freigegebene Ordner konnte nicht aktiviert werden.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Die Datei wurde auf beiden Seiten geändert. Eine Kopie der Datei mit dem Konflikt wurde beibehalten.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>In Bereitschaft</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Synchronisierung anhalten</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Wählen Sie den Ordner auf diesem Computer aus, den Drovia synchron halten soll.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nächste %1 Seiten</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>Die neue Sprache wird nach einem Neustart von Drovia wirksam.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internetverbindung</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Weitere Tipps</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Der Setup-Assistent installiert [ProductName] auf Ihrem Computer. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Hier sehen Sie die Details dieser Verbindung.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisierungsaufgaben</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Ihr Speicherkontingent auf dem Server ist ausgeschöpft.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Bereit zur Installation</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Ä&amp;ndern</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Dieses Element kann nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synchronisierungsfehler</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Dieser Ordner überschneidet sich mit einem Ordner, der bereits synchronisiert wird.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Wählen Sie aus, welche Ordner wie synchronisiert werden.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Bereit zum Entfernen von [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Schließen Sie die unten aufgeführten Anwendungen, um die Installation fortzusetzen.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Eine neue Version ist verfügbar. Klicken Sie hier, um zu aktualisieren.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Dateierweiterungen:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Bitte lesen Sie den Lizenzvertrag.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Anderen Ordner auswählen</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Änderungen, die Sie auf anderen Geräten vornehmen, erscheinen ebenfalls hier.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Zuletzt geänderte Dateien</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Die Installation ist abgeschlossen.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Bereit zum Reparieren von [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Ihre Synchronisierungsordner sind eingerichtet. Drovia beginnt jetzt mit der Synchronisierung.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Die Versionsinformationen fehlen.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Einrichtungsmodus auswählen</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Einstellungen werden übernommen...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Das Zertifikat des Servers hat sich geändert. Möchten Sie dem neuen Zertifikat vertrauen?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformationen</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Der Setup-Assistent für [ProductName] wurde wegen eines Fehlers vorzeitig beendet. Ihr System wurde nicht geändert.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Hochgeladen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Installation ändern, reparieren oder entfernen</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Sichere Verbindung verwenden (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Die Schnelleinrichtung synchronisiert Ihren Home-Ordner. Bei der erweiterten Einrichtung wählen Sie die Ordner selbst aus.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Wird installiert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Vor %1 Tagen</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Verbindung trennen</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Ordner ändern</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Synchronisierung dieses Ordners fortsetzen</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Vor %1 Stunden</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Frühere Versionen durchsuchen</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Verbindungen verwalten</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Ein neuer freigegebener Ordner ist verfügbar: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Die Synchronisierung ist angehalten</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Mit dem Setup-Assistenten können Sie ändern, wie die Funktionen von [ProductName] auf Ihrem Computer installiert werden, oder das Programm von Ihrem Computer entfernen. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Authentifizierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, Version %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Drovia öffnen</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Symbole für den Synchronisierungsstatus an Dateien und Ordnern anzeigen</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Die maximale Anzahl freigegebener Ordner wurde erreicht.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Wird hochgeladen</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Der freigegebene Ordner konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Die früheren Versionen dieser Datei können nicht aufgelistet werden.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>Der Ordner auf dem Server ist nicht eingehängt.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Sie benötigen Administratorrechte, um Drovia für alle Benutzer zu installieren. Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Ihre Änderungen wurden nicht gespeichert. Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Bitte geben Sie eine Portnummer zwischen 1 und 65535 ein.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Diese Datei ist durch eine andere Anwendung gesperrt.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Diesen freigegebenen Ordner synchronisieren</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Hier können Sie ändern, wie die Funktionen installiert werden.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Auf diesem Computer ist nicht genügend freier Speicherplatz vorhanden.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia synchronisiert Ihren Home-Ordner auf dem Server mit dem Drovia-Ordner auf diesem Computer.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Die Dateien dieses freigegebenen Ordners werden von diesem Computer entfernt. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Automatisch synchronisieren</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Die lokale Datenbank konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Erneut verbinden</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Wählen Sie den gewünschten Vorgang aus.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Keine Ereignisse vorhanden.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Mit einem neuen Server verbinden</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Link freigeben</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Drovia beenden</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>Der Synchronisierungsordner befindet sich auf einem Laufwerk, das nicht verbunden ist.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Willkommen bei Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Sicherheitswarnung</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Synchronisieren Sie Ihre Dateien auf allen Ihren Geräten.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synchronisierungsverlauf</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Schnelleinrichtung</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Trennen Sie mehrere Namen durch Kommas. Sie können * als Platzhalter verwenden.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName]-Setup</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Klicken Sie mit der rechten Maustaste auf eine Datei in Ihrem Drovia-Ordner, um sie freizugeben oder ihre früheren Versionen anzuzeigen.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Synchronisierungsaufgabe hinzufügen</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Freigabe</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serverübersicht</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Diese Version von Drovia ist bereits installiert. Möchten Sie sie erneut installieren?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Schreibgeschützter Ordner</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relay-Verbindung</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Diese Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Willkommen beim Setup-Assistenten für [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Gefilterte Dateien</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Sie können den Setup-Assistenten später erneut ausführen. Klicken Sie auf „Fertig stellen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Der Setup-Assistent für [ProductName] wurde abgeschlossen</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Freigeben und wiederherstellen</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Synchronisierungsstatus anzeigen</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia wird gestartet...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Deinstalliert [ProductName] und alle zugehörigen Dateien.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Wird heruntergeladen</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Alles erledigt!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> hat einen Ordner für Sie freigegeben.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Der Benutzername oder das Kennwort konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Der Datenträger auf dem Server ist voll.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Endbenutzer-Lizenzvertrag</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Ordner, deren Auswahl Sie aufheben, werden von diesem Computer entfernt, bleiben aber auf dem Server erhalten.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Drovia anzeigen</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Der freigegebene Ordner ist auf dem Server nicht eingehängt.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Proxy-Einstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Server in Ihrem lokalen Netzwerk suchen</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Diese Dateien nicht synchronisieren:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Assistent für die erweiterte Einrichtung</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Freigegebener Ordner</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Symbole an gefilterten Dateien anzeigen</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Neuen Server verbinden</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Nur herunterladen</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Ändert, welche Funktionen von [ProductName] installiert sind.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Dieser Ordner gehört zu einem anderen Server.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Fehler am Einhängepunkt</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>Die Serverversion ist zu alt für diese Version von Drovia. Bitte aktualisieren Sie den Server.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Änderungen auf Netzlaufwerken werden in regelmäßigen Abständen geprüft, daher kann ihre Synchronisierung etwas dauern.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Über Quelmix verbinden</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Immer eine sichere Verbindung verwenden</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>Der Setup-Assistent für [ProductName] wurde vorzeitig beendet</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Die Dateifreigabe ist über eine Quelmix-Verbindung nicht verfügbar.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Dieser Ordner ist ein Einhängepunkt und kann nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Sie haben für diesen Ordner nur Lesezugriff. Änderungen auf diesem Computer werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Freigabelinks sind nicht verfügbar, da Korvo deaktiviert ist.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Dieser Ordner wird auch von einer anderen Synchronisierungsanwendung synchronisiert. Eine doppelte Synchronisierung kann zu Konflikten führen.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>Der Setup-Assistent für [ProductName] wurde unterbrochen</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia konnte nicht gestartet werden. Bitte installieren Sie Drovia neu.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Jeder Ordner kann nur über eine Verbindung synchronisiert werden.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Das Setup von [ProductName] wurde unterbrochen. Ihr System wurde nicht geändert.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia wird initialisiert...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Ich &amp;lehne die Bedingungen des Lizenzvertrags ab</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Alles ist eingerichtet</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Behebt Fehler der letzten Installation.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Trotzdem fortfahren</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Möchten Sie die Synchronisierung dieses freigegebenen Ordners beenden?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Netzwerkfehler. Bitte überprüfen Sie Ihre Verbindung.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo deaktiviert</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>Die Server-ID ist ungültig.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Schwarzweißes Menüleistensymbol verwenden</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Dateien bei der ersten Synchronisierung zusammenführen</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Dateien, deren Namen mit einem Punkt beginnen, nicht synchronisieren</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Suchbegriff</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] wurde erfolgreich installiert.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klicken Sie auf „Fertig stellen“, um den Assistenten zu schließen.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Server in Ihrem lokalen Netzwerk werden gesucht...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] verfügt über keine einzeln auswählbaren Funktionen.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo ist auf dem Server deaktiviert. Bitten Sie Ihren Administrator, es zu aktivieren.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Geben Sie eine Datei per Link frei oder stellen Sie eine frühere Version davon wieder her.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Bitte warten Sie, während der Setup-Assistent [ProductName] installiert.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Bereit zur Installation von [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] starten</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy-Einstellungen</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Vor %1 Minuten</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Einführung erneut anzeigen</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Synchronisierung dieser Ordner fortsetzen</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Wählen Sie den Ordner aus, der mit dem Server synchronisiert werden soll.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Synchronisiert</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Anwendungen nicht schließen. Ein Neustart ist erforderlich.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Doppelklicken Sie auf das Symbol, um Drovia zu öffnen</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisierungsordner ändern</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>Der Setup-Assistent entfernt [ProductName] von Ihrem Computer.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Wird synchronisiert: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokaler Synchronisierungsordner</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Dieser Ordner ist schreibgeschützt. Änderungen, die Sie hier vornehmen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Zuletzt aktualisierte Dateien</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Ordner nicht leer</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Diesen Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Verbindung erfolgreich hergestellt.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>Die Verbindung ist instabil.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicherplatz</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia ist bereit.</translation>
    </message>
</context>
</TS>
