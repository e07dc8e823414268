#include "mac/client-process.h"

#include <libproc.h>
#include <unistd.h>

#include <QDesktopServices>
#include <QUrl>

#include <cerrno>

#include "qt-ustring.h"

namespace client_process {

const bool kOpeningFindsRunningClient = true;

ustring ExecutableOf(pid_t pid)
{
    char path[PROC_PIDPATHINFO_MAXSIZE];
    if (proc_pidpath(pid, path, sizeof path) <= 0) {
        if (errno == ESRCH)
            errno = ENOENT;
        return ustring();
    }
    return ustring(path);
}

std::vector<pid_t> ProcessesOfUser()
{
    const int size = proc_listpids(PROC_UID_ONLY, getuid(), nullptr, 0);
    if (size <= 0)
        return {};
    std::vector<pid_t> pids(static_cast<size_t>(size) / sizeof(pid_t));
    const int filled =
        proc_listpids(PROC_UID_ONLY, getuid(), pids.data(), static_cast<int>(pids.size() * sizeof(pid_t)));
    pids.resize(filled > 0 ? static_cast<size_t>(filled) / sizeof(pid_t) : 0);
    return pids;
}

// The pause as the desktop's own service has it; the client's end is not
// watched here.
void WaitForEnd(pid_t, unsigned seconds)
{
    sleep(seconds);
}

pid_t OpenBundle(const ustring& bundle_path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(ToQString(bundle_path))) ? 0 : -1;
}

}  // namespace client_process
