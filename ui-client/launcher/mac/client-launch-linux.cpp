#include "client-launch.h"

#include <spawn.h>

#include <QByteArray>
#include <QFile>

extern char** environ;

// posix_spawn rather than a fork: a fork makes every page of the launcher
// copy-on-write, and the GUI thread then pays a page fault per page it
// touches while the run ends, which made a run that upgrades nothing a
// quarter slower. The client gets a session of its own, so that it outlives
// the launcher as a double fork would leave it; glibc reports a failed exec
// as the result.
bool StartClientBundle(const QString& bundle_path)
{
    const QByteArray executable =
        QFile::encodeName(bundle_path + "/" + QLatin1String(kBundleClientExecutable));
    char* const argv[] = {const_cast<char*>(executable.constData()), nullptr};

    posix_spawnattr_t attributes;
    if (posix_spawnattr_init(&attributes) != 0)
        return false;
    pid_t pid = 0;
    const bool started =
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID) == 0 &&
        posix_spawn(&pid, executable.constData(), nullptr, &attributes, argv, environ) == 0;
    posix_spawnattr_destroy(&attributes);
    return started;
}
