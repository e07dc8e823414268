<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>「インストール」をクリックしてインストールを開始してください。インストール設定を確認または変更するには「戻る」を、ウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia は、このコンピューターのファイルをサーバーと同期した状態に保ちます。Drovia フォルダーに保存したものは、すべてのデバイスで利用できます。</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>[ProductName] の変更、修復、または削除を選択してください。</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>選択同期</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>セットアップウィザードが [ProductName] をインストールしています。しばらくお待ちください。数分かかる場合があります。</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>インストールを続行する前に、次のアプリケーションを終了してください:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>この接続のリンクを解除してもよろしいですか? 同期済みのファイルはこのコンピューターに残ります。</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>サーバーとの安全な接続を確立できませんでした。</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>同期フォルダーの選択</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>アップグレードに失敗しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>次の使用許諾契約書をよくお読みください。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>フォルダーを読み込んでいます...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>これらの名前または拡張子に一致するファイルは同期されません。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>プロキシを手動で設定する</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>アップグレードしています...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>サーバーが変更されました。接続を確認してください。</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>同期を試みています...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>このフォルダー内のファイルは、サーバー上のフォルダーと統合されます。</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>アプリケーションを自動的に終了し、セットアップ完了後に再起動する(&amp;C)</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>最新の状態です</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>ログイン時に Drovia を起動する</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>この項目の共有リンクは作成できません。</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>「修復」をクリックすると、[ProductName] のインストールを修復します。インストール設定を確認または変更するには「戻る」を、ウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>インストールは中断されました。</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>選択したフォルダーは空ではありません。空のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続しています...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>「完了」ボタンをクリックして、セットアップウィザードを終了してください。</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 個のファイルを処理しています...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Drovia をアップグレード</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>[ProductName] をコンピューターから削除します。</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Drovia フォルダーの設定が完了し、同期の準備ができました。</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>このフォルダーは同期に使用できません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>セットアップウィザードは、[ProductName] のインストールを開始する準備ができました。</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前の %1 ページ</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>[ProductName] をインストールしています</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>どこからでもファイルにアクセス</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>接続の詳細</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>ダウンロードはキャンセルされました。</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>このコンピューターまたはサーバー上の別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>接続モード</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>選択同期を使用するには、サーバーのパッケージをアップグレードしてください。</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>より新しいバージョンの Drovia が既にインストールされています。</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>ダウンロードに失敗しました。</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>更新しています...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>プログラムをコンピューターから削除することが選択されました。</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>このコンピューターは既にこのサーバーに接続されています。</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>詳細セットアップ</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>同期するフォルダーを選択</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>[ProductName] のインストールをキャンセルしてもよろしいですか?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>わかりました</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>サーバーの証明書が変更されました。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>このフォルダーは既に別の接続で同期されています。</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>接続を検出しています...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>同期しています...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>あなたのファイルを、どこでも。</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>ファイルを確認しています...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>変更された設定はありません。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>「削除」をクリックすると、[ProductName] をコンピューターから削除します。インストール設定を確認または変更するには「戻る」を、ウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>この Drovia のバージョンは、サーバーに対して古すぎます。Drovia をアップグレードしてください。</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>使用許諾契約書に同意します(&amp;A)</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>フォルダーは既に同期されています</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>更新が必要なファイルの一部が現在使用中です。</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>同期を再開</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>エラーのため、Drovia は同期を停止しました。詳細は Drovia を開いて確認してください。</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同期モード</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>このサイズより大きいファイルは同期されません。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>エラーのため、インストールが途中で終了しました。</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>ホームフォルダー内の Drovia フォルダーを、サーバー上のホームフォルダーと同期します。</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>同期するサーバー上のフォルダーと、このコンピューター上のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>パラメーターが無効です。</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>ローカルの同期フォルダーが見つかりません。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>サーバーに自動的に接続できませんでした。ネットワーク設定を確認してください。</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>サーバーとの接続が切断されました。</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>サーバーから予期しない応答がありました。</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>デスクトップ通知を表示する</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>サーバーが自動接続を拒否しました。</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>次のアプリケーションが、このセットアップで更新が必要なファイルを使用しています。</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>プロキシサーバーのアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>リンクを解除すると、この接続の同期が停止します。続行しますか?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>コンピューター名</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>これらの設定は、後で Drovia の設定から変更できます。</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Drovia フォルダーを開く</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>セットアップウィザードは、[ProductName] を修復する準備ができました。</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>更新されたファイル</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>このコンピューター上のフォルダーは空ではありません。フォルダー内のファイルは、サーバー上のフォルダーと統合されます。</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Drovia が動作している任意のコンピューター、または Web ブラウザーからファイルを開くことができます。</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>同期するファイルを選択</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>使用中のファイル</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>接続の編集</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia はこのフォルダーのインデックスを作成しています。</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Drovia について</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>不要</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>ダウンロードが完了しました。</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>最大ファイルサイズ (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>この接続は非アクティブです。</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia は既に実行中です。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新しい共有フォルダー</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>バージョンの不一致</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>サーバーの証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>この共有フォルダーは既に別のフォルダーと同期されています。</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>無視(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>このフォルダー内のファイルは読み取りのみ可能です。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>リンク解除</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>ローカルネットワーク上のサーバーを検索</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>すべてのイベント</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>見つからないファイルや破損したファイル、ショートカット、レジストリエントリを修正して、最新のインストールのエラーを修復します。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>ユーザー名とパスワードを確認してください。</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>セットアップウィザードは、[ProductName] のインストールを修復します。</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Drovia フォルダーに保存したファイルは、自動的にサーバーと同期されます。</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>プロキシサーバーにパスワードが必要</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>ディスクの空き容量不足</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>不明なエラーが発生しました。</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>フォルダーが見つかりません</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>変更を検出しています...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>フォルダー名</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>共有フォルダーを有効にできませんでした。</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>ファイルが両方で変更されました。競合したファイルのコピーを保存しました。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>同期を一時停止</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Drovia で同期する、このコンピューター上のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>次の %1 ページ</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>新しい言語は、Drovia の再起動後に有効になります。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>その他のヒント</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>セットアップウィザードは、[ProductName] をコンピューターにインストールします。続行するには「次へ」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>ここでは、この接続の詳細を確認できます。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>サーバー上のストレージ容量の上限に達しました。</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>インストールの準備完了</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>変更(&amp;C)</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>この項目はダウンロードできません。</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>同期エラー</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>このフォルダーは、既に同期されているフォルダーと重複しています。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>同期するフォルダーと同期の方法を選択します。</translation>
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
        <translation>[ProductName] の削除の準備完了</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>インストールを続行するには、以下に示すアプリケーションを終了してください。</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>新しいバージョンがあります。クリックしてアップグレードしてください。</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>ファイル拡張子:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>使用許諾契約書をお読みください。</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>先週</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>別のフォルダーを選択</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>他のデバイスで行った変更も、ここに反映されます。</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近変更されたファイル</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備しています...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>セットアップが完了しました。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>[ProductName] の修復の準備完了</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>同期フォルダーの設定が完了しました。Drovia は今から同期を開始します。</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>バージョン情報がありません。</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>セットアップモードの選択</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>サーバーの証明書が変更されました。新しい証明書を信頼しますか?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>状態の情報</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>エラーのため、[ProductName] セットアップウィザードが途中で終了しました。システムは変更されていません。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>インストールの変更、修復、または削除</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>安全な接続 (SSL) を使用する</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>簡単セットアップではホームフォルダーを同期します。詳細セットアップでは同期するフォルダーを選択できます。</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>インストールしています</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>アップグレード</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 日前</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>接続のリンクを解除</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>フォルダーを変更</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>このフォルダーの同期を再開</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>以前のバージョンを参照</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>接続の管理</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>新しい共有フォルダーを利用できます: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>同期は一時停止中です</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>セットアップウィザードでは、[ProductName] の機能のインストール方法を変更したり、コンピューターから削除したりできます。続行するには「次へ」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>認証に失敗しました</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia バージョン %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Drovia を開く</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>ファイルとフォルダーに同期状態のアイコンを表示する</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>共有フォルダーの最大数に達しました。</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>ネットワーク設定</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>アップロード中</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>共有フォルダーを削除できませんでした。</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>このファイルの以前のバージョンを一覧表示できません。</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>サーバー上のフォルダーがマウントされていません。</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>すべてのユーザーに Drovia をインストールするには、管理者権限が必要です。このまま続行しますか?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>変更は保存されていません。保存しますか?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>1 から 65535 までのポート番号を入力してください。</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>このファイルは別のアプリケーションによってロックされています。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>システムの既定</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>この共有フォルダーを同期する</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>機能のインストール方法を変更できます。</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>このコンピューターの空き容量が不足しています。</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia は、サーバー上のホームフォルダーと、このコンピューター上の Drovia フォルダーを同期します。</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>この共有フォルダーのファイルは、このコンピューターから削除されます。続行しますか?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>自動で同期</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>ローカルデータベースを開けませんでした。</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>メンテナンス</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>表示するイベントはありません。</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>新しいサーバーに接続</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>リンクを共有</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>統合</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Drovia を終了</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>同期フォルダーは、接続されていないドライブ上にあります。</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Drovia へようこそ</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセス許可がありません</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>セキュリティの警告</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>すべてのデバイスでファイルを同期します。</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>同期履歴</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>簡単セットアップ</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>複数の名前はコンマで区切ります。ワイルドカードとして * を使用できます。</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] セットアップ</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Drovia フォルダー内のファイルを右クリックすると、そのファイルを共有したり、以前のバージョンを表示したりできます。</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>はじめに</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>同期タスクを追加</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>サーバーの概要</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>このバージョンの Drovia は既にインストールされています。もう一度インストールしますか?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>読み取り専用フォルダー</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロードしています...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>中継接続</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>これらのフォルダーを同期しない</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>[ProductName] セットアップウィザードへようこそ</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>フィルター対象のファイル</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>セットアップウィザードは後でもう一度実行できます。ウィザードを終了するには「完了」をクリックしてください。</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>[ProductName] セットアップウィザードが完了しました</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>共有と復元</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>同期状態を表示</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia を起動しています...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>[ProductName] とそのすべてのファイルをアンインストールします。</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>ダウンロード中</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>すべて完了しました!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> さんがあなたとフォルダーを共有しました。</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>ユーザー名またはパスワードを確認できませんでした。</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>サーバーのディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>使用許諾契約書</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>選択を解除したフォルダーは、このコンピューターからは削除されますが、サーバー上には残ります。</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Drovia を表示</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>共有フォルダーがサーバー上でマウントされていません。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>システムのプロキシ設定を使用する</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>ローカルネットワーク上のサーバーを探します</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>次のファイルを同期しない:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>詳細セットアップウィザード</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>フィルター対象のファイルにアイコンを表示する</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>新しいサーバーをリンク</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>[ProductName] のインストールする機能を変更します。</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>このフォルダーは別のサーバーに属しています。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込んでいます...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>マウントポイントのエラー</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>サーバーのバージョンが、このバージョンの Drovia に対して古すぎます。サーバーをアップグレードしてください。</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>ネットワークドライブ上の変更は一定の間隔で確認されるため、同期に時間がかかる場合があります。</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Quelmix 経由で接続</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>常に安全な接続を使用する</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>[ProductName] セットアップウィザードが途中で終了しました</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Quelmix 接続では、ファイル共有を利用できません。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>このフォルダーはマウントポイントのため、同期できません。</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>このフォルダーには読み取りアクセス権しかありません。このコンピューターでの変更は同期されません。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Korvo が無効になっているため、共有リンクを利用できません。</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>このフォルダーは別の同期アプリケーションでも同期されています。二重に同期すると、競合が発生する可能性があります。</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>[ProductName] セットアップウィザードが中断されました</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia を起動できませんでした。Drovia を再インストールしてください。</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>各フォルダーは、1 つの接続でのみ同期できます。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] のセットアップが中断されました。システムは変更されていません。</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>先月</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia を初期化しています...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>使用許諾契約書に同意しません(&amp;D)</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>準備が整いました</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>最新のインストールのエラーを修復します。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>このまま続行</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>この共有フォルダーの同期を停止しますか?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>ネットワークエラーです。接続を確認してください。</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo が無効です</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>サーバー ID が無効です。</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>白黒のメニューバーアイコンを使用する</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>初回の同期時にファイルを統合する</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>名前がドットで始まるファイルを同期しない</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] は正常にインストールされました。</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>ウィザードを閉じるには「完了」をクリックしてください。</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 件</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>ローカルネットワーク上のサーバーを検索しています...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] には、個別に選択できる機能はありません。</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>サーバーで Korvo が無効になっています。有効にするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>ファイルをリンクで共有したり、以前のバージョンに戻したりできます。</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>セットアップウィザードが [ProductName] をインストールしています。しばらくお待ちください。</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>[ProductName] のインストールの準備完了</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] を起動する</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>プロキシ設定</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>チュートリアルをもう一度表示</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>これらのフォルダーの同期を再開</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>サーバーと同期するフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>同期済み</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>アプリケーションを終了しない (再起動が必要になります)(&amp;D)</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>アイコンをダブルクリックすると Drovia が開きます</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>同期フォルダーの変更</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>セットアップウィザードは、[ProductName] をコンピューターから削除します。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>同期中: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>ローカルの同期フォルダー</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>このフォルダーは読み取り専用です。ここでの変更は同期されません。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>フォルダー内で表示</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>最近更新されたファイル</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>フォルダーが空ではありません</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>このフォルダーを同期しない</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>正常に接続しました。</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>接続が不安定です。</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>ストレージ</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia の準備ができました。</translation>
    </message>
</context>
</TS>
