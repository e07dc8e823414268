<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите кнопку «Установить», чтобы начать установку. Нажмите кнопку «Назад», чтобы просмотреть или изменить параметры установки. Нажмите кнопку «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Только что</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia синхронизирует файлы на этом компьютере с Вашим сервером. Все, что Вы помещаете в папку Drovia, доступно на всех Ваших устройствах.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Март</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Выберите, что Вы хотите сделать: изменить, исправить или удалить [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Подождите, пока мастер установки установит [ProductName]. Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Перед продолжением установки следует закрыть следующие приложения:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Вы действительно хотите отвязать это подключение? Уже синхронизированные файлы останутся на этом компьютере.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Не удалось установить безопасное соединение с сервером.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Без прокси</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Выберите папку синхронизации</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Не удалось выполнить обновление. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Внимательно прочтите следующее лицензионное соглашение.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Загрузка папок...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Создан</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Прямое подключение</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Файлы с такими именами или расширениями не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Больше не показывать это сообщение</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ручная настройка прокси</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Обновление...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>Сервер изменился. Проверьте подключение.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Попытка синхронизации...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Файлы в этой папке будут объединены с папкой на сервере.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Период</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>&amp;Автоматически закрыть приложения и попытаться перезапустить их после завершения установки.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Ноябрь</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Все синхронизировано</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Запускать Drovia при входе в систему</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Для этого элемента невозможно создать ссылку для общего доступа.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите кнопку «Исправить», чтобы исправить установку [ProductName]. Нажмите кнопку «Назад», чтобы просмотреть или изменить параметры установки. Нажмите кнопку «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>Установка была прервана.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>Выбранная папка не пуста. Выберите пустую папку.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Нажмите кнопку «Готово», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Обработка файлов: %1...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Обновить Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Удаление [ProductName] с компьютера.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Ваша папка Drovia настроена и готова к синхронизации.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Май</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Эту папку нельзя использовать для синхронизации. Выберите другую папку.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Август</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Общие папки</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Апрель</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Мастер установки готов начать установку [ProductName].</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Предыдущие страницы (%1)</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Установка [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Доступ к файлам из любого места</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Сведения о подключении</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Скачивание отменено.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Выберите другую папку на этом компьютере или на сервере.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Режим подключения</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Чтобы использовать выборочную синхронизацию, обновите пакет на сервере.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Уже установлена более новая версия Drovia.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Ошибка скачивания.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Обновление...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Вы решили удалить программу с компьютера.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-адрес</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Этот компьютер уже подключен к этому серверу.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Расширенная настройка</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Выберите папки для синхронизации</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Вы действительно хотите отменить установку [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Понятно</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>Сертификат сервера изменился.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Эта папка уже синхронизируется через другое подключение.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Определение типа подключения...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Синхронизация...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Сбой</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Ваши файлы — везде.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Проверка файлов...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Настройки не изменены.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите кнопку «Удалить», чтобы удалить [ProductName] с компьютера. Нажмите кнопку «Назад», чтобы просмотреть или изменить параметры установки. Нажмите кнопку «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Эта версия Drovia слишком старая для сервера. Обновите Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Я &amp;принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Папка уже синхронизируется</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Некоторые файлы, которые необходимо обновить, сейчас используются.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Возобновить синхронизацию</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Синхронизация Drovia остановлена из-за ошибки. Откройте Drovia, чтобы узнать подробности.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Режим синхронизации</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Файлы, размер которых превышает это значение, не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Июль</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>Установка завершилась преждевременно из-за ошибки.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Синхронизация папки Drovia в Вашей домашней папке с Вашей домашней папкой на сервере.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Выберите папку на сервере и папку на этом компьютере для синхронизации.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Недопустимый параметр.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Не удалось найти локальную папку синхронизации.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Не удалось автоматически связаться с сервером. Проверьте параметры сети.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Соединение с сервером потеряно.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>Сервер отправил непредвиденный ответ.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>Сервер отклонил автоматическое подключение.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Следующие приложения используют файлы, которые должна обновить программа установки.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Скачано</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Введите адрес и порт прокси-сервера.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>После отвязки синхронизация этого подключения прекратится. Продолжить?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Эти параметры можно изменить позже в настройках Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Открыть папку Drovia</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>Мастер установки готов исправить [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Файлы обновлены</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>Папка на этом компьютере не пуста. Ее файлы будут объединены с папкой на сервере.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Открывайте свои файлы на любом компьютере с Drovia или в веб-браузере.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Выберите файлы для синхронизации</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Используемые файлы</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Октябрь</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Изменить подключение</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia индексирует эту папку.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>О программе Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Не требуется</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Подробнее</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Скачивание завершено.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Максимальный размер файла (МБ):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Это подключение неактивно.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Программа Drovia уже запущена.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Новая общая папка</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Несовместимая версия</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Неактивно</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Не удалось проверить сертификат сервера.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Эта общая папка уже синхронизируется с другой папкой.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>П&amp;ропустить</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Пе&amp;чать</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Вы можете только читать файлы в этой папке.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отвязать</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Поиск серверов в локальной сети</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Имена файлов:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Переименовано</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Все события</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Устранение ошибок последней установки: восстановление отсутствующих и поврежденных файлов, ярлыков и записей реестра.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Проверьте имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>Мастер установки исправит установку [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Выберите папку</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Файлы, сохраненные в папке Drovia, автоматически синхронизируются с сервером.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Прокси-сервер требует пароль</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Диск заполнен</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Дополнительные параметры</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Произошла неизвестная ошибка.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Папка не найдена</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Обнаружение изменений...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Не удалось включить общую папку.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>Файл был изменен с обеих сторон. Копия конфликтующего файла сохранена.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Приостановить синхронизацию</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Выберите папку на этом компьютере, которую Drovia будет синхронизировать.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Следующие страницы (%1)</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>Новый язык будет применен после перезапуска Drovia.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Другие советы</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Мастер установки установит [ProductName] на компьютер. Нажмите кнопку «Далее», чтобы продолжить, или «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Здесь отображаются сведения об этом подключении.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Задачи синхронизации</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Ваша квота хранилища на сервере исчерпана.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Все готово к установке</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Изменить</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Этот элемент нельзя скачать.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Ошибка синхронизации</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Эта папка пересекается с папкой, которая уже синхронизируется.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Выберите, какие папки и как синхронизировать.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Ис&amp;править</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Все готово к удалению [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Закройте перечисленные ниже приложения, чтобы продолжить установку.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Доступна новая версия. Щелкните, чтобы обновить.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Расширения файлов:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Прочтите лицензионное соглашение.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Настройки...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Прошлая неделя</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Изменения, внесенные на других устройствах, тоже отображаются здесь.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Недавно измененные файлы</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Назначение</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Установка завершена.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Все готово к исправлению [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Папки синхронизации настроены. Drovia начинает синхронизацию.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Отсутствуют сведения о версии.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Выберите режим настройки</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>Сертификат сервера изменился. Доверять новому сертификату?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Сведения о состоянии</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Работа мастера установки [ProductName] преждевременно завершена из-за ошибки. Изменения в систему не внесены.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Изменение, исправление или удаление установки</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Использовать безопасное соединение (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>Быстрая настройка синхронизирует Вашу домашнюю папку. Расширенная настройка позволяет выбрать папки.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Установка</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Сентябрь</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Отвязать подключение</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Изменить папку</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Возобновить синхронизацию этой папки</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Просмотреть предыдущие версии</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Управление подключениями</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Доступна новая общая папка: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>Синхронизация приостановлена</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Мастер установки позволяет изменить способ установки компонентов [ProductName] на компьютере или удалить программу с компьютера. Нажмите кнопку «Далее», чтобы продолжить, или «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Ошибка проверки подлинности</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, версия %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Открыть Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Показывать значки состояния синхронизации на файлах и папках</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Достигнуто максимальное число общих папок.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Параметры сети</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Отправка</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Не удалось удалить общую папку.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Не удается получить список предыдущих версий этого файла.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>Папка на сервере не смонтирована.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Для установки Drovia для всех пользователей требуются права администратора. Все равно продолжить?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Изменения не сохранены. Сохранить их?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Введите номер порта от 1 до 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Этот файл заблокирован другим приложением.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Язык системы</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Синхронизировать эту общую папку</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Позволяет изменить способ установки компонентов.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>На этом компьютере недостаточно свободного места.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia синхронизирует Вашу домашнюю папку на сервере с папкой Drovia на этом компьютере.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Файлы этой общей папки будут удалены с этого компьютера. Продолжить?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Автоматическая синхронизация</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Не удалось открыть локальную базу данных.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Переподключиться</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Выберите операцию, которую Вы хотите выполнить.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Январь</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Обслуживание</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Нет событий для отображения.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Подключиться к новому серверу</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Поделиться ссылкой</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Выйти из Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>Папка синхронизации находится на неподключенном диске.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Добро пожаловать в Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Доступ запрещен</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Предупреждение системы безопасности</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Синхронизируйте файлы на всех своих устройствах.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Журнал синхронизации</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Быстрая настройка</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Разделяйте имена запятыми. Можно использовать * как подстановочный знак.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Установка [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Щелкните правой кнопкой мыши файл в папке Drovia, чтобы поделиться им или просмотреть его предыдущие версии.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Начало работы</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Добавить задачу синхронизации</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Общий доступ</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Обзор сервера</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Эта версия Drovia уже установлена. Установить ее еще раз?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Папка только для чтения</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Подключение через ретранслятор</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Не синхронизировать эти папки</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Вас приветствует мастер установки [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Отфильтрованные файлы</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Вы можете запустить мастер установки позже. Нажмите кнопку «Готово», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Мастер установки [ProductName] завершил работу</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Общий доступ и восстановление</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Показать состояние синхронизации</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Запуск Drovia...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Удаление [ProductName] и всех его файлов.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Скачивание</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Все готово!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> предоставил(а) Вам общий доступ к папке.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Не удалось проверить имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Диск на сервере заполнен.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Лицензионное соглашение с конечным пользователем</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Папки, с которых Вы снимете флажок, будут удалены с этого компьютера, но останутся на сервере.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Показать Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Общая папка не смонтирована на сервере.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Использовать системные настройки прокси</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Найти серверы в локальной сети</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Не синхронизировать эти файлы:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Мастер расширенной настройки</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Общая папка</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Показывать значки на отфильтрованных файлах</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Привязать новый сервер</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Только скачивание</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Изменение набора устанавливаемых компонентов [ProductName].</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Эта папка относится к другому серверу.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Ошибка точки монтирования</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>Версия сервера слишком старая для этой версии Drovia. Обновите сервер.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Изменения на сетевых дисках проверяются через регулярные интервалы, поэтому их синхронизация может занять некоторое время.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Подключаться через Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Всегда использовать безопасное соединение</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>Работа мастера установки [ProductName] преждевременно завершена</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Общий доступ к файлам недоступен при подключении через Quelmix.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Эта папка является точкой монтирования и не может быть синхронизирована.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>У Вас есть доступ к этой папке только для чтения. Изменения на этом компьютере не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Ссылки для общего доступа недоступны, так как Korvo отключен.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Эта папка также синхронизируется другим приложением синхронизации. Двойная синхронизация может привести к конфликтам.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>Работа мастера установки [ProductName] прервана</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Не удалось запустить Drovia. Переустановите Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Каждую папку можно синхронизировать только через одно подключение.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Установка [ProductName] прервана. Изменения в систему не внесены.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Настраиваемый</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Инициализация Drovia...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Я &amp;не принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Настройка завершена</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Устранение ошибок последней установки.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Все равно продолжить</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Прекратить синхронизацию этой общей папки?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Ошибка сети. Проверьте подключение.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo отключен</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>Недопустимый ID сервера.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Использовать черно-белый значок в строке меню</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Объединять файлы при первой синхронизации</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Не синхронизировать файлы, имена которых начинаются с точки</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>Установка [ProductName] успешно завершена.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Декабрь</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Нажмите кнопку «Готово», чтобы закрыть мастер.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Элементов: %1</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Установить</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Февраль</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Поиск серверов в локальной сети...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] не содержит компонентов, которые можно выбрать по отдельности.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo отключен на сервере. Обратитесь к администратору, чтобы включить его.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Поделитесь файлом по ссылке или вернитесь к его более ранней версии.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Подождите, пока мастер установки установит [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Все готово к установке [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Запустить [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Настройки прокси</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Показать краткое руководство еще раз</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Возобновить синхронизацию этих папок</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Выберите папку для синхронизации с сервером.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Синхронизируется</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Не закрывать приложения. Потребуется перезагрузка.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Дважды щелкните значок, чтобы открыть Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Изменить папку синхронизации</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>Мастер установки удалит [ProductName] с компьютера.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Июнь</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Синхронизация: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Локальная папка синхронизации</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Эта папка доступна только для чтения. Изменения, внесенные здесь, не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Недавно обновленные файлы</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Папка не пуста</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Не синхронизировать эту папку</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Подключение выполнено успешно.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>Соединение нестабильно.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Хранилище</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Программа Drovia готова к работе.</translation>
    </message>
</context>
</TS>
