#include "worker.h"

#include <QMetaObject>

#include "cloud-service.h"
#include "handler-thread.h"
#include "log.h"
#include "mac/mac-service.h"
#include "strtable.h"

namespace {

const char kLogComponent[] = "launcher_debug";
const int kProgressComplete = 100;
const int kReadyTextId = 465;

}  // namespace

Worker::Worker() : Worker(new MacService) {}

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
    Logger::LogMsg(Logger::LEVEL_DEBUG, kLogComponent, "[DEBUG] launcher(%d): running\n", __LINE__);
    service->PreUpgrade();
    if (service->IsNeedUpgrade())
        UpgradePackage();
    else
        Logger::LogMsg(Logger::LEVEL_DEBUG, kLogComponent, "[DEBUG] launcher(%d): no need to upgrade\n", __LINE__);

    service->RemoveAgedFolders();
    service->PostUpgrade();
    Logger::LogMsg(Logger::LEVEL_DEBUG, kLogComponent, "[DEBUG] launcher(%d): done\n", __LINE__);
    emit sigServiceDone();
}

void Worker::UpgradePackage()
{
    emit sigShowMsg();
    if (service->HandlePackageUpgrade() != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kLogComponent, "[ERROR] launcher(%d): Failed to upgrade package\n",
                       __LINE__);
        return;
    }
    emit sigUpdateProgress(kProgressComplete, kProgressComplete);
    emit sigSetLabelText(StrTable::LoadStr(kReadyTextId));
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
    QMetaObject::invokeMethod(this, [this] { thread->quit(); }, Qt::QueuedConnection);
    thread->wait();
}
