#include "mac/mac-service.h"

#include <signal.h>
#include <unistd.h>

#include <QDir>
#include <QString>

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "config.h"
#include "file-op.h"
#include "log.h"
#include "mac/client-launch.h"

#define LOG_COMPONENT "service_debug"
#define LOG_TAG "mac/mac-service"

namespace {

const int kDefaultTimeout = 10000;
const char kPidFileName[] = "/ui.pid";
const char kPidKey[] = "pid";
const int kExitProbes = 5;
const unsigned kProbeIntervalSeconds = 1;

// 0 when text names no single process: kill() with 0 or a negative pid
// addresses a whole process group, the launcher's own included.
pid_t ClientPid(const ustring& text)
{
    const long value = std::strtol(text.c_str_utf8(), nullptr, 10);
    if (value <= 0 || value > INT_MAX)
        return 0;
    return static_cast<pid_t>(value);
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
    const ustring executable = user_app_path + "/" + kBundleClientExecutable;
    return access(executable.c_str_utf8(), F_OK) == 0;
}

void MacService::PreUpgrade()
{
    LoadTargetVersion();
    LoadSourceVersion();
    LOG_MSG(DEBUG, "Source version: ('%s', '%s')",
            source_build_version.c_str_utf8(), source_icon_overlay_version.c_str_utf8());
    LOG_MSG(DEBUG, "Target version: ('%s', '%s')",
            target_build_version.c_str_utf8(), target_icon_overlay_version.c_str_utf8());
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

int MacService::HandlePackageUpgrade()
{
    if (PerUserBinPathExist()) {
        LOG_MSG(DEBUG, "local appdata exist");
        StopService();
    }
    return PrepareUserEnv();
}

void MacService::StopService()
{
    const ustring pid_file = GetUserDroviaInstallPath() + kPidFileName;
    Config config;
    if (!IsFileExist(pid_file, false)) {
        LOG_MSG(DEBUG, "pid file '%s' does not exist, no need to terminate", pid_file.c_str_utf8());
        return;
    }
    if (config.read(pid_file) != 0) {
        LOG_MSG(NOTE, "Failed to read pid file '%s', not exist ?", pid_file.c_str_utf8());
        return;
    }
    const pid_t pid = ClientPid(config.entries[kPidKey]);
    if (pid <= 0)
        return;
    TerminateClient(pid);
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
    if (!WaitForExit(pid))
        SendSignal(pid, SIGKILL);
}

// True once the process is gone; the first probe comes right after SIGTERM.
bool MacService::WaitForExit(pid_t pid)
{
    for (int probe = 0; probe < kExitProbes; ++probe) {
        if (SendSignal(pid, 0) != 0 && errno == ESRCH)
            return true;
        PauseSeconds(kProbeIntervalSeconds);
    }
    return false;
}

int MacService::SendSignal(pid_t pid, int signal_number)
{
    return kill(pid, signal_number);
}

void MacService::PauseSeconds(unsigned seconds)
{
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
}

int MacService::LaunchPerUserBin()
{
    const QString bundle = QDir::homePath() + "/.Drovia/Drovia.app";
    return StartClientBundle(bundle) ? 0 : -1;
}

void MacService::PostUpgrade()
{
    if (LaunchPerUserBin() < 0) {
        LOG_MSG(ERROR, "Failed to launch Drovia UI");
    }
}
