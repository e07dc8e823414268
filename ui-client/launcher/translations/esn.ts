<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Instalar para comenzar la instalación. Haga clic en Atrás para revisar o cambiar la configuración de instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Ahora mismo</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia mantiene los archivos de este equipo sincronizados con su servidor. Todo lo que guarde en su carpeta Drovia estará disponible en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Elija si desea cambiar, reparar o quitar [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Espere mientras el Asistente para la instalación instala [ProductName]. Esto puede tardar varios minutos.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Las siguientes aplicaciones deben cerrarse antes de continuar con la instalación:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>¿Seguro que desea desvincular esta conexión? Los archivos ya sincronizados permanecerán en este equipo.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>No se pudo establecer una conexión segura con el servidor.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sin proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Elija una carpeta de sincronización</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>No se pudo completar la actualización. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lea atentamente el siguiente contrato de licencia.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Cargando carpetas...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Los archivos que coincidan con estos nombres o extensiones no se sincronizarán.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuración manual del proxy</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Actualizando...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>El servidor ha cambiado. Compruebe la conexión.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Intentando sincronizar...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Los archivos de esta carpeta se combinarán con la carpeta del servidor.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de fechas</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>&amp;Cerrar automáticamente las aplicaciones e intentar reiniciarlas una vez completada la instalación.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Iniciar Drovia al iniciar sesión</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>No se puede crear un enlace para compartir este elemento.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Reparar para reparar la instalación de [ProductName]. Haga clic en Atrás para revisar o cambiar la configuración de instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Escriba un nombre de usuario.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>Se interrumpió la instalación.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>La carpeta seleccionada no está vacía. Elija una carpeta vacía.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>viernes</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Haga clic en el botón Finalizar para salir del Asistente para la instalación.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Procesando %1 archivo(s)...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Actualizar Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Quita [ProductName] del equipo.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Su carpeta Drovia está configurada y lista para sincronizar.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martes</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Esta carpeta no se puede usar para la sincronización. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>El Asistente para la instalación está listo para comenzar la instalación de [ProductName].</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Instalando [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Acceda a sus archivos desde cualquier lugar</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Detalles de la conexión</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Se canceló la descarga.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Elija una carpeta diferente en este equipo o en el servidor.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de conexión</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Actualice el paquete del servidor para usar la sincronización selectiva.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Ya hay instalada una versión más reciente de Drovia.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>No se pudo completar la descarga.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Actualizando...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Ha elegido quitar el programa del equipo.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Este equipo ya está conectado a este servidor.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Elija las carpetas que desea sincronizar</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>¿Seguro que desea cancelar la instalación de [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>El certificado del servidor ha cambiado.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Esta carpeta ya se sincroniza con otra conexión.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Detectando la conexión...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Sus archivos, en todas partes.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Comprobando archivos...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>No se ha cambiado ninguna configuración.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Quitar para quitar [ProductName] del equipo. Haga clic en Atrás para revisar o cambiar la configuración de instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Esta versión de Drovia es demasiado antigua para el servidor. Actualice Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Carpeta ya sincronizada</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Algunos de los archivos que deben actualizarse están en uso.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Reanudar sincronización</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>Drovia ha detenido la sincronización debido a un error. Abra Drovia para ver los detalles.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Los archivos que superen este tamaño no se sincronizarán.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>La instalación finalizó antes de tiempo debido a un error.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Sincroniza la carpeta Drovia de su carpeta personal con su carpeta personal del servidor.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Elija la carpeta del servidor y la carpeta de este equipo que desea sincronizar.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parámetro no válido.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>No se encuentra la carpeta de sincronización local.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>No se pudo acceder automáticamente al servidor. Compruebe la configuración de red.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Se perdió la conexión con el servidor.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>El servidor envió una respuesta inesperada.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones de escritorio</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>El servidor rechazó la conexión automática.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Las siguientes aplicaciones están usando archivos que este programa de instalación debe actualizar.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descargado</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Escriba la dirección y el puerto del servidor proxy.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Al desvincular se detiene la sincronización de esta conexión. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Puede cambiar esta configuración más adelante en la configuración de Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Abrir carpeta Drovia</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar ahora</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>El Asistente para la instalación está listo para reparar [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Archivos actualizados</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>La carpeta de este equipo no está vacía. Sus archivos se combinarán con la carpeta del servidor.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Abra sus archivos desde cualquier equipo que ejecute Drovia o desde un navegador web.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Elija los archivos que desea sincronizar</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Archivos en uso</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Servidor proxy</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunes</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia está indexando esta carpeta.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Acerca de Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>No es necesario</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Más detalles</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Se completó la descarga.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>El nombre de usuario o la contraseña no son correctos.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Tamaño máximo de archivo (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Esta conexión está inactiva.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia ya se está ejecutando.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versiones incompatibles</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>No se pudo comprobar el certificado del servidor.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Esta carpeta compartida ya se sincroniza con otra carpeta.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Solo puede leer los archivos de esta carpeta.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Buscar servidores en la red local</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nombres de archivo:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Cambiado de nombre</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Repara errores en la instalación más reciente corrigiendo archivos que faltan o están dañados, accesos directos y entradas del Registro.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Agregar</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Compruebe su nombre de usuario y contraseña.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>El Asistente para la instalación reparará la instalación de [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Seleccionar una carpeta</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Los archivos que guarde en su carpeta Drovia se sincronizan automáticamente con el servidor.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>El servidor proxy requiere una contraseña</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Se produjo un error desconocido.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>No se encontró la carpeta</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Detectando cambios...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nombre de carpeta</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>No se pudo habilitar la carpeta compartida.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>El archivo se modificó en ambos lados. Se conservó una copia del archivo en conflicto.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar sincronización</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Elija la carpeta de este equipo que Drovia mantendrá sincronizada.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas siguientes</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>El nuevo idioma se aplicará cuando se reinicie Drovia.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Conexión a Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Más consejos</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>El Asistente para la instalación instalará [ProductName] en su equipo. Haga clic en Siguiente para continuar o en Cancelar para salir del Asistente para la instalación.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Aquí puede ver los detalles de esta conexión.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenido</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Su cuota de almacenamiento en el servidor está llena.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Listo para instalar</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Cambiar</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Este elemento no se puede descargar.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Error de sincronización</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Esta carpeta se superpone con una carpeta que ya se está sincronizando.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Elija qué carpetas sincronizar y cómo.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Listo para quitar [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Cierre las aplicaciones que se indican a continuación para continuar con la instalación.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Hay una nueva versión disponible. Haga clic para actualizar.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensiones de archivo:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Lea el contrato de licencia.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configuración...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semana pasada</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>Los cambios que realice en otros dispositivos también aparecerán aquí.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Archivos modificados recientemente</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>La instalación ha finalizado.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Listo para reparar [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Sus carpetas de sincronización están configuradas. Drovia empieza a sincronizar ahora.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Falta la información de versión.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Elija un modo de configuración</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando la configuración...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>El certificado del servidor ha cambiado. ¿Desea confiar en el nuevo certificado?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Información de estado</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>El Asistente para la instalación de [ProductName] finalizó antes de tiempo debido a un error. No se ha modificado el sistema.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Subido</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Cambiar, reparar o quitar la instalación</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usar una conexión segura (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>La configuración rápida sincroniza su carpeta personal. La configuración avanzada le permite elegir las carpetas.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Instalando</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deshabilitado</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Hace %1 días</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domingo</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Desvincular conexión</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambiar carpeta</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Reanudar la sincronización de esta carpeta</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Hace %1 horas</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Examinar versiones anteriores</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Administrar conexiones</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jueves</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Hay una nueva carpeta compartida disponible: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>La sincronización está en pausa</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>El Asistente para la instalación le permite cambiar la forma en que se instalan las características de [ProductName] en el equipo o quitar el programa del equipo. Haga clic en Siguiente para continuar o en Cancelar para salir del Asistente para la instalación.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Error de autenticación</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, versión %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Abrir Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar iconos de estado de sincronización en archivos y carpetas</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Se ha alcanzado el número máximo de carpetas compartidas.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configuración de red</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Subiendo</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>No se pudo quitar la carpeta compartida.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>No se pueden mostrar las versiones anteriores de este archivo.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>La carpeta del servidor no está montada.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Necesita derechos de administrador para instalar Drovia para todos los usuarios. ¿Desea continuar de todos modos?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Los cambios no se han guardado. ¿Desea guardarlos?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Escriba un número de puerto entre 1 y 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Otra aplicación ha bloqueado este archivo.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sincronizar esta carpeta compartida</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Le permite cambiar la forma en que se instalan las características.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>No hay suficiente espacio libre en este equipo.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia sincroniza su carpeta personal del servidor con la carpeta Drovia de este equipo.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Los archivos de esta carpeta compartida se quitarán de este equipo. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Sincronización automática</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>No se pudo abrir la base de datos local.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Volver a conectar</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Seleccione la operación que desea realizar.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>enero</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Mantenimiento</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>No hay eventos que mostrar.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Conectar con un nuevo servidor</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Compartir enlace</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Salir de Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>La carpeta de sincronización está en una unidad que no está conectada.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Bienvenido a Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Advertencia de seguridad</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Sincronice sus archivos en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historial de sincronización</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuración rápida</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Separe varios nombres con comas. Puede usar * como carácter comodín.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Haga clic con el botón derecho en un archivo de su carpeta Drovia para compartirlo o ver sus versiones anteriores.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Agregar una tarea de sincronización</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Uso compartido</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Información general del servidor</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Esta versión de Drovia ya está instalada. ¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Carpeta de solo lectura</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Conexión por retransmisión</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>No sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Bienvenido al Asistente para la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Archivos filtrados</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Puede volver a ejecutar el Asistente para la instalación más adelante. Haga clic en Finalizar para salir del asistente.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Ha finalizado el Asistente para la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Compartir y restaurar</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar estado de sincronización</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Iniciando Drovia...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Desinstala [ProductName] y todos sus archivos.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Descargando</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>¡Todo listo!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> ha compartido una carpeta con usted.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>No se pudo comprobar el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>El disco del servidor está lleno.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrato de licencia para el usuario final</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>Las carpetas que desmarque se quitarán de este equipo, pero permanecerán en el servidor.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Mostrar Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>La carpeta compartida no está montada en el servidor.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar la configuración de proxy del sistema</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Buscar servidores en su red local</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>No sincronizar estos archivos:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Asistente de configuración avanzada</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Mostrar iconos en los archivos filtrados</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Vincular un nuevo servidor</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Cambia las características de [ProductName] que se instalan.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Esta carpeta pertenece a otro servidor.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Error de punto de montaje</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>La versión del servidor es demasiado antigua para esta versión de Drovia. Actualice el servidor.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>Los cambios en unidades de red se comprueban a intervalos regulares y pueden tardar un poco en sincronizarse.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Conectar a través de Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Usar siempre una conexión segura</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>El Asistente para la instalación de [ProductName] finalizó antes de tiempo</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>El uso compartido de archivos no está disponible a través de una conexión Quelmix.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Esta carpeta es un punto de montaje y no se puede sincronizar.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Solo tiene acceso de lectura a esta carpeta. Los cambios en este equipo no se sincronizarán.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Los enlaces para compartir no están disponibles porque Korvo está desactivado.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Otra aplicación de sincronización también sincroniza esta carpeta. Sincronizarla dos veces puede provocar conflictos.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>Se interrumpió el Asistente para la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia no se pudo iniciar. Vuelva a instalar Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Cada carpeta solo se puede sincronizar con una conexión.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrar</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitado</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Se interrumpió la instalación de [ProductName]. No se ha modificado el sistema.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>El mes pasado</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Inicializando Drovia...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;No acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Todo está listo</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Repara errores en la instalación más reciente.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar de todos modos</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>¿Desea dejar de sincronizar esta carpeta compartida?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Error de red. Compruebe la conexión.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo desactivado</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>El ID del servidor no es válido.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Usar un icono en blanco y negro en la barra de menús</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Combinar archivos en la primera sincronización</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>No sincronizar los archivos cuyo nombre empiece por un punto</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] se ha instalado correctamente.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Haga clic en Finalizar para cerrar el asistente.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementos</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Buscando servidores en su red local...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName] no tiene características que se puedan seleccionar de forma independiente.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>Korvo está desactivado en el servidor. Pida a su administrador que lo active.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Comparta un archivo mediante un enlace o vuelva a una versión anterior del mismo.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Espere mientras el Asistente para la instalación instala [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Listo para instalar [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Iniciar [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>miércoles</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Configuración del proxy</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Hace %1 minutos</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Volver a mostrar el tutorial</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Reanudar la sincronización de estas carpetas</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Elija la carpeta que desea sincronizar con el servidor.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Sincronizado</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;No cerrar las aplicaciones. Será necesario reiniciar.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Haga doble clic en el icono para abrir Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambiar carpeta de sincronización</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>El Asistente para la instalación quitará [ProductName] del equipo.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Sincronizando: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Carpeta de sincronización local</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Esta carpeta es de solo lectura. Los cambios que realice aquí no se sincronizarán.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Archivos actualizados recientemente</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>No sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conexión establecida correctamente.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>La conexión es inestable.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia está listo.</translation>
    </message>
</context>
</TS>
