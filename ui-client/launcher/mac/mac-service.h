#ifndef MAC_SERVICE_H
#define MAC_SERVICE_H

#include <sys/types.h>

#include "cloud-service.h"

// The desktop platform's service: decides on the upgrade, stops the running
// client by the pid it leaves in ~/.Drovia/ui.pid, and starts the per-user
// client afterwards.
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
    // 0 when the per-user client was started, -1 otherwise.
    int LaunchPerUserBin();

protected:
    // kill(2) and a pause, apart so that the stop sequence can be followed
    // without signalling anything. SendSignal returns 0, or -1 with errno set.
    virtual int SendSignal(pid_t pid, int signal_number);
    virtual void PauseSeconds(unsigned seconds);

private:
    void TerminateClient(pid_t pid);
    bool WaitForExit(pid_t pid);
};

#endif  // MAC_SERVICE_H
