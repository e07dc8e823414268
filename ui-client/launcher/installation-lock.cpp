#include "installation-lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "log.h"

#define LOG_COMPONENT "launcher_debug"
#define LOG_TAG "launcher"

namespace {

const mode_t kLockFileMode = 0600;

}  // namespace

InstallationLock::InstallationLock(const ustring& path) : path(path)
{
}

InstallationLock::~InstallationLock()
{
    if (fd >= 0)
        close(fd);
}

bool InstallationLock::TryAcquire()
{
    return Lock(LOCK_EX | LOCK_NB);
}

void InstallationLock::Acquire()
{
    Lock(LOCK_EX);
}

// Close-on-exec, so that the client the launcher starts never holds it.
bool InstallationLock::Lock(int operation)
{
    if (fd < 0)
        fd = open(path.c_str_utf8(), O_RDWR | O_CREAT | O_CLOEXEC, kLockFileMode);
    if (fd < 0) {
        LOG_MSG(WARNING, "cannot open the lock file '%s': %s", path.c_str_utf8(), strerror(errno));
        return true;
    }
    int status;
    do {
        status = flock(fd, operation);
    } while (status != 0 && errno == EINTR);
    if (status == 0 || errno == EWOULDBLOCK)
        return status == 0;
    LOG_MSG(WARNING, "cannot lock '%s': %s", path.c_str_utf8(), strerror(errno));
    return true;
}
