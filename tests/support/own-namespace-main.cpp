// main() of the end-to-end tests. Where the kernel allows it (as root), each
// test runs in PID, mount and network namespaces of its own, with a /tmp of
// its own: the namespace's first process only reaps, the test runs in its
// child, and when the test ends the kernel ends whatever the namespace still
// holds. Elsewhere the tests that need the namespace skip.
#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>

#include "own-namespace.h"

namespace {

bool own_namespace = false;

int StatusOf(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

// Returns in the process that runs the test; the others end with its status,
// through _exit: once the namespace's first process is gone, the one outside
// can start no other, not even a leak checker's helper.
void EnterOwnNamespace()
{
    if (unshare(CLONE_NEWPID) != 0)
        return;
    const pid_t first = fork();
    if (first != 0)
        _exit(first < 0 ? 1 : StatusOf(first));
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // a test killed for its time-out takes the namespace along
    // Mounts, /tmp and the network (with it the X servers' abstract sockets) are
    // the namespace's own as well: an X server started here cannot take the
    // display of one outside for stale, since it sees none of its processes.
    const bool own_proc = unshare(CLONE_NEWNS | CLONE_NEWNET) == 0 &&
                          mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                          mount("proc", "/proc", "proc", MS_NOSUID | MS_NODEV | MS_NOEXEC, nullptr) == 0 &&
                          mount("drovia-tmp", "/tmp", "tmpfs", MS_NOSUID | MS_NODEV, "mode=1777") == 0;
    const pid_t test = own_proc ? fork() : -1;
    if (test < 0)
        _exit(1);
    if (test > 0) {
        // Reaps orphans, such as the clients the launcher starts, until the test ends.
        pid_t ended;
        int status = 0;
        while ((ended = wait(&status)) != test && (ended > 0 || errno == EINTR)) {
        }
        _exit(ended == test && WIFEXITED(status) ? WEXITSTATUS(status) : 1);
    }
    own_namespace = true;
}

}  // namespace

bool InOwnPidNamespace()
{
    return own_namespace;
}

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (!::testing::GTEST_FLAG(list_tests))
        EnterOwnNamespace();
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
