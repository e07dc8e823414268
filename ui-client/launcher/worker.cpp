#include "worker.h"

#include <QMetaObject>

#include "cloud-service.h"
#include "handler-thread.h"
#include "install-layout.h"
#include "installation-lock.h"
#include "log.h"
#include "mac/mac-service.h"
#include "strtable.h"

#define LOG_COMPONENT "launcher_debug"
#define LOG_TAG "launcher"

namespace {

const int kProgressComplete = 100;

}  // namespace

Worker::Worker() : Worker(new MacService)
{
}

Worker::Worker(Service* service) : service(service)
{
    thread = new HandlerThread;
    moveToThread(thread);
}

Worker::~Worker()
{
    FinishPendingWork();
    if (thread)
        delete thread;
    if (service)
        delete service;
}

void Worker::StartThread()
{
    thread->start(QThread::InheritPriority);
}

void Worker::QuitThread()
{
    thread->quit();
}

void Worker::JoinThread()
{
    thread->wait();
}

void Worker::HandleServicce()
{
    LOG_MSG(DEBUG, "running");
    InstallationLock lock(Service::GetUserDroviaInstallPath() + "/" + layout::kLockFile);
    WaitForOtherLaunchers(lock);
    service->SettleUserEnv();
    service->PreUpgrade();
    const bool upgrading = service->IsNeedUpgrade();
    if (upgrading)
        UpgradePackage();
    else
        LOG_MSG(DEBUG, "no need to upgrade");

    service->RemoveAgedFolders();
    service->PostUpgrade();
    LOG_MSG(DEBUG, "done");
    emit sigServiceDone();
    // The tree an upgrade replaced goes once the dialog is gone and the new
    // client runs; the lock keeps other launchers waiting until it has.
    if (upgrading)
        service->SettleUserEnv();
}

// Another copy of the bundle may be replacing the installation or starting
// the client. The versions are read only once it is done, so the two never
// unpack over each other and the second one finds the first one's client.
void Worker::WaitForOtherLaunchers(InstallationLock& lock)
{
    if (lock.TryAcquire())
        return;
    LOG_MSG(DEBUG, "another launcher is preparing Drovia, waiting for it");
    emit sigShowMsg();
    lock.Acquire();
}

void Worker::UpgradePackage()
{
    emit sigShowMsg();
    if (service->HandlePackageUpgrade() != 0) {
        LOG_MSG(ERROR, "Failed to upgrade package");
        return;
    }
    emit sigUpdateProgress(kProgressComplete, kProgressComplete);
    emit sigSetLabelText(StrTable::LoadStr(StrTable::kEnvironmentPreparationDone));
}

// The GUI's event loop may end before the work does: closing the dialog
// closes the last window. The thread must then still run what is queued for
// it (the upgrade and the launch of the client) and stop before it and the
// service are destroyed. A quit request queued behind that work ends the
// thread's event loop only once the work has run.
void Worker::FinishPendingWork()
{
    if (thread == nullptr || !thread->isRunning())
        return;
    QMetaObject::invokeMethod(
        this, [this] { thread->quit(); }, Qt::QueuedConnection);
    thread->wait();
}
