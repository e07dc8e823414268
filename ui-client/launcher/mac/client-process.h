#ifndef CLIENT_PROCESS_H
#define CLIENT_PROCESS_H

#include <sys/types.h>

#include <vector>

#include "ustring.h"

// The per-user client as a process of the platform. macOS asks the desktop to
// open the bundle; elsewhere, where opening a folder only shows it in a file
// manager, the launcher starts the executable itself.
namespace client_process {

// Whether opening the bundle of a client that already runs only brings it
// forward, as the macOS desktop does. Where it does not, the launcher itself
// must make sure that no second client starts.
extern const bool kOpeningFindsRunningClient;

// The executable that process pid runs, with every link resolved. Empty with
// errno set when that cannot be told: ENOENT when there is no such process.
ustring ExecutableOf(pid_t pid);

// The processes of the user who runs the launcher; empty when the system
// does not tell.
std::vector<pid_t> ProcessesOfUser();

// Waits for seconds, or less once process pid has ended: a client that
// leaves at once on SIGTERM keeps nobody waiting for the next probe.
void WaitForEnd(pid_t pid, unsigned seconds);

// Starts the client of the bundle at bundle_path without arguments and
// without waiting for it. Returns its process id, 0 when the desktop started
// it and the id is not known, or -1 when the start was refused.
pid_t OpenBundle(const ustring& bundle_path);

}  // namespace client_process

#endif  // CLIENT_PROCESS_H
