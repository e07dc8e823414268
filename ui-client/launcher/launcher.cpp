#include "launcher.h"

#include <QCoreApplication>

#include "log.h"
#include "notify-adapter.h"
#include "processing-progress-dialog.h"
#include "worker.h"

#define LOG_COMPONENT "launcher_debug"
#define LOG_TAG "launcher"

namespace {

const int kPercentScale = 100;

struct SignalRoute {
    QObject* sender;
    const char* signal;
    QObject* receiver;
    const char* slot;
};

}  // namespace

Launcher::Launcher() : Launcher(new Worker) {}

Launcher::Launcher(Worker* worker) : worker(worker)
{
    dialog = new ProcessingProgressDialog;
    dialog->setCancelButton(nullptr);
    dialog->setAutoReset(false);
    ConnectSignals();
}

// The worker goes first: its destructor waits for any work still running,
// which may yet report to the dialog.
Launcher::~Launcher()
{
    if (worker)
        delete worker;
    if (dialog)
        delete dialog;
}

void Launcher::Run()
{
    worker->StartThread();
}

void Launcher::Start()
{
    emit sigStart();
}

void Launcher::LaunchDone()
{
    dialog->setValue(kPercentScale);
    dialog->hide();
    worker->QuitThread();
    worker->JoinThread();
    QCoreApplication::quit();
}

// Reporters always count at least one step; an empty count is ignored
// rather than allowed to stop the upgrade halfway.
void Launcher::UpdateProgress(int total, int steps)
{
    if (total <= 0)
        return;
    dialog->setValue(steps * kPercentScale / total);
}

void Launcher::SetLabelText(QString const& text)
{
    dialog->setLabelText(text);
}

void Launcher::ShowMsgBox()
{
    dialog->show();
}

void Launcher::ConnectSignals()
{
    Notify_Adapter* relay = Notify_Adapter::GetInstance();
    const SignalRoute routes[] = {
        {this, SIGNAL(sigStart()), worker, SLOT(HandleServicce())},
        {worker, SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox())},
        {worker, SIGNAL(sigServiceDone()), this, SLOT(LaunchDone())},
        {worker, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int))},
        {worker, SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString))},
        {relay, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int))},
        {relay, SIGNAL(sigUpdateDialogText(QString)), this, SLOT(SetLabelText(QString))},
    };
    for (const SignalRoute& route : routes) {
        if (!connect(route.sender, route.signal, route.receiver, route.slot))
            LOG_MSG(ERROR, "cannot connect %s to %s", route.signal, route.slot);
    }
}
