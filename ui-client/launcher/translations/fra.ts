<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Installer pour commencer l&apos;installation. Cliquez sur Précédent pour vérifier ou modifier vos paramètres d&apos;installation. Cliquez sur Annuler pour quitter l&apos;Assistant.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l&apos;instant</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia synchronise les fichiers de cet ordinateur avec votre serveur. Tout ce que vous placez dans votre dossier Drovia est disponible sur tous vos appareils.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Choisissez de modifier, de réparer ou de supprimer [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Veuillez patienter pendant que l&apos;Assistant installe [ProductName]. Cela peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Les applications suivantes doivent être fermées avant de poursuivre l&apos;installation :</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Voulez-vous vraiment dissocier cette connexion ? Les fichiers déjà synchronisés resteront sur cet ordinateur.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Impossible d&apos;établir une connexion sécurisée avec le serveur.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Aucun proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Choisir un dossier de synchronisation</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>La mise à jour a échoué. Veuillez réessayer ultérieurement.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Veuillez lire attentivement le contrat de licence suivant.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Chargement des dossiers...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créé le</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Les fichiers correspondant à ces noms ou extensions ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuration manuelle du proxy</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Mise à jour en cours...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Le serveur a changé. Veuillez vérifier la connexion.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Tentative de synchronisation...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Les fichiers de ce dossier seront fusionnés avec le dossier du serveur.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>&amp;Fermer automatiquement les applications et essayer de les redémarrer une fois l&apos;installation terminée.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Démarrer Drovia à l&apos;ouverture de session</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Impossible de créer un lien de partage pour cet élément.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Réparer pour réparer l&apos;installation de [ProductName]. Cliquez sur Précédent pour vérifier ou modifier vos paramètres d&apos;installation. Cliquez sur Annuler pour quitter l&apos;Assistant.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Veuillez saisir un nom d&apos;utilisateur.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>L&apos;installation a été interrompue.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>Le dossier sélectionné n&apos;est pas vide. Veuillez choisir un dossier vide.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion en cours...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vendredi</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Cliquez sur Terminer pour quitter l&apos;Assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Traitement de %1 fichier(s)...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Mettre à jour Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Supprime [ProductName] de votre ordinateur.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Votre dossier Drovia est configuré et prêt à être synchronisé.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>mardi</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Ce dossier ne peut pas être utilisé pour la synchronisation. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>août</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Dossiers partagés</translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>L&apos;Assistant est prêt à commencer l&apos;installation de [ProductName].</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Récapitulatif</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Accédez à vos fichiers partout</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Détails de la connexion</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Le téléchargement a été annulé.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Veuillez choisir un autre dossier sur cet ordinateur ou sur le serveur.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Mode de connexion</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Veuillez mettre à jour le paquet du serveur pour utiliser la synchronisation sélective.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Une version plus récente de Drovia est déjà installée.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Le téléchargement a échoué.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Mise à jour en cours...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Vous avez choisi de supprimer le programme de votre ordinateur.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Cet ordinateur est déjà connecté à ce serveur.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuration avancée</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>samedi</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Choisir les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Voulez-vous vraiment annuler l&apos;installation de [ProductName] ?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>J&apos;ai compris</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Le certificat du serveur a changé.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Ce dossier est déjà synchronisé par une autre connexion.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Détection de la connexion...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisation en cours...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Vos fichiers, partout.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Vérification des fichiers...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Aucun paramètre n&apos;a été modifié.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Supprimer pour supprimer [ProductName] de votre ordinateur. Cliquez sur Précédent pour vérifier ou modifier vos paramètres d&apos;installation. Cliquez sur Annuler pour quitter l&apos;Assistant.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Cette version de Drovia est trop ancienne pour le serveur. Veuillez mettre à jour Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>J&apos;&amp;accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Dossier déjà synchronisé</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Certains fichiers qui doivent être mis à jour sont en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Reprendre la synchronisation</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia a arrêté la synchronisation en raison d&apos;une erreur. Ouvrez Drovia pour plus de détails.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Les fichiers dépassant cette taille ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>L&apos;installation s&apos;est terminée prématurément en raison d&apos;une erreur.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Synchronise le dossier Drovia de votre dossier personnel avec votre dossier personnel sur le serveur.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Choisissez le dossier du serveur et le dossier de cet ordinateur à synchroniser.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Paramètre non valide.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Le dossier de synchronisation local est introuvable.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Le serveur n&apos;a pas pu être joint automatiquement. Veuillez vérifier vos paramètres réseau.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>La connexion au serveur a été perdue.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Le serveur a envoyé une réponse inattendue.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Le serveur a refusé la connexion automatique.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Les applications suivantes utilisent des fichiers qui doivent être mis à jour par ce programme d&apos;installation.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Téléchargé</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Veuillez saisir l&apos;adresse et le port du serveur proxy.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>La dissociation arrête la synchronisation de cette connexion. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nom de l&apos;ordinateur</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Vous pourrez modifier ces paramètres ultérieurement dans les paramètres de Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Ouvrir le dossier Drovia</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Démarrer maintenant</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>L&apos;Assistant est prêt à réparer [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Fichiers mis à jour</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>Le dossier de cet ordinateur n&apos;est pas vide. Ses fichiers seront fusionnés avec le dossier du serveur.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Ouvrez vos fichiers depuis n&apos;importe quel ordinateur exécutant Drovia ou depuis un navigateur web.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Choisir les fichiers à synchroniser</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Fichiers en cours d&apos;utilisation</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serveur proxy</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octobre</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lundi</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia indexe ce dossier.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>À propos de Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Non nécessaire</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Plus de détails</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Le téléchargement est terminé.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Taille maximale des fichiers (Mo) :</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Cette connexion est inactive.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia est déjà en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versions incompatibles</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Le certificat du serveur n&apos;a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Ce dossier partagé est déjà synchronisé avec un autre dossier.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Vous pouvez uniquement lire les fichiers de ce dossier.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Rechercher des serveurs sur le réseau local</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Noms de fichiers :</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Répare les erreurs de l&apos;installation la plus récente en corrigeant les fichiers manquants ou endommagés, les raccourcis et les entrées du Registre.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Veuillez vérifier votre nom d&apos;utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>L&apos;Assistant va réparer l&apos;installation de [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Les fichiers que vous enregistrez dans votre dossier Drovia sont automatiquement synchronisés avec le serveur.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Le serveur proxy nécessite un mot de passe</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Une erreur inconnue s&apos;est produite.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Dossier introuvable</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Détection des modifications...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Impossible d&apos;activer le dossier partagé.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Le fichier a été modifié des deux côtés. Une copie du fichier en conflit a été conservée.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En veille</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Suspendre la synchronisation</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Choisissez le dossier de cet ordinateur que Drovia doit synchroniser.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>La nouvelle langue sera appliquée au redémarrage de Drovia.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Connexion Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Plus d&apos;astuces</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L&apos;Assistant va installer [ProductName] sur votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter l&apos;Assistant.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Vous pouvez consulter ici les détails de cette connexion.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Votre quota de stockage sur le serveur est atteint.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Prêt pour l&apos;installation</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Cet élément ne peut pas être téléchargé.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Erreur de synchronisation</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Ce dossier chevauche un dossier déjà synchronisé.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Choisissez les dossiers à synchroniser et la manière de les synchroniser.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Prêt à supprimer [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Fermez les applications répertoriées ci-dessous pour poursuivre l&apos;installation.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Une nouvelle version est disponible. Cliquez pour mettre à jour.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensions de fichiers :</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Veuillez lire le contrat de licence.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semaine dernière</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Les modifications effectuées sur vos autres appareils apparaissent également ici.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Fichiers modifiés récemment</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>L&apos;installation est terminée.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Prêt à réparer [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Vos dossiers de synchronisation sont configurés. Drovia commence maintenant la synchronisation.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Les informations de version sont manquantes.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Choisir un mode de configuration</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Le certificat du serveur a changé. Voulez-vous faire confiance au nouveau certificat ?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informations d&apos;état</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>L&apos;Assistant d&apos;installation de [ProductName] s&apos;est terminé prématurément en raison d&apos;une erreur. Votre système n&apos;a pas été modifié.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Modifier, réparer ou supprimer l&apos;installation</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Utiliser une connexion sécurisée (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>La configuration rapide synchronise votre dossier personnel. La configuration avancée vous permet de choisir les dossiers.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Installation en cours</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Il y a %1 jours</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septembre</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>dimanche</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Dissocier la connexion</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Reprendre la synchronisation de ce dossier</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Il y a %1 heures</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Suspendu</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Parcourir les versions précédentes</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gérer les connexions</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jeudi</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Un nouveau dossier partagé est disponible : %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>La synchronisation est suspendue</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L&apos;Assistant vous permet de modifier la manière dont les fonctionnalités de [ProductName] sont installées sur votre ordinateur, ou de le supprimer de votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter l&apos;Assistant.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Échec de l&apos;authentification</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, version %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Ouvrir Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Afficher les icônes d&apos;état de synchronisation sur les fichiers et les dossiers</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Le nombre maximal de dossiers partagés a été atteint.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Paramètres réseau</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Envoi en cours</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Impossible de supprimer le dossier partagé.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Impossible d&apos;afficher la liste des versions précédentes de ce fichier.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>Le dossier du serveur n&apos;est pas monté.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Vous devez disposer de droits d&apos;administrateur pour installer Drovia pour tous les utilisateurs. Continuer quand même ?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Vos modifications n&apos;ont pas été enregistrées. Voulez-vous les enregistrer ?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Veuillez saisir un numéro de port compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Ce fichier est verrouillé par une autre application.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synchroniser ce dossier partagé</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permet de modifier la manière dont les fonctionnalités sont installées.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>L&apos;espace disponible sur cet ordinateur est insuffisant.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia synchronise votre dossier personnel du serveur avec le dossier Drovia de cet ordinateur.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Les fichiers de ce dossier partagé seront supprimés de cet ordinateur. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Synchronisation automatique</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Impossible d&apos;ouvrir la base de données locale.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Se reconnecter</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Sélectionnez l&apos;opération à effectuer.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janvier</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Maintenance</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Aucun événement à afficher.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Se connecter à un nouveau serveur</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Partager via un lien</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Quitter Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>Le dossier de synchronisation se trouve sur un lecteur qui n&apos;est pas connecté.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Bienvenue dans Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorisation refusée</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Avertissement de sécurité</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Synchronisez vos fichiers sur tous vos appareils.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historique de synchronisation</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia : </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Séparez plusieurs noms par des virgules. Vous pouvez utiliser * comme caractère générique.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Cliquez avec le bouton droit sur un fichier de votre dossier Drovia pour le partager ou afficher ses versions précédentes.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Prise en main</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Ajouter une tâche de synchronisation</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Partage</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Vue d&apos;ensemble du serveur</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Cette version de Drovia est déjà installée. Voulez-vous la réinstaller ?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Dossier en lecture seule</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement en cours...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Connexion par relais</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Ne pas synchroniser ces dossiers</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Bienvenue dans l&apos;Assistant d&apos;installation de [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Fichiers filtrés</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Vous pourrez exécuter de nouveau l&apos;Assistant d&apos;installation ultérieurement. Cliquez sur Terminer pour quitter l&apos;Assistant.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Fin de l&apos;Assistant d&apos;installation de [ProductName]</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Partager et restaurer</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Afficher l&apos;état de la synchronisation</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Démarrage de Drovia...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Désinstalle [ProductName] et tous ses fichiers.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Téléchargement en cours</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Terminé !</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> a partagé un dossier avec vous.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Impossible de vérifier le nom d&apos;utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Le disque du serveur est plein.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrat de licence utilisateur final</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Les dossiers que vous désélectionnez seront supprimés de cet ordinateur, mais resteront sur le serveur.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Afficher Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Le dossier partagé n&apos;est pas monté sur le serveur.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Utiliser les paramètres proxy du système</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Rechercher des serveurs sur votre réseau local</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Ne pas synchroniser ces fichiers :</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Assistant de configuration avancée</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Afficher des icônes sur les fichiers filtrés</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Associer un nouveau serveur</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Modifie les fonctionnalités de [ProductName] qui sont installées.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Ce dossier appartient à un autre serveur.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Erreur de point de montage</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>La version du serveur est trop ancienne pour cette version de Drovia. Veuillez mettre à jour le serveur.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Les modifications sur les lecteurs réseau sont vérifiées à intervalles réguliers ; leur synchronisation peut donc prendre un certain temps.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Se connecter via Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Toujours utiliser une connexion sécurisée</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>L&apos;Assistant d&apos;installation de [ProductName] s&apos;est terminé prématurément</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Le partage de fichiers n&apos;est pas disponible via une connexion Quelmix.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Ce dossier est un point de montage et ne peut pas être synchronisé.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Vous disposez uniquement d&apos;un accès en lecture à ce dossier. Les modifications effectuées sur cet ordinateur ne seront pas synchronisées.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Les liens de partage ne sont pas disponibles, car Korvo est désactivé.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Ce dossier est également synchronisé par une autre application de synchronisation. Le synchroniser deux fois peut provoquer des conflits.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>L&apos;Assistant d&apos;installation de [ProductName] a été interrompu</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia n&apos;a pas pu démarrer. Veuillez réinstaller Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Chaque dossier ne peut être synchronisé qu&apos;avec une seule connexion.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>L&apos;installation de [ProductName] a été interrompue. Votre système n&apos;a pas été modifié.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Le mois dernier</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Initialisation de Drovia...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Je &amp;n&apos;accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Répare les erreurs de l&apos;installation la plus récente.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuer quand même</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Voulez-vous arrêter la synchronisation de ce dossier partagé ?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Erreur réseau. Veuillez vérifier votre connexion.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo désactivé</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>L&apos;ID du serveur n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Utiliser une icône noir et blanc dans la barre de menus</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Fusionner les fichiers lors de la première synchronisation</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Ne pas synchroniser les fichiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot clé</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] a été installé avec succès.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Cliquez sur Terminer pour fermer l&apos;Assistant.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 éléments</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Recherche de serveurs sur votre réseau local...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État :</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] ne comporte aucune fonctionnalité pouvant être sélectionnée individuellement.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo est désactivé sur le serveur. Demandez à votre administrateur de l&apos;activer.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Partagez un fichier via un lien ou revenez à une version antérieure de celui-ci.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Veuillez patienter pendant que l&apos;Assistant installe [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Prêt à installer [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Lancer [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercredi</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Paramètres du proxy</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Il y a %1 minutes</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Afficher à nouveau le didacticiel</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Reprendre la synchronisation de ces dossiers</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Choisissez le dossier à synchroniser avec le serveur.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Synchronisé</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Ne pas fermer les applications. Un redémarrage sera nécessaire.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Double-cliquez sur l&apos;icône pour ouvrir Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Changer de dossier de synchronisation</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>L&apos;Assistant va supprimer [ProductName] de votre ordinateur.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronisation : %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Dossier de synchronisation local</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Ce dossier est en lecture seule. Les modifications que vous y apportez ne seront pas synchronisées.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Fichiers mis à jour récemment</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Dossier non vide</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Ne pas synchroniser ce dossier</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connexion réussie.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>La connexion est instable.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia est prêt.</translation>
    </message>
</context>
</TS>
