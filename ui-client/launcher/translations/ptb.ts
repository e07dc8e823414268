<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Instalar para iniciar a instalação. Clique em Voltar para revisar ou alterar qualquer uma das configurações de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>O Drovia mantém os arquivos deste computador sincronizados com o seu servidor. Tudo o que você colocar na sua pasta Drovia fica disponível em todos os seus dispositivos.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Março</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Escolha se deseja alterar, reparar ou remover o [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Aguarde enquanto o Assistente de Configuração instala o [ProductName]. Isso pode levar vários minutos.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>Os seguintes aplicativos devem ser fechados antes de continuar a instalação:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Tem certeza de que deseja desvincular esta conexão? Os arquivos já sincronizados permanecerão neste computador.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Não foi possível estabelecer uma conexão segura com o servidor.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sem proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Escolha uma pasta de sincronização</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>Falha na atualização. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia atentamente o contrato de licença a seguir.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Carregando pastas...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexão direta</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Os arquivos com estes nomes ou extensões não serão sincronizados.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não mostrar esta mensagem novamente</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuração manual de proxy</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Atualizando...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>O servidor foi alterado. Verifique a conexão.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Tentando sincronizar...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Os arquivos desta pasta serão mesclados com a pasta no servidor.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>&amp;Fechar automaticamente os aplicativos e tentar reiniciá-los após a conclusão da instalação.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembro</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>Iniciar o Drovia quando eu fizer login</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Não é possível criar um link de compartilhamento para este item.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Reparar para reparar a instalação do [ProductName]. Clique em Voltar para revisar ou alterar qualquer uma das configurações de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Digite um nome de usuário.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>A instalação foi interrompida.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>A pasta selecionada não está vazia. Escolha uma pasta vazia.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Sexta-feira</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Clique no botão Concluir para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Processando %1 arquivo(s)...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Atualizar o Drovia</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Remove o [ProductName] do computador.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Sua pasta Drovia está configurada e pronta para sincronizar.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maio</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Terça-feira</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Esta pasta não pode ser usada para sincronização. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Pastas compartilhadas</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>O Assistente de Configuração está pronto para iniciar a instalação do [ProductName].</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Instalando o [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Acesse seus arquivos de qualquer lugar</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Detalhes da conexão</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>O download foi cancelado.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Escolha uma pasta diferente neste computador ou no servidor.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de conexão</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Atualize o pacote do servidor para usar a sincronização seletiva.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Uma versão mais recente do Drovia já está instalada.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>Falha no download.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Atualizando...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Você optou por remover o programa do computador.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Este computador já está conectado a este servidor.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuração avançada</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Escolha as pastas a sincronizar</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Tem certeza de que deseja cancelar a instalação do [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendi</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>O certificado do servidor foi alterado.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>Esta pasta já está sincronizada com outra conexão.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>Detectando conexão...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Seus arquivos, em qualquer lugar.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Verificando arquivos...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Nenhuma configuração foi alterada.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Remover para remover o [ProductName] do computador. Clique em Voltar para revisar ou alterar qualquer uma das configurações de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Esta versão do Drovia é antiga demais para o servidor. Atualize o Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Eu &amp;aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Pasta já sincronizada</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alguns arquivos que precisam ser atualizados estão em uso.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Retomar sincronização</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>O Drovia parou de sincronizar devido a um erro. Abra o Drovia para ver os detalhes.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>Os arquivos maiores que este tamanho não serão sincronizados.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julho</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>A instalação foi encerrada prematuramente devido a um erro.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Sincroniza a pasta Drovia da sua pasta pessoal com a sua pasta pessoal no servidor.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Escolha a pasta no servidor e a pasta neste computador que serão sincronizadas.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parâmetro inválido.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>A pasta de sincronização local não foi encontrada.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Não foi possível acessar o servidor automaticamente. Verifique as configurações de rede.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>A conexão com o servidor foi perdida.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>O servidor enviou uma resposta inesperada.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações na área de trabalho</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>O servidor recusou a conexão automática.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>Os seguintes aplicativos estão usando arquivos que precisam ser atualizados por esta instalação.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Baixado</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Digite o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Desvincular interrompe a sincronização desta conexão. Deseja continuar?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>Você pode alterar essas opções mais tarde nas configurações do Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Abrir pasta Drovia</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar agora</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>O Assistente de Configuração está pronto para reparar o [ProductName].</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Arquivos atualizados</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>A pasta neste computador não está vazia. Os arquivos dela serão mesclados com a pasta no servidor.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Abra seus arquivos em qualquer computador que execute o Drovia ou em um navegador da Web.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Escolha os arquivos a sincronizar</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Arquivos em uso</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Outubro</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexão</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Segunda-feira</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>O Drovia está indexando esta pasta.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Sobre o Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Não necessário</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mais detalhes</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>O download foi concluído.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>O nome de usuário ou a senha estão incorretos.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Tamanho máximo de arquivo (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Esta conexão está inativa.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>O Drovia já está em execução.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta compartilhada</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versão incompatível</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativa</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>Não foi possível verificar o certificado do servidor.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>Esta pasta compartilhada já está sincronizada com outra pasta.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>Você só pode ler os arquivos desta pasta.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Procurar servidores na rede local</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nomes de arquivo:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renomeado</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Repara erros na instalação mais recente corrigindo arquivos ausentes ou corrompidos, atalhos e entradas do Registro.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Verifique seu nome de usuário e sua senha.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>O Assistente de Configuração vai reparar a instalação do [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecione uma pasta</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Os arquivos que você salva na pasta Drovia são sincronizados automaticamente com o servidor.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>O servidor proxy requer uma senha</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco cheio</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Configurações avançadas</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ocorreu um erro desconhecido.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Pasta não encontrada</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Detectando alterações...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Não foi possível ativar a pasta compartilhada.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>O arquivo foi alterado nos dois lados. Uma cópia do arquivo em conflito foi mantida.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar sincronização</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Escolha a pasta deste computador que o Drovia manterá sincronizada.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Próximas %1 páginas</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>O novo idioma entrará em vigor depois que o Drovia for reiniciado.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Mais dicas</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Configuração instalará o [ProductName] no computador. Clique em Avançar para continuar ou em Cancelar para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Aqui você pode ver os detalhes desta conexão.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bem-vindo</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>Sua cota de armazenamento no servidor está cheia.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Pronto para instalar</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Alterar</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Não é possível baixar este item.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Erro de sincronização</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Esta pasta se sobrepõe a uma pasta que já está sendo sincronizada.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Escolha quais pastas sincronizar e como.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;parar</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Pronto para remover o [ProductName]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>Feche os aplicativos listados abaixo para continuar a instalação.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Uma nova versão está disponível. Clique para atualizar.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensões de arquivo:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Leia o contrato de licença.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configurações...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>As alterações feitas em outros dispositivos também aparecem aqui.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Arquivos alterados recentemente</translation>
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
        <translation>A instalação foi concluída.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Pronto para reparar o [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>Suas pastas de sincronização estão configuradas. O Drovia começará a sincronizar agora.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>As informações de versão estão ausentes.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Escolha um modo de configuração</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando configurações...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>O certificado do servidor foi alterado. Deseja confiar no novo certificado?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informações de status</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>O Assistente de Configuração do [ProductName] foi encerrado prematuramente devido a um erro. O sistema não foi modificado.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Alterar, reparar ou remover a instalação</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usar uma conexão segura (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>A configuração rápida sincroniza sua pasta pessoal. A configuração avançada permite escolher as pastas.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Instalando</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Há %1 dias</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Setembro</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Desvincular conexão</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Retomar a sincronização desta pasta</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Há %1 horas</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausado</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Procurar versões anteriores</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gerenciar conexões</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Quinta-feira</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Uma nova pasta compartilhada está disponível: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>A sincronização está pausada</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Configuração permite alterar a forma como os recursos do [ProductName] são instalados no computador ou removê-lo do computador. Clique em Avançar para continuar ou em Cancelar para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Falha na autenticação</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, versão %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Abrir o Drovia</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar ícones de status de sincronização em arquivos e pastas</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>O número máximo de pastas compartilhadas foi atingido.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configurações de rede</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Enviando</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Não foi possível remover a pasta compartilhada.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Não é possível listar as versões anteriores deste arquivo.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>A pasta no servidor não está montada.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Você precisa de direitos de administrador para instalar o Drovia para todos os usuários. Deseja continuar mesmo assim?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Suas alterações não foram salvas. Deseja salvá-las?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Digite um número de porta entre 1 e 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Este arquivo está bloqueado por outro aplicativo.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sincronizar esta pasta compartilhada</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permite alterar a forma como os recursos são instalados.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Não há espaço livre suficiente neste computador.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>O Drovia sincroniza sua pasta pessoal no servidor com a pasta Drovia deste computador.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Os arquivos desta pasta compartilhada serão removidos deste computador. Deseja continuar?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Sincronização automática</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Não foi possível abrir o banco de dados local.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Selecione a operação que deseja executar.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janeiro</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Manutenção</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Nenhum evento para mostrar.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Conectar a um novo servidor</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Compartilhar link</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Mesclar</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Sair do Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>A pasta de sincronização está em uma unidade que não está conectada.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Bem-vindo ao Drovia</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permissão negada</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Aviso de segurança</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>Sincronize seus arquivos em todos os seus dispositivos.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Histórico de sincronização</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuração rápida</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>Separe vários nomes com vírgulas. Você pode usar * como curinga.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Clique com o botão direito do mouse em um arquivo da pasta Drovia para compartilhá-lo ou ver as versões anteriores dele.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Primeiros passos</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Adicionar uma tarefa de sincronização</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Compartilhamento</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Visão geral do servidor</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Esta versão do Drovia já está instalada. Deseja instalá-la novamente?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Pasta somente leitura</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Conexão por retransmissão</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Não sincronizar estas pastas</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>Bem-vindo ao Assistente de Configuração do [ProductName]</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>Arquivos filtrados</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Você pode executar o Assistente de Configuração novamente mais tarde. Clique em Concluir para sair do assistente.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Assistente de Configuração do [ProductName] concluído</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Compartilhar e restaurar</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar status da sincronização</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>O Drovia está sendo iniciado...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Desinstala o [ProductName] e todos os seus arquivos.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Baixando</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Tudo pronto!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> compartilhou uma pasta com você.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Não foi possível verificar o nome de usuário ou a senha.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>O disco do servidor está cheio.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrato de Licença do Usuário Final</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>As pastas desmarcadas serão removidas deste computador, mas permanecerão no servidor.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Mostrar o Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>A pasta compartilhada não está montada no servidor.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar as configurações de proxy do sistema</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Localizar servidores na rede local</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Não sincronizar estes arquivos:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Assistente de Configuração Avançada</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta compartilhada</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Mostrar ícones nos arquivos filtrados</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Vincular um novo servidor</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Somente download</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Altera quais recursos do [ProductName] são instalados.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Esta pasta pertence a outro servidor.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Erro no ponto de montagem</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>A versão do servidor é antiga demais para esta versão do Drovia. Atualize o servidor.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>As alterações em unidades de rede são verificadas em intervalos regulares e podem demorar um pouco para ser sincronizadas.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Conectar via Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Sempre usar uma conexão segura</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>O Assistente de Configuração do [ProductName] foi encerrado prematuramente</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>O compartilhamento de arquivos não está disponível em uma conexão via Quelmix.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>Esta pasta é um ponto de montagem e não pode ser sincronizada.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>Você só tem acesso de leitura a esta pasta. As alterações feitas neste computador não serão sincronizadas.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Os links de compartilhamento não estão disponíveis porque o Korvo está desativado.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Esta pasta também é sincronizada por outro aplicativo de sincronização. Sincronizá-la duas vezes pode causar conflitos.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>O Assistente de Configuração do [ProductName] foi interrompido</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Não foi possível iniciar o Drovia. Reinstale o Drovia.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>Cada pasta pode ser sincronizada com apenas uma conexão.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerenciar</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>A instalação do [ProductName] foi interrompida. O sistema não foi modificado.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>O Drovia está sendo inicializado...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Eu &amp;não aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Está tudo pronto</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>Repara erros na instalação mais recente.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>Deseja parar de sincronizar esta pasta compartilhada?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Erro de rede. Verifique sua conexão.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo desativado</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>O ID do servidor não é válido.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>Usar um ícone preto e branco na barra de menus</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Mesclar arquivos na primeira sincronização</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>Não sincronizar arquivos cujos nomes começam com ponto</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>O [ProductName] foi instalado com êxito.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezembro</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Clique em Concluir para fechar o assistente.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 itens</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Fevereiro</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>Procurando servidores na rede local...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de arquivo</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>O [ProductName] não tem recursos que possam ser selecionados individualmente.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>O Korvo está desativado no servidor. Peça ao administrador para ativá-lo.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Compartilhe um arquivo por meio de um link ou volte a uma versão anterior dele.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>Aguarde enquanto o Assistente de Configuração instala o [ProductName].</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Pronto para instalar o [ProductName]</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Iniciar o [ProductName]</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Quarta-feira</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Configurações de proxy</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Há %1 minutos</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Mostrar o tutorial novamente</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Retomar a sincronização destas pastas</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>Escolha a pasta que será sincronizada com o servidor.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Sincronizada</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Não fechar os aplicativos. Será necessário reinicializar.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Clique duas vezes no ícone para abrir o Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Alterar pasta de sincronização</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>O Assistente de Configuração removerá o [ProductName] do computador.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junho</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Sincronizando: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Pasta de sincronização local</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Esta pasta é somente leitura. As alterações feitas aqui não serão sincronizadas.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Arquivos atualizados recentemente</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>A pasta não está vazia</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Não sincronizar esta pasta</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conectado com êxito.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>A conexão está instável.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Armazenamento</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>O Drovia está pronto.</translation>
    </message>
</context>
</TS>
