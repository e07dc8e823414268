#include "mac/client-process.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>

#include "install-layout.h"

extern char** environ;

namespace client_process {
namespace {

// What /proc shows behind the executable's path once the file is replaced or
// removed, as an upgrade does to the client that still runs.
const char kDeletedMark[] = " (deleted)";

// Signals the client must receive as usual even where the launcher was
// started with them ignored (nohup, some session managers).
const int kDefaultSignals[] = {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGTERM};

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// The client shares nothing with the launcher: standard streams on
// /dev/null and no other descriptor, so that a pipe or a log the launcher
// holds closes when the launcher ends.
bool DetachStreams(posix_spawn_file_actions_t* actions)
{
    return posix_spawn_file_actions_addopen(actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0) == 0 &&
           posix_spawn_file_actions_addopen(actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0) == 0 &&
           posix_spawn_file_actions_adddup2(actions, STDOUT_FILENO, STDERR_FILENO) == 0 &&
           posix_spawn_file_actions_addclosefrom_np(actions, STDERR_FILENO + 1) == 0;
}

// A session of its own lets the client outlive the launcher as a double fork
// would leave it; the signal state is the default one whatever the launcher's.
bool DetachSession(posix_spawnattr_t* attributes)
{
    sigset_t none;
    sigset_t defaults;
    sigemptyset(&none);
    sigemptyset(&defaults);
    for (int signal_number : kDefaultSignals)
        sigaddset(&defaults, signal_number);
    return posix_spawnattr_setflags(
               attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF) == 0 &&
           posix_spawnattr_setsigmask(attributes, &none) == 0 &&
           posix_spawnattr_setsigdefault(attributes, &defaults) == 0;
}

}  // namespace

const bool kOpeningFindsRunningClient = false;

ustring ExecutableOf(pid_t pid)
{
    const std::string link = "/proc/" + std::to_string(pid) + "/exe";
    char target[PATH_MAX];
    const ssize_t length = readlink(link.c_str(), target, sizeof target - 1);
    if (length < 0)
        return ustring();
    std::string executable(target, static_cast<size_t>(length));
    if (EndsWith(executable, kDeletedMark))
        executable.resize(executable.size() - (sizeof kDeletedMark - 1));
    return ustring(executable);
}

// A process's folder in /proc belongs to the user the process runs as.
std::vector<pid_t> ProcessesOfUser()
{
    std::vector<pid_t> pids;
    DIR* proc = opendir("/proc");
    if (proc == nullptr)
        return pids;
    const uid_t user = getuid();
    while (const dirent* entry = readdir(proc)) {
        char* end = nullptr;
        const long pid = std::strtol(entry->d_name, &end, 10);
        struct stat owner;
        if (pid > 0 && pid <= INT_MAX && *end == '\0' &&
            fstatat(dirfd(proc), entry->d_name, &owner, 0) == 0 && owner.st_uid == user)
            pids.push_back(static_cast<pid_t>(pid));
    }
    closedir(proc);
    return pids;
}

// A process's descriptor becomes readable when the process ends. Where the
// kernel has none to give, the pause is a plain one.
void WaitForEnd(pid_t pid, unsigned seconds)
{
    const int milliseconds = static_cast<int>(seconds * 1000);
    const int process = static_cast<int>(syscall(SYS_pidfd_open, pid, 0));
    if (process < 0) {
        poll(nullptr, 0, milliseconds);
        return;
    }
    pollfd ended = {process, POLLIN, 0};
    poll(&ended, 1, milliseconds);
    close(process);
}

// posix_spawn rather than a fork: a fork makes every page of the launcher
// copy-on-write, and the GUI thread then pays a page fault per page it
// touches while the run ends. glibc reports a failed exec as the result.
pid_t OpenBundle(const ustring& bundle_path)
{
    const ustring executable = bundle_path + "/" + layout::kClientExecutable;
    char* const argv[] = {const_cast<char*>(executable.c_str_utf8()), nullptr};

    posix_spawn_file_actions_t actions;
    if (posix_spawn_file_actions_init(&actions) != 0)
        return -1;
    posix_spawnattr_t attributes;
    if (posix_spawnattr_init(&attributes) != 0) {
        posix_spawn_file_actions_destroy(&actions);
        return -1;
    }
    pid_t pid = -1;
    const bool started = DetachStreams(&actions) && DetachSession(&attributes) &&
                         posix_spawn(&pid, argv[0], &actions, &attributes, argv, environ) == 0;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return started ? pid : -1;
}

}  // namespace client_process
