<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Yüklemeye başlamak için Yükle'ye tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri'ye tıklayın. Sihirbazdan çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az önce</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia, bu bilgisayardaki dosyaları sunucunuzla eşitlenmiş halde tutar. Drovia klasörünüze koyduğunuz her şey tüm cihazlarınızda kullanılabilir.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mart</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>[ProductName] uygulamasını değiştirmeyi, onarmayı veya kaldırmayı seçin.</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Seçmeli eşitleme</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Kurulum Sihirbazı [ProductName] uygulamasını yüklerken lütfen bekleyin.  Bu işlem birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Yüklemeye devam etmeden önce aşağıdaki uygulamalar kapatılmalıdır:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Bu bağlantıyı kaldırmak istediğinizden emin misiniz? Önceden eşitlenmiş dosyalar bu bilgisayarda kalır.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Sunucuyla güvenli bir bağlantı kurulamadı.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ara sunucu yok</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Bir eşitleme klasörü seçin</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Yükseltme başarısız oldu. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lütfen aşağıdaki lisans sözleşmesini dikkatlice okuyun.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Klasörler yükleniyor...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturulma tarihi</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Doğrudan bağlantı</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Bu adlarla veya uzantılarla eşleşen dosyalar eşitlenmez.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Bu iletiyi bir daha gösterme</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>El ile ara sunucu yapılandırması</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Yükseltiliyor...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Sunucu değişti. Lütfen bağlantıyı denetleyin.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Eşitlenmeye çalışılıyor...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Bu klasördeki dosyalar sunucudaki klasörle birleştirilecek.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Tarih aralığı</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>Uygulamaları &amp;otomatik olarak kapat ve kurulum tamamlandıktan sonra yeniden başlatmayı dene.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Kasım</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Oturum açtığımda Drovia'yı başlat</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Bu öğe için paylaşım bağlantısı oluşturulamıyor.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] yüklemesini onarmak için Onar'a tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri'ye tıklayın. Sihirbazdan çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Lütfen bir kullanıcı adı girin.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>Yükleme kesildi.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>Seçilen klasör boş değil. Lütfen boş bir klasör seçin.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Bağlanıyor...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazından çıkmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 dosya işleniyor...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Drovia'yı yükselt</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>[ProductName] uygulamasını bilgisayarınızdan kaldırır.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Drovia klasörünüz ayarlandı ve eşitlemeye hazır.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayıs</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Bu klasör eşitleme için kullanılamaz. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Ağustos</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Paylaşılan klasörler</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Nisan</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Kurulum Sihirbazı, [ProductName] yüklemesine başlamaya hazır.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bağlantı noktası</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Önceki %1 sayfa</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>[ProductName] yükleniyor</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Dosyalarınıza her yerden erişin</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Bağlantı ayrıntıları</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>İndirme iptal edildi.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Lütfen bu bilgisayarda veya sunucuda farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Bağlantı modu</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Seçmeli eşitlemeyi kullanmak için lütfen sunucu paketini yükseltin.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Drovia'nın daha yeni bir sürümü zaten yüklü.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>İndirme başarısız oldu.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Güncelleniyor...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Programı bilgisayarınızdan kaldırmayı seçtiniz.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP adresi</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Bu bilgisayar zaten bu sunucuya bağlı.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Gelişmiş kurulum</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Eşitlenecek klasörleri seçin</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>[ProductName] yüklemesini iptal etmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Anladım</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Sunucunun sertifikası değişti.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Bu klasör zaten başka bir bağlantıyla eşitleniyor.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Bağlantı algılanıyor...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Eşitleniyor...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Dosyalarınız, her yerde.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dosyalar denetleniyor...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Hiçbir ayar değişmedi.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] uygulamasını bilgisayarınızdan kaldırmak için Kaldır'a tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri'ye tıklayın. Sihirbazdan çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Yeniden dene</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Drovia'nın bu sürümü sunucu için çok eski. Lütfen Drovia'yı yükseltin.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Lisans Sözleşmesindeki şartları &amp;kabul ediyorum</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Klasör zaten eşitleniyor</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Güncellenmesi gereken bazı dosyalar şu anda kullanımda.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Eşitlemeyi sürdür</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Bu bilgisayar</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia bir hata nedeniyle eşitlemeyi durdurdu. Ayrıntılar için Drovia'yı açın.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Eşitleme modu</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Bu boyuttan büyük dosyalar eşitlenmez.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Temmuz</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>Yükleme bir hata nedeniyle erken sona erdi.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Kişisel klasörünüzdeki Drovia klasörünü sunucudaki kişisel klasörünüzle eşitler.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Eşitlenecek sunucu klasörünü ve bu bilgisayardaki klasörü seçin.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Geçersiz parametre.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Yerel eşitleme klasörü bulunamıyor.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Sunucuya otomatik olarak ulaşılamadı. Lütfen ağ ayarlarınızı denetleyin.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Sunucuyla bağlantı kesildi.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Sunucu beklenmeyen bir yanıt gönderdi.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Sunucu otomatik bağlantıyı reddetti.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Aşağıdaki uygulamalar, bu kurulum tarafından güncellenmesi gereken dosyaları kullanıyor.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>İndirildi</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Lütfen ara sunucu adresini ve bağlantı noktasını girin.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Bağlantıyı kaldırmak bu bağlantının eşitlenmesini durdurur. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Bilgisayar adı</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Bu ayarları daha sonra Drovia ayarlarından değiştirebilirsiniz.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Drovia klasörünü aç</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Şimdi başlat</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>Kurulum Sihirbazı, [ProductName] uygulamasını onarmaya hazır.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Güncellenen dosyalar</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>Bu bilgisayardaki klasör boş değil. İçindeki dosyalar sunucudaki klasörle birleştirilecek.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Dosyalarınızı Drovia çalıştıran herhangi bir bilgisayardan veya bir web tarayıcısından açın.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Eşitlenecek dosyaları seçin</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Kullanımdaki dosyalar</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Ara sunucu</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ekim</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Bağlantıyı düzenle</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia bu klasörü dizinliyor.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Drovia hakkında</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Gerekli değil</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Daha fazla ayrıntı</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>İndirme tamamlandı.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Kullanıcı adı veya parola yanlış.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>En büyük dosya boyutu (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Bu bağlantı etkin değil.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia zaten çalışıyor.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Yeni paylaşılan klasör</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Sürüm uyuşmazlığı</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Etkin değil</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Sunucunun sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Bu paylaşılan klasör zaten başka bir klasörle eşitleniyor.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Yok&amp;say</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Ya&amp;zdır</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Bu klasördeki dosyaları yalnızca okuyabilirsiniz.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Bağlantıyı kaldır</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Yerel ağda sunucu ara</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Dosya adları:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tüm olaylar</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Eksik ve bozuk dosyaları, kısayolları ve kayıt defteri girdilerini düzelterek en son yüklemedeki hataları onarır.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Lütfen kullanıcı adınızı ve parolanızı denetleyin.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>Kurulum Sihirbazı, [ProductName] yüklemesini onaracak.</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Bir klasör seçin</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Drovia klasörünüze kaydettiğiniz dosyalar sunucuyla otomatik olarak eşitlenir.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Ara sunucu parola gerektiriyor</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disk dolu</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Gelişmiş ayarlar</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Bilinmeyen bir hata oluştu.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrele</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Klasör bulunamadı</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Değişiklikler algılanıyor...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Klasör adı</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Paylaşılan klasör etkinleştirilemedi.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Dosya her iki tarafta da değiştirildi. Çakışan dosyanın bir kopyası saklandı.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Eşitlemeyi duraklat</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Bu bilgisayarda Drovia'nın eşitlenmiş halde tutacağı klasörü seçin.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Sonraki %1 sayfa</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı test ediliyor...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>Yeni dil, Drovia yeniden başlatıldıktan sonra geçerli olur.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Daha fazla ipucu</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazı, [ProductName] uygulamasını bilgisayarınıza yükleyecek. Devam etmek için İleri'ye, Kurulum Sihirbazından çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Bu bağlantının ayrıntılarını burada görebilirsiniz.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Eşitleme görevleri</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Hoş geldiniz</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Sunucudaki depolama kotanız doldu.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Yüklemeye hazır</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Değiştir</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Bu öğe indirilemiyor.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Eşitleme hatası</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Bu klasör, zaten eşitlenen bir klasörle çakışıyor.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Hangi klasörlerin nasıl eşitleneceğini seçin.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Onar</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>[ProductName] uygulamasını kaldırmaya hazır</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Yüklemeye devam etmek için aşağıda listelenen uygulamaları kapatın.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Yeni bir sürüm var. Yükseltmek için tıklayın.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Dosya uzantıları:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Lütfen lisans sözleşmesini okuyun.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ayarlar...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Geçen hafta</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Başka bir klasör seçin</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Diğer cihazlarda yaptığınız değişiklikler burada da görünür.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Son değiştirilen dosyalar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Kurulum tamamlandı.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>[ProductName] uygulamasını onarmaya hazır</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Eşitleme klasörleriniz ayarlandı. Drovia şimdi eşitlemeye başlıyor.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Sürüm bilgisi eksik.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Bir kurulum modu seçin</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Sunucunun sertifikası değişti. Yeni sertifikaya güvenmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Durum bilgileri</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>[ProductName] Kurulum Sihirbazı bir hata nedeniyle erken sona erdi. Sisteminizde değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Karşıya yüklendi</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Yüklemeyi değiştir, onar veya kaldır</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Güvenli bağlantı kullan (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Hızlı kurulum kişisel klasörünüzü eşitler. Gelişmiş kurulumda klasörleri kendiniz seçersiniz.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Yükleme yapılıyor</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Yükselt</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 gün önce</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Eylül</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Bağlantıyı kaldır</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Klasörü değiştir</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Bu klasörün eşitlenmesini sürdür</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 saat önce</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Önceki sürümlere göz at</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Bağlantıları yönet</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Yeni bir paylaşılan klasör var: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Eşitleme duraklatıldı</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazı, [ProductName] özelliklerinin bilgisayarınıza yüklenme şeklini değiştirmenize veya programı bilgisayarınızdan kaldırmanıza olanak tanır. Devam etmek için İleri'ye, Kurulum Sihirbazından çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Kimlik doğrulama başarısız</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, sürüm %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Drovia'yı aç</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Dosya ve klasörlerde eşitleme durumu simgelerini göster</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>En fazla paylaşılan klasör sayısına ulaşıldı.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ağ ayarları</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Karşıya yükleniyor</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Paylaşılan klasör kaldırılamadı.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Bu dosyanın önceki sürümleri listelenemiyor.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>Sunucudaki klasör bağlı değil.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Drovia'yı tüm kullanıcılar için yüklemek için yönetici haklarına sahip olmanız gerekir. Yine de devam edilsin mi?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Değişiklikleriniz kaydedilmedi. Kaydetmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Lütfen 1 ile 65535 arasında bir bağlantı noktası numarası girin.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Bu dosya başka bir uygulama tarafından kilitlendi.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Bu paylaşılan klasörü eşitle</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Özelliklerin yüklenme şeklini değiştirmenizi sağlar.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Bu bilgisayarda yeterli boş alan yok.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia, sunucudaki kişisel klasörünüzü bu bilgisayardaki Drovia klasörüyle eşitler.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Bu paylaşılan klasörün dosyaları bu bilgisayardan kaldırılacak. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Otomatik eşitleme</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Yerel veritabanı açılamadı.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Yeniden bağlan</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Gerçekleştirmek istediğiniz işlemi seçin.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Ocak</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Bakım</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Gösterilecek olay yok.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Yeni bir sunucuya bağlan</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Bağlantıyla paylaş</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Drovia'dan çık</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>Eşitleme klasörü, bağlı olmayan bir sürücüde.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Drovia'ya hoş geldiniz</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>İzin reddedildi</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Güvenlik uyarısı</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Dosyalarınızı tüm cihazlarınız arasında eşitleyin.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Eşitleme geçmişi</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hızlı kurulum</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Birden çok adı virgülle ayırın. Joker karakter olarak * kullanabilirsiniz.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Kurulumu</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Bir dosyayı paylaşmak veya önceki sürümlerini görmek için Drovia klasörünüzde dosyaya sağ tıklayın.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Başlarken</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Eşitleme görevi ekle</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Paylaşım</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Sunucu genel bakışı</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Drovia'nın bu sürümü zaten yüklü. Yeniden yüklemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Salt okunur klasör</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Aktarıcı bağlantı</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Bu klasörleri eşitleme</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>[ProductName] Kurulum Sihirbazına hoş geldiniz</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Filtrelenen dosyalar</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Kurulum Sihirbazını daha sonra yeniden çalıştırabilirsiniz. Sihirbazdan çıkmak için Son'a tıklayın.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>[ProductName] Kurulum Sihirbazı tamamlandı</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Paylaşın ve geri yükleyin</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Eşitleme durumunu göster</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia başlatılıyor...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>[ProductName] uygulamasını ve tüm dosyalarını kaldırır.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>İndiriliyor</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Her şey tamam!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> sizinle bir klasör paylaştı.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Kullanıcı adı veya parola doğrulanamadı.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Sunucudaki disk dolu.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Son Kullanıcı Lisans Sözleşmesi</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>İşaretini kaldırdığınız klasörler bu bilgisayardan kaldırılır ancak sunucuda kalır.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Drovia'yı göster</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Paylaşılan klasör sunucuda bağlı değil.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Sistem ara sunucu ayarlarını kullan</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Yerel ağınızdaki sunucuları bulun</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Şu dosyaları eşitleme:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Gelişmiş Kurulum Sihirbazı</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Paylaşılan klasör</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Filtrelenen dosyalarda simge göster</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Yeni bir sunucu bağla</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Yalnızca indirme</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>[ProductName] uygulamasının hangi özelliklerinin yükleneceğini değiştirin.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Bu klasör farklı bir sunucuya ait.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Bağlama noktası hatası</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>Sunucu sürümü, Drovia'nın bu sürümü için çok eski. Lütfen sunucuyu yükseltin.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Ağ sürücülerindeki değişiklikler düzenli aralıklarla denetlenir ve eşitlenmeleri biraz zaman alabilir.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Quelmix üzerinden bağlan</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Her zaman güvenli bağlantı kullan</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>[ProductName] Kurulum Sihirbazı erken sona erdi</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Quelmix bağlantısı üzerinden dosya paylaşımı kullanılamaz.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Bu klasör bir bağlama noktası olduğundan eşitlenemez.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Bu klasöre yalnızca okuma erişiminiz var. Bu bilgisayardaki değişiklikler eşitlenmez.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Korvo kapalı olduğundan paylaşım bağlantıları kullanılamıyor.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Bu klasör başka bir eşitleme uygulaması tarafından da eşitleniyor. İki kez eşitlemek çakışmalara neden olabilir.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>[ProductName] Kurulum Sihirbazı kesintiye uğradı</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia başlatılamadı. Lütfen Drovia'yı yeniden yükleyin.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Her klasör yalnızca bir bağlantıyla eşitlenebilir.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] kurulumu kesintiye uğradı. Sisteminizde değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Dosyayı aç</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia hazırlanıyor...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Lisans Sözleşmesindeki şartları kabul et&amp;miyorum</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Her şey hazır</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>En son yüklemedeki hataları onarır.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Yine de devam et</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Bu paylaşılan klasörün eşitlenmesini durdurmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Ağ hatası. Lütfen bağlantınızı denetleyin.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo devre dışı</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>Sunucu kimliği geçerli değil.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Siyah beyaz menü çubuğu simgesi kullan</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>İlk eşitlemede dosyaları birleştir</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Klasör yolu</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Adı nokta ile başlayan dosyaları eşitleme</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Anahtar sözcük</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] başarıyla yüklendi.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Sihirbazı kapatmak için Son'a tıklayın.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 öğe</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Yükle</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Şubat</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Yerel ağınızda sunucu aranıyor...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dosya türü</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Durum:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] uygulamasının ayrı olarak seçilebilen özellikleri yok.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo sunucuda kapalı. Açması için yöneticinize başvurun.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Bir dosyayı bağlantıyla paylaşın veya dosyanın önceki bir sürümüne geri dönün.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Kurulum Sihirbazı [ProductName] uygulamasını yüklerken lütfen bekleyin.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>[ProductName] uygulamasını yüklemeye hazır</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] uygulamasını başlat</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ara sunucu ayarları</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 dakika önce</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Öğreticiyi yeniden göster</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Bu klasörlerin eşitlenmesini sürdür</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Sunucuyla eşitlenecek klasörü seçin.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Eşitlendi</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>Uygulamaları &amp;kapatma. Yeniden başlatma gerekecek.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Drovia'yı açmak için simgeye çift tıklayın</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Eşitleme klasörünü değiştir</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>Kurulum Sihirbazı, [ProductName] uygulamasını bilgisayarınızdan kaldıracak.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Haziran</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Eşitleniyor: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Yerel eşitleme klasörü</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Bu klasör salt okunur. Burada yaptığınız değişiklikler eşitlenmez.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Klasörde göster</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Son güncellenen dosyalar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Klasör boş değil</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Bu klasörü eşitleme</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Bağlantı başarıyla kuruldu.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>Bağlantı kararsız.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Depolama</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia hazır.</translation>
    </message>
</context>
</TS>
