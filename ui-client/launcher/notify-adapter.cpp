#include "notify-adapter.h"

Notify_Adapter* Notify_Adapter::GetInstance()
{
    // The runtime guards the first construction, so callers on any thread
    // get the one relay that the Launcher has connected to.
    static Notify_Adapter instance;
    return &instance;
}

void Notify_Adapter::UpdateProgress(int total, int current)
{
    emit sigUpdateProgress(total, current);
}

void Notify_Adapter::UpdateDialogText(QString text)
{
    emit sigUpdateDialogText(text);
}
