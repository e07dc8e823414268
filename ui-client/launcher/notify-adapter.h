#ifndef NOTIFY_ADAPTER_H
#define NOTIFY_ADAPTER_H

#include <QObject>
#include <QString>

// Lets code deep inside the upgrade report progress without knowing the
// dialog: the Launcher connects these signals to its slots, so reports from
// the worker thread reach the GUI thread as queued calls.
class Notify_Adapter : public QObject {
    Q_OBJECT

public:
    static Notify_Adapter* GetInstance();

    void UpdateProgress(int total, int current);
    void UpdateDialogText(QString text);

signals:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString text);

private:
    Notify_Adapter() = default;
};

#endif  // NOTIFY_ADAPTER_H
