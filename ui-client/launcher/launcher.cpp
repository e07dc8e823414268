#include "launcher.h"

#include <QCoreApplication>

#include "notify-adapter.h"
#include "processing-progress-dialog.h"
#include "worker.h"

namespace {

const int kPercentScale = 100;

}  // namespace

Launcher::Launcher() : Launcher(new Worker)
{
}

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

// Automatic connections: the worker and the relay emit on the worker thread,
// so their signals arrive here queued, in the order they were sent.
void Launcher::ConnectSignals()
{
    Notify_Adapter* relay = Notify_Adapter::GetInstance();
    connect(this, &Launcher::sigStart, worker, &Worker::HandleServicce);
    connect(worker, &Worker::sigShowMsg, this, &Launcher::ShowMsgBox);
    connect(worker, &Worker::sigServiceDone, this, &Launcher::LaunchDone);
    connect(worker, &Worker::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(worker, &Worker::sigSetLabelText, this, &Launcher::SetLabelText);
    connect(relay, &Notify_Adapter::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(relay, &Notify_Adapter::sigUpdateDialogText, this, &Launcher::SetLabelText);
}
