<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>설치를 시작하려면 '설치'를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 '뒤로'를 클릭하십시오. 마법사를 끝내려면 '취소'를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>방금</translation>
    </message>
    <message>
        <source>Drovia keeps the files on this computer in sync with your server. Everything you put in your Drovia folder is available on all your devices.</source>
        <translation>Drovia는 이 컴퓨터의 파일을 서버와 동기화된 상태로 유지합니다. Drovia 폴더에 넣은 모든 항목은 모든 장치에서 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3월</translation>
    </message>
    <message>
        <source>Choose whether to change, repair, or remove [ProductName].</source>
        <translation>[ProductName]을(를) 변경, 복구 또는 제거할지 선택하십시오.</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.</source>
        <translation>설치 마법사가 [ProductName]을(를) 설치하는 동안 기다려 주십시오. 몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>The following applications should be closed before continuing the install:</source>
        <translation>설치를 계속하기 전에 다음 응용 프로그램을 닫아야 합니다:</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files already synced will stay on this computer.</source>
        <translation>이 연결을 해제하시겠습니까? 이미 동기화된 파일은 이 컴퓨터에 그대로 남습니다.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>서버와 보안 연결을 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Choose a sync folder</source>
        <translation>동기화 폴더 선택</translation>
    </message>
    <message>
        <source>The upgrade failed. Please try again later.</source>
        <translation>업그레이드하지 못했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>다음 사용권 계약을 주의 깊게 읽어 주십시오.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>폴더를 불러오는 중...</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>직접 연결</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Files matching these names or extensions will not be synced.</source>
        <translation>이 이름이나 확장자와 일치하는 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>이 메시지를 다시 표시하지 않음</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>수동 프록시 구성</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>업그레이드하는 중...</translation>
    </message>
    <message>
        <source>The server has changed. Please check the connection.</source>
        <translation>서버가 변경되었습니다. 연결을 확인하십시오.</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>동기화를 시도하는 중...</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the folder on the server.</source>
        <translation>이 폴더의 파일은 서버의 폴더와 병합됩니다.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>날짜 범위</translation>
    </message>
    <message>
        <source>Automatically &amp;close applications and attempt to restart them after setup is complete.</source>
        <translation>응용 프로그램을 자동으로 닫고 설치가 끝나면 다시 시작(&amp;C)</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11월</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>로컬 네트워크</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message>
        <source>Start Drovia when I log in</source>
        <translation>로그인할 때 Drovia 시작</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>이 항목에 대한 공유 링크를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] 설치를 복구하려면 '복구'를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 '뒤로'를 클릭하십시오. 마법사를 끝내려면 '취소'를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>The installation was interrupted.</source>
        <translation>설치가 중단되었습니다.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder.</source>
        <translation>선택한 폴더가 비어 있지 않습니다. 빈 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결하는 중...</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>설치 마법사를 끝내려면 '마침' 단추를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>파일 %1개를 처리하는 중...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Upgrade Drovia</source>
        <translation>Drovia 업그레이드</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>컴퓨터에서 [ProductName]을(를) 제거합니다.</translation>
    </message>
    <message>
        <source>Your Drovia folder is set up and ready to sync.</source>
        <translation>Drovia 폴더가 설정되었으며 동기화할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5월</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Please choose another folder.</source>
        <translation>이 폴더는 동기화에 사용할 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8월</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4월</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>설치 마법사에서 [ProductName] 설치를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>이전 %1페이지</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>[ProductName] 설치 중</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Access your files anywhere</source>
        <translation>어디서나 파일에 액세스</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>연결 세부 정보</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>다운로드가 취소되었습니다.</translation>
    </message>
    <message>
        <source>Please choose a different folder on this computer or on the server.</source>
        <translation>이 컴퓨터나 서버에서 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>연결 모드</translation>
    </message>
    <message>
        <source>Please upgrade the server package to use selective sync.</source>
        <translation>선택적 동기화를 사용하려면 서버 패키지를 업그레이드하십시오.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>첫 페이지</translation>
    </message>
    <message>
        <source>A newer version of Drovia is already installed.</source>
        <translation>더 새로운 버전의 Drovia가 이미 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>The download failed.</source>
        <translation>다운로드하지 못했습니다.</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>업데이트하는 중...</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>컴퓨터에서 프로그램을 제거하도록 선택했습니다.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 주소</translation>
    </message>
    <message>
        <source>This computer is already connected to this server.</source>
        <translation>이 컴퓨터는 이미 이 서버에 연결되어 있습니다.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>동기화할 폴더 선택</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel [ProductName] installation?</source>
        <translation>[ProductName] 설치를 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>알겠습니다</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed.</source>
        <translation>서버 인증서가 변경되었습니다.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>This folder is already synced with another connection.</source>
        <translation>이 폴더는 이미 다른 연결에서 동기화하고 있습니다.</translation>
    </message>
    <message>
        <source>Detecting connection...</source>
        <translation>연결을 감지하는 중...</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>동기화하는 중...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>내 파일을 어디서나.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>파일을 확인하는 중...</translation>
    </message>
    <message>
        <source>No settings have changed.</source>
        <translation>변경된 설정이 없습니다.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>컴퓨터에서 [ProductName]을(를) 제거하려면 '제거'를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 '뒤로'를 클릭하십시오. 마법사를 끝내려면 '취소'를 클릭하십시오.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>다시 시도(&amp;R)</translation>
    </message>
    <message>
        <source>This version of Drovia is too old for the server. Please upgrade Drovia.</source>
        <translation>이 버전의 Drovia는 서버에 비해 너무 오래되었습니다. Drovia를 업그레이드하십시오.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>사용권 계약 조건에 동의함(&amp;A)</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>이미 동기화된 폴더</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>업데이트해야 하는 일부 파일이 현재 사용 중입니다.</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>동기화 재개</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>Drovia stopped syncing because of an error. Open Drovia for details.</source>
        <translation>오류 때문에 Drovia가 동기화를 중지했습니다. 자세한 내용은 Drovia를 여십시오.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>동기화 모드</translation>
    </message>
    <message>
        <source>Files larger than this size will not be synced.</source>
        <translation>이 크기보다 큰 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>비밀번호</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7월</translation>
    </message>
    <message>
        <source>The installation ended prematurely because of an error.</source>
        <translation>오류 때문에 설치가 중간에 끝났습니다.</translation>
    </message>
    <message>
        <source>Sync the Drovia folder in your home folder with your home folder on the server.</source>
        <translation>홈 폴더에 있는 Drovia 폴더를 서버의 홈 폴더와 동기화합니다.</translation>
    </message>
    <message>
        <source>Choose the folder on the server and the folder on this computer to sync.</source>
        <translation>동기화할 서버의 폴더와 이 컴퓨터의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>매개 변수가 잘못되었습니다.</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found.</source>
        <translation>로컬 동기화 폴더를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>The server could not be reached automatically. Please check your network settings.</source>
        <translation>서버에 자동으로 연결할 수 없습니다. 네트워크 설정을 확인하십시오.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>서버와의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response.</source>
        <translation>서버에서 예기치 않은 응답을 보냈습니다.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>바탕 화면 알림 표시</translation>
    </message>
    <message>
        <source>The server refused the automatic connection.</source>
        <translation>서버에서 자동 연결을 거부했습니다.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup.</source>
        <translation>다음 응용 프로그램이 이 설치 프로그램에서 업데이트해야 하는 파일을 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>다운로드됨</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>프록시 서버 주소와 포트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Unlinking stops syncing this connection. Do you want to continue?</source>
        <translation>연결을 해제하면 이 연결의 동기화가 중지됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>컴퓨터 이름</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>You can change these settings later in the Drovia settings.</source>
        <translation>이 설정은 나중에 Drovia 설정에서 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Open Drovia folder</source>
        <translation>Drovia 폴더 열기</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair [ProductName].</source>
        <translation>설치 마법사에서 [ProductName]을(를) 복구할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>업데이트된 파일</translation>
    </message>
    <message>
        <source>The folder on this computer is not empty. Its files will be merged with the folder on the server.</source>
        <translation>이 컴퓨터의 폴더가 비어 있지 않습니다. 폴더의 파일은 서버의 폴더와 병합됩니다.</translation>
    </message>
    <message>
        <source>Open your files from any computer that runs Drovia, or from a web browser.</source>
        <translation>Drovia가 실행되는 모든 컴퓨터나 웹 브라우저에서 파일을 열 수 있습니다.</translation>
    </message>
    <message>
        <source>Choose the files to sync</source>
        <translation>동기화할 파일 선택</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>사용 중인 파일</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10월</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>연결 편집</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>Drovia is indexing this folder.</source>
        <translation>Drovia에서 이 폴더를 인덱싱하고 있습니다.</translation>
    </message>
    <message>
        <source>About Drovia</source>
        <translation>Drovia 정보</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>필요 없음</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>자세한 정보</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>다운로드가 완료되었습니다.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>사용자 이름 또는 비밀번호가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Maximum file size (MB):</source>
        <translation>최대 파일 크기(MB):</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>이 연결은 비활성 상태입니다.</translation>
    </message>
    <message>
        <source>Drovia is already running.</source>
        <translation>Drovia가 이미 실행 중입니다.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>새 공유 폴더</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>버전 불일치</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>비활성</translation>
    </message>
    <message>
        <source>The server&apos;s certificate could not be verified.</source>
        <translation>서버 인증서를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>This shared folder is already synced with another folder.</source>
        <translation>이 공유 폴더는 이미 다른 폴더와 동기화되어 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>무시(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>You can only read the files in this folder.</source>
        <translation>이 폴더의 파일은 읽기만 할 수 있습니다.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연결 해제</translation>
    </message>
    <message>
        <source>Search for servers on the local network</source>
        <translation>로컬 네트워크에서 서버 검색</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>이름 바뀜</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>모든 이벤트</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>누락되거나 손상된 파일, 바로 가기 및 레지스트리 항목을 수정하여 가장 최근 설치의 오류를 복구합니다.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Please check your user name and password.</source>
        <translation>사용자 이름과 비밀번호를 확인하십시오.</translation>
    </message>
    <message>
        <source>The Setup Wizard will repair the installation of [ProductName].</source>
        <translation>설치 마법사에서 [ProductName] 설치를 복구합니다.</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Files you save in your Drovia folder are synced to the server automatically.</source>
        <translation>Drovia 폴더에 저장한 파일은 자동으로 서버와 동기화됩니다.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>프록시 서버에 비밀번호 필요</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>디스크 공간 부족</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>알 수 없는 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>폴더를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>변경 사항을 감지하는 중...</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>The shared folder could not be enabled.</source>
        <translation>공유 폴더를 사용하도록 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>The file was changed on both sides. A copy of the conflicting file was kept.</source>
        <translation>파일이 양쪽에서 모두 변경되었습니다. 충돌하는 파일의 복사본을 보관했습니다.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>제거(&amp;R)</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>대기</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>동기화 일시 중지</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>Choose the folder on this computer that Drovia keeps in sync.</source>
        <translation>Drovia에서 동기화 상태를 유지할 이 컴퓨터의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>다음 %1페이지</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결을 테스트하는 중...</translation>
    </message>
    <message>
        <source>The new language takes effect after Drovia restarts.</source>
        <translation>새 언어는 Drovia를 다시 시작한 후에 적용됩니다.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>인터넷</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>추가 도움말</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>설치 마법사가 컴퓨터에 [ProductName]을(를) 설치합니다. 계속하려면 '다음'을 클릭하고, 설치 마법사를 끝내려면 '취소'를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Velmora Drovia</source>
        <translation>Velmora Drovia</translation>
    </message>
    <message>
        <source>Here you can see the details of this connection.</source>
        <translation>여기에서 이 연결의 세부 정보를 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>환영합니다</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full.</source>
        <translation>서버의 저장 공간 할당량이 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>설치 준비 완료</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>변경(&amp;C)</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>이 항목은 다운로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>동기화 오류</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>이 폴더는 이미 동기화된 폴더와 겹칩니다.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Choose which folders to sync and how.</source>
        <translation>동기화할 폴더와 동기화 방법을 선택합니다.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>복구(&amp;P)</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>[ProductName] 제거 준비 완료</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Close the applications listed below to continue the installation.</source>
        <translation>설치를 계속하려면 아래에 나열된 응용 프로그램을 닫으십시오.</translation>
    </message>
    <message>
        <source>A new version is available. Click to upgrade.</source>
        <translation>새 버전을 사용할 수 있습니다. 업그레이드하려면 클릭하십시오.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>파일 확장자:</translation>
    </message>
    <message>
        <source>Please read the license agreement.</source>
        <translation>사용권 계약을 읽어 주십시오.</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>설정...</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>지난주</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>Changes you make on other devices appear here too.</source>
        <translation>다른 장치에서 변경한 내용도 여기에 나타납니다.</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>최근에 변경된 파일</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비하는 중...</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>설치가 완료되었습니다.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>[ProductName] 복구 준비 완료</translation>
    </message>
    <message>
        <source>Your sync folders are set up. Drovia starts syncing now.</source>
        <translation>동기화 폴더가 설정되었습니다. 이제 Drovia가 동기화를 시작합니다.</translation>
    </message>
    <message>
        <source>The version information is missing.</source>
        <translation>버전 정보가 없습니다.</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>설정 모드 선택</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>설정을 적용하는 중...</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has changed. Do you want to trust the new certificate?</source>
        <translation>서버 인증서가 변경되었습니다. 새 인증서를 신뢰하시겠습니까?</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>상태 정보</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>오류 때문에 [ProductName] 설치 마법사가 중간에 끝났습니다. 시스템은 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>업로드됨</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>설치 변경, 복구 또는 제거</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>보안 연결(SSL) 사용</translation>
    </message>
    <message>
        <source>Quick setup syncs your home folder. Advanced setup lets you choose the folders.</source>
        <translation>빠른 설정은 홈 폴더를 동기화합니다. 고급 설정에서는 폴더를 직접 선택할 수 있습니다.</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>설치 중</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>업그레이드</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9월</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>연결 해제</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>폴더 변경</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>이 폴더 동기화 재개</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>이전 버전 찾아보기</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>연결 관리</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>A new shared folder is available: %1</source>
        <translation>새 공유 폴더를 사용할 수 있습니다: %1</translation>
    </message>
    <message>
        <source>Syncing is paused</source>
        <translation>동기화가 일시 중지됨</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>설치 마법사를 사용하면 컴퓨터에 [ProductName] 기능이 설치되는 방식을 변경하거나 컴퓨터에서 제거할 수 있습니다. 계속하려면 '다음'을 클릭하고, 설치 마법사를 끝내려면 '취소'를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>인증 실패</translation>
    </message>
    <message>
        <source>Velmora Drovia, version %1</source>
        <translation>Velmora Drovia, 버전 %1</translation>
    </message>
    <message>
        <source>Open Drovia</source>
        <translation>Drovia 열기</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>파일 및 폴더에 동기화 상태 아이콘 표시</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached.</source>
        <translation>공유 폴더의 최대 개수에 도달했습니다.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>네트워크 설정</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>업로드하는 중</translation>
    </message>
    <message>
        <source>The shared folder could not be removed.</source>
        <translation>공유 폴더를 제거할 수 없습니다.</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>이 파일의 이전 버전을 나열할 수 없습니다.</translation>
    </message>
    <message>
        <source>The folder on the server is not mounted.</source>
        <translation>서버의 폴더가 마운트되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Drovia for all users. Continue anyway?</source>
        <translation>모든 사용자용으로 Drovia를 설치하려면 관리자 권한이 필요합니다. 그래도 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>변경 내용이 저장되지 않았습니다. 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>1에서 65535 사이의 포트 번호를 입력하십시오.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>다른 응용 프로그램에서 이 파일을 잠갔습니다.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>이 공유 폴더 동기화</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>기능이 설치되는 방식을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>이 컴퓨터에 사용 가능한 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>Drovia syncs your home folder on the server with the Drovia folder on this computer.</source>
        <translation>Drovia는 서버의 홈 폴더를 이 컴퓨터의 Drovia 폴더와 동기화합니다.</translation>
    </message>
    <message>
        <source>Files of this shared folder will be removed from this computer. Do you want to continue?</source>
        <translation>이 공유 폴더의 파일이 이 컴퓨터에서 제거됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Sync automatically</source>
        <translation>자동 동기화</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>로컬 데이터베이스를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>다시 연결</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1월</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>유지 관리</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>표시할 이벤트가 없습니다.</translation>
    </message>
    <message>
        <source>Connect to a new server</source>
        <translation>새 서버에 연결</translation>
    </message>
    <message>
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>링크 공유</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>Quit Drovia</source>
        <translation>Drovia 종료</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected.</source>
        <translation>동기화 폴더가 연결되지 않은 드라이브에 있습니다.</translation>
    </message>
    <message>
        <source>Welcome to Drovia</source>
        <translation>Drovia에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>권한 없음</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>보안 경고</translation>
    </message>
    <message>
        <source>Sync your files across all your devices.</source>
        <translation>모든 장치에서 파일을 동기화합니다.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>동기화 기록</translation>
    </message>
    <message>
        <source>Drovia: </source>
        <translation>Drovia: </translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>빠른 설정</translation>
    </message>
    <message>
        <source>Separate several names with commas. You can use * as a wildcard.</source>
        <translation>여러 이름은 쉼표로 구분하십시오. *를 와일드카드로 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 설치</translation>
    </message>
    <message>
        <source>Right-click a file in your Drovia folder to share it or see its earlier versions.</source>
        <translation>Drovia 폴더에서 파일을 마우스 오른쪽 단추로 클릭하면 파일을 공유하거나 이전 버전을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Getting started</source>
        <translation>시작하기</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>동기화 작업 추가</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>서버 개요</translation>
    </message>
    <message>
        <source>This version of Drovia is already installed. Do you want to install it again?</source>
        <translation>이 버전의 Drovia가 이미 설치되어 있습니다. 다시 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>읽기 전용 폴더</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드하는 중...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>릴레이 연결</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>선택한 폴더 동기화 안 함</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] Setup Wizard</source>
        <translation>[ProductName] 설치 마법사에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Filtered files</source>
        <translation>필터링된 파일</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later. Click Finish to exit the wizard.</source>
        <translation>나중에 설치 마법사를 다시 실행할 수 있습니다. 마법사를 끝내려면 '마침'을 클릭하십시오.</translation>
    </message>
    <message>
        <source>Completed the [ProductName] Setup Wizard</source>
        <translation>[ProductName] 설치 마법사 완료</translation>
    </message>
    <message>
        <source>Share and restore</source>
        <translation>공유 및 복원</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>동기화 상태 표시</translation>
    </message>
    <message>
        <source>Drovia is starting...</source>
        <translation>Drovia를 시작하는 중...</translation>
    </message>
    <message>
        <source>Uninstalls [ProductName] and all of its files.</source>
        <translation>[ProductName] 및 모든 관련 파일을 제거합니다.</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>다운로드하는 중</translation>
    </message>
    <message>
        <source>All done!</source>
        <translation>모두 완료되었습니다!</translation>
    </message>
    <message>
        <source> shared a folder with you.</source>
        <translation> 님이 폴더를 공유했습니다.</translation>
    </message>
    <message>
        <source>The user name or password could not be verified.</source>
        <translation>사용자 이름 또는 비밀번호를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>서버의 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>최종 사용자 사용권 계약</translation>
    </message>
    <message>
        <source>Folders you clear will be removed from this computer but stay on the server.</source>
        <translation>선택을 취소한 폴더는 이 컴퓨터에서 제거되지만 서버에는 그대로 남습니다.</translation>
    </message>
    <message>
        <source>Show Drovia</source>
        <translation>Drovia 표시</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>공유 폴더가 서버에 마운트되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>시스템 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Find servers on your local network</source>
        <translation>로컬 네트워크에서 서버 찾기</translation>
    </message>
    <message>
        <source>Do not sync these files:</source>
        <translation>다음 파일 동기화 안 함:</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>고급 설정 마법사</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Show icons on filtered files</source>
        <translation>필터링된 파일에 아이콘 표시</translation>
    </message>
    <message>
        <source>Link a new server</source>
        <translation>새 서버 연결</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>다운로드만</translation>
    </message>
    <message>
        <source>Change which features of [ProductName] are installed.</source>
        <translation>설치할 [ProductName] 기능을 변경합니다.</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>이 폴더는 다른 서버에 속해 있습니다.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중...</translation>
    </message>
    <message>
        <source>Mount point error</source>
        <translation>마운트 지점 오류</translation>
    </message>
    <message>
        <source>The server version is too old for this version of Drovia. Please upgrade the server.</source>
        <translation>서버 버전이 이 버전의 Drovia에 비해 너무 오래되었습니다. 서버를 업그레이드하십시오.</translation>
    </message>
    <message>
        <source>Changes on network drives are checked at regular intervals and may take a while to sync.</source>
        <translation>네트워크 드라이브의 변경 사항은 일정한 간격으로 확인하므로 동기화하는 데 시간이 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Connect through Quelmix</source>
        <translation>Quelmix를 통해 연결</translation>
    </message>
    <message>
        <source>Always use a secure connection</source>
        <translation>항상 보안 연결 사용</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely</source>
        <translation>[ProductName] 설치 마법사가 중간에 끝났습니다</translation>
    </message>
    <message>
        <source>File sharing is not available through a Quelmix connection.</source>
        <translation>Quelmix 연결에서는 파일 공유를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>This folder is a mount point and cannot be synced.</source>
        <translation>이 폴더는 마운트 지점이므로 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes on this computer will not be synced.</source>
        <translation>이 폴더에 대한 읽기 권한만 있습니다. 이 컴퓨터에서 변경한 내용은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>From</source>
        <translation>시작일</translation>
    </message>
    <message>
        <source>Sharing links are not available because Korvo is turned off.</source>
        <translation>Korvo가 꺼져 있으므로 공유 링크를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>This folder is also synced by another sync application. Syncing it twice can cause conflicts.</source>
        <translation>이 폴더는 다른 동기화 응용 프로그램에서도 동기화하고 있습니다. 두 번 동기화하면 충돌이 발생할 수 있습니다.</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard was interrupted</source>
        <translation>[ProductName] 설치 마법사가 중단되었습니다</translation>
    </message>
    <message>
        <source>Drovia could not start. Please reinstall Drovia.</source>
        <translation>Drovia를 시작할 수 없습니다. Drovia를 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>Each folder can be synced with only one connection.</source>
        <translation>각 폴더는 하나의 연결에서만 동기화할 수 있습니다.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>관리</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] 설치가 중단되었습니다. 시스템은 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>지난달</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Drovia is initializing...</source>
        <translation>Drovia를 초기화하는 중...</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>사용권 계약 조건에 동의 안 함(&amp;D)</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>모든 준비가 끝났습니다</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation.</source>
        <translation>가장 최근 설치의 오류를 복구합니다.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>그래도 계속</translation>
    </message>
    <message>
        <source>Do you want to stop syncing this shared folder?</source>
        <translation>이 공유 폴더의 동기화를 중지하시겠습니까?</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>네트워크 오류입니다. 연결을 확인하십시오.</translation>
    </message>
    <message>
        <source>Korvo disabled</source>
        <translation>Korvo 꺼짐</translation>
    </message>
    <message>
        <source>The server ID is not valid.</source>
        <translation>서버 ID가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Use a black and white menu bar icon</source>
        <translation>흑백 메뉴 막대 아이콘 사용</translation>
    </message>
    <message>
        <source>Merge files on first sync</source>
        <translation>처음 동기화할 때 파일 병합</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>Do not sync files whose names begin with a dot</source>
        <translation>이름이 점으로 시작하는 파일 동기화 안 함</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>키워드</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName]이(가) 성공적으로 설치되었습니다.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12월</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>마법사를 닫으려면 '마침'을 클릭하십시오.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1개 항목</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>설치(&amp;I)</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2월</translation>
    </message>
    <message>
        <source>Searching for servers on your local network...</source>
        <translation>로컬 네트워크에서 서버를 검색하는 중...</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>파일 형식</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>[ProductName] has no independently selectable features.</source>
        <translation>[ProductName]에는 개별적으로 선택할 수 있는 기능이 없습니다.</translation>
    </message>
    <message>
        <source>Korvo is turned off on the server. Ask your administrator to turn it on.</source>
        <translation>서버에서 Korvo가 꺼져 있습니다. 관리자에게 켜 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Share a file with a link, or go back to an earlier version of it.</source>
        <translation>링크로 파일을 공유하거나 파일의 이전 버전으로 되돌릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName].</source>
        <translation>설치 마법사가 [ProductName]을(를) 설치하는 동안 기다려 주십시오.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>[ProductName] 설치 준비 완료</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] 실행</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>프록시 설정</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>Show the tutorial again</source>
        <translation>튜토리얼 다시 보기</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>선택한 폴더 동기화 재개</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>Choose the folder to sync with the server.</source>
        <translation>서버와 동기화할 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Synced</source>
        <translation>동기화됨</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A reboot will be required.</source>
        <translation>응용 프로그램을 닫지 않음(다시 부팅해야 함)(&amp;D)</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>마지막 페이지</translation>
    </message>
    <message>
        <source>Double-click the icon to open Drovia</source>
        <translation>아이콘을 두 번 클릭하여 Drovia 열기</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>동기화 폴더 변경</translation>
    </message>
    <message>
        <source>The Setup Wizard will remove [ProductName] from your computer.</source>
        <translation>설치 마법사에서 컴퓨터의 [ProductName]을(를) 제거합니다.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>종료일</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6월</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>동기화하는 중: %1</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>로컬 동기화 폴더</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes you make here will not be synced.</source>
        <translation>이 폴더는 읽기 전용입니다. 여기에서 변경한 내용은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>폴더에서 보기</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>최근에 업데이트된 파일</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>폴더가 비어 있지 않음</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>이 폴더 동기화 안 함</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>연결되었습니다.</translation>
    </message>
    <message>
        <source>The connection is unstable.</source>
        <translation>연결이 불안정합니다.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>저장 공간</translation>
    </message>
    <message>
        <source>Drovia is ready.</source>
        <translation>Drovia가 준비되었습니다.</translation>
    </message>
</context>
</TS>
