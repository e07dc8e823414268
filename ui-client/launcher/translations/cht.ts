<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「安裝」開始安裝。若要檢閱或變更任何安裝設定，請按一下「上一步」。按一下「取消」可結束精靈。</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>剛剛</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia 會讓這台電腦上的檔案與您的伺服器保持同步。您放進 Drovia 資料夾的所有內容，都能在您的所有裝置上使用。</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>請選擇變更、修復或移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>選擇性同步</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>安裝精靈正在安裝 [ProductName]，請稍候。這可能需要幾分鐘的時間。</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>繼續安裝之前，應先關閉下列應用程式：</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>確定要解除此連線的連結嗎？已同步的檔案會保留在這台電腦上。</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>無法與伺服器建立安全連線。</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>選擇同步資料夾</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>升級失敗。請稍後再試。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>請仔細閱讀下列授權合約。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>正在載入資料夾...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接連線</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>名稱或副檔名符合這些項目的檔案將不會同步。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不要再顯示此訊息</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手動設定代理伺服器</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>正在升級...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>伺服器已變更。請檢查連線。</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>正在嘗試同步...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>此資料夾中的檔案將與伺服器上的資料夾合併。</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期範圍</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>自動關閉應用程式，並在安裝完成後嘗試重新啟動它們(&amp;C)</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新狀態</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>登入時啟動 Drovia</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>無法為此項目建立共用連結。</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「修復」修復 [ProductName] 的安裝。若要檢閱或變更任何安裝設定，請按一下「上一步」。按一下「取消」可結束精靈。</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>請輸入使用者名稱。</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>安裝已中斷。</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>選取的資料夾不是空的。請選擇空的資料夾。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>按一下「完成」按鈕結束安裝精靈。</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>正在處理 %1 個檔案...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>升級 Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>從您的電腦移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>您的 Drovia 資料夾已設定完成，可以開始同步。</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>此資料夾無法用於同步。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>安裝精靈已準備好開始安裝 [ProductName]。</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 頁</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>正在安裝 [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>隨時隨地存取您的檔案</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>連線詳細資料</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>下載已取消。</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>請在這台電腦或伺服器上選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>連線模式</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>請升級伺服器套件，才能使用選擇性同步。</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>已安裝較新版本的 Drovia。</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>下載失敗。</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>您已選擇從電腦移除此程式。</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 位址</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>這台電腦已連線到此伺服器。</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>選擇要同步的資料夾</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>確定要取消 [ProductName] 的安裝嗎？</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>我知道了</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>伺服器的憑證已變更。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>此資料夾已透過另一個連線同步。</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>正在偵測連線...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>您的檔案，無所不在。</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在檢查檔案...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>設定沒有任何變更。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「移除」從您的電腦移除 [ProductName]。若要檢閱或變更任何安裝設定，請按一下「上一步」。按一下「取消」可結束精靈。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重試(&amp;R)</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>此版本的 Drovia 對伺服器而言過舊。請升級 Drovia。</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>我接受授權合約中的條款(&amp;A)</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>資料夾已同步</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>部分需要更新的檔案目前正在使用中。</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>繼續同步</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>這台電腦</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia 因發生錯誤而停止同步。請開啟 Drovia 查看詳細資料。</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>大於此大小的檔案將不會同步。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>安裝因發生錯誤而提前結束。</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>將您主資料夾中的 Drovia 資料夾與伺服器上您的主資料夾同步。</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>請選擇要同步的伺服器資料夾和這台電腦上的資料夾。</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>參數無效。</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>找不到本機同步資料夾。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>無法自動連線到伺服器。請檢查您的網路設定。</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>與伺服器的連線已中斷。</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>伺服器傳回了非預期的回應。</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>顯示桌面通知</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>伺服器拒絕了自動連線。</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>下列應用程式正在使用此安裝程式需要更新的檔案。</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下載</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>請輸入代理伺服器的位址和連接埠。</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>解除連結後，將停止同步此連線。要繼續嗎？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>電腦名稱</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>您之後可以在 Drovia 設定中變更這些設定。</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>開啟 Drovia 資料夾</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>安裝精靈已準備好修復 [ProductName]。</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>已更新的檔案</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>這台電腦上的資料夾不是空的。其中的檔案將與伺服器上的資料夾合併。</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>您可以從任何執行 Drovia 的電腦或透過網頁瀏覽器開啟您的檔案。</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>選擇要同步的檔案</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>使用中的檔案</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>編輯連線</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia 正在為此資料夾建立索引。</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>關於 Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>不需要</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>更多詳細資料</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>下載已完成。</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>使用者名稱或密碼不正確。</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>檔案大小上限 (MB)：</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>此連線目前未啟用。</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia 已在執行中。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共用資料夾</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不符</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>未啟用</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>無法驗證伺服器的憑證。</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>此共用資料夾已與另一個資料夾同步。</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>略過(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>列印(&amp;P)</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>您只能讀取此資料夾中的檔案。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除連結</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>在區域網路中搜尋伺服器</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>檔案名稱：</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重新命名</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>修正遺失和損毀的檔案、捷徑及登錄項目，以修復最近一次安裝中的錯誤。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>請檢查您的使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>安裝精靈將修復 [ProductName] 的安裝。</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>選取資料夾</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>您儲存在 Drovia 資料夾中的檔案，會自動同步到伺服器。</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>代理伺服器需要密碼</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>磁碟已滿</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>發生未知的錯誤。</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>找不到資料夾</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>正在偵測變更...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>無法啟用此共用資料夾。</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>檔案在兩端都已變更。已保留衝突檔案的副本。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>暫停同步</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>選擇這台電腦上要由 Drovia 保持同步的資料夾。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>後 %1 頁</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>新的語言將在 Drovia 重新啟動後生效。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>網際網路</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>更多提示</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安裝精靈將在您的電腦上安裝 [ProductName]。按一下「下一步」繼續，或按一下「取消」結束安裝精靈。</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>您可以在這裡查看此連線的詳細資料。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步工作</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>歡迎</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>您在伺服器上的儲存空間配額已滿。</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>準備安裝</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>變更(&amp;C)</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>無法下載此項目。</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>同步錯誤</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>此資料夾與已同步的資料夾重疊。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>選擇要同步的資料夾以及同步方式。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>修復(&amp;P)</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>準備移除 [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>請關閉下列應用程式以繼續安裝。</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>有新版本可用。按一下即可升級。</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>副檔名：</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>請閱讀授權合約。</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上週</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>您在其他裝置上所做的變更也會顯示在這裡。</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近變更的檔案</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>安裝已完成。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>準備修復 [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>您的同步資料夾已設定完成。Drovia 現在開始同步。</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>缺少版本資訊。</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>選擇設定模式</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>伺服器的憑證已變更。要信任新的憑證嗎？</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>狀態資訊</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>[ProductName] 安裝精靈因發生錯誤而提前結束。您的系統並未遭到修改。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上傳</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>變更、修復或移除安裝</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>使用安全連線 (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>快速設定會同步您的主資料夾。進階設定可讓您自行選擇資料夾。</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>正在安裝</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升級</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>解除連線的連結</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>變更資料夾</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>繼續同步此資料夾</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>瀏覽先前的版本</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>管理連線</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>有新的共用資料夾可用：%1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>同步已暫停</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安裝精靈可讓您變更 [ProductName] 功能在電腦上的安裝方式，或將其從電腦移除。按一下「下一步」繼續，或按一下「取消」結束安裝精靈。</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>驗證失敗</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia，版本 %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>開啟 Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>在檔案和資料夾上顯示同步狀態圖示</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>共用資料夾數量已達上限。</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>網路設定</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>正在上傳</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>無法移除此共用資料夾。</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>無法列出此檔案先前的版本。</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>伺服器上的資料夾尚未掛載。</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>您需要系統管理員權限，才能為所有使用者安裝 Drovia。仍要繼續嗎？</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>您的變更尚未儲存。要儲存嗎？</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>請輸入介於 1 到 65535 之間的連接埠號碼。</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>此檔案已被其他應用程式鎖定。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系統預設</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>同步此共用資料夾</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>可讓您變更功能的安裝方式。</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>這台電腦上的可用空間不足。</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia 會將伺服器上您的主資料夾與這台電腦上的 Drovia 資料夾同步。</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>此共用資料夾中的檔案將從這台電腦移除。要繼續嗎？</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>自動同步</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>無法開啟本機資料庫。</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新連線</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>請選取要執行的作業。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>維護</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>沒有可顯示的事件。</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>連線到新的伺服器</translation>
    </message>
    <message>
        <source>History</source>
        <translation>記錄</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>共用連結</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>結束 Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>同步資料夾所在的磁碟機尚未連接。</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>歡迎使用 Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>權限不足</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>安全性警告</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>在您的所有裝置之間同步檔案。</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>同步記錄</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速設定</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>多個名稱請以逗號分隔。可使用 * 作為萬用字元。</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 安裝程式</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>在 Drovia 資料夾中的檔案上按一下滑鼠右鍵，即可共用該檔案或查看其先前的版本。</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>開始使用</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>新增同步工作</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共用</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>伺服器概觀</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>已安裝此版本的 Drovia。要重新安裝嗎？</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>唯讀資料夾</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>中繼連線</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>不要同步這些資料夾</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>歡迎使用 [ProductName] 安裝精靈</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>已篩選的檔案</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>您可以稍後再執行安裝精靈。按一下「完成」結束精靈。</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>[ProductName] 安裝精靈已完成</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>共用與還原</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>顯示同步狀態</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia 正在啟動...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>解除安裝 [ProductName] 及其所有檔案。</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>正在下載</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>全部完成！</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> 與您共用了一個資料夾。</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>無法驗證使用者名稱或密碼。</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>伺服器上的磁碟已滿。</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>使用者授權合約</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>您取消勾選的資料夾會從這台電腦移除，但仍保留在伺服器上。</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>顯示 Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>共用資料夾尚未在伺服器上掛載。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系統的代理伺服器設定</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>尋找區域網路中的伺服器</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>不要同步下列檔案：</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>進階設定精靈</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>在已篩選的檔案上顯示圖示</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>連結新的伺服器</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>僅下載</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>變更要安裝的 [ProductName] 功能。</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>此資料夾屬於另一台伺服器。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>掛載點錯誤</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>伺服器版本過舊，無法搭配此版本的 Drovia 使用。請升級伺服器。</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>網路磁碟機上的變更會定期檢查，因此可能需要一段時間才會同步。</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>透過 Quelmix 連線</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>一律使用安全連線</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>[ProductName] 安裝精靈提前結束</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>透過 Quelmix 連線時無法使用檔案共用。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>此資料夾是掛載點，無法同步。</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>您對此資料夾只有讀取權限。在這台電腦上所做的變更將不會同步。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>From</source>
        <translation>從</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>由於 Korvo 已關閉，無法使用共用連結。</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>此資料夾也由另一個同步應用程式進行同步。重複同步可能會造成衝突。</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>[ProductName] 安裝精靈已中斷</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia 無法啟動。請重新安裝 Drovia。</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>每個資料夾只能透過一個連線同步。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] 安裝已中斷。您的系統並未遭到修改。</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia 正在初始化...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>我不接受授權合約中的條款(&amp;D)</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>一切就緒</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>修復最近一次安裝中的錯誤。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>仍要繼續</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>要停止同步此共用資料夾嗎？</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>網路錯誤。請檢查您的連線。</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo 已停用</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>伺服器 ID 無效。</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>使用黑白的選單列圖示</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>首次同步時合併檔案</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>不要同步名稱以點開頭的檔案</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>關鍵字</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>已成功安裝 [ProductName]。</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>按一下「完成」關閉精靈。</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 個項目</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安裝(&amp;I)</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>正在搜尋區域網路中的伺服器...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>檔案類型</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>狀態：</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] 沒有可個別選取的功能。</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>伺服器上的 Korvo 已關閉。請要求您的系統管理員開啟。</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>透過連結共用檔案，或將檔案還原為先前的版本。</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>安裝精靈正在安裝 [ProductName]，請稍候。</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>準備安裝 [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>啟動 [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理伺服器設定</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>再次顯示教學</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>繼續同步這些資料夾</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>選擇要與伺服器同步的資料夾。</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>已同步</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>不要關閉應用程式（需要重新開機）(&amp;D)</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>按兩下圖示即可開啟 Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>變更同步資料夾</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>安裝精靈將從您的電腦移除 [ProductName]。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>正在同步：%1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>本機同步資料夾</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>此資料夾為唯讀。您在此所做的變更將不會同步。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>在資料夾中顯示</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>最近更新的檔案</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>資料夾不是空的</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>不要同步此資料夾</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>連線成功。</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>連線不穩定。</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>儲存空間</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia 已準備就緒。</translation>
    </message>
</context>
</TS>
