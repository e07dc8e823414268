#ifndef WORKER_H
#define WORKER_H

#include <QObject>
#include <QString>

class HandlerThread;
class InstallationLock;
class Service;

// Runs the upgrade service off the GUI thread: it moves itself to a thread of
// its own and reports back to the Launcher through queued signals only.
class Worker : public QObject {
    Q_OBJECT

public:
    Worker();
    // Takes ownership of service; tests pass one of their own.
    explicit Worker(Service* service);
    ~Worker() override;

    void StartThread();
    void QuitThread();
    void JoinThread();

signals:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int total, int current);
    void sigSetLabelText(QString const& text);

private slots:
    void HandleServicce();

private:
    // Only the Launcher starts the work, through sigStart.
    friend class Launcher;

    void WaitForOtherLaunchers(InstallationLock& lock);
    void UpgradePackage();
    void FinishPendingWork();

    HandlerThread* thread = nullptr;
    Service* service = nullptr;
};

#endif  // WORKER_H
