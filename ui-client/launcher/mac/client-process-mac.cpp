#include "mac/client-process.h"

#include <libproc.h>

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

pid_t OpenBundle(const ustring& bundle_path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(ToQString(bundle_path))) ? 0 : -1;
}

}  // namespace client_process
