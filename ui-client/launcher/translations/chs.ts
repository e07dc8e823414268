<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“安装”开始安装。若要查看或更改任何安装设置，请单击“上一步”。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia 让这台电脑上的文件与您的服务器保持同步。您放入 Drovia 文件夹的所有内容都可以在您的所有设备上使用。</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>请选择更改、修复或删除 [ProductName]。</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>安装向导正在安装 [ProductName]，请稍候。这可能需要几分钟时间。</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>继续安装之前，应关闭以下应用程序：</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>确定要解除此连接的链接吗？已同步的文件将保留在这台电脑上。</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>无法与服务器建立安全连接。</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>选择同步文件夹</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>升级失败。请稍后重试。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>请仔细阅读以下许可协议。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>正在加载文件夹...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>名称或扩展名与这些条目匹配的文件将不会同步。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不再显示此消息</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手动配置代理</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>正在升级...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>服务器已更改。请检查连接。</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>正在尝试同步...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>此文件夹中的文件将与服务器上的文件夹合并。</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>自动关闭应用程序，并在安装完成后尝试重新启动它们(&amp;C)</translation>
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
        <translation>局域网</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>登录时启动 Drovia</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>无法为此项目创建共享链接。</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“修复”修复 [ProductName] 的安装。若要查看或更改任何安装设置，请单击“上一步”。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>请输入用户名。</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>安装已中断。</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>所选文件夹不为空。请选择一个空文件夹。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>单击“完成”按钮退出安装向导。</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>正在处理 %1 个文件...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>升级 Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>从您的电脑中删除 [ProductName]。</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>您的 Drovia 文件夹已设置完毕，可以开始同步。</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>此文件夹不能用于同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>安装向导已准备好开始安装 [ProductName]。</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 页</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>正在安装 [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>随时随地访问您的文件</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>连接详细信息</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>下载已取消。</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>请在这台电脑或服务器上选择其他文件夹。</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>连接模式</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>请升级服务器套件以使用选择性同步。</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>已安装更新版本的 Drovia。</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>下载失败。</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>您已选择从电脑中删除此程序。</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>这台电脑已连接到此服务器。</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>高级设置</translation>
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
        <translation>选择要同步的文件夹</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>确定要取消 [ProductName] 的安装吗？</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>服务器的证书已更改。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>此文件夹已通过另一个连接同步。</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>正在检测连接...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>您的文件，无处不在。</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在检查文件...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>设置未更改。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“删除”从您的电脑中删除 [ProductName]。若要查看或更改任何安装设置，请单击“上一步”。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>此版本的 Drovia 对服务器而言过旧。请升级 Drovia。</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>我接受许可协议中的条款(&amp;A)</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>文件夹已同步</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>某些需要更新的文件正在使用中。</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>继续同步</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>这台电脑</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia 因发生错误而停止同步。请打开 Drovia 查看详细信息。</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>大于此大小的文件将不会同步。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>安装因出错而提前结束。</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>将您主文件夹中的 Drovia 文件夹与服务器上您的主文件夹同步。</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>请选择要同步的服务器上的文件夹和这台电脑上的文件夹。</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>参数无效。</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>找不到本地同步文件夹。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>无法自动连接到服务器。请检查您的网络设置。</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>与服务器的连接已断开。</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>服务器返回了意外的响应。</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>服务器拒绝了自动连接。</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>以下应用程序正在使用此安装程序需要更新的文件。</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下载</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>请输入代理服务器的地址和端口。</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>解除链接后，此连接将停止同步。是否继续？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>电脑名称</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>您以后可以在 Drovia 设置中更改这些设置。</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>打开 Drovia 文件夹</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>安装向导已准备好修复 [ProductName]。</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>已更新的文件</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>这台电脑上的文件夹不为空。其中的文件将与服务器上的文件夹合并。</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>您可以在任何运行 Drovia 的电脑上或通过网页浏览器打开您的文件。</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>选择要同步的文件</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>文件正在使用</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia 正在为此文件夹建立索引。</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>关于 Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>不需要</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>更多详细信息</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>下载已完成。</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>用户名或密码不正确。</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>最大文件大小 (MB)：</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>此连接处于非活动状态。</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia 已在运行。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共享文件夹</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不匹配</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>无法验证服务器的证书。</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>此共享文件夹已与另一个文件夹同步。</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>忽略(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>您只能读取此文件夹中的文件。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除链接</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>在局域网中搜索服务器</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重命名</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>通过修复丢失和损坏的文件、快捷方式和注册表项，修复最近一次安装中的错误。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>请检查您的用户名和密码。</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>安装向导将修复 [ProductName] 的安装。</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>保存在 Drovia 文件夹中的文件会自动同步到服务器。</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>代理服务器需要密码</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>发生未知错误。</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>过滤</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>找不到文件夹</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>正在检测更改...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>无法启用该共享文件夹。</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>文件在两端均被更改。已保留冲突文件的副本。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>删除(&amp;R)</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>暂停同步</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>选择这台电脑上由 Drovia 保持同步的文件夹。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>后 %1 页</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>新语言将在 Drovia 重新启动后生效。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>互联网</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>更多提示</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安装向导将在您的电脑上安装 [ProductName]。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>您可以在此查看此连接的详细信息。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>您在服务器上的存储配额已满。</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>准备安装</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>更改(&amp;C)</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>无法下载此项目。</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>同步错误</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>此文件夹与已同步的文件夹重叠。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>选择要同步的文件夹及同步方式。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>修复(&amp;P)</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>准备删除 [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>请关闭下列应用程序以继续安装。</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>有新版本可用。单击进行升级。</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>文件扩展名：</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>请阅读许可协议。</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上周</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>您在其他设备上所做的更改也会显示在这里。</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近更改的文件</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>安装已完成。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>准备修复 [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>您的同步文件夹已设置完毕。Drovia 现在开始同步。</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>缺少版本信息。</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>选择设置模式</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>服务器的证书已更改。是否信任新证书？</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>状态信息</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>[ProductName] 安装向导因出错而提前结束。您的系统未被修改。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上传</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>更改、修复或删除安装</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>使用安全连接 (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>快速设置会同步您的主文件夹。高级设置允许您选择文件夹。</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>正在安装</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
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
        <translation>解除连接的链接</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>更改文件夹</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>继续同步此文件夹</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>浏览历史版本</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>管理连接</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>有新的共享文件夹可用：%1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>同步已暂停</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安装向导可让您更改 [ProductName] 功能在电脑上的安装方式，或将其从电脑中删除。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>身份验证失败</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia，版本 %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>打开 Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>在文件和文件夹上显示同步状态图标</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>共享文件夹数量已达上限。</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>网络设置</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>正在上传</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>无法删除该共享文件夹。</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>无法列出此文件的历史版本。</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>服务器上的文件夹未挂载。</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>需要管理员权限才能为所有用户安装 Drovia。仍要继续吗？</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>您的更改尚未保存。是否保存？</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>请输入 1 到 65535 之间的端口号。</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>此文件已被其他应用程序锁定。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>同步此共享文件夹</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>允许您更改功能的安装方式。</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>这台电脑上的可用空间不足。</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia 会将服务器上您的主文件夹与这台电脑上的 Drovia 文件夹同步。</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>此共享文件夹中的文件将从这台电脑中删除。是否继续？</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>自动同步</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>无法打开本地数据库。</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>请选择要执行的操作。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>维护</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>没有可显示的事件。</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>连接到新服务器</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>共享链接</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>退出 Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>同步文件夹所在的驱动器未连接。</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>欢迎使用 Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>安全警告</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>在您的所有设备间同步文件。</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>同步历史记录</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速设置</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>多个名称请用逗号分隔。可以使用 * 作为通配符。</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 安装程序</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>在 Drovia 文件夹中右键单击文件，即可共享该文件或查看其历史版本。</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>入门</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>添加同步任务</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共享</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>服务器概览</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>已安装此版本的 Drovia。是否要重新安装？</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>只读文件夹</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>中继连接</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>不同步这些文件夹</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>欢迎使用 [ProductName] 安装向导</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>已过滤的文件</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>您可以稍后再次运行安装向导。单击“完成”退出向导。</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>[ProductName] 安装向导已完成</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>共享与还原</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>显示同步状态</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia 正在启动...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>卸载 [ProductName] 及其所有文件。</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>正在下载</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>全部完成！</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> 与您共享了一个文件夹。</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>无法验证用户名或密码。</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>服务器上的磁盘已满。</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>最终用户许可协议</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>您取消勾选的文件夹将从这台电脑中删除，但仍保留在服务器上。</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>显示 Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>共享文件夹未在服务器上挂载。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系统代理设置</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>查找局域网中的服务器</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>不同步以下文件：</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>高级设置向导</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>在已过滤的文件上显示图标</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>链接新服务器</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>更改要安装的 [ProductName] 功能。</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>此文件夹属于另一台服务器。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>挂载点错误</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>服务器版本过旧，无法配合此版本的 Drovia 使用。请升级服务器。</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>网络驱动器上的更改会定期检查，因此可能需要一段时间才能同步。</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>通过 Quelmix 连接</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>始终使用安全连接</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>[ProductName] 安装向导提前结束</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>通过 Quelmix 连接时无法使用文件共享。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>此文件夹是挂载点，无法同步。</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>您对此文件夹只有读取权限。在这台电脑上所做的更改将不会同步。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>由于 Korvo 已关闭，共享链接不可用。</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>此文件夹也在由另一个同步应用程序同步。重复同步可能会导致冲突。</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>[ProductName] 安装向导已中断</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia 无法启动。请重新安装 Drovia。</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>每个文件夹只能通过一个连接进行同步。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] 安装已中断。您的系统未被修改。</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia 正在初始化...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>我不接受许可协议中的条款(&amp;D)</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>一切就绪</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>修复最近一次安装中的错误。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>仍然继续</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>是否停止同步此共享文件夹？</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>网络错误。请检查您的连接。</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo 已禁用</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>服务器 ID 无效。</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>使用黑白菜单栏图标</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>首次同步时合并文件</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>不同步名称以点开头的文件</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] 已成功安装。</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>单击“完成”关闭向导。</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 项</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>正在搜索局域网中的服务器...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] 没有可单独选择的功能。</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>服务器上的 Korvo 已关闭。请联系管理员将其开启。</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>通过链接共享文件，或将其恢复到早期版本。</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>安装向导正在安装 [ProductName]，请稍候。</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>准备安装 [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>启动 [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理设置</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>再次显示教程</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>继续同步这些文件夹</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>选择要与服务器同步的文件夹。</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>已同步</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>不关闭应用程序（需要重新启动）(&amp;D)</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>双击图标打开 Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>更改同步文件夹</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>安装向导将从您的电脑中删除 [ProductName]。</translation>
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
        <translation>本地同步文件夹</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>此文件夹为只读。您在此处所做的更改将不会同步。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>最近更新的文件</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>文件夹不为空</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>不同步此文件夹</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>连接成功。</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>连接不稳定。</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>存储空间</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia 已准备就绪。</translation>
    </message>
</context>
</TS>
