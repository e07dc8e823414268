<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just now</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>March</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Choose whether to change, repair, or remove [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selective Sync</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>The following applications should be closed before continuing the install:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>A secure connection to the server could not be established.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>No proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Choose a sync folder</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>The upgrade failed. Please try again later.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Please read the following license agreement carefully.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Loading folders...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direct connection</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Files matching these names or extensions will not be synced.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Do not show this message again</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manual proxy configuration</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Upgrading...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>The server has changed. Please check the connection.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Trying to sync...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Files in this folder will be merged with the folder on the server.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Date range</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>Automatically &amp;close applications and attempt to restart them after setup is complete.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Local network</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up to date</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Start Drovia when I log in</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>A sharing link cannot be created for this item.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Please enter a user name.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>The installation was interrupted.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>The selected folder is not empty. Please choose an empty folder.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Click the Finish button to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Processing %1 file(s)...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Upgrade Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Removes [ProductName] from your computer.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Your Drovia folder is set up and ready to sync.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>This folder cannot be used for syncing. Please choose another folder.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Shared Folders</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>The Setup Wizard is ready to begin the [ProductName] installation.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Previous %1 pages</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installing [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Access your files anywhere</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Connection details</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>The download was cancelled.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Please choose a different folder on this computer or on the server.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Connection mode</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Please upgrade the server package to use selective sync.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>A newer version of Drovia is already installed.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>The download failed.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Updating...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>You have chosen to remove the program from your computer.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>This computer is already connected to this server.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Advanced setup</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Choose the folders to sync</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Are you sure you want to cancel [ProductName] installation?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Got it</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>The server&apos;s certificate has changed.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>This folder is already synced with another connection.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Detecting connection...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Syncing...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Your files, everywhere.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Checking files...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>No settings have changed.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Retry</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>This version of Drovia is too old for the server. Please upgrade Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>I &amp;accept the terms in the License Agreement</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Folder already synced</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Some files that need to be updated are currently in use.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Resume syncing</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia stopped syncing because of an error. Open Drovia for details.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Sync mode</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Files larger than this size will not be synced.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>July</source>
        <translation>July</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>The installation ended prematurely because of an error.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Sync the Drovia folder in your home folder with your home folder on the server.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Choose the folder on the server and the folder on this computer to sync.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Invalid parameter.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>The local sync folder cannot be found.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>The server could not be reached automatically. Please check your network settings.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>The connection to the server was lost.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>The server sent an unexpected response.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>The server refused the automatic connection.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>The following applications are using files that need to be updated by this setup.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloaded</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Please enter the proxy server address and port.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Unlinking stops syncing this connection. Do you want to continue?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computer name</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>You can change these settings later in the Drovia settings.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Open Drovia folder</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start now</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>The Setup Wizard is ready to repair [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Files updated</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>The folder on this computer is not empty. Its files will be merged with the folder on the server.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Open your files from any computer that runs Drovia, or from a web browser.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Choose the files to sync</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Files in Use</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>October</source>
        <translation>October</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edit connection</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia is indexing this folder.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>About Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Not needed</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>More details</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>The download is complete.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>The user name or password is incorrect.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Maximum file size (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>This connection is inactive.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia is already running.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>New shared folder</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Version mismatch</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>The server&apos;s certificate could not be verified.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>This shared folder is already synced with another folder.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignore</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>You can only read the files in this folder.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Search for servers on the local network</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>File names:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renamed</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>All events</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Please check your user name and password.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>The Setup Wizard will repair the installation of [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Files you save in your Drovia folder are synced to the server automatically.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>The proxy server requires a password</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disk full</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>An unknown error occurred.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Folder not found</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Detecting changes...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Folder name</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>The shared folder could not be enabled.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>The file was changed on both sides. A copy of the conflicting file was kept.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pause syncing</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Choose the folder on this computer that Drovia keeps in sync.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Next %1 pages</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>The new language takes effect after Drovia restarts.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>More tips</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Here you can see the details of this connection.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sync tasks</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Your storage quota on the server is full.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Ready to install</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Change</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>This item cannot be downloaded.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Sync error</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>This folder overlaps with a folder that is already synced.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Choose which folders to sync and how.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;pair</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Ready to remove [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Close the applications listed below to continue the installation.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>A new version is available. Click to upgrade.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>File extensions:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Please read the license agreement.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Settings...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Last week</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choose another folder</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Changes you make on other devices appear here too.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Recently changed files</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Setup is complete.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Ready to repair [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Your sync folders are set up. Drovia starts syncing now.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>The version information is missing.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Choose a setup mode</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applying settings...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>The server&apos;s certificate has changed. Do you want to trust the new certificate?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Status information</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploaded</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Change, repair, or remove installation</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Use a secure connection (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Installing</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 days ago</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Unlink connection</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Change folder</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Resume syncing this folder</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 hours ago</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Browse previous versions</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Manage connections</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>A new shared folder is available: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Syncing is paused</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Authentication failed</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, version %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Open Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Show sync status icons on files and folders</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>The maximum number of shared folders has been reached.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Network settings</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploading</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>The shared folder could not be removed.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>The previous versions of this file cannot be listed.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>The folder on the server is not mounted.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>You need administrator rights to install Drovia for all users. Continue anyway?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Your changes have not been saved. Do you want to save them?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Please enter a port number between 1 and 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>This file is locked by another application.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>System default</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sync this shared folder</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lets you change the way features are installed.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>There is not enough free space on this computer.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia syncs your home folder on the server with the Drovia folder on this computer.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Files of this shared folder will be removed from this computer. Do you want to continue?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Sync automatically</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>The local database could not be opened.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconnect</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Select the operation you wish to perform.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>January</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Maintenance</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>No events to show.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Connect to a new server</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Share link</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Quit Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>The sync folder is on a drive that is not connected.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Welcome to Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Security warning</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Sync your files across all your devices.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Sync history</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Quick setup</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Separate several names with commas. You can use * as a wildcard.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Setup</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Right-click a file in your Drovia folder to share it or see its earlier versions.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Getting started</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Add a sync task</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Sharing</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Server overview</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>This version of Drovia is already installed. Do you want to install it again?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Read-only folder</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relay connection</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Do not sync these folders</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Welcome to the [ProductName] Setup Wizard</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Filtered files</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>You can run the Setup Wizard again later. Click Finish to exit the wizard.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Completed the [ProductName] Setup Wizard</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Share and restore</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Show sync status</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia is starting...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Uninstalls [ProductName] and all of its files.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Downloading</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>All done!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> shared a folder with you.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>The user name or password could not be verified.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>The disk on the server is full.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>End-User License Agreement</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Folders you clear will be removed from this computer but stay on the server.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Show Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>The shared folder is not mounted on the server.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Use the system proxy settings</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Find servers on your local network</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Do not sync these files:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Advanced Setup Wizard</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Shared folder</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Show icons on filtered files</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Link a new server</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Download only</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Change which features of [ProductName] are installed.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>This folder belongs to a different server.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Mount point error</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>The server version is too old for this version of Drovia. Please upgrade the server.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Changes on network drives are checked at regular intervals and may take a while to sync.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Connect through Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Always use a secure connection</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>[ProductName] Setup Wizard ended prematurely</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>File sharing is not available through a Quelmix connection.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Folders</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>This folder is a mount point and cannot be synced.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>You only have read access to this folder. Changes on this computer will not be synced.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Sharing links are not available because Korvo is turned off.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>[ProductName] Setup Wizard was interrupted</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia could not start. Please reinstall Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Each folder can be synced with only one connection.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] setup was interrupted. Your system has not been modified.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Last month</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia is initializing...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>I &amp;do not accept the terms in the License Agreement</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>You are all set</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Repairs errors in the most recent installation.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continue anyway</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Do you want to stop syncing this shared folder?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Network error. Please check your connection.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo disabled</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>The server ID is not valid.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Use a black and white menu bar icon</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Merge files on first sync</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Do not sync files whose names begin with a dot</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Keyword</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] has been installed successfully.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Click Finish to close the wizard.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Install</translation>
    </message>
    <message>
        <source>February</source>
        <translation>February</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Searching for servers on your local network...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>File type</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] has no independently selectable features.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo is turned off on the server. Ask your administrator to turn it on.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Share a file with a link, or go back to an earlier version of it.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Please wait while the Setup Wizard installs [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Ready to install [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Launch [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy settings</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minutes ago</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Show the tutorial again</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Resume syncing these folders</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Choose the folder to sync with the server.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Synced</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Do not close applications. A reboot will be required.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Double-click the icon to open Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Change sync folder</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>The Setup Wizard will remove [ProductName] from your computer.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>June</source>
        <translation>June</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Syncing: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Local sync folder</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>This folder is read-only. Changes you make here will not be synced.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Show in folder</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Recently updated files</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Folder not empty</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Do not sync this folder</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connected successfully.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>The connection is unstable.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Storage</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia is ready.</translation>
    </message>
</context>
</TS>
