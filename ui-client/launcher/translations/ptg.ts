<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Instalar para iniciar a instalação. Clique em Retroceder para rever ou alterar qualquer uma das definições de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>O Drovia mantém os ficheiros deste computador sincronizados com o seu servidor. Tudo o que colocar na sua pasta Drovia fica disponível em todos os seus dispositivos.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Março</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>Escolha se pretende alterar, reparar ou remover o [ProductName].</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>Aguarde enquanto o Assistente de Configuração instala o [ProductName]. Este processo pode demorar vários minutos.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>As seguintes aplicações devem ser fechadas antes de continuar a instalação:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>Tem a certeza de que pretende desassociar esta ligação? Os ficheiros já sincronizados permanecem neste computador.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Não foi possível estabelecer uma ligação segura ao servidor.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sem proxy</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>Escolher uma pasta de sincronização</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>A atualização falhou. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia atentamente o seguinte contrato de licença.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>A carregar pastas...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Colocar em pausa</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Ligação direta</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retroceder</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>Os ficheiros que correspondam a estes nomes ou extensões não serão sincronizados.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não mostrar esta mensagem novamente</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuração manual do proxy</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>A atualizar...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>O servidor foi alterado. Verifique a ligação.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>A tentar sincronizar...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>Os ficheiros desta pasta serão combinados com a pasta no servidor.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de datas</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>&amp;Fechar automaticamente as aplicações e tentar reiniciá-las após a conclusão da configuração.</translation>
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
        <translation>Iniciar o Drovia ao iniciar sessão</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Não é possível criar um link de partilha para este item.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Reparar para reparar a instalação do [ProductName]. Clique em Retroceder para rever ou alterar qualquer uma das definições de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Introduza um nome de utilizador.</translation>
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
        <translation>A ligar...</translation>
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
        <translation>A processar %1 ficheiro(s)...</translation>
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
        <translation>A sua pasta Drovia está configurada e pronta para sincronizar.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maio</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Terça-feira</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>Esta pasta não pode ser utilizada para sincronização. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Pastas partilhadas</translation>
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
        <translation>A instalar o [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>Aceda aos seus ficheiros em qualquer lugar</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Detalhes da ligação</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>A transferência foi cancelada.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>Escolha uma pasta diferente neste computador ou no servidor.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de ligação</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>Atualize o pacote do servidor para utilizar a sincronização seletiva.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>Já está instalada uma versão mais recente do Drovia.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>A transferência falhou.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>A atualizar...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Optou por remover o programa do computador.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>Este computador já está ligado a este servidor.</translation>
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
        <translation>Escolher as pastas a sincronizar</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>Tem a certeza de que pretende cancelar a instalação do [ProductName]?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendido</translation>
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
        <translation>Esta pasta já está sincronizada com outra ligação.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>A detetar a ligação...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>A sincronizar...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Os seus ficheiros, em todo o lado.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>A verificar ficheiros...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>Nenhuma definição foi alterada.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Remover para remover o [ProductName] do computador. Clique em Retroceder para rever ou alterar qualquer uma das definições de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>Esta versão do Drovia é demasiado antiga para o servidor. Atualize o Drovia.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Pasta já sincronizada</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alguns ficheiros que têm de ser atualizados estão atualmente em utilização.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Retomar a sincronização</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
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
        <translation>Os ficheiros com tamanho superior a este não serão sincronizados.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julho</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>A instalação terminou prematuramente devido a um erro.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>Sincroniza a pasta Drovia da sua pasta pessoal com a sua pasta pessoal no servidor.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>Escolha a pasta no servidor e a pasta neste computador a sincronizar.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parâmetro inválido.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>Não foi possível encontrar a pasta de sincronização local.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>Não foi possível contactar o servidor automaticamente. Verifique as definições de rede.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>A ligação ao servidor foi perdida.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>O servidor enviou uma resposta inesperada.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações no ambiente de trabalho</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>O servidor recusou a ligação automática.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que têm de ser atualizados por esta configuração.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Transferido</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Introduza o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>Desassociar interrompe a sincronização desta ligação. Pretende continuar?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
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
        <translation>Pode alterar estas definições mais tarde nas definições do Drovia.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Abrir a pasta Drovia</translation>
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
        <translation>Ficheiros atualizados</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>A pasta neste computador não está vazia. Os respetivos ficheiros serão combinados com a pasta no servidor.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Abra os seus ficheiros a partir de qualquer computador que execute o Drovia ou a partir de um browser.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>Escolher os ficheiros a sincronizar</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Ficheiros em Utilização</translation>
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
        <translation>Editar ligação</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Segunda-feira</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>O Drovia está a indexar esta pasta.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Acerca do Drovia</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Não é necessário</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mais detalhes</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>A transferência está concluída.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>O nome de utilizador ou a palavra-passe estão incorretos.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>Tamanho máximo de ficheiro (MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Esta ligação está inativa.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>O Drovia já está em execução.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta partilhada</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versões incompatíveis</translation>
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
        <translation>Esta pasta partilhada já está sincronizada com outra pasta.</translation>
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
        <translation>Só pode ler os ficheiros desta pasta.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desassociar</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>Procurar servidores na rede local</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nomes de ficheiro:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Nome alterado</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Repara erros na instalação mais recente corrigindo ficheiros em falta ou danificados, atalhos e entradas de registo.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>Verifique o nome de utilizador e a palavra-passe.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>O Assistente de Configuração irá reparar a instalação do [ProductName].</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecionar uma pasta</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Os ficheiros que guardar na pasta Drovia são sincronizados automaticamente com o servidor.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>O servidor proxy requer uma palavra-passe</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco cheio</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Definições avançadas</translation>
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
        <translation>A detetar alterações...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>Não foi possível ativar a pasta partilhada.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>O ficheiro foi alterado em ambos os lados. Foi mantida uma cópia do ficheiro em conflito.</translation>
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
        <translation>Colocar a sincronização em pausa</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Escolha a pasta deste computador que o Drovia mantém sincronizada.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas seguintes</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>O novo idioma será aplicado depois de o Drovia ser reiniciado.</translation>
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
        <translation>Mais sugestões</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Configuração irá instalar o [ProductName] no computador. Clique em Seguinte para continuar ou em Cancelar para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>Aqui pode consultar os detalhes desta ligação.</translation>
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
        <translation>A sua quota de armazenamento no servidor está cheia.</translation>
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
        <translation>Não é possível transferir este item.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Erro de sincronização</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Esta pasta sobrepõe-se a uma pasta que já está a ser sincronizada.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>Escolha que pastas sincronizar e de que forma.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
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
        <translation>Feche as aplicações indicadas abaixo para continuar a instalação.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>Está disponível uma nova versão. Clique para atualizar.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensões de ficheiro:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>Leia o contrato de licença.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Definições...</translation>
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
        <translation>As alterações efetuadas noutros dispositivos também aparecem aqui.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Ficheiros alterados recentemente</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>A configuração está concluída.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Pronto para reparar o [ProductName]</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>As suas pastas de sincronização estão configuradas. O Drovia começa agora a sincronizar.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>Faltam as informações da versão.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Escolher um modo de configuração</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>A aplicar as definições...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>O certificado do servidor foi alterado. Pretende confiar no novo certificado?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informações de estado</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>O Assistente de Configuração do [ProductName] terminou prematuramente devido a um erro. O sistema não foi modificado.</translation>
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
        <translation>Utilizar uma ligação segura (SSL)</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>A configuração rápida sincroniza a sua pasta pessoal. A configuração avançada permite escolher as pastas.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>A instalar</translation>
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
        <translation>Desassociar ligação</translation>
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
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Procurar versões anteriores</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gerir ligações</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Quinta-feira</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>Está disponível uma nova pasta partilhada: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>A sincronização está em pausa</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Configuração permite alterar a forma como as funcionalidades do [ProductName] são instaladas no computador ou removê-lo do computador. Clique em Seguinte para continuar ou em Cancelar para sair do Assistente de Configuração.</translation>
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
        <translation>Mostrar ícones de estado da sincronização em ficheiros e pastas</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>Foi atingido o número máximo de pastas partilhadas.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Definições de rede</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>A enviar</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>Não foi possível remover a pasta partilhada.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Não é possível listar as versões anteriores deste ficheiro.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>A pasta no servidor não está montada.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>Necessita de direitos de administrador para instalar o Drovia para todos os utilizadores. Pretende continuar mesmo assim?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>As alterações não foram guardadas. Pretende guardá-las?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Introduza um número de porta entre 1 e 65535.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Este ficheiro está bloqueado por outra aplicação.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinição do sistema</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sincronizar esta pasta partilhada</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permite alterar a forma como as funcionalidades são instaladas.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Não existe espaço livre suficiente neste computador.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>O Drovia sincroniza a sua pasta pessoal no servidor com a pasta Drovia deste computador.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>Os ficheiros desta pasta partilhada serão removidos deste computador. Pretende continuar?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>Sincronização automática</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Não foi possível abrir a base de dados local.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Voltar a ligar</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Selecione a operação que pretende efetuar.</translation>
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
        <translation>Não existem eventos para mostrar.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>Ligar a um novo servidor</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Partilhar link</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Sair do Drovia</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>A pasta de sincronização está numa unidade que não está ligada.</translation>
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
        <translation>Sincronize os seus ficheiros em todos os seus dispositivos.</translation>
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
        <translation>Separe vários nomes com vírgulas. Pode utilizar * como caráter universal.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Configuração do [ProductName]</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Clique com o botão direito do rato num ficheiro da pasta Drovia para o partilhar ou ver as versões anteriores.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>Introdução</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Adicionar uma tarefa de sincronização</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Partilha</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Descrição geral do servidor</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>Esta versão do Drovia já está instalada. Pretende instalá-la novamente?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Pasta só de leitura</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A transferir...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Ligação por reencaminhamento</translation>
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
        <translation>Ficheiros filtrados</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>Pode executar novamente o Assistente de Configuração mais tarde. Clique em Concluir para sair do assistente.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>Assistente de Configuração do [ProductName] concluído</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>Partilhar e restaurar</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar estado da sincronização</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>O Drovia está a iniciar...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>Desinstala o [ProductName] e todos os respetivos ficheiros.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>A transferir</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>Está tudo concluído!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> partilhou uma pasta consigo.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>Não foi possível verificar o nome de utilizador ou a palavra-passe.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>O disco do servidor está cheio.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrato de Licença de Utilizador Final</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>As pastas que desmarcar serão removidas deste computador, mas permanecem no servidor.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Mostrar o Drovia</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>A pasta partilhada não está montada no servidor.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Utilizar as definições de proxy do sistema</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>Localizar servidores na rede local</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>Não sincronizar estes ficheiros:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Assistente de Configuração Avançada</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta partilhada</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>Mostrar ícones nos ficheiros filtrados</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>Associar um novo servidor</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Apenas transferência</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>Altera as funcionalidades do [ProductName] que estão instaladas.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Esta pasta pertence a outro servidor.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>Erro no ponto de montagem</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>A versão do servidor é demasiado antiga para esta versão do Drovia. Atualize o servidor.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>As alterações em unidades de rede são verificadas a intervalos regulares e podem demorar algum tempo a ser sincronizadas.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Ligar através do Quelmix</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>Utilizar sempre uma ligação segura</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>O Assistente de Configuração do [ProductName] terminou prematuramente</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>A partilha de ficheiros não está disponível através de uma ligação Quelmix.</translation>
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
        <translation>Só tem acesso de leitura a esta pasta. As alterações efetuadas neste computador não serão sincronizadas.</translation>
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
        <translation>Os links de partilha não estão disponíveis porque o Korvo está desativado.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>Esta pasta também é sincronizada por outra aplicação de sincronização. Sincronizá-la duas vezes pode causar conflitos.</translation>
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
        <translation>Cada pasta só pode ser sincronizada com uma ligação.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerir</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>A configuração do [ProductName] foi interrompida. O sistema não foi modificado.</translation>
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
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir ficheiro</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>O Drovia está a ser inicializado...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Não aceito os termos do Contrato de Licença</translation>
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
        <translation>Pretende deixar de sincronizar esta pasta partilhada?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Erro de rede. Verifique a ligação.</translation>
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
        <translation>Utilizar um ícone a preto e branco na barra de menus</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>Combinar ficheiros na primeira sincronização</translation>
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
        <translation>Não sincronizar ficheiros cujo nome comece por um ponto</translation>
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
        <translation>A procurar servidores na rede local...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de ficheiro</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>O [ProductName] não tem funcionalidades selecionáveis de forma independente.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>O Korvo está desativado no servidor. Peça ao administrador para o ativar.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>Partilhe um ficheiro através de um link ou volte a uma versão anterior do mesmo.</translation>
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
        <translation>Definições de proxy</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Há %1 minutos</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>Mostrar novamente o tutorial</translation>
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
        <translation>Escolha a pasta a sincronizar com o servidor.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>Sincronizada</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>&amp;Não fechar as aplicações. Será necessário reiniciar o computador.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>Faça duplo clique no ícone para abrir o Drovia</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Alterar a pasta de sincronização</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>O Assistente de Configuração irá remover o [ProductName] do computador.</translation>
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
        <translation>A sincronizar: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Pasta de sincronização local</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>Esta pasta é só de leitura. As alterações que efetuar aqui não serão sincronizadas.</translation>
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
        <translation>Ficheiros atualizados recentemente</translation>
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
        <translation>Ligação estabelecida com êxito.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>A ligação está instável.</translation>
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
