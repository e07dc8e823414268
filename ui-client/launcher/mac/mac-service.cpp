#include "mac/mac-service.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>

#include "config.h"
#include "file-op.h"
#include "install-layout.h"
#include "log.h"
#include "mac/client-process.h"

#define LOG_COMPONENT "service_debug"
#define LOG_TAG "mac/mac-service"

namespace {

const int kDefaultTimeout = 10000;
const char kPidKey[] = "pid";
const int kExitProbes = 5;
const unsigned kProbeIntervalSeconds = 1;
const mode_t kRecordMode = 0666;

// Bundles beside the installed one, whose client may still run: moved aside
// by an upgrade (Drovia.app_tmp) or being unpacked (Drovia.app_new).
const char kBundleVariantMark = '_';

enum PidFileState { PID_FILE_MISSING, PID_FILE_UNREADABLE, PID_FILE_READ };

// 0 when text names no single process: kill() with 0 or a negative pid
// addresses a whole process group, the launcher's own included.
pid_t ClientPid(const ustring& text)
{
    const long value = std::strtol(text.c_str_utf8(), nullptr, 10);
    if (value <= 0 || value > INT_MAX)
        return 0;
    return static_cast<pid_t>(value);
}

// pid is the file's "pid", or 0 when the file names no single process.
PidFileState ReadPidFile(const ustring& path, pid_t& pid)
{
    pid = 0;
    if (!IsFileExist(path, false))
        return PID_FILE_MISSING;
    Config config;
    if (config.read(path) != 0)
        return PID_FILE_UNREADABLE;
    pid = ClientPid(config.entries[kPidKey]);
    return PID_FILE_READ;
}

// Whether executable is the client of a bundle in the installation folder,
// spelled with every link resolved as the system shows it. The file itself
// may be gone.
bool IsClientOf(const ustring& installation, const ustring& executable)
{
    const std::string path = executable.c_str_utf8();
    const std::string bundles = std::string(installation.c_str_utf8()) + "/" + layout::kBundleName;
    const std::string tail = std::string("/") + layout::kClientExecutable;
    if (path.size() < bundles.size() + tail.size() || path.compare(0, bundles.size(), bundles) != 0 ||
        path.compare(path.size() - tail.size(), tail.size(), tail) != 0)
        return false;
    const std::string variant = path.substr(bundles.size(), path.size() - bundles.size() - tail.size());
    return variant.empty() || (variant[0] == kBundleVariantMark && variant.find('/') == std::string::npos);
}

ustring ResolvedInstallation()
{
    ustring installation = Service::GetUserDroviaInstallPath();
    FSGetRealPath(installation);
    return installation;
}

// Written over in place rather than replaced by a renamed copy: replacing it
// frees a block, which a file system that discards freed blocks at once makes
// dearer than the rest of an everyday start, and the copy's sync to disk
// costs as much again. Readers hold the installation lock as the writer does;
// a launcher killed halfway leaves the old line, the new one or a text that
// fails to parse, and a pid counts only while it runs the client. O_NONBLOCK:
// a FIFO in the record's place fails instead of blocking.
bool OverwriteFile(const ustring& path, const std::string& text)
{
    const int fd =
        open(path.c_str_utf8(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kRecordMode);
    if (fd < 0)
        return false;
    const bool written = pwrite(fd, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size()) &&
                         ftruncate(fd, static_cast<off_t>(text.size())) == 0;
    return close(fd) == 0 && written;
}

}  // namespace

MacService::MacService()
{
    timeout = kDefaultTimeout;
    user_app_path = GetUserDroviaAppInstallPath();
}

MacService::~MacService() = default;

bool MacService::PerUserBinPathExist()
{
    return access(ClientExecutable().c_str_utf8(), F_OK) == 0;
}

void MacService::PreUpgrade()
{
    LoadTargetVersion();
    LoadSourceVersion();
    LOG_MSG(DEBUG, "Source version: ('%s', '%s')", source_build_version.c_str_utf8(),
            source_icon_overlay_version.c_str_utf8());
    LOG_MSG(DEBUG, "Target version: ('%s', '%s')", target_build_version.c_str_utf8(),
            target_icon_overlay_version.c_str_utf8());
}

// Only the build number decides; a missing client executable forces a
// reinstall even of an older package.
bool MacService::IsNeedUpgrade()
{
    const int source = Config::to_int(source_build_version);
    const int target = Config::to_int(target_build_version);
    LOG_MSG(DEBUG, "source version = %d, target version = %d", source, target);
    const bool client_present = PerUserBinPathExist();
    return target > source || !client_present;
}

// A client whose executable is gone may run all the same, from the deleted
// file: it is stopped too.
int MacService::HandlePackageUpgrade()
{
    if (PerUserBinPathExist())
        LOG_MSG(DEBUG, "local appdata exist");
    StopService();
    return PrepareUserEnv();
}

void MacService::StopService()
{
    const ustring pid_file = PerUserFile(layout::kPidFile);
    pid_t pid = 0;
    switch (ReadPidFile(pid_file, pid)) {
    case PID_FILE_MISSING:
        LOG_MSG(DEBUG, "pid file '%s' does not exist, no need to terminate", pid_file.c_str_utf8());
        break;
    case PID_FILE_UNREADABLE:
        LOG_MSG(NOTE, "Failed to read pid file '%s', not exist ?", pid_file.c_str_utf8());
        break;
    case PID_FILE_READ: StopClient(pid); break;
    }
    // A client that another launcher started moments ago may not have
    // written its pid file yet.
    const pid_t launched = LaunchedClientPid();
    if (launched != pid)
        StopClient(launched);
    // One that left its first process before writing its pid file, or whose
    // bundle was moved aside or deleted, is known by what it runs.
    for (const pid_t client : ClientsByExecutable()) {
        if (client == pid || client == launched)
            continue;
        LOG_MSG(NOTE, "Drovia UI runs as process %d, which no pid file names; stopping it", client);
        TerminateClient(client);
    }
}

void MacService::StopClient(pid_t pid)
{
    if (IsPerUserClient(pid))
        TerminateClient(pid);
}

// A pid file outlives its client, and its number may since name another
// program of the user's. Only a process that runs the per-user client's own
// executable counts; anything else is left alone, as if no client ran.
bool MacService::IsPerUserClient(pid_t pid)
{
    if (pid <= 0 || WasKilled(pid))
        return false;
    const ustring executable = ExecutableOf(pid);
    if (executable.empty()) {
        const int error = errno;
        if (error != ENOENT)
            LOG_MSG(NOTE, "cannot tell what process %d runs (%s), leaving it alone", pid, strerror(error));
        return false;
    }
    if (IsClientOf(ResolvedInstallation(), executable))
        return true;
    LOG_MSG(NOTE, "process %d runs '%s', not the Drovia client, leaving it alone", pid,
            executable.c_str_utf8());
    return false;
}

std::vector<pid_t> MacService::ClientsByExecutable()
{
    const std::vector<pid_t> processes = ProcessesOfUser();
    if (processes.empty())
        LOG_MSG(NOTE, "cannot list the processes of this user, finding the client by its pid files only");
    const ustring installation = ResolvedInstallation();
    std::vector<pid_t> clients;
    for (const pid_t pid : processes) {
        if (pid > 0 && !WasKilled(pid) && IsClientOf(installation, ExecutableOf(pid)))
            clients.push_back(pid);
    }
    return clients;
}

// SIGTERM first so the client can save its state; SIGKILL only if it is still
// there after the probes. A failed SIGKILL leaves nothing else to try.
void MacService::TerminateClient(pid_t pid)
{
    if (SendSignal(pid, SIGTERM) != 0) {
        const int error = errno;
        if (error == ESRCH)
            return;
        LOG_MSG(ERROR, "kill: %s (%d)", strerror(error), error);
    }
    if (!WaitForExit(pid)) {
        SendSignal(pid, SIGKILL);
        killed.push_back(pid);
    }
}

// True once the process is gone; the first probe comes right after SIGTERM.
bool MacService::WaitForExit(pid_t pid)
{
    for (int probe = 0; probe < kExitProbes; ++probe) {
        if (SendSignal(pid, 0) != 0 && errno == ESRCH)
            return true;
        PauseSeconds(pid, kProbeIntervalSeconds);
    }
    return false;
}

bool MacService::WasKilled(pid_t pid) const
{
    return std::find(killed.begin(), killed.end(), pid) != killed.end();
}

int MacService::SendSignal(pid_t pid, int signal_number)
{
    return kill(pid, signal_number);
}

void MacService::PauseSeconds(pid_t pid, unsigned seconds)
{
    client_process::WaitForEnd(pid, seconds);
}

std::vector<pid_t> MacService::ProcessesOfUser()
{
    return client_process::ProcessesOfUser();
}

ustring MacService::ExecutableOf(pid_t pid)
{
    return client_process::ExecutableOf(pid);
}

ustring MacService::ClientExecutable() const
{
    return user_app_path + "/" + layout::kClientExecutable;
}

ustring MacService::PerUserFile(const char* name) const
{
    return GetUserDroviaInstallPath() + "/" + name;
}

pid_t MacService::LaunchedClientPid() const
{
    pid_t pid = 0;
    ReadPidFile(PerUserFile(layout::kLaunchRecord), pid);
    return pid;
}

// The client that runs now, by its pid file, by the record of the last
// start or by what it runs; 0 when none runs.
pid_t MacService::RunningClientPid()
{
    pid_t pid = 0;
    ReadPidFile(PerUserFile(layout::kPidFile), pid);
    if (IsPerUserClient(pid))
        return pid;
    const pid_t launched = LaunchedClientPid();
    if (launched != pid && IsPerUserClient(launched))
        return launched;
    const std::vector<pid_t> clients = ClientsByExecutable();
    return clients.empty() ? 0 : clients.front();
}

int MacService::LaunchPerUserBin()
{
    if (!client_process::kOpeningFindsRunningClient) {
        const pid_t running = RunningClientPid();
        if (running > 0) {
            LOG_MSG(NOTE, "Drovia UI already runs as process %d, not starting another", running);
            return 0;
        }
    }
    const pid_t started = client_process::OpenBundle(user_app_path);
    if (started < 0)
        return -1;
    RecordLaunch(started);
    return 0;
}

// The launcher's own note of the client it started, for a launcher of
// another bundle copy that may come before the client has written its pid
// file. The pid file itself stays the client's.
void MacService::RecordLaunch(pid_t pid)
{
    if (pid <= 0)
        return;
    const ustring path = PerUserFile(layout::kLaunchRecord);
    if (!OverwriteFile(path, "pid=" + std::to_string(pid) + "\n"))
        LOG_MSG(WARNING, "cannot record the started client in '%s'", path.c_str_utf8());
}

void MacService::PostUpgrade()
{
    if (LaunchPerUserBin() < 0)
        LOG_MSG(ERROR, "Failed to launch Drovia UI");
}
