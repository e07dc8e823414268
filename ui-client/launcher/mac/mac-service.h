#ifndef MAC_SERVICE_H
#define MAC_SERVICE_H

#include <sys/types.h>

#include <vector>

#include "cloud-service.h"

// The desktop platform's service: decides on the upgrade, stops the running
// client by the pid it leaves in ~/.Drovia/ui.pid, and starts the per-user
// client afterwards. A process counts as the client only when it runs the
// per-user client's executable, so nothing else of the user's is signalled;
// and every process of the user's that does counts, pid file or not.
class MacService : public Service {
public:
    MacService();
    ~MacService() override;

    void StopService() override;
    int HandlePackageUpgrade() override;
    void PostUpgrade() override;
    void PreUpgrade() override;
    bool IsNeedUpgrade() override;

    // Whether ~/.Drovia/Drovia.app holds a client executable.
    bool PerUserBinPathExist();
    // 0 when the per-user client was started or already runs, -1 otherwise.
    int LaunchPerUserBin();

protected:
    // kill(2), a pause, the user's processes and the executable a process
    // runs, apart so that the stop sequence can be followed without
    // signalling anything. SendSignal returns 0, or -1 with errno set;
    // ExecutableOf is empty with errno set (ENOENT: no such process) when it
    // cannot tell.
    virtual int SendSignal(pid_t pid, int signal_number);
    // Pauses for seconds, or less once process pid has ended.
    virtual void PauseSeconds(pid_t pid, unsigned seconds);
    virtual std::vector<pid_t> ProcessesOfUser();
    virtual ustring ExecutableOf(pid_t pid);

private:
    ustring ClientExecutable() const;
    ustring PerUserFile(const char* name) const;
    bool IsPerUserClient(pid_t pid);
    std::vector<pid_t> ClientsByExecutable();
    pid_t LaunchedClientPid() const;
    pid_t RunningClientPid();
    void RecordLaunch(pid_t pid);
    void StopClient(pid_t pid);
    void TerminateClient(pid_t pid);
    bool WaitForExit(pid_t pid);
    bool WasKilled(pid_t pid) const;

    // Clients sent SIGKILL, which the kernel may take a moment to end: they
    // no longer count as running.
    std::vector<pid_t> killed;
};

#endif  // MAC_SERVICE_H
