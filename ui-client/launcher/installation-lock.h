#ifndef INSTALLATION_LOCK_H
#define INSTALLATION_LOCK_H

#include "ustring.h"

// Keeps the launchers of one user apart, whichever bundle copy each runs
// from: they share the per-user installation. The lock is the kernel's lock
// on a file, so it goes with its holder when the holder dies.
class InstallationLock {
public:
    explicit InstallationLock(const ustring& path);
    ~InstallationLock();

    InstallationLock(const InstallationLock&) = delete;
    InstallationLock& operator=(const InstallationLock&) = delete;

    // False only while another launcher holds the lock. A lock that cannot
    // be taken at all (no folder for its file) counts as held: the launcher
    // must still start the client.
    bool TryAcquire();
    // Waits until the lock is held. The lock is released when the object goes.
    void Acquire();

private:
    bool Lock(int operation);

    ustring path;
    int fd = -1;
};

#endif  // INSTALLATION_LOCK_H
